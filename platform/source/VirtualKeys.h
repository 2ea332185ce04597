#pragma once

class QKeyEvent;

/// @return the virtual key that an event is about, left or right for the modifier keys (left when the side is
///         unknown); 0 when there is none.
int virtualKeyOf(const QKeyEvent &event);
