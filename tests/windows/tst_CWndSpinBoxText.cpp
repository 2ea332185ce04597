#include "KxWindows.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QtTest>

#include <climits>
#include <memory>

class tst_CWndSpinBoxText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void spinBox_data();
    void spinBox();
    void spinBoxRange();
    void doubleSpinBox_data();
    void doubleSpinBox();
    void doubleSpinBoxRange();

    void signalsStayQuiet_data();
    void signalsStayQuiet();
    void readingGivesTheShownText();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CWndSpinBoxText::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CWndSpinBoxText::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CWndSpinBoxText::spinBox_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value");

    QTest::newRow("number") << QStringLiteral("42") << 42;
    QTest::newRow("negative") << QStringLiteral("-42") << -42;
    QTest::newRow("sign") << QStringLiteral("+7") << 7;
    QTest::newRow("blanks around") << QStringLiteral(" 42 ") << 42;
    QTest::newRow("letters") << QStringLiteral("abc") << 0;
    QTest::newRow("leading digits do not count") << QStringLiteral("42abc") << 0;
    QTest::newRow("prefix and suffix do not count") << QStringLiteral("about 42 mm") << 0;
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("fraction") << QStringLiteral("4.7") << 0;
    QTest::newRow("hexadecimal is base 10") << QStringLiteral("0x10") << 0;
    QTest::newRow("leading zero is base 10") << QStringLiteral("010") << 10;
    QTest::newRow("largest") << QStringLiteral("2147483647") << INT_MAX;
    QTest::newRow("smallest") << QStringLiteral("-2147483648") << INT_MIN;
    QTest::newRow("overflow") << QStringLiteral("2147483648") << 0;
}

void tst_CWndSpinBoxText::spinBox()
{
    QFETCH(QString, text);
    QSpinBox box;
    box.setPrefix(QStringLiteral("about "));
    box.setSuffix(QStringLiteral(" mm"));
    box.setRange(INT_MIN, INT_MAX);
    box.setValue(5);
    CWnd window;
    window.SetHandle(handleOf(&box));
    window.SetWindowTextW(text.toStdWString().c_str());
    QTEST(box.value(), "value");
}

void tst_CWndSpinBoxText::spinBoxRange()
{
    QSpinBox box;
    box.setRange(5, 10);
    CWnd window;
    window.SetHandle(handleOf(&box));
    window.SetWindowTextW(L"11");
    QCOMPARE(box.value(), 10);
    window.SetWindowTextW(L"abc");
    QCOMPARE(box.value(), 5);
}

void tst_CWndSpinBoxText::doubleSpinBox_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");

    QTest::newRow("integer") << QStringLiteral("42") << 42.0;
    QTest::newRow("fraction") << QStringLiteral("-2.75") << -2.75;
    QTest::newRow("exponent") << QStringLiteral("1.5e2") << 150.0;
    QTest::newRow("letters") << QStringLiteral("abc") << 0.0;
    QTest::newRow("leading digits do not count") << QStringLiteral("2.5x") << 0.0;
    QTest::newRow("decimal comma") << QStringLiteral("2,5") << 0.0;
    QTest::newRow("empty") << QString() << 0.0;
}

void tst_CWndSpinBoxText::doubleSpinBox()
{
    QFETCH(QString, text);
    QDoubleSpinBox box;
    // The widget's locale shows a comma; the text that is set has none.
    box.setLocale(QLocale(QLocale::German));
    box.setRange(-1000, 1000);
    box.setValue(5);
    CWnd window;
    window.SetHandle(handleOf(&box));
    window.SetWindowTextW(text.toStdWString().c_str());
    QTEST(box.value(), "value");
}

void tst_CWndSpinBoxText::doubleSpinBoxRange()
{
    QDoubleSpinBox box;
    box.setRange(0, 10);
    CWnd window;
    window.SetHandle(handleOf(&box));
    window.SetWindowTextW(L"10.5");
    QCOMPARE(box.value(), 10.0);
    window.SetWindowTextW(L"1.234");
    QCOMPARE(box.value(), 1.23);
}

void tst_CWndSpinBoxText::signalsStayQuiet_data()
{
    QTest::addColumn<bool>("blockedBefore");

    QTest::newRow("not blocked before") << false;
    QTest::newRow("blocked by the application, stays blocked") << true;
}

void tst_CWndSpinBoxText::signalsStayQuiet()
{
    QFETCH(bool, blockedBefore);
    QSpinBox box;
    QDoubleSpinBox doubleBox;
    QSignalSpy changed(&box, QOverload<int>::of(&QSpinBox::valueChanged));
    QSignalSpy textChanged(&box, &QSpinBox::textChanged);
    QSignalSpy doubleChanged(&doubleBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged));
    for (QWidget *widget : {static_cast<QWidget *>(&box), static_cast<QWidget *>(&doubleBox)}) {
        CWnd window;
        window.SetHandle(handleOf(widget));
        widget->blockSignals(blockedBefore);
        window.SetWindowTextW(L"42");
        QCOMPARE(widget->signalsBlocked(), blockedBefore);
        widget->blockSignals(false);
    }
    QCOMPARE(box.value(), 42);
    QCOMPARE(doubleBox.value(), 42.0);
    QCOMPARE(changed.size() + textChanged.size() + doubleChanged.size(), 0);

    box.setValue(1);
    doubleBox.setValue(1);
    QCOMPARE(changed.size() + textChanged.size() + doubleChanged.size(), 3);
}

void tst_CWndSpinBoxText::readingGivesTheShownText()
{
    QSpinBox box;
    box.setPrefix(QStringLiteral("about "));
    box.setSuffix(QStringLiteral(" mm"));
    CWnd window;
    window.SetHandle(handleOf(&box));
    window.SetWindowTextW(L"42");
    CString text;
    window.GetWindowTextW(text);
    QCOMPARE(QString::fromStdWString(text), QStringLiteral("about 42 mm"));
    QCOMPARE(window.GetWindowTextLengthW(), 11);

    // What was read is no number to set.
    window.SetWindowTextW(text);
    QCOMPARE(box.value(), 0);
}

QTEST_MAIN(tst_CWndSpinBoxText)
#include "tst_CWndSpinBoxText.moc"
