#include "CountedMemory.h"
#include "KxLists.h"

#include <QtTest>

#include <array>
#include <cstdint>
#include <cstring>

class tst_CPlex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesNothing_data();
    void refusesNothing();
    void isOneAllocation();
    void newestIsInFront();
    void freesItselfAndOlderOnes();
    void emptyChainFreesNothing();
    void tooLargeIsNoMemory_data();
    void tooLargeIsNoMemory();
    void invalidArgumentReturns();
    void elementsAreConstructedAndDestroyed();
    void elementsAreCopied();
    void countBelowOneDoesNothing_data();
    void countBelowOneDoesNothing();
};

void tst_CPlex::refusesNothing_data()
{
    QTest::addColumn<quint64>("count");
    QTest::addColumn<quint64>("bytes");

    QTest::newRow("no elements") << quint64(0) << quint64(8);
    QTest::newRow("empty elements") << quint64(8) << quint64(0);
    QTest::newRow("neither") << quint64(0) << quint64(0);
}

void tst_CPlex::refusesNothing()
{
    QFETCH(quint64, count);
    QFETCH(quint64, bytes);
    CPlex *head = nullptr;
    CPlex *const first = CPlex::Create(head, 1, 1);
    const long before = liveAllocations;
    CPlex *const refused = CPlex::Create(head, count, bytes);
    const long after = liveAllocations;
    QVERIFY(!refused);
    QCOMPARE(head, first);
    QCOMPARE(after, before);
    head->FreeDataChain();
}

void tst_CPlex::isOneAllocation()
{
    CPlex *head = nullptr;
    const long before = liveAllocations;
    CPlex *const block = CPlex::Create(head, 7, 24);
    const long after = liveAllocations;
    const std::size_t bytes = lastAllocatedBytes;
    QCOMPARE(after - before, 1L);
    QCOMPARE(bytes, sizeof(void *) + 7 * 24);
    QCOMPARE(block->data(), static_cast<void *>(reinterpret_cast<char *>(block) + sizeof(void *)));
    std::memset(block->data(), 0x5a, 7 * 24);
    QCOMPARE(block->pNext, static_cast<CPlex *>(nullptr));
    block->FreeDataChain();
}

void tst_CPlex::newestIsInFront()
{
    CPlex *head = nullptr;
    CPlex *const oldest = CPlex::Create(head, 1, 8);
    QCOMPARE(head, oldest);
    CPlex *const newest = CPlex::Create(head, 2, 8);
    QCOMPARE(head, newest);
    QCOMPARE(newest->pNext, oldest);
    head->FreeDataChain();
}

void tst_CPlex::freesItselfAndOlderOnes()
{
    CPlex *head = nullptr;
    const long before = liveAllocations;
    CPlex::Create(head, 1, 8);
    CPlex *const middle = CPlex::Create(head, 1, 8);
    CPlex *const newest = CPlex::Create(head, 1, 8);
    middle->FreeDataChain();
    const long newestOnly = liveAllocations;
    newest->pNext = nullptr;
    newest->FreeDataChain();
    const long after = liveAllocations;
    QCOMPARE(newestOnly, before + 1);
    QCOMPARE(after, before);
}

void tst_CPlex::emptyChainFreesNothing()
{
    CPlex *volatile none = nullptr;
    CPlex *const chain = none;
    const long before = liveAllocations;
    chain->FreeDataChain();
    const long after = liveAllocations;
    QCOMPARE(after, before);
}

void tst_CPlex::tooLargeIsNoMemory_data()
{
    QTest::addColumn<quint64>("count");
    QTest::addColumn<quint64>("bytes");

    QTest::newRow("product wraps to a small number") << (quint64(1) << 33) << (quint64(1) << 31);
    QTest::newRow("no room for the header") << quint64(SIZE_MAX) << quint64(1);
    QTest::newRow("maximum both") << quint64(SIZE_MAX) << quint64(SIZE_MAX);
}

void tst_CPlex::tooLargeIsNoMemory()
{
    QFETCH(quint64, count);
    QFETCH(quint64, bytes);
    CPlex *head = nullptr;
    QVERIFY_EXCEPTION_THROWN(CPlex::Create(head, count, bytes), std::bad_alloc);
    QVERIFY(!head);
}

void tst_CPlex::invalidArgumentReturns()
{
    bool returned = false;
    AfxThrowInvalidArgException();
    returned = true;
    QVERIFY(returned);
}

// Storage for strings that starts out as anything but empty strings.
struct RawStrings
{
    alignas(CString) std::array<unsigned char, 3 * sizeof(CString)> bytes;

    RawStrings() { bytes.fill(0xa5); }
    CString *first() { return reinterpret_cast<CString *>(bytes.data()); }
};

void tst_CPlex::elementsAreConstructedAndDestroyed()
{
    RawStrings storage;
    CString *const strings = storage.first();
    const long before = liveAllocations;
    ConstructElement(strings);
    _ConstructElements(strings + 1, 2);
    bool empty = true;
    for (int i = 0; i < 3; ++i)
        empty = empty && strings[i].IsEmpty();
    for (int i = 0; i < 3; ++i)
        strings[i] = L"long enough to be allocated";
    const long filled = liveAllocations;
    DestructElement(strings);
    const long oneDestroyed = liveAllocations;
    _DestructElements(strings + 1, 2);
    const long after = liveAllocations;

    QVERIFY(empty);
    QCOMPARE(filled, before + 3);
    QCOMPARE(oneDestroyed, before + 2);
    QCOMPARE(after, before);
}

void tst_CPlex::elementsAreCopied()
{
    const CString source[] = {L"first", L"", L"third"};
    CString target[] = {L"", L"two", L"three", L"four"};
    _CopyElements(target, source, 3);
    QVERIFY(target[0] == L"first");
    QVERIFY(target[1].IsEmpty());
    QVERIFY(target[2] == L"third");
    QVERIFY(target[3] == L"four");
    QVERIFY(source[0] == L"first");
}

void tst_CPlex::countBelowOneDoesNothing_data()
{
    QTest::addColumn<qint64>("count");

    QTest::newRow("none") << qint64(0);
    QTest::newRow("negative") << qint64(-1);
    QTest::newRow("minimum") << qint64(INTPTR_MIN);
}

void tst_CPlex::countBelowOneDoesNothing()
{
    QFETCH(qint64, count);
    const CString other(L"other");
    CString string(L"kept");
    _ConstructElements(&string, count);
    _DestructElements(&string, count);
    _CopyElements(&string, &other, count);
    QVERIFY(string == L"kept");
}

QTEST_MAIN(tst_CPlex)
#include "tst_CPlex.moc"
