#include "KxString.h"

#include <QtTest>

#include <algorithm>
#include <climits>

using namespace std::string_literals;

Q_DECLARE_METATYPE(const wchar_t *)

// A table cell: literals of different lengths are one type.
static const wchar_t *wide(const wchar_t *text)
{
    return text;
}

static QString stored(const std::wstring &text)
{
    return QString::fromStdWString(text);
}

class tst_CStringFunctions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sslenCountsToTheNull();
    void ssasnOnStandardStrings();
    void ssasnNarrow();
    void ssaddOnStandardStrings();
    void ssicmpGivesTheDifference_data();
    void ssicmpGivesTheDifference();
    void ssicmpOnNarrowText();
    void caseFunctionsTakeALocale();
    void functionObjectsBindToALocale();
    void notSpace();
    void ssvsprintfIsTheLibraryFunction();
    void trim_data();
    void trim();
};

void tst_CStringFunctions::sslenCountsToTheNull()
{
    QCOMPARE(sslen(L"abc"), 3);
    QCOMPARE(sslen(L"ab\0c"), 2);
    QCOMPARE(sslen(L""), 0);
    QCOMPARE(sslen("narrow"), 6);
    QCOMPARE(sslen(static_cast<const wchar_t *>(nullptr)), 0);
    QCOMPARE(sslen(static_cast<const char *>(nullptr)), 0);
}

void tst_CStringFunctions::ssasnOnStandardStrings()
{
    std::wstring target(L"former");
    ssasn(target, L"a\0b"s);
    QCOMPARE(stored(target), stored(L"a\0b"s));
    ssasn(target, target);
    QCOMPARE(stored(target), stored(L"a\0b"s));
    ssasn(target, target.c_str() + 1);
    QCOMPARE(stored(target), stored(L"\0b"s));
    ssasn(target, L"text");
    QCOMPARE(stored(target), QStringLiteral("text"));
    ssasn(target, static_cast<const wchar_t *>(nullptr));
    QVERIFY(target.empty());
}

void tst_CStringFunctions::ssasnNarrow()
{
    std::wstring target(L"a longer former text");
    ssasn(target, "abc");
    QCOMPARE(stored(target), QStringLiteral("abc"));
    ssasn(target, "");
    QVERIFY(target.empty());
    target = L"former";
    ssasn(target, static_cast<const char *>(nullptr));
    QVERIFY(target.empty());
}

void tst_CStringFunctions::ssaddOnStandardStrings()
{
    std::wstring target(L"ab");
    ssadd(target, L"\0c"s);
    QCOMPARE(stored(target), stored(L"ab\0c"s));
    ssadd(target, target.c_str() + 3);
    QCOMPARE(stored(target), stored(L"ab\0cc"s));
    ssadd(target, target);
    QCOMPARE(stored(target), stored(L"ab\0ccab\0cc"s));
    ssadd(target, static_cast<const wchar_t *>(nullptr));
    QCOMPARE(int(target.size()), 10);
}

void tst_CStringFunctions::ssicmpGivesTheDifference_data()
{
    QTest::addColumn<const wchar_t *>("left");
    QTest::addColumn<const wchar_t *>("right");
    QTest::addColumn<int>("result");

    const wchar_t *null = nullptr;
    QTest::newRow("equal") << wide(L"abc") << wide(L"ABC") << 0;
    QTest::newRow("empty") << wide(L"") << wide(L"") << 0;
    QTest::newRow("lowered before the comparison") << wide(L"B") << wide(L"a") << 1;
    QTest::newRow("between the cases") << wide(L"_") << wide(L"A") << '_' - 'a';
    QTest::newRow("prefix") << wide(L"ab") << wide(L"abC") << -int('c');
    QTest::newRow("longer") << wide(L"abC") << wide(L"ab") << int('c');
    QTest::newRow("both null") << null << null << 0;
    QTest::newRow("left null") << null << wide(L"a") << -int('a');
    QTest::newRow("right null") << wide(L"a") << null << int('a');
    QTest::newRow("only ASCII has two cases") << wide(L"\u00c4") << wide(L"\u00e4") << 0xc4 - 0xe4;
    QTest::newRow("above the BMP") << wide(L"\U0001F600") << wide(L"\U0001F601") << -1;
}

void tst_CStringFunctions::ssicmpGivesTheDifference()
{
    QFETCH(const wchar_t *, left);
    QFETCH(const wchar_t *, right);
    QTEST(ssicmp(left, right), "result");
}

void tst_CStringFunctions::ssicmpOnNarrowText()
{
    QCOMPARE(ssicmp("Name", "nAME"), 0);
    QCOMPARE(ssicmp("a", "B"), -1);
    QCOMPARE(ssicmp(static_cast<const char *>(nullptr), "a"), -int('a'));
}

void tst_CStringFunctions::caseFunctionsTakeALocale()
{
    const std::locale &classic = std::locale::classic();
    QCOMPARE(sstoupper(L'a', classic), L'A');
    QCOMPARE(sstolower(L'A', classic), L'a');
    QCOMPARE(sstoupper('a', classic), 'A');
    QCOMPARE(SSToUpper<>()(L'z', classic), L'Z');
    QCOMPARE(SSToLower<>()(L'Z', classic), L'z');
}

void tst_CStringFunctions::functionObjectsBindToALocale()
{
    std::wstring text(L"aBc");
    // std::bind2nd is deprecated in C++17, but ported code binds with it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    const auto upper = std::bind2nd(SSToUpper<wchar_t>(), std::locale::classic());
    const auto lower = std::bind2nd(SSToLower<wchar_t>(), std::locale::classic());
#pragma GCC diagnostic pop
    std::transform(text.begin(), text.end(), text.begin(), upper);
    QCOMPARE(stored(text), QStringLiteral("ABC"));
    std::transform(text.begin(), text.end(), text.begin(), lower);
    QCOMPARE(stored(text), QStringLiteral("abc"));
}

void tst_CStringFunctions::notSpace()
{
    const NotSpace isNotSpace(std::locale::classic());
    for (wchar_t space : L" \t\n\v\f\r"s)
        QVERIFY(!isNotSpace(space));
    for (wchar_t other : L"a_0\0\u00a0"s)
        QVERIFY(isNotSpace(other));
    QVERIFY(NotSpace<char>()('x'));
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    QVERIFY(std::not1(isNotSpace)(L' '));
#pragma GCC diagnostic pop
}

static int printTo(wchar_t *buffer, std::size_t count, const wchar_t *format, ...)
{
    va_list args;
    va_start(args, format);
    const int result = ssvsprintf(buffer, count, format, args);
    va_end(args);
    return result;
}

void tst_CStringFunctions::ssvsprintfIsTheLibraryFunction()
{
    wchar_t buffer[8] = L"former";
    QCOMPARE(printTo(buffer, 8, L"%d-%ls", 7, L"x"), 3);
    QCOMPARE(stored(buffer), QStringLiteral("7-x"));
    QCOMPARE(printTo(buffer, 8, L"%ls", L"1234567"), 7);
    QVERIFY(printTo(buffer, 8, L"%ls", L"12345678") < 0);
}

void tst_CStringFunctions::trim_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");

    const QString text = QStringLiteral(" \ttab ");
    QTest::newRow("empty") << QString() << QString() << QString();
    QTest::newRow("all space") << QStringLiteral(" \t\r\n") << QString() << QString();
    QTest::newRow("nothing to trim") << QStringLiteral("a b") << QStringLiteral("a b")
                                     << QStringLiteral("a b");
    QTest::newRow("both ends") << text << QStringLiteral("tab ") << QStringLiteral(" \ttab");
    QTest::newRow("last element repeated")
        << QStringLiteral("abba  ") << QStringLiteral("abba  ") << QStringLiteral("abba");
    QTest::newRow("one element") << QStringLiteral(" x ") << QStringLiteral("x ") << QStringLiteral(" x");
    QTest::newRow("no-break space stays")
        << QStringLiteral("\u00a0x\u00a0") << QStringLiteral("\u00a0x\u00a0")
        << QStringLiteral("\u00a0x\u00a0");
    QTest::newRow("null is no space") << QString(QChar(0)) << QString(QChar(0)) << QString(QChar(0));
}

void tst_CStringFunctions::trim()
{
    QFETCH(QString, text);
    QFETCH(QString, left);
    QFETCH(QString, right);

    CString trimmedLeft(text.toStdWString());
    QCOMPARE(&trimmedLeft.TrimLeft(), &trimmedLeft);
    QCOMPARE(stored(trimmedLeft), left);

    CString trimmedRight(text.toStdWString());
    QCOMPARE(&trimmedRight.TrimRight(), &trimmedRight);
    QCOMPARE(stored(trimmedRight), right);
}

QTEST_MAIN(tst_CStringFunctions)
#include "tst_CStringFunctions.moc"
