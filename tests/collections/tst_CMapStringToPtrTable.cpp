#include "CountedMemory.h"
#include "KxMaps.h"

#include <QtTest>

#include <sys/resource.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

#if defined(__SANITIZE_ADDRESS__)
#define KX_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KX_ADDRESS_SANITIZER
#endif
#endif

#ifdef KX_ADDRESS_SANITIZER
// A failed allocation is to be answered by the library, and not by the sanitizer.
extern "C" KX_MFC_EXPORT const char *__asan_default_options();
const char *__asan_default_options()
{
    return "allocator_may_return_null=1:max_allocation_size_mb=4096";
}
#endif

static void *value(std::uintptr_t number)
{
    return reinterpret_cast<void *>(number);
}

static CMapStringToPtr::CAssoc *associationOf(const CMapStringToPtr &map, const wchar_t *key)
{
    UINT bucket = 0;
    UINT hash = 0;
    return map.GetAssocAt(key, bucket, hash);
}

class tst_CMapStringToPtrTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void positionIsAssociation();
    void associationHoldsBucketKeyAndValue();
    void tableSize_data();
    void tableSize();
    void tableSizeOutlivesRemoveAll();
    void newTableHidesKeys_data();
    void newTableHidesKeys();
    void noMemoryForTable();
    void handsOutBlockInOrder();
    void reusesLastFreedFirst();
    void associationsOutsideTheTable();
    void freesNullAssociation();
    void emptyMapFreesBlocks_data();
    void emptyMapFreesBlocks();
    void blockSize_data();
    void blockSize();
};

void tst_CMapStringToPtrTable::positionIsAssociation()
{
    CMapStringToPtr map;
    map.InitHashTable(1);
    map.SetAt(L"older", value(1));
    map.SetAt(L"newer", value(2));
    POSITION position = map.GetStartPosition();
    CString key;
    void *found = nullptr;
    map.GetNextAssoc(position, key, found);
    QVERIFY(key == L"newer");
    QCOMPARE(reinterpret_cast<CMapStringToPtr::CAssoc *>(position), associationOf(map, L"older"));
}

void tst_CMapStringToPtrTable::associationHoldsBucketKeyAndValue()
{
    CMapStringToPtr map;
    map.SetAt(L"ab", value(4));
    UINT bucket = 99;
    UINT hash = 77;
    const CMapStringToPtr::CAssoc *association = map.GetAssocAt(L"ab", bucket, hash);
    QVERIFY(association);
    QCOMPARE(bucket, 1u);
    QCOMPARE(hash, 77u);
    QCOMPARE(association->nBucket, 1u);
    QCOMPARE(CString(association->key), CString(L"ab"));
    QCOMPARE(association->value, value(4));
    QVERIFY(!association->pNext);
}

void tst_CMapStringToPtrTable::tableSize_data()
{
    QTest::addColumn<uint>("size");
    QTest::addColumn<bool>("now");
    QTest::addColumn<uint>("result");

    QTest::newRow("one, now") << 1u << true << 1u;
    QTest::newRow("one, later") << 1u << false << 1u;
    QTest::newRow("many, now") << 1009u << true << 1009u;
    QTest::newRow("many, later") << 1009u << false << 1009u;
    QTest::newRow("none changes nothing, now") << 0u << true << 17u;
    QTest::newRow("none changes nothing, later") << 0u << false << 17u;
}

void tst_CMapStringToPtrTable::tableSize()
{
    QFETCH(uint, size);
    QFETCH(bool, now);
    QFETCH(uint, result);
    CMapStringToPtr map;
    map.InitHashTable(size, now);
    QCOMPARE(map.GetHashTableSize(), result);
    map.SetAt(L"zzzz", value(1));
    UINT bucket = 0;
    UINT hash = 0;
    QVERIFY(map.GetAssocAt(L"zzzz", bucket, hash));
    QCOMPARE(bucket, map.HashKey(L"zzzz") % result);
    map.InitHashTable(0, now);
    QCOMPARE(map[L"zzzz"], value(1));
}

void tst_CMapStringToPtrTable::tableSizeOutlivesRemoveAll()
{
    CMapStringToPtr map;
    map.InitHashTable(5);
    map.SetAt(L"a", value(1));
    map.RemoveAll();
    QCOMPARE(map.GetHashTableSize(), 5u);
    map.SetAt(L"b", value(2));
    QVERIFY(map.RemoveKey(L"b"));
    QCOMPARE(map.GetHashTableSize(), 5u);
}

void tst_CMapStringToPtrTable::newTableHidesKeys_data()
{
    QTest::addColumn<bool>("now");

    QTest::newRow("now") << true;
    QTest::newRow("later") << false;
}

void tst_CMapStringToPtrTable::newTableHidesKeys()
{
    QFETCH(bool, now);
    CMapStringToPtr map;
    map.SetAt(L"a", value(1));
    map.InitHashTable(3, now);
    QCOMPARE(map.GetCount(), INT_PTR(1));
    void *found = value(9);
    QVERIFY(!map.Lookup(L"a", found));
    QVERIFY(!map.RemoveKey(L"a"));
    POSITION position = map.GetStartPosition();
    QVERIFY(position);
    CString key(L"untouched");
    map.GetNextAssoc(position, key, found);
    QVERIFY(!position);
    QVERIFY(key == L"untouched");
    QCOMPARE(found, value(9));
    map.SetAt(L"a", value(2));
    QCOMPARE(map.GetCount(), INT_PTR(2));
}

// Leaves the process 4 GB of address space at most while it lives. The sanitizer needs more than that, and
// limits single allocations by itself.
class LittleMemory
{
public:
    LittleMemory()
    {
        getrlimit(RLIMIT_AS, &m_former);
#ifndef KX_ADDRESS_SANITIZER
        rlimit limit = m_former;
        limit.rlim_cur = std::min<rlim_t>(rlim_t(4) << 30, m_former.rlim_max);
        setrlimit(RLIMIT_AS, &limit);
#endif
    }
    LittleMemory(const LittleMemory &) = delete;
    LittleMemory &operator=(const LittleMemory &) = delete;
    ~LittleMemory()
    {
        setrlimit(RLIMIT_AS, &m_former);
    }

private:
    rlimit m_former = {};
};

void tst_CMapStringToPtrTable::noMemoryForTable()
{
    const LittleMemory limit;
    CMapStringToPtr map;
    map.InitHashTable(5);
    map.InitHashTable(UINT32_MAX);
    QCOMPARE(map.GetHashTableSize(), 5u);
    map.SetAt(L"a", value(1));
    QCOMPARE(map[L"a"], value(1));

    map.RemoveAll();
    map.InitHashTable(UINT32_MAX, false);
    QCOMPARE(map.GetHashTableSize(), UINT32_MAX);
    map.SetAt(L"a", value(1));
    QVERIFY(!map[L"a"]);
    QVERIFY(map.IsEmpty());
}

static INT_PTR distance(const void *from, const void *to)
{
    return reinterpret_cast<INT_PTR>(to) - reinterpret_cast<INT_PTR>(from);
}

void tst_CMapStringToPtrTable::handsOutBlockInOrder()
{
    CMapStringToPtr map(3);
    for (const wchar_t *key : {L"a", L"b", L"c", L"d", L"e"})
        map.SetAt(key, nullptr);
    const auto *const a = associationOf(map, L"a");
    QCOMPARE(distance(a, associationOf(map, L"b")), INT_PTR(2072));
    QCOMPARE(distance(a, associationOf(map, L"c")), INT_PTR(2 * 2072));
    QCOMPARE(distance(associationOf(map, L"d"), associationOf(map, L"e")), INT_PTR(2072));
}

void tst_CMapStringToPtrTable::reusesLastFreedFirst()
{
    CMapStringToPtr map(5);
    for (const wchar_t *key : {L"a", L"b", L"c"})
        map.SetAt(key, value(1));
    const auto *const a = associationOf(map, L"a");
    const auto *const b = associationOf(map, L"b");
    map.RemoveKey(L"a");
    map.RemoveKey(L"b");
    QVERIFY(!map[L"d"]);
    map.SetAt(L"e", nullptr);
    QCOMPARE(associationOf(map, L"d"), b);
    QCOMPARE(associationOf(map, L"e"), a);
}

void tst_CMapStringToPtrTable::associationsOutsideTheTable()
{
    CMapStringToPtr map;
    map.SetAt(L"a longer key", value(1));
    map.SetAt(L"b", value(2));
    map.RemoveKey(L"a longer key");
    CMapStringToPtr::CAssoc *const association = map.NewAssoc();
    QCOMPARE(map.GetCount(), INT_PTR(2));
    QVERIFY(!association->value);
    QVERIFY(std::all_of(std::begin(association->key), std::end(association->key),
                        [](wchar_t ch) { return ch == L'\0'; }));
    QVERIFY(!associationOf(map, L""));
    map.FreeAssoc(association);
    QCOMPARE(map.GetCount(), INT_PTR(1));
    QCOMPARE(map.NewAssoc(), association);
}

void tst_CMapStringToPtrTable::freesNullAssociation()
{
    CMapStringToPtr map;
    map.SetAt(L"a", value(1));
    map.FreeAssoc(nullptr);
    QCOMPARE(map.GetCount(), INT_PTR(1));
    QCOMPARE(map[L"a"], value(1));
}

void tst_CMapStringToPtrTable::emptyMapFreesBlocks_data()
{
    QTest::addColumn<bool>("atOnce");

    QTest::newRow("RemoveAll") << true;
    QTest::newRow("RemoveKey of each") << false;
}

void tst_CMapStringToPtrTable::emptyMapFreesBlocks()
{
    QFETCH(bool, atOnce);
    CMapStringToPtr map(2);
    const wchar_t *const keys[] = {L"a", L"b", L"c", L"d", L"e"};
    const long before = liveAllocations;
    for (const wchar_t *key : keys)
        map.SetAt(key, value(1));
    const long full = liveAllocations;
    if (atOnce)
        map.RemoveAll();
    for (const wchar_t *key : keys)
        map.RemoveKey(key);
    const long empty = liveAllocations;
    map.SetAt(L"f", value(2));
    const long again = liveAllocations;
    QCOMPARE(full, before + 3);
    QCOMPARE(empty, before);
    QCOMPARE(again, before + 1);
    QCOMPARE(map.GetCount(), INT_PTR(1));
    QCOMPARE(map[L"f"], value(2));
}

void tst_CMapStringToPtrTable::blockSize_data()
{
    QTest::addColumn<qint64>("given");
    QTest::addColumn<quint64>("associations");

    QTest::newRow("one") << qint64(1) << quint64(1);
    QTest::newRow("some") << qint64(25) << quint64(25);
    QTest::newRow("none counts as the usual") << qint64(0) << quint64(10);
    QTest::newRow("minimum counts as the usual") << qint64(INTPTR_MIN) << quint64(10);
}

void tst_CMapStringToPtrTable::blockSize()
{
    QFETCH(qint64, given);
    QFETCH(quint64, associations);
    CMapStringToPtr map(static_cast<INT_PTR>(given));
    map.SetAt(L"a", nullptr);
    const std::size_t bytes = lastAllocatedBytes;
    QCOMPARE(quint64(bytes), 8 + associations * 2072);

    CMapStringToPtr usual;
    usual.SetAt(L"a", nullptr);
    const std::size_t usualBytes = lastAllocatedBytes;
    QCOMPARE(usualBytes, std::size_t(8 + 10 * 2072));
}

QTEST_MAIN(tst_CMapStringToPtrTable)
#include "tst_CMapStringToPtrTable.moc"
