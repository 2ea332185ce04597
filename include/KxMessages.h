/// @file KxMessages.h
/// @brief Message delivery: SendMessageW(), PostMessageW() and the Qt event that carries a message.
///
/// A widget of the application receives messages in its event(), as a QKxMsgEvent. There are no window
/// procedures to subclass and no queue but Qt's, and no event of a widget becomes a message: connect signals
/// instead.
#pragma once

#include "KxWinTypes.h"

#include <QEvent>

/// The event type of QKxMsgEvent; -1 until QKxMsgEvent::eventType() registered one.
extern KX_MFC_EXPORT int iKxMsgEventType;

/// A Win32 message as a Qt event. Application widgets recognise it by eventType() in their event().
class KX_MFC_EXPORT QKxMsgEvent : public QEvent
{
public:
    /// An event of eventType() that carries @p message with its parameters @p wParam and @p lParam.
    QKxMsgEvent(UINT message, WPARAM wParam, LPARAM lParam);
    ~QKxMsgEvent() override;

    /// @return the process-wide event type, registered with Qt on the first call.
    static QEvent::Type eventType();

    UINT message() const { return m_message; } ///< @return the message number.
    WPARAM wParam() const { return m_wParam; } ///< @return the first message parameter.
    LPARAM lParam() const { return m_lParam; } ///< @return the second message parameter.

private:
    UINT m_message;
    WPARAM m_wParam;
    LPARAM m_lParam;
};

/// Delivers messages to widgets as events.
class KX_MFC_EXPORT QKxMessageCenter
{
public:
    /// Sends a QKxMsgEvent with @p message, @p wParam and @p lParam at once to @p hWnd, which is taken as the
    /// widget itself.
    /// @return 0, whatever the receiver did; nothing is sent to a null handle.
    static LRESULT sendMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    /// Queues a QKxMsgEvent with @p message, @p wParam and @p lParam, which Qt owns and deletes, for @p hWnd,
    /// which is taken as the widget itself.
    /// @return TRUE; FALSE when @p hWnd is null.
    static BOOL postMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
};

/// Sends a message.
///
/// @p hWnd is taken as the widget itself. BM_GETCHECK gives whether a QAbstractButton is checked and
/// BM_SETCHECK checks it when @p wParam is not 0; BM_SETIMAGE makes its icon from the image handle @p lParam;
/// CB_ADDSTRING adds the wide text at @p lParam to a QComboBox, CB_GETCOUNT, CB_GETCURSEL, CB_RESETCONTENT
/// and CB_SETCURSEL do as they are called. The widget emits its usual signals. These do nothing, and send
/// nothing, to a widget of another kind. WM_USER + 6, 8, 12, 13, 16, 17 and 21 go to the WindowProc() of the
/// object registered for the handle, or nowhere. Every other message is delivered by
/// QKxMessageCenter::sendMessage().
/// @return what BM_GETCHECK, CB_GETCOUNT and CB_GETCURSEL ask for; 0 for every other message, also where
/// Win32 gives an index or a former value, for a null handle, and for a widget of another kind.
KX_MFC_EXPORT LRESULT SendMessageW(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

/// Queues @p message, also one that SendMessageW() answers itself, with @p wParam and @p lParam for the
/// widget @p hWnd through QKxMessageCenter::postMessage().
/// @return TRUE; FALSE when @p hWnd is null.
KX_MFC_EXPORT bool PostMessageW(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
