#include "BoundControl.h"
#include "KxButtons.h"
#include "KxEditControls.h"
#include "KxPlatformServices.h"
#include "LeftBehind.h"
#include "WidgetWatch.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

#include <climits>
#include <memory>
#include <type_traits>

namespace {
KxGdiObjectService &gdiObjects()
{
    return platformServices().gdiObjects();
}

// A bitmap of one colour, deleted with this object.
struct Bitmap
{
    Bitmap(int width, int height, const QColor &color)
    {
        QPainter(gdiObjects().bitmapDevice(handle = gdiObjects().createBitmap(0, width, height)))
            .fillRect(0, 0, width, height, color);
    }
    Bitmap(const Bitmap &) = delete;
    Bitmap &operator=(const Bitmap &) = delete;
    ~Bitmap() { gdiObjects().deleteObject(handle); }

    operator HBITMAP() const { return static_cast<HBITMAP>(handle); }

    HANDLE handle;
};

bool isPlain(const QPixmap &pixmap, const QSize &size, const QColor &color)
{
    QImage expected(size, QImage::Format_RGB32);
    expected.fill(color);
    return pixmap.toImage().convertToFormat(QImage::Format_RGB32) == expected;
}

// Notes what the creation of a window is asked for.
class RecordedStatic : public CStatic
{
public:
    using CStatic::Create;
    BOOL Create(const wchar_t *lpszClassName, const wchar_t *lpszWindowName, DWORD dwStyle, const RECT &rect,
                CWnd *pParent, UINT nID, CCreateContext *pContext) override
    {
        className = lpszClassName;
        text = lpszWindowName;
        style = dwStyle;
        given = &rect;
        parent = pParent;
        id = nID;
        context = pContext;
        return result;
    }

    BOOL result = TRUE;
    CString className;
    const wchar_t *text = nullptr;
    DWORD style = 0;
    const RECT *given = nullptr;
    CWnd *parent = nullptr;
    UINT id = 0;
    CCreateContext *context = reinterpret_cast<CCreateContext *>(this);
};
} // namespace

static_assert(std::is_base_of_v<CButton, CBitmapButton> && sizeof(CBitmapButton) == sizeof(CWnd));

class tst_CButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void states();
    void setCheck_data();
    void setCheck();
    void setCheckOfBlockedButton();
    void setCheckOfUncheckableButton();
    void setCheckInExclusiveGroup();

    void buttonBitmap();
    void buttonBitmapRefused();
    void labelBitmap();
    void labelBitmapRefused();

    void staticText();
    void createStatic_data();
    void createStatic();
    void createStaticRecordsParent();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CButton::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CButton::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CButton::states()
{
    BoundControl<CButton, QPushButton> push;
    BoundControl<CButton, QCheckBox> check;
    BoundControl<CBitmapButton, QRadioButton> radio;
    push.widget.setCheckable(true);
    const std::initializer_list<std::pair<CButton *, QAbstractButton *>> buttons = {
        {&push.control, &push.widget}, {&check.control, &check.widget}, {&radio.control, &radio.widget}};
    for (const auto &[control, widget] : buttons) {
        QCOMPARE(control->GetCheck(), 0);
        QCOMPARE(control->GetState(), 0u);
        widget->setDown(true);
        QCOMPARE(control->GetState(), 0u);
        widget->setChecked(true);
        QCOMPARE(control->GetCheck(), 1);
        QCOMPARE(control->GetState(), 3u);
        widget->setDown(false);
        QCOMPARE(control->GetState(), 3u);
    }

    check.widget.setTristate();
    check.widget.setCheckState(Qt::PartiallyChecked);
    QCOMPARE(check.control.GetCheck(), 1);
    QCOMPARE(check.control.GetState(), 3u);
}

void tst_CButton::setCheck_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<int>("check");
    QTest::addColumn<bool>("after");

    QTest::newRow("BST_UNCHECKED") << true << 0 << false;
    QTest::newRow("BST_CHECKED") << false << 1 << true;
    QTest::newRow("BST_INDETERMINATE checks") << false << 2 << true;
    QTest::newRow("-1 checks") << false << -1 << true;
    QTest::newRow("256 checks") << false << 256 << true;
    QTest::newRow("smallest checks") << false << INT_MIN << true;
    QTest::newRow("stays checked") << true << 1 << true;
    QTest::newRow("stays unchecked") << false << 0 << false;
}

void tst_CButton::setCheck()
{
    QFETCH(bool, before);
    QFETCH(int, check);
    QFETCH(bool, after);
    BoundControl<CButton, QCheckBox> button;
    button.widget.setChecked(before);
    const WidgetWatch watch(&button.widget);
    button.control.SetCheck(check);
    QCOMPARE(button.widget.checkState(), after ? Qt::Checked : Qt::Unchecked);
    QCOMPARE(watch.emitted().count(QStringLiteral("toggled(bool)")), before == after ? 0 : 1);
    QVERIFY(!watch.emitted().contains(QStringLiteral("clicked(bool)")));
    QCOMPARE(watch.isUntouched(), before == after);
}

void tst_CButton::setCheckOfBlockedButton()
{
    BoundControl<CButton, QCheckBox> button;
    button.widget.blockSignals(true);
    const WidgetWatch watch(&button.widget);
    button.control.SetCheck(1);
    QVERIFY(button.widget.isChecked());
    QVERIFY(button.widget.signalsBlocked());
    QVERIFY(watch.emitted().isEmpty());
}

void tst_CButton::setCheckOfUncheckableButton()
{
    BoundControl<CButton, QPushButton> button;
    const WidgetWatch watch(&button.widget);
    button.control.SetCheck(1);
    QVERIFY(watch.isUntouched());
    QCOMPARE(button.control.GetCheck(), 0);
}

void tst_CButton::setCheckInExclusiveGroup()
{
    QWidget parent;
    QRadioButton first(&parent);
    QRadioButton second(&parent);
    CButton button;
    button.SetHandle(handleOf(&second));
    first.setChecked(true);
    button.SetCheck(1);
    QVERIFY(!first.isChecked());
    QVERIFY(second.isChecked());
    // Qt keeps one button of a group checked.
    button.SetCheck(0);
    QCOMPARE(button.GetCheck(), 1);
}

void tst_CButton::buttonBitmap()
{
    BoundControl<CButton, QPushButton> button;
    button.widget.setText(QStringLiteral("kept"));
    const QSize iconSize = button.widget.iconSize();
    {
        const Bitmap bitmap(20, 10, Qt::red);
        QVERIFY(!button.control.SetBitmap(bitmap));
    }
    // The picture outlives the bitmap.
    QCOMPARE(button.widget.icon().availableSizes(), QList<QSize>{QSize(20, 10)});
    QVERIFY(isPlain(button.widget.icon().pixmap(20, 10), QSize(20, 10), Qt::red));
    QCOMPARE(button.widget.text(), QStringLiteral("kept"));
    QCOMPARE(button.widget.iconSize(), iconSize);
    const Bitmap other(8, 8, Qt::blue);
    QVERIFY(!button.control.SetBitmap(other));
    QVERIFY(isPlain(button.widget.icon().pixmap(8, 8), QSize(8, 8), Qt::blue));
}

// Calls the member with every handle that stands for no bitmap.
#define VERIFY_REFUSED(bound)                                                                                \
    do {                                                                                                     \
        auto &gdi = gdiObjects();                                                                            \
        const HANDLE stale = gdi.createBitmap(0, 4, 4);                                                      \
        gdi.deleteObject(stale);                                                                             \
        const HANDLE brush = gdi.createSolidBrush(0);                                                        \
        int foreign = 0;                                                                                     \
        const WidgetWatch watch(&(bound).widget);                                                            \
        for (const HANDLE handle : {HANDLE(nullptr), stale, brush, HANDLE(&foreign), INVALID_HANDLE_VALUE})  \
            QVERIFY(!(bound).control.SetBitmap(static_cast<HBITMAP>(handle)));                               \
        QVERIFY(watch.isUntouched());                                                                        \
        gdi.deleteObject(brush);                                                                             \
    } while (false)

void tst_CButton::buttonBitmapRefused()
{
    BoundControl<CButton, QPushButton> button;
    VERIFY_REFUSED(button);
    QVERIFY(button.widget.icon().isNull());
    const Bitmap bitmap(20, 10, Qt::red);
    button.control.SetBitmap(bitmap);
    VERIFY_REFUSED(button);
    QVERIFY(!button.widget.icon().isNull());
}

void tst_CButton::labelBitmap()
{
    BoundControl<CStatic, QLabel> label;
    label.widget.setText(QStringLiteral("text"));
    {
        const Bitmap bitmap(20, 10, Qt::green);
        QVERIFY(!label.control.SetBitmap(bitmap));
        QVERIFY(!label.control.GetBitmap());
    }
    QVERIFY(isPlain(label.widget.pixmap(Qt::ReturnByValue), QSize(20, 10), Qt::green));
    QCOMPARE(label.widget.text(), QString());
    const Bitmap other(8, 8, Qt::blue);
    QVERIFY(!label.control.SetBitmap(other));
    QVERIFY(isPlain(label.widget.pixmap(Qt::ReturnByValue), QSize(8, 8), Qt::blue));
}

void tst_CButton::labelBitmapRefused()
{
    BoundControl<CStatic, QLabel> label;
    label.widget.setText(QStringLiteral("text"));
    VERIFY_REFUSED(label);
    QCOMPARE(label.widget.text(), QStringLiteral("text"));
    const Bitmap bitmap(20, 10, Qt::red);
    label.control.SetBitmap(bitmap);
    VERIFY_REFUSED(label);
    QVERIFY(!label.widget.pixmap(Qt::ReturnByValue).isNull());
}

void tst_CButton::staticText()
{
    BoundControl<CStatic, QLabel> label;
    label.control.SetWindowTextW(L"new");
    QCOMPARE(label.widget.text(), QStringLiteral("new"));
    label.control.SetWindowTextW(nullptr);
    CString text;
    label.control.GetWindowTextW(text);
    QCOMPARE(text.GetLength(), 3);
    wchar_t buffer[8];
    QCOMPARE(label.control.GetWindowTextW(buffer, 8), 3);
    QCOMPARE(label.control.GetWindowTextLengthW(), 3);

    // Not labels alone, unlike the bitmap.
    BoundControl<CStatic, QGroupBox> box;
    CWnd *window = &box.control;
    window->SetWindowTextW(L"title");
    QCOMPARE(box.widget.title(), QStringLiteral("title"));
    window->GetWindowTextW(text);
    QVERIFY(text == L"title");
}

void tst_CButton::createStatic_data()
{
    QTest::addColumn<int>("windowResult");
    QTest::addColumn<int>("result");

    QTest::newRow("TRUE") << 1 << 1;
    QTest::newRow("FALSE") << 0 << 0;
    QTest::newRow("low byte of 256") << 256 << 0;
    QTest::newRow("low byte of 257") << 257 << 1;
    QTest::newRow("low byte of -1") << -1 << 255;
    QTest::newRow("low byte of the smallest") << INT_MIN << 0;
}

void tst_CButton::createStatic()
{
    QFETCH(int, windowResult);
    RecordedStatic label;
    label.result = windowResult;
    CWnd parent;
    const RECT rect{1, 2, 3, 4};
    const wchar_t *const text = L"text";
    CStatic *control = &label;
    QTEST(control->Create(text, 5u, rect, &parent, 6u), "result");
    QVERIFY(label.className == L"STATIC");
    QCOMPARE(label.text, text);
    QCOMPARE(label.style, 5u);
    QCOMPARE(label.given, &rect);
    QCOMPARE(label.parent, &parent);
    QCOMPARE(label.id, 6u);
    QVERIFY(!label.context);
    control->Create(nullptr, 0, rect, nullptr);
    QVERIFY(!label.text);
    QCOMPARE(label.id, 0xFFFFu);
}

void tst_CButton::createStaticRecordsParent()
{
    BoundControl<CStatic, QLabel> label;
    CWnd parent;
    const WidgetWatch watch(&label.widget);
    QCOMPARE(label.control.Create(L"text", 0, RECT{1, 2, 3, 4}, &parent, 6), TRUE);
    QCOMPARE(label.control.GetParent(), &parent);
    QVERIFY(watch.isUntouched());
    CStatic unbound;
    QCOMPARE(unbound.Create(L"text", 0, RECT{1, 2, 3, 4}, &parent, 6), TRUE);
    QVERIFY(!unbound.GetParent());
}

QTEST_MAIN(tst_CButton)
#include "tst_CButton.moc"
