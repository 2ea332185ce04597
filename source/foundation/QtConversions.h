#pragma once

#include "KxString.h"

#include <QRect>
#include <QString>

inline QString toQString(const wchar_t *text)
{
    return text ? QString::fromWCharArray(text, -1) : QString();
}

inline CString toCString(const QString &qtText)
{
    return CString(qtText.toStdWString());
}

// Qt's inclusive right and bottom: ported code adds 1 where it needs a width.
inline RECT toRect(const QRect &qtRect)
{
    return {qtRect.left(), qtRect.top(), qtRect.right(), qtRect.bottom()};
}
