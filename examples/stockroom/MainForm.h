#pragma once

#include <KxDialogs.h>

#include <memory>

class CMainDlg;
class QTableView;
namespace Ui {
class MainForm;
}

/// The window of a CMainDlg: the Qt Designer form, its control identifiers and its connections.
class MainForm : public QBaseDialog
{
    Q_OBJECT
public:
    explicit MainForm(CMainDlg &dlg);
    ~MainForm() override;

    void OnCancel() override;

    /// Restores the sizes of a former run, in pixels; 0 stands for one that suits.
    void setLayoutSizes(int width, int height, int treeWidth);
    /// @return the width of the tree of rooms, in pixels.
    int treeWidth() const;

private:
    void loadTexts();
    void loadSymbols();
    void layOutList(QTableView *list);
    void registerControls();
    void connectControls();
    void connectList(QTableView *list);
    void addShortcuts();
    void showMenu(const QPoint &globalPlace);

    CMainDlg &m_dlg;
    std::unique_ptr<Ui::MainForm> m_ui;
};
