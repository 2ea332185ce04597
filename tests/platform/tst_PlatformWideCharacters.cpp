#include <KxPlatform.h>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <cerrno>
#include <climits>
#include <clocale>
#include <cmath>
#include <limits>

namespace {
constexpr double infinity = std::numeric_limits<double>::infinity();

// The C library's locale of a test, and the one from before after it.
class NumericLocale
{
public:
    explicit NumericLocale(const char *name)
        : m_set(std::setlocale(LC_NUMERIC, name))
    {
    }
    ~NumericLocale() { std::setlocale(LC_NUMERIC, "C"); }
    bool isSet() const { return m_set; }

private:
    const bool m_set;
};
} // namespace

class tst_PlatformWideCharacters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void wholeNumbers_data();
    void wholeNumbers();
    void floatingPoint_data();
    void floatingPoint();
    void floatingPointReadsWhatFormattingWrites_data();
    void floatingPointReadsWhatFormattingWrites();
    void floatingPointInALocaleWithDecimalComma();
    void numbersOfNull();
    void nextCharacter();
    void copy_data();
    void copy();
    void copyWithNull_data();
    void copyWithNull();
};

void tst_PlatformWideCharacters::initTestCase()
{
    std::setlocale(LC_NUMERIC, "C");
}

void tst_PlatformWideCharacters::wholeNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("asInt");
    QTest::addColumn<qlonglong>("asLong");

    const auto row = [](const char *name, const char *text, int asInt, qlonglong asLong) {
        QTest::newRow(name) << QString::fromUtf8(text) << asInt << asLong;
    };
    row("empty", "", 0, 0);
    row("zero", "0", 0, 0);
    row("positive", "42", 42, 42);
    row("negative", "-42", -42, -42);
    row("plus sign", "+7", 7, 7);
    row("two signs", "--7", 0, 0);
    row("sign alone", "-", 0, 0);
    row("space after the sign", "- 7", 0, 0);
    row("leading white space", " \t\n\v\f\r12", 12, 12);
    row("leading zeros", "007", 7, 7);
    row("leading digits", "12abc", 12, 12);
    row("letters first", "abc12", 0, 0);
    row("fraction", "3.9", 3, 3);
    row("hexadecimal is zero", "0x10", 0, 0);
    row("grouped", "1,234", 1, 1);
    row("largest int", "2147483647", INT_MAX, 2147483647);
    row("one above int", "2147483648", INT_MAX, 2147483648LL);
    row("smallest int", "-2147483648", INT_MIN, -2147483648LL);
    row("one below int", "-2147483649", INT_MIN, -2147483649LL);
    row("largest long", "9223372036854775807", INT_MAX, LLONG_MAX);
    row("one above long", "9223372036854775808", INT_MAX, LLONG_MAX);
    row("smallest long", "-9223372036854775808", INT_MIN, LLONG_MIN);
    row("one below long", "-9223372036854775809", INT_MIN, LLONG_MIN);
    row("far above long", "99999999999999999999999999", INT_MAX, LLONG_MAX);
    row("far below long", "-99999999999999999999999999", INT_MIN, LLONG_MIN);
    row("another script", "\xF0\x9F\x98\x80", 0, 0);
}

void tst_PlatformWideCharacters::wholeNumbers()
{
    QFETCH(QString, text);
    QFETCH(int, asInt);
    QFETCH(qlonglong, asLong);

    QCOMPARE(_wtoi(text.toStdWString().c_str()), asInt);
    QCOMPARE(qlonglong(_wtol(text.toStdWString().c_str())), asLong);
}

void tst_PlatformWideCharacters::floatingPoint_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");

    const auto row = [](const char *name, const char *text, double value) {
        QTest::newRow(name) << QString::fromUtf8(text) << value;
    };
    row("empty", "", 0);
    row("letters", "abc", 0);
    row("sign alone", "-", 0);
    row("point alone", ".", 0);
    row("whole", "12", 12);
    row("fraction", "1.5", 1.5);
    row("no whole part", ".5", 0.5);
    row("no fraction", "5.", 5);
    row("negative", "-2.25", -2.25);
    row("plus sign", "+2.25", 2.25);
    row("leading white space", " \t\n3.5", 3.5);
    row("exponent", "1e3", 1000);
    row("capital exponent", "1E-2", 0.01);
    row("exponent without digits", "1e", 1);
    row("leading number", "1.5kg", 1.5);
    row("decimal comma ends it", "1,5", 1);
    row("too large", "1e999", infinity);
    row("too large, negative", "-1e999", -infinity);
    row("too small", "1e-999", 0);
    row("infinity", "inf", infinity);
}

void tst_PlatformWideCharacters::floatingPoint()
{
    QFETCH(QString, text);
    QFETCH(double, value);

    const double read = _wtof(text.toStdWString().c_str());
    QVERIFY2(read == value, qPrintable(QString::number(read)));
}

void tst_PlatformWideCharacters::floatingPointReadsWhatFormattingWrites_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("six decimals") << 1234.567891;
    QTest::newRow("negative") << -0.5;
    QTest::newRow("large") << 1e15;
    QTest::newRow("infinity") << infinity;
}

void tst_PlatformWideCharacters::floatingPointReadsWhatFormattingWrites()
{
    QFETCH(double, value);
    wchar_t text[64] = {};
    QVERIFY(std::swprintf(text, 64, L"%f", value) > 0);
    QVERIFY(_wtof(text) == value);
}

void tst_PlatformWideCharacters::floatingPointInALocaleWithDecimalComma()
{
    const QTemporaryDir locales;
    QProcess compiler;
    compiler.start(QStringLiteral("localedef"),
                   {QStringLiteral("-i"), QStringLiteral("de_DE"), QStringLiteral("-f"),
                    QStringLiteral("UTF-8"), locales.filePath(QStringLiteral("de_DE.UTF-8"))});
    if (!compiler.waitForFinished() || compiler.exitCode() != 0) {
        // QSKIP() is not pedantic C++17.
        QTest::qSkip("no locale compiler or locale sources", __FILE__, __LINE__);
        return;
    }
    qputenv("LOCPATH", QFile::encodeName(locales.path()));
    const NumericLocale locale("de_DE.UTF-8");
    qunsetenv("LOCPATH");
    QVERIFY(locale.isSet());

    QCOMPARE(_wtof(L"1,5"), 1.5);
    QCOMPARE(_wtof(L"1.5"), 1.0);
    wchar_t text[64] = {};
    QVERIFY(std::swprintf(text, 64, L"%f", 2.75) > 0);
    QCOMPARE(_wtof(text), 2.75);
}

void tst_PlatformWideCharacters::numbersOfNull()
{
    QCOMPARE(_wtoi(nullptr), 0);
    QCOMPARE(_wtol(nullptr), 0L);
    QCOMPARE(_wtof(nullptr), 0.0);
}

void tst_PlatformWideCharacters::nextCharacter()
{
    const wchar_t text[] = L"a\U0001F600\u00E9";
    QCOMPARE(_wcsnextc(text), unsigned('a'));
    QVERIFY(_wcsinc(text) == text + 1);
    QCOMPARE(_wcsnextc(text + 1), 0x1F600U);
    QVERIFY(_wcsinc(text + 1) == text + 2);
    QCOMPARE(_wcsnextc(text + 2), 0xE9U);
    QVERIFY(_wcsinc(text + 2) == text + 3);
    QCOMPARE(_wcsnextc(text + 3), 0U);
    QVERIFY(!_wcsinc(nullptr));
    QCOMPARE(_wcsnextc(nullptr), 0U);
}

void tst_PlatformWideCharacters::copy_data()
{
    QTest::addColumn<int>("destSize");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("result");
    QTest::addColumn<QByteArray>("destAfter");

    const int room = 4;
    QTest::newRow("nothing") << room << 0 << 0 << QByteArray("....");
    QTest::newRow("nothing into no room") << 0 << 0 << 0 << QByteArray("....");
    QTest::newRow("one") << room << 1 << 0 << QByteArray("a...");
    QTest::newRow("all the room") << room << 4 << 0 << QByteArray("abcd");
    QTest::newRow("one too many") << room << 5 << ERANGE << QByteArray("\0\0\0\0", 4);
    QTest::newRow("less room is zeroed only") << 2 << 3 << ERANGE << QByteArray("\0\0..", 4);
    QTest::newRow("into no room") << 0 << 1 << ERANGE << QByteArray("....");
}

void tst_PlatformWideCharacters::copy()
{
    QFETCH(int, destSize);
    QFETCH(int, count);
    QFETCH(int, result);
    QFETCH(QByteArray, destAfter);

    QByteArray dest("....");
    QCOMPARE(memcpy_s(dest.data(), std::size_t(destSize), "abcdef", std::size_t(count)), result);
    QCOMPARE(dest, destAfter);
}

void tst_PlatformWideCharacters::copyWithNull_data()
{
    QTest::addColumn<bool>("hasDest");
    QTest::addColumn<bool>("hasSource");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("result");
    QTest::addColumn<QByteArray>("destAfter");

    const QByteArray untouched("....");
    QTest::newRow("no destination") << false << true << 2 << EINVAL << untouched;
    QTest::newRow("no destination, nothing to copy") << false << true << 0 << 0 << untouched;
    QTest::newRow("no source") << true << false << 2 << EINVAL << QByteArray("\0\0\0\0", 4);
    QTest::newRow("no source, one too many") << true << false << 5 << EINVAL << QByteArray("\0\0\0\0", 4);
    QTest::newRow("no source, nothing to copy") << true << false << 0 << 0 << untouched;
    QTest::newRow("neither") << false << false << 2 << EINVAL << untouched;
}

void tst_PlatformWideCharacters::copyWithNull()
{
    QFETCH(bool, hasDest);
    QFETCH(bool, hasSource);
    QFETCH(int, count);
    QFETCH(int, result);
    QFETCH(QByteArray, destAfter);

    QByteArray dest("....");
    void *into = hasDest ? dest.data() : nullptr;
    QCOMPARE(memcpy_s(into, 4, hasSource ? "abcdef" : nullptr, std::size_t(count)), result);
    QCOMPARE(dest, destAfter);
}

QTEST_MAIN(tst_PlatformWideCharacters)
#include "tst_PlatformWideCharacters.moc"
