#include "KxDialogs.h"
#include "windows/KxGuard.h"

CKdUiDialog::CKdUiDialog(UINT nIDTemplate, CWnd *pParent)
    : CDialog(nIDTemplate, pParent)
{
}

void CKdUiDialog::BeginEditorCommand() {}

void CKdUiDialog::CompleteEditorCommand() {}

void CKdUiDialog::SetDialogName(const wchar_t *) {}

CKcUiDialog::CKcUiDialog(UINT nIDTemplate, CWnd *pParent)
    : CKdUiDialog(nIDTemplate, pParent)
{
}

void CKcUiDialog::OnSize(UINT, int, int) {}

void CKcUiDialog::OnSizing(UINT, RECT *) {}

CKcUiTabChildDialog::CKcUiTabChildDialog(UINT nIDTemplate, CWnd *pParent)
    : CKcUiDialog(nIDTemplate, pParent)
{
}

BOOL CKcUiTabChildDialog::SetDirty(bool bDirty)
{
    static constexpr int applyButton = 1501;

    CWnd *host = GetParent();
    if (isNullObject(host))
        return withoutWidget<BOOL>(host);
    CWnd *apply = host->GetDlgItem(applyButton);
    if (isNullObject(apply))
        return withoutWidget<BOOL>(apply);
    // The focus must not stay on a control that is about to be disabled.
    if (!bDirty && GetFocus() == apply)
        SetFocus();
    return apply->EnableWindow(bDirty);
}
