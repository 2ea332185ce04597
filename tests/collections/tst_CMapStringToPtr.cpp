#include "KxMaps.h"

#include <QtTest>

#include <cstdint>
#include <string>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<CMapStringToPtr> && !std::is_copy_assignable_v<CMapStringToPtr>);
static_assert(!std::is_polymorphic_v<CMapStringToPtr> && !std::is_convertible_v<INT_PTR, CMapStringToPtr>);
static_assert(sizeof(CMapStringToPtr::CAssoc::key) == 512 * sizeof(wchar_t));

static void *value(std::uintptr_t number)
{
    return reinterpret_cast<void *>(number);
}

static CString keyOf(const QString &text)
{
    return CString(text.toStdWString());
}

// The keys in the order of iteration.
static QStringList keysOf(const CMapStringToPtr &map)
{
    QStringList keys;
    CString key;
    void *ignored = nullptr;
    for (POSITION position = map.GetStartPosition(); position;) {
        map.GetNextAssoc(position, key, ignored);
        keys.append(QString::fromStdWString(key));
    }
    return keys;
}

class tst_CMapStringToPtr : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void hashes_data();
    void hashes();
    void looksUp_data();
    void looksUp();
    void lookUpKeyGivesStoredText();
    void slotAddsKeyWithNull();
    void setAtReplaces();
    void keyLength_data();
    void keyLength();
    void nullKeyIsNowhere();
    void refusedSlotForgets();
    void removesKey();
    void removesOneOfBucket_data();
    void removesOneOfBucket();
    void iteratesByBucketNewestFirst();
    void iterationOfOneKey();
    void iterationFromNull();
};

void tst_CMapStringToPtr::startsEmpty()
{
    const CMapStringToPtr map;
    void *found = value(7);
    QCOMPARE(map.GetCount(), INT_PTR(0));
    QCOMPARE(map.GetSize(), INT_PTR(0));
    QVERIFY(map.IsEmpty());
    QCOMPARE(map.GetHashTableSize(), 17u);
    QVERIFY(!map.GetStartPosition());
    QVERIFY(!map.Lookup(L"a", found));
    QCOMPARE(found, value(7));
}

void tst_CMapStringToPtr::hashes_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<uint>("hash");

    QTest::newRow("empty") << QString() << 0u;
    QTest::newRow("one element") << QStringLiteral("a") << 97u;
    QTest::newRow("two elements") << QStringLiteral("ab") << 3299u;
    QTest::newRow("other case") << QStringLiteral("AB") << 65u * 33 + 66;
    QTest::newRow("beyond the basic plane") << QString::fromUcs4(U"\U0001F600", 1) << 0x1F600u;
    QTest::newRow("wraps at 32 bits") << QStringLiteral("zzzzzzzz") << 1813671632u;
}

void tst_CMapStringToPtr::hashes()
{
    QFETCH(QString, key);
    QFETCH(uint, hash);
    const CMapStringToPtr map;
    QCOMPARE(map.HashKey(keyOf(key)), hash);
    UINT bucket = 99;
    UINT untouched = 77;
    QVERIFY(!map.GetAssocAt(keyOf(key), bucket, untouched));
    QCOMPARE(bucket, hash % 17);
    QCOMPARE(untouched, 77u);
}

void tst_CMapStringToPtr::looksUp_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("found");

    QTest::newRow("present") << QStringLiteral("Key") << true;
    QTest::newRow("other case") << QStringLiteral("key") << false;
    QTest::newRow("beginning") << QStringLiteral("Ke") << false;
    QTest::newRow("longer") << QStringLiteral("Key ") << false;
    QTest::newRow("empty") << QString() << false;
}

void tst_CMapStringToPtr::looksUp()
{
    QFETCH(QString, key);
    QFETCH(bool, found);
    CMapStringToPtr map;
    map.InitHashTable(1);
    map.SetAt(L"Key", value(5));
    void *result = value(9);
    const wchar_t *stored = nullptr;
    QCOMPARE(map.Lookup(keyOf(key), result), found);
    QCOMPARE(result, found ? value(5) : value(9));
    QCOMPARE(map.LookupKey(keyOf(key), stored), found);
    QCOMPARE(bool(stored), found);
    QCOMPARE(map.GetCount(), INT_PTR(1));
}

void tst_CMapStringToPtr::lookUpKeyGivesStoredText()
{
    CMapStringToPtr map;
    const CString key(L"key");
    map.SetAt(key, nullptr);
    const wchar_t *stored = nullptr;
    QVERIFY(map.LookupKey(key, stored));
    QVERIFY(stored != key.c_str());
    QVERIFY(key == stored);
}

void tst_CMapStringToPtr::slotAddsKeyWithNull()
{
    CMapStringToPtr map;
    QVERIFY(!map[L"a"]);
    QCOMPARE(map.GetCount(), INT_PTR(1));
    map[L"a"] = value(1);
    QCOMPARE(map[L"a"], value(1));
    QCOMPARE(&map[L"a"], &map[L"a"]);
    QCOMPARE(map.GetCount(), INT_PTR(1));
    QVERIFY(!map[L""]);
    QCOMPARE(map.GetCount(), INT_PTR(2));
}

void tst_CMapStringToPtr::setAtReplaces()
{
    CMapStringToPtr map;
    map.SetAt(L"a", value(1));
    map.SetAt(L"a", value(2));
    QCOMPARE(map.GetCount(), INT_PTR(1));
    QCOMPARE(map[L"a"], value(2));
}

void tst_CMapStringToPtr::keyLength_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("stored");

    QTest::newRow("none") << 0 << true;
    QTest::newRow("one") << 1 << true;
    QTest::newRow("longest") << 511 << true;
    QTest::newRow("one too many") << 512 << false;
    QTest::newRow("two too many") << 513 << false;
    QTest::newRow("far too many") << 100000 << false;
}

void tst_CMapStringToPtr::keyLength()
{
    QFETCH(int, length);
    QFETCH(bool, stored);
    CMapStringToPtr map;
    const std::wstring key(std::size_t(length), L'k');
    map.SetAt(L"other", value(3));
    map.SetAt(key.c_str(), value(4));
    void *found = value(9);
    QCOMPARE(map.Lookup(key.c_str(), found), stored);
    QCOMPARE(found, stored ? value(4) : value(9));
    QCOMPARE(map.GetCount(), stored ? INT_PTR(2) : INT_PTR(1));
    QCOMPARE(map[L"other"], value(3));
    QCOMPARE(map.RemoveKey(key.c_str()), stored);
}

void tst_CMapStringToPtr::nullKeyIsNowhere()
{
    for (const bool filled : {false, true}) {
        CMapStringToPtr map;
        if (filled)
            map.SetAt(L"", value(1));
        void *found = value(9);
        const wchar_t *stored = nullptr;
        UINT bucket = 99;
        UINT hash = 77;
        QVERIFY(!map.Lookup(nullptr, found));
        QVERIFY(!map.LookupKey(nullptr, stored));
        QVERIFY(!map.GetAssocAt(nullptr, bucket, hash));
        QVERIFY(!map.RemoveKey(nullptr));
        map.SetAt(nullptr, value(2));
        QCOMPARE(map.GetCount(), filled ? INT_PTR(1) : INT_PTR(0));
        QCOMPARE(found, value(9));
        QCOMPARE(map.HashKey(nullptr), 0u);
    }
}

void tst_CMapStringToPtr::refusedSlotForgets()
{
    CMapStringToPtr map;
    const std::wstring tooLong(512, L'k');
    map[tooLong.c_str()] = value(1);
    QVERIFY(!map[tooLong.c_str()]);
    map[nullptr] = value(2);
    QVERIFY(!map[nullptr]);
    QVERIFY(map.IsEmpty());
    QVERIFY(!map.GetStartPosition());
}

void tst_CMapStringToPtr::removesKey()
{
    CMapStringToPtr map;
    QVERIFY(!map.RemoveKey(L"a"));
    map.SetAt(L"a", value(1));
    map.SetAt(L"b", value(2));
    QVERIFY(!map.RemoveKey(L"A"));
    QVERIFY(map.RemoveKey(L"a"));
    QVERIFY(!map.RemoveKey(L"a"));
    QCOMPARE(keysOf(map), QStringList{QStringLiteral("b")});
    QVERIFY(map.RemoveKey(L"b"));
    QVERIFY(map.IsEmpty());
    map.SetAt(L"c", value(3));
    QCOMPARE(keysOf(map), QStringList{QStringLiteral("c")});
}

void tst_CMapStringToPtr::removesOneOfBucket_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("left");

    QTest::newRow("newest") << QStringLiteral("c") << QStringLiteral("b a");
    QTest::newRow("middle") << QStringLiteral("b") << QStringLiteral("c a");
    QTest::newRow("oldest") << QStringLiteral("a") << QStringLiteral("c b");
}

void tst_CMapStringToPtr::removesOneOfBucket()
{
    QFETCH(QString, key);
    CMapStringToPtr map;
    map.InitHashTable(1);
    for (const wchar_t *each : {L"a", L"b", L"c"})
        map.SetAt(each, nullptr);
    QVERIFY(map.RemoveKey(keyOf(key)));
    QTEST(keysOf(map).join(QLatin1Char(' ')), "left");
}

void tst_CMapStringToPtr::iteratesByBucketNewestFirst()
{
    // With 5 buckets: d is in 0, a and f in 2, b and g in 3.
    CMapStringToPtr map;
    map.InitHashTable(5);
    for (const wchar_t *each : {L"b", L"a", L"g", L"d", L"f"})
        map.SetAt(each, nullptr);
    QCOMPARE(keysOf(map).join(QLatin1Char(' ')), QStringLiteral("d f a g b"));
    map.SetAt(L"a", value(1));
    QCOMPARE(keysOf(map).join(QLatin1Char(' ')), QStringLiteral("d f a g b"));
}

void tst_CMapStringToPtr::iterationOfOneKey()
{
    CMapStringToPtr map;
    map.SetAt(L"key", value(3));
    POSITION position = map.GetStartPosition();
    QCOMPARE(reinterpret_cast<INT_PTR>(position), INT_PTR(-1));
    CString key;
    void *found = nullptr;
    map.GetNextAssoc(position, key, found);
    QVERIFY(key == L"key");
    QCOMPARE(found, value(3));
    QVERIFY(!position);
}

void tst_CMapStringToPtr::iterationFromNull()
{
    CMapStringToPtr map;
    map.SetAt(L"key", value(3));
    POSITION position = nullptr;
    CString key(L"untouched");
    void *found = value(9);
    map.GetNextAssoc(position, key, found);
    QVERIFY(key == L"untouched");
    QCOMPARE(found, value(9));
    QVERIFY(!position);
}

QTEST_MAIN(tst_CMapStringToPtr)
#include "tst_CMapStringToPtr.moc"
