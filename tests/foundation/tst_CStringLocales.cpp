#include "KxString.h"

#include <QtTest>

#include <string>

using namespace std::string_literals;

static QString stored(const std::wstring &text)
{
    return QString::fromStdWString(text);
}

// Sets the global locale for the life of the object.
class GlobalLocale
{
public:
    explicit GlobalLocale(const std::locale &locale)
        : m_previous(std::locale::global(locale))
    {
    }
    ~GlobalLocale() { std::locale::global(m_previous); }
    GlobalLocale(const GlobalLocale &) = delete;
    GlobalLocale &operator=(const GlobalLocale &) = delete;

private:
    std::locale m_previous;
};

// Letters have upper case '^' and lower case '_', and the underscore is white space.
class MarkingCtype : public std::ctype<wchar_t>
{
protected:
    wchar_t do_toupper(wchar_t) const override { return L'^'; }
    wchar_t do_tolower(wchar_t) const override { return L'_'; }
    bool do_is(mask mask, wchar_t ch) const override { return (mask & space) && ch == L'_'; }
};

// One element for a byte, up to the first '!', which it refuses.
class RefusingCodecvt : public std::codecvt<wchar_t, char, std::mbstate_t>
{
protected:
    result do_in(state_type &, const char *from, const char *fromEnd, const char *&fromNext, wchar_t *to,
                 wchar_t *toEnd, wchar_t *&toNext) const override
    {
        for (; from != fromEnd && to != toEnd && *from != '!'; ++from, ++to)
            *to = wchar_t(0x1F600 + *from);
        fromNext = from;
        toNext = to;
        return from == fromEnd ? ok : error;
    }
};

static std::locale marking()
{
    return std::locale(std::locale::classic(), new MarkingCtype);
}

static std::locale refusing()
{
    return std::locale(std::locale::classic(), new RefusingCodecvt);
}

class tst_CStringLocales : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void caseInTheClassicLocale();
    void caseUsesTheGlobalLocale();
    void caseUsesTheGivenLocale();
    void caselessComparisonIgnoresTheGlobalLocale();
    void trimmingUsesTheGlobalLocale();
    void narrowTextUsesTheGlobalLocale();
    void narrowTextEndsWhereConversionStops_data();
    void narrowTextEndsWhereConversionStops();
    void utf8_data();
    void utf8();
    void conversionTerminates_data();
    void conversionTerminates();
    void conversionWithoutRoomOrSource();
    void longNarrowText();
};

void tst_CStringLocales::caseInTheClassicLocale()
{
    const GlobalLocale global(std::locale::classic());
    CString string(L"aB1\0\u00e4z"s);
    QCOMPARE(&string.MakeUpper(), &string);
    QCOMPARE(stored(string), stored(L"AB1\0\u00e4Z"s));
    QCOMPARE(&string.MakeLower(), &string);
    QCOMPARE(stored(string), stored(L"ab1\0\u00e4z"s));
    QVERIFY(CString().MakeUpper().MakeLower().IsEmpty());
}

void tst_CStringLocales::caseUsesTheGlobalLocale()
{
    const GlobalLocale global(marking());
    QCOMPARE(stored(CString(L"ab").MakeUpper()), QStringLiteral("^^"));
    QCOMPARE(stored(CString(L"AB").MakeLower()), QStringLiteral("__"));
}

void tst_CStringLocales::caseUsesTheGivenLocale()
{
    const GlobalLocale global(std::locale::classic());
    CString string(L"ab");
    QCOMPARE(&string.toUpper(marking()), &string);
    QCOMPARE(stored(string), QStringLiteral("^^"));
    QCOMPARE(&string.ToLower(marking()), &string);
    QCOMPARE(stored(string), QStringLiteral("__"));
}

void tst_CStringLocales::caselessComparisonIgnoresTheGlobalLocale()
{
    const GlobalLocale global(marking());
    QVERIFY(CString(L"a").CompareNoCase(L"b") < 0);
    QCOMPARE(CString(L"a").CompareNoCase(L"A"), 0);
    QCOMPARE(ssicmp(L"a", L"c"), -2);
}

void tst_CStringLocales::trimmingUsesTheGlobalLocale()
{
    const GlobalLocale global(marking());
    QCOMPARE(stored(CString(L"__ x __").TrimLeft()), QStringLiteral(" x __"));
    QCOMPARE(stored(CString(L"__ x __").TrimRight()), QStringLiteral("__ x "));
}

void tst_CStringLocales::narrowTextUsesTheGlobalLocale()
{
    const GlobalLocale global(refusing());
    QCOMPARE(stored(CString("\1\2")), stored(L"\U0001F601\U0001F602"));
    CString string(L"former");
    string = "\3";
    QCOMPARE(stored(string), stored(L"\U0001F603"));
}

void tst_CStringLocales::narrowTextEndsWhereConversionStops_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("length");

    QTest::newRow("at the front") << QByteArray("!abc") << 0;
    QTest::newRow("inside") << QByteArray("ab!c") << 2;
    QTest::newRow("at the end") << QByteArray("abc!") << 3;
}

void tst_CStringLocales::narrowTextEndsWhereConversionStops()
{
    QFETCH(QByteArray, text);
    const GlobalLocale global(refusing());
    CString string(L"a longer former text");
    string = text.constData();
    QTEST(int(string.size()), "length");
    QCOMPARE(int(CString(text.constData()).size()), int(string.size()));
}

void tst_CStringLocales::utf8_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    QTest::newRow("ASCII") << QByteArray("abc") << QStringLiteral("abc");
    QTest::newRow("two bytes") << QByteArray("a\xc3\xa4z") << QStringLiteral("a\u00e4z");
    QTest::newRow("above the BMP") << QByteArray("\xf0\x9f\x98\x80") << QStringLiteral("\U0001F600");
    QTest::newRow("invalid byte") << QByteArray("ab\xff"
                                                "cd")
                                  << QStringLiteral("ab");
    QTest::newRow("invalid at once") << QByteArray("\xff") << QString();
    QTest::newRow("incomplete at the end") << QByteArray("ab\xc3") << QStringLiteral("ab");
}

void tst_CStringLocales::utf8()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    const GlobalLocale global(std::locale("C.UTF-8"));
    QCOMPARE(stored(CString(bytes.constData())), text);
}

void tst_CStringLocales::conversionTerminates_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("sourceLength");
    QTest::addColumn<QString>("result");

    QTest::newRow("all of it") << 4 << 3 << QStringLiteral("abc");
    QTest::newRow("exact room") << 3 << 3 << QStringLiteral("abc");
    QTest::newRow("too little room") << 2 << 3 << QStringLiteral("ab");
    QTest::newRow("part of the source") << 4 << 1 << QStringLiteral("a");
    QTest::newRow("no source") << 4 << 0 << QString();
    QTest::newRow("negative source") << 4 << -1 << QString();
    QTest::newRow("no room") << 0 << 3 << QString();
    QTest::newRow("negative room") << -1 << 3 << QString();
}

void tst_CStringLocales::conversionTerminates()
{
    QFETCH(int, room);
    QFETCH(int, sourceLength);
    QFETCH(QString, result);

    wchar_t buffer[] = L"######";
    QCOMPARE(StdCodeCvt(buffer, room, "abc", sourceLength, std::locale::classic()), &buffer[0]);
    QCOMPARE(stored(buffer), result);
    QCOMPARE(buffer[qMax(room, 0) + 1], L'#');
}

void tst_CStringLocales::conversionWithoutRoomOrSource()
{
    wchar_t buffer[] = L"##";
    StdCodeCvt(buffer, 2, nullptr, 2, std::locale::classic());
    QCOMPARE(buffer[0], L'\0');
    QVERIFY(!StdCodeCvt(nullptr, 2, "ab", 2, std::locale::classic()));
}

void tst_CStringLocales::longNarrowText()
{
    const GlobalLocale global(std::locale::classic());
    const std::string text(1000000, 'x');
    const CString string(text.c_str());
    QCOMPARE(string.GetLength(), 1000000);
    QCOMPARE(int(string.size()), 1000000);
}

QTEST_MAIN(tst_CStringLocales)
#include "tst_CStringLocales.moc"
