#include "HiddenAddress.h"
#include "KxApplication.h"
#include "KxWindows.h"
#include "OpenBox.h"
#include "WindowHandle.h"

#include <QtTest>
#include <QtWidgets>

/// The forms of the message box that reach it through an owner, a window object, or the application.
class tst_MessageBoxForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void ownerIsIgnored();
    void memberOfWindow();
    void memberOfNullWindow();
    void afxMessageBox();
    void afxMessageBoxDefaults();
    void afxMessageBoxOfResource_data();
    void afxMessageBoxOfResource();
    void boxFromBox();
};

void tst_MessageBoxForms::ownerIsIgnored()
{
    QWidget owner;
    owner.show();
    QVERIFY(QTest::qWaitForWindowExposed(&owner));

    for (HWND handle : {handleOf(&owner), HWND{nullptr}, reinterpret_cast<HWND>(std::uintptr_t{0x1000})}) {
        Seen seen;
        const ModalDriver driver(lookAndLeave(seen));
        QCOMPARE(MessageBoxW(handle, L"text", nullptr, 0x34), IDNO);
        QCOMPARE(seen.text, QStringLiteral("text"));
        QCOMPARE(seen.title, QStringLiteral("Velmo."));
        QCOMPARE(seen.buttons, yesNo);
        QCOMPARE(seen.icon, QMessageBox::Warning);
        QVERIFY(!seen.parent);
    }
}

void tst_MessageBoxForms::memberOfWindow()
{
    QWidget widget;
    CWnd window;
    for (int round = 0; round < 2; ++round) {
        Seen seen;
        const ModalDriver driver(lookAndLeave(seen));
        QCOMPARE(window.MessageBoxW(L"text", L"caption", 0x21), IDCANCEL);
        QCOMPARE(seen.text, QStringLiteral("text"));
        QCOMPARE(seen.title, QStringLiteral("caption"));
        QCOMPARE(seen.buttons, okCancel);
        QCOMPARE(seen.icon, QMessageBox::Question);
        QVERIFY(!seen.parent);
        // First unbound, then bound.
        window.SetHandle(handleOf(&widget));
    }
}

void tst_MessageBoxForms::memberOfNullWindow()
{
    bool shown = false;
    QTimer watch;
    connect(&watch, &QTimer::timeout, [&shown] {
        shown = true;
        QApplication::closeAllWindows();
    });
    watch.start(0);
    for (std::uintptr_t address : {0, 8, 4088})
        QCOMPARE(objectAt<CWnd>(address)->CWnd::MessageBoxW(L"text", L"caption", MB_OK), int(address));
    QVERIFY(!shown);
}

void tst_MessageBoxForms::afxMessageBox()
{
    Seen seen;
    const ModalDriver driver([&seen](QWidget *box) {
        seen = look(box);
        ModalDriver::click(QStringLiteral("&Yes"))(box);
    });
    QCOMPARE(AfxMessageBox(L"text", MB_YESNO | MB_ICONERROR, 99), IDYES);
    QCOMPARE(seen.text, QStringLiteral("text"));
    QCOMPARE(seen.title, QStringLiteral("Velmo."));
    QCOMPARE(seen.buttons, yesNo);
    QCOMPARE(seen.icon, QMessageBox::Critical);
    QVERIFY(!seen.parent);
}

void tst_MessageBoxForms::afxMessageBoxDefaults()
{
    Seen seen;
    const ModalDriver driver(lookAndLeave(seen));
    QCOMPARE(AfxMessageBox(L"text"), IDOK);
    QCOMPARE(seen.buttons, okOnly);
    QCOMPARE(seen.icon, QMessageBox::NoIcon);
}

void tst_MessageBoxForms::afxMessageBoxOfResource_data()
{
    QTest::addColumn<UINT>("type");

    QTest::newRow("OK") << MB_OK;
    QTest::newRow("Yes, No is dropped") << MB_YESNO;
    QTest::newRow("question is dropped") << MB_ICONQUESTION;
    QTest::newRow("warning with OK, Cancel is dropped") << (MB_OKCANCEL | MB_ICONWARNING);
}

// The program has no string resources, so that the text is empty.
void tst_MessageBoxForms::afxMessageBoxOfResource()
{
    QFETCH(UINT, type);

    Seen seen;
    const ModalDriver driver([&seen](QWidget *box) {
        seen = look(box);
        ModalDriver::click(QStringLiteral("&OK"))(box);
    });
    QCOMPARE(AfxMessageBox(UINT{1001}, type, 0), IDOK);
    QCOMPARE(seen.text, QString());
    QCOMPARE(seen.title, QStringLiteral("Velmo."));
    QCOMPARE(seen.buttons, okOnly);
    QCOMPARE(seen.icon, QMessageBox::NoIcon);
}

void tst_MessageBoxForms::boxFromBox()
{
    int inner = 0;
    const ModalDriver outerDriver([&inner](QWidget *box) {
        const ModalDriver innerDriver(ModalDriver::click(QStringLiteral("&No")));
        inner = MessageBoxW(L"sure?", nullptr, MB_YESNO);
        ModalDriver::click(QStringLiteral("&Cancel"))(box);
    });
    QCOMPARE(MessageBoxW(L"save?", nullptr, MB_OKCANCEL), IDCANCEL);
    QCOMPARE(inner, IDNO);
}

QTEST_MAIN(tst_MessageBoxForms)
#include "tst_MessageBoxForms.moc"
