#include <KxApplication.h>
#include <KxDialogs.h>

#include "ModalDriver.h"
#include "SilentOffscreen.h"
#include "WindowHandle.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>

#include <climits>

/// A dialog that records how its runs ended and which of its virtuals were called.
class RecordedBase : public QBaseDialog
{
public:
    using QBaseDialog::QBaseDialog;

    void OnCancel() override
    {
        ++m_cancels;
        if (!m_staysOpen)
            QBaseDialog::OnCancel();
    }
    void accept() override
    {
        ++m_accepts;
        if (m_inAccept)
            std::exchange(m_inAccept, nullptr)();
        if (!m_staysOpen)
            QBaseDialog::accept();
    }
    void reject() override
    {
        ++m_rejects;
        QBaseDialog::reject();
    }
    void execCallBack(int nID) override
    {
        QVERIFY(!isVisible());
        m_callBacks << nID;
        // A copy: the call may delete this dialog.
        if (const auto inCallBack = m_inCallBack)
            inCallBack();
    }

    using QBaseDialog::keyPressEvent;

    QVector<int> m_callBacks;
    int m_cancels = 0;
    int m_accepts = 0;
    int m_rejects = 0;
    bool m_staysOpen = false;
    std::function<void()> m_inCallBack;
    std::function<void()> m_inAccept;
};

using End = std::function<void(RecordedBase &)>;
Q_DECLARE_METATYPE(End)

/// Runs the dialog and ends it with its first event.
static int runAndEnd(RecordedBase &dialog, const End &end)
{
    QTimer::singleShot(0, &dialog, [&dialog, end] { end(dialog); });
    return dialog.exec();
}

static void escape(RecordedBase &dialog)
{
    QTest::keyClick(&dialog, Qt::Key_Escape);
}

class tst_QBaseDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_silent.reset(new SilentOffscreen); }
    void cleanupTestCase() { m_silent.reset(); }
    void cleanup();

    void keyGoesToOnCancel_data();
    void keyGoesToOnCancel();
    void escapeFromAChild();
    void escapeRefused();
    void enterPressesTheDefaultButton_data();
    void enterPressesTheDefaultButton();
    void centredOnEveryShow_data();
    void centredOnEveryShow();
    void onOKAndOnCancel();
    void runEnds_data();
    void runEnds();
    void endByIdThenEscape();
    void endByIdBeforeTheRunIsForgotten();
    void endByIdStoresAfterAccepting();
    void endByIdInTheCallBackIsForgotten();
    void endByIdOfADialogThatStaysOpen();
    void nestedRuns();
    void deletedWhileRunning();
    void deletedOnClose();
    void deletedInTheCallBack();
    void deletedByItsAccept();

private:
    QScopedPointer<SilentOffscreen> m_silent;
};

void tst_QBaseDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_QBaseDialog::keyGoesToOnCancel_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<int>("cancels");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("Escape") << 0x01000000 << int(Qt::NoModifier) << 1 << true;
    QTest::newRow("Escape with Shift") << int(Qt::Key_Escape) << int(Qt::ShiftModifier) << 1 << true;
    QTest::newRow("letter") << int(Qt::Key_A) << int(Qt::NoModifier) << 0 << false;
    QTest::newRow("Left") << int(Qt::Key_Left) << int(Qt::NoModifier) << 0 << false;
    QTest::newRow("Cancel") << int(Qt::Key_Cancel) << int(Qt::NoModifier) << 0 << false;
}

void tst_QBaseDialog::keyGoesToOnCancel()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(int, cancels);
    QFETCH(bool, accepted);

    RecordedBase dialog;
    QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    dialog.keyPressEvent(&event);
    QCOMPARE(dialog.m_cancels, cancels);
    QCOMPARE(dialog.m_rejects, cancels);
    QCOMPARE(event.isAccepted(), accepted);
}

void tst_QBaseDialog::escapeFromAChild()
{
    RecordedBase dialog;
    QLineEdit edit(&dialog);
    const ModalDriver driver([&](QWidget *) { QTest::keyClick(&edit, Qt::Key_Escape); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(dialog.m_cancels, 1);
}

void tst_QBaseDialog::escapeRefused()
{
    RecordedBase dialog;
    const ModalDriver driver([&](QWidget *) {
        dialog.m_staysOpen = true;
        escape(dialog);
        QVERIFY(dialog.isVisible());
        dialog.m_staysOpen = false;
        escape(dialog);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(dialog.m_cancels, 2);
}

void tst_QBaseDialog::enterPressesTheDefaultButton_data()
{
    QTest::addColumn<int>("key");

    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter of the keypad") << int(Qt::Key_Enter);
}

void tst_QBaseDialog::enterPressesTheDefaultButton()
{
    QFETCH(int, key);

    RecordedBase dialog;
    QPushButton other(&dialog);
    QPushButton button(&dialog);
    button.setDefault(true);
    connect(&button, &QPushButton::clicked, &dialog, [&] { dialog.endById(5); });
    const ModalDriver driver(ModalDriver::type(Qt::Key(key)));
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.m_callBacks, QVector<int>{5});
    QCOMPARE(dialog.m_cancels, 0);
}

void tst_QBaseDialog::centredOnEveryShow_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("even") << QSize(300, 200);
    QTest::newRow("odd") << QSize(301, 201);
    QTest::newRow("even and odd") << QSize(400, 151);
    QTest::newRow("larger than the screen") << QSize(1501, 1300);
}

static QPoint centredPosition(const QSize &size)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const qint64 centreX = (qint64(screen.left()) + screen.right()) / 2;
    const qint64 centreY = (qint64(screen.top()) + screen.bottom()) / 2;
    return {int(centreX) - (size.width() - 1) / 2, int(centreY) - (size.height() - 1) / 2};
}

void tst_QBaseDialog::centredOnEveryShow()
{
    QFETCH(QSize, size);

    QBaseDialog dialog;
    dialog.resize(size);
    dialog.move(3, 4);
    dialog.show();
    QCOMPARE(dialog.pos(), centredPosition(size));

    dialog.hide();
    dialog.resize(size - QSize(21, 10));
    dialog.move(5, 6);
    dialog.show();
    QCOMPARE(dialog.pos(), centredPosition(size - QSize(21, 10)));
}

void tst_QBaseDialog::onOKAndOnCancel()
{
    RecordedBase dialog;
    dialog.OnOK();
    QCOMPARE(dialog.m_accepts, 1);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    dialog.OnCancel();
    QCOMPARE(dialog.m_rejects, 1);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_QBaseDialog::runEnds_data()
{
    QTest::addColumn<End>("end");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("callBack");

    const auto row = [](const char *name, const End &end, int result, int callBack) {
        QTest::newRow(name) << end << result << callBack;
    };
    row(
        "OnOK", [](RecordedBase &dialog) { dialog.OnOK(); }, 1, -1);
    row(
        "OnCancel", [](RecordedBase &dialog) { dialog.OnCancel(); }, 0, -1);
    row("Escape", escape, 0, -1);
    row(
        "closed", [](RecordedBase &dialog) { dialog.close(); }, 0, -1);
    row(
        "done with another code", [](RecordedBase &dialog) { dialog.done(7); }, 7, -1);
    row(
        "endById", [](RecordedBase &dialog) { dialog.endById(42); }, 1, 42);
    row(
        "endById 0", [](RecordedBase &dialog) { dialog.endById(0); }, 1, 0);
    row(
        "endById -1", [](RecordedBase &dialog) { dialog.endById(-1); }, 1, -1);
    row(
        "endById smallest int", [](RecordedBase &dialog) { dialog.endById(INT_MIN); }, 1, INT_MIN);
    row(
        "endById largest int", [](RecordedBase &dialog) { dialog.endById(INT_MAX); }, 1, INT_MAX);
    row(
        "last endById counts",
        [](RecordedBase &dialog) {
            dialog.endById(1);
            dialog.endById(2);
        },
        1, 2);
}

void tst_QBaseDialog::runEnds()
{
    QFETCH(End, end);
    QFETCH(int, result);
    QFETCH(int, callBack);

    RecordedBase dialog;
    const ModalDriver driver([&](QWidget *) { end(dialog); });
    QCOMPARE(dialog.exec(), result);
    QCOMPARE(dialog.m_callBacks, QVector<int>{callBack});
}

void tst_QBaseDialog::endByIdThenEscape()
{
    RecordedBase dialog;
    QCOMPARE(runAndEnd(dialog, [](RecordedBase &base) { base.endById(42); }), int(QDialog::Accepted));
    QCOMPARE(dialog.m_accepts, 1);
    QCOMPARE(runAndEnd(dialog, escape), int(QDialog::Rejected));
    const QVector<int> callBacks{42, -1};
    QCOMPARE(dialog.m_callBacks, callBacks);
}

void tst_QBaseDialog::endByIdBeforeTheRunIsForgotten()
{
    RecordedBase dialog;
    dialog.endById(42);
    QVERIFY(dialog.m_callBacks.isEmpty());
    runAndEnd(dialog, escape);
    QCOMPARE(dialog.m_callBacks, QVector<int>{-1});
}

void tst_QBaseDialog::endByIdStoresAfterAccepting()
{
    RecordedBase dialog;
    dialog.m_inAccept = [&] { dialog.endById(1); };
    runAndEnd(dialog, [](RecordedBase &base) { base.endById(42); });
    QCOMPARE(dialog.m_accepts, 2);
    QCOMPARE(dialog.m_callBacks, QVector<int>{42});
}

void tst_QBaseDialog::endByIdInTheCallBackIsForgotten()
{
    RecordedBase dialog;
    dialog.m_inCallBack = [&] { dialog.endById(9); };
    runAndEnd(dialog, escape);
    dialog.m_inCallBack = nullptr;
    runAndEnd(dialog, escape);
    const QVector<int> callBacks{-1, -1};
    QCOMPARE(dialog.m_callBacks, callBacks);
}

void tst_QBaseDialog::endByIdOfADialogThatStaysOpen()
{
    RecordedBase dialog;
    runAndEnd(dialog, [](RecordedBase &base) {
        base.m_staysOpen = true;
        base.endById(6);
        QVERIFY(base.isVisible());
        base.m_staysOpen = false;
        base.reject();
    });
    // The number stays although accept() was refused.
    QCOMPARE(dialog.m_callBacks, QVector<int>{6});
}

void tst_QBaseDialog::nestedRuns()
{
    RecordedBase outer;
    RecordedBase inner(&outer);
    const ModalDriver outerDriver([&](QWidget *) {
        const ModalDriver innerDriver([&](QWidget *shown) {
            QCOMPARE(shown, &inner);
            inner.endById(1);
        });
        QCOMPARE(inner.exec(), int(QDialog::Accepted));
        QVERIFY(outer.isVisible());
        QVERIFY(outer.m_callBacks.isEmpty());
        escape(outer);
    });
    QCOMPARE(outer.exec(), int(QDialog::Rejected));
    QCOMPARE(inner.m_callBacks, QVector<int>{1});
    QCOMPARE(outer.m_callBacks, QVector<int>{-1});
}

void tst_QBaseDialog::deletedWhileRunning()
{
    auto *dialog = new RecordedBase;
    const ModalDriver driver([](QWidget *window) { delete window; });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
}

void tst_QBaseDialog::deletedOnClose()
{
    const QPointer<RecordedBase> dialog = new RecordedBase;
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QCOMPARE(runAndEnd(*dialog, [](RecordedBase &base) { base.endById(3); }), int(QDialog::Accepted));
    QVERIFY(!dialog);
}

void tst_QBaseDialog::deletedInTheCallBack()
{
    const QPointer<RecordedBase> dialog = new RecordedBase;
    dialog->m_inCallBack = [&] { delete dialog; };
    QCOMPARE(runAndEnd(*dialog, [](RecordedBase &base) { base.endById(3); }), int(QDialog::Accepted));
    QVERIFY(!dialog);
}

void tst_QBaseDialog::deletedByItsAccept()
{
    class SelfDeleting : public QBaseDialog
    {
    public:
        void accept() override { delete this; }
    };
    const QPointer<SelfDeleting> dialog = new SelfDeleting;
    QTimer::singleShot(0, dialog, [&] { dialog->endById(3); });
    QCOMPARE(dialog->exec(), int(QDialog::Rejected));
    QVERIFY(!dialog);
}

QTEST_MAIN(tst_QBaseDialog)
#include "tst_QBaseDialog.moc"
