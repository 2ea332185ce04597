#pragma once

#include "KxMFCWrapper.h"
#include "resource.h"

#include <type_traits>

/// Makes a call and lists it with its result on the page: SHOW(m_trees.SetCurSel(2)).
#define SHOW(call) Show(L"" #call, L"", [&] { return call; })
/// The same with a remark beside the result.
#define SHOW_NOTE(call, note) Show(L"" #call, note, [&] { return call; })

/// A page of the gallery: the controls of one family, and a list of the calls made and what each returned.
class CGalleryPage : public CDialog
{
public:
    CGalleryPage(UINT nIDTemplate, CWnd *pParent);

    void ClearResults();
    /// Lists a signal of a widget. The library sends no notifications, so the form connects the signals.
    void OnSignal(const wchar_t *lpszSignal, int nValue);

protected:
    void DoDataExchange(CDataExchange *pDX) override;

    template <typename Call> void Show(const wchar_t *lpszCall, const wchar_t *lpszNote, Call call)
    {
        // Listed first, so that the signals that the call emits follow it.
        const int nRow = AddRow(lpszCall, lpszNote);
        if constexpr (std::is_void_v<decltype(call())>)
            call();
        else
            SetResult(nRow, ResultText(call()));
    }

private:
    int AddRow(const wchar_t *lpszCall, const wchar_t *lpszNote);
    void SetResult(int nRow, const wchar_t *lpszResult);

    static CString ResultText(int nResult);
    static CString ResultText(unsigned nResult);
    static CString ResultText(LPARAM nResult);
    static CString ResultText(unsigned long nResult);
    static CString ResultText(const wchar_t *lpszResult);
    static CString ResultText(const CString &strResult);
    static CString ResultText(const void *pResult);

    CListCtrl m_results;
};
