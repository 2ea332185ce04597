#include "PageFrame.h"

#include "GalleryPage.h"
#include "ui_PageFrame.h"

#include <QHeaderView>

void bindForm(CWnd &dlg, QWidget *window, std::initializer_list<FormControl> controls)
{
    dlg.Attach(reinterpret_cast<HWND>(window));
    for (const FormControl &control : controls)
        dlg.SetDlgItem(control.id, reinterpret_cast<HWND>(control.widget));
}

PageFrame::PageFrame()
{
    Ui::PageFrame ui;
    ui.setupUi(this);
    m_controls = ui.controls;
    m_results = ui.results;

    // In letters, so that every call fits whatever font the desktop gives.
    const int letter = fontMetrics().averageCharWidth();
    ui.results->setColumnWidth(0, 42 * letter);
    ui.results->setColumnWidth(1, 14 * letter);
    ui.results->setMinimumWidth(84 * letter);
    ui.results->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    ui.results->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

void PageFrame::bind(CGalleryPage &page, std::initializer_list<FormControl> controls)
{
    bindForm(page, this, controls);
    page.SetDlgItem(IDC_RESULTS, reinterpret_cast<HWND>(m_results));
}
