#include "SideBySide.h"

#include <QWidget>
#include <QtTest>

#include <climits>
#include <cwchar>

Q_DECLARE_METATYPE(Draw)

namespace {
constexpr COLORREF red = 0x0000FF;
const CPoint star[] = {{24, 2}, {36, 36}, {4, 14}, {44, 14}, {12, 36}};

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

LOGFONTW logFont(const wchar_t *name, LONG height, LONG weight)
{
    LOGFONTW font = {};
    std::wcsncpy(font.lfFaceName, name, LF_FACESIZE);
    font.lfHeight = height;
    font.lfWeight = weight;
    return font;
}
} // namespace

/// What the wrapper keeps: device, drawing state, clip region, path, pens and fonts.
class tst_KxQtPainterWrapper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void penStyles_data();
    void penStyles();
    void withoutDevice();
    void deviceIsTakenByTheNextDrawing();
    void drawingState();
    void drawingStateEndsWithIt();
    void beginDrawTwice();
    void refusedDevice();
    void saveAndRestore();
    void idle_data();
    void idle();
    void idleStateIsNotKept();
    void destructorEndsDrawing();

    void font_data();
    void font();
    void fontKeepsNameAndFlags();
    void fontOfLongName();
    void fontWithoutDevice();
    void fontOnAWidget();
};

void tst_KxQtPainterWrapper::penStyles_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("qtStyle");

    QTest::newRow("PS_SOLID") << 0 << int(Qt::SolidLine);
    QTest::newRow("PS_DASH") << 1 << int(Qt::DashLine);
    QTest::newRow("PS_DOT") << 2 << int(Qt::DotLine);
    QTest::newRow("PS_DASHDOT") << 3 << int(Qt::DashDotLine);
    QTest::newRow("PS_DASHDOTDOT") << 4 << int(Qt::DashDotDotLine);
    QTest::newRow("PS_NULL") << 5 << int(Qt::NoPen);
    QTest::newRow("PS_INSIDEFRAME") << 6 << int(Qt::CustomDashLine);
    QTest::newRow("PS_USERSTYLE") << 7 << int(Qt::CustomDashLine);
    for (const int style : {8, 15, 16, PS_ENDCAP_FLAT, INT_MAX, -1, INT_MIN})
        QTest::addRow("%d unchanged", style) << style << style;
}

void tst_KxQtPainterWrapper::penStyles()
{
    QFETCH(int, style);
    QTEST(int(LsToQPenStyle(style)), "qtStyle");
}

void tst_KxQtPainterWrapper::withoutDevice()
{
    KxQtPainterWrapper painter;
    QVERIFY(!painter.wrappedDevice());
    QVERIFY(painter.wrappedPainter());
    QVERIFY(!painter.beginDraw());
    QVERIFY(!painter.wrappedPainter()->isActive());
    QVERIFY(!painter.endDraw());
    QVERIFY(!KxQtPainterWrapper(nullptr).beginDraw());
}

void tst_KxQtPainterWrapper::deviceIsTakenByTheNextDrawing()
{
    QImage first = canvas();
    QImage second = canvas();
    KxQtPainterWrapper painter(&first);
    QCOMPARE(painter.wrappedDevice(), &first);
    QVERIFY(painter.beginDraw());
    painter.setWrappedDevice(&second);
    QCOMPARE(painter.wrappedDevice(), &second);
    fillAll(painter);
    QVERIFY(painter.endDraw());
    QCOMPARE(first, redIn(first.rect()));
    QCOMPARE(second, canvas());

    painter.beginDraw();
    fillAll(painter);
    painter.setWrappedDevice(nullptr);
    QVERIFY(!painter.endDraw());
    QVERIFY(painter.wrappedPainter()->isActive());
    painter.wrappedPainter()->restore();
    painter.wrappedPainter()->end();
    QCOMPARE(second, redIn(second.rect()));
}

void tst_KxQtPainterWrapper::drawingState()
{
    QImage image = canvas();
    KxQtPainterWrapper painter(&image);
    QVERIFY(!painter.wrappedPainter()->isActive());
    QVERIFY(painter.beginDraw());
    const QPainter *plain = painter.wrappedPainter();
    QVERIFY(plain->isActive());
    QCOMPARE(plain->device(), &image);
    QCOMPARE(plain->pen(), QPen(Qt::black, 0));
    QCOMPARE(plain->brush(), QBrush(Qt::black));
    QVERIFY(!plain->hasClipping());
    QVERIFY(painter.endDraw());
    QVERIFY(!plain->isActive());
    QVERIFY(!painter.endDraw());
    QCOMPARE(image, canvas());
}

void tst_KxQtPainterWrapper::drawingStateEndsWithIt()
{
    QImage image = canvas();
    KxQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.setPen(PS_DASH, 5, red);
    painter.setBrush(red);
    painter.Rotate(45, 20, 20);
    painter.setROP2(QPainter::CompositionMode_Clear);
    painter.endDraw();

    painter.beginDraw();
    QCOMPARE(painter.wrappedPainter()->pen(), QPen(Qt::black, 0));
    QCOMPARE(painter.wrappedPainter()->brush(), QBrush(Qt::black));
    QVERIFY(painter.wrappedPainter()->transform().isIdentity());
    QCOMPARE(painter.getROP2(), int(QPainter::CompositionMode_SourceOver));
    painter.endDraw();
}

void tst_KxQtPainterWrapper::beginDrawTwice()
{
    QImage image = canvas();
    KxQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.setPen(PS_DASH, 5, red);
    painter.Rotate(0, 3, 4);
    QVERIFY(painter.beginDraw());
    QCOMPARE(painter.wrappedPainter()->pen(), QPen(Qt::black, 0));
    QCOMPARE(painter.wrappedPainter()->transform(), QTransform::fromTranslate(3, 4));
    painter.restore();
    QCOMPARE(painter.wrappedPainter()->pen().width(), 5);
    QVERIFY(painter.endDraw());
}

void tst_KxQtPainterWrapper::refusedDevice()
{
    QImage none;
    KxQtPainterWrapper painter(&none);
    QTest::ignoreMessage(QtWarningMsg, "QPainter::begin: Paint device returned engine == 0, type: 3");
    QVERIFY(painter.beginDraw());
    QVERIFY(!painter.wrappedPainter()->isActive());
    fillAll(painter);
    QVERIFY(!painter.endDraw());
}

void tst_KxQtPainterWrapper::saveAndRestore()
{
    drawn([](auto &p) {
        p.save();
        p.setPenColor(red);
        p.restore();
        QCOMPARE(p.wrappedPainter()->pen().color(), QColor(Qt::black));
    });
}

void tst_KxQtPainterWrapper::idle_data()
{
    QTest::addColumn<Draw>("draw");
    const auto row = [](const char *name, const Draw &draw) { QTest::newRow(name) << draw; };
    row("save", [](auto &p) { p.save(); });
    row("restore", [](auto &p) { p.restore(); });
    row("setPen", [](auto &p) { p.setPen(PS_DASH, 3, red); });
    row("setPenColor", [](auto &p) { p.setPenColor(red); });
    row("setBrush(QBrush)", [](auto &p) { p.setBrush(QBrush(Qt::red)); });
    row("setBrush(style)", [](auto &p) { p.setBrush(3); });
    row("setBrush(colour)", [](auto &p) { p.setBrush(red); });
    row("setBkMode", [](auto &p) { p.setBkMode(OPAQUE); });
    row("setBackground", [](auto &p) { p.setBackground(red); });
    row("getROP2", [](auto &p) { QCOMPARE(p.getROP2(), 0); });
    row("setROP2", [](auto &p) { p.setROP2(5); });
    row("setFontIndirect", [](auto &p) {
        const LOGFONTW font = logFont(L"DejaVu Sans", 12, 400);
        p.setFontIndirect(&font);
    });
    row("Rotate", [](auto &p) { p.Rotate(3, 4, 5); });
    row("drawPoint", [](auto &p) { p.drawPoint(3, 4); });
    row("drawLine", [](auto &p) { p.drawLine(3, 4, 5, 6); });
    row("drawPolyline", [](auto &p) { p.drawPolyline(star, 5); });
    row("drawPolygon", [](auto &p) { p.drawPolygon(star, 5); });
    row("drawText", [](auto &p) { p.drawText(3, 4, L"Kx", 2); });
    row("drawAlphaRect", [](auto &p) { p.drawAlphaRect(CRect(0, 0, 9, 9), red, 99); });
    row("drawAlphaArea", [](auto &p) { p.drawAlphaArea(star, 5, red, 99); });
    row("drawImage(bits)", [](auto &p) { p.drawImage(9, 9, canvas().bits(), 0, 0, QImage::Format_RGB32); });
    row("drawImage", [](auto &p) { p.drawImage(QRect(0, 0, 9, 9), canvas()); });
    row("fillRect", [](auto &p) { fillAll(p); });
    row("strokePath", [](auto &p) { p.strokePath(); });
    row("fillPath", [](auto &p) { p.fillPath(); });
    row("strokeAndFillPath", [](auto &p) { p.strokeAndFillPath(); });
    row("setClipRegion", [](auto &p) { p.setClipRegion(nullptr, nullptr, 0); });
}

// Qt warns of most calls on an idle painter, which would fail this test.
void tst_KxQtPainterWrapper::idle()
{
    QFETCH(Draw, draw);
    KxQtPainterWrapper none;
    draw(none);
    QImage image = canvas();
    KxQtPainterWrapper idle(&image);
    draw(idle);
    QVERIFY(!idle.wrappedPainter()->isActive());
    QCOMPARE(image, canvas());
}

void tst_KxQtPainterWrapper::idleStateIsNotKept()
{
    QImage image = canvas();
    KxQtPainterWrapper painter(&image);
    painter.setPen(PS_DASH, 3, red);
    painter.setBrush(red);
    painter.Rotate(45, 5, 5);
    painter.beginDraw();
    QCOMPARE(painter.wrappedPainter()->pen(), QPen(Qt::black, 0));
    QCOMPARE(painter.wrappedPainter()->brush(), QBrush(Qt::black));
    QVERIFY(painter.wrappedPainter()->transform().isIdentity());
    painter.endDraw();
}

void tst_KxQtPainterWrapper::destructorEndsDrawing()
{
    QImage image = canvas();
    {
        KxQtPainterWrapper painter(&image);
        painter.beginDraw();
        painter.restore();
    }
    QVERIFY(!image.paintingActive());
}

void tst_KxQtPainterWrapper::font_data()
{
    QTest::addColumn<QImage::Format>("format");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("weight");
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("qtWeight");

    const auto deep = QImage::Format_ARGB32_Premultiplied;
    const auto flat = QImage::Format_RGB16;
    const int normal = QFont::Normal;
    QTest::newRow("height") << deep << 12 << 0 << 10 << normal;
    QTest::newRow("cut to a whole number") << deep << 13 << 0 << 11 << normal;
    QTest::newRow("height of 1") << deep << 1 << 0 << -1 << normal;
    QTest::newRow("least height with a size") << deep << 2 << 0 << 1 << normal;
    QTest::newRow("least size") << QImage::Format_Mono << 36 << 0 << 1 << normal;
    QTest::newRow("half the depth") << flat << 12 << 0 << 5 << normal;
    QTest::newRow("height and weight") << deep << 18 << 700 << 16 << 70;
    QTest::newRow("weight for a negative height") << deep << -12 << 400 << 355 << 40;
    QTest::newRow("weight for no height") << deep << 0 << 45 << 40 << 4;
    QTest::newRow("neither") << deep << 0 << 0 << -1 << normal;
    QTest::newRow("both negative") << deep << -12 << -400 << -1 << 0;
    QTest::newRow("light weight") << deep << 12 << 9 << 10 << 0;
    QTest::newRow("heaviest of Win32") << deep << 12 << 1000 << 10 << 100;
    QTest::newRow("heavier") << deep << 12 << INT_MAX << 10 << 127;
    QTest::newRow("least values") << deep << INT_MIN << INT_MIN << -1 << 0;
    QTest::newRow("largest height") << deep << INT_MAX << 0 << 1908874352 << normal;
    QTest::newRow("height beyond an int") << QImage::Format_RGBA64 << INT_MAX << 0 << INT_MAX << normal;
}

void tst_KxQtPainterWrapper::font()
{
    QFETCH(QImage::Format, format);
    QFETCH(int, height);
    QFETCH(int, weight);
    QImage image = canvas().convertToFormat(format);
    KxQtPainterWrapper painter(&image);
    painter.beginDraw();
    const LOGFONTW font = logFont(L"DejaVu Sans", height, weight);
    painter.setFontIndirect(&font);
    QTEST(painter.wrappedPainter()->font().pixelSize(), "pixelSize");
    QTEST(painter.wrappedPainter()->font().weight(), "qtWeight");
    painter.endDraw();
}

void tst_KxQtPainterWrapper::fontKeepsNameAndFlags()
{
    drawn([](auto &p) {
        LOGFONTW font = logFont(L"Fam\u00EDlia", 12, 0);
        p.setFontIndirect(&font);
        QCOMPARE(p.wrappedPainter()->font().family(), QStringLiteral(u"Fam\u00EDlia"));
        QVERIFY(!p.wrappedPainter()->font().italic());
        QVERIFY(!p.wrappedPainter()->font().fixedPitch());

        font.lfItalic = 255;
        font.lfPitchAndFamily = 1;
        p.setFontIndirect(&font);
        QVERIFY(p.wrappedPainter()->font().italic());
        QVERIFY(p.wrappedPainter()->font().fixedPitch());

        font.lfPitchAndFamily = 0x31;
        p.setFontIndirect(&font);
        QVERIFY(!p.wrappedPainter()->font().fixedPitch());

        p.setFontIndirect(nullptr);
        QVERIFY(p.wrappedPainter()->font().italic());
    });
}

void tst_KxQtPainterWrapper::fontOfLongName()
{
    drawn([](auto &p) {
        const auto font = logFont(L"012345678901234567890123456789012345", 12, 0);
        p.setFontIndirect(&font);
        QCOMPARE(p.wrappedPainter()->font().family(), QStringLiteral("01234567890123456789012345678901"));
    });
}

void tst_KxQtPainterWrapper::fontWithoutDevice()
{
    QImage image = canvas();
    KxQtPainterWrapper painter(&image);
    painter.beginDraw();
    painter.setWrappedDevice(nullptr);
    const LOGFONTW font = logFont(L"DejaVu Sans", 12, 0);
    painter.setFontIndirect(&font);
    QCOMPARE(painter.wrappedPainter()->font().pixelSize(), -1);
    painter.setWrappedDevice(&image);
    painter.endDraw();
}

// What the record leaves out comes from the widget.
void tst_KxQtPainterWrapper::fontOnAWidget()
{
    struct Widget : QWidget
    {
        void paintEvent(QPaintEvent *) override
        {
            KxQtPainterWrapper painter(this);
            painter.beginDraw();
            const LOGFONTW font = logFont(L"DejaVu Sans", 0, weight);
            painter.setFontIndirect(&font);
            used = painter.wrappedPainter()->font();
            painter.endDraw();
        }
        LONG weight = 0;
        QFont used;
    };
    Widget widget;
    QFont font(QStringLiteral("DejaVu Serif"), 33, QFont::Bold, true);
    font.setFixedPitch(true);
    widget.setFont(font);
    widget.grab();
    QCOMPARE(widget.used.family(), QStringLiteral("DejaVu Sans"));
    QCOMPARE(widget.used.pointSize(), 33);
    QCOMPARE(widget.used.weight(), int(QFont::Bold));
    QVERIFY(widget.used.italic() && widget.used.fixedPitch());
    widget.weight = 400;
    widget.grab();
    QCOMPARE(widget.used.pixelSize(), widget.depth() * 400 / 36);
    QCOMPARE(widget.used.weight(), 40);
}

QTEST_MAIN(tst_KxQtPainterWrapper)
#include "tst_KxQtPainterWrapper.moc"
