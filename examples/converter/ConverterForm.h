#pragma once

#include <KxDialogs.h>

#include <memory>

class CConverterDlg;
namespace Ui {
class ConverterDlg;
}

/// The window of a CConverterDlg: the Qt Designer form, its control identifiers and its connections.
class ConverterForm : public QBaseDialog
{
    Q_OBJECT
public:
    explicit ConverterForm(CConverterDlg &dlg);
    ~ConverterForm() override;

    void OnCancel() override;

private:
    void showIcon();
    void bindControls();
    void connectControls();

    CConverterDlg &m_dlg;
    std::unique_ptr<Ui::ConverterDlg> m_ui;
};
