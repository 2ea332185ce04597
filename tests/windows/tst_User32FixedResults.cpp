#include "KxUser32.h"
#include "KxWindows.h"
#include "WindowHandle.h"

#include <QtTest>
#include <QtWidgets>

#include <cstring>
#include <functional>

using Call = std::function<LONG_PTR(HWND)>;
Q_DECLARE_METATYPE(Call)

namespace {
template <class Handle> LONG_PTR number(Handle *handle)
{
    return reinterpret_cast<LONG_PTR>(handle);
}

const auto cursor = reinterpret_cast<HCURSOR>(std::uintptr_t{0x5000});
bool g_timerFired = false;

void onTimer(HWND, UINT, UINT_PTR, DWORD)
{
    g_timerFired = true;
}

// Bytes that no call may change.
template <class Record> class Untouched
{
public:
    Untouched() { std::memset(&m_record, 0x5A, sizeof m_record); }
    Record *get() { return &m_record; }
    bool isUntouched() const
    {
        const Untouched fresh;
        return std::memcmp(&m_record, &fresh.m_record, sizeof m_record) == 0;
    }

private:
    Record m_record;
};
} // namespace

/// The functions without a counterpart: their results, and that they do nothing.
class tst_User32FixedResults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void results_data();
    void results();
    void setCursorGivesItsArgument_data();
    void setCursorGivesItsArgument();
    void loadCursorGivesTheIdentifier_data();
    void loadCursorGivesTheIdentifier();
    void peekMessageLeavesRecord();
    void outputsAreUntouched();
    void focusAndCaptureStay();
    void buttonsOfDialogStay();
    void timerDoesNotRun();
};

static void addRow(const char *name, LONG_PTR result, const Call &call)
{
    QTest::newRow(name) << call << result;
}

static void addWindowRows()
{
    addRow("SetFocus", 0, [](HWND h) { return number(SetFocus(h)); });
    addRow("KxUser32::SetFocus", 0, [](HWND h) { return number(KxUser32::SetFocus(h)); });
    addRow("GetFocus", 0, [](HWND) { return number(GetFocus()); });
    addRow("KxUser32::GetFocus", 0, [](HWND) { return number(KxUser32::GetFocus()); });
    addRow("GetCapture", 0, [](HWND) { return number(GetCapture()); });
    addRow("SetCapture", 0, [](HWND h) { return number(SetCapture(h)); });
    addRow("ReleaseCapture", 0, [](HWND) { return ReleaseCapture(); });
    addRow("IsWindow", 1, [](HWND h) { return IsWindow(h); });
    addRow("IsDlgButtonChecked", 0, [](HWND h) { return IsDlgButtonChecked(h, 1); });
    addRow("CheckDlgButton", 0, [](HWND h) { return CheckDlgButton(h, 1, BST_CHECKED); });
    addRow("CheckRadioButton", 0, [](HWND h) { return CheckRadioButton(h, 1, 2, 1); });
    addRow("RegisterHotKey", 1, [](HWND h) { return RegisterHotKey(h, 1, 2, 'A'); });
    addRow("UnregisterHotKey", 1, [](HWND h) { return UnregisterHotKey(h, 1); });
    addRow("UnregisterHotKey unknown", 1, [](HWND h) { return UnregisterHotKey(h, -1); });
    addRow("SetTimer", 0, [](HWND h) { return LONG_PTR(SetTimer(h, 7, 10, nullptr)); });
    addRow("KillTimer", 1, [](HWND h) { return KillTimer(h, 7); });
    addRow("MessageBeep", 1, [](HWND) { return MessageBeep(0xFFFFFFFF); });
    addRow("SystemParametersInfoW", 0, [](HWND) { return SystemParametersInfoW(0x30, 0, nullptr, 0); });
    addRow("PeekMessageW", 1, [](HWND h) { return PeekMessageW(nullptr, h, 0, 0, 1); });
    addRow("LoadCursorW by name", 0, [](HWND) { return number(LoadCursorW(nullptr, L"ARROW")); });
    addRow("LoadCursorW by null name", 0,
           [](HWND) { return number(LoadCursorW(nullptr, static_cast<const wchar_t *>(nullptr))); });
}

static void addDrawingRows()
{
    static const POINT points[2] = {{1, 2}, {3, 4}};
    static const int counts[1] = {2};
    static const LOGPALETTE palette{0x300, 1, {{1, 2, 3, 0}}};

    addRow("GetCursor", 0, [](HWND) { return number(GetCursor()); });
    addRow("KxUser32::GetCursor", 0, [](HWND) { return number(KxUser32::GetCursor()); });
    addRow("CreateSolidBrush", 0, [](HWND) { return number(CreateSolidBrush(0x00FF00)); });
    addRow("CreateICW", 0, [](HWND) { return number(CreateICW(L"DISPLAY", nullptr, nullptr, nullptr)); });
    addRow("CreatePalette", 0, [](HWND) { return number(CreatePalette(&palette)); });
    addRow("CreatePalette of null", 0, [](HWND) { return number(CreatePalette(nullptr)); });
    addRow("GetMapMode", 0, [](HWND) { return GetMapMode(nullptr); });
    addRow("GetNearestPaletteIndex", 0, [](HWND) { return GetNearestPaletteIndex(nullptr, 0x123456); });
    addRow("MoveToEx", 0, [](HWND) { return KxKernel32::MoveToEx(nullptr, 1, 2, nullptr); });
    addRow("LineTo", 0, [](HWND) { return KxKernel32::LineTo(nullptr, 1, 2); });
    addRow("Polyline", 0, [](HWND) { return KxKernel32::Polyline(nullptr, points, 2); });
    addRow("SetPolyFillMode", 0, [](HWND) { return KxKernel32::SetPolyFillMode(nullptr, 2); });
    addRow("PolyPolygon", 0, [](HWND) { return KxKernel32::PolyPolygon(nullptr, points, counts, 1); });
}

void tst_User32FixedResults::results_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<LONG_PTR>("result");

    addWindowRows();
    addDrawingRows();
}

// No handle is looked at: a window, null, and an address where nothing is get the same answer.
void tst_User32FixedResults::results()
{
    QFETCH(Call, call);
    QFETCH(LONG_PTR, result);

    QWidget widget;
    for (HWND handle : {handleOf(&widget), HWND{nullptr}, reinterpret_cast<HWND>(std::uintptr_t{0x1000})}) {
        QCOMPARE(call(handle), result);
        QCOMPARE(call(handle), result);
    }
}

void tst_User32FixedResults::setCursorGivesItsArgument_data()
{
    QTest::addColumn<std::uintptr_t>("cursor");

    QTest::newRow("null") << std::uintptr_t{0};
    QTest::newRow("one") << std::uintptr_t{1};
    QTest::newRow("address") << std::uintptr_t{0x123456789ABC};
    QTest::newRow("all bits") << ~std::uintptr_t{0};
}

void tst_User32FixedResults::setCursorGivesItsArgument()
{
    QFETCH(std::uintptr_t, cursor);

    const auto handle = reinterpret_cast<HCURSOR>(cursor);
    QCOMPARE(SetCursor(handle), handle);
    QCOMPARE(KxUser32::SetCursor(handle), handle);
    // It is not kept either.
    QCOMPARE(GetCursor(), HCURSOR{nullptr});
    QCOMPARE(KxUser32::GetCursor(), HCURSOR{nullptr});
    QVERIFY(!QApplication::overrideCursor());
}

void tst_User32FixedResults::loadCursorGivesTheIdentifier_data()
{
    QTest::addColumn<UINT>("id");

    QTest::newRow("0") << UINT{0};
    QTest::newRow("arrow") << UINT{32512};
    QTest::newRow("largest, not sign-extended") << UINT{0xFFFFFFFF};
}

void tst_User32FixedResults::loadCursorGivesTheIdentifier()
{
    QFETCH(UINT, id);
    QCOMPARE(number(LoadCursorW(nullptr, id)), LONG_PTR{id});
}

void tst_User32FixedResults::peekMessageLeavesRecord()
{
    QWidget widget;
    Untouched<MSG> message;
    for (UINT remove : {0u, 1u})
        QCOMPARE(PeekMessageW(message.get(), handleOf(&widget), 0, 0xFFFF, remove), TRUE);
    QVERIFY(message.isUntouched());
}

void tst_User32FixedResults::outputsAreUntouched()
{
    Untouched<POINT> former;
    QCOMPARE(KxKernel32::MoveToEx(nullptr, 1, 2, former.get()), 0);
    QVERIFY(former.isUntouched());

    Untouched<RECT> workArea;
    QCOMPARE(SystemParametersInfoW(0x0030, 0, workArea.get(), 0), FALSE);
    QVERIFY(workArea.isUntouched());
}

void tst_User32FixedResults::focusAndCaptureStay()
{
    QWidget form;
    QLineEdit first(&form);
    QLineEdit second(&form);
    second.setFocus();

    SetFocus(handleOf(&first));
    KxUser32::SetFocus(handleOf(&first));
    SetCapture(handleOf(&first));
    QCOMPARE(form.focusWidget(), &second);
    QVERIFY(!QWidget::mouseGrabber());
    QCOMPARE(GetFocus(), HWND{nullptr});
    QCOMPARE(GetCapture(), HWND{nullptr});

    first.setCursor(Qt::WaitCursor);
    SetCursor(cursor);
    QCOMPARE(first.cursor().shape(), Qt::WaitCursor);
}

void tst_User32FixedResults::buttonsOfDialogStay()
{
    QWidget form;
    QCheckBox checked(&form);
    checked.setChecked(true);
    QCheckBox clear(&form);
    CWnd dialog;
    dialog.SetHandle(handleOf(&form));
    dialog.SetDlgItem(1, handleOf(&checked));
    dialog.SetDlgItem(2, handleOf(&clear));

    QCOMPARE(IsDlgButtonChecked(handleOf(&form), 1), 0u);
    CheckDlgButton(handleOf(&form), 2, BST_CHECKED);
    CheckRadioButton(handleOf(&form), 1, 2, 2);
    QVERIFY(checked.isChecked());
    QVERIFY(!clear.isChecked());
}

void tst_User32FixedResults::timerDoesNotRun()
{
    bool later = false;
    QWidget widget;
    QCOMPARE(SetTimer(handleOf(&widget), 1, 1, &onTimer), UINT_PTR{0});
    QCOMPARE(SetTimer(nullptr, 0, 0, &onTimer), UINT_PTR{0});
    QTimer::singleShot(30, this, [&later] { later = true; });
    QTRY_VERIFY(later);
    QVERIFY(!g_timerFired);
}

QTEST_MAIN(tst_User32FixedResults)
#include "tst_User32FixedResults.moc"
