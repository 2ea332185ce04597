#include "HiddenAddress.h"
#include "KxDeviceContext.h"
#include "KxDoubleBuffer.h"
#include "KxWindows.h"
#include "LeftBehind.h"
#include "WindowHandle.h"

#include <KxPlatformServices.h>

#include <QImage>
#include <QPainter>
#include <QtTest>

#include <climits>
#include <cstring>
#include <memory>

namespace {
constexpr COLORREF orange = 0x002080FF; // Red 255, green 128, blue 32.
const RECT box = {2, 3, 10, 12};

// A bitmap that is deleted at the end of a test.
struct ScopedBitmap : CBitmap
{
    explicit ScopedBitmap(int width = 20, int height = 20) { CreateCompatibleBitmap(nullptr, width, height); }
    ScopedBitmap(const ScopedBitmap &) = delete;
    ScopedBitmap &operator=(const ScopedBitmap &) = delete;
    ~ScopedBitmap() { DeleteObject(); }

    QImage image() const { return platformServices().gdiObjects().bitmapImage(m_hObject); }
};

struct ScopedBrush : CBrush
{
    explicit ScopedBrush(COLORREF color)
        : CBrush(color)
    {
    }
    ScopedBrush(const ScopedBrush &) = delete;
    ScopedBrush &operator=(const ScopedBrush &) = delete;
    ~ScopedBrush() { platformServices().gdiObjects().deleteObject(m_hObject); }
};

QImage filled(QColor background, QColor color, QRect rect = QRect(2, 3, 8, 9))
{
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(background);
    QPainter(&image).fillRect(rect, color);
    return image;
}

void fillWhite(CDC &dc)
{
    ScopedBrush white(0xFFFFFF);
    const RECT all = {0, 0, 20, 20};
    dc.FillRect(&all, &white);
}

KxQtPaintDeviceWrapper *deviceOf(const CDC &dc)
{
    return reinterpret_cast<KxQtPaintDeviceWrapper *>(dc.m_hDC);
}

// Paints its window's context in its paint event.
class Canvas : public QWidget
{
public:
    std::function<void()> paint;

protected:
    void paintEvent(QPaintEvent *) override { paint(); }
};
} // namespace

class tst_CDC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_leftBehind = std::make_unique<LeftBehind>(); }
    void cleanup() { QVERIFY(m_leftBehind->nothing()); }

    void newContext();
    void handleIsTheDevice();
    void destroysItsDevice();
    void selectsABitmap();
    void secondBitmapIsNotSelected();
    void selectsNoBitmapWithoutHandle();
    void selectsDeletedBitmap();
    void selectsNoBitmapOverAnotherDevice();
    void fillRect_data();
    void fillRect();
    void fillRectWithoutBrush();
    void fillRectWithStaleBrush();
    void fillRectWithoutDevice();
    void fillRectKeepsTheClipRegion();
    void fixedResults();
    void virtualOrder();

    void createForWindow();
    void createForNoWindow();
    void createAgainLeavesTheFormerDevice();
    void fillRectInAPaintEvent();
    void fillRectOutsideOfAPaintEvent();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CDC::newContext()
{
    CDC dc;
    QVERIFY(!dc.m_hDC);
    QVERIFY(!HDC(dc));
}

void tst_CDC::handleIsTheDevice()
{
    ScopedBitmap bitmap;
    CDC dc;
    dc.SelectObject(&bitmap);
    QVERIFY(dc.m_hDC);
    QCOMPARE(HDC(dc), dc.m_hDC);
    QVERIFY(!dc.GetSafeHdc());
    QVERIFY(!dc.Detach());
    QVERIFY(!dc.Attach(nullptr));
    QVERIFY(dc.DeleteDC());
    QVERIFY(dc.m_hDC);
}

void tst_CDC::destroysItsDevice()
{
    struct Probe : KxHDCWrapper
    {
        explicit Probe(int &count)
            : KxHDCWrapper(nullptr)
            , destroyed(count)
        {
        }
        ~Probe() override { ++destroyed; }
        int &destroyed;
    };
    int destroyed = 0;
    {
        CDC dc;
        dc.m_hDC = reinterpret_cast<HDC>(static_cast<KxQtPaintDeviceWrapper *>(new Probe(destroyed)));
        QCOMPARE(destroyed, 0);
    }
    QCOMPARE(destroyed, 1);
}

void tst_CDC::selectsABitmap()
{
    ScopedBitmap bitmap(30, 20);
    CDC dc;
    QVERIFY(!dc.SelectObject(&bitmap));
    const auto *device = dynamic_cast<KxHDCWrapper *>(deviceOf(dc));
    QVERIFY(device);
    QCOMPARE(device->m_pBitmap, &bitmap);
    QCOMPARE(device->destinationDevice(), platformServices().gdiObjects().bitmapDevice(bitmap.m_hObject));
    QCOMPARE(device->width(), 30);
    QCOMPARE(device->height(), 20);
    QCOMPARE(device->depth(), 32);
}

void tst_CDC::secondBitmapIsNotSelected()
{
    ScopedBitmap first;
    ScopedBitmap second;
    CDC dc;
    dc.SelectObject(&first);
    const HDC device = dc.m_hDC;
    QCOMPARE(dc.SelectObject(&second), &first);
    QCOMPARE(dc.SelectObject(&second), &first);
    QCOMPARE(dc.SelectObject(&first), &first);
    QVERIFY(!dc.SelectObject(static_cast<CBitmap *>(nullptr)));
    CBitmap empty;
    QCOMPARE(dc.SelectObject(&empty), &first);
    QCOMPARE(dc.m_hDC, device);
    fillWhite(dc);
    QCOMPARE(first.image(), filled(Qt::white, Qt::white));
    QCOMPARE(second.image(), filled(Qt::black, Qt::black));
}

void tst_CDC::selectsNoBitmapWithoutHandle()
{
    CBitmap empty;
    CDC dc;
    QVERIFY(!dc.SelectObject(static_cast<CBitmap *>(nullptr)));
    QVERIFY(!dc.SelectObject(&empty));
    QVERIFY(!dc.m_hDC);
    ScopedBitmap bitmap;
    dc.SelectObject(&bitmap);
    QVERIFY(dc.m_hDC);
}

void tst_CDC::selectsDeletedBitmap()
{
    ScopedBitmap bitmap;
    bitmap.DeleteObject();
    CDC dc;
    QVERIFY(!dc.SelectObject(&bitmap));
    QVERIFY(dc.m_hDC);
    QVERIFY(!deviceOf(dc)->destinationDevice());
    QCOMPARE(deviceOf(dc)->width(), 0);
    fillWhite(dc);
    QCOMPARE(dc.SelectObject(&bitmap), &bitmap);
}

void tst_CDC::selectsNoBitmapOverAnotherDevice()
{
    ScopedBitmap bitmap;
    CDC dc;
    dc.m_hDC = reinterpret_cast<HDC>(static_cast<KxQtPaintDeviceWrapper *>(new KxGrQtDoubleBufferImage));
    const HDC device = dc.m_hDC;
    QVERIFY(!dc.SelectObject(&bitmap));
    QCOMPARE(dc.m_hDC, device);
}

void tst_CDC::fillRect_data()
{
    QTest::addColumn<QRect>("edges");
    QTest::addColumn<QRect>("filledRect");
    const auto row = [](const char *name, QPoint topLeft, QPoint bottomRight, QRect filledRect) {
        QTest::newRow(name) << QRect(topLeft, bottomRight) << filledRect;
    };
    row("right and bottom are exclusive", {2, 3}, {10, 12}, QRect(2, 3, 8, 9));
    row("one pixel", {5, 5}, {6, 6}, QRect(5, 5, 1, 1));
    row("empty", {5, 5}, {5, 9}, QRect());
    row("corners exchanged", {10, 12}, {2, 3}, QRect(2, 3, 8, 9));
    row("partly outside", {-5, -5}, {4, 90}, QRect(0, 0, 4, 20));
    row("outside", {20, 0}, {30, 20}, QRect());
    row("largest", {INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}, QRect(0, 0, 20, 20));
}

void tst_CDC::fillRect()
{
    QFETCH(QRect, edges);
    QFETCH(QRect, filledRect);
    ScopedBitmap bitmap;
    ScopedBrush brush(orange);
    CDC dc;
    dc.SelectObject(&bitmap);
    const RECT rect = {edges.left(), edges.top(), edges.right(), edges.bottom()};
    dc.FillRect(&rect, &brush);
    QCOMPARE(bitmap.image(), filled(Qt::black, QColor(255, 128, 32), filledRect));
    QVERIFY(!deviceOf(dc)->painter()->wrappedPainter()->isActive());
}

void tst_CDC::fillRectWithoutBrush()
{
    ScopedBitmap bitmap;
    CDC dc;
    dc.SelectObject(&bitmap);
    fillWhite(dc);
    dc.FillRect(&box, nullptr);
    QCOMPARE(bitmap.image(), filled(Qt::white, Qt::black));

    fillWhite(dc);
    CBrush empty;
    dc.FillRect(&box, &empty);
    QCOMPARE(bitmap.image(), filled(Qt::white, Qt::black));
}

void tst_CDC::fillRectWithStaleBrush()
{
    ScopedBitmap bitmap;
    ScopedBrush brush(orange);
    platformServices().gdiObjects().deleteObject(brush.m_hObject);
    CDC dc;
    dc.SelectObject(&bitmap);
    fillWhite(dc);
    dc.FillRect(&box, &brush);
    QCOMPARE(bitmap.image(), filled(Qt::white, Qt::black));

    // The handle of something else.
    CBrush other;
    other.m_hObject = bitmap.m_hObject;
    fillWhite(dc);
    dc.FillRect(&box, &other);
    QCOMPARE(bitmap.image(), filled(Qt::white, Qt::black));
}

void tst_CDC::fillRectWithoutDevice()
{
    CDC dc;
    dc.FillRect(&box, nullptr);
    QVERIFY(!dc.m_hDC);

    ScopedBitmap bitmap;
    dc.SelectObject(&bitmap);
    fillWhite(dc);
    dc.FillRect(nullptr, nullptr);
    QCOMPARE(bitmap.image(), filled(Qt::white, Qt::white));
}

void tst_CDC::fillRectKeepsTheClipRegion()
{
    ScopedBitmap bitmap;
    CDC dc;
    dc.SelectObject(&bitmap);
    POINT points[] = {{2, 3}, {10, 3}, {10, 12}, {2, 12}};
    UINT count = 4;
    deviceOf(dc)->painter()->setClipRegion(points, &count, 1);
    fillWhite(dc);
    QCOMPARE(bitmap.image(), filled(Qt::black, Qt::white));
}

void tst_CDC::fixedResults()
{
    ScopedBitmap bitmap;
    ScopedBrush brush(orange);
    CFont font;
    CDC source;
    CDC dc;
    dc.SelectObject(&bitmap);
    fillWhite(dc);
    const HDC device = dc.m_hDC;

    QVERIFY(!dc.GetSafeHdc());
    QVERIFY(!dc.Attach(objectAt<HDC__>(0x5000)));
    QVERIFY(!dc.Detach());
    QVERIFY(!dc.SelectStockObject(0));
    QVERIFY(!dc.SelectObject(objectAt<CPen>(0x5000)));
    QVERIFY(!dc.SelectObject(&brush));
    QVERIFY(!dc.SelectObject(&font));
    QVERIFY(!dc.SelectObject(static_cast<CGdiObject *>(&bitmap)));
    QCOMPARE(dc.SelectObject(objectAt<CRgn>(0x5000)), 0);
    QVERIFY(!dc.SelectPalette(objectAt<CPalette>(0x5000), true));
    QCOMPARE(dc.CreateCompatibleDC(&source), true);
    QCOMPARE(dc.CreateCompatibleDC(nullptr), true);
    QCOMPARE(dc.DeleteDC(), true);
    QCOMPARE(dc.SaveDC(), 0);
    QCOMPARE(dc.RestoreDC(-1), true);
    QCOMPARE(dc.GetDeviceCaps(88), 0);
    QCOMPARE(dc.BitBlt(0, 0, 9, 9, &source, 0, 0, 0x00CC0020), true);
    dc.FrameRect(&box, &brush);
    dc.FillSolidRect(&box, orange);
    dc.FillSolidRect(2, 3, 8, 9, orange);

    TEXTMETRICW metrics;
    TEXTMETRICW before;
    std::memset(&metrics, 0x5A, sizeof metrics);
    std::memcpy(&before, &metrics, sizeof metrics);
    QCOMPARE(dc.GetTextMetricsW(&metrics), true);
    QCOMPARE(dc.GetTextMetricsW(nullptr), true);
    QCOMPARE(std::memcmp(&metrics, &before, sizeof metrics), 0);
    const CSize extent = dc.GetTextExtent(L"Kx");
    QVERIFY(extent.cx == 0 && extent.cy == 0);

    QCOMPARE(dc.m_hDC, device);
    QVERIFY(!source.m_hDC);
    QCOMPARE(bitmap.image(), filled(Qt::white, Qt::white));
}

// The place of a virtual member in its class's table, as the C++ ABI encodes it in a member pointer.
template <typename Member> static std::ptrdiff_t slotOf(Member member)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof member == sizeof words);
    std::memcpy(words, &member, sizeof words);
    return (words[0] - 1) / std::ptrdiff_t{sizeof(void *)};
}

void tst_CDC::virtualOrder()
{
    QCOMPARE(slotOf(&CDC::SelectStockObject), 2);
    QCOMPARE(slotOf<CFont *(CDC::*)(CFont *)>(&CDC::SelectObject), 3);
    QCOMPARE(slotOf(&CDC::SaveDC), 4);
    QCOMPARE(slotOf(&CDC::RestoreDC), 5);
}

void tst_CDC::createForWindow()
{
    QWidget widget;
    widget.resize(70, 50);
    CWnd window;
    window.SetHandle(handleOf(&widget));
    CDC *dc = _CreateDCforHwnd(handleOf(&widget));
    QVERIFY(dc);
    QCOMPARE(dc, window.GetDC());
    QCOMPARE(window.GetSafeHdc(), dc->m_hDC);
    const auto *device = dynamic_cast<KxGrQtDoubleBufferImage *>(deviceOf(*dc));
    QVERIFY(device);
    QCOMPARE(device->destinationDevice(), static_cast<QPaintDevice *>(&widget));
    QCOMPARE(device->frontImage()->size(), QSize(70, 50));
    QVERIFY(!device->memImage());
}

void tst_CDC::createForNoWindow()
{
    QVERIFY(!_CreateDCforHwnd(nullptr));
    QVERIFY(!_CreateDCforHwnd(objectAt<HWND__>(0x5000)));

    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    window.Detach();
    QVERIFY(!_CreateDCforHwnd(handleOf(&widget)));
}

void tst_CDC::createAgainLeavesTheFormerDevice()
{
    QWidget widget;
    CWnd window;
    window.SetHandle(handleOf(&widget));
    CDC *dc = _CreateDCforHwnd(handleOf(&widget));
    const std::unique_ptr<KxQtPaintDeviceWrapper> former(deviceOf(*dc));
    QCOMPARE(_CreateDCforHwnd(handleOf(&widget)), dc);
    QVERIFY(deviceOf(*dc) != former.get());
    QCOMPARE(former->destinationDevice(), static_cast<QPaintDevice *>(&widget));
}

void tst_CDC::fillRectInAPaintEvent()
{
    Canvas canvas;
    canvas.resize(20, 20);
    CWnd window;
    window.SetHandle(handleOf(&canvas));
    CDC *dc = _CreateDCforHwnd(handleOf(&canvas));
    ScopedBrush brush(orange);
    canvas.paint = [&] {
        fillWhite(*dc);
        dc->FillRect(&box, &brush);
    };
    const QImage shown = canvas.grab().toImage().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(shown, filled(Qt::white, QColor(255, 128, 32)));
}

void tst_CDC::fillRectOutsideOfAPaintEvent()
{
    Canvas canvas;
    canvas.resize(20, 20);
    CWnd window;
    window.SetHandle(handleOf(&canvas));
    CDC *dc = _CreateDCforHwnd(handleOf(&canvas));
    QTest::ignoreMessage(QtWarningMsg, "QWidget::paintEngine: Should no longer be called");
    QTest::ignoreMessage(QtWarningMsg, "QPainter::begin: Paint device returned engine == 0, type: 1");
    dc->FillRect(&box, nullptr);
    QCOMPARE(*static_cast<KxGrQtDoubleBufferImage *>(deviceOf(*dc))->frontImage(), [] {
        QImage transparent(20, 20, QImage::Format_ARGB32_Premultiplied);
        transparent.fill(0);
        return transparent;
    }());
}

QTEST_MAIN(tst_CDC)
#include "tst_CDC.moc"
