#include "Tour.h"

#include "SketchApp.h"

#include <QTest>
#include <QWindow>

namespace {

QWindow *window()
{
    return QApplication::activeModalWidget()->windowHandle();
}

QPoint onWindow(QPoint canvasPoint)
{
    QWidget *dialog = QApplication::activeModalWidget();
    return dialog->findChild<QWidget *>(QStringLiteral("canvas"))->mapTo(dialog, canvasPoint);
}

} // namespace

void Tour::walk()
{
    runModal(
        {{"01-empty", Window::Form, [this] { startsEmpty(); }, {}},
         {"02-ground", Window::Form, [this] { drawGround(); }, {}},
         {"03-rubber-band", Window::Form, [this] { stretchRubberBand(); }, {}},
         {"04-undone", Window::Form, [this] { undoRubberBand(); }, {}},
         {"05-house", Window::Form, [this] { drawHouse(); }, {}},
         {"06-filled", Window::Form, [this] { fillHouse(); }, {}},
         {"07-fence", Window::Form, [this] { drawFence(); }, {}},
         {"08-filled-again", Window::Form, [this] { undoAndFillAgain(); }, {}},
         {"09-cleared", Window::Form, [this] { clearAndUndo(); }, {}},
         {"10-printed", Window::Form, [this] { print(); }, {}},
         {"11-bad-file", Window::Form, [this] { typeBadFile(); }, [] { click("print"); }},
         {"12-refused", Window::Message, [this] { showsRefusal(); }, [] { press(Qt::Key_Return); }},
         {"13-closed", Window::Form, [this] { expectStatus(QStringLiteral("Not printed")); },
          [] { press(Qt::Key_Escape); }}},
        [] { return theApp.ShowSketch(); }, IDCANCEL);
}

void Tour::choose(const char *name, int place)
{
    auto *widget = control<QWidget>(name);
    QTest::keyClick(widget, Qt::Key_Home);
    const Qt::Key forward = widget->inherits("QSlider") ? Qt::Key_Right : Qt::Key_Down;
    for (int i = 0; i < place; ++i)
        QTest::keyClick(widget, forward);
}

void Tour::choosePen(int color, int style, int width)
{
    choose("color", color);
    choose("style", style);
    choose("width", width - 1);
}

// Mouse events go to the window, so that the moves reach the widget that was pressed.
void Tour::pressMouse(QPoint at)
{
    QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, onWindow(at));
}

void Tour::moveMouse(QPoint to)
{
    QTest::mouseMove(window(), onWindow(to));
}

void Tour::releaseMouse(QPoint at)
{
    QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, onWindow(at));
}

void Tour::drag(QPoint from, QPoint to)
{
    pressMouse(from);
    moveMouse((from + to) / 2);
    moveMouse(to);
    releaseMouse(to);
}
