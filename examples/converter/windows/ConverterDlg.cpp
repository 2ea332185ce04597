#include "StdAfx.h"
#include "ConverterDlg.h"
#include "Converter.h"

#ifdef _DEBUG
#define new DEBUG_NEW
#endif

struct UNIT
{
    UINT nNameID;
    int nQuantity;
    double dFactor; // one of it, in the first unit of its quantity
    double dOffset; // its zero, in the first unit of its quantity
};

static const UNIT UNITS[] = {
    {IDS_METRE, 0, 1.0, 0.0},
    {IDS_KILOMETRE, 0, 1000.0, 0.0},
    {IDS_INCH, 0, 0.0254, 0.0},
    {IDS_FOOT, 0, 0.3048, 0.0},
    {IDS_MILE, 0, 1609.344, 0.0},
    {IDS_GRAM, 1, 1.0, 0.0},
    {IDS_KILOGRAM, 1, 1000.0, 0.0},
    {IDS_OUNCE, 1, 28.349523125, 0.0},
    {IDS_POUND, 1, 453.59237, 0.0},
    {IDS_CELSIUS, 2, 1.0, 0.0},
    {IDS_FAHRENHEIT, 2, 5.0 / 9.0, -160.0 / 9.0},
    {IDS_KELVIN, 2, 1.0, -273.15},
};

static const UINT QUANTITIES[] = {IDS_LENGTH, IDS_MASS, IDS_TEMPERATURE};

static const UNIT &SelectedUnit(const CComboBox &wndCombo)
{
    return UNITS[wndCombo.GetItemData(wndCombo.GetCurSel())];
}

CConverterDlg::CConverterDlg(CWnd *pParent)
    : CDialog(CConverterDlg::IDD, pParent)
    , m_strAmount(_T("1"))
    , m_nDecimals(2)
{
    m_hIcon = AfxGetApp()->LoadIcon(IDR_MAINFRAME);
}

void CConverterDlg::DoDataExchange(CDataExchange *pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_QUANTITY, m_wndQuantity);
    DDX_Control(pDX, IDC_FROM, m_wndFrom);
    DDX_Control(pDX, IDC_TO, m_wndTo);
    DDX_Control(pDX, IDC_SPIN, m_wndSpin);
    DDX_Control(pDX, IDC_HISTORY, m_wndHistory);
    DDX_Text(pDX, IDC_AMOUNT, m_strAmount);
    DDX_Text(pDX, IDC_DECIMALS, m_nDecimals);
    DDV_MinMaxInt(pDX, m_nDecimals, 0, 9);
}

BEGIN_MESSAGE_MAP(CConverterDlg, CDialog)
    ON_BN_CLICKED(IDC_CONVERT, &CConverterDlg::OnBnClickedConvert)
    ON_BN_CLICKED(IDC_SWAP, &CConverterDlg::OnBnClickedSwap)
    ON_BN_CLICKED(IDC_CLEAR, &CConverterDlg::OnBnClickedClear)
    ON_CBN_SELCHANGE(IDC_QUANTITY, &CConverterDlg::OnCbnSelchangeQuantity)
    ON_EN_CHANGE(IDC_AMOUNT, &CConverterDlg::OnEnChangeAmount)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

BOOL CConverterDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    SetIcon(m_hIcon, TRUE);
    SetIcon(m_hIcon, FALSE);
    m_wndSpin.SetRange(0, 9);

    for (UINT nID : QUANTITIES) {
        CString strName;
        strName.LoadString(nID);
        m_wndQuantity.AddString(strName);
    }
    Restore(m_wndQuantity, _T("Quantity"));
    FillUnits();
    Restore(m_wndFrom, _T("From"));
    Restore(m_wndTo, _T("To"));
    return TRUE;
}

void CConverterDlg::OnDestroy()
{
    theApp.WriteProfileInt(_T("Converter"), _T("Quantity"), m_wndQuantity.GetCurSel());
    theApp.WriteProfileInt(_T("Converter"), _T("From"), m_wndFrom.GetCurSel());
    theApp.WriteProfileInt(_T("Converter"), _T("To"), m_wndTo.GetCurSel());
    CDialog::OnDestroy();
}

void CConverterDlg::OnBnClickedConvert()
{
    if (!UpdateData(TRUE))
        return;

    LPCTSTR lpszAmount = m_strAmount;
    LPTSTR lpszEnd;
    double dAmount = _tcstod(lpszAmount, &lpszEnd);
    if (*lpszEnd != 0) {
        AfxMessageBox(IDS_BAD_AMOUNT);
        GetDlgItem(IDC_AMOUNT)->SetFocus();
        return;
    }

    const UNIT &from = SelectedUnit(m_wndFrom);
    const UNIT &to = SelectedUnit(m_wndTo);
    double dResult = (dAmount * from.dFactor + from.dOffset - to.dOffset) / to.dFactor;

    CString strFrom, strTo, strResult;
    strFrom.LoadString(from.nNameID);
    strTo.LoadString(to.nNameID);
    strResult.Format(_T("%s %s = %.*f %s"), lpszAmount, strFrom, m_nDecimals, dResult, strTo);
    SetDlgItemText(IDC_RESULT, strResult);
    m_wndHistory.InsertString(0, strResult);
}

void CConverterDlg::OnBnClickedSwap()
{
    int nFrom = m_wndFrom.GetCurSel();
    m_wndFrom.SetCurSel(m_wndTo.GetCurSel());
    m_wndTo.SetCurSel(nFrom);
}

void CConverterDlg::OnBnClickedClear()
{
    if (AfxMessageBox(IDS_ASK_CLEAR, MB_YESNO | MB_ICONQUESTION) == IDYES)
        m_wndHistory.ResetContent();
}

void CConverterDlg::OnCbnSelchangeQuantity()
{
    FillUnits();
}

void CConverterDlg::OnEnChangeAmount()
{
    BOOL bFilled = GetDlgItem(IDC_AMOUNT)->GetWindowTextLength() > 0;
    GetDlgItem(IDC_CONVERT)->EnableWindow(bFilled);
}

void CConverterDlg::FillUnits()
{
    m_wndFrom.ResetContent();
    m_wndTo.ResetContent();
    for (size_t nUnit = 0; nUnit < _countof(UNITS); nUnit++) {
        if (UNITS[nUnit].nQuantity != m_wndQuantity.GetCurSel())
            continue;
        CString strName;
        strName.LoadString(UNITS[nUnit].nNameID);
        m_wndFrom.SetItemData(m_wndFrom.AddString(strName), nUnit);
        m_wndTo.SetItemData(m_wndTo.AddString(strName), nUnit);
    }
    m_wndFrom.SetCurSel(0);
    m_wndTo.SetCurSel(1);
}

void CConverterDlg::Restore(CComboBox &wndCombo, LPCTSTR lpszEntry)
{
    int nStored = theApp.GetProfileInt(_T("Converter"), lpszEntry, wndCombo.GetCurSel());
    if (wndCombo.SetCurSel(nStored) == CB_ERR)
        wndCombo.SetCurSel(0);
}
