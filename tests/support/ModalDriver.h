#ifndef MODALDRIVER_H
#define MODALDRIVER_H

#include "SilentOffscreen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPointer>
#include <QString>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>

/// Waits by timer for the next modal window and runs an action on it: construct it before the call that
/// blocks. Several drivers may be alive: each takes the first modal window that none before it has taken (a
/// box over a box). A window that is not gone after the limit, or that never came, fails the test; the first
/// is closed by force.
class ModalDriver
{
public:
    using Action = std::function<void(QWidget *)>;

    explicit ModalDriver(Action action, int limitMs = 5000)
        : m_action(std::move(action))
    {
        QObject::connect(&m_poll, &QTimer::timeout, [this] { lookForWindow(); });
        QObject::connect(&m_limit, &QTimer::timeout, [this] { giveUp(); });
        m_poll.start(5);
        m_limit.start(limitMs);
    }

    ModalDriver(const ModalDriver &) = delete;
    ModalDriver &operator=(const ModalDriver &) = delete;

    ~ModalDriver()
    {
        if (!m_done)
            QTest::qFail("no modal window came", __FILE__, __LINE__);
        // Its next run is for another driver.
        if (m_window)
            m_window->setProperty(TakenProperty, false);
    }

    /// True when the window came and the action ran to its end.
    bool done() const { return m_done; }

    /// An action that clicks the button with this text (mnemonic included) with real mouse events.
    static Action click(const QString &text)
    {
        return [text](QWidget *window) {
            if (QAbstractButton *button = buttonOf(window, text))
                QTest::mouseClick(button, Qt::LeftButton);
        };
    }

    /// An action that types a key into the window.
    static Action type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        return [key, modifiers](QWidget *window) { QTest::keyClick(window, key, modifiers); };
    }

    /// An action that closes the window as its frame's close button does.
    static Action close()
    {
        return [](QWidget *window) { window->close(); };
    }

    /// The visible button with this text; null, and the test fails, when the window has none.
    static QAbstractButton *buttonOf(const QWidget *window, const QString &text)
    {
        const auto buttons = window->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (button->isVisible() && button->text() == text)
                return button;
        }
        QTest::qFail(qPrintable(QStringLiteral("no button \"%1\"").arg(text)), __FILE__, __LINE__);
        return nullptr;
    }

private:
    static constexpr const char *TakenProperty = "_takenByModalDriver";

    void lookForWindow()
    {
        QWidget *window = QApplication::activeModalWidget();
        if (!window || !window->isVisible() || window->property(TakenProperty).toBool())
            return;

        m_poll.stop();
        m_window = window;
        window->setProperty(TakenProperty, true);
        m_action(window);
        m_done = true;
    }

    void giveUp()
    {
        if (m_done && (!m_window || !m_window->isVisible()))
            return;
        m_poll.stop();
        QTest::qFail("a modal window was not closed in time", __FILE__, __LINE__);
        if (QWidget *window = QApplication::activeModalWidget())
            endWindow(window);
    }

    // A window may refuse close(); ending its event loop cannot be refused.
    static void endWindow(QWidget *window)
    {
        window->close();
        if (window->isVisible())
            window->hide();
    }

    SilentOffscreen m_silence;
    Action m_action;
    QPointer<QWidget> m_window;
    QTimer m_poll;
    QTimer m_limit;
    bool m_done = false;
};

#endif
