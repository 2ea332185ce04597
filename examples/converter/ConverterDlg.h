#pragma once

#include "resource.h"

class CConverterDlg : public CDialog
{
public:
    CConverterDlg(CWnd *pParent = NULL);
    enum { IDD = IDD_CONVERTER };

    afx_msg void OnBnClickedConvert();
    afx_msg void OnBnClickedSwap();
    afx_msg void OnBnClickedClear();
    afx_msg void OnCbnSelchangeQuantity();
    afx_msg void OnEnChangeAmount();
    afx_msg void OnDestroy();

protected:
    void DoDataExchange(CDataExchange *pDX) override;
    BOOL OnInitDialog() override;
    DECLARE_MESSAGE_MAP()

private:
    HICON m_hIcon;
    CComboBox m_wndQuantity;
    CComboBox m_wndFrom;
    CComboBox m_wndTo;
    CSpinButtonCtrl m_wndSpin;
    CListBox m_wndHistory;
    CString m_strAmount;
    int m_nDecimals;

    void FillUnits();
    void Restore(CComboBox &wndCombo, LPCTSTR lpszEntry);
};
