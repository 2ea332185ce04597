#include "DibOfDepth.h"

#include <QtTest>

#include <array>
#include <climits>
#include <random>

namespace {

constexpr unsigned noValue = 0xFFFFFFFF;
constexpr int depths[] = {1, 2, 4, 8, 16, 24, 32};

void addDepthRows()
{
    QTest::addColumn<int>("bits");
    for (const int bits : depths)
        QTest::addRow("%d bits", bits) << bits;
}

// Pixels come in runs of up to 40, and their bits beyond the value are random.
void fillWithRuns(DibOfDepth &dib, int y, unsigned seed)
{
    std::mt19937 random(seed);
    QByteArray row = dib.rowBytes(y);
    for (int x = 0; x < dib.GetWidth();) {
        const unsigned value = random() % 3 * 0x020303;
        for (unsigned length = 1 + random() % 40; length > 0 && x < dib.GetWidth(); --length, ++x)
            PlainPixels::write(row, dib.bitsPerPixel(), x, value | unsigned(random()) << 24);
    }
    dib.setRowBytes(y, row);
}

// Below 8 bits a pixel is compared with as many low bits of the value.
unsigned comparable(unsigned value, int bits)
{
    return bits < 8 ? value & ((1U << bits) - 1) : value;
}

struct Walk
{
    int x;
    int xStop;
    unsigned value;
    int step; // 1 to the right, -1 to the left
    bool wantsEqual;

    int plain(const QVector<unsigned> &pixels, int bits) const
    {
        const int width = pixels.size();
        const bool valid = x >= 0 && x < width && xStop >= 0 && xStop < width && value != noValue;
        for (int at = x; valid && (xStop - at) * step >= 0; at += step) {
            if ((pixels[at] == comparable(value, bits)) == wantsEqual)
                return at;
        }
        return xStop + step;
    }

    int ofDib(const CDibData &dib, int y) const
    {
        if (wantsEqual)
            return step < 0 ? dib.SearchLeft(x, y, xStop, value) : dib.SearchRight(x, y, xStop, value);
        return step < 0 ? dib.ScanLeft(x, y, xStop, value) : dib.ScanRight(x, y, xStop, value);
    }

    QByteArray text() const
    {
        return QStringLiteral("%1 %2 from %3 to %4, value %5")
            .arg(wantsEqual ? QStringLiteral("search") : QStringLiteral("scan"))
            .arg(step)
            .arg(x)
            .arg(xStop)
            .arg(value, 0, 16)
            .toLatin1();
    }
};

// The four walks between two columns.
std::array<Walk, 4> walks(int x, int xStop, unsigned value)
{
    return {Walk{x, xStop, value, -1, true}, Walk{x, xStop, value, 1, true}, Walk{x, xStop, value, -1, false},
            Walk{x, xStop, value, 1, false}};
}

} // namespace

class tst_CDibDataRuns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pixelValue_data();
    void pixelValue();
    void pixelValueOutside_data() { addDepthRows(); }
    void pixelValueOutside();

    void everyWalk_data() { addDepthRows(); }
    void everyWalk();
    void oneOddPixel_data() { addDepthRows(); }
    void oneOddPixel();
    void valuesTooLarge_data();
    void valuesTooLarge();
    void invalidWalks_data();
    void invalidWalks();
    void negativeHeight();

    void everyLine_data() { addDepthRows(); }
    void everyLine();
    void invalidLines_data();
    void invalidLines();
    void unknownDepth_data();
    void unknownDepth();
};

void tst_CDibDataRuns::pixelValue_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<QByteArray>("row");
    QTest::addColumn<QVector<uint>>("values");

    QTest::newRow("1 bit, most significant first")
        << 1 << QByteArray("\xA1") << QVector<uint>{1, 0, 1, 0, 0, 0, 0, 1};
    QTest::newRow("2 bits, most significant first")
        << 2 << QByteArray("\x1B\xE4") << QVector<uint>{0, 1, 2, 3, 3, 2, 1, 0};
    QTest::newRow("4 bits, high nibble first") << 4 << QByteArray("\x1F\xC4") << QVector<uint>{1, 15, 12, 4};
    QTest::newRow("8 bits") << 8 << QByteArray("\x01\xFF") << QVector<uint>{1, 255};
    QTest::newRow("16 bits, little-endian")
        << 16 << QByteArray("\x34\x12\xFF\xFF") << QVector<uint>{0x1234, 0xFFFF};
    QTest::newRow("24 bits, blue first")
        << 24 << QByteArray("\x33\x22\x11\xFF\xFE\xFD") << QVector<uint>{0x112233, 0xFDFEFF};
    QTest::newRow("32 bits without the high byte")
        << 32 << QByteArray("\x33\x22\x11\xFF\x66\x55\x44\x01") << QVector<uint>{0x112233, 0x445566};
}

void tst_CDibDataRuns::pixelValue()
{
    QFETCH(int, bits);
    QFETCH(QByteArray, row);
    QFETCH(QVector<uint>, values);
    DibOfDepth dib(bits, values.size(), 1);
    dib.setRowBytes(0, row);

    for (int x = 0; x < values.size(); ++x) {
        QCOMPARE(dib.GetPixelValue(x, 0), values[x]);
        QCOMPARE(dib.GetPixel(x, 0), RGB(int(values[x] >> 16), int(values[x] >> 8), int(values[x])));
        QCOMPARE(PlainPixels::read(row, bits, x), values[x]);
    }
}

void tst_CDibDataRuns::pixelValueOutside()
{
    QFETCH(int, bits);
    const DibOfDepth dib(bits, 5, 2);

    for (const QPoint outside : {QPoint(-1, 0), QPoint(5, 0), QPoint(0, -1), QPoint(0, 2),
                                 QPoint(INT_MIN, INT_MIN), QPoint(INT_MAX, INT_MAX)}) {
        QCOMPARE(dib.GetPixelValue(outside.x(), outside.y()), noValue);
        QCOMPARE(dib.GetPixel(outside.x(), outside.y()), CLR_INVALID);
    }
    QCOMPARE(dib.GetPixelValue(4, 1), 0U);
}

void tst_CDibDataRuns::everyWalk()
{
    QFETCH(int, bits);
    constexpr int width = 77;
    DibOfDepth dib(bits, width, 2);
    for (int y = 0; y < 2; ++y) {
        fillWithRuns(dib, y, unsigned(bits * 2 + y));
        const QVector<unsigned> pixels = PlainPixels::readAll(dib.rowBytes(y), bits, width);
        for (const unsigned value : {0U, 0x020303U & ((1U << qMin(bits, 24)) - 1), 5U, noValue}) {
            for (int ends = 0; ends < (width + 2) * (width + 2); ++ends) {
                for (const Walk &walk : walks(ends / (width + 2) - 1, ends % (width + 2) - 1, value)) {
                    if (walk.ofDib(dib, y) != walk.plain(pixels, bits))
                        QFAIL(walk.text());
                }
            }
        }
    }
}

// Rows are long enough for every size of block that the searches skip.
void tst_CDibDataRuns::oneOddPixel()
{
    QFETCH(int, bits);
    constexpr int width = 2500;
    constexpr unsigned even = 0;
    constexpr unsigned odd = 1;
    DibOfDepth dib(bits, width, 1);
    QByteArray row(dib.stride(), '\0');
    for (int x = 0; bits == 32 && x < width; ++x)
        row[x * 4 + 3] = char(x);

    for (int at = 0; at < width; ++at) {
        QByteArray changed = row;
        PlainPixels::write(changed, bits, at, odd);
        dib.setRowBytes(0, changed);
        for (const int start : {0, 1, 7, at}) {
            const int end = width - 1 - start;
            const bool toRight = at >= start;
            const bool toLeft = at <= end;
            QCOMPARE(dib.SearchRight(start, 0, width - 1, odd), toRight ? at : width);
            QCOMPARE(dib.ScanRight(start, 0, width - 1, even), toRight ? at : width);
            QCOMPARE(dib.SearchLeft(end, 0, 0, odd), toLeft ? at : -1);
            QCOMPARE(dib.ScanLeft(end, 0, 0, even), toLeft ? at : -1);
        }
    }
}

void tst_CDibDataRuns::valuesTooLarge_data()
{
    QTest::addColumn<int>("bits");
    QTest::addColumn<uint>("value");
    QTest::addColumn<bool>("equalsOnes");

    QTest::newRow("1 bit: the low bit counts") << 1 << 0xFFU << true;
    QTest::newRow("1 bit: a higher bit does not") << 1 << 0xFEU << false;
    QTest::newRow("2 bits: the low bits count") << 2 << 0x107U << true;
    QTest::newRow("4 bits: the low bits count") << 4 << 0xFF00FFU << true;
    QTest::newRow("8 bits: all bits count") << 8 << 0x1FFU << false;
    QTest::newRow("16 bits: all bits count") << 16 << 0x1FFFFU << false;
    QTest::newRow("24 bits: all bits count") << 24 << 0x1FFFFFFU << false;
    QTest::newRow("32 bits: all bits count") << 32 << 0x1FFFFFFU << false;
    QTest::newRow("32 bits: opaque is not the pixel's value") << 32 << 0xFEFFFFFFU << false;
}

void tst_CDibDataRuns::valuesTooLarge()
{
    QFETCH(int, bits);
    QFETCH(uint, value);
    QFETCH(bool, equalsOnes);
    DibOfDepth dib(bits, 100, 1);
    dib.setRowBytes(0, QByteArray(dib.stride(), '\xFF'));

    QCOMPARE(dib.SearchRight(3, 0, 90, value), equalsOnes ? 3 : 91);
    QCOMPARE(dib.SearchLeft(90, 0, 3, value), equalsOnes ? 90 : 2);
    QCOMPARE(dib.ScanRight(3, 0, 90, value), equalsOnes ? 91 : 3);
    QCOMPARE(dib.ScanLeft(90, 0, 3, value), equalsOnes ? 2 : 90);
}

void tst_CDibDataRuns::invalidWalks_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<int>("xStop");
    QTest::addColumn<uint>("value");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");

    QTest::newRow("x below 0") << -1 << 0 << 4 << 0U << 3 << 5;
    QTest::newRow("x is the width") << 10 << 0 << 4 << 0U << 3 << 5;
    QTest::newRow("y below 0") << 4 << -1 << 4 << 0U << 3 << 5;
    QTest::newRow("y is the height") << 4 << 2 << 4 << 0U << 3 << 5;
    QTest::newRow("stop below 0") << 4 << 0 << -1 << 0U << -2 << 0;
    QTest::newRow("stop is the width") << 4 << 0 << 10 << 0U << 9 << 11;
    QTest::newRow("value -1") << 4 << 0 << 4 << noValue << 3 << 5;
    QTest::newRow("smallest stop") << 4 << 0 << INT_MIN << 0U << INT_MAX << INT_MIN + 1;
    QTest::newRow("largest stop") << 4 << 0 << INT_MAX << 0U << INT_MAX - 1 << INT_MIN;
    QTest::newRow("largest x and y") << INT_MAX << INT_MAX << 4 << 0U << 3 << 5;
}

void tst_CDibDataRuns::invalidWalks()
{
    QFETCH(int, x);
    QFETCH(int, y);
    QFETCH(int, xStop);
    QFETCH(uint, value);
    QFETCH(int, left);
    QFETCH(int, right);
    for (const int bits : depths) {
        const DibOfDepth dib(bits, 10, 2);
        QCOMPARE(dib.SearchLeft(x, y, xStop, value), left);
        QCOMPARE(dib.ScanLeft(x, y, xStop, value), left);
        QCOMPARE(dib.SearchRight(x, y, xStop, value), right);
        QCOMPARE(dib.ScanRight(x, y, xStop, value), right);
    }
}

void tst_CDibDataRuns::negativeHeight()
{
    DibOfDepth dib(8, 4, -2);
    dib.setRowBytes(1, QByteArray("\1\2\3\4"));

    QCOMPARE(dib.GetHeight(), -2);
    QCOMPARE(dib.GetPixelValue(2, 1), 3U);
    QCOMPARE(dib.GetPixelValue(2, 2), noValue);
    QCOMPARE(dib.SearchRight(0, 1, 3, 4), 3);
    QVERIFY(dib.DrawLineH(0, 1, 1, 9));
    QVERIFY(!dib.DrawLineH(0, 1, 2, 9));
    QCOMPARE(dib.rowBytes(1), QByteArray("\x09\x09\3\4"));
}

void tst_CDibDataRuns::everyLine()
{
    QFETCH(int, bits);
    constexpr int width = 37;
    constexpr unsigned value = 0xA53C695A;
    DibOfDepth dib(bits, width, 3);
    for (int y = 0; y < 3; ++y)
        fillWithRuns(dib, y, unsigned(bits + y));
    const QByteArray before = dib.bytes();
    const QByteArray row = dib.rowBytes(1);

    for (int x1 = -2; x1 < width + 2; ++x1) {
        for (int x2 = -2; x2 < width + 2; ++x2) {
            QByteArray drawn = row;
            for (int x = qMax(qMin(x1, x2), 0); bits != 24 && x <= qMin(qMax(x1, x2), width - 1); ++x)
                PlainPixels::write(drawn, bits, x, value);
            const bool outside = qMax(x1, x2) < 0 || qMin(x1, x2) >= width;

            QCOMPARE(dib.DrawLineH(x1, x2, 1, value), !outside);
            QCOMPARE(dib.bytes(), QByteArray(before).replace(1 + row.size(), row.size(), drawn));
            dib.setRowBytes(1, row);
        }
    }
}

void tst_CDibDataRuns::invalidLines_data()
{
    QTest::addColumn<int>("x1");
    QTest::addColumn<int>("x2");
    QTest::addColumn<int>("y");
    QTest::addColumn<uint>("value");

    QTest::newRow("value -1") << 0 << 9 << 0 << noValue;
    QTest::newRow("left of the row") << -5 << -1 << 0 << 7U;
    QTest::newRow("right of the row") << 12 << 10 << 0 << 7U;
    QTest::newRow("far left") << INT_MIN << -1 << 0 << 7U;
    QTest::newRow("far right") << INT_MAX << 10 << 0 << 7U;
    QTest::newRow("y below 0") << 0 << 9 << -1 << 7U;
    QTest::newRow("y is the height") << 0 << 9 << 2 << 7U;
}

void tst_CDibDataRuns::invalidLines()
{
    QFETCH(int, x1);
    QFETCH(int, x2);
    QFETCH(int, y);
    QFETCH(uint, value);
    for (const int bits : depths) {
        DibOfDepth dib(bits, 10, 2);
        const QByteArray before = dib.bytes();
        QVERIFY(!dib.DrawLineH(x1, x2, y, value));
        QCOMPARE(dib.bytes(), before);
    }
}

void tst_CDibDataRuns::unknownDepth_data()
{
    QTest::addColumn<int>("bits");
    for (const int bits : {-1, 0, 3, 12, 64})
        QTest::addRow("%d bits", bits) << bits;
}

void tst_CDibDataRuns::unknownDepth()
{
    QFETCH(int, bits);
    DibOfDepth dib(qMax(bits, 0), 10, 2);
    const QByteArray before = dib.bytes();

    QCOMPARE(dib.GetPixelValue(0, 0), noValue);
    QCOMPARE(dib.SearchLeft(8, 0, 2, 0), 1);
    QCOMPARE(dib.ScanLeft(8, 0, 2, 0), 1);
    QCOMPARE(dib.SearchRight(2, 0, 8, 0), 9);
    QCOMPARE(dib.ScanRight(2, 0, 8, 0), 9);
    QVERIFY(dib.DrawLineH(0, 9, 0, 7));
    QCOMPARE(dib.bytes(), before);
}

QTEST_APPLESS_MAIN(tst_CDibDataRuns)
#include "tst_CDibDataRuns.moc"
