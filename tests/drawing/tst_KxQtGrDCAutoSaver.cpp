#include "KxDoubleBuffer.h"
#include "PlainImages.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QtTest>

static HDC handleOf(KxQtPainterWrapper *painter)
{
    return reinterpret_cast<HDC>(painter);
}

class tst_KxQtGrDCAutoSaver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void undoesDrawing();
    void leavesTheMemoryImage();
    void paintsOver();
    void ofOtherDevices();
    void ofADeviceThatChanges();
};

void tst_KxQtGrDCAutoSaver::undoesDrawing()
{
    QImage image = plain(20, 10, Qt::white);
    KxQtPainterWrapper painter(&image);
    {
        const KxQtGrDCAutoSaver saver(handleOf(&painter));
        fill(&painter, red);
        QCOMPARE(image, plain(20, 10, Qt::red));
    }
    QCOMPARE(image, plain(20, 10, Qt::white));
    QVERIFY(!image.paintingActive());
}

// An implicit copy would give the memory image pixels of its own at the next change.
void tst_KxQtGrDCAutoSaver::leavesTheMemoryImage()
{
    KxGrQtDoubleBufferImage buffer;
    buffer.createImages(20, 10, 4);
    const KxQtGrDCAutoSaver saver(handleOf(buffer.memPainter()));
    fill(buffer.memPainter(), red);
    QCOMPARE(buffer.memBits()[2], 0xFF);
    QCOMPARE(buffer.memImage()->constBits(), buffer.memBits());
}

void tst_KxQtGrDCAutoSaver::paintsOver()
{
    QImage image = plain(20, 10, Qt::transparent);
    QPainter(&image).fillRect(0, 0, 10, 10, Qt::blue);
    KxQtPainterWrapper painter(&image);
    {
        const KxQtGrDCAutoSaver saver(handleOf(&painter));
        fill(&painter, red);
    }
    QImage expected = plain(20, 10, Qt::red);
    QPainter(&expected).fillRect(0, 0, 10, 10, Qt::blue);
    QCOMPARE(image, expected);
}

void tst_KxQtGrDCAutoSaver::ofOtherDevices()
{
    const KxQtGrDCAutoSaver none(nullptr);
    KxQtPainterWrapper idle;
    const KxQtGrDCAutoSaver withoutDevice(handleOf(&idle));
    QImage null;
    KxQtPainterWrapper empty(&null);
    const KxQtGrDCAutoSaver withoutPixels(handleOf(&empty));

    QPixmap pixmap(20, 10);
    pixmap.fill(Qt::white);
    KxQtPainterWrapper painter(&pixmap);
    {
        const KxQtGrDCAutoSaver saver(handleOf(&painter));
        fill(&painter, red);
    }
    QCOMPARE(pixmap.toImage().convertToFormat(format), plain(pixmap.size(), Qt::red));
}

void tst_KxQtGrDCAutoSaver::ofADeviceThatChanges()
{
    QImage image = plain(20, 10, Qt::white);
    QImage other = plain(10, 5, Qt::red);
    QPixmap pixmap(20, 10);
    pixmap.fill(Qt::red);
    KxQtPainterWrapper painter(&image);
    {
        const KxQtGrDCAutoSaver saver(handleOf(&painter));
        painter.setWrappedDevice(&other);
    }
    QCOMPARE(other, plain(10, 5, Qt::white));
    painter.setWrappedDevice(&image);
    {
        const KxQtGrDCAutoSaver saver(handleOf(&painter));
        painter.setWrappedDevice(&pixmap);
    }
    QCOMPARE(pixmap.toImage().convertToFormat(format), plain(20, 10, Qt::red));
    painter.setWrappedDevice(&image);
    {
        const KxQtGrDCAutoSaver saver(handleOf(&painter));
        painter.setWrappedDevice(nullptr);
    }
    painter.setWrappedDevice(&pixmap);
    {
        const KxQtGrDCAutoSaver saver(handleOf(&painter));
        painter.setWrappedDevice(&image);
        image.fill(Qt::red);
    }
    QCOMPARE(image, plain(20, 10, Qt::red));
}

QTEST_MAIN(tst_KxQtGrDCAutoSaver)
#include "tst_KxQtGrDCAutoSaver.moc"
