#include "GalleryPage.h"

CGalleryPage::CGalleryPage(UINT nIDTemplate, CWnd *pParent)
    : CDialog(nIDTemplate, pParent)
{
}

void CGalleryPage::DoDataExchange(CDataExchange *pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_RESULTS, m_results);
}

void CGalleryPage::ClearResults()
{
    m_results.DeleteAllItems();
}

void CGalleryPage::OnSignal(const wchar_t *lpszSignal, int nValue)
{
    const int nRow = AddRow(lpszSignal, L"a signal of the widget");
    SetResult(nRow, ResultText(nValue));
}

int CGalleryPage::AddRow(const wchar_t *lpszCall, const wchar_t *lpszNote)
{
    const int nRow = m_results.GetItemCount();
    m_results.InsertItem(nRow, lpszCall, 0);
    m_results.SetItemText(nRow, 1, L"void");
    m_results.SetItemText(nRow, 2, lpszNote);
    return nRow;
}

void CGalleryPage::SetResult(int nRow, const wchar_t *lpszResult)
{
    m_results.SetItemText(nRow, 1, lpszResult);
}

CString CGalleryPage::ResultText(int nResult)
{
    return ResultText(static_cast<LPARAM>(nResult));
}

CString CGalleryPage::ResultText(LPARAM nResult)
{
    CString strText;
    strText.Format(L"%lld", static_cast<long long>(nResult));
    return strText;
}

CString CGalleryPage::ResultText(unsigned nResult)
{
    return ResultText(static_cast<unsigned long>(nResult));
}

CString CGalleryPage::ResultText(unsigned long nResult)
{
    CString strText;
    strText.Format(L"%lu", nResult);
    return strText;
}

CString CGalleryPage::ResultText(const wchar_t *lpszResult)
{
    if (!lpszResult)
        return L"null";
    CString strText;
    strText.Format(L"\"%ls\"", lpszResult);
    return strText;
}

CString CGalleryPage::ResultText(const CString &strResult)
{
    return ResultText(static_cast<const wchar_t *>(strResult));
}

CString CGalleryPage::ResultText(const void *pResult)
{
    return pResult ? L"not null" : L"null";
}
