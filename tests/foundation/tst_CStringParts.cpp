#include "KxString.h"

#include <QtTest>

#include <climits>

using namespace std::string_literals;

// Everything stored, embedded nulls too, in a form that a failed comparison prints.
static QString stored(const std::wstring &text)
{
    return QString::fromStdWString(text);
}

class tst_CStringParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void left_data();
    void left();
    void midWithCount_data();
    void midWithCount();
    void midToEnd_data();
    void midToEnd();
    void midCountsToTheFirstNull();
    void concatenationGivesPointers();
    void concatenationReusesTheLeftSide();
    void concatenationWithStandardString();
    void equalityIsThatOfTheStandardString();
};

void tst_CStringParts::left_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("result");

    QTest::newRow("minimum") << INT_MIN << QString();
    QTest::newRow("negative") << -5 << QString();
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("some") << 2 << QStringLiteral("ab");
    QTest::newRow("all") << 3 << QStringLiteral("abc");
    QTest::newRow("one more") << 4 << QStringLiteral("abc");
    QTest::newRow("maximum") << INT_MAX << QStringLiteral("abc");
}

void tst_CStringParts::left()
{
    QFETCH(int, count);
    QFETCH(QString, result);
    const CString string(L"abc");
    QCOMPARE(stored(string.Left(count)), result);
}

void tst_CStringParts::midWithCount_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("result");

    QTest::newRow("inside") << 2 << 3 << QStringLiteral("cde");
    QTest::newRow("negative first counts as 0") << -2 << 2 << QStringLiteral("ab");
    QTest::newRow("negative count counts as 0") << 2 << -1 << QString();
    QTest::newRow("past the end is cut") << 4 << 10 << QStringLiteral("ef");
    QTest::newRow("at the end") << 6 << 1 << QString();
    QTest::newRow("past the end") << 7 << 1 << QString();
    QTest::newRow("maximum count") << 1 << INT_MAX << QStringLiteral("bcdef");
    QTest::newRow("maximum both") << INT_MAX << INT_MAX << QString();
    QTest::newRow("minimum both") << INT_MIN << INT_MIN << QString();
}

void tst_CStringParts::midWithCount()
{
    QFETCH(int, first);
    QFETCH(int, count);
    QFETCH(QString, result);
    const CString string(L"abcdef");
    QCOMPARE(stored(string.Mid(first, count)), result);
}

void tst_CStringParts::midToEnd_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<QString>("result");

    QTest::newRow("minimum") << INT_MIN << QStringLiteral("abcdef");
    QTest::newRow("negative") << -1 << QStringLiteral("abcdef");
    QTest::newRow("first") << 0 << QStringLiteral("abcdef");
    QTest::newRow("last") << 5 << QStringLiteral("f");
    QTest::newRow("at the end") << 6 << QString();
    QTest::newRow("past the end") << 7 << QString();
    QTest::newRow("maximum") << INT_MAX << QString();
}

void tst_CStringParts::midToEnd()
{
    QFETCH(int, first);
    QFETCH(QString, result);
    const CString string(L"abcdef");
    QCOMPARE(stored(string.Mid(first)), result);
}

void tst_CStringParts::midCountsToTheFirstNull()
{
    const CString string(L"abc\0def"s);
    QCOMPARE(stored(string.Mid(1)), QStringLiteral("bc"));
    QCOMPARE(stored(string.Mid(-2)), stored(L"abc\0d"s));
    QCOMPARE(stored(string.Mid(4)), QString());
    QCOMPARE(stored(string.Mid(4, 2)), QStringLiteral("de"));
    QCOMPARE(stored(string.Left(5)), stored(L"abc\0d"s));
}

static QString passedAsPointer(const wchar_t *text)
{
    return stored(text);
}

void tst_CStringParts::concatenationGivesPointers()
{
    const CString a(L"a");
    const CString b(L"b");
    const wchar_t *null = nullptr;
    QCOMPARE(passedAsPointer(a + b), QStringLiteral("ab"));
    QCOMPARE(passedAsPointer(a + L"text"), QStringLiteral("atext"));
    QCOMPARE(passedAsPointer(L"text" + a), QStringLiteral("texta"));
    QCOMPARE(passedAsPointer(a + L'c'), QStringLiteral("ac"));
    QCOMPARE(passedAsPointer(a + null), QStringLiteral("a"));
    QCOMPARE(passedAsPointer(null + a), QStringLiteral("a"));
    QCOMPARE(passedAsPointer(a + b + L"-" + L'c' + (a + null) + null), QStringLiteral("ab-ca"));
    QCOMPARE(passedAsPointer(a), QStringLiteral("a"));
}

void tst_CStringParts::concatenationReusesTheLeftSide()
{
    CString left(L"left");
    left.reserve(100);
    const void *characters = left.c_str();
    const CString joined = std::move(left) + L"-" + L'x' + CString(L"right");
    QCOMPARE(stored(joined), QStringLiteral("left-xright"));
    QCOMPARE(static_cast<const void *>(joined.c_str()), characters);
}

void tst_CStringParts::concatenationWithStandardString()
{
    const CString a(L"a\0b"s);
    const std::wstring w(L"w");
    QCOMPARE(stored(a + w), stored(L"a\0bw"s));
    QCOMPARE(stored(w + a), stored(L"wa\0b"s));
    QCOMPARE(stored(a + std::wstring(L"w")), stored(L"a\0bw"s));
    QCOMPARE(stored(a + a), stored(L"a\0ba\0b"s));
}

void tst_CStringParts::equalityIsThatOfTheStandardString()
{
    const CString string(L"abc");
    QVERIFY(string == L"abc" && L"abc" == string && !(string == L"abcd"));
    QVERIFY(string != L"ABC" && L"ABC" != string && !(string != L"abc"));
    QVERIFY(string == CString("abc") && string != CString());
    QVERIFY(string == std::wstring(L"abc") && std::wstring(L"abd") != string);
    QVERIFY(CString(L"a\0b"s) != L"a");
}

QTEST_MAIN(tst_CStringParts)
#include "tst_CStringParts.moc"
