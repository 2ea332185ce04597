#ifndef BOUNDCONTROL_H
#define BOUNDCONTROL_H

#include "WindowHandle.h"

/// A widget and the window object that is bound to it.
template <typename Control, typename Widget> struct BoundControl
{
    BoundControl() { control.SetHandle(handleOf(&widget)); }

    Widget widget;
    Control control;
};

#endif
