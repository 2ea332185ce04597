#pragma once

#include "GuidedTour.h"

#include <QImage>

/// Draws, undoes, fills and prints, and checks every pixel of what the program shows.
class Tour : public GuidedTour
{
public:
    using GuidedTour::GuidedTour;

protected:
    void walk() override;

private:
    void startsEmpty();
    void drawGround();
    void stretchRubberBand();
    void undoRubberBand();
    void drawHouse();
    void fillHouse();
    void drawFence();
    void undoAndFillAgain();
    void clearAndUndo();
    void print();
    void typeBadFile();
    void showsRefusal();

    /// Moves the current item of a list, or the handle of a slider, from the first place on.
    static void choose(const char *name, int place);
    static void choosePen(int color, int style, int width);
    static void pressMouse(QPoint at);
    static void moveMouse(QPoint to);
    static void releaseMouse(QPoint at);
    static void drag(QPoint from, QPoint to);

    void undo();
    void drawBox(const QRect &box, const QColor &shade);
    void drawCircle(QPoint center, int radius);
    void fill(QPoint at, int color);

    /// @return what the canvas shows.
    static QImage picture();
    void expectPixel(QPoint at, QRgb expected);
    void expectStatus(const QString &expected);

    QImage m_before; ///< What one step shows and a later one brings back.
};
