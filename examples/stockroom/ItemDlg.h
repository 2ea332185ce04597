#pragma once

#include "StockData.h"
#include "resource.h"

/// Shows one item and lets the user change it.
class CItemDlg : public CDialog
{
public:
    enum { IDD = IDD_ITEM };

    /// @param pItem the item that is edited, null for a new one: its number may stay.
    explicit CItemDlg(const CStock &stock, const CStockItem *pItem, CWnd *pParent = nullptr);

    CStockItem m_item; // what the dialog starts with and, after IDOK, what the user entered

    BOOL OnInitDialog() override;
    void OnLevelChanged(int nLevel);

protected:
    void DoDataExchange(CDataExchange *pDX) override;

private:
    void FillLists();
    void FillUnits();
    void ExchangeUnit(CDataExchange *pDX);
    void ShowWeight();
    void ShowPrice();
    BOOL Validate();
    BOOL Refuse(int nIDField, UINT nIDReason);

    const CStock &m_stock;
    const CStockItem *m_pEdited;
    CComboBox m_room;
    CComboBox m_packing;
    CListBox m_category;
    CListBox m_unit;
    CSliderCtrl m_level;
    CEdit m_note;
};

/// Runs the dialog with its form.
/// @return IDOK or IDCANCEL
INT_PTR EditItem(CItemDlg &dlg, QWidget *parent);
