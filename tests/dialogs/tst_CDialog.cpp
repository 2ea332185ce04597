#include "RecordedDialog.h"

#include "HiddenAddress.h"
#include "KxWindowPrivate.h"

#include <QApplication>
#include <QPointer>
#include <QTest>

/// Private data that counts its deletions.
struct CountedPrivate : CDialogPrivate
{
    explicit CountedPrivate(int &deleted)
        : m_deleted(deleted)
    {
    }
    ~CountedPrivate() override { ++m_deleted; }

    int &m_deleted;
};

class PrivateDialog : public CDialog
{
public:
    PrivateDialog(CDialogPrivate &d, CWnd *pParent)
        : CDialog(d, pParent)
    {
    }
};

using DialogMaker = std::function<CDialog *(CWnd *)>;
Q_DECLARE_METATYPE(DialogMaker)

class tst_CDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void constructors_data();
    void constructors();
    void protectedConstructor();
    void onInitDialog();
    void create_data();
    void create();
    void createIgnoresTheInitResult();
    void endDialog_data();
    void endDialog();
    void endDialogUnbound();
    void onOK_data();
    void onOK();
    void onCancel();
    void endsWithoutQDialog();
    void nullObject();
    void fixedResults();
    void destructorKeepsTheWidget();
    void destructorDeletesTheWidget();
    void windowDestroyedFirst();
};

void tst_CDialog::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_CDialog::constructors_data()
{
    QTest::addColumn<DialogMaker>("maker");
    QTest::addColumn<bool>("withParent");

    QTest::newRow("default") << DialogMaker([](CWnd *) { return new CDialog; }) << false;
    QTest::newRow("template ID") << DialogMaker([](CWnd *parent) { return new CDialog(129u, parent); })
                                 << true;
    QTest::newRow("template ID alone") << DialogMaker([](CWnd *) { return new CDialog(129u); }) << false;
    QTest::newRow("template name") << DialogMaker([](CWnd *parent) { return new CDialog(L"NAME", parent); })
                                   << true;
    QTest::newRow("null template name") << DialogMaker([](CWnd *parent) {
        return new CDialog(static_cast<const wchar_t *>(nullptr), parent);
    }) << true;
    QTest::newRow("CKdUiDialog") << DialogMaker([](CWnd *parent) { return new CKdUiDialog(129, parent); })
                                 << true;
    QTest::newRow("CKcUiDialog") << DialogMaker([](CWnd *parent) { return new CKcUiDialog(129, parent); })
                                 << true;
}

void tst_CDialog::constructors()
{
    QFETCH(DialogMaker, maker);
    QFETCH(bool, withParent);

    CWnd parent;
    QDialog window;
    const QScopedPointer<CDialog> dialog(maker(&parent));
    QCOMPARE(dialog->m_nModalResult, -100);
    QCOMPARE(dialog->m_hWnd, HWND());
    auto *privateData = dynamic_cast<CDialogPrivate *>(CWndPrivate::of(dialog.data()));
    QVERIFY(privateData);
    QCOMPARE(privateData->m_nReserved, 1);
    QCOMPARE(privateData->q_ptr, static_cast<CWnd *>(dialog.data()));

    dialog->Attach(handleOf(&window));
    QCOMPARE(dialog->GetParent(), withParent ? &parent : nullptr);
    QVERIFY(!window.isVisible());
}

void tst_CDialog::protectedConstructor()
{
    CWnd parent;
    QDialog window;
    int deleted = 0;
    {
        auto *privateData = new CountedPrivate(deleted);
        PrivateDialog dialog(*privateData, &parent);
        QCOMPARE(dialog.m_nModalResult, -100);
        QCOMPARE(CWndPrivate::of(&dialog), privateData);
        QCOMPARE(privateData->q_ptr, static_cast<CWnd *>(&dialog));
        dialog.Attach(handleOf(&window));
        QCOMPARE(dialog.GetParent(), &parent);
        QCOMPARE(deleted, 0);
    }
    QCOMPARE(deleted, 1);
}

void tst_CDialog::onInitDialog()
{
    RecordedDialog dialog;
    QCOMPARE(dialog.CDialog::OnInitDialog(), TRUE);
    QCOMPARE(dialog.m_log, QStringList{QStringLiteral("load")});
    dialog.m_fail = true;
    QCOMPARE(dialog.CDialog::OnInitDialog(), TRUE);
}

void tst_CDialog::create_data()
{
    QTest::addColumn<bool>("byName");
    QTest::addColumn<bool>("bound");

    QTest::newRow("by name, bound") << true << true;
    QTest::newRow("by name, unbound") << true << false;
    QTest::newRow("by ID, bound") << false << true;
    QTest::newRow("by ID, unbound") << false << false;
}

void tst_CDialog::create()
{
    QFETCH(bool, byName);
    QFETCH(bool, bound);

    CWnd parent;
    QWidget window;
    RecordedDialog dialog;
    if (bound)
        dialog.Attach(handleOf(&window));
    QCOMPARE(byName ? dialog.Create(L"NAME", &parent) : dialog.Create(129u, &parent), BOOL(bound));
    const QStringList initialised{QStringLiteral("init -100"), QStringLiteral("load")};
    QCOMPARE(dialog.m_log, bound ? initialised : QStringList());
    QCOMPARE(dialog.GetParent(), bound ? &parent : nullptr);
    QVERIFY(!window.isVisible());
    if (byName)
        dialog.Create(L"NAME");
    else
        dialog.Create(129u);
    QCOMPARE(dialog.GetParent(), nullptr);
}

void tst_CDialog::createIgnoresTheInitResult()
{
    class Refusing : public CDialog
    {
        BOOL OnInitDialog() override { return FALSE; }
    };
    QDialog window;
    Refusing dialog;
    dialog.Attach(handleOf(&window));
    QCOMPARE(dialog.Create(129u), TRUE);
}

void tst_CDialog::endDialog_data()
{
    QTest::addColumn<int>("code");

    QTest::newRow("0") << 0;
    QTest::newRow("IDOK") << 1;
    QTest::newRow("IDCANCEL") << 2;
    QTest::newRow("-100") << -100;
}

void tst_CDialog::endDialog()
{
    QFETCH(int, code);

    RecordedDialog dialog;
    RecordedWindow<QDialog> window(dialog.m_log);
    dialog.Attach(handleOf(&window));
    int codeWhenAccepted = 0;
    connect(&window, &QDialog::accepted, this, [&] { codeWhenAccepted = dialog.m_nModalResult; });
    dialog.m_nModalResult = 55;
    dialog.EndDialog(code);
    // Accepted whatever the code is, and the code is there before.
    QCOMPARE(dialog.m_log, QStringList{QStringLiteral("accept")});
    QCOMPARE(codeWhenAccepted, code);
    QCOMPARE(window.result(), int(QDialog::Accepted));
}

void tst_CDialog::endDialogUnbound()
{
    RecordedDialog dialog;
    dialog.EndDialog(7);
    dialog.OnCancel();
    QCOMPARE(dialog.m_nModalResult, -100);
    dialog.OnOK();
    QCOMPARE(dialog.m_nModalResult, -100);
    QCOMPARE(dialog.m_log, QStringList{QStringLiteral("save")});
}

void tst_CDialog::onOK_data()
{
    QTest::addColumn<bool>("fail");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<int>("code");

    QTest::newRow("valid") << false << QStringList{QStringLiteral("save"), QStringLiteral("accept")} << 1;
    QTest::newRow("not valid") << true << QStringList{QStringLiteral("save")} << -100;
}

void tst_CDialog::onOK()
{
    QFETCH(bool, fail);
    QFETCH(QStringList, log);
    QFETCH(int, code);

    RecordedDialog dialog;
    RecordedWindow<QDialog> window(dialog.m_log);
    dialog.Attach(handleOf(&window));
    dialog.m_fail = fail;
    dialog.OnOK();
    QCOMPARE(dialog.m_log, log);
    QCOMPARE(dialog.m_nModalResult, code);
}

void tst_CDialog::onCancel()
{
    RecordedDialog dialog;
    RecordedWindow<QDialog> window(dialog.m_log);
    dialog.Attach(handleOf(&window));
    dialog.m_nModalResult = 55;
    dialog.OnCancel();
    QCOMPARE(dialog.m_log, QStringList{QStringLiteral("reject")});
    QCOMPARE(dialog.m_nModalResult, 55);
}

void tst_CDialog::endsWithoutQDialog()
{
    QWidget window;
    RecordedDialog dialog;
    dialog.Attach(handleOf(&window));
    dialog.EndDialog(7);
    dialog.OnCancel();
    dialog.OnOK();
    QCOMPARE(dialog.m_nModalResult, -100);
    QCOMPARE(dialog.m_log, QStringList{QStringLiteral("save")});
}

void tst_CDialog::nullObject()
{
    auto *null = objectAt<CDialog>(0);
    QCOMPARE(null->CDialog::Create(129u), 0);
    QCOMPARE(null->CDialog::Create(L"NAME"), 0);
    QCOMPARE(null->CDialog::DoModal(), INT_PTR(0));
    null->CDialog::OnOK();
    null->CDialog::OnCancel();
    null->EndDialog(7);
    // A member address that was computed from null counts as null, and is the result.
    auto *nearNull = objectAt<CDialog>(4088);
    QCOMPARE(nearNull->CDialog::Create(129u), 4088);
    QCOMPARE(nearNull->CDialog::DoModal(), INT_PTR(4088));
    nearNull->EndDialog(7);
}

void tst_CDialog::fixedResults()
{
    CKcUiDialog dialog(129);
    LRESULT result = 5;
    QCOMPARE(dialog.OnNotify(1, 2, &result), TRUE);
    QCOMPARE(result, LRESULT(5));
    RECT rect{1, 2, 3, 4};
    dialog.OnHScroll(0, 5, nullptr);
    dialog.GotoDlgCtrl(nullptr);
    dialog.OnHelpInfo(nullptr);
    dialog.BeginEditorCommand();
    dialog.CompleteEditorCommand();
    dialog.SetDialogName(nullptr);
    dialog.OnSize(0, 10, 10);
    dialog.OnSizing(0, &rect);
    QCOMPARE(rect.right, 3);
    QCOMPARE(dialog.m_nModalResult, -100);
}

void tst_CDialog::destructorKeepsTheWidget()
{
    QPointer<QDialog> window = new QDialog;
    {
        CDialog dialog;
        dialog.Attach(handleOf(window));
        QCOMPARE(CWnd::FromHandle(handleOf(window)), static_cast<CWnd *>(&dialog));
    }
    QVERIFY(window);
    QCOMPARE(CWnd::FromHandle(handleOf(window)), nullptr);
    delete window;
}

void tst_CDialog::destructorDeletesTheWidget()
{
    const QPointer<QDialog> window = new QDialog;
    {
        CDialog dialog;
        dialog.Attach(handleOf(window));
        dialog.SetAutoDelete(true, true);
    }
    QVERIFY(!window);
}

void tst_CDialog::windowDestroyedFirst()
{
    auto *window = new QDialog;
    RecordedDialog dialog;
    dialog.Attach(handleOf(window));
    dialog.SetAutoDelete(true, true);
    delete window;
    QCOMPARE(dialog.DoModal(), INT_PTR(0));
    QCOMPARE(dialog.Create(129u), FALSE);
    dialog.EndDialog(7);
    dialog.OnCancel();
    QCOMPARE(dialog.m_nModalResult, -100);
    QVERIFY(dialog.m_log.isEmpty());
}

QTEST_MAIN(tst_CDialog)
#include "tst_CDialog.moc"
