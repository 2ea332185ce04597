#include "SideBySide.h"

#include <QPainterPath>
#include <QtTest>

namespace {
constexpr COLORREF red = 0x0000FF;
// Whether it is filled odd-even shows.
const CPoint star[] = {{24, 2}, {36, 36}, {4, 14}, {44, 14}, {12, 36}};
const QPolygon qtStar({{24, 2}, {36, 36}, {4, 14}, {44, 14}, {12, 36}});

QPainterPath qtStarPath()
{
    QPainterPath path;
    path.addPolygon(qtStar);
    return path;
}

void fillAll(KxQtPainterWrapper &painter)
{
    painter.fillRect(CRect(0, 0, 48, 40), red);
}

// The canvas with red where the area is.
QImage redIn(const QRegion &area)
{
    return painted([&](QPainter &p) {
        p.setClipRegion(area);
        p.fillRect(0, 0, 48, 40, Qt::red);
    });
}
} // namespace

/// The clip region and the current path, which belong to the wrapper.
class tst_KxQtPainterRegions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clipRegion();
    void clipRegionWhileDrawing();
    void clipRegionIsRemoved_data();
    void clipRegionIsRemoved();

    void pathModeDrawsNothing();
    void strokePath();
    void fillPath();
    void strokeAndFillPath();
    void antialiasingStays();
    void pathIsEmptiedByDrawing();
    void pathLastsOverDrawings();
    void pathOfSeveralPolygons();
};

void tst_KxQtPainterRegions::clipRegion()
{
    // The second polygon takes the middle of the first out; the third stands alone.
    POINT points[] = {{2, 2},   {30, 2},  {30, 30}, {2, 30}, {10, 10}, {20, 10},
                      {20, 20}, {10, 20}, {35, 5},  {45, 5}, {40, 30}};
    UINT counts[] = {4, 4, 3};
    QPainterPath path;
    path.addPolygon(QPolygon({{2, 2}, {30, 2}, {30, 30}, {2, 30}}));
    path.addPolygon(QPolygon({{10, 10}, {20, 10}, {20, 20}, {10, 20}}));
    path.addPolygon(QPolygon({{35, 5}, {45, 5}, {40, 30}}));
    const QImage expected = redIn(QRegion(path.toFillPolygon().toPolygon(), Qt::OddEvenFill));

    QImage image = canvas();
    KxQtPainterWrapper painter(&image);
    painter.setClipRegion(points, counts, 3);
    for (int run = 0; run < 2; ++run) {
        image = canvas();
        painter.beginDraw();
        fillAll(painter);
        painter.endDraw();
        QCOMPARE(image, expected);
    }
    QCOMPARE(image.pixel(5, 5), 0xFFFF0000);
    QCOMPARE(image.pixel(15, 15), canvas().pixel(15, 15));
    QCOMPARE(image.pixel(40, 8), 0xFFFF0000);
}

void tst_KxQtPainterRegions::clipRegionWhileDrawing()
{
    POINT points[] = {{2, 2}, {9, 2}, {9, 9}, {2, 9}, {20, 20}, {30, 20}, {30, 30}, {20, 30}};
    UINT count = 4;
    QImage image = canvas();
    KxQtPainterWrapper painter(&image);
    painter.setClipRegion(points, &count, 1);
    painter.beginDraw();
    painter.setClipRegion(points + 4, &count, 1);
    fillAll(painter);
    QCOMPARE(image, redIn(QRegion(20, 20, 10, 10)));
    painter.setClipRegion(nullptr, nullptr, 0);
    fillAll(painter);
    QCOMPARE(image, redIn(image.rect()));
    painter.endDraw();
}

void tst_KxQtPainterRegions::clipRegionIsRemoved_data()
{
    QTest::addColumn<bool>("points");
    QTest::addColumn<bool>("counts");
    QTest::addColumn<uint>("count");
    QTest::addColumn<uint>("n");

    QTest::newRow("no points") << false << true << 4U << 1U;
    QTest::newRow("no counts") << true << false << 4U << 1U;
    QTest::newRow("no polygons") << true << true << 4U << 0U;
    QTest::newRow("empty polygon") << true << true << 0U << 1U;
}

void tst_KxQtPainterRegions::clipRegionIsRemoved()
{
    QFETCH(bool, points);
    QFETCH(bool, counts);
    QFETCH(uint, count);
    QFETCH(uint, n);
    POINT box[] = {{2, 2}, {9, 2}, {9, 9}, {2, 9}};
    UINT four = 4;
    QImage image = canvas();
    KxQtPainterWrapper painter(&image);
    painter.setClipRegion(box, &four, 1);
    painter.setClipRegion(points ? box : nullptr, counts ? &count : nullptr, n);
    painter.beginDraw();
    QVERIFY(!painter.wrappedPainter()->hasClipping());
    fillAll(painter);
    painter.endDraw();
    QCOMPARE(image, redIn(image.rect()));
}
// Path mode with the star as the current path, in colours of its own.
static Draw onStarPath(const Draw &draw)
{
    return [=](KxQtPainterWrapper &p) {
        p.beginPath();
        p.drawPolyline(star, 5);
        p.endPath();
        p.setPen(PS_SOLID, 2, 0xFF0000);
        p.setBrush(red);
        draw(p);
    };
}

static QImage paintedStar(const Paint &paint)
{
    return painted([&](QPainter &p) {
        p.setPen(QPen(Qt::blue, 2));
        p.setBrush(Qt::red);
        paint(p);
    });
}

void tst_KxQtPainterRegions::pathModeDrawsNothing()
{
    QCOMPARE(drawn(onStarPath([](auto &) {})), canvas());
    const QImage after = drawn(onStarPath([](auto &p) { p.drawPolyline(star, 2); }));
    QCOMPARE(after, paintedStar([](auto &p) { p.drawLine(24, 2, 36, 36); }));
}

void tst_KxQtPainterRegions::strokePath()
{
    const QImage image = drawn(onStarPath([](auto &p) { p.strokePath(); }));
    QCOMPARE(image, paintedStar([](auto &p) { p.strokePath(qtStarPath(), p.pen()); }));
}

void tst_KxQtPainterRegions::fillPath()
{
    const QImage image = drawn(onStarPath([](auto &p) { p.fillPath(); }));
    QCOMPARE(image, paintedStar([](auto &p) {
                 p.setRenderHint(QPainter::Antialiasing);
                 p.fillPath(qtStarPath(), Qt::red);
             }));
    QCOMPARE(image.pixel(24, 20), canvas().pixel(24, 20));
}

void tst_KxQtPainterRegions::strokeAndFillPath()
{
    const QImage image = drawn(onStarPath([](auto &p) { p.strokeAndFillPath(); }));
    QCOMPARE(image, paintedStar([](auto &p) {
                 p.setRenderHint(QPainter::Antialiasing);
                 p.strokePath(qtStarPath(), p.pen());
                 p.fillPath(qtStarPath(), Qt::red);
             }));
}

void tst_KxQtPainterRegions::antialiasingStays()
{
    const auto isOn = [](KxQtPainterWrapper &p) {
        return p.wrappedPainter()->testRenderHint(QPainter::Antialiasing);
    };
    drawn([&](auto &p) {
        p.strokePath();
        QVERIFY(!isOn(p));
        p.fillPath();
        QVERIFY(isOn(p));
    });
    drawn([&](auto &p) {
        QVERIFY(!isOn(p));
        p.strokeAndFillPath();
        QVERIFY(isOn(p));
    });
}

void tst_KxQtPainterRegions::pathIsEmptiedByDrawing()
{
    using Operation = void (KxQtPainterWrapper::*)();
    const Operation operations[] = {&KxQtPainterWrapper::strokePath, &KxQtPainterWrapper::fillPath,
                                    &KxQtPainterWrapper::strokeAndFillPath};
    for (const Operation operation : operations) {
        QImage image = canvas();
        KxQtPainterWrapper painter(&image);
        painter.beginPath();
        painter.drawPolyline(star, 5);
        (painter.*operation)();
        painter.beginDraw();
        painter.strokePath();
        QCOMPARE(image, canvas());
        painter.drawPolyline(star, 5);
        (painter.*operation)();
        QVERIFY(image != canvas());
        const QImage once = image.copy();
        painter.strokePath();
        QCOMPARE(image, once);
        painter.endDraw();
    }
}

void tst_KxQtPainterRegions::pathLastsOverDrawings()
{
    QImage image = canvas();
    KxQtPainterWrapper painter(&image);
    painter.beginPath();
    painter.drawPolyline(star, 5);
    painter.endPath();
    painter.beginDraw();
    painter.endDraw();
    painter.beginDraw();
    painter.strokePath();
    painter.endDraw();
    QCOMPARE(image, painted([](auto &p) { p.strokePath(qtStarPath(), p.pen()); }));
}

void tst_KxQtPainterRegions::pathOfSeveralPolygons()
{
    const CPoint box[] = {{20, 10}, {28, 10}, {28, 18}, {20, 18}};
    QPainterPath path = qtStarPath();
    path.addPolygon(QPolygon({{20, 10}, {28, 10}, {28, 18}, {20, 18}}));
    QCOMPARE(drawn([&](auto &p) {
                 p.beginPath();
                 p.drawPolyline(star, 5);
                 p.drawPolyline(nullptr, 5);
                 p.endPath();
                 p.beginPath();
                 p.drawPolyline(box, 4);
                 p.fillPath();
             }),
             painted([&](auto &p) {
                 p.setRenderHint(QPainter::Antialiasing);
                 p.fillPath(path, Qt::black);
             }));
}

QTEST_MAIN(tst_KxQtPainterRegions)
#include "tst_KxQtPainterRegions.moc"
