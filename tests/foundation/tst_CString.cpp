#include "KxString.h"

#include <QtTest>

#include <climits>
#include <stdexcept>
#include <type_traits>

using namespace std::string_literals;

Q_DECLARE_METATYPE(const wchar_t *)
Q_DECLARE_METATYPE(std::wstring)

// A table cell: literals of different lengths are one type.
static const wchar_t *wide(const wchar_t *text)
{
    return text;
}

static_assert(std::is_base_of_v<std::wstring, CString>);
static_assert(sizeof(CString) == sizeof(std::wstring), "no data members and no virtual functions");
static_assert(!std::is_polymorphic_v<CString>);
static_assert(std::is_nothrow_move_constructible_v<CString> && std::is_nothrow_move_assignable_v<CString>);
static_assert(std::is_same_v<decltype(std::declval<CString &>()[0]), wchar_t &>);
static_assert(std::is_same_v<decltype(std::declval<const CString &>()[0]), const wchar_t &>);

// Everything stored, embedded nulls too, in a form that a failed comparison prints.
static QString stored(const std::wstring &text)
{
    return QString::fromStdWString(text);
}

class tst_CString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructsFromWideText_data();
    void constructsFromWideText();
    void constructsFromNarrowText();
    void constructsFromStandardString();
    void copiesAreDeep();
    void movesTakeTheBufferOver();
    void lengthEndsAtTheFirstNull_data();
    void lengthEndsAtTheFirstNull();
    void convertsToPointer();
    void accessIsChecked_data();
    void accessIsChecked();
    void indexing();
    void findElement_data();
    void findElement();
    void findText_data();
    void findText();
    void compare_data();
    void compare();
    void compareNoCase_data();
    void compareNoCase();
    void holdsAMillionElements();
};

void tst_CString::constructsFromWideText_data()
{
    QTest::addColumn<const wchar_t *>("text");
    QTest::addColumn<int>("length");

    QTest::newRow("null") << wide(nullptr) << 0;
    QTest::newRow("empty") << wide(L"") << 0;
    QTest::newRow("plain") << wide(L"abc") << 3;
    QTest::newRow("above the BMP is one element") << wide(L"a\U0001F600b") << 3;
}

void tst_CString::constructsFromWideText()
{
    QFETCH(const wchar_t *, text);
    QFETCH(int, length);

    const CString string(text);
    QCOMPARE(stored(string), stored(text ? text : L""));
    QCOMPARE(string.GetLength(), length);

    CString assigned(L"former");
    assigned = text;
    QCOMPARE(stored(assigned), stored(string));
}

void tst_CString::constructsFromNarrowText()
{
    QCOMPARE(stored(CString("abc")), QStringLiteral("abc"));
    QVERIFY(CString("").IsEmpty());
    QVERIFY(CString(static_cast<const char *>(nullptr)).IsEmpty());
}

void tst_CString::constructsFromStandardString()
{
    const std::wstring source = L"a\0b"s;
    const CString string(source);
    QCOMPARE(stored(string), stored(source));
    QCOMPARE(int(string.size()), 3);

    std::wstring moved(100, L'x');
    const wchar_t *characters = moved.c_str();
    const CString owner(std::move(moved));
    QCOMPARE(static_cast<const void *>(owner.c_str()), static_cast<const void *>(characters));
}

void tst_CString::copiesAreDeep()
{
    const CString original(std::wstring(100, L'x') + L"\0y"s);
    CString copy(original);
    QCOMPARE(stored(copy), stored(original));
    QVERIFY(copy.c_str() != original.c_str());

    copy.SetAt(0, L'z');
    QCOMPARE(original.GetAt(0), L'x');
}

void tst_CString::movesTakeTheBufferOver()
{
    CString source(std::wstring(100, L'x'));
    const void *characters = source.c_str();
    CString target(std::move(source));
    QCOMPARE(static_cast<const void *>(target.c_str()), characters);

    CString assigned(L"former");
    assigned = std::move(target);
    QCOMPARE(static_cast<const void *>(assigned.c_str()), characters);
    QCOMPARE(assigned.GetLength(), 100);
}

void tst_CString::lengthEndsAtTheFirstNull_data()
{
    QTest::addColumn<std::wstring>("text");
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("empty");

    QTest::newRow("empty") << L""s << 0 << true;
    QTest::newRow("plain") << L"abc"s << 3 << false;
    QTest::newRow("embedded null") << L"ab\0cd"s << 2 << false;
    QTest::newRow("nulls only") << L"\0\0"s << 0 << false;
}

void tst_CString::lengthEndsAtTheFirstNull()
{
    QFETCH(std::wstring, text);
    const CString string(text);
    QTEST(string.GetLength(), "length");
    QTEST(string.IsEmpty(), "empty");

    CString emptied(text);
    emptied.Empty();
    QVERIFY(emptied.IsEmpty());
    QCOMPARE(int(emptied.size()), 0);
}

void tst_CString::convertsToPointer()
{
    const CString string(L"abc");
    const wchar_t *text = string;
    QCOMPARE(static_cast<const void *>(text), static_cast<const void *>(string.c_str()));
}

void tst_CString::accessIsChecked_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("inside");

    QTest::newRow("minimum") << INT_MIN << false;
    QTest::newRow("negative") << -1 << false;
    QTest::newRow("first") << 0 << true;
    QTest::newRow("after an embedded null") << 2 << true;
    QTest::newRow("size") << 3 << false;
    QTest::newRow("maximum") << INT_MAX << false;
}

void tst_CString::accessIsChecked()
{
    QFETCH(int, index);
    QFETCH(bool, inside);

    CString string(L"a\0c"s);
    if (!inside) {
        QVERIFY_EXCEPTION_THROWN(string.GetAt(index), std::out_of_range);
        QVERIFY_EXCEPTION_THROWN(string.SetAt(index, L'z'), std::out_of_range);
        QCOMPARE(stored(string), stored(L"a\0c"s));
        return;
    }
    string.SetAt(index, L'z');
    QCOMPARE(string.GetAt(index), L'z');
}

void tst_CString::indexing()
{
    CString string(L"abc");
    string[1] = L'x';
    const CString &constString = string;
    QCOMPARE(constString[1], L'x');
    QCOMPARE(constString[3], L'\0');
    QCOMPARE(string[std::size_t{2}], L'c');
    string[INT_PTR{2}] = L'y';
    QCOMPARE(constString[2L], L'y');
    QCOMPARE(constString[2U], L'y');
}

void tst_CString::findElement_data()
{
    QTest::addColumn<std::wstring>("text");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");

    QTest::newRow("empty string") << L""s << -1 << -1;
    QTest::newRow("absent") << L"abc"s << -1 << -1;
    QTest::newRow("once") << L"axc"s << 1 << 1;
    QTest::newRow("several times") << L"xaxbx"s << 0 << 4;
    QTest::newRow("after an embedded null") << L"a\0x"s << 2 << 2;
}

void tst_CString::findElement()
{
    QFETCH(std::wstring, text);
    const CString string(text);
    QTEST(string.Find(L'x'), "first");
    QTEST(string.ReverseFind(L'x'), "last");
}

void tst_CString::findText_data()
{
    QTest::addColumn<const wchar_t *>("text");
    QTest::addColumn<const wchar_t *>("sub");
    QTest::addColumn<int>("position");

    QTest::newRow("null") << wide(L"abc") << wide(nullptr) << -1;
    QTest::newRow("empty in empty") << wide(L"") << wide(L"") << 0;
    QTest::newRow("empty in text") << wide(L"abc") << wide(L"") << 0;
    QTest::newRow("text in empty") << wide(L"") << wide(L"a") << -1;
    QTest::newRow("at the front") << wide(L"abab") << wide(L"ab") << 0;
    QTest::newRow("at the end") << wide(L"abc") << wide(L"bc") << 1;
    QTest::newRow("case differs") << wide(L"abc") << wide(L"BC") << -1;
    QTest::newRow("longer than the text") << wide(L"abc") << wide(L"abcd") << -1;
    QTest::newRow("above the BMP") << wide(L"ab\U0001F600") << wide(L"\U0001F600") << 2;
}

void tst_CString::findText()
{
    QFETCH(const wchar_t *, text);
    QFETCH(const wchar_t *, sub);
    const CString string(text);
    QTEST(string.Find(sub), "position");
}

static int sign(int value)
{
    return (value > 0) - (value < 0);
}

void tst_CString::compare_data()
{
    QTest::addColumn<const wchar_t *>("other");
    QTest::addColumn<int>("result");

    QTest::newRow("equal") << wide(L"abc") << 0;
    QTest::newRow("longer") << wide(L"abcd") << -1;
    QTest::newRow("shorter") << wide(L"ab") << 1;
    QTest::newRow("greater") << wide(L"abd") << -1;
    QTest::newRow("upper case is less") << wide(L"ABC") << 1;
    QTest::newRow("empty") << wide(L"") << 1;
    QTest::newRow("null counts as empty") << wide(nullptr) << 1;
}

void tst_CString::compare()
{
    QFETCH(const wchar_t *, other);
    const CString string(L"abc");
    QTEST(sign(string.Compare(other)), "result");
    QCOMPARE(CString().Compare(nullptr), 0);
}

void tst_CString::compareNoCase_data()
{
    QTest::addColumn<const wchar_t *>("text");
    QTest::addColumn<const wchar_t *>("other");
    QTest::addColumn<int>("result");

    QTest::newRow("case differs") << wide(L"abc") << wide(L"ABC") << 0;
    QTest::newRow("prefix is less") << wide(L"ab") << wide(L"ABC") << -1;
    QTest::newRow("greater") << wide(L"abd") << wide(L"ABC") << 1;
    QTest::newRow("both empty") << wide(L"") << wide(L"") << 0;
    QTest::newRow("null counts as empty") << wide(L"a") << wide(nullptr) << 1;
    QTest::newRow("empty and null") << wide(L"") << wide(nullptr) << 0;
}

void tst_CString::compareNoCase()
{
    QFETCH(const wchar_t *, text);
    QFETCH(const wchar_t *, other);
    const CString string(text);
    QTEST(sign(string.CompareNoCase(other)), "result");
}

void tst_CString::holdsAMillionElements()
{
    const CString string(std::wstring(1000000, L'x') + L"end");
    QCOMPARE(string.GetLength(), 1000003);
    QCOMPARE(string.Find(L"end"), 1000000);
    QCOMPARE(string.ReverseFind(L'x'), 999999);
    QCOMPARE(stored(string.Mid(1000000)), QStringLiteral("end"));
    QCOMPARE((string + string).GetLength(), 2000006);
}

QTEST_MAIN(tst_CString)
#include "tst_CString.moc"
