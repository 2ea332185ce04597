#ifndef LEFTBEHIND_H
#define LEFTBEHIND_H

#include "KxWindows.h"

#include <QApplication>

/// Tells whether a test took everything away that it made: make it in init() and ask in cleanup().
class LeftBehind
{
public:
    bool nothing() const
    {
        return QApplication::topLevelWidgets().isEmpty() && CWndHandleTable.size() == m_registered;
    }

private:
    std::size_t m_registered = CWndHandleTable.size();
};

#endif
