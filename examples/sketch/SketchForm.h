#pragma once

#include "KxDialogs.h"

#include <memory>

class CSketchDlg;
namespace Ui {
class SketchDlg;
}

/// The window of a CSketchDlg: the Qt Designer form, its control identifiers and its connections.
class SketchForm : public QBaseDialog
{
    Q_OBJECT
public:
    explicit SketchForm(CSketchDlg &dlg);
    ~SketchForm() override;

    void OnCancel() override;

private:
    void registerControls();
    void connectControls();

    CSketchDlg &m_dlg;
    std::unique_ptr<Ui::SketchDlg> m_ui;
};
