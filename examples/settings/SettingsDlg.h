#pragma once

#include "KxMFCWrapper.h"
#include "resource.h"

class CSettingsDlg : public CDialog
{
public:
    enum { IDD = IDD_SETTINGS };

    explicit CSettingsDlg(CWnd *pParent = nullptr);

    CString m_strName;
    int m_nPort = 8080;
    double m_dInterval = 1.5; // seconds
    int m_nSpeed = 0;         // index into the list of serial speeds
    CString m_strFormat = L"CSV";
    int m_nUnits = 0; // 0 metric, 1 imperial
    int m_nChannel = 0;
    int m_nVolume = 50; // per cent
    BOOL m_bAutoStart = FALSE;

    BOOL OnInitDialog() override;
    void OnVolumeChanged(int nVolume);

protected:
    void DoDataExchange(CDataExchange *pDX) override;

private:
    bool Validate();
    bool Refuse(CWnd &wndField, UINT nIDReason);

    CWnd m_wndName;
    CWnd m_wndPort;
    CWnd m_wndInterval;
};
