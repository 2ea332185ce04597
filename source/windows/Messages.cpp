#include "KxGuard.h"
#include "KxMessages.h"
#include "KxPlatformServices.h"
#include "foundation/QtConversions.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QIcon>
#include <QImage>
#include <QPixmap>

QKxMsgEvent::QKxMsgEvent(UINT message, WPARAM wParam, LPARAM lParam)
    : QEvent(eventType())
    , m_message(message)
    , m_wParam(wParam)
    , m_lParam(lParam)
{
}

QKxMsgEvent::~QKxMsgEvent() = default;

QEvent::Type QKxMsgEvent::eventType()
{
    if (iKxMsgEventType < 0)
        iKxMsgEventType = QEvent::registerEventType();
    return static_cast<QEvent::Type>(iKxMsgEventType);
}

LRESULT QKxMessageCenter::sendMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!hWnd)
        return 0;
    QKxMsgEvent event(message, wParam, lParam);
    QCoreApplication::sendEvent(asWidget(hWnd), &event);
    return 0;
}

BOOL QKxMessageCenter::postMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!hWnd)
        return FALSE;
    QCoreApplication::postEvent(asWidget(hWnd), new QKxMsgEvent(message, wParam, lParam));
    return TRUE;
}

static void setImage(QAbstractButton *button, LPARAM handle)
{
    const QImage image = platformServices().image().image(reinterpret_cast<HANDLE>(handle));
    if (!image.isNull())
        button->setIcon(QIcon(QPixmap::fromImage(image)));
}

static LRESULT sendToButton(QAbstractButton *button, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!button)
        return 0;
    if (message == BM_GETCHECK)
        return button->isChecked();
    if (message == BM_SETCHECK)
        button->setChecked(wParam != 0);
    else
        setImage(button, lParam);
    return 0;
}

static LRESULT addString(QComboBox *combo, const wchar_t *text)
{
    if (text)
        combo->addItem(toQString(text), QVariant());
    return 0;
}

static LRESULT sendToComboBox(QComboBox *combo, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!combo)
        return 0;
    switch (message) {
    case CB_ADDSTRING:
        return addString(combo, reinterpret_cast<const wchar_t *>(lParam));
    case CB_GETCOUNT:
        return combo->count();
    case CB_GETCURSEL:
        return combo->currentIndex();
    case CB_RESETCONTENT:
        combo->clear();
        return 0;
    default:
        combo->setCurrentIndex(static_cast<int>(wParam));
        return 0;
    }
}

static LRESULT sendToObject(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (CWnd *window = CWnd::FromHandle(hWnd))
        window->WindowProc(message, wParam, lParam);
    return 0;
}

LRESULT SendMessageW(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case BM_GETCHECK:
    case BM_SETCHECK:
    case BM_SETIMAGE:
        return sendToButton(qobject_cast<QAbstractButton *>(asWidget(hWnd)), message, wParam, lParam);
    case CB_ADDSTRING:
    case CB_GETCOUNT:
    case CB_GETCURSEL:
    case CB_RESETCONTENT:
    case CB_SETCURSEL:
        return sendToComboBox(qobject_cast<QComboBox *>(asWidget(hWnd)), message, wParam, lParam);
    case WM_USER + 6:
    case WM_USER + 8:
    case WM_USER + 12:
    case WM_USER + 13:
    case WM_USER + 16:
    case WM_USER + 17:
    case WM_USER + 21:
        return sendToObject(hWnd, message, wParam, lParam);
    default:
        return QKxMessageCenter::sendMessage(hWnd, message, wParam, lParam);
    }
}

bool PostMessageW(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return QKxMessageCenter::postMessage(hWnd, message, wParam, lParam) != FALSE;
}

LRESULT CWnd::SendMessageW(UINT message, WPARAM wParam, LPARAM lParam)
{
    return isNullObject(this) ? 0 : WindowProc(message, wParam, lParam);
}
