#include "KxDialogs.h"
#include "windows/KxGuard.h"

static constexpr int noModalResult = -100;

CDialog::CDialog()
    : CWnd(*new CDialogPrivate, nullptr)
{
}

CDialog::CDialog(UINT, CWnd *pParent)
    : CWnd(*new CDialogPrivate, pParent)
{
}

CDialog::CDialog(const wchar_t *, CWnd *pParent)
    : CWnd(*new CDialogPrivate, pParent)
{
}

CDialog::CDialog(CDialogPrivate &d, CWnd *pParent)
    : CWnd(d, pParent)
{
}

BOOL CDialog::Create(const wchar_t *, CWnd *pParentWnd)
{
    if (!boundWidget(this))
        return withoutWidget<BOOL>(this);
    SetParent(pParentWnd);
    OnInitDialog();
    return TRUE;
}

BOOL CDialog::Create(UINT, CWnd *pParentWnd)
{
    return CDialog::Create(nullptr, pParentWnd);
}

INT_PTR CDialog::DoModal()
{
    if (!boundWidget<QDialog>(this))
        return withoutWidget<INT_PTR>(this);
    m_nModalResult = noModalResult;
    OnInitDialog();
    auto *dialog = boundWidget<QDialog>(this);
    const int qtResult = dialog ? dialog->exec() : QDialog::Rejected;
    if (m_nModalResult != noModalResult)
        return m_nModalResult;
    return qtResult == QDialog::Accepted ? IDOK : IDCANCEL;
}

BOOL CDialog::OnInitDialog()
{
    if (isNullObject(this))
        return withoutWidget<BOOL>(this);
    UpdateData(FALSE);
    return TRUE;
}

void CDialog::OnOK()
{
    if (!isNullObject(this) && UpdateData(TRUE))
        EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    if (auto *dialog = boundWidget<QDialog>(this))
        dialog->reject();
}

void CDialog::EndDialog(int nResult)
{
    auto *dialog = boundWidget<QDialog>(this);
    if (!dialog)
        return;
    m_nModalResult = nResult;
    dialog->accept();
}

BOOL CDialog::OnNotify(WPARAM, LPARAM, LRESULT *)
{
    return TRUE;
}

void CDialog::OnHScroll(UINT, UINT, CWnd *) {}

void CDialog::GotoDlgCtrl(CWnd *) {}

BOOL CDialog::OnHelpInfo(HELPINFO *)
{
    return FALSE;
}
