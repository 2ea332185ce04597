/// What a user does with mouse and keyboard, in the window that is modal now.
#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

template <typename Widget> Widget *control(const char *name)
{
    return QApplication::activeModalWidget()->findChild<Widget *>(QLatin1String(name));
}

inline void click(const char *button)
{
    QTest::mouseClick(control<QWidget>(button), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
}

inline void type(const char *name, const QString &text)
{
    auto *edit = control<QLineEdit>(name);
    QTest::mouseClick(edit, Qt::LeftButton);
    QTest::keySequence(edit, QKeySequence::SelectAll);
    QTest::keyClicks(edit, text);
}

inline void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::activeModalWidget(), key, modifiers);
}

/// Moves the current item of a list, or the handle of a slider, from the first place on.
inline void choose(const char *name, int place)
{
    auto *widget = control<QWidget>(name);
    QTest::keyClick(widget, Qt::Key_Home);
    const Qt::Key forward = widget->inherits("QSlider") ? Qt::Key_Right : Qt::Key_Down;
    for (int i = 0; i < place; ++i)
        QTest::keyClick(widget, forward);
}

inline void choosePen(int color, int style, int width)
{
    choose("color", color);
    choose("style", style);
    choose("width", width - 1);
}

inline QWindow *window()
{
    return QApplication::activeModalWidget()->windowHandle();
}

inline QPoint onWindow(QPoint canvasPoint)
{
    return control<QWidget>("canvas")->mapTo(QApplication::activeModalWidget(), canvasPoint);
}

inline void pressMouse(QPoint at)
{
    QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, onWindow(at));
}

inline void moveMouse(QPoint to)
{
    QTest::mouseMove(window(), onWindow(to));
}

inline void releaseMouse(QPoint at)
{
    QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, onWindow(at));
}

inline void drag(QPoint from, QPoint to)
{
    pressMouse(from);
    moveMouse((from + to) / 2);
    moveMouse(to);
    releaseMouse(to);
}
