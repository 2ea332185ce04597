#include "Tour.h"

#include "SketchDlg.h"

#include <QAbstractButton>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QTest>

#include <cmath>

namespace {

// Indexes into the list of colours.
enum { Black, Red, Orange, Green, Sky, Blue, White };
// Indexes into the list of pen styles.
enum { Solid, Dash, Dot, DashDot, DashDotDot };

constexpr int groundY = 350;
constexpr QPoint crown(95, 265); // of the tree
constexpr QPoint bandStart(60, 290);
constexpr QPoint bandEnd(170, 400);

QRgb rgb(int color)
{
    return qRgb(GetRValue(COLORS[color]), GetGValue(COLORS[color]), GetBValue(COLORS[color]));
}

QImage emptyPaper()
{
    QImage paper(PAPER_WIDTH, PAPER_HEIGHT, QImage::Format_RGB32);
    paper.fill(Qt::white);
    return paper;
}

void invert(QImage &image, QPoint at)
{
    image.setPixel(at, ~image.pixel(at) | 0xFF000000);
}

// The corners are inverted once as well.
QImage withInvertedFrame(QImage image, const QRect &frame)
{
    for (int x = frame.left(); x <= frame.right(); ++x) {
        invert(image, {x, frame.top()});
        invert(image, {x, frame.bottom()});
    }
    for (int y = frame.top() + 1; y < frame.bottom(); ++y) {
        invert(image, {frame.left(), y});
        invert(image, {frame.right(), y});
    }
    return image;
}

// Pixel by pixel, to compare with.
QImage filledPlainly(QImage image, QPoint at, QRgb color)
{
    const QRgb old = image.pixel(at);
    if (old == color)
        return image;
    std::vector<QPoint> points{at};
    while (!points.empty()) {
        const QPoint point = points.back();
        points.pop_back();
        if (!image.valid(point) || image.pixel(point) != old)
            continue;
        image.setPixel(point, color);
        for (const QPoint next : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
            points.push_back(point + next);
    }
    return image;
}

} // namespace

void Tour::startsEmpty()
{
    expect(picture() == emptyPaper(), QStringLiteral("the paper is not white"));
    expect(control<QAbstractButton>("line")->isChecked(), QStringLiteral("line is not checked"));
    expect(!control<QWidget>("undo")->isEnabled(), QStringLiteral("there is something to undo"));
    expectText("width", control<QLabel>("widthText")->text(), QStringLiteral("3 px"));
}

void Tour::drawGround()
{
    choosePen(Green, Solid, 5);
    drag({0, groundY}, {PAPER_WIDTH - 1, groundY});

    QImage expected = emptyPaper();
    QPainter(&expected).fillRect(0, groundY - 2, PAPER_WIDTH, 5, QColor(rgb(Green)));
    expect(picture() == expected, QStringLiteral("the ground is not what was drawn"));
    expect(control<QWidget>("undo")->isEnabled(), QStringLiteral("there is nothing to undo"));
    m_before = expected;
}

void Tour::stretchRubberBand()
{
    pressMouse(bandStart);
    moveMouse({400, 60});
    moveMouse(bandEnd);

    // The band inverts what is below it, and nothing of its former place is left.
    QImage expected = m_before;
    for (QPoint at = bandStart; at.x() <= bandEnd.x(); at += QPoint(1, 1))
        invert(expected, at);
    expect(picture() == expected, QStringLiteral("the rubber band is not an inverted line"));
}

void Tour::undoRubberBand()
{
    moveMouse({200, 100});
    releaseMouse({200, 100});
    expectPixel({200, 100}, rgb(Green));
    expectStatus(QStringLiteral("Drawn from 60, 290 to 200, 100"));

    undo();
    expect(picture() == m_before, QStringLiteral("undo did not bring back the ground alone"));
}

// A button that a key presses looks pressed for a while before it is clicked.
void Tour::undo()
{
    const QImage shown = picture();
    press(Qt::Key_Z, Qt::ControlModifier);
    const auto *button = control<QAbstractButton>("undo");
    expect(QTest::qWaitFor([&] { return picture() != shown && !button->isDown(); }),
           QStringLiteral("undo changed nothing"));
    expectStatus(QStringLiteral("Undone"));
}

void Tour::drawHouse()
{
    choosePen(Orange, Solid, 3);
    drawBox(QRect(QPoint(200, 240), QPoint(370, 350)), QColor(rgb(Orange)));
    choosePen(Blue, Solid, 2);
    drawBox(QRect(QPoint(330, 350), QPoint(290, 280)), QColor(rgb(Blue)));
    drawBox(QRect(QPoint(225, 270), QPoint(262, 307)), QColor(rgb(Blue)));

    click("line");
    choosePen(Red, Solid, 4);
    drag({180, 240}, {285, 155});
    drag({285, 155}, {390, 240});
    drag({390, 240}, {180, 240});

    choosePen(Orange, Solid, 3);
    drawCircle({490, 90}, 40);
    choosePen(Green, Solid, 3);
    drawCircle(crown, 42);
    choosePen(Black, Solid, 7);
    click("line");
    drag({95, 311}, {95, 344});
}

// The colours that a translucent shade gives on paper differ by rounding only.
void Tour::drawBox(const QRect &box, const QColor &shade)
{
    click("box");
    const QImage before = picture();
    pressMouse(box.topLeft());
    moveMouse(box.bottomRight());
    expect(picture() == withInvertedFrame(before, box.normalized()),
           QStringLiteral("the rubber band is not an inverted frame"));
    releaseMouse(box.bottomRight());
    const QRgb inside = picture().pixel(box.normalized().center());
    expect(inside != shade.rgb() && inside != qRgb(255, 255, 255), QStringLiteral("the box is not shaded"));
    expectPixel(box.normalized().topLeft(), shade.rgb());
}

void Tour::drawCircle(QPoint center, int radius)
{
    constexpr int steps = 36;
    const auto at = [&](int step) {
        const double angle = 2 * M_PI * step / steps;
        return center + QPoint(qRound(radius * std::cos(angle)), qRound(radius * std::sin(angle)));
    };

    click("freehand");
    pressMouse(at(0));
    for (int step = 1; step < steps; ++step)
        moveMouse(at(step));
    releaseMouse(at(steps));
    expect(picture().pixel(at(steps / 3)) == picture().pixel(at(0)), QStringLiteral("the circle has a gap"));
}

void Tour::fillHouse()
{
    click("fill");
    fill({30, 30}, Sky);
    fill({30, 410}, Green);
    fill({285, 200}, Red);
    fill({490, 90}, Orange);
    fill({240, 290}, White);
    // Filling again what is white already leaves nothing to undo.
    fill({240, 290}, White);
    undo();
    fill({240, 290}, White);
    m_before = picture();
    fill(crown, Green);
}

void Tour::fill(QPoint at, int color)
{
    const QImage before = picture();
    const QImage expected = filledPlainly(before, at, rgb(color));
    choose("color", color);
    pressMouse(at);
    releaseMouse(at);

    const QImage after = picture();
    expect(after == expected, QStringLiteral("filling at %1, %2 went wrong").arg(at.x()).arg(at.y()));
    int filled = 0;
    for (int y = 0; y < PAPER_HEIGHT; ++y) {
        for (int x = 0; x < PAPER_WIDTH; ++x)
            filled += after.pixel(x, y) != before.pixel(x, y);
    }
    expectStatus(QStringLiteral("%1 pixels filled").arg(filled));
}

void Tour::undoAndFillAgain()
{
    const QImage complete = picture();
    for (int fenceLines = 4; fenceLines > 0; --fenceLines)
        undo();
    expect(picture() != m_before, QStringLiteral("undo went too far"));
    undo();
    expect(picture() == m_before, QStringLiteral("undo did not bring back the tree without leaves"));

    click("fill");
    fill(crown, Green);
    drawFence();
    expect(picture() == complete, QStringLiteral("the same drawing gave another picture"));
}

void Tour::drawFence()
{
    click("line");
    int y = 305;
    for (const int style : {Dash, Dot, DashDot, DashDotDot}) {
        choosePen(Black, style, 2);
        drag({410, y}, {560, y});
        const QImage shown = picture();
        int gaps = 0;
        for (int x = 411; x < 560; ++x)
            gaps += shown.pixel(x - 1, y) == rgb(Black) && shown.pixel(x, y) == rgb(Sky);
        expect(gaps >= 3, QStringLiteral("style %1 has %2 gaps").arg(style).arg(gaps));
        y += 12;
    }
}

void Tour::clearAndUndo()
{
    m_before = picture();
    click("clear");
    expect(picture() == emptyPaper(), QStringLiteral("the paper was not cleared"));
    expectStatus(QStringLiteral("Cleared"));
}

void Tour::print()
{
    click("undo");
    expect(picture() == m_before, QStringLiteral("undo did not bring back what was cleared"));

    const QString file = fileInFolder(QStringLiteral("sketch.pdf"));
    QFile::remove(file);
    type("file", file);
    click("print");
    QFile pdf(file);
    expect(pdf.open(QIODevice::ReadOnly) && pdf.read(5) == "%PDF-" && pdf.size() > 2000,
           QStringLiteral("no PDF was printed"));
    expectStatus(QStringLiteral("Printed to ") + file);
}

void Tour::typeBadFile()
{
    type("file", QStringLiteral("/nowhere/sketch.pdf"));
}

void Tour::showsRefusal()
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    expectText("message", box->text(), QStringLiteral("Cannot write /nowhere/sketch.pdf."));
}

QImage Tour::picture()
{
    return control<QWidget>("canvas")->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

void Tour::expectPixel(QPoint at, QRgb expected)
{
    const QRgb shown = picture().pixel(at);
    expect(shown == expected, QStringLiteral("the pixel at %1, %2 is %3, not %4")
                                  .arg(at.x())
                                  .arg(at.y())
                                  .arg(shown, 0, 16)
                                  .arg(expected, 0, 16));
}

void Tour::expectStatus(const QString &expected)
{
    expectText("status", control<QLabel>("status")->text(), expected);
}
