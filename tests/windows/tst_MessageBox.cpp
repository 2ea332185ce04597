#include "KxApplication.h"
#include "OpenBox.h"

#include <QtTest>
#include <QtWidgets>

namespace {
struct Answer
{
    QMessageBox::StandardButton button;
    const char *text;
    int result;
};

const Answer answers[] = {
    {QMessageBox::Ok, "&OK", 1},
    {QMessageBox::Cancel, "&Cancel", 2},
    {QMessageBox::Yes, "&Yes", 6},
    {QMessageBox::No, "&No", 7},
};

// The choice, step by step as ported code was told of it.
Buttons expectedButtons(UINT type)
{
    Buttons buttons = QMessageBox::NoButton;
    if ((type & 3) == 3)
        buttons = yesNoCancel;
    else if (type & 1)
        buttons = okCancel;
    else if (type & 4)
        buttons = yesNo;
    else if (type == 0)
        buttons = okOnly;
    const bool isQuestion = (type & 0x30) == 0x20;
    if (isQuestion && buttons == QMessageBox::NoButton)
        buttons = yesNo;
    return buttons == QMessageBox::NoButton ? okOnly : buttons;
}

QMessageBox::Icon expectedIcon(UINT type)
{
    const QMessageBox::Icon byBits[] = {QMessageBox::NoIcon, QMessageBox::Critical, QMessageBox::Question,
                                        QMessageBox::Warning};
    const UINT bits = (type >> 4) & 3;
    if (bits >= 2 || !(type & 0x40))
        return byBits[bits];
    return QMessageBox::Information;
}
} // namespace

Q_DECLARE_METATYPE(ModalDriver::Action)

/// Message boxes, pressed and closed as a user does.
class tst_MessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void types_data();
    void types();
    void everyCombinationOfLowBits();
    void buttonTextsAndKeys_data();
    void buttonTextsAndKeys();
    void escape_data();
    void escape();
    void endedOtherwise_data();
    void endedOtherwise();

    void captionAndText_data();
    void captionAndText();
    void window();
};

static void addRow(const char *name, UINT type, Buttons buttons, QMessageBox::Icon icon)
{
    QTest::newRow(name) << type << int(buttons) << int(icon);
}

void tst_MessageBox::types_data()
{
    QTest::addColumn<UINT>("type");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("icon");

    addRow("OK", 0x00, okOnly, QMessageBox::NoIcon);
    addRow("OK, Cancel", 0x01, okCancel, QMessageBox::NoIcon);
    addRow("Abort, Retry, Ignore gives OK", 0x02, okOnly, QMessageBox::NoIcon);
    addRow("Yes, No, Cancel", 0x03, yesNoCancel, QMessageBox::NoIcon);
    addRow("Yes, No", 0x04, yesNo, QMessageBox::NoIcon);
    addRow("Retry, Cancel gives OK, Cancel", 0x05, okCancel, QMessageBox::NoIcon);
    addRow("Cancel, Try, Continue gives Yes, No", 0x06, yesNo, QMessageBox::NoIcon);
    addRow("7 gives Yes, No, Cancel", 0x07, yesNoCancel, QMessageBox::NoIcon);
    addRow("error", 0x10, okOnly, QMessageBox::Critical);
    addRow("question asks Yes, No", 0x20, yesNo, QMessageBox::Question);
    addRow("question with OK, Cancel", 0x21, okCancel, QMessageBox::Question);
    addRow("question with Abort, Retry, Ignore asks Yes, No", 0x22, yesNo, QMessageBox::Question);
    addRow("question with Yes, No, Cancel", 0x23, yesNoCancel, QMessageBox::Question);
    addRow("warning", 0x30, okOnly, QMessageBox::Warning);
    addRow("warning with Yes, No", 0x34, yesNo, QMessageBox::Warning);
    addRow("information", 0x40, okOnly, QMessageBox::Information);
    addRow("information before error", 0x50, okOnly, QMessageBox::Information);
    addRow("question before information", 0x60, yesNo, QMessageBox::Question);
    addRow("warning before information", 0x70, okOnly, QMessageBox::Warning);
    addRow("second default button", 0x100, okOnly, QMessageBox::NoIcon);
    addRow("second default button of Yes, No", 0x124, yesNo, QMessageBox::Question);
    addRow("bits above", 0xFFFFFF80, okOnly, QMessageBox::NoIcon);
    addRow("all bits", 0xFFFFFFFF, yesNoCancel, QMessageBox::Warning);
}

// Each button of each type is pressed once.
void tst_MessageBox::types()
{
    QFETCH(UINT, type);
    QFETCH(int, buttons);
    QFETCH(int, icon);

    for (const Answer &answer : answers) {
        if (!(buttons & answer.button))
            continue;
        Seen seen;
        const ModalDriver driver([&seen, &answer](QWidget *box) {
            seen = look(box);
            ModalDriver::click(QString::fromLatin1(answer.text))(box);
        });
        QCOMPARE(MessageBoxW(L"text", L"caption", type), answer.result);
        QCOMPARE(int(seen.buttons), buttons);
        QCOMPARE(int(seen.icon), icon);
    }
}

void tst_MessageBox::everyCombinationOfLowBits()
{
    for (UINT type = 0; type < 0x80; ++type) {
        Seen seen;
        const ModalDriver driver(lookAndLeave(seen));
        MessageBoxW(L"text", L"caption", type);
        QVERIFY2(seen.buttons == expectedButtons(type), qPrintable(QString::number(type, 16)));
        QVERIFY2(seen.icon == expectedIcon(type), qPrintable(QString::number(type, 16)));
    }
}

void tst_MessageBox::buttonTextsAndKeys_data()
{
    QTest::addColumn<UINT>("type");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("result");

    QTest::newRow("OK") << MB_OKCANCEL << int(Qt::Key_O) << IDOK;
    QTest::newRow("Cancel") << MB_OKCANCEL << int(Qt::Key_C) << IDCANCEL;
    QTest::newRow("Yes") << MB_YESNOCANCEL << int(Qt::Key_Y) << IDYES;
    QTest::newRow("No") << MB_YESNOCANCEL << int(Qt::Key_N) << IDNO;
    QTest::newRow("Cancel of three") << MB_YESNOCANCEL << int(Qt::Key_C) << IDCANCEL;
}

// The mnemonics in the texts work.
void tst_MessageBox::buttonTextsAndKeys()
{
    QFETCH(UINT, type);
    QFETCH(int, key);

    const ModalDriver driver([key](QWidget *box) {
        QVERIFY(QTest::qWaitForWindowActive(box));
        QTest::keyClick(box, Qt::Key(key), Qt::AltModifier);
    });
    QTEST(MessageBoxW(L"text", L"caption", type), "result");
}

void tst_MessageBox::escape_data()
{
    QTest::addColumn<UINT>("type");
    QTest::addColumn<int>("result");

    QTest::newRow("OK alone") << MB_OK << IDOK;
    QTest::newRow("OK, Cancel") << MB_OKCANCEL << IDCANCEL;
    QTest::newRow("Yes, No") << MB_YESNO << IDNO;
    QTest::newRow("Yes, No, Cancel") << MB_YESNOCANCEL << IDCANCEL;
}

// Qt's escape button is pressed, by the key and by the frame.
void tst_MessageBox::escape()
{
    QFETCH(UINT, type);
    QFETCH(int, result);

    {
        const ModalDriver driver(ModalDriver::type(Qt::Key_Escape));
        QCOMPARE(MessageBoxW(L"text", L"caption", type), result);
    }
    const ModalDriver driver(ModalDriver::close());
    QCOMPARE(MessageBoxW(L"text", L"caption", type), result);
}

void tst_MessageBox::endedOtherwise_data()
{
    QTest::addColumn<ModalDriver::Action>("action");

    QTest::newRow("hidden") << ModalDriver::Action([](QWidget *box) { box->hide(); });
    for (int code : {0, 1, 2, 6, 7, -1, int(QMessageBox::Abort)}) {
        QTest::addRow("ended with %d", code)
            << ModalDriver::Action([code](QWidget *box) { qobject_cast<QDialog *>(box)->done(code); });
    }
}

void tst_MessageBox::endedOtherwise()
{
    QFETCH(ModalDriver::Action, action);

    const ModalDriver driver(action);
    QCOMPARE(MessageBoxW(L"text", L"caption", MB_YESNOCANCEL), 0);
}

void tst_MessageBox::captionAndText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("title");

    const QString wide = QString::fromStdWString(L"\u00e4\u4e2d\U0001F600");
    QTest::newRow("both") << QStringLiteral("text") << QStringLiteral("caption") << QStringLiteral("caption");
    QTest::newRow("null caption") << QStringLiteral("text") << QString() << QStringLiteral("Velmo.");
    QTest::newRow("empty caption") << QStringLiteral("text") << QStringLiteral("") << QString();
    QTest::newRow("null text") << QString() << QStringLiteral("caption") << QStringLiteral("caption");
    QTest::newRow("both null") << QString() << QString() << QStringLiteral("Velmo.");
    QTest::newRow("several lines") << QStringLiteral("a\nb") << QStringLiteral("c") << QStringLiteral("c");
    QTest::newRow("beyond 16 bits") << wide << wide << wide;
}

void tst_MessageBox::captionAndText()
{
    QFETCH(QString, text);
    QFETCH(QString, caption);

    const std::wstring wideText = text.toStdWString();
    const std::wstring wideCaption = caption.toStdWString();
    Seen seen;
    const ModalDriver driver(lookAndLeave(seen));
    MessageBoxW(text.isNull() ? nullptr : wideText.c_str(), caption.isNull() ? nullptr : wideCaption.c_str(),
                MB_OK);
    QCOMPARE(seen.text, text);
    QTEST(seen.title, "title");
}

void tst_MessageBox::window()
{
    Seen seen;
    const ModalDriver driver(lookAndLeave(seen));
    MessageBoxW(L"text", L"caption", MB_OK);

    QCOMPARE(seen.flags & Qt::WindowType_Mask, Qt::WindowFlags(Qt::Dialog));
    QVERIFY(seen.flags & Qt::MSWindowsFixedSizeDialogHint);
    QVERIFY(seen.flags & Qt::WindowStaysOnTopHint);
    QVERIFY(seen.isModal);
    QVERIFY(!seen.parent);
}

QTEST_MAIN(tst_MessageBox)
#include "tst_MessageBox.moc"
