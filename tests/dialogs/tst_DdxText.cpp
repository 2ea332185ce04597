#include "ExchangeForm.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <cfloat>
#include <climits>
#include <clocale>
#include <cmath>
#include <limits>

using Load = std::function<void(CDataExchange *)>;
using RoundTrip = std::function<bool()>;
Q_DECLARE_METATYPE(Load)
Q_DECLARE_METATYPE(RoundTrip)

static constexpr int controlID = ExchangeForm::controlID;

/// What a member becomes when a line edit with the text is saved.
template <typename Number> static Number saved(const QString &text, Number before = Number(77))
{
    ExchangeForm form;
    form.add<QLineEdit>()->setText(text);
    Number value = before;
    form.save([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, value); });
    return value;
}

template <typename Value> static Load loads(Value value)
{
    return [value](CDataExchange *exchange) {
        Value member = value;
        DDX_Text(exchange, controlID, member);
    };
}

template <typename Value> static RoundTrip roundTrip(Value value)
{
    return [value] {
        ExchangeForm form;
        form.add<QLineEdit>();
        Value member = value;
        form.load([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, member); });
        member = Value();
        form.save([&](CDataExchange *exchange) { DDX_Text(exchange, controlID, member); });
        return member == value;
    };
}

class tst_DdxText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void saveInteger_data();
    void saveInteger();
    void saveReal_data();
    void saveReal();
    void saveNotANumber();
    void saveString_data();
    void saveString();
    void load_data();
    void load();
    void loadLeavesTheMember();
    void roundTrips_data();
    void roundTrips();
};

void tst_DdxText::initTestCase()
{
    // The decimal point is that of the C library's locale.
    std::setlocale(LC_ALL, "C");
}

void tst_DdxText::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QVERIFY(CWndHandleTable.empty());
}

void tst_DdxText::saveInteger_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("byteValue");
    QTest::addColumn<int>("shortValue");
    QTest::addColumn<int>("intValue");
    QTest::addColumn<unsigned int>("unsignedValue");
    QTest::addColumn<qint64>("longValue");

    const auto row = [](const char *name, const char *text, int byteValue, int shortValue, int intValue,
                        qint64 longValue) {
        QTest::newRow(name) << QString::fromUtf8(text) << byteValue << shortValue << intValue
                            << static_cast<unsigned int>(intValue) << longValue;
    };
    row("empty keeps the member", "", 77, 77, 77, 77);
    row("zero", "0", 0, 0, 0, 0);
    row("digits", "42", 42, 42, 42, 42);
    row("plus sign", "+42", 42, 42, 42, 42);
    row("minus sign", "-42", 214, -42, -42, -42);
    row("leading blanks", "  42", 42, 42, 42, 42);
    row("leading tab", "\t42", 42, 42, 42, 42);
    row("trailing blanks", "42  ", 42, 42, 42, 42);
    row("blanks only", "   ", 0, 0, 0, 0);
    row("leading zeros are not octal", "010", 10, 10, 10, 10);
    row("leading digits", "12abc", 12, 12, 12, 12);
    row("no digits", "abc", 0, 0, 0, 0);
    row("sign only", "-", 0, 0, 0, 0);
    row("two signs", "--5", 0, 0, 0, 0);
    row("sign apart", "- 5", 0, 0, 0, 0);
    row("hexadecimal prefix", "0x1F", 0, 0, 0, 0);
    row("fraction", "3.9", 3, 3, 3, 3);
    row("exponent", "1e3", 1, 1, 1, 1);
    row("group separator", "1,234", 1, 1, 1, 1);
    row("digits of another script", "\xEF\xBC\x91\xEF\xBC\x92", 0, 0, 0, 0);
    row("character beyond the BMP after", "12\xF0\x9F\x98\x80", 12, 12, 12, 12);
    row("character beyond the BMP before",
        "\xF0\x9F\x98\x80"
        "12",
        0, 0, 0, 0);
    row("8 bits all set", "255", 255, 255, 255, 255);
    row("first beyond 8 bits", "256", 0, 256, 256, 256);
    row("beyond 8 bits", "300", 44, 300, 300, 300);
    row("largest short", "32767", 255, 32767, 32767, 32767);
    row("first beyond short", "32768", 0, -32768, 32768, 32768);
    row("smallest short", "-32768", 0, -32768, -32768, -32768);
    row("first below short", "-32769", 255, 32767, -32769, -32769);
    row("beyond 16 bits", "70000", 112, 4464, 70000, 70000);
    row("largest int", "2147483647", 255, -1, INT_MAX, INT_MAX);
    row("smallest int", "-2147483648", 0, 0, INT_MIN, INT_MIN);
    row("first beyond int", "2147483648", 255, -1, INT_MAX, 2147483648);
    row("first below int", "-2147483649", 0, 0, INT_MIN, -2147483649);
    row("largest unsigned int", "4294967295", 255, -1, INT_MAX, 4294967295);
    row("largest long", "9223372036854775807", 255, -1, INT_MAX, LONG_MAX);
    row("smallest long", "-9223372036854775808", 0, 0, INT_MIN, LONG_MIN);
    row("first beyond long", "9223372036854775808", 255, -1, INT_MAX, LONG_MAX);
    row("first below long", "-9223372036854775809", 0, 0, INT_MIN, LONG_MIN);
    row("hundred digits", QByteArray(100, '9').constData(), 255, -1, INT_MAX, LONG_MAX);
}

void tst_DdxText::saveInteger()
{
    QFETCH(QString, text);
    QFETCH(int, byteValue);
    QFETCH(int, shortValue);
    QFETCH(int, intValue);
    QFETCH(unsigned int, unsignedValue);
    QFETCH(qint64, longValue);

    QCOMPARE(int(saved<unsigned char>(text)), byteValue);
    QCOMPARE(int(saved<short>(text)), shortValue);
    QCOMPARE(saved<int>(text), intValue);
    QCOMPARE(saved<unsigned int>(text), unsignedValue);
    QCOMPARE(saved<long>(text), static_cast<long>(longValue));
    QCOMPARE(saved<unsigned long>(text), static_cast<unsigned long>(longValue));
}

void tst_DdxText::saveReal_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("result");

    QTest::newRow("empty keeps the member") << QString() << 77.0;
    QTest::newRow("integer") << QStringLiteral("42") << 42.0;
    QTest::newRow("fraction") << QStringLiteral("0.5") << 0.5;
    QTest::newRow("not exact in binary") << QStringLiteral("0.1") << 0.1;
    QTest::newRow("no digit before the point") << QStringLiteral(".25") << 0.25;
    QTest::newRow("no digit after the point") << QStringLiteral("5.") << 5.0;
    QTest::newRow("minus sign") << QStringLiteral("-1.5") << -1.5;
    QTest::newRow("plus sign") << QStringLiteral("+1.5") << 1.5;
    QTest::newRow("blanks around") << QStringLiteral("  1.5  ") << 1.5;
    QTest::newRow("blanks only") << QStringLiteral("  ") << 0.0;
    QTest::newRow("exponent") << QStringLiteral("1.5e3") << 1500.0;
    QTest::newRow("negative exponent") << QStringLiteral("25e-2") << 0.25;
    QTest::newRow("exponent without digits") << QStringLiteral("2e") << 2.0;
    QTest::newRow("leading digits") << QStringLiteral("1.5mm") << 1.5;
    QTest::newRow("decimal comma") << QStringLiteral("1,5") << 1.0;
    QTest::newRow("second point") << QStringLiteral("1.5.7") << 1.5;
    QTest::newRow("no digits") << QStringLiteral("abc") << 0.0;
    QTest::newRow("point only") << QStringLiteral(".") << 0.0;
    QTest::newRow("beyond float") << QStringLiteral("1e40") << 1e40;
    QTest::newRow("below the smallest float") << QStringLiteral("1e-60") << 1e-60;
    QTest::newRow("beyond double") << QStringLiteral("1e400") << std::numeric_limits<double>::infinity();
    QTest::newRow("beyond negative double")
        << QStringLiteral("-1e400") << -std::numeric_limits<double>::infinity();
    QTest::newRow("infinity") << QStringLiteral("inf") << std::numeric_limits<double>::infinity();
}

void tst_DdxText::saveReal()
{
    QFETCH(QString, text);
    QFETCH(double, result);

    // Compared exactly; QCOMPARE would accept a neighbour.
    QVERIFY(saved<double>(text) == result);
    QVERIFY(saved<float>(text) == static_cast<float>(result));
}

void tst_DdxText::saveNotANumber()
{
    QVERIFY(std::isnan(saved<double>(QStringLiteral("nan"))));
    QVERIFY(std::isnan(saved<float>(QStringLiteral("nan"))));
}

void tst_DdxText::saveString_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("blanks stay") << QStringLiteral("  two words ");
    QTest::newRow("beyond ASCII") << QString::fromUtf8("\xC3\x84rger \xE6\xBC\xA2\xE5\xAD\x97");
    QTest::newRow("beyond the BMP") << QString::fromUtf8("a\xF0\x9F\x98\x80z");
    QTest::newRow("long") << QString(5000, QLatin1Char('x'));
}

void tst_DdxText::saveString()
{
    QFETCH(QString, text);

    const CString member = saved<CString>(text, CString(L"before"));
    QVERIFY(member == CString(text.toStdWString()));
    // One element holds one code point.
    QCOMPARE(member.GetLength(), text.toUcs4().size());
}

static QString cFormatted(double value)
{
    wchar_t buffer[512];
    std::swprintf(buffer, 512, L"%f", value);
    return QString::fromWCharArray(buffer);
}

void tst_DdxText::load_data()
{
    QTest::addColumn<Load>("load");
    QTest::addColumn<QString>("shown");

    const auto row = [](const char *name, const Load &load, const char *shown) {
        QTest::newRow(name) << load << QString::fromUtf8(shown);
    };
    row("byte zero", loads<unsigned char>(0), "0");
    row("byte maximum", loads<unsigned char>(255), "255");
    row("short minimum", loads<short>(SHRT_MIN), "-32768");
    row("short maximum", loads<short>(SHRT_MAX), "32767");
    row("int zero", loads<int>(0), "0");
    row("int minimum", loads<int>(INT_MIN), "-2147483648");
    row("int maximum", loads<int>(INT_MAX), "2147483647");
    row("unsigned signed maximum", loads<unsigned int>(2147483647u), "2147483647");
    row("unsigned above it", loads<unsigned int>(2147483648u), "-2147483648");
    row("unsigned maximum", loads<unsigned int>(4294967295u), "-1");
    row("long minimum", loads<long>(LONG_MIN), "-9223372036854775808");
    row("long maximum", loads<long>(LONG_MAX), "9223372036854775807");
    row("long of 32 bits", loads<long>(4294967295l), "4294967295");
    row("unsigned long signed maximum", loads<unsigned long>(LONG_MAX), "9223372036854775807");
    row("unsigned long above it", loads<unsigned long>(1ul << 63), "-9223372036854775808");
    row("unsigned long maximum", loads<unsigned long>(ULONG_MAX), "-1");
    row("float half", loads<float>(0.5f), "0.500000");
    row("float is widened", loads<float>(16777.217f), "16777.216797");
    row("float negative zero", loads<float>(-0.0f), "-0.000000");
    row("float infinity", loads<float>(std::numeric_limits<float>::infinity()), "inf");
    row("double zero", loads<double>(0.0), "0.000000");
    row("double half", loads<double>(0.5), "0.500000");
    row("double six decimals", loads<double>(1.0 / 3), "0.333333");
    row("double rounds up", loads<double>(1.9999999), "2.000000");
    row("double too small to see", loads<double>(DBL_MIN), "0.000000");
    row("double large", loads<double>(1e15), "1000000000000000.000000");
    row("double infinity", loads<double>(std::numeric_limits<double>::infinity()), "inf");
    row("double negative infinity", loads<double>(-std::numeric_limits<double>::infinity()), "-inf");
    row("double not a number", loads<double>(std::numeric_limits<double>::quiet_NaN()), "nan");
    row("string", loads<CString>(L" two words "), " two words ");
    row("empty string", loads<CString>(L""), "");
    row("string beyond the BMP", loads<CString>(L"a\U0001F600z"), "a\xF0\x9F\x98\x80z");
    QTest::newRow("float maximum") << loads<float>(FLT_MAX) << cFormatted(FLT_MAX);
    QTest::newRow("double maximum") << loads<double>(DBL_MAX) << cFormatted(DBL_MAX);
    QTest::newRow("double minimum") << loads<double>(-DBL_MAX) << cFormatted(-DBL_MAX);
}

void tst_DdxText::load()
{
    QFETCH(Load, load);
    QFETCH(QString, shown);

    ExchangeForm form;
    auto *edit = form.add<QLineEdit>();
    edit->setText(QStringLiteral("before"));
    form.load(load);
    QCOMPARE(edit->text(), shown);
}

void tst_DdxText::loadLeavesTheMember()
{
    ExchangeForm form;
    form.add<QLineEdit>()->setText(QStringLiteral("5"));
    int number = 300;
    CString text = L"text";
    form.load([&](CDataExchange *exchange) {
        DDX_Text(exchange, controlID, number);
        DDX_Text(exchange, controlID, text);
    });
    QCOMPARE(number, 300);
    QVERIFY(text == CString(L"text"));
}

void tst_DdxText::roundTrips_data()
{
    QTest::addColumn<RoundTrip>("trip");

    QTest::newRow("byte maximum") << roundTrip<unsigned char>(255);
    QTest::newRow("short minimum") << roundTrip<short>(SHRT_MIN);
    QTest::newRow("short maximum") << roundTrip<short>(SHRT_MAX);
    QTest::newRow("int minimum") << roundTrip<int>(INT_MIN);
    QTest::newRow("int maximum") << roundTrip<int>(INT_MAX);
    QTest::newRow("unsigned above the signed maximum") << roundTrip<unsigned int>(2147483648u);
    QTest::newRow("unsigned maximum") << roundTrip<unsigned int>(UINT_MAX);
    QTest::newRow("long minimum") << roundTrip<long>(LONG_MIN);
    QTest::newRow("long maximum") << roundTrip<long>(LONG_MAX);
    QTest::newRow("unsigned long maximum") << roundTrip<unsigned long>(ULONG_MAX);
    QTest::newRow("float six decimals") << roundTrip<float>(-1234.0625f);
    QTest::newRow("float maximum") << roundTrip<float>(FLT_MAX);
    QTest::newRow("double six decimals") << roundTrip<double>(0.123456);
    QTest::newRow("double maximum") << roundTrip<double>(DBL_MAX);
    QTest::newRow("double infinity") << roundTrip<double>(-std::numeric_limits<double>::infinity());
    QTest::newRow("string") << roundTrip<CString>(L" a\U0001F600\u00e4 ");
    QTest::newRow("empty string") << roundTrip<CString>(L"");
}

void tst_DdxText::roundTrips()
{
    QFETCH(RoundTrip, trip);
    QVERIFY(trip());
}

QTEST_MAIN(tst_DdxText)
#include "tst_DdxText.moc"
