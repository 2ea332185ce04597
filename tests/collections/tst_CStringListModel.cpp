#include "ListModel.h"

#include <QtTest>

#include <random>

class tst_CStringListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithPlainList_data();
    void agreesWithPlainList();
};

void tst_CStringListModel::agreesWithPlainList_data()
{
    QTest::addColumn<uint>("blockSize");

    QTest::newRow("one node per block") << 1u;
    QTest::newRow("three nodes per block") << 3u;
    QTest::newRow("usual blocks") << 10u;
    QTest::newRow("everything in one block") << 1000u;
}

void tst_CStringListModel::agreesWithPlainList()
{
    QFETCH(uint, blockSize);
    std::mt19937 random(20240229);
    ListModel model(blockSize);
    for (int i = 0; i < 20000; ++i) {
        const unsigned operation = unsigned(random());
        const unsigned place = unsigned(random());
        const char *fault = model.step(operation, place, unsigned(random()));
        QVERIFY2(!fault, qPrintable(QStringLiteral("step %1: %2").arg(i).arg(QLatin1String(fault))));
    }
}

QTEST_MAIN(tst_CStringListModel)
#include "tst_CStringListModel.moc"
