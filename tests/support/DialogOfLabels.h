#ifndef DIALOGOFLABELS_H
#define DIALOGOFLABELS_H

#include "KxWindows.h"
#include "WindowHandle.h"

#include <QLabel>

#include <initializer_list>

/// A bound window with labels registered under the identifiers, which are also the labels' texts.
struct DialogOfLabels
{
    explicit DialogOfLabels(std::initializer_list<int> ids)
    {
        window.SetHandle(handleOf(&widget));
        for (const int id : ids)
            window.SetDlgItem(id, handleOf(new QLabel(QString::number(id), &widget)));
    }

    QWidget widget;
    CWnd window;
};

/// The text that the window object reads.
inline QString textOf(CWnd *window)
{
    CString text;
    window->GetWindowTextW(text);
    return QString::fromStdWString(text);
}

#endif
