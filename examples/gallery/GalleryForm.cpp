#include "GalleryForm.h"

#include "GalleryDlg.h"
#include "PageForms.h"
#include "PageFrame.h"
#include "ui_GalleryDlg.h"

GalleryForm::GalleryForm(CGalleryDlg &dlg)
    : QBaseDialog(nullptr)
    , m_dlg(dlg)
{
    Ui::GalleryDlg ui;
    ui.setupUi(this);
    ui.pages->addTab(makePageForm(dlg.m_editPage), tr("Edit, static, button"));
    ui.pages->addTab(makePageForm(dlg.m_listBoxPage), tr("Combo box, list box"));
    ui.pages->addTab(makePageForm(dlg.m_listPage), tr("List control"));
    ui.pages->addTab(makePageForm(dlg.m_treePage), tr("Tree"));
    ui.pages->addTab(makePageForm(dlg.m_commonPage), tr("Tab, slider, scroll bar"));
    dlg.m_editPage.m_hPicture = m_picture.handle();

    bindForm(dlg, this, {{IDC_PAGES, ui.pages}, {IDCANCEL, ui.close}});
    connect(ui.close, &QPushButton::clicked, this, &GalleryForm::OnCancel);
}

void GalleryForm::OnCancel()
{
    m_dlg.OnCancel();
}
