#include "KxDoubleBuffer.h"
#include "PlainImages.h"

#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QWidget>
#include <QtTest>

#include <climits>
#include <memory>

namespace {
// A window as an application writes it: what it shows is the front image.
class Canvas : public QWidget
{
public:
    Canvas()
    {
        resize(20, 10);
        buffer = std::make_unique<KxGrQtDoubleBufferImage>(this);
    }

    int paintEvents = 0;
    std::unique_ptr<KxGrQtDoubleBufferImage> buffer;

protected:
    void paintEvent(QPaintEvent *) override
    {
        ++paintEvents;
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.drawImage(0, 0, *buffer->frontImage());
    }
};

} // namespace

class tst_KxGrQtDoubleBufferImage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deviceWrapper();
    void deviceWrapperKeepsItsPainter();

    void withoutDestination();
    void frontImageOfTheDestination();
    void createImages();
    void createImagesReplacesTheFrontImage();
    void createImagesOfTheDestinationsSize();
    void createImagesOfAnotherSize();
    void createImagesOfBadSize_data();
    void createImagesOfBadSize();
    void longLines();
    void destroyImages();
    void destroyImagesKeepsAnEarlyFrontImage();
    void destroyImagesWhileDrawing();
    void destroyImagesUnderAPainterWithoutDevice();

    void repairDrawsOverTheFrontImage();
    void repairWithoutImages();
    void repairWhileDrawing();
    void repairUpdatesTheWindow();
    void repairLeavesWindowsWithoutUpdates();
    void repairPublishesToTheFrontBuffer();
    void frontBuffer();
    void drawingLasts();
};

void tst_KxGrQtDoubleBufferImage::deviceWrapper()
{
    KxQtPaintDeviceWrapper none;
    QVERIFY(!none.destinationDevice());
    QCOMPARE(none.width(), 0);
    QCOMPARE(none.height(), 0);
    QCOMPARE(none.depth(), 0);
    QVERIFY(none.beginDraw() && none.endDraw());
    QVERIFY(!none.painter()->beginDraw());

    QImage image(20, 10, QImage::Format_RGB16);
    KxQtPaintDeviceWrapper device(&image);
    QCOMPARE(device.destinationDevice(), &image);
    QCOMPARE(device.width(), 20);
    QCOMPARE(device.height(), 10);
    QCOMPARE(device.depth(), 16);
    QVERIFY(device.beginDraw());
    QVERIFY(!image.paintingActive());
    QVERIFY(device.endDraw());
}

void tst_KxGrQtDoubleBufferImage::deviceWrapperKeepsItsPainter()
{
    QImage first = plain(9, 9, Qt::white);
    QImage second = plain(5, 5, Qt::white);
    KxQtPaintDeviceWrapper device(&first);
    device.setDestinationDevice(&second);
    KxQtPainterWrapper *painter = device.painter();
    QCOMPARE(painter->wrappedDevice(), &second);
    device.setDestinationDevice(&first);
    QCOMPARE(device.width(), 9);
    QCOMPARE(device.painter(), painter);
    QCOMPARE(painter->wrappedDevice(), &second);
}

void tst_KxGrQtDoubleBufferImage::withoutDestination()
{
    KxGrQtDoubleBufferImage buffer;
    QVERIFY(!buffer.destinationDevice());
    QVERIFY(!buffer.memBits() && !buffer.memImage() && !buffer.frontImage() && !buffer.backupBits());
    QVERIFY(buffer.memPainter() && !buffer.memPainter()->wrappedDevice());
    QVERIFY(buffer.frontPainter() && !buffer.frontPainter()->wrappedDevice());
    QCOMPARE(*buffer.getHPalette(), QPalette());
    QVERIFY(!KxGrQtDoubleBufferImage(nullptr).frontImage());
}

void tst_KxGrQtDoubleBufferImage::frontImageOfTheDestination()
{
    QImage device(20, 10, QImage::Format_RGB16);
    KxGrQtDoubleBufferImage buffer(&device);
    QCOMPARE(buffer.destinationDevice(), &device);
    QVERIFY(buffer.frontImage());
    QCOMPARE(*buffer.frontImage(), plain(20, 10, Qt::transparent));
    QCOMPARE(buffer.frontImage()->format(), format);
    QCOMPARE(buffer.frontPainter()->wrappedDevice(), buffer.frontImage());
    QVERIFY(!buffer.memImage() && !buffer.memBits() && !buffer.memPainter()->wrappedDevice());
}

void tst_KxGrQtDoubleBufferImage::createImages()
{
    KxGrQtDoubleBufferImage buffer;
    QVERIFY(buffer.createImages(20, 10, 4));
    for (const QImage *image : {buffer.memImage(), buffer.frontImage()}) {
        QCOMPARE(*image, plain(20, 10, Qt::transparent));
        QCOMPARE(image->format(), format);
    }
    QCOMPARE(buffer.memPainter()->wrappedDevice(), buffer.memImage());
    QCOMPARE(buffer.frontPainter()->wrappedDevice(), buffer.frontImage());
    fill(buffer.memPainter(), red);
    QCOMPARE(*buffer.memImage(), plain(20, 10, Qt::red));
    QCOMPARE(*buffer.frontImage(), plain(20, 10, Qt::transparent));
    QCOMPARE(buffer.memBits()[(20 * 10 - 1) * 4 + 2], 0xFF);
}

void tst_KxGrQtDoubleBufferImage::createImagesReplacesTheFrontImage()
{
    QImage device = plain(20, 10, Qt::white);
    KxGrQtDoubleBufferImage buffer(&device);
    fill(buffer.frontPainter(), red);
    // Only images that createImages() made count as those of the destination's size.
    QVERIFY(buffer.createImages(20, 10, 4));
    QVERIFY(buffer.memImage());
    QCOMPARE(*buffer.frontImage(), plain(20, 10, Qt::transparent));
}

void tst_KxGrQtDoubleBufferImage::createImagesOfTheDestinationsSize()
{
    QWidget widget;
    widget.resize(20, 10);
    KxGrQtDoubleBufferImage buffer(&widget);
    buffer.createImages(20, 10, 4);
    const auto *image = buffer.memImage();
    auto *bits = buffer.memBits();
    fill(buffer.memPainter(), red);
    QCOMPARE(buffer.createImages(20, 10, 4), bits);
    QCOMPARE(buffer.memImage(), image);
    QCOMPARE(*image, plain(20, 10, Qt::red));

    // The images have another size than the window now, which is not looked at.
    widget.resize(30, 15);
    QCOMPARE(buffer.createImages(30, 15, 4), bits);
    QCOMPARE(*buffer.memImage(), plain(20, 10, Qt::red));
    QVERIFY(buffer.createImages(20, 10, 4));
    QCOMPARE(*buffer.memImage(), plain(20, 10, Qt::transparent));
}

void tst_KxGrQtDoubleBufferImage::createImagesOfAnotherSize()
{
    KxGrQtDoubleBufferImage buffer;
    buffer.createImages(20, 10, 4);
    fill(buffer.memPainter(), red);
    QVERIFY(buffer.createImages(30, 5, 4));
    QCOMPARE(*buffer.memImage(), plain(30, 5, Qt::transparent));
    QCOMPARE(buffer.frontImage()->size(), QSize(30, 5));
    QCOMPARE(buffer.memPainter()->wrappedDevice(), buffer.memImage());
    QCOMPARE(buffer.frontPainter()->wrappedDevice(), buffer.frontImage());
}

void tst_KxGrQtDoubleBufferImage::createImagesOfBadSize_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("bytesPerPixel");
    QTest::newRow("nothing at all") << 0 << 0 << 4;
    QTest::newRow("no width") << 0 << 5 << 4;
    QTest::newRow("no height") << 5 << 0 << 4;
    QTest::newRow("no bytes") << 5 << 5 << 0;
    QTest::newRow("negative width") << -5 << 5 << 4;
    QTest::newRow("negative height") << 5 << -5 << 4;
    QTest::newRow("negative bytes") << 5 << 5 << -4;
    QTest::newRow("two negatives") << -5 << -5 << 4;
    QTest::newRow("least values") << INT_MIN << INT_MIN << INT_MIN;
    QTest::newRow("too few bytes") << 5 << 5 << 3;
    QTest::newRow("too few bytes in words") << 4 << 5 << 3;
    QTest::newRow("line of 2^32") << (1 << 30) << 1 << 4;
    QTest::newRow("lines that are no words") << 5 << 5 << 5;
    QTest::newRow("lines too long") << INT_MAX / 4 + 1 << 1 << 4;
    QTest::newRow("too large") << 1 << INT_MAX / 4 + 1 << 4;
    QTest::newRow("product of 2^32") << 32768 << 32768 << 4;
    QTest::newRow("largest") << INT_MAX << INT_MAX << INT_MAX;
}

void tst_KxGrQtDoubleBufferImage::createImagesOfBadSize()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, bytesPerPixel);
    KxGrQtDoubleBufferImage fresh;
    QVERIFY(!fresh.createImages(width, height, bytesPerPixel));
    QVERIFY(!fresh.memImage() && !fresh.memBits() && !fresh.frontImage());

    KxGrQtDoubleBufferImage buffer;
    auto *bits = buffer.createImages(20, 10, 4);
    fill(buffer.memPainter(), red);
    QVERIFY(!buffer.createImages(width, height, bytesPerPixel));
    QCOMPARE(buffer.memBits(), bits);
    QCOMPARE(*buffer.memImage(), plain(20, 10, Qt::red));
    QCOMPARE(buffer.frontImage()->size(), QSize(20, 10));
}

void tst_KxGrQtDoubleBufferImage::longLines()
{
    KxGrQtDoubleBufferImage buffer;
    QVERIFY(buffer.createImages(4, 10, 5));
    QCOMPARE(buffer.memImage()->bytesPerLine(), 20);
    fill(buffer.memPainter(), red);
    QCOMPARE(*buffer.memImage(), plain(4, 10, Qt::red));
    QCOMPARE(buffer.memBits()[16], 0);
}

void tst_KxGrQtDoubleBufferImage::destroyImages()
{
    KxGrQtDoubleBufferImage buffer;
    buffer.destroyImages();
    buffer.createImages(20, 10, 4);
    buffer.destroyImages();
    QVERIFY(!buffer.memImage() && !buffer.memBits() && !buffer.frontImage());
    QVERIFY(!buffer.memPainter()->wrappedDevice());
    QVERIFY(!buffer.frontPainter()->wrappedDevice());
    buffer.destroyImages();
    QVERIFY(buffer.createImages(20, 10, 4));
}

void tst_KxGrQtDoubleBufferImage::destroyImagesKeepsAnEarlyFrontImage()
{
    QImage device = plain(20, 10, Qt::white);
    KxGrQtDoubleBufferImage buffer(&device);
    const auto *front = buffer.frontImage();
    buffer.destroyImages();
    QCOMPARE(buffer.frontImage(), front);
    QCOMPARE(buffer.frontPainter()->wrappedDevice(), front);
}

void tst_KxGrQtDoubleBufferImage::destroyImagesWhileDrawing()
{
    KxGrQtDoubleBufferImage buffer;
    buffer.createImages(20, 10, 4);
    buffer.memPainter()->beginDraw();
    buffer.frontPainter()->beginDraw();
    buffer.destroyImages();
    buffer.memPainter()->drawPoint(3, 3);
    QVERIFY(!buffer.memPainter()->wrappedPainter()->isActive());
    QVERIFY(!buffer.frontPainter()->wrappedPainter()->isActive());

    buffer.createImages(20, 10, 4);
    buffer.memPainter()->beginDraw();
    buffer.createImages(30, 10, 4);
    buffer.frontPainter()->beginDraw();
}

void tst_KxGrQtDoubleBufferImage::destroyImagesUnderAPainterWithoutDevice()
{
    KxGrQtDoubleBufferImage buffer;
    buffer.createImages(20, 10, 4);
    for (KxQtPainterWrapper *painter : {buffer.memPainter(), buffer.frontPainter()}) {
        painter->beginDraw();
        painter->setWrappedDevice(nullptr);
    }
    buffer.destroyImages();
    for (KxQtPainterWrapper *painter : {buffer.memPainter(), buffer.frontPainter()}) {
        QVERIFY(!painter->wrappedPainter()->isActive());
        painter->drawPoint(3, 3);
    }
}

void tst_KxGrQtDoubleBufferImage::repairDrawsOverTheFrontImage()
{
    KxGrQtDoubleBufferImage buffer;
    buffer.createImages(20, 10, 4);
    fill(buffer.memPainter(), red, CRect(0, 0, 10, 10));
    fill(buffer.frontPainter(), 0xFF0000);
    buffer.repairFrontBuffer();
    // The right half of the memory image is transparent.
    QImage expected = plain(20, 10, Qt::blue);
    QPainter(&expected).fillRect(0, 0, 10, 10, Qt::red);
    QCOMPARE(*buffer.frontImage(), expected);
    QVERIFY(!buffer.frontImage()->paintingActive());
}

void tst_KxGrQtDoubleBufferImage::repairWithoutImages()
{
    QImage device = plain(20, 10, Qt::white);
    KxGrQtDoubleBufferImage buffer(&device);
    buffer.repairFrontBuffer();
    QCOMPARE(*buffer.frontImage(), plain(20, 10, Qt::transparent));
    QCOMPARE(device, plain(20, 10, Qt::white));
    KxGrQtDoubleBufferImage none;
    none.repairFrontBuffer();
    none.setFrontBuffer(&buffer);
    none.repairFrontBuffer();
    none.createImages(20, 10, 4);
    none.repairFrontBuffer();

    QWidget empty;
    empty.resize(0, 0);
    KxGrQtDoubleBufferImage flat(&empty);
    QVERIFY(flat.frontImage()->isNull());
    flat.repairFrontBuffer();
}

void tst_KxGrQtDoubleBufferImage::repairWhileDrawing()
{
    KxGrQtDoubleBufferImage buffer;
    buffer.createImages(20, 10, 4);
    fill(buffer.memPainter(), red);
    buffer.memPainter()->beginDraw();
    buffer.frontPainter()->beginDraw();
    buffer.repairFrontBuffer();
    QCOMPARE(*buffer.frontImage(), plain(20, 10, Qt::transparent));
    buffer.frontPainter()->endDraw();
    buffer.repairFrontBuffer();
    QCOMPARE(*buffer.frontImage(), plain(20, 10, Qt::red));
    buffer.memPainter()->endDraw();
}

void tst_KxGrQtDoubleBufferImage::repairUpdatesTheWindow()
{
    Canvas canvas;
    canvas.show();
    QTRY_VERIFY(canvas.paintEvents > 0);
    canvas.paintEvents = 0;
    canvas.buffer->repairFrontBuffer();
    QCOMPARE(canvas.paintEvents, 0);
    QTRY_COMPARE(canvas.paintEvents, 1);
}

void tst_KxGrQtDoubleBufferImage::repairLeavesWindowsWithoutUpdates()
{
    Canvas canvas;
    canvas.show();
    QTRY_VERIFY(canvas.paintEvents > 0);
    canvas.setUpdatesEnabled(false);
    canvas.paintEvents = 0;
    canvas.buffer->createImages(20, 10, 4);
    fill(canvas.buffer->memPainter(), red);
    canvas.buffer->repairFrontBuffer();
    QCOMPARE(*canvas.buffer->frontImage(), plain(20, 10, Qt::red));
    QVERIFY(!canvas.testAttribute(Qt::WA_PendingUpdate));
    QCoreApplication::processEvents();
    QCOMPARE(canvas.paintEvents, 0);
}

void tst_KxGrQtDoubleBufferImage::repairPublishesToTheFrontBuffer()
{
    Canvas canvas;
    canvas.show();
    QTRY_VERIFY(canvas.paintEvents > 0);
    canvas.buffer->createImages(20, 10, 4);
    fill(canvas.buffer->memPainter(), 0xFF0000);
    KxGrQtDoubleBufferImage layer;
    layer.createImages(10, 10, 4);
    fill(layer.memPainter(), red);
    layer.setFrontBuffer(canvas.buffer.get());
    canvas.paintEvents = 0;
    layer.repairFrontBuffer();

    QImage expected = plain(20, 10, Qt::blue);
    QPainter(&expected).fillRect(0, 0, 10, 10, Qt::red);
    QCOMPARE(*canvas.buffer->memImage(), expected);
    QCOMPARE(*canvas.buffer->frontImage(), plain(20, 10, Qt::transparent));
    QCOMPARE(*layer.frontImage(), plain(10, 10, Qt::red));
    QCoreApplication::processEvents();
    QCOMPARE(canvas.paintEvents, 0);
}

void tst_KxGrQtDoubleBufferImage::frontBuffer()
{
    QImage device = plain(20, 10, Qt::white);
    KxGrQtDoubleBufferImage front(&device);
    KxGrQtDoubleBufferImage buffer;
    buffer.setFrontBuffer(&front);
    QCOMPARE(buffer.destinationDevice(), &device);
    buffer.setFrontBuffer(nullptr);
    QCOMPARE(buffer.destinationDevice(), &device);
    KxGrQtDoubleBufferImage none;
    buffer.setFrontBuffer(&none);
    QVERIFY(!buffer.destinationDevice());
}

void tst_KxGrQtDoubleBufferImage::drawingLasts()
{
    Canvas canvas;
    canvas.buffer->createImages(canvas.width(), canvas.height(), 4);
    fill(canvas.buffer->memPainter(), red, CRect(2, 3, 9, 8));
    canvas.buffer->repairFrontBuffer();
    QImage expected(20, 10, QImage::Format_RGB32);
    expected.fill(Qt::white);
    QPainter(&expected).fillRect(2, 3, 7, 5, Qt::red);
    for (int run = 0; run < 2; ++run)
        QCOMPARE(canvas.grab().toImage().convertToFormat(QImage::Format_RGB32), expected);
}

QTEST_MAIN(tst_KxGrQtDoubleBufferImage)
#include "tst_KxGrQtDoubleBufferImage.moc"
