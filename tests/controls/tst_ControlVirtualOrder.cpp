#include "KxCommonControls.h"
#include "KxEditControls.h"
#include "VirtualSlot.h"

#include <QTest>

#include <type_traits>

/// The order of virtual operations is part of the binary interface: those of a control follow CWnd's.
class tst_ControlVirtualOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ownOperationsFollowThoseOfWindows()
    {
        const auto last = slotOf(&CWnd::SetFocus);
        using StaticCreate = BOOL (CStatic::*)(const wchar_t *, unsigned, const RECT &, CWnd *, unsigned);
        QCOMPARE(slotOf<StaticCreate>(&CStatic::Create), last + 1);
        using TipCreate = BOOL (CToolTipCtrl::*)(CWnd *, unsigned);
        QCOMPARE(slotOf<TipCreate>(&CToolTipCtrl::Create), last + 1);
    }

    void textsTakeThePlacesOfWindows()
    {
        const auto text = slotOf<void (CWnd::*)(CString &)>(&CWnd::GetWindowTextW);
        QCOMPARE(slotOf(&CEdit::SetWindowTextW), slotOf(&CWnd::SetWindowTextW));
        QCOMPARE(slotOf<void (CEdit::*)(CString &)>(&CEdit::GetWindowTextW), text);
        QCOMPARE(slotOf<int (CEdit::*)(wchar_t *, int)>(&CEdit::GetWindowTextW), text + 1);
        QCOMPARE(slotOf(&CStatic::SetWindowTextW), slotOf(&CWnd::SetWindowTextW));
        QCOMPARE(slotOf<void (CStatic::*)(CString &)>(&CStatic::GetWindowTextW), text);
    }
};

// No control adds data.
static_assert(std::is_base_of_v<CEdit, CRichEditCtrl> && sizeof(CRichEditCtrl) == sizeof(CWnd));
static_assert(std::is_base_of_v<CWnd, CStatic> && sizeof(CStatic) == sizeof(CWnd));
static_assert(std::is_base_of_v<CWnd, CToolTipCtrl> && sizeof(CToolTipCtrl) == sizeof(CWnd));
static_assert(std::is_base_of_v<CWnd, CTabCtrl> && sizeof(CTabCtrl) == sizeof(CWnd));
static_assert(std::is_base_of_v<CWnd, CSliderCtrl> && sizeof(CSliderCtrl) == sizeof(CWnd));
static_assert(std::is_base_of_v<CWnd, CScrollBar> && sizeof(CScrollBar) == sizeof(CWnd));
static_assert(std::is_base_of_v<CWnd, CSpinButtonCtrl> && sizeof(CSpinButtonCtrl) == sizeof(CWnd));
static_assert(std::is_empty_v<CImageList>);

QTEST_GUILESS_MAIN(tst_ControlVirtualOrder)
#include "tst_ControlVirtualOrder.moc"
