#ifndef WINDOWHANDLE_H
#define WINDOWHANDLE_H

#include "KxWinTypes.h"

#include <QWidget>

/// The handle of a widget, which is its address.
inline HWND handleOf(QWidget *widget)
{
    return reinterpret_cast<HWND>(widget);
}

#endif
