#include "InvalidArguments.h"
#include "KxLists.h"

#include <QtTest>

#include <cstdint>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<CStringList> && !std::is_copy_assignable_v<CStringList>);
static_assert(!std::is_polymorphic_v<CStringList> && sizeof(CStringList) == 6 * sizeof(void *));
static_assert(!std::is_convertible_v<INT_PTR, CStringList>);

static QString toQString(const CString &string)
{
    return QString::fromStdWString(string);
}

// The list read forwards, after it was checked that backwards it reads the same.
static QStringList contentOf(const CStringList &list)
{
    QStringList forwards;
    for (POSITION position = list.GetHeadPosition(); position;)
        forwards.append(toQString(list.GetNext(position)));
    QStringList backwards;
    for (POSITION position = list.GetTailPosition(); position;)
        backwards.prepend(toQString(list.GetPrev(position)));
    return forwards == backwards ? forwards : QStringList{QStringLiteral("the directions differ")};
}

static QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

static void fill(CStringList &list, const QStringList &strings)
{
    for (const QString &string : strings)
        list.AddTail(CString(string.toStdWString()));
}

class tst_CStringList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void addsAtBothEnds();
    void acceptsNullAndEmbeddedNulls();
    void addsStringOfItsOwn();
    void addsListAtHead_data();
    void addsListAtHead();
    void addsListAtTail_data();
    void addsListAtTail();
    void addsItself_data();
    void addsItself();
    void inserts_data();
    void inserts();
    void removesAtBothEnds();
    void removesAt_data();
    void removesAt();
    void findsIndex_data();
    void findsIndex();
    void finds_data();
    void finds();
    void setsAt();
    void givesReferences();
};

void tst_CStringList::startsEmpty()
{
    const CStringList list;
    QCOMPARE(list.GetCount(), INT_PTR(0));
    QVERIFY(list.IsEmpty());
    QVERIFY(!list.GetHeadPosition());
    QVERIFY(!list.GetTailPosition());
    QVERIFY(!list.FindIndex(0));
    QVERIFY(!list.Find(L""));
}

void tst_CStringList::addsAtBothEnds()
{
    CStringList list;
    const POSITION b = list.AddHead(L"b");
    const POSITION c = list.AddTail(CString(L"c"));
    const POSITION a = list.AddHead(CString(L"a"));
    const POSITION d = list.AddTail(L"d");
    QCOMPARE(contentOf(list), words("a b c d"));
    QCOMPARE(list.GetCount(), INT_PTR(4));
    QVERIFY(!list.IsEmpty());
    QCOMPARE(list.GetHeadPosition(), a);
    QCOMPARE(list.GetTailPosition(), d);
    QVERIFY(list.GetAt(b) == L"b");
    QVERIFY(list.GetAt(c) == L"c");
}

void tst_CStringList::acceptsNullAndEmbeddedNulls()
{
    CStringList list;
    const wchar_t *none = nullptr;
    list.AddTail(none);
    list.AddTail(CString(std::wstring(L"a\0b", 3)));
    QVERIFY(list.GetHead().IsEmpty());
    QCOMPARE(list.GetTail().size(), std::size_t(3));
    QCOMPARE(list.Find(none), list.GetHeadPosition());
    QVERIFY(!list.Find(L"a"));
}

void tst_CStringList::addsStringOfItsOwn()
{
    CStringList list(1);
    list.AddTail(L"a");
    list.AddTail(list.GetHead());
    list.InsertAfter(list.GetHeadPosition(), list.GetTail());
    list.AddHead(list.GetTail().c_str());
    QCOMPARE(contentOf(list), words("a a a a"));
}

void tst_CStringList::addsListAtHead_data()
{
    QTest::addColumn<QStringList>("strings");
    QTest::addColumn<QStringList>("added");
    QTest::addColumn<QStringList>("result");

    QTest::newRow("keeps the order in front") << words("a b") << words("x y") << words("x y a b");
    QTest::newRow("to an empty list") << words("") << words("x y z") << words("x y z");
    QTest::newRow("an empty list") << words("a b") << words("") << words("a b");
    QTest::newRow("both empty") << words("") << words("") << words("");
}

void tst_CStringList::addsListAtHead()
{
    QFETCH(QStringList, strings);
    QFETCH(QStringList, added);
    CStringList list;
    CStringList other;
    fill(list, strings);
    fill(other, added);
    const POSITION result = list.AddHead(&other);
    QVERIFY(!result);
    QTEST(contentOf(list), "result");
    QCOMPARE(contentOf(other), added);
}

void tst_CStringList::addsListAtTail_data()
{
    QTest::addColumn<QStringList>("strings");
    QTest::addColumn<QStringList>("added");
    QTest::addColumn<QStringList>("result");

    QTest::newRow("keeps the order behind") << words("a b") << words("x y") << words("a b x y");
    QTest::newRow("to an empty list") << words("") << words("x y z") << words("x y z");
    QTest::newRow("an empty list") << words("a b") << words("") << words("a b");
    QTest::newRow("both empty") << words("") << words("") << words("");
}

void tst_CStringList::addsListAtTail()
{
    QFETCH(QStringList, strings);
    QFETCH(QStringList, added);
    CStringList list;
    CStringList other;
    fill(list, strings);
    fill(other, added);
    const POSITION result = list.AddTail(&other);
    QVERIFY(!result);
    QTEST(contentOf(list), "result");
    QCOMPARE(contentOf(other), added);
}

void tst_CStringList::addsItself_data()
{
    QTest::addColumn<bool>("atHead");
    QTest::addColumn<bool>("null");
    QTest::addColumn<QStringList>("result");

    QTest::newRow("at the head") << true << false << words("a b c a b c");
    QTest::newRow("at the tail") << false << false << words("a b c a b c");
    QTest::newRow("null at the head") << true << true << words("a b c");
    QTest::newRow("null at the tail") << false << true << words("a b c");
}

void tst_CStringList::addsItself()
{
    QFETCH(bool, atHead);
    QFETCH(bool, null);
    CStringList list;
    fill(list, words("a b c"));
    CStringList *const added = null ? nullptr : &list;
    const POSITION result = atHead ? list.AddHead(added) : list.AddTail(added);
    QVERIFY(!result);
    QCOMPARE(takeInvalidArguments(), null ? 1 : 0);
    QTEST(contentOf(list), "result");
}

void tst_CStringList::inserts_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("result");

    QTest::newRow("before the first") << true << 0 << words("new a b c");
    QTest::newRow("before a middle one") << true << 1 << words("a new b c");
    QTest::newRow("before the last") << true << 2 << words("a b new c");
    QTest::newRow("before null: at the head") << true << -1 << words("new a b c");
    QTest::newRow("after the first") << false << 0 << words("a new b c");
    QTest::newRow("after a middle one") << false << 1 << words("a b new c");
    QTest::newRow("after the last") << false << 2 << words("a b c new");
    QTest::newRow("after null: at the tail") << false << -1 << words("a b c new");
}

void tst_CStringList::inserts()
{
    QFETCH(bool, before);
    QFETCH(int, index);
    QFETCH(QStringList, result);
    const CString string(L"new");
    for (const bool asText : {true, false}) {
        CStringList list;
        fill(list, words("a b c"));
        const POSITION at = list.FindIndex(index);
        const wchar_t *const text = string;
        const POSITION added = before ? (asText ? list.InsertBefore(at, text) : list.InsertBefore(at, string))
                                      : (asText ? list.InsertAfter(at, text) : list.InsertAfter(at, string));
        QCOMPARE(contentOf(list), result);
        QCOMPARE(added, list.Find(L"new"));
        QCOMPARE(list.GetCount(), INT_PTR(4));
    }
}

void tst_CStringList::removesAtBothEnds()
{
    CStringList list;
    fill(list, words("a b c"));
    QVERIFY(list.RemoveHead() == L"a");
    QCOMPARE(contentOf(list), words("b c"));
    QVERIFY(list.RemoveTail() == L"c");
    QCOMPARE(contentOf(list), words("b"));
    QVERIFY(list.RemoveTail() == L"b");
    QVERIFY(list.IsEmpty());
    list.AddTail(L"d");
    QVERIFY(list.RemoveHead() == L"d");
    QVERIFY(!list.GetHeadPosition());
    QVERIFY(!list.GetTailPosition());
}

void tst_CStringList::removesAt_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("result");

    QTest::newRow("first") << 0 << words("b c");
    QTest::newRow("middle") << 1 << words("a c");
    QTest::newRow("last") << 2 << words("a b");
}

void tst_CStringList::removesAt()
{
    QFETCH(int, index);
    CStringList list;
    fill(list, words("a b c"));
    list.RemoveAt(list.FindIndex(index));
    QTEST(contentOf(list), "result");
    QCOMPARE(list.GetCount(), INT_PTR(2));
}

void tst_CStringList::findsIndex_data()
{
    QTest::addColumn<qint64>("index");
    QTest::addColumn<QString>("result");

    QTest::newRow("minimum") << qint64(INTPTR_MIN) << QString();
    QTest::newRow("negative") << qint64(-1) << QString();
    QTest::newRow("first") << qint64(0) << QStringLiteral("a");
    QTest::newRow("last") << qint64(2) << QStringLiteral("c");
    QTest::newRow("count") << qint64(3) << QString();
    QTest::newRow("maximum") << qint64(INTPTR_MAX) << QString();
}

void tst_CStringList::findsIndex()
{
    QFETCH(qint64, index);
    QFETCH(QString, result);
    CStringList list;
    fill(list, words("a b c"));
    const POSITION position = list.FindIndex(INT_PTR(index));
    QCOMPARE(bool(position), !result.isNull());
    if (position)
        QCOMPARE(toQString(list.GetAt(position)), result);
}

void tst_CStringList::finds_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("startAfter");
    QTest::addColumn<int>("result");

    QTest::newRow("first of two") << QStringLiteral("a") << -1 << 0;
    QTest::newRow("behind the first") << QStringLiteral("a") << 0 << 2;
    QTest::newRow("behind the only one left") << QStringLiteral("a") << 2 << -1;
    QTest::newRow("behind the last") << QStringLiteral("ab") << 3 << -1;
    QTest::newRow("last") << QStringLiteral("ab") << -1 << 3;
    QTest::newRow("other case") << QStringLiteral("A") << -1 << -1;
    QTest::newRow("beginning alone") << QStringLiteral("abc") << -1 << -1;
    QTest::newRow("empty") << QString() << -1 << -1;
}

void tst_CStringList::finds()
{
    QFETCH(QString, value);
    QFETCH(int, startAfter);
    QFETCH(int, result);
    CStringList list;
    fill(list, words("a b a ab"));
    const std::wstring text = value.toStdWString();
    const POSITION found = list.Find(text.c_str(), list.FindIndex(startAfter));
    QCOMPARE(found, list.FindIndex(result));
}

void tst_CStringList::setsAt()
{
    CStringList list;
    fill(list, words("a b c"));
    const POSITION middle = list.FindIndex(1);
    list.SetAt(middle, L"text");
    QCOMPARE(contentOf(list), words("a text c"));
    list.SetAt(middle, CString(L"string"));
    QCOMPARE(contentOf(list), words("a string c"));
    list.SetAt(middle, list.GetAt(middle));
    list.SetAt(middle, list.GetAt(middle).c_str() + 3);
    QCOMPARE(contentOf(list), words("a ing c"));
    list.SetAt(middle, static_cast<const wchar_t *>(nullptr));
    QVERIFY(list.GetAt(middle).IsEmpty());
}

void tst_CStringList::givesReferences()
{
    CStringList list;
    fill(list, words("a b c d"));
    list.GetHead() = L"head";
    list.GetTail() = L"tail";
    POSITION position = list.FindIndex(1);
    list.GetAt(position) = L"second";
    list.GetNext(position) += L"+";
    list.GetPrev(position) += L"-";
    QCOMPARE(contentOf(list), words("head second+ c- tail"));
    QCOMPARE(position, list.FindIndex(1));
    const CStringList &constant = list;
    QCOMPARE(&constant.GetHead(), &list.GetHead());
    QCOMPARE(&constant.GetTail(), &list.GetTail());
    QCOMPARE(&constant.GetAt(position), &list.GetAt(position));
}

QTEST_MAIN(tst_CStringList)
#include "tst_CStringList.moc"
