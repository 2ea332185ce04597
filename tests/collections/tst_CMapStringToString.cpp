#include "KxMaps.h"

#include <QtTest>

#include <cstdint>
#include <memory>
#include <utility>

Q_DECLARE_METATYPE(const wchar_t *)

class tst_CMapStringToString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isInert_data();
    void isInert();
    void findsNoKey_data();
    void findsNoKey();
    void iteratesOverNothing();
    void givesNullReference_data();
    void givesNullReference();
};

// Does what would store keys in any other map.
static void fill(CMapStringToString &map)
{
    map.InitHashTable(31);
    map.InitHashTable(31, false);
    map.SetAt(L"key", L"value");
    map.SetAt(L"", nullptr);
    map.SetAt(nullptr, L"value");
    map.FreeAssoc(map.NewAssoc());
    map.FreeAssoc(map.NewAssoc(L"key"));
}

void tst_CMapStringToString::isInert_data()
{
    QTest::addColumn<int>("blockSize");
    QTest::addColumn<bool>("filled");
    QTest::addColumn<bool>("cleared");

    QTest::newRow("new") << 10 << false << false;
    QTest::newRow("after keys were set") << 10 << true << false;
    QTest::newRow("after RemoveAll") << 10 << true << true;
    QTest::newRow("no block size") << 0 << true << false;
    QTest::newRow("negative block size") << -1 << true << false;
}

void tst_CMapStringToString::isInert()
{
    QFETCH(int, blockSize);
    QFETCH(bool, filled);
    QFETCH(bool, cleared);
    CMapStringToString map(blockSize);
    if (filled)
        fill(map);
    if (cleared)
        map.RemoveAll();
    QCOMPARE(map.GetCount(), INT_PTR(0));
    QCOMPARE(map.GetSize(), INT_PTR(0));
    QVERIFY(!map.IsEmpty());
    QCOMPARE(map.GetHashTableSize(), 0u);
    QVERIFY(!map.NewAssoc());
    QVERIFY(!map.GetStartPosition());
    QVERIFY(!map.PGetFirstAssoc());
    QVERIFY(!std::as_const(map).PGetFirstAssoc());
}

void tst_CMapStringToString::findsNoKey_data()
{
    QTest::addColumn<const wchar_t *>("key");

    QTest::newRow("that was set") << static_cast<const wchar_t *>(L"key");
    QTest::newRow("empty") << static_cast<const wchar_t *>(L"");
    QTest::newRow("null") << static_cast<const wchar_t *>(nullptr);
}

void tst_CMapStringToString::findsNoKey()
{
    QFETCH(const wchar_t *, key);
    CMapStringToString map;
    fill(map);
    CString value(L"untouched");
    const wchar_t *stored = value;
    UINT bucket = 66;
    UINT hash = 77;
    QVERIFY(!map.Lookup(key, value));
    QVERIFY(!map.LookupKey(key, stored));
    QVERIFY(!map.PLookup(key));
    QVERIFY(!std::as_const(map).PLookup(key));
    QVERIFY(!map.GetAssocAt(key, bucket, hash));
    QVERIFY(map.RemoveKey(key));
    QCOMPARE(map.HashKey(key), 0u);
    QVERIFY(value == L"untouched" && stored == value.c_str());
    QVERIFY(bucket == 66 && hash == 77);
}

void tst_CMapStringToString::iteratesOverNothing()
{
    CMapStringToString map;
    fill(map);
    const CMapStringToString::CPair pair;
    QVERIFY(!map.PGetNextAssoc(&pair));
    QVERIFY(!std::as_const(map).PGetNextAssoc(nullptr));

    CString key(L"key");
    CString value(L"value");
    const POSITION start = reinterpret_cast<POSITION>(INT_PTR(-1));
    POSITION position = start;
    map.GetNextAssoc(position, key, value);
    QCOMPARE(position, start);
    QVERIFY(key == L"key" && value == L"value");
}

void tst_CMapStringToString::givesNullReference_data()
{
    QTest::addColumn<bool>("filled");

    QTest::newRow("new") << false;
    QTest::newRow("after the key was set") << true;
}

// Out of sight of the optimiser, which may take any reference for one to an object.
__attribute__((noinline)) static std::uintptr_t addressOf(CString &string)
{
    return reinterpret_cast<std::uintptr_t>(std::addressof(string));
}

void tst_CMapStringToString::givesNullReference()
{
    QFETCH(bool, filled);
    CMapStringToString map;
    if (filled)
        fill(map);
    QCOMPARE(addressOf(map[L"key"]), std::uintptr_t(0));
}

QTEST_MAIN(tst_CMapStringToString)
#include "tst_CMapStringToString.moc"
