#include <KxPlatformServices.h>
#include <QImage>
#include <QPainter>
#include <QtTest>
#include <climits>

namespace {
KxGdiObjectService &gdi()
{
    return platformServices().gdiObjects();
}

// Deletes a GDI object at the end of a test.
class ScopedObject
{
public:
    explicit ScopedObject(HANDLE handle)
        : m_handle(handle)
    {
    }
    ~ScopedObject() { gdi().deleteObject(m_handle); }
    operator HANDLE() const { return m_handle; }

private:
    const HANDLE m_handle;
};
} // namespace

class tst_PlatformGdiObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createBitmap_data();
    void createBitmap();
    void refusesSize_data();
    void refusesSize();
    void paintsOnBitmap();
    void imageIsACopy();
    void imageIsACopyWhilePainting();
    void deviceKeepsItsAddress();
    void brush_data();
    void brush();
    void kindsAreToldApart();
    void unknownHandle_data();
    void unknownHandle();
    void deletedHandleStaysUnknown();
    void bitmapUnderAPainterIsNotDeleted();
    void handlesAreDistinct();
};

void tst_PlatformGdiObjects::createBitmap_data()
{
    QTest::addColumn<uint>("flags");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("smallest") << 0U << 1 << 1;
    QTest::newRow("wide") << 0U << 300 << 2;
    QTest::newRow("tall") << 0U << 2 << 300;
    QTest::newRow("flags are ignored") << 0xFFFFFFFFU << 3 << 4;
}

void tst_PlatformGdiObjects::createBitmap()
{
    QFETCH(uint, flags);
    QFETCH(int, width);
    QFETCH(int, height);

    const ScopedObject bitmap(gdi().createBitmap(flags, width, height));
    QVERIFY(bitmap);
    QVERIFY(gdi().bitmapDevice(bitmap));
    QCOMPARE(gdi().bitmapDevice(bitmap)->width(), width);
    QCOMPARE(gdi().bitmapDevice(bitmap)->height(), height);
    QImage black(width, height, QImage::Format_RGB32);
    black.fill(Qt::black);
    QCOMPARE(gdi().bitmapImage(bitmap), black);
}

void tst_PlatformGdiObjects::refusesSize_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("no width") << 0 << 5;
    QTest::newRow("no height") << 5 << 0;
    QTest::newRow("negative width") << -1 << 5;
    QTest::newRow("negative height") << 5 << -1;
    QTest::newRow("both negative") << -5 << -5;
    QTest::newRow("smallest ints") << INT_MIN << INT_MIN;
    QTest::newRow("largest ints") << INT_MAX << INT_MAX;
    QTest::newRow("largest width") << INT_MAX << 1;
    QTest::newRow("largest height") << 1 << INT_MAX;
    QTest::newRow("product wraps to 0") << 65536 << 65536;
    QTest::newRow("byte count wraps") << 32768 << 32768;
}

void tst_PlatformGdiObjects::refusesSize()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QVERIFY(!gdi().createBitmap(0, width, height));
}

void tst_PlatformGdiObjects::paintsOnBitmap()
{
    const ScopedObject bitmap(gdi().createBitmap(0, 4, 4));
    QPainter(gdi().bitmapDevice(bitmap)).fillRect(0, 0, 2, 4, QColor(1, 2, 3));
    const QImage image = gdi().bitmapImage(bitmap);
    QCOMPARE(image.pixelColor(1, 3), QColor(1, 2, 3));
    QCOMPARE(image.pixelColor(2, 3), QColor(Qt::black));
    QCOMPARE(platformServices().image().image(bitmap), image);
}

void tst_PlatformGdiObjects::imageIsACopy()
{
    const ScopedObject bitmap(gdi().createBitmap(0, 2, 2));
    QImage before = gdi().bitmapImage(bitmap);
    QPainter(gdi().bitmapDevice(bitmap)).fillRect(0, 0, 2, 2, Qt::red);
    QCOMPARE(before.pixelColor(0, 0), QColor(Qt::black));
    before.fill(Qt::green);
    QCOMPARE(gdi().bitmapImage(bitmap).pixelColor(0, 0), QColor(Qt::red));
}

void tst_PlatformGdiObjects::imageIsACopyWhilePainting()
{
    const ScopedObject bitmap(gdi().createBitmap(0, 2, 2));
    QPainter painter(gdi().bitmapDevice(bitmap));
    const QImage before = platformServices().image().image(bitmap);
    painter.fillRect(0, 0, 2, 2, Qt::red);
    QCOMPARE(before.pixelColor(0, 0), QColor(Qt::black));
    QCOMPARE(gdi().bitmapImage(bitmap).pixelColor(0, 0), QColor(Qt::red));
}

void tst_PlatformGdiObjects::deviceKeepsItsAddress()
{
    const ScopedObject bitmap(gdi().createBitmap(0, 2, 2));
    const QPaintDevice *device = gdi().bitmapDevice(bitmap);
    std::vector<std::unique_ptr<ScopedObject>> others;
    for (int i = 0; i < 1000; ++i)
        others.push_back(std::make_unique<ScopedObject>(gdi().createSolidBrush(COLORREF(i))));
    QCOMPARE(gdi().bitmapDevice(bitmap), device);
}

void tst_PlatformGdiObjects::brush_data()
{
    QTest::addColumn<COLORREF>("color");
    QTest::newRow("black") << COLORREF(0);
    QTest::newRow("red") << COLORREF(0x0000FF);
    QTest::newRow("white") << COLORREF(0xFFFFFF);
    QTest::newRow("all bits kept") << COLORREF(0xFFFFFFFF);
}

void tst_PlatformGdiObjects::brush()
{
    QFETCH(COLORREF, color);
    const ScopedObject brush(gdi().createSolidBrush(color));
    QVERIFY(brush);
    QCOMPARE(gdi().brushColor(brush), std::optional<COLORREF>(color));
}

void tst_PlatformGdiObjects::kindsAreToldApart()
{
    const ScopedObject brush(gdi().createSolidBrush(0));
    QVERIFY(!gdi().bitmapDevice(brush));
    QVERIFY(gdi().bitmapImage(brush).isNull());
    QVERIFY(platformServices().image().image(brush).isNull());
    const ScopedObject bitmap(gdi().createBitmap(0, 1, 1));
    QVERIFY(!gdi().brushColor(bitmap));
}

void tst_PlatformGdiObjects::unknownHandle_data()
{
    QTest::addColumn<quintptr>("value");
    static int foreign = 0;
    QTest::newRow("null") << quintptr(0);
    QTest::newRow("resource identifier") << quintptr(101);
    QTest::newRow("an address") << quintptr(&foreign);
    QTest::newRow("not an address") << quintptr(0xDEADBEEF);
    QTest::newRow("all bits set") << ~quintptr(0);
}

void tst_PlatformGdiObjects::unknownHandle()
{
    QFETCH(quintptr, value);
    const auto handle = reinterpret_cast<HANDLE>(value);
    QVERIFY(!gdi().bitmapDevice(handle));
    QVERIFY(gdi().bitmapImage(handle).isNull());
    QVERIFY(platformServices().image().image(handle).isNull());
    QVERIFY(!gdi().brushColor(handle));
    QCOMPARE(gdi().deleteObject(handle), 0);
}

void tst_PlatformGdiObjects::deletedHandleStaysUnknown()
{
    HANDLE bitmap = gdi().createBitmap(0, 2, 2);
    HANDLE brush = gdi().createSolidBrush(1);
    QVERIFY(gdi().deleteObject(bitmap));
    QVERIFY(gdi().deleteObject(brush));
    QCOMPARE(gdi().deleteObject(bitmap), 0);
    QCOMPARE(gdi().deleteObject(brush), 0);
    const ScopedObject other(gdi().createBitmap(0, 2, 2));
    QVERIFY(other != bitmap && other != brush);
    QVERIFY(!gdi().bitmapDevice(bitmap));
    QVERIFY(!gdi().brushColor(brush));
}

void tst_PlatformGdiObjects::bitmapUnderAPainterIsNotDeleted()
{
    const ScopedObject bitmap(gdi().createBitmap(0, 2, 2));
    {
        QPainter painter(gdi().bitmapDevice(bitmap));
        QCOMPARE(gdi().deleteObject(bitmap), 0);
        painter.fillRect(0, 0, 2, 2, Qt::red);
    }
    QCOMPARE(gdi().bitmapImage(bitmap).pixelColor(1, 1), QColor(Qt::red));
    QVERIFY(gdi().deleteObject(bitmap));
}

void tst_PlatformGdiObjects::handlesAreDistinct()
{
    const ScopedObject first(gdi().createSolidBrush(7));
    const ScopedObject second(gdi().createSolidBrush(7));
    QVERIFY(first != second);
    QVERIFY(quintptr(HANDLE(first)) > 0xFFFF);
}

QTEST_MAIN(tst_PlatformGdiObjects)
#include "tst_PlatformGdiObjects.moc"
