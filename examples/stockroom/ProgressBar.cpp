#include "ProgressBar.h"

ProgressBar::ProgressBar(QWidget *parent)
    : QProgressBar(parent)
{
}

bool ProgressBar::event(QEvent *event)
{
    if (event->type() != QKxMsgEvent::eventType())
        return QProgressBar::event(event);
    const auto *message = static_cast<const QKxMsgEvent *>(event);
    handleMessage(message->message(), message->wParam(), message->lParam());
    return true;
}

void ProgressBar::handleMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == PBM_SETRANGE)
        setRange(LOWORD(DWORD_PTR(lParam)), HIWORD(DWORD_PTR(lParam)));
    else if (message == PBM_SETPOS)
        setValue(int(wParam)); // repaints at once, though the program is busy
}

void CProgressCtrl::SetRange(short nLower, short nUpper)
{
    ::SendMessage(m_hWnd, PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper));
}

void CProgressCtrl::SetPos(int nPos)
{
    ::SendMessage(m_hWnd, PBM_SETPOS, WPARAM(nPos), 0);
}

void CProgressCtrl::OnProgress(int nDone, int nTotal)
{
    SetPos(nTotal > 0 ? int(100LL * nDone / nTotal) : 100);
}
