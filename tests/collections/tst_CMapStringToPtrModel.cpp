#include "MapModel.h"

#include <QtTest>

#include <random>

class tst_CMapStringToPtrModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithPlainBuckets_data();
    void agreesWithPlainBuckets();
};

void tst_CMapStringToPtrModel::agreesWithPlainBuckets_data()
{
    QTest::addColumn<uint>("blockSize");

    QTest::newRow("one association per block") << 1u;
    QTest::newRow("three associations per block") << 3u;
    QTest::newRow("usual blocks") << 10u;
    QTest::newRow("everything in one block") << 1000u;
}

void tst_CMapStringToPtrModel::agreesWithPlainBuckets()
{
    QFETCH(uint, blockSize);
    std::mt19937 random(20240229);
    MapModel model(blockSize);
    for (int i = 0; i < 20000; ++i) {
        const unsigned operation = unsigned(random());
        const unsigned key = unsigned(random());
        const char *fault = model.step(operation, key, unsigned(random()));
        QVERIFY2(!fault, qPrintable(QStringLiteral("step %1: %2").arg(i).arg(QLatin1String(fault))));
    }
}

QTEST_MAIN(tst_CMapStringToPtrModel)
#include "tst_CMapStringToPtrModel.moc"
