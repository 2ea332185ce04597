#include "KxDialogs.h"
#include "windows/KxGuard.h"

CDataExchange::CDataExchange(CWnd *pDlgWnd, bool bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate)
    , m_pDlgWnd(pDlgWnd)
{
}

void CDataExchange::Fail()
{
    m_bFail = true;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    CWnd *control = isNullObject(m_pDlgWnd) ? nullptr : m_pDlgWnd->GetDlgItem(nIDC);
    return control ? control->GetSafeHwnd() : nullptr;
}

void DDV_MinMaxInt(CDataExchange *, int, int, int) {}

void DDV_MinMaxDouble(CDataExchange *, double, double, double) {}

void DDV_MaxChars(CDataExchange *, const CString &, int) {}
