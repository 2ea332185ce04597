#include "EventLog.h"
#include "KxMessages.h"
#include "KxWindows.h"
#include "WindowHandle.h"

#include <QtTest>
#include <QtWidgets>

#include <limits>

namespace {
constexpr WPARAM largestW = std::numeric_limits<WPARAM>::max();
constexpr LPARAM smallestL = std::numeric_limits<LPARAM>::min();
constexpr LPARAM largestL = std::numeric_limits<LPARAM>::max();

struct Triple
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;

    bool operator==(const Triple &other) const
    {
        return message == other.message && wParam == other.wParam && lParam == other.lParam;
    }
};

// An application object that answers every message with 7.
class AnsweringWnd : public CWnd
{
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_received.append({message, wParam, lParam});
        return 7;
    }

    QVector<Triple> m_received;
};

// An application widget that consumes messages.
class Receiver : public QWidget
{
public:
    bool event(QEvent *event) override
    {
        if (event->type() != QKxMsgEvent::eventType())
            return QWidget::event(event);
        const auto &message = static_cast<const QKxMsgEvent &>(*event);
        m_received.append({message.message(), message.wParam(), message.lParam()});
        event->setAccepted(m_accepts);
        return m_accepts;
    }

    bool m_accepts = true;
    QVector<Triple> m_received;
};

} // namespace

/// Messages as events, sent and posted, and messages for registered objects.
class tst_MessageEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void eventTypeIsRegisteredOnce();
    void eventCarriesTriple();

    void applicationMessage_data();
    void applicationMessage();
    void applicationMessageWithoutObject_data() { applicationMessage_data(); }
    void applicationMessageWithoutObject();
    void applicationMessageOfUnboundObject();
    void otherMessage_data();
    void otherMessage();
    void sentEventIsNoAnswer();
    void sendWithinSend();
    void messageCenterRefusesNull();

    void postedLater();
    void postedInOrder();
    void postedIsNeverAnswered_data();
    void postedIsNeverAnswered();
    void postedToNull();
    void receiverDestroyedBeforeDelivery();

    void negativeTypeIsRegisteredAgain();
};

// Qt does not know the type before it is asked for.
void tst_MessageEvents::initTestCase()
{
    QCOMPARE(iKxMsgEventType, -1);
}

void tst_MessageEvents::eventTypeIsRegisteredOnce()
{
    const QEvent::Type type = QKxMsgEvent::eventType();
    QVERIFY(type >= QEvent::User && type <= QEvent::MaxUser);
    QCOMPARE(iKxMsgEventType, int(type));
    QCOMPARE(QKxMsgEvent::eventType(), type);

    const QKxMsgEvent first(1, 2, 3);
    const QKxMsgEvent second(4, 5, 6);
    QCOMPARE(first.type(), type);
    QCOMPARE(second.type(), type);
    QVERIFY(QEvent::registerEventType(type) != type);
}

void tst_MessageEvents::eventCarriesTriple()
{
    const QKxMsgEvent event(0xFFFFFFFF, largestW, smallestL);
    QCOMPARE(event.message(), 0xFFFFFFFFu);
    QCOMPARE(event.wParam(), largestW);
    QCOMPARE(event.lParam(), smallestL);
    QVERIFY(std::has_virtual_destructor_v<QKxMsgEvent>);
}

void tst_MessageEvents::applicationMessage_data()
{
    QTest::addColumn<UINT>("message");

    for (UINT message : {0x0406u, 0x0408u, 0x040Cu, 0x040Du, 0x0410u, 0x0411u, 0x0415u})
        QTest::addRow("0x%04X", message) << message;
}

void tst_MessageEvents::applicationMessage()
{
    QFETCH(UINT, message);

    QWidget widget;
    AnsweringWnd window;
    window.SetHandle(handleOf(&widget));
    const EventLog log(&widget);

    QCOMPARE(SendMessageW(handleOf(&widget), message, largestW, smallestL), LRESULT{0});
    QCOMPARE(SendMessageW(handleOf(&widget), message, 0, largestL), LRESULT{0});
    QCOMPARE(window.m_received, (QVector<Triple>{{message, largestW, smallestL}, {message, 0, largestL}}));
    QVERIFY(log.isEmpty());
}

void tst_MessageEvents::applicationMessageWithoutObject()
{
    QFETCH(UINT, message);

    QWidget widget;
    const EventLog log(&widget);
    QCOMPARE(SendMessageW(handleOf(&widget), message, 1, 2), LRESULT{0});
    QVERIFY(log.isEmpty());
}

// Registered is enough.
void tst_MessageEvents::applicationMessageOfUnboundObject()
{
    auto *widget = new QWidget;
    const HWND handle = handleOf(widget);
    AnsweringWnd window;
    window.SetHandle(handle);
    delete widget;

    QCOMPARE(SendMessageW(handle, 0x0410, 1, 2), LRESULT{0});
    QCOMPARE(window.m_received, (QVector<Triple>{{0x0410, 1, 2}}));
}

void tst_MessageEvents::otherMessage_data()
{
    QTest::addColumn<UINT>("message");
    QTest::addColumn<WPARAM>("wParam");
    QTest::addColumn<LPARAM>("lParam");

    // Every neighbour of a number that is treated otherwise.
    for (UINT message :
         {0x00EFu, 0x00F2u, 0x00F6u, 0x00F8u, 0x0142u, 0x0144u, 0x0145u, 0x0148u, 0x014Au, 0x014Cu, 0x014Du,
          0x014Fu, 0x0400u, 0x0405u, 0x0407u, 0x0409u, 0x040Bu, 0x040Eu, 0x040Fu, 0x0412u, 0x0414u, 0x0416u})
        QTest::addRow("0x%04X", message) << message << WPARAM{1} << LPARAM{2};
    QTest::newRow("0") << 0u << WPARAM{0} << LPARAM{0};
    QTest::newRow("largest number") << 0xFFFFFFFFu << largestW << largestL;
    QTest::newRow("smallest parameter") << 0x8000u << WPARAM{0} << smallestL;
    QTest::newRow("BM_GETCHECK in the low half only") << 0x000100F0u << WPARAM{1} << LPARAM{-1};
}

void tst_MessageEvents::otherMessage()
{
    QFETCH(UINT, message);
    QFETCH(WPARAM, wParam);
    QFETCH(LPARAM, lParam);

    Receiver widget;
    AnsweringWnd window;
    window.SetHandle(handleOf(&widget));

    QCOMPARE(SendMessageW(handleOf(&widget), message, wParam, lParam), LRESULT{0});
    QCOMPARE(widget.m_received, (QVector<Triple>{{message, wParam, lParam}}));
    QVERIFY(window.m_received.isEmpty());
}

void tst_MessageEvents::sentEventIsNoAnswer()
{
    Receiver widget;
    for (bool accepts : {true, false}) {
        widget.m_accepts = accepts;
        QCOMPARE(SendMessageW(handleOf(&widget), 0x0407, 1, 2), LRESULT{0});
        QCOMPARE(QKxMessageCenter::sendMessage(handleOf(&widget), 0x0410, 3, 4), LRESULT{0});
    }
    // The message center treats no number otherwise.
    QCOMPARE(widget.m_received.size(), 4);
    QCOMPARE(widget.m_received.last(), (Triple{0x0410, 3, 4}));
}

void tst_MessageEvents::sendWithinSend()
{
    class Relay : public Receiver
    {
    public:
        bool event(QEvent *event) override
        {
            if (event->type() == QKxMsgEvent::eventType() && m_received.isEmpty()) {
                m_received.append({1, 0, 0});
                SendMessageW(handleOf(this), 2, 0, 0);
            }
            return Receiver::event(event);
        }
    };

    Relay widget;
    SendMessageW(handleOf(&widget), 3, 0, 0);
    QCOMPARE(widget.m_received, (QVector<Triple>{{1, 0, 0}, {2, 0, 0}, {3, 0, 0}}));
}

void tst_MessageEvents::messageCenterRefusesNull()
{
    const EventLog log(nullptr);
    QCOMPARE(QKxMessageCenter::sendMessage(nullptr, 0x0407, 1, 2), LRESULT{0});
    QCOMPARE(QKxMessageCenter::postMessage(nullptr, 0x0407, 1, 2), FALSE);
    QCoreApplication::sendPostedEvents();
    QVERIFY(log.messages().isEmpty());
}

void tst_MessageEvents::postedLater()
{
    Receiver widget;
    QCOMPARE(PostMessageW(handleOf(&widget), 0xFFFFFFFF, largestW, smallestL), true);
    QVERIFY(widget.m_received.isEmpty());
    QTRY_COMPARE(widget.m_received.size(), 1);
    QCOMPARE(widget.m_received.first(), (Triple{0xFFFFFFFF, largestW, smallestL}));
}

// After events of a higher priority and before those of a lower one.
void tst_MessageEvents::postedInOrder()
{
    Receiver widget;
    const HWND handle = handleOf(&widget);
    QCoreApplication::postEvent(&widget, new QKxMsgEvent(9, 0, 0), Qt::LowEventPriority);
    PostMessageW(handle, 1, 0, 0);
    QCOMPARE(QKxMessageCenter::postMessage(handle, 2, 0, 0), TRUE);
    QCoreApplication::postEvent(&widget, new QKxMsgEvent(3, 0, 0), Qt::NormalEventPriority);
    PostMessageW(handle, 4, 0, 0);
    QCoreApplication::postEvent(&widget, new QKxMsgEvent(0, 0, 0), Qt::HighEventPriority);
    SendMessageW(handle, 100, 0, 0);

    QTRY_COMPARE(widget.m_received.size(), 7);
    const QVector<UINT> expected{100, 0, 1, 2, 3, 4, 9};
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(widget.m_received.at(i).message, expected.at(i));
}

void tst_MessageEvents::postedIsNeverAnswered_data()
{
    QTest::addColumn<UINT>("message");

    for (UINT message : {BM_SETCHECK, CB_RESETCONTENT, WM_USER + 6, WM_USER + 7})
        QTest::addRow("0x%04X", message) << message;
}

void tst_MessageEvents::postedIsNeverAnswered()
{
    QFETCH(UINT, message);

    QCheckBox button;
    AnsweringWnd window;
    window.SetHandle(handleOf(&button));
    const EventLog log(nullptr);

    QVERIFY(PostMessageW(handleOf(&button), message, 1, 2));
    QTRY_COMPARE(log.messages().size(), 1);
    QCOMPARE(log.messages().first().receiver, static_cast<QObject *>(&button));
    QCOMPARE(log.messages().first().message, message);
    QVERIFY(!button.isChecked());
    QVERIFY(window.m_received.isEmpty());
}

void tst_MessageEvents::postedToNull()
{
    const EventLog log(nullptr);
    for (UINT message : {BM_SETCHECK, WM_USER + 6, WM_USER + 7})
        QCOMPARE(PostMessageW(nullptr, message, 1, 2), false);
    QCoreApplication::sendPostedEvents();
    QVERIFY(log.messages().isEmpty());
}

void tst_MessageEvents::receiverDestroyedBeforeDelivery()
{
    const EventLog log(nullptr);
    {
        Receiver widget;
        QVERIFY(PostMessageW(handleOf(&widget), 0x0407, 1, 2));
    }
    QCoreApplication::sendPostedEvents();
    QVERIFY(log.messages().isEmpty());
}

void tst_MessageEvents::negativeTypeIsRegisteredAgain()
{
    const int former = iKxMsgEventType;
    iKxMsgEventType = -5;
    const QEvent::Type fresh = QKxMsgEvent::eventType();
    QVERIFY(fresh >= QEvent::User);
    QVERIFY(fresh != former);
    QCOMPARE(iKxMsgEventType, int(fresh));
    QCOMPARE(QKxMsgEvent(1, 2, 3).type(), fresh);
}

QTEST_MAIN(tst_MessageEvents)
#include "tst_MessageEvents.moc"
