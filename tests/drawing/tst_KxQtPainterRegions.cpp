#include "SideBySide.h"

#include <QPainterPath>
#include <QtTest>

#include <climits>

using Polygons = QVector<QPolygon>;
Q_DECLARE_METATYPE(Polygons)

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

QPolygon box(int left, int top, int right, int bottom)
{
    return QPolygon({{left, top}, {right, top}, {right, bottom}, {left, bottom}});
}

void setClip(KxQtPainterWrapper &painter, const Polygons &polygons)
{
    QVector<POINT> points;
    QVector<UINT> counts;
    for (const QPolygon &polygon : polygons) {
        for (const QPoint &point : polygon)
            points << POINT{point.x(), point.y()};
        counts << UINT(polygon.size());
    }
    painter.setClipRegion(points.data(), counts.data(), UINT(counts.size()));
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
    void hugeClipRegion_data();
    void hugeClipRegion();
    void hugeClipRegionOfSlantedEdges();
    void clipRegionWithoutArea();
    void hugeClipRegionOfOtherDevices();
    void farClipRegionOfMovedOrigin_data();
    void farClipRegionOfMovedOrigin();
    void clipRegionOfSmallScale();
    void farClipRegionOfLaterDevice_data();
    void farClipRegionOfLaterDevice();
    void farClipRegionOfSlantedEdges();

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

void tst_KxQtPainterRegions::hugeClipRegion_data()
{
    constexpr int most = INT_MAX;
    constexpr int least = INT_MIN;
    QTest::addColumn<Polygons>("polygons");
    const auto row = [](const char *name, const Polygons &polygons) { QTest::newRow(name) << polygons; };
    const auto polygon = [](const QPolygon &points) { return Polygons{points}; };

    row("triangle of all numbers", polygon(QPolygon({{least, least}, {most, 0}, {0, most}})));
    row("triangle of long edges", polygon(QPolygon({{0, 0}, {100000, 5}, {5, 100000}})));
    row("triangle of Qt's range", polygon(QPolygon({{-32767, -32767}, {32767, 0}, {0, 32767}})));
    row("to the right", {box(10, 5, most, 30)});
    row("to the left", {box(least, 5, 30, 30)});
    row("to the bottom", {box(10, 5, 30, most)});
    row("to the top", {box(10, least, 30, 30)});
    row("all", {box(least, least, most, most)});
    row("corner", {box(20, 10, most, most)});
    row("with a hole", polygon(box(-100000, -100000, most, most)
                               << QPoint(-100000, -100000) << box(10, 10, 30, 30) << QPoint(10, 10)));
    row("around twice", polygon(box(-100000, -100000, 100000, 100000)
                                << QPoint(-100000, -100000) << box(least, 10, most, most)));
    row("bands", {box(10, least, 30, most), box(least, 15, most, 25)});
    row("with small ones", {box(least, 15, most, 25), box(5, 10, 20, 30), box(40, 20, 45, 30)});
    row("far away", {box(100000, 100000, 200000, 200000)});
    row("beside", {box(100000, 0, 200000, 30)});
    row("a flat one far away", {box(least, 100000, most, 100001)});
}

void tst_KxQtPainterRegions::hugeClipRegion()
{
    QFETCH(Polygons, polygons);
    QPainterPath path;
    for (QPolygon polygon : polygons) {
        // Qt clips to the wrong side of paths at the ends of int. Here nearer points show the same.
        for (QPoint &point : polygon)
            point = {qBound(-1000000, point.x(), 1000000), qBound(-1000000, point.y(), 1000000)};
        path.addPolygon(polygon);
    }
    const QImage expected = painted([&](QPainter &p) {
        p.setClipPath(path);
        p.fillRect(0, 0, 48, 40, Qt::red);
    });

    QElapsedTimer timer;
    timer.start();
    QCOMPARE(drawn([&](auto &p) {
                 setClip(p, polygons);
                 fillAll(p);
             }),
             expected);
    // A region of all lines that Qt knows takes twice that time.
    QVERIFY(timer.elapsed() < 10000);
}

// Regions and paths differ in the pixels on a slanted edge, so these are told by nearer points on it.
void tst_KxQtPainterRegions::hugeClipRegionOfSlantedEdges()
{
    const auto clipped = [](const QPolygon &polygon) {
        return drawn([&](auto &p) {
            setClip(p, {polygon});
            fillAll(p);
        });
    };
    for (const int huge : {100000, 1 << 30}) {
        QCOMPARE(clipped(QPolygon({{-huge, -huge}, {huge, huge}, {huge, -huge}})),
                 clipped(QPolygon({{-2000, -2000}, {2000, 2000}, {2000, -2000}})));
        QCOMPARE(clipped(QPolygon({{-huge, huge / 2}, {huge, -huge / 2}, {huge, huge}})),
                 clipped(QPolygon({{-2000, 1000}, {2000, -1000}, {2000, 2000}})));
        QCOMPARE(clipped(QPolygon({{20 - huge, 20 - huge},
                                   {20 + huge, 20 + huge},
                                   {20 + huge, 20 - huge},
                                   {20 - huge, 20 + huge}})),
                 clipped(QPolygon({{-1980, -1980}, {2020, 2020}, {2020, -1980}, {-1980, 2020}})));
    }
}

void tst_KxQtPainterRegions::clipRegionWithoutArea()
{
    const Polygons lines = {box(INT_MIN, 5, INT_MAX, 5), box(5, INT_MIN, 5, INT_MAX),
                            QPolygon(QVector<QPoint>{{2, 2}, {9, 9}})};
    for (const QPolygon &line : lines) {
        drawn([&](auto &p) {
            setClip(p, {line});
            QVERIFY(!p.wrappedPainter()->hasClipping());
        });
    }
}

// A clip region is set for devices to come, too.
void tst_KxQtPainterRegions::hugeClipRegionOfOtherDevices()
{
    QImage image = canvas();
    QImage wide = canvas(6000, 2);
    KxQtPainterWrapper painter;
    const auto fillWide = [&](const Polygons &clip) {
        setClip(painter, clip);
        painter.setWrappedDevice(&wide);
        painter.beginDraw();
        painter.fillRect(CRect(0, 0, 6000, 2), red);
        painter.endDraw();
    };
    fillWide({box(4000, 0, INT_MAX, INT_MAX)});
    QCOMPARE(wide.pixel(3999, 1), canvas(6000, 2).pixel(3999, 1));
    QCOMPARE(wide.pixel(4095, 1), 0xFFFF0000);
    fillWide({box(5000, 0, INT_MAX, INT_MAX)});
    QCOMPARE(wide.pixel(5999, 1), 0xFFFF0000);

    painter.setWrappedDevice(&image);
    wide = canvas(6000, 2);
    fillWide({box(100000, 0, INT_MAX, INT_MAX)});
    QCOMPARE(wide, canvas(6000, 2));
}

void tst_KxQtPainterRegions::farClipRegionOfMovedOrigin_data()
{
    QTest::addColumn<int>("origin");
    for (const int origin : {-20000, -6000, 6000, 20000})
        QTest::addRow("%d", origin) << origin;
}

void tst_KxQtPainterRegions::farClipRegionOfMovedOrigin()
{
    QFETCH(int, origin);
    const QImage seen = drawn([=](auto &p) {
        p.Rotate(0, -origin, -origin);
        setClip(p, {box(origin + 5, origin + 5, origin + 20, origin + 20)});
        p.fillRect(CRect(origin - 10, origin - 10, origin + 60, origin + 60), red);
    });
    QCOMPARE(seen, redIn(QRegion(5, 5, 15, 15)));
}

void tst_KxQtPainterRegions::clipRegionOfSmallScale()
{
    const QImage seen = drawn([](auto &p) {
        p.wrappedPainter()->scale(0.001, 0.001);
        setClip(p, {box(0, 0, 20000, 20000)});
        p.fillRect(CRect(0, 0, 40000, 40000), red);
    });
    QCOMPARE(seen, redIn(QRegion(0, 0, 20, 20)));
}

void tst_KxQtPainterRegions::farClipRegionOfLaterDevice_data()
{
    QTest::addColumn<bool>("smallDeviceBefore");
    QTest::newRow("no device before") << false;
    QTest::newRow("a small device before") << true;
}

void tst_KxQtPainterRegions::farClipRegionOfLaterDevice()
{
    QFETCH(bool, smallDeviceBefore);
    QImage small = canvas();
    QImage wide = canvas(9000, 2);
    KxQtPainterWrapper painter;
    if (smallDeviceBefore)
        painter.setWrappedDevice(&small);
    setClip(painter, {box(8000, 0, 8020, 2)});
    painter.setWrappedDevice(&wide);
    painter.beginDraw();
    painter.fillRect(CRect(0, 0, 9000, 2), red);
    painter.endDraw();
    QCOMPARE(wide.pixel(7999, 1), canvas(9000, 2).pixel(7999, 1));
    QCOMPARE(wide.pixel(8000, 1), 0xFFFF0000);
    QCOMPARE(wide.pixel(8019, 0), 0xFFFF0000);
    QCOMPARE(wide.pixel(8020, 0), canvas(9000, 2).pixel(8020, 0));
}

// Polygons that are not cut have Qt's own pixels on their edges.
void tst_KxQtPainterRegions::farClipRegionOfSlantedEdges()
{
    const QPolygon polygon({{-8000, -7333}, {7999, 7777}, {7001, -7899}});
    const QImage seen = drawn([&](auto &p) {
        setClip(p, {polygon});
        fillAll(p);
    });
    QCOMPARE(seen, redIn(QRegion(polygon, Qt::OddEvenFill)));
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
