#include "KxPainter.h"

#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <memory>

namespace {
constexpr COLORREF red = 0x0000FF;
constexpr int dotsPerInch = 72;

using Device = std::function<std::unique_ptr<QPagedPaintDevice>(const QString &file)>;

std::unique_ptr<QPagedPaintDevice> newPrinter(const QString &file)
{
    auto printer = std::make_unique<QPrinter>();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(file);
    printer->setFullPage(true);
    printer->setResolution(dotsPerInch);
    return printer;
}

std::unique_ptr<QPagedPaintDevice> newPdfWriter(const QString &file)
{
    auto writer = std::make_unique<QPdfWriter>(file);
    writer->setPageMargins(QMarginsF());
    writer->setResolution(dotsPerInch);
    return writer;
}

// The pages of a PDF file as a reader shows them, a pixel to a point.
QList<QImage> pagesOf(const QString &file)
{
    QProcess::execute(QStringLiteral("pdftoppm"), {QStringLiteral("-png"), QStringLiteral("-r"),
                                                   QString::number(dotsPerInch), file, file});
    QList<QImage> pages;
    const QFileInfo info(file);
    const auto names =
        info.dir().entryList({info.fileName() + QStringLiteral("-*.png")}, QDir::Files, QDir::Name);
    for (const QString &name : names)
        pages << QImage(info.dir().filePath(name)).convertToFormat(QImage::Format_RGB32);
    return pages;
}

bool isRed(const QImage &page, int x, int y)
{
    return page.pixel(x, y) == 0xFFFF0000;
}

bool isBlank(const QImage &page, QRect area)
{
    QImage blank(area.size(), page.format());
    blank.fill(Qt::white);
    return page.copy(area) == blank;
}
} // namespace

Q_DECLARE_METATYPE(Device)

/// Documents that a printer painter makes, as a reader of such files shows them.
class tst_KxQtPrinterPainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void document_data();
    void document();
    void activeForItsWholeLife();
    void drawingState();
    void clipRegionIsNotApplied();
    void withoutDevice();
    void refusedDevice();
};

void tst_KxQtPrinterPainter::document_data()
{
    QTest::addColumn<Device>("newDevice");
    QTest::newRow("QPrinter") << Device(newPrinter);
    QTest::newRow("QPdfWriter") << Device(newPdfWriter);
}

void tst_KxQtPrinterPainter::document()
{
    QVERIFY2(!QStandardPaths::findExecutable(QStringLiteral("pdftoppm")).isEmpty(),
             "install poppler-utils: its pdftoppm shows the pages");
    QFETCH(Device, newDevice);
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("document.pdf"));
    {
        const auto device = newDevice(file);
        KxQtPrinterPainter painter(device.get());
        QVERIFY(painter.beginDraw());
        painter.fillRect(CRect(100, 100, 200, 150), red);
        POINT points[] = {{100, 300}, {200, 300}, {200, 400}, {100, 400}};
        UINT count = 4;
        painter.setClipRegion(points, &count, 1);
        painter.fillRect(CRect(0, 250, 500, 500), red);
        QVERIFY(painter.endDraw());

        QVERIFY(device->newPage());
        QVERIFY(painter.beginDraw());
        painter.drawText(100, 100, L"Second", 6);
        painter.setPen(PS_SOLID, 4, red);
        painter.drawLine(100, 200, 300, 200);
        QVERIFY(painter.endDraw());
    }
    const QList<QImage> pages = pagesOf(file);
    QCOMPARE(pages.size(), 2);
    QVERIFY(isRed(pages[0], 105, 105) && isRed(pages[0], 195, 145));
    QVERIFY(isBlank(pages[0], QRect(0, 0, 500, 98)) && isBlank(pages[0], QRect(202, 98, 200, 60)));
    QVERIFY(isBlank(pages[0], QRect(0, 153, 500, 145)));
    QVERIFY(isRed(pages[0], 150, 350));
    QVERIFY(isBlank(pages[0], QRect(0, 250, 98, 250)) && isBlank(pages[0], QRect(202, 250, 98, 250)));

    QVERIFY(isRed(pages[1], 200, 200));
    QVERIFY(isBlank(pages[1], QRect(0, 210, 500, 300)));
    QVERIFY(!isBlank(pages[1], QRect(100, 85, 50, 17)));
}

void tst_KxQtPrinterPainter::activeForItsWholeLife()
{
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        KxQtPrinterPainter painter(&image);
        QCOMPARE(painter.wrappedDevice(), &image);
        QVERIFY(painter.wrappedPainter()->isActive());
        QVERIFY(painter.beginDraw());
        QVERIFY(painter.endDraw());
        QVERIFY(painter.wrappedPainter()->isActive());
        painter.fillRect(CRect(0, 0, 20, 10), red);
        QVERIFY(image.paintingActive());
    }
    QVERIFY(!image.paintingActive());
    QVERIFY(isRed(image, 19, 9));
}

void tst_KxQtPrinterPainter::drawingState()
{
    QImage image(20, 10, QImage::Format_RGB32);
    KxQtPrinterPainter painter(&image);
    const QPainter *plain = painter.wrappedPainter();
    painter.setPen(PS_DASH, 5, red);
    painter.setBrush(red);
    const QPen pen = plain->pen();
    QVERIFY(painter.beginDraw());
    QCOMPARE(plain->pen(), QPen(Qt::black, 0));
    QCOMPARE(plain->brush(), QBrush(Qt::black));
    painter.Rotate(45, 3, 3);
    QVERIFY(painter.endDraw());
    QCOMPARE(plain->pen(), pen);
    QCOMPARE(plain->brush(), QBrush(Qt::red));
    QVERIFY(plain->transform().isIdentity());
}

void tst_KxQtPrinterPainter::clipRegionIsNotApplied()
{
    QImage image(20, 10, QImage::Format_RGB32);
    KxQtPrinterPainter painter(&image);
    POINT points[] = {{2, 2}, {9, 2}, {9, 9}, {2, 9}};
    UINT count = 4;
    painter.beginDraw();
    painter.setClipRegion(points, &count, 1);
    QVERIFY(painter.wrappedPainter()->hasClipping());
    painter.endDraw();
    painter.beginDraw();
    QVERIFY(!painter.wrappedPainter()->hasClipping());
    painter.endDraw();
}

void tst_KxQtPrinterPainter::withoutDevice()
{
    KxQtPrinterPainter painter(nullptr);
    QVERIFY(!painter.wrappedPainter()->isActive());
    QVERIFY(!painter.beginDraw());
    QVERIFY(!painter.endDraw());
    painter.drawPoint(3, 3);
}

void tst_KxQtPrinterPainter::refusedDevice()
{
    QImage none;
    QTest::ignoreMessage(QtWarningMsg, "QPainter::begin: Paint device returned engine == 0, type: 3");
    KxQtPrinterPainter painter(&none);
    QVERIFY(painter.beginDraw());
    painter.drawPoint(3, 3);
    QVERIFY(painter.endDraw());
}

QTEST_MAIN(tst_KxQtPrinterPainter)
#include "tst_KxQtPrinterPainter.moc"
