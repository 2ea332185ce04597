#ifndef PATHTEXTS_H
#define PATHTEXTS_H

#include "ProbePath.h"

#include <QString>

inline CString wide(const QString &text)
{
    return CString(text.toStdWString());
}

inline QString shown(const CString &text)
{
    return QString::fromStdWString(text);
}

/// What stands for a text that is not there.
inline QString none()
{
    return QStringLiteral("(none)");
}

inline QString shown(const CString *text)
{
    return text ? shown(*text) : none();
}

inline QString pathOf(const CKdUiPathname &path)
{
    return path.GetPathString() ? QString::fromWCharArray(path.GetPathString()) : none();
}

#endif
