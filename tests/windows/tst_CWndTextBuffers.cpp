#include "KxWindows.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include <climits>
#include <memory>

namespace {
// Answers for its control itself, as ported controls with a text of their own do.
class OwnTextWnd : public CWnd
{
public:
    using CWnd::GetWindowTextW;
    void SetWindowTextW(const wchar_t *text) override { given = text; }
    void GetWindowTextW(CString &text) override { text = L"own"; }

    CString given;
};
} // namespace

class tst_CWndTextBuffers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void buffer_data();
    void buffer();
    void bufferOfNonPositiveSize_data();
    void bufferOfNonPositiveSize();
    void nullBuffer();
    void unboundLeavesTheTargetAlone();

    void getDlgItemText();
    void getDlgItemTextUnknown_data();
    void getDlgItemTextUnknown();
    void setDlgItemText();
    void setDlgItemTextUnknown();
    void overriddenTextIsAsked();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndTextBuffers::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndTextBuffers::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

// In the tables below '.' stands for a null and '?' for an element that was not written.
static QString picture(const wchar_t *buffer, int size)
{
    QString text = QString::fromWCharArray(buffer, size);
    return text.replace(QChar(0), QLatin1Char('.'));
}

void tst_CWndTextBuffers::buffer_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("content");

    const QString hello = QStringLiteral("Hello world");
    QTest::newRow("1, terminator only") << hello << 1 << 0 << QStringLiteral(".???????????????");
    QTest::newRow("2") << hello << 2 << 1 << QStringLiteral("H.??????????????");
    QTest::newRow("5") << hello << 5 << 4 << QStringLiteral("Hell.???????????");
    QTest::newRow("as long as the text") << hello << 11 << 10 << QStringLiteral("Hello worl.?????");
    QTest::newRow("one more than the text") << hello << 12 << 11 << QStringLiteral("Hello world.????");
    QTest::newRow("longer, null at the end") << hello << 15 << 11 << QStringLiteral("Hello world....?");
    QTest::newRow("empty text, 1") << QString() << 1 << 0 << QStringLiteral(".???????????????");
    QTest::newRow("empty text, 4") << QString() << 4 << 0 << QStringLiteral("....????????????");
}

void tst_CWndTextBuffers::buffer()
{
    QFETCH(QString, text);
    QFETCH(int, size);
    QFETCH(int, result);
    QFETCH(QString, content);
    QLabel label(text);
    CWnd window;
    window.SetHandle(handleOf(&label));
    wchar_t buffer[16];
    std::fill_n(buffer, 16, L'?');
    QCOMPARE(window.GetWindowTextW(buffer, size), result);
    QCOMPARE(picture(buffer, 16), content);
}

void tst_CWndTextBuffers::bufferOfNonPositiveSize_data()
{
    QTest::addColumn<int>("size");

    QTest::newRow("0") << 0;
    QTest::newRow("-1") << -1;
    QTest::newRow("smallest") << INT_MIN;
}

void tst_CWndTextBuffers::bufferOfNonPositiveSize()
{
    QFETCH(int, size);
    QLabel label(QStringLiteral("text"));
    CWnd window;
    window.SetHandle(handleOf(&label));
    wchar_t buffer[4] = {L'?', L'?', L'?', L'?'};
    QCOMPARE(window.GetWindowTextW(buffer + 2, size), 0);
    QCOMPARE(picture(buffer, 4), QStringLiteral("????"));
}

void tst_CWndTextBuffers::nullBuffer()
{
    QLabel label(QStringLiteral("text"));
    CWnd window;
    window.SetHandle(handleOf(&label));
    QCOMPARE(window.GetWindowTextW(nullptr, 5), 0);
}

void tst_CWndTextBuffers::unboundLeavesTheTargetAlone()
{
    CWnd window;
    wchar_t buffer[4] = {L'?', L'?', L'?', L'?'};
    QCOMPARE(window.GetWindowTextW(buffer, 4), 0);
    QCOMPARE(picture(buffer, 4), QStringLiteral("????"));
    CString text(L"kept");
    window.GetWindowTextW(text);
    QVERIFY(text == L"kept");
}

void tst_CWndTextBuffers::getDlgItemText()
{
    QWidget dialog;
    CWnd window;
    window.SetHandle(handleOf(&dialog));
    window.SetDlgItem(7, handleOf(new QLineEdit(QString::fromUtf8("\U0001F600 text"), &dialog)));
    CString text(L"former");
    QCOMPARE(window.GetDlgItemTextW(7, text), 6);
    QVERIFY(text == L"\U0001F600 text");
}

void tst_CWndTextBuffers::getDlgItemTextUnknown_data()
{
    QTest::addColumn<int>("id");

    QTest::newRow("unknown") << 8;
    QTest::newRow("registered null handle") << 9;
    QTest::newRow("negative") << -1;
}

void tst_CWndTextBuffers::getDlgItemTextUnknown()
{
    QFETCH(int, id);
    QWidget dialog;
    CWnd window;
    window.SetHandle(handleOf(&dialog));
    window.SetDlgItem(7, handleOf(new QLineEdit(QStringLiteral("text"), &dialog)));
    window.SetDlgItem(9, nullptr);
    CString text(L"kept text");
    QCOMPARE(window.GetDlgItemTextW(id, text), 9);
    QVERIFY(text == L"kept text");
}

void tst_CWndTextBuffers::setDlgItemText()
{
    QWidget dialog;
    auto *edit = new QLineEdit(&dialog);
    CWnd window;
    window.SetHandle(handleOf(&dialog));
    window.SetDlgItem(7, handleOf(edit));
    window.SetDlgItemTextW(7, L"text");
    QCOMPARE(edit->text(), QStringLiteral("text"));
    window.SetDlgItemTextW(7, nullptr);
    QCOMPARE(edit->text(), QStringLiteral("text"));
    window.SetDlgItemTextW(7, L"");
    QVERIFY(edit->text().isEmpty());
    QVERIFY(dialog.windowTitle().isEmpty());
}

void tst_CWndTextBuffers::setDlgItemTextUnknown()
{
    QWidget dialog;
    auto *edit = new QLineEdit(QStringLiteral("kept"), &dialog);
    CWnd window;
    window.SetHandle(handleOf(&dialog));
    window.SetDlgItem(7, handleOf(edit));
    window.SetDlgItemTextW(8, L"text");
    QCOMPARE(edit->text(), QStringLiteral("kept"));
    QVERIFY(dialog.windowTitle().isEmpty());
    QVERIFY(!CWnd::FromHandle(handleOf(edit)));
}

void tst_CWndTextBuffers::overriddenTextIsAsked()
{
    QWidget dialog;
    auto *edit = new QLineEdit(QStringLiteral("kept"), &dialog);
    OwnTextWnd control;
    control.SetHandle(handleOf(edit));
    CWnd window;
    window.SetHandle(handleOf(&dialog));
    window.SetDlgItem(7, handleOf(edit));
    CString text;
    QCOMPARE(window.GetDlgItemTextW(7, text), 3);
    QVERIFY(text == L"own");
    QCOMPARE(control.GetWindowTextLengthW(), 3);
    window.SetDlgItemTextW(7, L"given");
    QVERIFY(control.given == L"given");
    QCOMPARE(edit->text(), QStringLiteral("kept"));
}

QTEST_MAIN(tst_CWndTextBuffers)
#include "tst_CWndTextBuffers.moc"
