#include "BoundControl.h"
#include "KxEditControls.h"
#include "LeftBehind.h"
#include "WidgetWatch.h"

#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTextEdit>
#include <QtTest>

#include <climits>
#include <cwchar>
#include <memory>

namespace {
using LineEdit = BoundControl<CEdit, QLineEdit>;
using TextEdit = BoundControl<CEdit, QTextEdit>;
using SpinBox = BoundControl<CEdit, QSpinBox>;
using DoubleSpinBox = BoundControl<CEdit, QDoubleSpinBox>;
using DateEdit = BoundControl<CEdit, QDateEdit>;

class OwnTextEdit : public CEdit
{
public:
    using CEdit::GetWindowTextW;
    void GetWindowTextW(CString &rString) override
    {
        ++reads;
        emptyBefore = rString.IsEmpty();
        rString = L"own text";
    }

    int reads = 0;
    bool emptyBefore = false;
};

// A buffer whose content shows what was written to it.
struct Buffer
{
    Buffer() { std::wmemset(text, L'#', 8); }

    // Nulls appear as '.'.
    QString content() const { return QString::fromWCharArray(text, 8).replace(QChar(0), QLatin1Char('.')); }

    wchar_t text[8];
};

QString textOf(CWnd &window)
{
    CString text = L"left";
    window.GetWindowTextW(text);
    return QString::fromStdWString(text);
}
} // namespace

class tst_CEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void setTextOfLineEdit_data();
    void setTextOfLineEdit();
    void setTextOfTextEdit();
    void setNumberOfSpinBox_data();
    void setNumberOfSpinBox();
    void setNumberOfDoubleSpinBox_data();
    void setNumberOfDoubleSpinBox();
    void blockedWidgetStaysBlocked();
    void getText();
    void textEditIsWrittenButNotRead();
    void dateEditIsReadButNotWritten();
    void virtualThroughWindow();

    void getTextIntoBuffer_data();
    void getTextIntoBuffer();
    void bufferWithoutText();
    void bufferReadsVirtually();
    void getLine_data();
    void getLine();
    void getLineOutsideBmp();

    void setReadOnly();
    void setLimitText_data();
    void setLimitText();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CEdit::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CEdit::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CEdit::setTextOfLineEdit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("told");

    QTest::newRow("text") << QStringLiteral("new") << true;
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("white space is kept") << QStringLiteral("  new ") << true;
    QTest::newRow("character above U+FFFF") << QStringLiteral("a\U0001F600b") << true;
    QTest::newRow("same text") << QStringLiteral("former") << false;
}

void tst_CEdit::setTextOfLineEdit()
{
    QFETCH(QString, text);
    QFETCH(bool, told);
    LineEdit edit;
    edit.widget.setText(QStringLiteral("former"));
    QLineEdit plain;
    plain.setText(QStringLiteral("former"));
    const WidgetWatch watch(&edit.widget);
    const WidgetWatch plainWatch(&plain);

    edit.control.SetWindowTextW(text.toStdWString().c_str());
    plain.setText(text);
    QCOMPARE(edit.widget.text(), text);
    QCOMPARE(watch.emitted().contains(QStringLiteral("textChanged(QString)")), told);
    QCOMPARE(watch.emitted(), plainWatch.emitted());
    QCOMPARE(watch.changed(), plainWatch.changed());
}

void tst_CEdit::setTextOfTextEdit()
{
    TextEdit edit;
    QSignalSpy changed(&edit.widget, &QTextEdit::textChanged);
    edit.control.SetWindowTextW(L"first\nsecond");
    QCOMPARE(edit.widget.toPlainText(), QStringLiteral("first\nsecond"));
    QVERIFY(!changed.isEmpty());
    edit.control.SetWindowTextW(L"<b>bold</b>");
    QCOMPARE(edit.widget.toPlainText(), QStringLiteral("bold"));
}

void tst_CEdit::setNumberOfSpinBox_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");

    QTest::newRow("number") << QStringLiteral("42") << 42;
    QTest::newRow("negative") << QStringLiteral("-7") << -7;
    QTest::newRow("white space around") << QStringLiteral(" 8 ") << 8;
    QTest::newRow("same value") << QStringLiteral("5") << 5;
    QTest::newRow("above the range") << QStringLiteral("101") << 100;
    QTest::newRow("below the range") << QStringLiteral("-11") << -10;
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("no number") << QStringLiteral("none") << 0;
    QTest::newRow("number, then text") << QStringLiteral("12kg") << 0;
    QTest::newRow("fraction") << QStringLiteral("3.5") << 0;
    QTest::newRow("hexadecimal") << QStringLiteral("0x10") << 0;
    QTest::newRow("leading zero is decimal") << QStringLiteral("010") << 10;
    QTest::newRow("too large for an int") << QStringLiteral("2147483648") << 0;
}

void tst_CEdit::setNumberOfSpinBox()
{
    QFETCH(QString, text);
    SpinBox box;
    box.widget.setRange(-10, 100);
    box.widget.setValue(5);
    const WidgetWatch watch(&box.widget);
    box.control.SetWindowTextW(text.toStdWString().c_str());
    QTEST(box.widget.value(), "value");
    QCOMPARE(watch.emitted(), QStringList());
    QVERIFY(!box.widget.signalsBlocked());
}

void tst_CEdit::setNumberOfDoubleSpinBox_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");

    QTest::newRow("number") << QStringLiteral("2.5") << 2.5;
    QTest::newRow("negative") << QStringLiteral("-2.5") << -2.5;
    QTest::newRow("exponent") << QStringLiteral("1e1") << 10.0;
    QTest::newRow("rounded to the decimals") << QStringLiteral("1.239") << 1.24;
    QTest::newRow("above the range") << QStringLiteral("1e9") << 100.0;
    QTest::newRow("empty") << QString() << 0.0;
    QTest::newRow("no number") << QStringLiteral("none") << 0.0;
    QTest::newRow("decimal comma") << QStringLiteral("2,5") << 0.0;
}

void tst_CEdit::setNumberOfDoubleSpinBox()
{
    QFETCH(QString, text);
    DoubleSpinBox box;
    box.widget.setRange(-10, 100);
    box.widget.setValue(5);
    const WidgetWatch watch(&box.widget);
    box.control.SetWindowTextW(text.toStdWString().c_str());
    QTEST(box.widget.value(), "value");
    QCOMPARE(watch.emitted(), QStringList());
    QVERIFY(!box.widget.signalsBlocked());
}

void tst_CEdit::blockedWidgetStaysBlocked()
{
    SpinBox box;
    DoubleSpinBox doubleBox;
    box.widget.blockSignals(true);
    doubleBox.widget.blockSignals(true);
    box.control.SetWindowTextW(L"4");
    doubleBox.control.SetWindowTextW(L"4");
    QCOMPARE(box.widget.value(), 4);
    QCOMPARE(doubleBox.widget.value(), 4.0);
    QVERIFY(box.widget.signalsBlocked());
    QVERIFY(doubleBox.widget.signalsBlocked());
}

void tst_CEdit::getText()
{
    LineEdit line;
    line.widget.setText(QStringLiteral(" a\U0001F600b "));
    QCOMPARE(textOf(line.control), QStringLiteral(" a\U0001F600b "));
    QCOMPARE(line.control.GetWindowTextLengthW(), 5);

    SpinBox box;
    box.widget.setPrefix(QStringLiteral("about "));
    box.widget.setSuffix(QStringLiteral(" mm"));
    box.widget.setValue(12);
    QCOMPARE(textOf(box.control), QStringLiteral("about 12 mm"));
    QCOMPARE(box.control.GetWindowTextLengthW(), 11);

    DoubleSpinBox doubleBox;
    doubleBox.widget.setSuffix(QStringLiteral(" kg"));
    doubleBox.widget.setValue(1.5);
    QCOMPARE(textOf(doubleBox.control), doubleBox.widget.text());
    QVERIFY(textOf(doubleBox.control).endsWith(QStringLiteral("50 kg")));
}

void tst_CEdit::textEditIsWrittenButNotRead()
{
    TextEdit edit;
    edit.control.SetWindowTextW(L"written");
    QCOMPARE(edit.widget.toPlainText(), QStringLiteral("written"));
    QCOMPARE(textOf(edit.control), QStringLiteral("left"));
    QCOMPARE(edit.control.GetWindowTextLengthW(), 0);
    // The class of the object decides, not the widget.
    CWnd window;
    edit.control.Detach();
    window.SetHandle(handleOf(&edit.widget));
    QCOMPARE(textOf(window), QStringLiteral("written"));
}

void tst_CEdit::dateEditIsReadButNotWritten()
{
    DateEdit edit;
    edit.widget.setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    edit.widget.setDate(QDate(2001, 2, 3));
    const WidgetWatch watch(&edit.widget);
    edit.control.SetWindowTextW(L"2004-05-06");
    edit.control.SetWindowTextW(L"7");
    QVERIFY(watch.isUntouched());
    QCOMPARE(textOf(edit.control), QStringLiteral("2001-02-03"));
    QCOMPARE(edit.control.GetWindowTextLengthW(), 10);
}

void tst_CEdit::virtualThroughWindow()
{
    TextEdit edit;
    CWnd *window = &edit.control;
    window->SetWindowTextW(L"written");
    QCOMPARE(edit.widget.toPlainText(), QStringLiteral("written"));
    QCOMPARE(textOf(*window), QStringLiteral("left"));
    Buffer buffer;
    QCOMPARE(window->GetWindowTextW(buffer.text, 3), 0);
    QCOMPARE(buffer.content(), QStringLiteral("...#####"));
    QCOMPARE(window->GetWindowTextLengthW(), 0);
}

void tst_CEdit::getTextIntoBuffer_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("content");

    QTest::newRow("smallest") << INT_MIN << 0 << QStringLiteral("########");
    QTest::newRow("negative") << -1 << 0 << QStringLiteral("########");
    QTest::newRow("0") << 0 << 0 << QStringLiteral("########");
    QTest::newRow("terminator only") << 1 << 0 << QStringLiteral(".#######");
    QTest::newRow("cut") << 4 << 3 << QStringLiteral("abc.####");
    QTest::newRow("one too small") << 5 << 4 << QStringLiteral("abcd.###");
    QTest::newRow("exact") << 6 << 5 << QStringLiteral("abcde.##");
    QTest::newRow("rest filled") << 8 << 5 << QStringLiteral("abcde...");
}

void tst_CEdit::getTextIntoBuffer()
{
    QFETCH(int, size);
    LineEdit edit;
    edit.widget.setText(QStringLiteral("abcde"));
    Buffer buffer;
    QTEST(edit.control.GetWindowTextW(buffer.text, size), "result");
    QTEST(buffer.content(), "content");
    QCOMPARE(edit.control.GetWindowTextW(nullptr, size), 0);
}

void tst_CEdit::bufferWithoutText()
{
    TextEdit textEdit;
    textEdit.widget.setText(QStringLiteral("abcde"));
    BoundControl<CEdit, QWidget> other;
    other.widget.setWindowTitle(QStringLiteral("abcde"));
    LineEdit detached;
    detached.widget.setText(QStringLiteral("abcde"));
    detached.control.Detach();
    CEdit unbound;
    for (CEdit *edit : {&textEdit.control, &other.control, &detached.control, &unbound}) {
        Buffer buffer;
        QCOMPARE(edit->GetWindowTextW(buffer.text, 5), 0);
        QCOMPARE(buffer.content(), QStringLiteral(".....###"));
        QCOMPARE(edit->GetWindowTextW(buffer.text + 5, 0), 0);
        QCOMPARE(buffer.content(), QStringLiteral(".....###"));
        QCOMPARE(edit->GetWindowTextLengthW(), 0);
    }
}

void tst_CEdit::bufferReadsVirtually()
{
    OwnTextEdit edit;
    Buffer buffer;
    QCOMPARE(edit.GetWindowTextW(buffer.text, 0), 0);
    QCOMPARE(edit.reads, 0);
    QCOMPARE(edit.GetWindowTextW(buffer.text, 8), 7);
    QCOMPARE(edit.reads, 1);
    QVERIFY(edit.emptyBefore);
    QCOMPARE(buffer.content(), QStringLiteral("own tex."));
    QCOMPARE(edit.GetWindowTextLengthW(), 8);
    QCOMPARE(edit.reads, 2);
}

void tst_CEdit::getLine_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("content");

    QTest::newRow("smallest size") << 0 << INT_MIN << 0 << QStringLiteral("########");
    QTest::newRow("size -1") << 0 << -1 << 0 << QStringLiteral("########");
    QTest::newRow("size 0") << 0 << 0 << 0 << QStringLiteral("########");
    QTest::newRow("size 1") << 0 << 1 << 1 << QStringLiteral("a#######");
    QTest::newRow("cut, no terminator") << 5 << 3 << 3 << QStringLiteral("abc#####");
    QTest::newRow("exact, no terminator") << 0 << 5 << 5 << QStringLiteral("abcde###");
    QTest::newRow("one more") << 0 << 6 << 5 << QStringLiteral("abcde.##");
    QTest::newRow("rest filled") << 0 << 8 << 5 << QStringLiteral("abcde...");
    QTest::newRow("negative line") << -1 << 8 << 5 << QStringLiteral("abcde...");
    QTest::newRow("largest line") << INT_MAX << 8 << 5 << QStringLiteral("abcde...");
}

void tst_CEdit::getLine()
{
    QFETCH(int, line);
    QFETCH(int, size);
    LineEdit edit;
    edit.widget.setText(QStringLiteral("abcde"));
    Buffer buffer;
    const WidgetWatch watch(&edit.widget);
    QTEST(edit.control.GetLine(line, buffer.text, size), "result");
    QTEST(buffer.content(), "content");
    QCOMPARE(edit.control.GetLine(line, nullptr, size), 0);
    QVERIFY(watch.isUntouched());
}

void tst_CEdit::getLineOutsideBmp()
{
    LineEdit edit;
    edit.widget.setText(QStringLiteral("a\U0001F600bc"));
    Buffer whole;
    QCOMPARE(edit.control.GetLine(0, whole.text, 8), 4);
    QVERIFY(std::wcscmp(whole.text, L"a\U0001F600bc") == 0);
    // Cut by Qt's count, in which the second character takes two places.
    Buffer cut;
    QCOMPARE(edit.control.GetLine(0, cut.text, 3), 2);
    QVERIFY(std::wcscmp(cut.text, L"a\U0001F600") == 0);
    QCOMPARE(cut.text[3], L'#');
}

void tst_CEdit::setReadOnly()
{
    LineEdit line;
    TextEdit text;
    line.control.SetReadOnly(true);
    text.control.SetReadOnly(true);
    QVERIFY(line.widget.isReadOnly());
    QVERIFY(text.widget.isReadOnly());
    line.control.SetReadOnly(false);
    text.control.SetReadOnly(false);
    QVERIFY(!line.widget.isReadOnly());
    QVERIFY(!text.widget.isReadOnly());
    line.control.SetReadOnly();
    QVERIFY(line.widget.isReadOnly());
}

void tst_CEdit::setLimitText_data()
{
    QTest::addColumn<uint>("limit");
    QTest::addColumn<int>("maxLength");
    QTest::addColumn<QString>("text");

    QTest::newRow("0 lets nothing in") << 0u << 0 << QString();
    QTest::newRow("shortens") << 3u << 3 << QStringLiteral("abc");
    QTest::newRow("exact") << 5u << 5 << QStringLiteral("abcde");
    QTest::newRow("largest int") << uint(INT_MAX) << INT_MAX << QStringLiteral("abcde");
    QTest::newRow("largest value") << UINT_MAX << -1 << QStringLiteral("abcde");
}

void tst_CEdit::setLimitText()
{
    QFETCH(uint, limit);
    QFETCH(QString, text);
    LineEdit edit;
    edit.widget.setText(QStringLiteral("abcde"));
    QLineEdit plain;
    plain.setText(QStringLiteral("abcde"));
    const WidgetWatch watch(&edit.widget);
    const WidgetWatch plainWatch(&plain);
    edit.control.SetLimitText(limit);
    plain.setMaxLength(int(limit));
    QTEST(edit.widget.maxLength(), "maxLength");
    QCOMPARE(edit.widget.text(), text);
    QCOMPARE(watch.emitted(), plainWatch.emitted());
    QTest::keyClicks(&edit.widget, QStringLiteral("x"));
    QTest::keyClicks(&plain, QStringLiteral("x"));
    QCOMPARE(edit.widget.text(), plain.text());
}

QTEST_MAIN(tst_CEdit)
#include "tst_CEdit.moc"
