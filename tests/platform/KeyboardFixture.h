#pragma once

#include <KxPlatformServices.h>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QtTest>

constexpr int keyDown = 0x8000;

inline int keyState(int virtualKey)
{
    return platformServices().keyboard().keyState(virtualKey);
}

/// A key event as a window system reports it.
struct NativeKey
{
    int key = 0;
    quint32 scanCode = 0;
    quint32 symbol = 0;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    quint32 nativeModifiers = 0;
    bool repeats = false;

    void send(QEvent::Type type) const
    {
        QKeyEvent event(type, key, modifiers, scanCode, symbol, nativeModifiers, QString(), repeats);
        QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
    }
    void press() const { send(QEvent::KeyPress); }
    void release() const { send(QEvent::KeyRelease); }
};

/// @return the virtual keys that are down, in ascending order.
inline QVector<int> keysDown()
{
    QVector<int> keys;
    for (int virtualKey = 0; virtualKey < 256; ++virtualKey) {
        if (keyState(virtualKey) & keyDown)
            keys.append(virtualKey);
    }
    return keys;
}

/// A widget on the screen; no key is down when it comes and when it goes.
class KeyboardFixture
{
public:
    KeyboardFixture() { m_widget.show(); }
    ~KeyboardFixture()
    {
        QEvent deactivation(QEvent::ApplicationDeactivate);
        QCoreApplication::sendEvent(qApp, &deactivation);
    }

    QWidget *widget() { return &m_widget; }

private:
    QWidget m_widget;
};
