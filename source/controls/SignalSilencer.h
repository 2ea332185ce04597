/// @file SignalSilencer.h
/// @brief Changes that a widget does not tell.
#pragma once

#include <QObject>
#include <QPointer>

/// Blocks an object's signals for as long as it lives, then restores the state that it found.
///
/// A QSignalBlocker for code that calls back into the application, which may destroy the object meanwhile.
class SignalSilencer
{
public:
    explicit SignalSilencer(QObject *object)
        : m_object(object)
        , m_wasBlocked(object->blockSignals(true))
    {
    }
    SignalSilencer(const SignalSilencer &) = delete;
    SignalSilencer &operator=(const SignalSilencer &) = delete;
    ~SignalSilencer()
    {
        if (m_object)
            m_object->blockSignals(m_wasBlocked);
    }

private:
    QPointer<QObject> m_object;
    bool m_wasBlocked;
};
