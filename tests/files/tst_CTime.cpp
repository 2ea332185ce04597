#include "KxFiles.h"

#include <QtTest>

#include <climits>
#include <ctime>

class tst_CTime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { useZone("UTC0"); }
    void withoutAValueIsTheEpoch();
    void keepsSeconds_data();
    void keepsSeconds();
    void localTime_data();
    void localTime();
    void outOfRange_data();
    void outOfRange();
    void comparison_data();
    void comparison();

private:
    static void useZone(const char *zone);
};

void tst_CTime::useZone(const char *zone)
{
    qputenv("TZ", zone);
    tzset();
}

void tst_CTime::withoutAValueIsTheEpoch()
{
    QCOMPARE(CTime().GetTime(), std::time_t{0});
}

void tst_CTime::keepsSeconds_data()
{
    QTest::addColumn<qint64>("seconds");

    QTest::newRow("zero") << qint64{0};
    QTest::newRow("before the epoch") << qint64{-1};
    QTest::newRow("past 32 bits") << qint64{0x100000000};
    QTest::newRow("largest") << qint64{LLONG_MAX};
}

void tst_CTime::keepsSeconds()
{
    QFETCH(qint64, seconds);
    const CTime time = std::time_t{seconds};
    QCOMPARE(qint64{time.GetTime()}, seconds);
}

void tst_CTime::localTime_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QVector<int>>("values");
    QTest::addColumn<int>("dst");
    QTest::addColumn<qint64>("seconds");
    const QByteArray berlin = "CET-1CEST,M3.5.0,M10.5.0/3";

    QTest::newRow("epoch") << QByteArray("UTC0") << QVector<int>{1970, 1, 1, 0, 0, 0} << -1 << qint64{0};
    QTest::newRow("each value counts")
        << QByteArray("UTC0") << QVector<int>{2001, 2, 3, 4, 5, 6} << -1 << qint64{981173106};
    QTest::newRow("before the epoch")
        << QByteArray("UTC0") << QVector<int>{1969, 12, 31, 0, 0, 0} << -1 << qint64{-86400};
    QTest::newRow("past 2038") << QByteArray("UTC0") << QVector<int>{2040, 1, 1, 0, 0, 0} << -1
                               << qint64{2208988800};
    QTest::newRow("days are carried over")
        << QByteArray("UTC0") << QVector<int>{1970, 1, 32, 0, 0, 0} << -1 << qint64{2678400};
    QTest::newRow("zone in winter") << berlin << QVector<int>{2020, 1, 1, 1, 0, 0} << -1
                                    << qint64{1577836800};
    QTest::newRow("zone in summer") << berlin << QVector<int>{2020, 7, 1, 2, 0, 0} << -1
                                    << qint64{1593561600};
    QTest::newRow("summer given as winter time")
        << berlin << QVector<int>{2020, 7, 1, 2, 0, 0} << 0 << qint64{1593565200};
    QTest::newRow("winter given as summer time")
        << berlin << QVector<int>{2020, 1, 1, 1, 0, 0} << 1 << qint64{1577833200};
}

void tst_CTime::localTime()
{
    QFETCH(QByteArray, zone);
    QFETCH(QVector<int>, values);
    QFETCH(int, dst);
    useZone(zone);
    const CTime time(values[0], values[1], values[2], values[3], values[4], values[5], dst);
    QTEST(qint64{time.GetTime()}, "seconds");
}

void tst_CTime::outOfRange_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("month");

    QTest::newRow("lowest year") << INT_MIN << 1;
    QTest::newRow("last year without a tm_year") << INT_MIN + 1899 << 1;
    QTest::newRow("lowest month") << 2000 << INT_MIN;
}

void tst_CTime::outOfRange()
{
    QFETCH(int, year);
    QFETCH(int, month);
    QCOMPARE(qint64{CTime(year, month, 1, 0, 0, 0).GetTime()}, qint64{-1});
}

void tst_CTime::comparison_data()
{
    QTest::addColumn<qint64>("first");
    QTest::addColumn<qint64>("second");

    QTest::newRow("equal") << qint64{5} << qint64{5};
    QTest::newRow("earlier") << qint64{4} << qint64{5};
    QTest::newRow("later") << qint64{5} << qint64{4};
    QTest::newRow("before the epoch") << qint64{-5} << qint64{4};
    QTest::newRow("beyond 32 bits") << qint64{1} << (qint64{1} << 40);
}

void tst_CTime::comparison()
{
    QFETCH(qint64, first);
    QFETCH(qint64, second);
    const CTime time(first);
    const CTime other(second);
    QCOMPARE(time == other, first == second);
    QCOMPARE(time != other, first != second);
    QCOMPARE(time < other, first < second);
    QCOMPARE(time > other, first > second);
    QCOMPARE(time <= other, first <= second);
    QCOMPARE(time >= other, first >= second);
}

QTEST_GUILESS_MAIN(tst_CTime)
#include "tst_CTime.moc"
