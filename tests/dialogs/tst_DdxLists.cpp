#include "ExchangeForm.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>

#include <climits>

static constexpr int controlID = ExchangeForm::controlID;

static const QStringList threeItems{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")};

class tst_DdxLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void comboStringSave_data();
    void comboStringSave();
    void comboStringLoad_data();
    void comboStringLoad();
    void comboIndexSave_data();
    void comboIndexSave();
    void indexLoad_data();
    void comboIndexLoad_data() { indexLoad_data(); }
    void comboIndexLoad();
    void comboTellsTheApplication();

    void listIndexSave_data();
    void listIndexSave();
    void listIndexLoad_data() { indexLoad_data(); }
    void listIndexLoad();
    void listTellsTheApplication();
    void listStringDoesNothing_data();
    void listStringDoesNothing();
};

void tst_DdxLists::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_DdxLists::comboStringSave_data()
{
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QString>("result");

    QTest::newRow("current item") << false << QStringLiteral("two");
    QTest::newRow("edit text") << true << QStringLiteral("typed");
}

void tst_DdxLists::comboStringSave()
{
    QFETCH(bool, editable);
    QFETCH(QString, result);

    ExchangeForm form;
    auto *combo = form.add<QComboBox>();
    combo->addItems(threeItems);
    combo->setCurrentIndex(1);
    combo->setEditable(editable);
    combo->setEditText(QStringLiteral("typed"));
    CString member = L"before";
    form.save([&](CDataExchange *pDX) { DDX_CBString(pDX, controlID, member); });
    QVERIFY(member == CString(result.toStdWString()));

    combo->clear();
    form.save([&](CDataExchange *pDX) { DDX_CBString(pDX, controlID, member); });
    QVERIFY(member.IsEmpty());
}

void tst_DdxLists::comboStringLoad_data()
{
    QTest::addColumn<bool>("editable");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("index");

    const QString one = QStringLiteral("one");
    QTest::newRow("matching item") << false << QStringLiteral("three") << QStringLiteral("three") << 2;
    QTest::newRow("no match") << false << QStringLiteral("other") << one << 0;
    QTest::newRow("other case is no match") << false << QStringLiteral("Three") << one << 0;
    QTest::newRow("empty") << false << QString() << one << 0;
    QTest::newRow("editable sets the edit text")
        << true << QStringLiteral("other") << QStringLiteral("other") << 0;
    QTest::newRow("editable and matching") << true << QStringLiteral("three") << QStringLiteral("three") << 0;
    QTest::newRow("editable and empty") << true << QString() << QString() << 0;
}

void tst_DdxLists::comboStringLoad()
{
    QFETCH(bool, editable);
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QFETCH(int, index);

    ExchangeForm form;
    auto *combo = form.add<QComboBox>();
    combo->addItems(threeItems);
    combo->setEditable(editable);
    CString member = text.toStdWString();
    form.load([&](CDataExchange *pDX) { DDX_CBString(pDX, controlID, member); });
    QCOMPARE(combo->currentText(), shown);
    QCOMPARE(combo->currentIndex(), index);
    QCOMPARE(combo->count(), 3);
}

void tst_DdxLists::comboIndexSave_data()
{
    QTest::addColumn<int>("current");

    QTest::newRow("none") << -1;
    QTest::newRow("first") << 0;
    QTest::newRow("last") << 2;
}

void tst_DdxLists::comboIndexSave()
{
    QFETCH(int, current);

    ExchangeForm form;
    auto *combo = form.add<QComboBox>();
    combo->addItems(threeItems);
    combo->setCurrentIndex(current);
    int index = 77;
    form.save([&](CDataExchange *pDX) { DDX_CBIndex(pDX, controlID, index); });
    QCOMPARE(index, current);
}

void tst_DdxLists::indexLoad_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("memberAfter");
    QTest::addColumn<int>("currentAfter");

    QTest::newRow("first") << 3 << 0 << 0 << 0;
    QTest::newRow("last") << 3 << 2 << 2 << 2;
    QTest::newRow("one past the last") << 3 << 3 << 0 << 0;
    QTest::newRow("far past the last") << 3 << 5 << 0 << 0;
    QTest::newRow("maximum") << 3 << INT_MAX << 0 << 0;
    QTest::newRow("negative") << 3 << -1 << 0 << 0;
    QTest::newRow("minimum") << 3 << INT_MIN << 0 << 0;
    QTest::newRow("empty, zero") << 0 << 0 << 0 << -1;
    QTest::newRow("empty, negative") << 0 << -1 << 0 << -1;
    QTest::newRow("empty, past the end") << 0 << 1 << 0 << -1;
}

void tst_DdxLists::comboIndexLoad()
{
    QFETCH(int, count);
    QFETCH(int, index);
    QFETCH(int, memberAfter);
    QFETCH(int, currentAfter);

    ExchangeForm form;
    auto *combo = form.add<QComboBox>();
    combo->addItems(threeItems.mid(0, count));
    combo->setCurrentIndex(1);
    form.load([&](CDataExchange *pDX) { DDX_CBIndex(pDX, controlID, index); });
    QCOMPARE(index, memberAfter);
    QCOMPARE(combo->currentIndex(), currentAfter);
}

void tst_DdxLists::comboTellsTheApplication()
{
    ExchangeForm form;
    auto *combo = form.add<QComboBox>();
    combo->addItems(threeItems);
    const QSignalSpy changes(combo, qOverload<int>(&QComboBox::currentIndexChanged));
    int index = 1;
    form.load([&](CDataExchange *pDX) { DDX_CBIndex(pDX, controlID, index); });
    QCOMPARE(changes.size(), 1);
    CString text = L"three";
    form.load([&](CDataExchange *pDX) { DDX_CBString(pDX, controlID, text); });
    QCOMPARE(changes.size(), 2);
}

void tst_DdxLists::listIndexSave_data()
{
    comboIndexSave_data();
}

void tst_DdxLists::listIndexSave()
{
    QFETCH(int, current);

    ExchangeForm form;
    auto *list = form.add<QListWidget>();
    list->addItems(threeItems);
    list->setCurrentRow(current);
    int index = 77;
    form.save([&](CDataExchange *pDX) { DDX_LBIndex(pDX, controlID, index); });
    QCOMPARE(index, current);
}

void tst_DdxLists::listIndexLoad()
{
    QFETCH(int, count);
    QFETCH(int, index);
    QFETCH(int, memberAfter);
    QFETCH(int, currentAfter);

    ExchangeForm form;
    auto *list = form.add<QListWidget>();
    list->addItems(threeItems.mid(0, count));
    list->setCurrentRow(1);
    form.load([&](CDataExchange *pDX) { DDX_LBIndex(pDX, controlID, index); });
    QCOMPARE(index, memberAfter);
    QCOMPARE(list->currentRow(), currentAfter);
}

void tst_DdxLists::listTellsTheApplication()
{
    ExchangeForm form;
    auto *list = form.add<QListWidget>();
    list->addItems(threeItems);
    const QSignalSpy changes(list, &QListWidget::currentRowChanged);
    int index = 1;
    form.load([&](CDataExchange *pDX) { DDX_LBIndex(pDX, controlID, index); });
    QCOMPARE(changes.size(), 1);
}

void tst_DdxLists::listStringDoesNothing_data()
{
    QTest::addColumn<bool>("save");

    QTest::newRow("save") << true;
    QTest::newRow("load") << false;
}

void tst_DdxLists::listStringDoesNothing()
{
    QFETCH(bool, save);

    ExchangeForm form;
    auto *list = form.add<QListWidget>();
    list->addItems(threeItems);
    list->setCurrentRow(1);
    CString member = L"three";
    CDataExchange exchange(&form, save);
    DDX_LBString(&exchange, controlID, member);
    DDX_LBString(nullptr, controlID, member);
    QVERIFY(member == CString(L"three"));
    QCOMPARE(list->currentRow(), 1);
    QCOMPARE(list->count(), 3);
    QVERIFY(!exchange.m_bFail);
    // Looked up all the same.
    QVERIFY(CWnd::FromHandle(reinterpret_cast<HWND>(static_cast<QWidget *>(list))));
}

QTEST_MAIN(tst_DdxLists)
#include "tst_DdxLists.moc"
