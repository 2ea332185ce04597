#pragma once

#include "StockData.h"

#include <QProgressBar>

/// @name Messages of a progress bar
/// @{
const UINT PBM_SETRANGE = WM_USER + 1;
const UINT PBM_SETPOS = WM_USER + 2;
/// @}

/// A progress bar that understands the messages of the one that ported code knows.
class ProgressBar : public QProgressBar
{
    Q_OBJECT
public:
    explicit ProgressBar(QWidget *parent = nullptr);

    bool event(QEvent *event) override;

private:
    void handleMessage(UINT message, WPARAM wParam, LPARAM lParam);
};

/// The control of a ProgressBar.
class CProgressCtrl : public CWnd, public CProgress
{
public:
    void SetRange(short nLower, short nUpper);
    void SetPos(int nPos);
    void OnProgress(int nDone, int nTotal) override;
};
