/// @file KxMessages.h
/// @brief Message delivery: SendMessageW(), PostMessageW() and the Qt event that carries a message.
#pragma once

#include "KxWinTypes.h"

#include <QEvent>

/// The event type of QKxMsgEvent; -1 until QKxMsgEvent::eventType() registered one.
extern KX_MFC_EXPORT int iKxMsgEventType;

/// A Win32 message as a Qt event. Application widgets recognise it by eventType() in their event().
class KX_MFC_EXPORT QKxMsgEvent : public QEvent
{
public:
    /// An event of eventType() with a message number and its two parameters.
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
    /// Sends a QKxMsgEvent to the widget at once.
    /// @param hWnd taken as the receiver itself.
    /// @return 0, whatever the receiver did; nothing is sent to a null handle.
    static LRESULT sendMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
    /// Queues a QKxMsgEvent, which Qt owns and deletes, for the widget.
    /// @param hWnd taken as the receiver itself.
    /// @return TRUE; FALSE when @p hWnd is null.
    static BOOL postMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
};

/// Sends a message.
///
/// The handle is taken as the widget itself. BM_GETCHECK gives whether a QAbstractButton is checked and
/// BM_SETCHECK checks it when @p wParam is not 0; BM_SETIMAGE makes its icon from the image handle @p lParam;
/// CB_ADDSTRING adds the wide text at @p lParam to a QComboBox, CB_GETCOUNT, CB_GETCURSEL, CB_RESETCONTENT
/// and CB_SETCURSEL do as they are called. The widget emits its usual signals. These do nothing, and send
/// nothing, to a widget of another kind. WM_USER + 6, 8, 12, 13, 16, 17 and 21 go to the WindowProc() of the
/// object registered for the handle, or nowhere. Every other message is delivered by
/// QKxMessageCenter::sendMessage().
/// @return what BM_GETCHECK, CB_GETCOUNT and CB_GETCURSEL ask for; 0 for every other message, also where
/// Win32 gives an index or a former value, for a null handle, and for a widget of another kind.
KX_MFC_EXPORT LRESULT SendMessageW(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

/// Queues any message for the widget through QKxMessageCenter::postMessage().
/// @return TRUE; FALSE when @p hWnd is null.
KX_MFC_EXPORT bool PostMessageW(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);
