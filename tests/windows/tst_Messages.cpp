#include "EventLog.h"
#include "KxMessages.h"
#include "KxPlatformServices.h"
#include "KxWindows.h"
#include "WindowHandle.h"

#include <QtTest>
#include <QtWidgets>

#include <functional>
#include <memory>

using MakeWidget = std::function<QWidget *()>;
Q_DECLARE_METATYPE(MakeWidget)

namespace {
struct MessageRow
{
    const char *name;
    UINT message;
    WPARAM wParam;
};

const MessageRow buttonMessages[] = {
    {"BM_GETCHECK", 0x00F0, 0}, {"BM_SETCHECK", 0x00F1, 1}, {"BM_SETIMAGE", 0x00F7, 0}};
const MessageRow comboMessages[] = {{"CB_ADDSTRING", 0x0143, 0},
                                    {"CB_GETCOUNT", 0x0146, 0},
                                    {"CB_GETCURSEL", 0x0147, 0},
                                    {"CB_RESETCONTENT", 0x014B, 0},
                                    {"CB_SETCURSEL", 0x014E, 1}};

template <class Widget> MakeWidget make()
{
    return [] { return new Widget; };
}

LPARAM textParameter(const wchar_t *text)
{
    return reinterpret_cast<LPARAM>(text);
}

// A platform bitmap of one colour, deleted at the end.
class Bitmap
{
public:
    explicit Bitmap(QColor color)
        : m_handle(platformServices().gdiObjects().createBitmap(0, 6, 4))
    {
        static_cast<QImage *>(platformServices().gdiObjects().bitmapDevice(m_handle))->fill(color);
    }
    ~Bitmap() { destroy(); }

    void destroy() { platformServices().gdiObjects().deleteObject(m_handle); }
    LPARAM parameter() const { return reinterpret_cast<LPARAM>(m_handle); }

private:
    HANDLE m_handle;
};
} // namespace

/// The button and combo-box messages that SendMessageW() answers on the widget.
class tst_Messages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void wrongWidget_data();
    void wrongWidget();
    void nullHandle_data();
    void nullHandle();
    void rightWidgetGetsNoEvent();
    void objectIsNotAsked();

    void getCheck_data();
    void getCheck();
    void setCheck_data();
    void setCheck();
    void setCheckOfUncheckable();
    void setImage_data();
    void setImage();
    void setImageUnknownHandle();

    void addString_data();
    void addString();
    void addStringNull();
    void addStringToEmptySelects();
    void getCount();
    void getCurrent();
    void resetContent();
    void setCurrent_data();
    void setCurrent();
};

void tst_Messages::wrongWidget_data()
{
    QTest::addColumn<MakeWidget>("makeWidget");
    QTest::addColumn<UINT>("message");
    QTest::addColumn<WPARAM>("wParam");

    for (const MessageRow &row : buttonMessages) {
        QTest::addRow("%s: line edit", row.name) << make<QLineEdit>() << row.message << row.wParam;
        QTest::addRow("%s: combo box", row.name) << make<QComboBox>() << row.message << row.wParam;
        QTest::addRow("%s: group box", row.name) << make<QGroupBox>() << row.message << row.wParam;
    }
    for (const MessageRow &row : comboMessages) {
        QTest::addRow("%s: line edit", row.name) << make<QLineEdit>() << row.message << row.wParam;
        QTest::addRow("%s: button", row.name) << make<QCheckBox>() << row.message << row.wParam;
        QTest::addRow("%s: list", row.name) << make<QListWidget>() << row.message << row.wParam;
    }
}

void tst_Messages::wrongWidget()
{
    QFETCH(MakeWidget, makeWidget);
    QFETCH(UINT, message);
    QFETCH(WPARAM, wParam);

    const std::unique_ptr<QWidget> widget(makeWidget());
    const EventLog log(widget.get());

    QCOMPARE(SendMessageW(handleOf(widget.get()), message, wParam, textParameter(L"text")), LRESULT{0});
    QVERIFY(log.isEmpty());
}

void tst_Messages::nullHandle_data()
{
    QTest::addColumn<UINT>("message");

    for (const MessageRow &row : buttonMessages)
        QTest::newRow(row.name) << row.message;
    for (const MessageRow &row : comboMessages)
        QTest::newRow(row.name) << row.message;
    QTest::newRow("application message") << WM_USER + 6;
    QTest::newRow("other message") << WM_USER + 7;
    QTest::newRow("0") << UINT{0};
}

void tst_Messages::nullHandle()
{
    QFETCH(UINT, message);

    const EventLog log(nullptr);
    QCOMPARE(SendMessageW(nullptr, message, 1, textParameter(L"text")), LRESULT{0});
    QVERIFY(log.isEmpty());
}

void tst_Messages::rightWidgetGetsNoEvent()
{
    QCheckBox button;
    QComboBox combo;
    const EventLog log(nullptr);

    for (const MessageRow &row : buttonMessages)
        SendMessageW(handleOf(&button), row.message, row.wParam, 0);
    for (const MessageRow &row : comboMessages)
        SendMessageW(handleOf(&combo), row.message, row.wParam, textParameter(L"text"));
    QVERIFY(log.messages().isEmpty());
}

void tst_Messages::objectIsNotAsked()
{
    class Refusing : public CWnd
    {
    public:
        LRESULT WindowProc(UINT, WPARAM, LPARAM) override { return ++m_calls; }
        int m_calls = 0;
    };

    QCheckBox button;
    Refusing window;
    window.SetHandle(handleOf(&button));

    SendMessageW(handleOf(&button), BM_SETCHECK, 1, 0);
    QCOMPARE(SendMessageW(handleOf(&button), BM_GETCHECK, 0, 0), LRESULT{1});
    QCOMPARE(window.m_calls, 0);
}

void tst_Messages::getCheck_data()
{
    QTest::addColumn<MakeWidget>("makeWidget");

    QTest::newRow("check box") << make<QCheckBox>();
    QTest::newRow("radio button") << make<QRadioButton>();
    QTest::newRow("push button") << make<QPushButton>();
    QTest::newRow("tool button") << make<QToolButton>();
}

void tst_Messages::getCheck()
{
    QFETCH(MakeWidget, makeWidget);

    const std::unique_ptr<QWidget> widget(makeWidget());
    auto *button = qobject_cast<QAbstractButton *>(widget.get());
    button->setCheckable(true);

    QCOMPARE(SendMessageW(handleOf(button), BM_GETCHECK, 0, 0), LRESULT{0});
    button->setChecked(true);
    QCOMPARE(SendMessageW(handleOf(button), BM_GETCHECK, 5, -5), LRESULT{1});
}

void tst_Messages::setCheck_data()
{
    QTest::addColumn<WPARAM>("wParam");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");
    QTest::addColumn<int>("signalCount");

    QTest::newRow("check") << WPARAM{1} << false << true << 1;
    QTest::newRow("check again") << WPARAM{1} << true << true << 0;
    QTest::newRow("uncheck") << WPARAM{0} << true << false << 1;
    QTest::newRow("uncheck again") << WPARAM{0} << false << false << 0;
    QTest::newRow("indeterminate checks") << WPARAM{BST_INDETERMINATE} << false << true << 1;
    QTest::newRow("bit above 32 checks") << (WPARAM{1} << 32) << false << true << 1;
    QTest::newRow("all bits check") << ~WPARAM{0} << false << true << 1;
}

void tst_Messages::setCheck()
{
    QFETCH(WPARAM, wParam);
    QFETCH(bool, before);

    QCheckBox button;
    button.setChecked(before);
    QSignalSpy toggled(&button, &QCheckBox::toggled);

    QCOMPARE(SendMessageW(handleOf(&button), BM_SETCHECK, wParam, 0), LRESULT{0});
    QTEST(button.isChecked(), "after");
    QTEST(toggled.size(), "signalCount");
}

void tst_Messages::setCheckOfUncheckable()
{
    QPushButton button;
    QCOMPARE(SendMessageW(handleOf(&button), BM_SETCHECK, 1, 0), LRESULT{0});
    QCOMPARE(SendMessageW(handleOf(&button), BM_GETCHECK, 0, 0), LRESULT{0});
}

void tst_Messages::setImage_data()
{
    QTest::addColumn<WPARAM>("kind");

    QTest::newRow("bitmap") << WPARAM{0};
    QTest::newRow("icon") << WPARAM{1};
    QTest::newRow("unknown kind") << ~WPARAM{0};
}

void tst_Messages::setImage()
{
    QFETCH(WPARAM, kind);

    QPushButton button;
    const Bitmap red(Qt::red);
    const Bitmap blue(Qt::blue);

    QCOMPARE(SendMessageW(handleOf(&button), BM_SETIMAGE, kind, red.parameter()), LRESULT{0});
    QCOMPARE(button.icon().availableSizes(), QList<QSize>{QSize(6, 4)});
    QCOMPARE(button.icon().pixmap(6, 4).toImage().pixelColor(5, 3), QColor(Qt::red));
    // The former image is not given back.
    QCOMPARE(SendMessageW(handleOf(&button), BM_SETIMAGE, kind, blue.parameter()), LRESULT{0});
    QCOMPARE(button.icon().pixmap(6, 4).toImage().pixelColor(0, 0), QColor(Qt::blue));
}

void tst_Messages::setImageUnknownHandle()
{
    QPushButton button;
    Bitmap red(Qt::red);
    SendMessageW(handleOf(&button), BM_SETIMAGE, 0, red.parameter());
    const qint64 icon = button.icon().cacheKey();
    red.destroy();

    for (LPARAM handle :
         {red.parameter(), LPARAM{0}, LPARAM{1}, LPARAM{-1}, std::numeric_limits<LPARAM>::min()}) {
        QCOMPARE(SendMessageW(handleOf(&button), BM_SETIMAGE, 0, handle), LRESULT{0});
        QCOMPARE(button.icon().cacheKey(), icon);
    }
}

void tst_Messages::addString_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("latin") << QStringLiteral("third");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("same as another") << QStringLiteral("first");
    QTest::newRow("beyond 16 bits") << QString::fromStdWString(L"\u4e2d\U0001F600");
}

void tst_Messages::addString()
{
    QFETCH(QString, text);

    QComboBox combo;
    combo.addItems({QStringLiteral("first"), QStringLiteral("second")});
    combo.setCurrentIndex(1);
    const std::wstring wideText = text.toStdWString();

    QCOMPARE(SendMessageW(handleOf(&combo), CB_ADDSTRING, ~WPARAM{0}, textParameter(wideText.c_str())),
             LRESULT{0});
    QCOMPARE(combo.count(), 3);
    QCOMPARE(combo.itemText(2), text);
    QVERIFY(!combo.itemData(2).isValid());
    QCOMPARE(combo.currentIndex(), 1);
    QCOMPARE(SendMessageW(handleOf(&combo), CB_GETCOUNT, 0, 0), LRESULT{3});
}

void tst_Messages::addStringNull()
{
    QComboBox combo;
    QCOMPARE(SendMessageW(handleOf(&combo), CB_ADDSTRING, 0, 0), LRESULT{0});
    QCOMPARE(combo.count(), 0);
}

void tst_Messages::addStringToEmptySelects()
{
    QComboBox combo;
    QSignalSpy changed(&combo, QOverload<int>::of(&QComboBox::currentIndexChanged));
    SendMessageW(handleOf(&combo), CB_ADDSTRING, 0, textParameter(L"first"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(SendMessageW(handleOf(&combo), CB_GETCURSEL, 0, 0), LRESULT{0});
}

void tst_Messages::getCount()
{
    QComboBox combo;
    QCOMPARE(SendMessageW(handleOf(&combo), CB_GETCOUNT, 0, 0), LRESULT{0});
    combo.addItems({QStringLiteral("first"), QStringLiteral("second")});
    QCOMPARE(SendMessageW(handleOf(&combo), CB_GETCOUNT, 7, 7), LRESULT{2});
}

void tst_Messages::getCurrent()
{
    QFontComboBox combo;
    combo.clear();
    QCOMPARE(SendMessageW(handleOf(&combo), CB_GETCURSEL, 0, 0), LRESULT{-1});

    QComboBox plain;
    QCOMPARE(SendMessageW(handleOf(&plain), CB_GETCURSEL, 0, 0), LRESULT{-1});
    plain.addItems({QStringLiteral("first"), QStringLiteral("second")});
    plain.setCurrentIndex(1);
    QCOMPARE(SendMessageW(handleOf(&plain), CB_GETCURSEL, 7, 7), LRESULT{1});
}

void tst_Messages::resetContent()
{
    QComboBox combo;
    combo.addItems({QStringLiteral("first"), QStringLiteral("second")});
    QSignalSpy changed(&combo, QOverload<int>::of(&QComboBox::currentIndexChanged));

    QCOMPARE(SendMessageW(handleOf(&combo), CB_RESETCONTENT, 7, 7), LRESULT{0});
    QCOMPARE(combo.count(), 0);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toInt(), -1);
}

void tst_Messages::setCurrent_data()
{
    QTest::addColumn<WPARAM>("wParam");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("signalCount");

    QTest::newRow("first") << WPARAM{0} << 0 << 1;
    QTest::newRow("same") << WPARAM{1} << 1 << 0;
    QTest::newRow("last") << WPARAM{2} << 2 << 1;
    QTest::newRow("count clears") << WPARAM{3} << -1 << 1;
    QTest::newRow("-1 clears") << WPARAM(-1) << -1 << 1;
    QTest::newRow("-1 of 32 bits clears") << WPARAM{0xFFFFFFFF} << -1 << 1;
}

void tst_Messages::setCurrent()
{
    QFETCH(WPARAM, wParam);
    QFETCH(int, index);

    QComboBox combo;
    combo.addItems({QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")});
    combo.setCurrentIndex(1);
    QSignalSpy changed(&combo, QOverload<int>::of(&QComboBox::currentIndexChanged));

    QCOMPARE(SendMessageW(handleOf(&combo), CB_SETCURSEL, wParam, 7), LRESULT{0});
    QCOMPARE(combo.currentIndex(), index);
    QTEST(changed.size(), "signalCount");
}

QTEST_MAIN(tst_Messages)
#include "tst_Messages.moc"
