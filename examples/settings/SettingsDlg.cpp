#include "SettingsDlg.h"

static const wchar_t *const SPEEDS[] = {L"9600", L"19200", L"38400", L"57600", L"115200"};

CSettingsDlg::CSettingsDlg(CWnd *pParent)
    : CDialog(CSettingsDlg::IDD, pParent)
{
    m_strName.LoadStringW(IDS_DEFAULT_NAME);
}

void CSettingsDlg::DoDataExchange(CDataExchange *pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_NAME, m_wndName);
    DDX_Control(pDX, IDC_PORT, m_wndPort);
    DDX_Control(pDX, IDC_INTERVAL, m_wndInterval);
    DDX_Text(pDX, IDC_NAME, m_strName);
    DDX_Text(pDX, IDC_PORT, m_nPort);
    DDX_Text(pDX, IDC_INTERVAL, m_dInterval);
    DDX_CBIndex(pDX, IDC_SPEED, m_nSpeed);
    DDX_CBString(pDX, IDC_FORMAT, m_strFormat);
    DDX_Radio(pDX, IDC_UNITS_METRIC, m_nUnits);
    DDX_LBIndex(pDX, IDC_CHANNEL, m_nChannel);
    DDX_Slider(pDX, IDC_VOLUME, m_nVolume);
    DDX_Check(pDX, IDC_AUTOSTART, m_bAutoStart);

    // The DDV_ functions check nothing on this platform.
    if (pDX->m_bSaveAndValidate && !Validate())
        pDX->Fail();
}

BOOL CSettingsDlg::OnInitDialog()
{
    // Filled before the exchange: an index that the combo box does not have would be replaced by 0.
    HWND hSpeed = ::GetDlgItem(m_hWnd, IDC_SPEED);
    ::SendMessageW(hSpeed, CB_RESETCONTENT, 0, 0);
    for (const wchar_t *lpszSpeed : SPEEDS)
        ::SendMessageW(hSpeed, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszSpeed));

    CDialog::OnInitDialog();
    OnVolumeChanged(m_nVolume); // the slider exchange emits no signal
    m_wndName.SetFocus();
    return FALSE;
}

void CSettingsDlg::OnVolumeChanged(int nVolume)
{
    CString strText;
    strText.Format(L"%d %%", nVolume);
    SetDlgItemTextW(IDC_VOLUME_TEXT, strText);
}

bool CSettingsDlg::Validate()
{
    if (m_strName.IsEmpty())
        return Refuse(m_wndName, IDS_NO_NAME);
    // An empty field leaves its number as it was, so the text is looked at as well.
    if (m_wndPort.GetWindowTextLengthW() == 0 || m_nPort < 1 || m_nPort > 65535)
        return Refuse(m_wndPort, IDS_BAD_PORT);
    if (m_wndInterval.GetWindowTextLengthW() == 0 || m_dInterval < 0.1 || m_dInterval > 3600.0)
        return Refuse(m_wndInterval, IDS_BAD_INTERVAL);
    return true;
}

bool CSettingsDlg::Refuse(CWnd &wndField, UINT nIDReason)
{
    // AfxMessageBox(nIDReason, MB_ICONWARNING) shows no icon on this platform.
    CString strReason;
    strReason.LoadStringW(nIDReason);
    AfxMessageBox(strReason, MB_ICONWARNING);
    wndField.SetFocus();
    return false;
}
