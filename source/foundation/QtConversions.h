#pragma once

#include "KxString.h"

#include <QRect>
#include <QString>

#include <algorithm>
#include <cwchar>
#include <numeric>

inline QString toQString(const wchar_t *text)
{
    if (!text)
        return QString();

    // Characters of 16 bits are copied; Qt decodes the others, and a byte order mark, far more slowly.
    const std::size_t length = std::wcslen(text);
    const unsigned bits = std::accumulate(text, text + length, 0U,
                                          [](unsigned seen, wchar_t ch) { return seen | unsigned(ch); });
    if (bits > 0xFFFF || *text == L'\uFEFF')
        return QString::fromWCharArray(text, int(length));

    QString qtText(int(length), Qt::Uninitialized);
    std::transform(text, text + length, qtText.data(), [](wchar_t ch) { return QChar(ushort(ch)); });
    return qtText;
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
