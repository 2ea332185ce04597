#ifndef EVENTLOG_H
#define EVENTLOG_H

#include "KxMessages.h"

#include <QCoreApplication>
#include <QObject>
#include <QVector>

/// Notes every message event that is delivered to any object, and the number of all events to one object.
class EventLog : public QObject
{
public:
    struct Message
    {
        QObject *receiver;
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
    };

    /// @param watched  the object whose events are counted; may be null.
    explicit EventLog(const QObject *watched)
        : m_watched(watched)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        m_count += receiver == m_watched;
        if (event->type() == QKxMsgEvent::eventType())
            note(receiver, *static_cast<QKxMsgEvent *>(event));
        return false;
    }

    const QVector<Message> &messages() const { return m_messages; }
    /// True when there was neither a message event nor any event to the watched object.
    bool isEmpty() const { return m_count == 0 && m_messages.isEmpty(); }

private:
    void note(QObject *receiver, const QKxMsgEvent &event)
    {
        m_messages.append({receiver, event.message(), event.wParam(), event.lParam()});
    }

    const QObject *m_watched;
    int m_count = 0;
    QVector<Message> m_messages;
};

#endif
