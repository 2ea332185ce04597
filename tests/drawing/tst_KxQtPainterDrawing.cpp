#include "SideBySide.h"

#include <QPainterPath>
#include <QtTest>

#include <climits>

Q_DECLARE_METATYPE(Draw)
Q_DECLARE_METATYPE(Paint)

namespace {
constexpr COLORREF orange = 0x002080FF; // Red 255, green 128, blue 32.
const QColor qtOrange(255, 128, 32);

// A star, whose inside is empty in the middle by the odd-even rule; its last point is not its first.
const CPoint star[] = {{24, 2}, {36, 36}, {4, 14}, {44, 14}, {12, 36}};
const CPoint closedStar[] = {{24, 2}, {36, 36}, {4, 14}, {44, 14}, {12, 36}, {24, 2}};
const QPolygon qtStar({{24, 2}, {36, 36}, {4, 14}, {44, 14}, {12, 36}});
const QPolygon qtClosedStar({{24, 2}, {36, 36}, {4, 14}, {44, 14}, {12, 36}, {24, 2}});

void row(const char *name, const Draw &draw, const Paint &paint)
{
    QTest::newRow(name) << draw << paint;
}

void addColumns()
{
    QTest::addColumn<Draw>("draw");
    QTest::addColumn<Paint>("paint");
}

QPen dashes(QColor color, int width)
{
    QPen pen(Qt::DashLine);
    pen.setDashPattern({12, 4});
    pen.setWidth(width);
    pen.setColor(color);
    return pen;
}
} // namespace

/// Each operation beside the plain code that it stands for, pixel by pixel.
class tst_KxQtPainterDrawing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void draws_data();
    void draws() { compare(); }
    void pens_data();
    void pens() { compare(); }
    void alpha_data();
    void alpha() { compare(); }
    void modes_data();
    void modes() { compare(); }
    void drawsNothing_data();
    void drawsNothing();
    void hugeCoordinates();

private:
    static void compare();
};

void tst_KxQtPainterDrawing::compare()
{
    QFETCH(Draw, draw);
    QFETCH(Paint, paint);
    const QImage expected = painted(paint);
    QVERIFY(expected != canvas());
    QCOMPARE(drawn(draw), expected);
}

void tst_KxQtPainterDrawing::draws_data()
{
    addColumns();
    row(
        "point", [](auto &p) { p.drawPoint(3, 4); }, [](auto &p) { p.drawPoint(3, 4); });
    row(
        "line", [](auto &p) { p.drawLine(1, 2, 40, 30); }, [](auto &p) { p.drawLine(1, 2, 40, 30); });
    row(
        "open polyline", [](auto &p) { p.drawPolyline(star, 5); }, [](auto &p) { p.drawPolyline(qtStar); });
    row(
        "closed polyline", [](auto &p) { p.drawPolyline(closedStar, 6); },
        [](auto &p) { p.drawPolyline(qtClosedStar); });
    row(
        "part of a polyline", [](auto &p) { p.drawPolyline(star, 2); },
        [](auto &p) { p.drawLine(24, 2, 36, 36); });
    row(
        "polygon is odd-even", [](auto &p) { p.drawPolygon(star, 5); },
        [](auto &p) { p.drawPolygon(qtStar, Qt::OddEvenFill); });
    row(
        "text", [](auto &p) { p.drawText(2, 30, L"Kx\u00E4\U0001D11E", 4); },
        [](auto &p) { p.drawText(2, 30, QString::fromWCharArray(L"Kx\u00E4\U0001D11E")); });
    row(
        "start of a text", [](auto &p) { p.drawText(2, 30, L"Kx", 1); },
        [](auto &p) { p.drawText(2, 30, QStringLiteral("K")); });
    row(
        "text to its terminator", [](auto &p) { p.drawText(2, 30, L"Kx", -1); },
        [](auto &p) { p.drawText(2, 30, QStringLiteral("Kx")); });
    row(
        "rectangle without its right and bottom", [](auto &p) { p.fillRect(CRect(3, 4, 10, 12), orange); },
        [](auto &p) { p.fillRect(3, 4, 7, 8, qtOrange); });
    row(
        "rectangle with corners exchanged", [](auto &p) { p.fillRect(CRect(20, 30, 10, 12), orange); },
        [](auto &p) { p.fillRect(20, 30, -10, -18, qtOrange); });
    row(
        "rectangle partly outside", [](auto &p) { p.fillRect(CRect(-9, -9, 5, 900), orange); },
        [](auto &p) { p.fillRect(-9, -9, 14, 909, qtOrange); });
    row(
        "largest rectangle", [](auto &p) { p.fillRect(CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX), orange); },
        [](auto &p) { p.fillRect(0, 0, 48, 40, qtOrange); });
    row(
        "image", [](auto &p) { p.drawImage(QRect(3, 5, 20, 9), canvas(7, 7)); },
        [](auto &p) { p.drawImage(QRect(3, 5, 20, 9), canvas(7, 7)); });
    row(
        "bits at their own size",
        [](auto &p) {
            QImage bits = canvas(10, 12).convertToFormat(QImage::Format_RGB32);
            p.drawImage(10, 12, bits.bits(), 1, 2, QImage::Format_RGB32);
        },
        [](auto &p) { p.drawImage(10, 12, canvas(10, 12)); });
    row(
        "bits of another format",
        [](auto &p) {
            QImage bits = canvas(10, 12).convertToFormat(QImage::Format_RGB16);
            p.drawImage(10, 12, bits.bits(), 0, 0, QImage::Format_RGB16);
        },
        [](auto &p) { p.drawImage(10, 12, canvas(10, 12).convertToFormat(QImage::Format_RGB16)); });
    row(
        "turned about a point",
        [](auto &p) {
            p.Rotate(30, 24, 20);
            p.fillRect(CRect(-5, -5, 5, 5), orange);
        },
        [](auto &p) {
            p.translate(24, 20);
            p.rotate(30);
            p.fillRect(-5, -5, 10, 10, qtOrange);
        });
    row(
        "turns add up",
        [](auto &p) {
            p.Rotate(90, 40, 5);
            p.Rotate(-90, 10, 20);
            p.drawLine(0, 0, 5, 9);
        },
        [](auto &p) { p.drawLine(20, 15, 25, 24); });
}

void tst_KxQtPainterDrawing::pens_data()
{
    struct Style
    {
        const char *name;
        int style;
        QPen pen;
    };
    const Style styles[] = {
        {"solid", PS_SOLID, QPen(Qt::SolidLine)},
        {"dash", PS_DASH, dashes(Qt::black, 1)},
        {"dash with an end cap", PS_DASH | PS_ENDCAP_FLAT, dashes(Qt::black, 1)},
        {"dot", PS_DOT, QPen(Qt::DotLine)},
        {"dash dot", PS_DASHDOT, QPen(Qt::DashDotLine)},
        {"dash dot dot", PS_DASHDOTDOT, QPen(Qt::DashDotDotLine)},
        {"inside frame", PS_INSIDEFRAME, dashes(Qt::black, 1)},
        {"user style", PS_USERSTYLE, dashes(Qt::black, 1)},
    };
    addColumns();
    for (const Style &style : styles) {
        for (const int width : {0, 1, 3}) {
            const auto draw = [=](auto &p) {
                p.setPen(style.style, width, orange);
                p.drawPolyline(star, 5);
            };
            const auto paint = [=](auto &p) {
                QPen pen = style.pen;
                pen.setWidth(width);
                pen.setColor(qtOrange);
                p.setPen(pen);
                p.drawPolyline(qtStar);
            };
            row(qPrintable(QStringLiteral("%1, width %2").arg(QLatin1String(style.name)).arg(width)), draw,
                paint);
        }
    }
    row(
        "unknown style",
        [](auto &p) {
            p.setPen(9, 1, orange);
            p.drawLine(3, 3, 30, 3);
        },
        [](auto &p) {
            p.setPen(QPen(qtOrange, 1, Qt::PenStyle(9)));
            p.drawLine(3, 3, 30, 3);
        });
    for (const int width : {-1, -32768, 32768, INT_MAX}) {
        row(
            qPrintable(QStringLiteral("width %1 refused").arg(width)),
            [=](auto &p) {
                p.setPen(PS_SOLID, width, orange);
                p.drawLine(3, 3, 30, 20);
            },
            [](auto &p) {
                p.setPen(QPen(qtOrange, 1));
                p.drawLine(3, 3, 30, 20);
            });
    }
    row(
        "wide closed polyline has ends",
        [](auto &p) {
            p.setPen(PS_SOLID, 7, orange);
            p.drawPolyline(closedStar, 6);
        },
        [](auto &p) {
            p.setPen(QPen(qtOrange, 7));
            p.drawPolyline(qtClosedStar);
        });
    row(
        "width 0 on a large scale",
        [](auto &p) {
            p.setPen(PS_SOLID, 0, orange);
            p.wrappedPainter()->scale(5, 5);
            p.drawLine(1, 1, 6, 4);
        },
        [](auto &p) {
            p.setPen(QPen(qtOrange, 0));
            p.scale(5, 5);
            p.drawLine(1, 1, 6, 4);
        });
    row(
        "colour keeps the style",
        [](auto &p) {
            p.setPen(PS_DASH, 3, 0);
            p.setPenColor(orange);
            p.drawPolyline(star, 5);
        },
        [](auto &p) {
            p.setPen(dashes(qtOrange, 3));
            p.drawPolyline(qtStar);
        });
}

void tst_KxQtPainterDrawing::alpha_data()
{
    struct Alpha
    {
        const char *name;
        int alpha;
        QBrush brush;
    };
    const Alpha alphas[] = {
        {"transparent", 0, Qt::NoBrush},
        {"negative", -1, Qt::NoBrush},
        {"lowest", 1, QColor(255, 128, 32, 1)},
        {"half", 128, QColor(255, 128, 32, 128)},
        {"opaque", 255, qtOrange},
        {"more than opaque", 256, qtOrange},
        {"largest", INT_MAX, qtOrange},
    };
    addColumns();
    for (const Alpha &alpha : alphas) {
        const auto with = [&](const char *what) {
            return QStringLiteral("%1, %2").arg(QLatin1String(what), QLatin1String(alpha.name)).toLatin1();
        };
        const auto rect = [](QBrush brush, QRect rect) {
            return [=](auto &p) {
                p.setPen(QPen(Qt::blue, 1));
                p.setBrush(brush);
                p.drawRect(rect);
            };
        };
        const auto drawRect = [&](CRect rect) {
            return [=, opacity = alpha.alpha, brush = alpha.brush](auto &p) {
                p.setPen(PS_SOLID, 1, 0xFF0000);
                p.drawAlphaRect(rect, orange, opacity);
                QCOMPARE(p.wrappedPainter()->brush(), brush);
            };
        };
        row(with("rectangle"), drawRect({5, 6, 30, 20}), rect(alpha.brush, QRect(5, 6, 25, 14)));
        row(with("corners exchanged"), drawRect({30, 20, 5, 6}), rect(alpha.brush, QRect(5, 6, 25, 14)));
        row(with("left over right"), drawRect({30, 6, 5, 20}), rect(alpha.brush, QRect(5, 20, 25, -14)));
        row(with("bottom over top"), drawRect({5, 20, 30, 6}), rect(alpha.brush, QRect(5, 20, 25, -14)));
        row(with("no width"), drawRect({9, 6, 9, 20}), rect(alpha.brush, QRect(9, 20, 0, -14)));
        row(
            with("area"), [opacity = alpha.alpha](auto &p) { p.drawAlphaArea(star, 5, orange, opacity); },
            [=](auto &p) {
                p.setBrush(alpha.brush);
                p.drawPolygon(qtStar, Qt::OddEvenFill);
            });
    }
    // Where the dashes begin tells the corners apart.
    const auto dashedRect = [](const CRect &rect) {
        return [=](KxQtPainterWrapper &p) {
            p.setPen(PS_DASH, 1, 0);
            p.drawAlphaRect(rect, orange, 255);
        };
    };
    const auto qtDashedRect = [](int x, int y, int width, int height) {
        return [=](QPainter &p) {
            p.setPen(dashes(Qt::black, 1));
            p.setBrush(qtOrange);
            p.drawRect(x, y, width, height);
        };
    };
    row("dashed", dashedRect({5, 6, 30, 20}), qtDashedRect(5, 6, 25, 14));
    row("dashed, left over right", dashedRect({30, 6, 5, 20}), qtDashedRect(5, 20, 25, -14));
    row("dashed, no width", dashedRect({9, 6, 9, 25}), qtDashedRect(9, 25, 0, -19));
    row("dashed, bottom over top", dashedRect({5, 20, 30, 6}), qtDashedRect(5, 20, 25, -14));
}

void tst_KxQtPainterDrawing::modes_data()
{
    addColumns();
    const auto polygon = [](const Draw &before) {
        return [=](KxQtPainterWrapper &p) {
            before(p);
            p.drawPolygon(star, 5);
        };
    };
    const auto qtPolygon = [](const Paint &before) {
        return [=](QPainter &p) {
            before(p);
            p.drawPolygon(qtStar);
        };
    };
    row("brush", polygon([](auto &p) { p.setBrush(QBrush(Qt::green, Qt::CrossPattern)); }),
        qtPolygon([](auto &p) { p.setBrush(QBrush(Qt::green, Qt::CrossPattern)); }));
    row("brush colour", polygon([](auto &p) { p.setBrush(orange); }),
        qtPolygon([](auto &p) { p.setBrush(qtOrange); }));
    row("upper bits of a colour are ignored", polygon([](auto &p) { p.setBrush(orange | 0x7F000000); }),
        qtPolygon([](auto &p) { p.setBrush(qtOrange); }));
    for (int style = 0; style <= Qt::DiagCrossPattern; ++style) {
        row(qPrintable(QStringLiteral("brush style %1").arg(style)),
            polygon([=](auto &p) { p.setBrush(style); }),
            qtPolygon([=](auto &p) { p.setBrush(Qt::BrushStyle(style)); }));
    }
    for (const int style : {-1, INT_MIN, 15, 17, 18, 24, 25, INT_MAX}) {
        row(qPrintable(QStringLiteral("brush style %1 is none").arg(style)), polygon([=](auto &p) {
                p.setBrush(style);
                QCOMPARE(p.wrappedPainter()->brush().style(), Qt::NoBrush);
            }),
            qtPolygon([](auto &p) { p.setBrush(Qt::NoBrush); }));
    }
    const auto gaps = [](int mode) {
        return [=](KxQtPainterWrapper &p) {
            p.setBackground(orange);
            p.setBkMode(OPAQUE);
            p.setBkMode(mode);
            p.setPen(PS_DOT, 2, 0xFF0000);
            p.setBrush(int(Qt::BDiagPattern));
            p.drawPolygon(star, 5);
        };
    };
    const auto qtGaps = [](Qt::BGMode mode) {
        return [=](QPainter &p) {
            p.setBackground(qtOrange);
            p.setBackgroundMode(mode);
            p.setPen(QPen(Qt::blue, 2, Qt::DotLine));
            p.setBrush(Qt::BDiagPattern);
            p.drawPolygon(qtStar);
        };
    };
    row("transparent background", gaps(TRANSPARENT), qtGaps(Qt::TransparentMode));
    row("opaque background", gaps(OPAQUE), qtGaps(Qt::OpaqueMode));
    for (const int mode : {0, 3, -1, INT_MIN, INT_MAX}) {
        row(qPrintable(QStringLiteral("background mode %1 is transparent").arg(mode)), gaps(mode),
            qtGaps(Qt::TransparentMode));
    }
}

void tst_KxQtPainterDrawing::drawsNothing_data()
{
    QTest::addColumn<Draw>("draw");
    const auto nothing = [](const char *name, const Draw &draw) { QTest::newRow(name) << draw; };
    nothing("null polyline", [](auto &p) { p.drawPolyline(nullptr, 5); });
    nothing("polyline without points", [](auto &p) { p.drawPolyline(star, 0); });
    nothing("polyline of -1 points", [](auto &p) { p.drawPolyline(star, -1); });
    nothing("polyline of one point", [](auto &p) { p.drawPolyline(star, 1); });
    nothing("null polygon", [](auto &p) { p.drawPolygon(nullptr, 5); });
    nothing("polygon without points", [](auto &p) { p.drawPolygon(star, 0); });
    nothing("polygon of the least count", [](auto &p) { p.drawPolygon(star, INT_MIN); });
    nothing("null area", [](auto &p) { p.drawAlphaArea(nullptr, 5, orange, 255); });
    nothing("null text", [](auto &p) { p.drawText(2, 30, nullptr, 5); });
    nothing("text of no length", [](auto &p) { p.drawText(2, 30, L"Kx", 0); });
    nothing("null font", [](auto &p) { p.setFontIndirect(nullptr); });
    nothing("empty rectangle", [](auto &p) { p.fillRect(CRect(5, 5, 5, 9), orange); });
    nothing("rectangle outside", [](auto &p) { p.fillRect(CRect(48, 0, 60, 40), orange); });
    nothing("no pen and brush", [](auto &p) {
        p.setPen(PS_NULL, 3, orange);
        p.setBrush(int(Qt::NoBrush));
        p.drawPolygon(star, 5);
    });
    nothing("null image", [](auto &p) { p.drawImage(QRect(0, 0, 9, 9), QImage()); });
    nothing("null bits", [](auto &p) { p.drawImage(9, 9, nullptr, 0, 0, QImage::Format_RGB32); });
    for (const int format : {-1, 0, 1, 2, 3, int(QImage::NImageFormats), INT_MAX}) {
        nothing(qPrintable(QStringLiteral("bits of format %1").arg(format)), [=](auto &p) {
            unsigned char bits[9 * 9 * 8] = {};
            p.drawImage(9, 9, bits, 0, 0, format);
        });
    }
    for (const int size : {0, -9}) {
        nothing(qPrintable(QStringLiteral("bits of size %1").arg(size)), [=](auto &p) {
            unsigned char bits[4] = {};
            p.drawImage(size, size, bits, 0, 0, QImage::Format_RGB32);
        });
    }
}

void tst_KxQtPainterDrawing::drawsNothing()
{
    QFETCH(Draw, draw);
    QCOMPARE(drawn(draw), canvas());
}

void tst_KxQtPainterDrawing::hugeCoordinates()
{
    const CPoint huge[] = {{INT_MIN, INT_MIN}, {INT_MAX, 3}, {7, INT_MAX}, {INT_MIN, INT_MIN}};
    const QImage image = drawn([&](auto &p) {
        p.drawPoint(INT_MAX, INT_MIN);
        p.drawText(INT_MIN, INT_MAX, L"Kx", 2);
        p.drawAlphaArea(huge, 4, orange, 100);
        p.drawPolyline(huge, 4);
        p.drawImage(QRect(INT_MIN, INT_MIN, 9, 9), canvas());
        p.setBrush(int(Qt::NoBrush));
        p.drawAlphaRect(CRect(INT_MIN, INT_MIN, INT_MAX, INT_MAX), orange, 255);
    });
    QCOMPARE(image, painted([](auto &p) { p.fillRect(0, 0, 48, 40, qtOrange); }));
}

QTEST_MAIN(tst_KxQtPainterDrawing)
#include "tst_KxQtPainterDrawing.moc"
