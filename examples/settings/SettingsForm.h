#pragma once

#include "KxDialogs.h"

#include <memory>

class CSettingsDlg;
namespace Ui {
class SettingsDlg;
}

/// The window of a CSettingsDlg: the Qt Designer form, its control identifiers and its connections.
class SettingsForm : public QBaseDialog
{
    Q_OBJECT
public:
    explicit SettingsForm(CSettingsDlg &dlg);
    ~SettingsForm() override;

    void OnOK() override;
    void OnCancel() override;

private:
    void loadTexts();
    void registerControls();
    void connectControls();

    CSettingsDlg &m_dlg;
    std::unique_ptr<Ui::SettingsDlg> m_ui;
};
