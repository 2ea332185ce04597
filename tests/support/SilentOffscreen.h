#ifndef SILENTOFFSCREEN_H
#define SILENTOFFSCREEN_H

#include <QGuiApplication>
#include <QString>

/// Keeps back, for as long as one lives, what the offscreen platform warns of when a window asks for something
/// that only a real screen has: a fixed size, or to be raised. Every other message goes on. They may be nested.
class SilentOffscreen
{
public:
    SilentOffscreen()
    {
        if (s_living++ == 0)
            s_next = qInstallMessageHandler(handle);
    }
    SilentOffscreen(const SilentOffscreen &) = delete;
    SilentOffscreen &operator=(const SilentOffscreen &) = delete;
    ~SilentOffscreen()
    {
        if (--s_living == 0)
            qInstallMessageHandler(s_next);
    }

private:
    static bool isOfPlatform(const QString &message)
    {
        return QGuiApplication::platformName() == QLatin1String("offscreen") &&
               (message == QLatin1String("This plugin does not support propagateSizeHints()") ||
                message == QLatin1String("This plugin does not support raise()"));
    }

    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (!isOfPlatform(message))
            s_next(type, context, message);
    }

    inline static QtMessageHandler s_next = nullptr;
    inline static int s_living = 0;
};

#endif
