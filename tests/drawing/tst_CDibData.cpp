#include "KxDibData.h"
#include "KxPainter.h"

#include <QImage>
#include <QtTest>

#include <climits>
#include <cstdlib>
#include <cstring>

namespace {

constexpr unsigned noValue = 0xFFFFFFFF;
constexpr uint opaqueBlack = 0xFF000000;

// A bitmap with the objects behind its handles.
struct Bitmap
{
    Bitmap(int w, int h) { make(w, h); }

    void make(int w, int h)
    {
        HDC dc = nullptr;
        HBITMAP bmp = nullptr;
        dib.makeBitmap(dc, bmp, w, h, nullptr);
        image = reinterpret_cast<QImage *>(bmp);
        painter = reinterpret_cast<KxQtPainterWrapper *>(dc);
    }

    CDibData dib;
    QImage *image = nullptr;
    KxQtPainterWrapper *painter = nullptr;
};

void checkEmpty(CDibData &dib)
{
    QCOMPARE(dib.GetHeaderPtr(), nullptr);
    QCOMPARE(dib.GetWidth(), 0);
    QCOMPARE(dib.GetHeight(), 0);
    QCOMPARE(dib.GetPixelValue(0, 0), noValue);
    QCOMPARE(dib.GetPixel(0, 0), CLR_INVALID);
    QVERIFY(!dib.SetPixelValue(0, 0, 1));
    QVERIFY(!dib.SetPixel(0, 0, 1));
    QCOMPARE(dib.SearchLeft(0, 0, 0, 0), -1);
    QCOMPARE(dib.ScanLeft(0, 0, 0, 0), -1);
    QCOMPARE(dib.SearchRight(0, 0, 0, 0), 1);
    QCOMPARE(dib.ScanRight(0, 0, 0, 0), 1);
    QVERIFY(!dib.DrawLineH(0, 0, 0, 1));
}

} // namespace

class tst_CDibData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutBitmap();
    void makeBitmap();
    void pixelsStartBlack();
    void impossibleSize_data();
    void impossibleSize();
    void makeBitmapAgain();

    void colors_data();
    void colors();
    void setPixel_data();
    void setPixel();
    void setPixelOutside_data();
    void setPixelOutside();

    void drawLine();
    void drawWithPainter();
    void searchWhatWasPainted();
    void headerWithoutRows();
    void fieldOrder();
};

void tst_CDibData::withoutBitmap()
{
    CDibData dib;
    checkEmpty(dib);
}

void tst_CDibData::makeBitmap()
{
    Bitmap bitmap(7, 3);

    QVERIFY(bitmap.image);
    QCOMPARE(bitmap.image->size(), QSize(7, 3));
    QCOMPARE(bitmap.image->format(), QImage::Format_ARGB32_Premultiplied);
    QCOMPARE(bitmap.image->bytesPerLine(), 28);
    QVERIFY(bitmap.painter);
    QCOMPARE(bitmap.painter->wrappedDevice(), bitmap.image);

    const BITMAPINFOHEADER expected{40, 7, 3, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    QVERIFY(std::memcmp(bitmap.dib.GetHeaderPtr(), &expected, sizeof(expected)) == 0);
    QCOMPARE(bitmap.dib.GetWidth(), 7);
    QCOMPARE(bitmap.dib.GetHeight(), 3);
}

void tst_CDibData::pixelsStartBlack()
{
    Bitmap bitmap(7, 3);

    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 7; ++x) {
            QCOMPARE(bitmap.image->pixel(x, y), opaqueBlack);
            QCOMPARE(bitmap.dib.GetPixelValue(x, y), 0U);
            QCOMPARE(bitmap.dib.GetPixel(x, y), COLORREF(0));
        }
    }
    QCOMPARE(bitmap.dib.GetPixelValue(-1, 0), noValue);
    QCOMPARE(bitmap.dib.GetPixelValue(7, 0), noValue);
    QCOMPARE(bitmap.dib.GetPixelValue(0, -1), noValue);
    QCOMPARE(bitmap.dib.GetPixelValue(0, 3), noValue);
}

void tst_CDibData::impossibleSize_data()
{
    QTest::addColumn<int>("w");
    QTest::addColumn<int>("h");

    QTest::newRow("no width") << 0 << 5;
    QTest::newRow("no height") << 5 << 0;
    QTest::newRow("negative width") << -5 << 5;
    QTest::newRow("negative height") << 5 << -5;
    QTest::newRow("both negative") << -5 << -5;
    QTest::newRow("smallest numbers") << INT_MIN << INT_MIN;
    QTest::newRow("2 GB") << 0x8000 << 0x4000;
    QTest::newRow("row of 2 GB") << 0x20000000 << 1;
    QTest::newRow("row of 256 MB") << 0x4000000 << 1;
    QTest::newRow("product is 0 in 32 bits") << 0x10000 << 0x10000;
    QTest::newRow("largest numbers") << INT_MAX << INT_MAX;
}

void tst_CDibData::impossibleSize()
{
    QFETCH(int, w);
    QFETCH(int, h);
    CDibData dib;
    HDC dc = nullptr;
    HBITMAP bmp = nullptr;
    dib.makeBitmap(dc, bmp, 2, 2, nullptr);
    QVERIFY(dc && bmp);

    dib.makeBitmap(dc, bmp, w, h, nullptr);
    QCOMPARE(dc, nullptr);
    QCOMPARE(bmp, nullptr);
    checkEmpty(dib);
}

void tst_CDibData::makeBitmapAgain()
{
    Bitmap bitmap(4, 4);
    QVERIFY(bitmap.dib.SetPixel(1, 1, RGB(1, 2, 3)));

    bitmap.make(2, 5);
    QCOMPARE(bitmap.image->size(), QSize(2, 5));
    QCOMPARE(bitmap.painter->wrappedDevice(), bitmap.image);
    QCOMPARE(bitmap.dib.GetWidth(), 2);
    QCOMPARE(bitmap.dib.GetHeight(), 5);
    QCOMPARE(bitmap.dib.GetPixel(1, 1), COLORREF(0));
    QCOMPARE(bitmap.dib.GetPixel(1, 4), COLORREF(0));
}

void tst_CDibData::colors_data()
{
    QTest::addColumn<COLORREF>("color");
    QTest::addColumn<uint>("value");
    QTest::addColumn<COLORREF>("back");

    QTest::newRow("red") << RGB(255, 0, 0) << 0xFF0000U << RGB(255, 0, 0);
    QTest::newRow("green") << RGB(0, 255, 0) << 0x00FF00U << RGB(0, 255, 0);
    QTest::newRow("blue") << RGB(0, 0, 255) << 0x0000FFU << RGB(0, 0, 255);
    QTest::newRow("each its own") << RGB(0x12, 0x34, 0x56) << 0x123456U << RGB(0x12, 0x34, 0x56);
    QTest::newRow("white is not -1") << RGB(255, 255, 255) << 0xFFFFFFU << RGB(255, 255, 255);
    QTest::newRow("high byte is dropped") << COLORREF(0x7F030201) << 0x010203U << COLORREF(0x030201);
    QTest::newRow("no colour") << CLR_INVALID << noValue << CLR_INVALID;
}

void tst_CDibData::colors()
{
    QFETCH(COLORREF, color);
    QFETCH(uint, value);
    QFETCH(COLORREF, back);
    const CDibData dib;

    QCOMPARE(dib.RGBtoValue(color), value);
    QCOMPARE(dib.ValueToRGB(value), back);
    if (value != noValue)
        QCOMPARE(dib.ValueToRGB(value | 0xA0000000), back);
}

void tst_CDibData::setPixel_data()
{
    QTest::addColumn<COLORREF>("color");
    QTest::addColumn<uint>("stored");
    QTest::addColumn<COLORREF>("read");

    QTest::newRow("red") << RGB(255, 0, 0) << 0xFFFF0000 << COLORREF(0x000000FF);
    QTest::newRow("each its own") << RGB(1, 2, 3) << 0xFF010203 << RGB(1, 2, 3);
    QTest::newRow("no colour draws white") << CLR_INVALID << 0xFFFFFFFF << RGB(255, 255, 255);
}

void tst_CDibData::setPixel()
{
    QFETCH(COLORREF, color);
    QFETCH(uint, stored);
    QFETCH(COLORREF, read);
    Bitmap bitmap(5, 4);
    QImage expected = bitmap.image->copy();
    expected.setPixel(3, 2, stored);

    QVERIFY(bitmap.dib.SetPixel(3, 2, color));
    QCOMPARE(*bitmap.image, expected);
    QCOMPARE(bitmap.dib.GetPixel(3, 2), read);

    bitmap.make(5, 4);
    QVERIFY(bitmap.dib.SetPixelValue(3, 2, stored & 0x3CFFFFFF));
    QCOMPARE(*bitmap.image, expected);
    QCOMPARE(bitmap.dib.GetPixelValue(3, 2), stored & 0xFFFFFF);
}

void tst_CDibData::setPixelOutside_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");

    QTest::newRow("left") << -1 << 0;
    QTest::newRow("right") << 5 << 0;
    QTest::newRow("above") << 0 << -1;
    QTest::newRow("below") << 0 << 4;
}

void tst_CDibData::setPixelOutside()
{
    QFETCH(int, x);
    QFETCH(int, y);
    Bitmap bitmap(5, 4);
    const QImage before = bitmap.image->copy();

    const QByteArray warning = "QImage::setPixel: coordinate (" + QByteArray::number(x) + ',' +
                               QByteArray::number(y) + ") out of range";
    QTest::ignoreMessage(QtWarningMsg, warning.constData());
    QVERIFY(bitmap.dib.SetPixelValue(x, y, 0xFFFFFF));
    QCOMPARE(*bitmap.image, before);
}

void tst_CDibData::drawLine()
{
    Bitmap bitmap(10, 3);
    QImage expected = bitmap.image->copy();
    for (int x = 2; x <= 5; ++x)
        expected.setPixel(x, 1, 0x80102030);

    QVERIFY(bitmap.dib.DrawLineH(5, 2, 1, 0x80102030));
    // Compared as stored: the alpha is that of the value.
    QVERIFY(std::memcmp(bitmap.image->constBits(), expected.constBits(),
                        std::size_t(expected.sizeInBytes())) == 0);
    QCOMPARE(bitmap.dib.GetPixelValue(2, 1), 0x102030U);
}

void tst_CDibData::drawWithPainter()
{
    Bitmap bitmap(6, 4);

    QVERIFY(bitmap.painter->beginDraw());
    bitmap.painter->fillRect(CRect(1, 1, 4, 3), RGB(10, 20, 30));
    QVERIFY(bitmap.painter->endDraw());

    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 6; ++x) {
            const bool inside = x >= 1 && x < 4 && y >= 1 && y < 3;
            QCOMPARE(bitmap.dib.GetPixel(x, y), inside ? RGB(10, 20, 30) : COLORREF(0));
        }
    }
}

void tst_CDibData::searchWhatWasPainted()
{
    Bitmap bitmap(100, 2);
    QVERIFY(bitmap.painter->beginDraw());
    bitmap.painter->fillRect(CRect(20, 1, 80, 2), RGB(10, 20, 30));
    QVERIFY(bitmap.painter->endDraw());

    QCOMPARE(bitmap.dib.SearchRight(0, 1, 99, 0x0A141E), 20);
    QCOMPARE(bitmap.dib.ScanRight(50, 1, 99, 0x0A141E), 80);
    QCOMPARE(bitmap.dib.SearchLeft(99, 1, 0, 0x0A141E), 79);
    QCOMPARE(bitmap.dib.ScanLeft(50, 1, 0, 0x0A141E), 19);
    QCOMPARE(bitmap.dib.SearchRight(0, 0, 99, 0x0A141E), 100);
    QCOMPARE(bitmap.dib.ScanLeft(99, 0, 0, 0), -1);
}

void tst_CDibData::headerWithoutRows()
{
    struct HeaderOnly : CDibData
    {
        HeaderOnly()
        {
            m_pHeader = static_cast<BITMAPINFOHEADER *>(std::calloc(1, sizeof(BITMAPINFOHEADER)));
            m_pHeader->biWidth = 8;
            m_pHeader->biHeight = 8;
            m_nBitsPerPixel = 32;
        }
    };
    HeaderOnly dib;

    QCOMPARE(dib.GetWidth(), 8);
    QCOMPARE(dib.GetPixelValue(1, 1), noValue);
    QCOMPARE(dib.SearchLeft(7, 0, 2, 0), 1);
    QCOMPARE(dib.ScanRight(2, 0, 7, 0), 8);
    QVERIFY(!dib.DrawLineH(0, 7, 0, 1));
    QVERIFY(!dib.SetPixel(0, 0, 1));
}

void tst_CDibData::fieldOrder()
{
    struct Fields : CDibData
    {
        static void check()
        {
            Fields fields;
            QCOMPARE(fields.m_pImage, nullptr);
            QCOMPARE(fields.m_pPainter, nullptr);
            QCOMPARE(fields.m_pHeader, nullptr);
            QCOMPARE(fields.m_pBits, nullptr);
            QCOMPARE(fields.m_pRows, nullptr);
            QCOMPARE(fields.m_nBitsPerPixel, 0);

            HDC dc = nullptr;
            HBITMAP bmp = nullptr;
            fields.makeBitmap(dc, bmp, 3, 2, nullptr);
            QCOMPARE(reinterpret_cast<QImage *>(bmp), fields.m_pImage);
            QCOMPARE(reinterpret_cast<KxQtPainterWrapper *>(dc), fields.m_pPainter);
            QCOMPARE(fields.m_pImage->constBits(), fields.m_pBits);
            QCOMPARE(fields.m_pRows[0], fields.m_pBits);
            QCOMPARE(fields.m_pRows[1], fields.m_pBits + 12);
            QCOMPARE(fields.m_nBitsPerPixel, 32);

            const void *const inOrder[] = {&fields.m_pImage, &fields.m_pPainter, &fields.m_pHeader,
                                           &fields.m_pBits,  &fields.m_pRows,    &fields.m_nBitsPerPixel};
            for (std::size_t i = 0; i < 6; ++i)
                QCOMPARE(inOrder[i], static_cast<const void *>(reinterpret_cast<char *>(&fields) + 8 * i));
        }
    };
    Fields::check();
}

QTEST_GUILESS_MAIN(tst_CDibData)
#include "tst_CDibData.moc"
