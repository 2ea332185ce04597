#include "KxString.h"

#include <QtTest>

#include <clocale>
#include <cwchar>

static QString stored(const std::wstring &text)
{
    return QString::fromStdWString(text);
}

// The C library's output into a buffer of nulls, cut at the first null: what Format() must leave in every
// case.
static std::wstring fromClearedBuffer(const wchar_t *format, ...)
{
    std::wstring buffer(std::wcslen(format) + 1024, L'\0');
    va_list args;
    va_start(args, format);
    std::vswprintf(&buffer[0], buffer.size() - 1, format, args);
    va_end(args);
    buffer.resize(std::wcslen(buffer.c_str()));
    return buffer;
}

// Leaves letters where the next calls have their local buffers.
static int leaveGarbageOnTheStack()
{
    volatile wchar_t garbage[8192];
    for (volatile wchar_t &element : garbage)
        element = L'G';
    return garbage[4096];
}

template <typename... Args> static CString formatted(const wchar_t *format, Args... args)
{
    leaveGarbageOnTheStack();
    CString string(L"former text");
    string.Format(format, args...);
    return string;
}

static void formatList(CString &string, const wchar_t *format, ...)
{
    va_list args;
    va_start(args, format);
    string.FormatV(format, args);
    va_end(args);
}

class Utf8Locale
{
public:
    Utf8Locale() { m_set = std::setlocale(LC_CTYPE, "C.UTF-8"); }
    ~Utf8Locale() { std::setlocale(LC_CTYPE, m_previous.c_str()); }
    bool isSet() const { return m_set; }

private:
    std::string m_previous = std::setlocale(LC_CTYPE, nullptr);
    bool m_set = false;
};

class tst_CStringFormat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formats();
    void formatsAList();
    void narrowConversionTakesNarrowText();
    void nullFormatEmpties();
    void emptyFormatEmpties();
    void keepsWhatFits_data();
    void keepsWhatFits();
    void paddingOverflows();
    void longFormats_data();
    void longFormats();
    void invalidMultibyteText_data();
    void invalidMultibyteText();
    void invalidFormat();
    void nullElementEndsTheText();
    void aboveTheBmp();
    void argumentsMayPointIntoTheString();
    void formatMayBeTheString();
};

void tst_CStringFormat::formats()
{
    QCOMPARE(stored(formatted(L"%d-%ls", 7, L"x")), QStringLiteral("7-x"));
    QCOMPARE(stored(formatted(L"%05.1f|%-4d|%#x|%%", 2.25, 3, 255u)), QStringLiteral("002.2|3   |0xff|%"));
}

void tst_CStringFormat::formatsAList()
{
    CString string(L"former");
    formatList(string, L"%d-%ls", 7, L"x");
    QCOMPARE(stored(string), QStringLiteral("7-x"));
    formatList(string, nullptr);
    QVERIFY(string.IsEmpty());
}

void tst_CStringFormat::narrowConversionTakesNarrowText()
{
    QCOMPARE(stored(formatted(L"<%s>", "narrow")), QStringLiteral("<narrow>"));
}

void tst_CStringFormat::nullFormatEmpties()
{
    QVERIFY(formatted(nullptr).IsEmpty());
}

void tst_CStringFormat::emptyFormatEmpties()
{
    QVERIFY(formatted(L"").IsEmpty());
}

void tst_CStringFormat::keepsWhatFits_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("kept");

    // The format has three characters, so that 1025 are kept.
    QTest::newRow("one less") << 1024 << 1024;
    QTest::newRow("exact fit") << 1025 << 1025;
    QTest::newRow("one more") << 1026 << 1025;
    QTest::newRow("a million") << 1000000 << 1025;
}

void tst_CStringFormat::keepsWhatFits()
{
    QFETCH(int, length);
    QFETCH(int, kept);

    const std::wstring text(std::size_t(length), L'x');
    const CString string = formatted(L"%ls", text.c_str());
    QCOMPARE(string.GetLength(), kept);
    QCOMPARE(stored(string), stored(fromClearedBuffer(L"%ls", text.c_str())));
}

void tst_CStringFormat::paddingOverflows()
{
    QCOMPARE(stored(formatted(L"%2000d|", 7)), stored(fromClearedBuffer(L"%2000d|", 7)));
    QCOMPARE(stored(formatted(L"%-2000d|", 7)), stored(fromClearedBuffer(L"%-2000d|", 7)));
    QCOMPARE(stored(formatted(L"%.2000f|", 0.5)), stored(fromClearedBuffer(L"%.2000f|", 0.5)));
}

void tst_CStringFormat::longFormats_data()
{
    QTest::addColumn<int>("formatLength");
    QTest::addColumn<int>("argumentLength");

    QTest::newRow("256 characters, short") << 256 << 5;
    QTest::newRow("256 characters, overflow") << 256 << 2000;
    QTest::newRow("257 characters, short") << 257 << 5;
    QTest::newRow("257 characters, exact fit") << 257 << 1025;
    QTest::newRow("257 characters, overflow") << 257 << 1026;
    QTest::newRow("a million characters") << 1000000 << 5;
}

void tst_CStringFormat::longFormats()
{
    QFETCH(int, formatLength);
    QFETCH(int, argumentLength);

    const std::wstring format = std::wstring(std::size_t(formatLength) - 3, L'f') + L"%ls";
    const std::wstring argument(std::size_t(argumentLength), L'a');
    const CString string = formatted(format.c_str(), argument.c_str());
    QCOMPARE(string.GetLength(), formatLength - 3 + qMin(argumentLength, 1025));
    QCOMPARE(stored(string), stored(fromClearedBuffer(format.c_str(), argument.c_str())));
}

void tst_CStringFormat::invalidMultibyteText_data()
{
    QTest::addColumn<QByteArray>("argument");

    QTest::newRow("at the front") << QByteArray("\xff");
    QTest::newRow("after some text") << QByteArray("ab\xff"
                                                   "cd");
    QTest::newRow("incomplete at the end") << QByteArray("ab\xc3");
}

void tst_CStringFormat::invalidMultibyteText()
{
    QFETCH(QByteArray, argument);
    const Utf8Locale locale;
    QVERIFY(locale.isSet());

    const CString string = formatted(L"before %s after", argument.constData());
    QCOMPARE(stored(string), stored(fromClearedBuffer(L"before %s after", argument.constData())));
    QVERIFY(string.Find(L'G') < 0);
}

void tst_CStringFormat::invalidFormat()
{
    for (const wchar_t *format : {L"%", L"abc%", L"abc%l", L"%d %", L"%y %d"})
        QCOMPARE(stored(formatted(format, 7)), stored(fromClearedBuffer(format, 7)));
}

void tst_CStringFormat::nullElementEndsTheText()
{
    const CString string = formatted(L"ab%lccd", wint_t(0));
    QCOMPARE(int(string.size()), 2);
    QCOMPARE(stored(string), QStringLiteral("ab"));
    QVERIFY(formatted(L"%lc", wint_t(0)).IsEmpty());
}

void tst_CStringFormat::aboveTheBmp()
{
    const CString string = formatted(L"%lc\U0001F600%ls", wint_t(0x1F601), L"\U0010FFFF");
    QCOMPARE(stored(string), stored(L"\U0001F601\U0001F600\U0010FFFF"));
    QCOMPARE(string.GetLength(), 3);
}

void tst_CStringFormat::argumentsMayPointIntoTheString()
{
    CString string(L"self");
    string.Format(L"%ls!", string.c_str());
    QCOMPARE(stored(string), QStringLiteral("self!"));

    string = CString(std::wstring(300, L'x'));
    string.Format(L"%ls!", string.c_str());
    QCOMPARE(string.GetLength(), 301);
    QCOMPARE(string.GetAt(300), L'!');
}

void tst_CStringFormat::formatMayBeTheString()
{
    CString string(L"<%d>");
    string.Format(string.c_str(), 42);
    QCOMPARE(stored(string), QStringLiteral("<42>"));
}

QTEST_MAIN(tst_CStringFormat)
#include "tst_CStringFormat.moc"
