#include "KxWindows.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTextBrowser>
#include <QToolButton>
#include <QtTest>

#include <memory>

using MakeWidget = QWidget *(*)();
using WidgetText = QString (*)(const QWidget *);
Q_DECLARE_METATYPE(MakeWidget)
Q_DECLARE_METATYPE(WidgetText)

namespace {
template <typename Widget> QWidget *make()
{
    return new Widget;
}

template <typename Widget, auto getter> QString shown(const QWidget *widget)
{
    return (static_cast<const Widget *>(widget)->*getter)();
}

QString title(const QWidget *widget)
{
    return widget->windowTitle();
}

template <bool editable> QWidget *makeCombo()
{
    auto *combo = new QComboBox;
    combo->addItems({QStringLiteral("first"), QStringLiteral("second")});
    combo->setCurrentIndex(1);
    combo->setEditable(editable);
    if (editable)
        combo->setEditText(QStringLiteral("typed"));
    return combo;
}

QWidget *makeDateEdit()
{
    auto *edit = new QDateEdit(QDate(2001, 2, 3));
    edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    edit->setWindowTitle(QStringLiteral("title"));
    return edit;
}

QWidget *makeProgressBar()
{
    auto *bar = new QProgressBar;
    bar->setValue(50);
    return bar;
}

QWidget *makeDecoratedSpinBox()
{
    auto *box = new QSpinBox;
    box->setPrefix(QStringLiteral("about "));
    box->setSuffix(QStringLiteral(" mm"));
    box->setValue(42);
    return box;
}

QWidget *makeSpecialSpinBox()
{
    auto *box = new QSpinBox;
    box->setSpecialValueText(QStringLiteral("none"));
    return box;
}

QString textOf(CWnd *window)
{
    CString text;
    window->GetWindowTextW(text);
    return QString::fromStdWString(text);
}

// A window bound to a widget of its own.
struct Bound
{
    explicit Bound(QWidget *made)
        : widget(made)
    {
        window.SetHandle(handleOf(made));
    }

    std::unique_ptr<QWidget> widget;
    CWnd window;
};
} // namespace

class tst_CWndText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void set_data();
    void set();
    void setNull_data();
    void setNull();
    void get_data();
    void get();

    void roundTrip_data();
    void roundTrip();
    void embeddedNull();
    void millionCharacters();
    void lineEditKeepsItsLimit();
    void lineEditTellsItsChange();

    void comboTakesEditText_data();
    void comboTakesEditText();
    void textEditUnderstandsRichText();
    void length();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndText::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndText::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndText::set_data()
{
    QTest::addColumn<MakeWidget>("makeWidget");
    QTest::addColumn<WidgetText>("widgetText");

    QTest::newRow("QLineEdit") << MakeWidget(make<QLineEdit>)
                               << WidgetText(shown<QLineEdit, &QLineEdit::text>);
    QTest::newRow("QLabel") << MakeWidget(make<QLabel>) << WidgetText(shown<QLabel, &QLabel::text>);
    QTest::newRow("QGroupBox") << MakeWidget(make<QGroupBox>)
                               << WidgetText(shown<QGroupBox, &QGroupBox::title>);
    const WidgetText button = shown<QAbstractButton, &QAbstractButton::text>;
    QTest::newRow("QPushButton") << MakeWidget(make<QPushButton>) << button;
    QTest::newRow("QCheckBox") << MakeWidget(make<QCheckBox>) << button;
    QTest::newRow("QRadioButton") << MakeWidget(make<QRadioButton>) << button;
    QTest::newRow("QToolButton") << MakeWidget(make<QToolButton>) << button;
    QTest::newRow("QTextEdit") << MakeWidget(make<QTextEdit>)
                               << WidgetText(shown<QTextEdit, &QTextEdit::toPlainText>);
    QTest::newRow("QTextBrowser") << MakeWidget(make<QTextBrowser>)
                                  << WidgetText(shown<QTextEdit, &QTextEdit::toPlainText>);
    QTest::newRow("QWidget") << MakeWidget(make<QWidget>) << WidgetText(title);
    QTest::newRow("QPlainTextEdit is any other widget")
        << MakeWidget(make<QPlainTextEdit>) << WidgetText(title);
    QTest::newRow("QFrame is no QLabel") << MakeWidget(make<QFrame>) << WidgetText(title);
    QTest::newRow("QDateEdit is no number box") << MakeWidget(makeDateEdit) << WidgetText(title);
    QTest::newRow("QProgressBar") << MakeWidget(makeProgressBar) << WidgetText(title);
}

void tst_CWndText::set()
{
    QFETCH(MakeWidget, makeWidget);
    QFETCH(WidgetText, widgetText);
    Bound bound(makeWidget());
    bound.window.SetWindowTextW(L"some &text");
    QCOMPARE(widgetText(bound.widget.get()), QStringLiteral("some &text"));
    if (widgetText != title)
        QVERIFY(bound.widget->windowTitle().isEmpty());
    bound.window.SetWindowTextW(L"");
    QCOMPARE(widgetText(bound.widget.get()), QString());
}

void tst_CWndText::setNull_data()
{
    get_data();
}

void tst_CWndText::setNull()
{
    QFETCH(MakeWidget, makeWidget);
    QFETCH(QString, text);
    Bound bound(makeWidget());
    if (text.isEmpty())
        bound.window.SetWindowTextW(L"7");
    const QString before = textOf(&bound.window);
    bound.window.SetWindowTextW(nullptr);
    QCOMPARE(textOf(&bound.window), before);
}

void tst_CWndText::get_data()
{
    QTest::addColumn<MakeWidget>("makeWidget");
    QTest::addColumn<QString>("text");

    QTest::newRow("QLineEdit") << MakeWidget([]() -> QWidget * {
        return new QLineEdit(QStringLiteral("edit"));
    }) << QStringLiteral("edit");
    QTest::newRow("QLabel") << MakeWidget([]() -> QWidget * {
        return new QLabel(QStringLiteral("<b>label</b>"));
    }) << QStringLiteral("<b>label</b>");
    QTest::newRow("QGroupBox") << MakeWidget([]() -> QWidget * {
        return new QGroupBox(QStringLiteral("group"));
    }) << QStringLiteral("group");
    QTest::newRow("QPushButton, mnemonic kept")
        << MakeWidget([]() -> QWidget * { return new QPushButton(QStringLiteral("&push")); })
        << QStringLiteral("&push");
    QTest::newRow("QTextEdit") << MakeWidget([]() -> QWidget * {
        return new QTextEdit(QStringLiteral("<p>one</p><p>two</p>"));
    }) << QStringLiteral("one\ntwo");
    QTest::newRow("QSpinBox") << MakeWidget([]() -> QWidget * {
        auto *box = new QSpinBox;
        box->setValue(7);
        return box;
    }) << QStringLiteral("7");
    QTest::newRow("QSpinBox, prefix and suffix")
        << MakeWidget(makeDecoratedSpinBox) << QStringLiteral("about 42 mm");
    QTest::newRow("QSpinBox, special value") << MakeWidget(makeSpecialSpinBox) << QStringLiteral("none");
    QTest::newRow("QDoubleSpinBox") << MakeWidget([]() -> QWidget * {
        auto *box = new QDoubleSpinBox;
        box->setLocale(QLocale::c());
        box->setValue(2.5);
        return box;
    }) << QStringLiteral("2.50");
    QTest::newRow("QDateEdit") << MakeWidget(makeDateEdit) << QStringLiteral("2001-02-03");
    QTest::newRow("QComboBox") << MakeWidget(makeCombo<false>) << QStringLiteral("second");
    QTest::newRow("QComboBox, editable") << MakeWidget(makeCombo<true>) << QStringLiteral("typed");
    QTest::newRow("QComboBox, empty") << MakeWidget(make<QComboBox>) << QString();
    QTest::newRow("QWidget") << MakeWidget([]() -> QWidget * {
        auto *widget = new QWidget;
        widget->setWindowTitle(QStringLiteral("title"));
        return widget;
    }) << QStringLiteral("title");
    QTest::newRow("QPlainTextEdit is any other widget")
        << MakeWidget([]() -> QWidget * { return new QPlainTextEdit(QStringLiteral("plain")); }) << QString();
    QTest::newRow("QProgressBar") << MakeWidget(makeProgressBar) << QString();
}

void tst_CWndText::get()
{
    QFETCH(MakeWidget, makeWidget);
    QFETCH(QString, text);
    Bound bound(makeWidget());
    CString read(L"former");
    bound.window.GetWindowTextW(read);
    QCOMPARE(QString::fromStdWString(read), text);
    QCOMPARE(bound.window.GetWindowTextLengthW(), text.size());
    wchar_t buffer[64];
    QCOMPARE(bound.window.GetWindowTextW(buffer, 64), text.size());
    QCOMPARE(QString::fromWCharArray(buffer), text);
}

void tst_CWndText::roundTrip_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("length");

    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("Latin-1") << QString::fromUtf8("caf\u00e9") << 4;
    QTest::newRow("beyond the BMP") << QString::fromUtf8("a\U0001F600b\U00010000") << 4;
    QTest::newRow("last code point") << QString::fromUtf8("\U0010FFFF") << 1;
    QTest::newRow("combining") << QString::fromUtf8("e\u0301") << 2;
    QTest::newRow("right to left") << QString::fromUtf8("\u05d0\u05d1") << 2;
    QTest::newRow("tab") << QStringLiteral("a\tb") << 3;
    QTest::newRow("blanks kept") << QStringLiteral("  a  ") << 5;
}

void tst_CWndText::roundTrip()
{
    QFETCH(QString, text);
    QFETCH(int, length);
    for (const MakeWidget makeWidget : {make<QLineEdit>, make<QLabel>, make<QGroupBox>, make<QPushButton>,
                                        make<QTextEdit>, make<QWidget>, makeCombo<true>}) {
        Bound bound(makeWidget());
        bound.window.SetWindowTextW(text.toStdWString().c_str());
        QCOMPARE(textOf(&bound.window), text);
        QCOMPARE(bound.window.GetWindowTextLengthW(), length);
    }
}

void tst_CWndText::embeddedNull()
{
    const QChar text[] = {QLatin1Char('a'), QChar(0), QLatin1Char('b')};
    Bound bound(new QLabel(QString(text, 3)));
    CString read;
    bound.window.GetWindowTextW(read);
    QCOMPARE(read.size(), std::size_t(3));
    QCOMPARE(read[2], L'b');
    QCOMPARE(bound.window.GetWindowTextLengthW(), 1);

    wchar_t buffer[8];
    std::fill_n(buffer, 8, L'?');
    QCOMPARE(bound.window.GetWindowTextW(buffer, 8), 1);
    QCOMPARE(std::wstring(buffer), std::wstring(L"a"));
}

void tst_CWndText::millionCharacters()
{
    const std::wstring text(1000000, L'\u00e9');
    for (const MakeWidget makeWidget : {make<QLabel>, make<QWidget>}) {
        Bound bound(makeWidget());
        bound.window.SetWindowTextW(text.c_str());
        QCOMPARE(bound.window.GetWindowTextLengthW(), 1000000);
        CString read;
        bound.window.GetWindowTextW(read);
        QVERIFY(read == text);
        std::wstring buffer(1000002, L'?');
        QCOMPARE(bound.window.GetWindowTextW(buffer.data(), 1000001), 1000000);
        QCOMPARE(buffer[1000000], L'\0');
        QCOMPARE(buffer[1000001], L'?');
        QCOMPARE(bound.window.GetWindowTextW(buffer.data(), 500001), 500000);
    }
}

void tst_CWndText::lineEditKeepsItsLimit()
{
    auto *edit = new QLineEdit;
    edit->setMaxLength(5);
    Bound bound(edit);
    bound.window.SetWindowTextW(L"Hello world");
    QCOMPARE(textOf(&bound.window), QStringLiteral("Hello"));
}

void tst_CWndText::lineEditTellsItsChange()
{
    auto *edit = new QLineEdit;
    Bound bound(edit);
    QSignalSpy changed(edit, &QLineEdit::textChanged);
    QSignalSpy edited(edit, &QLineEdit::textEdited);
    bound.window.SetWindowTextW(L"text");
    QCOMPARE(changed.size(), 1);
    QCOMPARE(edited.size(), 0);
}

void tst_CWndText::comboTakesEditText_data()
{
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QString>("text");

    QTest::newRow("editable") << true << QStringLiteral("new");
    QTest::newRow("not editable, nothing happens") << false << QStringLiteral("second");
}

void tst_CWndText::comboTakesEditText()
{
    QFETCH(bool, editable);
    auto *combo = static_cast<QComboBox *>(editable ? makeCombo<true>() : makeCombo<false>());
    Bound bound(combo);
    bound.window.SetWindowTextW(L"new");
    QTEST(textOf(&bound.window), "text");
    QCOMPARE(combo->currentIndex(), 1);
    QCOMPARE(combo->count(), 2);
    bound.window.SetWindowTextW(L"first");
    QCOMPARE(combo->currentIndex(), 1);
}

void tst_CWndText::textEditUnderstandsRichText()
{
    Bound bound(new QTextEdit);
    bound.window.SetWindowTextW(L"<p>one <b>two</b></p>");
    QCOMPARE(textOf(&bound.window), QStringLiteral("one two"));
    QCOMPARE(bound.window.GetWindowTextLengthW(), 7);
    bound.window.SetWindowTextW(L"one\ntwo");
    QCOMPARE(textOf(&bound.window), QStringLiteral("one\ntwo"));
}

void tst_CWndText::length()
{
    Bound bound(new QLabel(QStringLiteral("Hello world")));
    QCOMPARE(bound.window.GetWindowTextLengthW(), 11);
    CWnd unbound;
    QCOMPARE(unbound.GetWindowTextLengthW(), 0);
}

QTEST_MAIN(tst_CWndText)
#include "tst_CWndText.moc"
