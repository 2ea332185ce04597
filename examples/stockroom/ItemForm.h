#pragma once

#include "KxDialogs.h"

#include <memory>

class CItemDlg;
namespace Ui {
class ItemForm;
}

/// The window of a CItemDlg: the Qt Designer form, its control identifiers and its connections.
class ItemForm : public QBaseDialog
{
    Q_OBJECT
public:
    ItemForm(CItemDlg &dlg, QWidget *parent);
    ~ItemForm() override;

    void OnOK() override;
    void OnCancel() override;

private:
    void loadTexts();
    void registerControls();
    void connectControls();

    CItemDlg &m_dlg;
    std::unique_ptr<Ui::ItemForm> m_ui;
};
