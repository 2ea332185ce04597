#include <KxGeometry.h>

#include <QtTest>

Q_DECLARE_METATYPE(CRect)

class tst_Geometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void records();
    void sizes();
    void points();
    void rectConstruction();
    void rectQueries();
    void pointInRect_data();
    void pointInRect();
    void rectMoves();
    void rectInflates();
    void normalize_data();
    void normalize();
    void setOperations_data();
    void setOperations();
    void setOperationsInPlace();
    void nullRectangles();
};

namespace QTest {
template <> char *toString(const CRect &rect)
{
    return toString(
        QStringLiteral("%1 %2 %3 %4").arg(rect.left).arg(rect.top).arg(rect.right).arg(rect.bottom));
}
template <> char *toString(const CPoint &point)
{
    return toString(QPoint(point.x, point.y));
}
template <> char *toString(const CSize &size)
{
    return toString(QSize(size.cx, size.cy));
}
} // namespace QTest

void tst_Geometry::records()
{
    QCOMPARE(sizeof(CPoint), sizeof(POINT));
    QCOMPARE(sizeof(CSize), sizeof(SIZE));
    QCOMPARE(sizeof(CRect), sizeof(RECT));
    CPoint point(1, 2);
    POINT *pointRecord = point;
    pointRecord->x = 7;
    QCOMPARE(point, CPoint(7, 2));
    CSize size(1, 2);
    SIZE *sizeRecord = size;
    sizeRecord->cy = 7;
    QCOMPARE(size, CSize(1, 7));
    CRect rect(1, 2, 3, 4);
    RECT *rectRecord = rect;
    rectRecord->bottom = 7;
    QCOMPARE(rect, CRect(1, 2, 3, 7));
    const CRect &constRect = rect;
    const RECT *constRecord = constRect;
    QCOMPARE(constRecord, static_cast<const RECT *>(rectRecord));
}

void tst_Geometry::sizes()
{
    QCOMPARE(CSize(), CSize(0, 0));
    QCOMPARE(CSize(POINT{3, -4}), CSize(3, -4));
    QVERIFY(CSize(1, 2) != CSize(1, 3));
    QVERIFY(CSize(1, 2) != CSize(0, 2));
    CSize size;
    size.SetSize(5, 6);
    size += CSize(1, 2);
    QCOMPARE(size, CSize(6, 8));
    size -= CSize(2, 5);
    QCOMPARE(size, CSize(4, 3));
    QCOMPARE(size + CSize(1, 1), CSize(5, 4));
    QCOMPARE(size - CSize(1, 2), CSize(3, 1));
    QCOMPARE(-size, CSize(-4, -3));
    QCOMPARE(size + CPoint(10, 20), CPoint(14, 23));
    QCOMPARE(size - CPoint(10, 20), CPoint(-6, -17));
    const CRect rect(0, 1, 10, 11);
    QCOMPARE(size + &rect, CRect(4, 4, 14, 14));
    QCOMPARE(size - &rect, CRect(-4, -2, 6, 8));
}

void tst_Geometry::points()
{
    QCOMPARE(CPoint(), CPoint(0, 0));
    QCOMPARE(CPoint(SIZE{3, -4}), CPoint(3, -4));
    QCOMPARE(CPoint(LPARAM(0xFFFE0003)), CPoint(3, -2));
    QCOMPARE(CPoint(LPARAM(0x12340000FFFF)), CPoint(-1, 0));
    QVERIFY(CPoint(1, 2) != CPoint(1, 3));
    QVERIFY(CPoint(1, 2) != CPoint(0, 2));
    CPoint point;
    point.SetPoint(5, 6);
    point.Offset(1, 2);
    point.Offset(CPoint(10, 20));
    point.Offset(CSize(100, 200));
    QCOMPARE(point, CPoint(116, 228));
    point -= CSize(100, 200);
    point -= CPoint(10, 20);
    QCOMPARE(point, CPoint(6, 8));
    QCOMPARE(point + CSize(1, 2), CPoint(7, 10));
    QCOMPARE(point - CSize(1, 2), CPoint(5, 6));
    QCOMPARE(point + CPoint(1, 2), CPoint(7, 10));
    QCOMPARE(point - CPoint(1, 3), CSize(5, 5));
    QCOMPARE(-point, CPoint(-6, -8));
    const CRect rect(0, 1, 10, 11);
    QCOMPARE(point + &rect, CRect(6, 9, 16, 19));
    QCOMPARE(point - &rect, CRect(-6, -7, 4, 3));
}

void tst_Geometry::rectConstruction()
{
    const RECT record{1, 2, 30, 40};
    QCOMPARE(CRect(), CRect(0, 0, 0, 0));
    QCOMPARE(CRect(record), CRect(1, 2, 30, 40));
    QCOMPARE(CRect(&record), CRect(1, 2, 30, 40));
    QCOMPARE(CRect(CPoint(1, 2), CSize(29, 38)), CRect(1, 2, 30, 40));
    QCOMPARE(CRect(CPoint(1, 2), CPoint(30, 40)), CRect(1, 2, 30, 40));
    CRect rect;
    rect.SetRect(1, 2, 30, 40);
    QCOMPARE(rect, CRect(1, 2, 30, 40));
    rect.SetRect(CPoint(5, 6), CPoint(7, 8));
    QCOMPARE(rect, CRect(5, 6, 7, 8));
    rect.SetRectEmpty();
    QVERIFY(rect.IsRectNull());
    rect.CopyRect(&record);
    QCOMPARE(rect, CRect(1, 2, 30, 40));
}

void tst_Geometry::rectQueries()
{
    const CRect rect(1, 2, 31, 45);
    QCOMPARE(rect.Width(), 30);
    QCOMPARE(rect.Height(), 43);
    QCOMPARE(rect.Size(), CSize(30, 43));
    QCOMPARE(rect.TopLeft(), CPoint(1, 2));
    QCOMPARE(rect.BottomRight(), CPoint(31, 45));
    QCOMPARE(rect.CenterPoint(), CPoint(16, 23));
    QCOMPARE(CRect(0, 0, -3, 0).CenterPoint(), CPoint(-1, 0));
    QVERIFY(!rect.IsRectEmpty());
    QVERIFY(CRect(5, 5, 5, 9).IsRectEmpty());
    QVERIFY(CRect(5, 5, 9, 5).IsRectEmpty());
    QVERIFY(CRect(5, 5, 4, 9).IsRectEmpty());
    QVERIFY(!CRect(5, 5, 5, 9).IsRectNull());
    QVERIFY(CRect(1, 2, 3, 4).EqualRect(CRect(1, 2, 3, 4)));
    QVERIFY(CRect(1, 2, 3, 4) != CRect(0, 2, 3, 4));
    QVERIFY(CRect(1, 2, 3, 4) != CRect(1, 0, 3, 4));
    QVERIFY(CRect(1, 2, 3, 4) != CRect(1, 2, 0, 4));
    QVERIFY(!CRect(1, 2, 3, 4).EqualRect(CRect(1, 2, 3, 0)));
}

void tst_Geometry::pointInRect_data()
{
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("y");
    QTest::addColumn<BOOL>("inside");

    QTest::newRow("upper left corner") << 10 << 20 << TRUE;
    QTest::newRow("last pixel") << 29 << 39 << TRUE;
    QTest::newRow("right side") << 30 << 20 << FALSE;
    QTest::newRow("bottom side") << 10 << 40 << FALSE;
    QTest::newRow("left of it") << 9 << 20 << FALSE;
    QTest::newRow("above it") << 10 << 19 << FALSE;
}

void tst_Geometry::pointInRect()
{
    QFETCH(int, x);
    QFETCH(int, y);
    QTEST(CRect(10, 20, 30, 40).PtInRect(CPoint(x, y)), "inside");
}

void tst_Geometry::rectMoves()
{
    CRect rect(1, 2, 11, 22);
    rect.OffsetRect(1, 2);
    rect.OffsetRect(CSize(10, 20));
    rect.OffsetRect(CPoint(100, 200));
    QCOMPARE(rect, CRect(112, 224, 122, 244));
    rect.MoveToX(5);
    QCOMPARE(rect, CRect(5, 224, 15, 244));
    rect.MoveToY(6);
    QCOMPARE(rect, CRect(5, 6, 15, 26));
    rect.MoveToXY(1, 2);
    QCOMPARE(rect, CRect(1, 2, 11, 22));
    rect.MoveToXY(CPoint(-1, -2));
    QCOMPARE(rect, CRect(-1, -2, 9, 18));
    rect += CPoint(1, 2);
    rect += CSize(3, 4);
    QCOMPARE(rect, CRect(3, 4, 13, 24));
    rect -= CSize(3, 4);
    rect -= CPoint(1, 2);
    QCOMPARE(rect, CRect(-1, -2, 9, 18));
    QCOMPARE(rect + CPoint(1, 2), CRect(0, 0, 10, 20));
    QCOMPARE(rect + CSize(1, 2), CRect(0, 0, 10, 20));
    QCOMPARE(rect - CPoint(1, 2), CRect(-2, -4, 8, 16));
    QCOMPARE(rect - CSize(1, 2), CRect(-2, -4, 8, 16));
}

void tst_Geometry::rectInflates()
{
    const CRect edges(1, 2, 3, 4);
    CRect rect(10, 20, 30, 40);
    rect.InflateRect(1, 2);
    QCOMPARE(rect, CRect(9, 18, 31, 42));
    rect.DeflateRect(CSize(1, 2));
    QCOMPARE(rect, CRect(10, 20, 30, 40));
    rect.InflateRect(CSize(1, 2));
    rect.DeflateRect(1, 2);
    QCOMPARE(rect, CRect(10, 20, 30, 40));
    rect.InflateRect(1, 2, 3, 4);
    QCOMPARE(rect, CRect(9, 18, 33, 44));
    rect.DeflateRect(&edges);
    QCOMPARE(rect, CRect(10, 20, 30, 40));
    rect.InflateRect(&edges);
    rect.DeflateRect(1, 2, 3, 4);
    QCOMPARE(rect, CRect(10, 20, 30, 40));
    rect += &edges;
    QCOMPARE(rect, CRect(9, 18, 33, 44));
    rect -= &edges;
    QCOMPARE(rect + &edges, CRect(9, 18, 33, 44));
    QCOMPARE(rect - &edges, CRect(11, 22, 27, 36));
}

void tst_Geometry::normalize_data()
{
    QTest::addColumn<CRect>("rect");
    QTest::addColumn<CRect>("result");

    QTest::newRow("normal stays") << CRect(1, 2, 3, 4) << CRect(1, 2, 3, 4);
    QTest::newRow("width turned") << CRect(3, 2, 1, 4) << CRect(1, 2, 3, 4);
    QTest::newRow("height turned") << CRect(1, 4, 3, 2) << CRect(1, 2, 3, 4);
    QTest::newRow("both turned") << CRect(3, 4, 1, 2) << CRect(1, 2, 3, 4);
}

void tst_Geometry::normalize()
{
    QFETCH(CRect, rect);
    CRect swapped(rect);
    swapped.SwapLeftRight();
    QCOMPARE(swapped, CRect(rect.right, rect.top, rect.left, rect.bottom));
    rect.NormalizeRect();
    QTEST(rect, "result");
}

void tst_Geometry::setOperations_data()
{
    QTest::addColumn<CRect>("first");
    QTest::addColumn<CRect>("second");
    QTest::addColumn<CRect>("common");
    QTest::addColumn<CRect>("both");
    QTest::addColumn<CRect>("rest");

    const CRect none;
    const CRect rect(10, 10, 30, 30);
    QTest::newRow("corner") << rect << CRect(20, 20, 40, 50) << CRect(20, 20, 30, 30) << CRect(10, 10, 40, 50)
                            << rect;
    QTest::newRow("inside") << rect << CRect(15, 15, 20, 20) << CRect(15, 15, 20, 20) << rect << rect;
    QTest::newRow("touching") << rect << CRect(30, 10, 40, 30) << none << CRect(10, 10, 40, 30) << rect;
    QTest::newRow("apart") << rect << CRect(50, 60, 70, 80) << none << CRect(10, 10, 70, 80) << rect;
    QTest::newRow("covers all") << rect << CRect(0, 0, 99, 99) << rect << CRect(0, 0, 99, 99) << none;
    QTest::newRow("covers the top") << rect << CRect(0, 0, 99, 20) << CRect(10, 10, 30, 20)
                                    << CRect(0, 0, 99, 30) << CRect(10, 20, 30, 30);
    QTest::newRow("covers the bottom")
        << rect << CRect(10, 25, 30, 30) << CRect(10, 25, 30, 30) << rect << CRect(10, 10, 30, 25);
    QTest::newRow("covers the left") << rect << CRect(5, 10, 12, 30) << CRect(10, 10, 12, 30)
                                     << CRect(5, 10, 30, 30) << CRect(12, 10, 30, 30);
    QTest::newRow("covers the right") << rect << CRect(28, 0, 31, 99) << CRect(28, 10, 30, 30)
                                      << CRect(10, 0, 31, 99) << CRect(10, 10, 28, 30);
    QTest::newRow("band across") << rect << CRect(0, 15, 99, 20) << CRect(10, 15, 30, 20)
                                 << CRect(0, 10, 99, 30) << rect;
    QTest::newRow("second empty") << rect << CRect(15, 15, 15, 20) << none << rect << rect;
    QTest::newRow("first empty") << CRect(15, 15, 15, 20) << rect << none << rect << none;
    QTest::newRow("both empty") << CRect(1, 1, 1, 1) << CRect(2, 2, 1, 1) << none << none << none;
}

void tst_Geometry::setOperations()
{
    QFETCH(CRect, first);
    QFETCH(CRect, second);
    CRect result(7, 7, 8, 8);
    const BOOL intersects = result.IntersectRect(first, second);
    QCOMPARE(intersects, BOOL(!result.IsRectEmpty()));
    QTEST(result, "common");
    const BOOL united = result.UnionRect(first, second);
    QCOMPARE(united, BOOL(!result.IsRectEmpty()));
    QTEST(result, "both");
    const BOOL remains = result.SubtractRect(first, second);
    QCOMPARE(remains, BOOL(!result.IsRectEmpty()));
    QTEST(result, "rest");
    QTEST(first & second, "common");
    QTEST(first | second, "both");
}

void tst_Geometry::setOperationsInPlace()
{
    CRect rect(10, 10, 30, 30);
    rect &= CRect(20, 0, 40, 99);
    QCOMPARE(rect, CRect(20, 10, 30, 30));
    rect |= CRect(0, 0, 1, 1);
    QCOMPARE(rect, CRect(0, 0, 30, 30));
    rect.SubtractRect(rect, CRect(0, 0, 30, 10));
    QCOMPARE(rect, CRect(0, 10, 30, 30));
    rect.SubtractRect(CRect(0, 0, 99, 99), rect);
    QCOMPARE(rect, CRect(0, 0, 99, 99));
}

void tst_Geometry::nullRectangles()
{
    CRect rect(1, 2, 3, 4);
    rect.CopyRect(nullptr);
    QCOMPARE(rect, CRect(1, 2, 3, 4));
    QVERIFY(!rect.EqualRect(nullptr));
    QVERIFY(rect.UnionRect(rect, nullptr));
    QCOMPARE(rect, CRect(1, 2, 3, 4));
    QVERIFY(rect.SubtractRect(rect, nullptr));
    QCOMPARE(rect, CRect(1, 2, 3, 4));
    QVERIFY(!rect.IntersectRect(nullptr, rect));
    QVERIFY(rect.IsRectNull());
}

QTEST_APPLESS_MAIN(tst_Geometry)
#include "tst_Geometry.moc"
