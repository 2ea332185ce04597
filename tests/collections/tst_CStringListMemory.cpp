#include "CountedMemory.h"
#include "KxLists.h"

#include <QtTest>

#include <cstdint>

class tst_CStringListMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void handsOutBlockInOrder();
    void reusesLastFreedFirst();
    void emptyListFreesBlocks_data();
    void emptyListFreesBlocks();
    void blockSize_data();
    void blockSize();
    void hugeBlockIsNoMemory();
};

static INT_PTR distance(POSITION from, POSITION to)
{
    return reinterpret_cast<INT_PTR>(to) - reinterpret_cast<INT_PTR>(from);
}

void tst_CStringListMemory::handsOutBlockInOrder()
{
    const INT_PTR nodeBytes = INT_PTR(2 * sizeof(void *) + sizeof(CString));
    CStringList list(3);
    const POSITION first = list.AddTail(L"a");
    const POSITION second = list.AddHead(L"b");
    const POSITION third = list.AddTail(L"c");
    QCOMPARE(distance(first, second), nodeBytes);
    QCOMPARE(distance(second, third), nodeBytes);
    const POSITION fourth = list.AddTail(L"d");
    const POSITION fifth = list.AddTail(L"e");
    QCOMPARE(distance(fourth, fifth), nodeBytes);
}

void tst_CStringListMemory::reusesLastFreedFirst()
{
    CStringList list(4);
    const POSITION a = list.AddTail(L"a");
    const POSITION b = list.AddTail(L"b");
    list.AddTail(L"c");
    list.RemoveAt(a);
    list.RemoveAt(b);
    QCOMPARE(list.AddTail(L"d"), b);
    QCOMPARE(list.AddHead(L"e"), a);
    QCOMPARE(list.GetHeadPosition(), a);
    QCOMPARE(list.GetTailPosition(), b);
}

void tst_CStringListMemory::emptyListFreesBlocks_data()
{
    QTest::addColumn<int>("way");

    QTest::newRow("RemoveHead") << 0;
    QTest::newRow("RemoveTail") << 1;
    QTest::newRow("RemoveAt") << 2;
    QTest::newRow("RemoveAll") << 3;
}

static void removeIn(int way, CStringList &list)
{
    switch (way) {
    case 0:
        list.RemoveHead();
        return;
    case 1:
        list.RemoveTail();
        return;
    case 2:
        list.RemoveAt(list.GetHeadPosition());
        return;
    default:
        list.RemoveAll();
        return;
    }
}

void tst_CStringListMemory::emptyListFreesBlocks()
{
    QFETCH(int, way);
    CStringList list(2);
    const long before = liveAllocations;
    for (int i = 0; i < 5; ++i)
        list.AddTail(L"x");
    const long full = liveAllocations;
    while (!list.IsEmpty())
        removeIn(way, list);
    const long empty = liveAllocations;
    list.AddTail(L"y");
    const long again = liveAllocations;
    QCOMPARE(full, before + 3);
    QCOMPARE(empty, before);
    QCOMPARE(again, before + 1);
}

void tst_CStringListMemory::blockSize_data()
{
    QTest::addColumn<qint64>("given");
    QTest::addColumn<quint64>("nodes");

    QTest::newRow("one") << qint64(1) << quint64(1);
    QTest::newRow("some") << qint64(25) << quint64(25);
    QTest::newRow("none counts as the usual") << qint64(0) << quint64(10);
    QTest::newRow("negative counts as the usual") << qint64(-5) << quint64(10);
}

void tst_CStringListMemory::blockSize()
{
    QFETCH(qint64, given);
    QFETCH(quint64, nodes);
    CStringList list(static_cast<INT_PTR>(given));
    list.AddTail(L"a");
    const std::size_t bytes = lastAllocatedBytes;
    QCOMPARE(quint64(bytes), 8 + nodes * 48);

    CStringList usual;
    usual.AddTail(L"a");
    const std::size_t usualBytes = lastAllocatedBytes;
    QCOMPARE(usualBytes, std::size_t(8 + 10 * 48));
}

void tst_CStringListMemory::hugeBlockIsNoMemory()
{
    CStringList list(INTPTR_MAX);
    QVERIFY_EXCEPTION_THROWN(list.AddTail(L"a"), std::bad_alloc);
    QVERIFY(list.IsEmpty());
    QVERIFY(!list.GetHeadPosition());
}

QTEST_MAIN(tst_CStringListMemory)
#include "tst_CStringListMemory.moc"
