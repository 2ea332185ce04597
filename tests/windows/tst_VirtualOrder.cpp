#include "KxMFCWrapper.h"

#include <QTest>

#include <cstring>

// The place of a virtual member in its class's table, as the platform's C++ ABI encodes it in a member pointer.
template <typename Member> static std::ptrdiff_t slotOf(Member member)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof member == sizeof words);
    std::memcpy(words, &member, sizeof words);
    return (words[0] - 1) / std::ptrdiff_t{sizeof(void *)};
}

using Slots = std::vector<std::ptrdiff_t>;

static Slots slotsFrom(std::ptrdiff_t first, std::size_t count)
{
    Slots places(count);
    for (std::size_t i = 0; i < count; ++i)
        places[i] = first + std::ptrdiff_t(i);
    return places;
}

/// The order of virtual operations is part of the binary interface.
class tst_VirtualOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windowOperationsFollowTheDestructor()
    {
        const Slots places = {slotOf(&CWnd::Create),
                              slotOf(&CWnd::GetCapture),
                              slotOf(&CWnd::SetCapture),
                              slotOf(&CWnd::GetSafeHwnd),
                              slotOf(&CWnd::GetSafeHdc),
                              slotOf(&CWnd::GetClientRect),
                              slotOf(&CWnd::PreSubclassWindow),
                              slotOf(&CWnd::DoDataExchange),
                              slotOf(&CWnd::PreTranslateMessage),
                              slotOf(&CWnd::SetWindowTextW),
                              slotOf<void (CWnd::*)(CString &)>(&CWnd::GetWindowTextW),
                              slotOf<int (CWnd::*)(wchar_t *, int)>(&CWnd::GetWindowTextW),
                              slotOf(&CWnd::GetMenu),
                              slotOf(&CWnd::SetMenu),
                              slotOf(&CWnd::OnCommand),
                              slotOf(&CWnd::WindowProc),
                              slotOf(&CWnd::SetForegroundWindow),
                              slotOf(&CWnd::SetFocus)};
        QCOMPARE(places, slotsFrom(2, places.size()));
    }

    void dialogOperationsFollowThoseOfWindows()
    {
        const Slots places = {slotOf<BOOL (CDialog::*)(const wchar_t *, CWnd *)>(&CDialog::Create),
                              slotOf<BOOL (CDialog::*)(UINT, CWnd *)>(&CDialog::Create),
                              slotOf(&CDialog::DoModal),
                              slotOf(&CDialog::OnInitDialog),
                              slotOf(&CDialog::OnOK),
                              slotOf(&CDialog::OnCancel),
                              slotOf(&CDialog::OnNotify)};
        QCOMPARE(places, slotsFrom(20, places.size()));
    }

    void applicationOperationsHaveNoDestructorAmongThem()
    {
        const Slots places = {slotOf(&CWinApp::LoadCursorW),
                              slotOf(&CWinApp::LoadIconW),
                              slotOf<HCURSOR (CWinApp::*)(const wchar_t *)>(&CWinApp::LoadStandardCursor),
                              slotOf<HCURSOR (CWinApp::*)(UINT)>(&CWinApp::LoadStandardCursor),
                              slotOf(&CWinApp::GetMainWnd),
                              slotOf(&CWinApp::SetMainWnd),
                              slotOf(&CWinApp::OpenDocumentFile),
                              slotOf(&CWinApp::GetProfileIntW),
                              slotOf(&CWinApp::WriteProfileInt),
                              slotOf(&CWinApp::GetProfileStringW),
                              slotOf(&CWinApp::WriteProfileStringW),
                              slotOf(&CWinApp::GetProfileBinary),
                              slotOf(&CWinApp::WriteProfileBinary),
                              slotOf(&CWinApp::GetNextDocTemplate)};
        QCOMPARE(places, slotsFrom(0, places.size()));
    }

    void hostOperationsAreAppendedInOrder()
    {
        const Slots places = {slotOf(&QBaseDialog::OnOK), slotOf(&QBaseDialog::OnCancel),
                              slotOf(&QBaseDialog::endById), slotOf(&QBaseDialog::execCallBack)};
        QCOMPARE(places, slotsFrom(places.front(), places.size()));
    }
};

QTEST_GUILESS_MAIN(tst_VirtualOrder)
#include "tst_VirtualOrder.moc"
