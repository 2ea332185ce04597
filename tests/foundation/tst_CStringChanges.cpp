#include "KxString.h"

#include <QtTest>

#include <climits>
#include <cwchar>

using namespace std::string_literals;

Q_DECLARE_METATYPE(const wchar_t *)
Q_DECLARE_METATYPE(std::wstring)

// A table cell: literals of different lengths are one type.
static const wchar_t *wide(const wchar_t *text)
{
    return text;
}

// Everything stored, embedded nulls too, in a form that a failed comparison prints.
static QString stored(const std::wstring &text)
{
    return QString::fromStdWString(text);
}

class tst_CStringChanges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void assignsOwnTail_data();
    void assignsOwnTail();
    void assignsItself();
    void assignsAnotherString();
    void assignsNarrowText();
    void appendsText_data();
    void appendsText();
    void appendsItself();
    void appendsOwnTail_data();
    void appendsOwnTail();
    void appendsEmbeddedNulls();
    void getBuffer_data();
    void getBuffer();
    void getBufferOfAnEmptyString();
    void releaseBuffer_data();
    void releaseBuffer();
    void writtenBufferIsCutAtItsNull();
};

void tst_CStringChanges::assignsOwnTail_data()
{
    QTest::addColumn<std::wstring>("text");
    QTest::addColumn<int>("offset");
    QTest::addColumn<std::wstring>("result");

    const std::wstring large(1000, L'x');
    QTest::newRow("first element") << L"abcdef"s << 0 << L"abcdef"s;
    QTest::newRow("inside") << L"abcdef"s << 2 << L"cdef"s;
    QTest::newRow("last element") << L"abcdef"s << 5 << L"f"s;
    QTest::newRow("terminator") << L"abcdef"s << 6 << L""s;
    QTest::newRow("keeps embedded nulls") << L"ab\0cd\0"s << 1 << L"b\0cd\0"s;
    QTest::newRow("from an embedded null") << L"ab\0cd"s << 2 << L"\0cd"s;
    QTest::newRow("large") << large + L"end"s << 1000 << L"end"s;
}

void tst_CStringChanges::assignsOwnTail()
{
    QFETCH(std::wstring, text);
    QFETCH(int, offset);
    QFETCH(std::wstring, result);

    CString string(text);
    string = string.c_str() + offset;
    QCOMPARE(stored(string), stored(result));
}

void tst_CStringChanges::assignsItself()
{
    CString string(L"ab\0cd"s);
    const CString &same = string;
    const void *characters = string.c_str();
    QCOMPARE(&(string = same), &string);
    QCOMPARE(stored(string), stored(L"ab\0cd"s));
    QCOMPARE(static_cast<const void *>(string.c_str()), characters);
}

void tst_CStringChanges::assignsAnotherString()
{
    const CString source(L"a\0b"s);
    CString string(L"a longer former text");
    string = source;
    QCOMPARE(stored(string), stored(L"a\0b"s));
    string = std::wstring(L"standard");
    QCOMPARE(stored(string), QStringLiteral("standard"));
    string = CString();
    QVERIFY(string.IsEmpty());
    string = L'x';
    QCOMPARE(stored(string), QStringLiteral("x"));
}

void tst_CStringChanges::assignsNarrowText()
{
    CString string(L"a longer former text");
    string = "abc";
    QCOMPARE(stored(string), QStringLiteral("abc"));
    string = "";
    QVERIFY(string.IsEmpty());

    string = L"former";
    string = static_cast<const char *>(nullptr);
    QVERIFY(string.IsEmpty());
}

void tst_CStringChanges::appendsText_data()
{
    QTest::addColumn<const wchar_t *>("tail");
    QTest::addColumn<QString>("result");

    QTest::newRow("null") << wide(nullptr) << QStringLiteral("ab");
    QTest::newRow("empty") << wide(L"") << QStringLiteral("ab");
    QTest::newRow("text") << wide(L"cd") << QStringLiteral("abcd");
}

void tst_CStringChanges::appendsText()
{
    QFETCH(const wchar_t *, tail);
    QFETCH(QString, result);

    CString string(L"ab");
    QCOMPARE(&(string += tail), &string);
    QCOMPARE(stored(string), result);
    string += L'!';
    QCOMPARE(stored(string), result + QLatin1Char('!'));
}

void tst_CStringChanges::appendsItself()
{
    CString string(L"ab");
    for (int round = 0; round < 10; ++round)
        string += string;
    QCOMPARE(string.GetLength(), 2048);
    QCOMPARE(stored(string.Mid(2046)), QStringLiteral("ab"));
}

void tst_CStringChanges::appendsOwnTail_data()
{
    QTest::addColumn<int>("capacity");

    QTest::newRow("within the capacity") << 500;
    QTest::newRow("beyond the capacity") << 0;
}

void tst_CStringChanges::appendsOwnTail()
{
    QFETCH(int, capacity);

    CString string(std::wstring(100, L'x') + L"tail");
    string.shrink_to_fit();
    string.reserve(std::size_t(capacity));
    string += string.c_str() + 100;
    QCOMPARE(stored(string), QString(100, QLatin1Char('x')) + QStringLiteral("tailtail"));
}

void tst_CStringChanges::appendsEmbeddedNulls()
{
    CString string(L"a");
    string += CString(L"\0b"s);
    string += L'\0';
    QCOMPARE(stored(string), stored(L"a\0b\0"s));
    QCOMPARE(string.GetLength(), 1);
}

void tst_CStringChanges::getBuffer_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<std::wstring>("result");

    QTest::newRow("minimum") << INT_MIN << L"abc"s;
    QTest::newRow("negative") << -1 << L"abc"s;
    QTest::newRow("none") << 0 << L"abc"s;
    QTest::newRow("never shrinks") << 2 << L"abc"s;
    QTest::newRow("same size") << 3 << L"abc"s;
    QTest::newRow("grows by nulls") << 6 << L"abc\0\0\0"s;
}

void tst_CStringChanges::getBuffer()
{
    QFETCH(int, count);
    QFETCH(std::wstring, result);

    CString string(L"abc");
    const void *characters = string.GetBuffer(count);
    QCOMPARE(characters, static_cast<const void *>(string.c_str()));
    QCOMPARE(stored(string), stored(result));

    CString twin(L"abc");
    characters = twin.GetBuf(count);
    QCOMPARE(characters, static_cast<const void *>(twin.c_str()));
    QCOMPARE(stored(twin), stored(result));
}

void tst_CStringChanges::getBufferOfAnEmptyString()
{
    CString string;
    const wchar_t *text = string.GetBuffer(0);
    QVERIFY(text);
    QCOMPARE(*text, L'\0');
}

void tst_CStringChanges::releaseBuffer_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<std::wstring>("result");

    QTest::newRow("minimum cuts at the null") << INT_MIN << L"ab"s;
    QTest::newRow("-1 cuts at the null") << -1 << L"ab"s;
    QTest::newRow("none") << 0 << L""s;
    QTest::newRow("fewer") << 1 << L"a"s;
    QTest::newRow("keeps nulls") << 4 << L"ab\0c"s;
    QTest::newRow("more grows by nulls") << 7 << L"ab\0cd\0\0"s;
}

void tst_CStringChanges::releaseBuffer()
{
    QFETCH(int, count);
    QFETCH(std::wstring, result);

    CString string(L"ab\0cd"s);
    string.ReleaseBuffer(count);
    QCOMPARE(stored(string), stored(result));

    CString twin(L"ab\0cd"s);
    twin.RelBuf(count);
    QCOMPARE(stored(twin), stored(result));
}

void tst_CStringChanges::writtenBufferIsCutAtItsNull()
{
    CString string;
    std::wcscpy(string.GetBuffer(10), L"hi");
    QCOMPARE(int(string.size()), 10);
    string.ReleaseBuffer();
    QCOMPARE(string.GetLength(), 2);
    QCOMPARE(int(string.size()), 2);
    QVERIFY(!string.IsEmpty());
}

QTEST_MAIN(tst_CStringChanges)
#include "tst_CStringChanges.moc"
