#include "SideBySide.h"

#include <QtTest>

#include <climits>

namespace {
constexpr COLORREF orange = 0x002080FF; // Red 255, green 128, blue 32.
const QColor qtOrange(255, 128, 32);
const CPoint star[] = {{24, 2}, {36, 36}, {4, 14}, {44, 14}, {12, 36}};
const CPoint closedStar[] = {{24, 2}, {36, 36}, {4, 14}, {44, 14}, {12, 36}, {24, 2}};
const QPolygon qtStar({{24, 2}, {36, 36}, {4, 14}, {44, 14}, {12, 36}});
} // namespace

/// How drawing is combined with what is there.
class tst_KxQtPainterModes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void compositionModes_data();
    void compositionModes();
    void closedFigureInXorModeKeepsItsClosingPoint();
    void xorTwiceLeavesNothing();
    void xorLeavesTheBrush();
};

void tst_KxQtPainterModes::compositionModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("modeAfter");
    for (int mode = 0; mode <= QPainter::RasterOp_NotDestination; ++mode)
        QTest::addRow("%d", mode) << mode << mode;
    for (const int mode : {-1, INT_MIN, QPainter::RasterOp_NotDestination + 1, INT_MAX})
        QTest::addRow("%d is ignored", mode) << mode << int(QPainter::RasterOp_SourceXorDestination);
}

void tst_KxQtPainterModes::compositionModes()
{
    QFETCH(int, mode);
    QFETCH(int, modeAfter);
    const QImage image = drawn([=](auto &p) {
        QCOMPARE(p.getROP2(), int(QPainter::CompositionMode_SourceOver));
        p.setROP2(QPainter::RasterOp_SourceXorDestination);
        p.setROP2(mode);
        QCOMPARE(p.getROP2(), modeAfter);
        p.drawAlphaArea(star, 5, orange, 100);
    });
    QCOMPARE(image, painted([=](auto &p) {
                 p.setCompositionMode(QPainter::CompositionMode(modeAfter));
                 p.setBrush(QColor(255, 128, 32, 100));
                 p.drawPolygon(qtStar);
             }));
}

static Draw inXorMode(const std::function<void(KxQtPainterWrapper &)> &draw)
{
    return [=](KxQtPainterWrapper &p) {
        p.setROP2(QPainter::RasterOp_SourceXorDestination);
        p.setPenColor(0xFFFFFF);
        p.setBrush(orange);
        draw(p);
    };
}

void tst_KxQtPainterModes::closedFigureInXorModeKeepsItsClosingPoint()
{
    const CPoint box[] = {{5, 5}, {30, 5}, {30, 20}, {5, 20}, {5, 5}};
    const QImage image = drawn(inXorMode([&](auto &p) { p.drawPolyline(box, 5); }));
    const QImage before = canvas();
    QCOMPARE(image, painted([](auto &p) {
                 p.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
                 p.setPen(QPen(Qt::white, 0));
                 p.setBrush(Qt::NoBrush);
                 p.drawPolygon(QPolygon({{5, 5}, {30, 5}, {30, 20}, {5, 20}}));
             }));
    QCOMPARE(image.pixel(5, 5), before.pixel(5, 5) ^ 0xFFFFFF);
    QCOMPARE(image.pixel(6, 6), before.pixel(6, 6));

    QCOMPARE(drawn(inXorMode([&](auto &p) { p.drawPolyline(box, 4); })), painted([](auto &p) {
                 p.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
                 p.setPen(QPen(Qt::white, 0));
                 p.drawPolyline(QPolygon({{5, 5}, {30, 5}, {30, 20}, {5, 20}}));
             }));
}

void tst_KxQtPainterModes::xorTwiceLeavesNothing()
{
    QCOMPARE(drawn(inXorMode([](auto &p) {
                 p.drawPolyline(closedStar, 6);
                 p.drawPolyline(closedStar, 6);
             })),
             canvas());
    QCOMPARE(drawn(inXorMode([](auto &p) { p.drawPolyline(star, 1); })), canvas());
}

void tst_KxQtPainterModes::xorLeavesTheBrush()
{
    drawn(inXorMode([](auto &p) {
        p.setBrush(orange);
        p.drawPolyline(closedStar, 6);
        QCOMPARE(p.wrappedPainter()->brush(), QBrush(qtOrange));
    }));
}

QTEST_MAIN(tst_KxQtPainterModes)
#include "tst_KxQtPainterModes.moc"
