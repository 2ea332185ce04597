#include "ItemDlg.h"

#include "Texts.h"

#include <cfloat>

// A field with a number, and what it may be.
struct CNumberField
{
    int nID;
    BOOL bWhole;
    double dLeast;
    double dMost;
    UINT nIDReason;
};

static const double MOST_WEIGHT = 100000;
static const double MOST_PRICE = 1000000;

static const CNumberField NUMBER_FIELDS[] = {
    {IDC_BATCH, TRUE, 0, 999999999, IDS_ITEM_BAD_BATCH},
    {IDC_SERIAL, TRUE, 0, 4294967295, IDS_ITEM_BAD_SERIAL},
    {IDC_SHELF, TRUE, 1, 99, IDS_ITEM_BAD_SHELF},
    {IDC_TEMPERATURE, TRUE, -60, 200, IDS_ITEM_BAD_TEMPERATURE},
    {IDC_QUANTITY, TRUE, 0, 1000000, IDS_ITEM_BAD_QUANTITY},
    {IDC_REORDER, TRUE, 0, 1000000, IDS_ITEM_BAD_REORDER},
    {IDC_WEIGHT, FALSE, 0, MOST_WEIGHT, IDS_ITEM_BAD_WEIGHT},
    {IDC_PRICE, FALSE, 0, MOST_PRICE, IDS_ITEM_BAD_PRICE},
};

// As DDX_Text() reads it, but with nothing left behind the number.
static BOOL IsAllowed(const CNumberField &field, CString strText)
{
    LPTSTR pszEnd = nullptr;
    strText.TrimRight();
    const double dValue = field.bWhole ? double(_tcstol(strText, &pszEnd, 10)) : _tcstod(strText, &pszEnd);
    return !strText.IsEmpty() && *pszEnd == 0 && dValue >= field.dLeast && dValue <= field.dMost;
}

static BOOL IsBlank(CString strText)
{
    return strText.TrimLeft().IsEmpty();
}

CItemDlg::CItemDlg(const CStock &stock, const CStockItem *pItem, CWnd *pParent)
    : CDialog(CItemDlg::IDD, pParent)
    , m_stock(stock)
    , m_pEdited(pItem)
{
    if (pItem) {
        m_item = *pItem;
        return;
    }
    m_item.m_strUnit = LoadText(IDS_UNIT_FIRST);
    m_item.m_strPacking = LoadText(IDS_PACKING_FIRST);
}

BOOL CItemDlg::OnInitDialog()
{
    // Filled before the exchange: an index that a list does not have would be replaced by 0.
    FillLists();
    FillUnits();

    CDialog::OnInitDialog();
    SetWindowText(LoadText(m_pEdited ? IDS_ITEM_EDIT : IDS_ITEM_NEW));
    ShowWeight();
    ShowPrice();
    OnLevelChanged(m_level.GetPos()); // the slider exchange emits no signal
    GetDlgItem(IDC_NUMBER)->SetFocus();
    return FALSE;
}

void CItemDlg::DoDataExchange(CDataExchange *pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_LEVEL, m_level);
    DDX_Control(pDX, IDC_NOTE, m_note);
    DDX_Text(pDX, IDC_NUMBER, m_item.m_strNumber);
    DDX_Text(pDX, IDC_NAME, m_item.m_strName);
    DDX_Text(pDX, IDC_NOTE, m_item.m_szNote, _countof(m_item.m_szNote));
    DDX_Text(pDX, IDC_BATCH, m_item.m_lBatch);
    DDX_Text(pDX, IDC_SERIAL, m_item.m_ulSerial);
    DDX_CBIndex(pDX, IDC_ROOM, m_item.m_nRoom);
    DDX_Text(pDX, IDC_SHELF, m_item.m_nShelf);
    DDX_Text(pDX, IDC_TEMPERATURE, m_item.m_nTemperature);
    DDX_Text(pDX, IDC_QUANTITY, m_item.m_nQuantity);
    DDX_Text(pDX, IDC_REORDER, m_item.m_nReorder);
    DDX_CBString(pDX, IDC_PACKING, m_item.m_strPacking);
    DDX_Text(pDX, IDC_WEIGHT, m_item.m_fWeight);
    DDX_Text(pDX, IDC_PRICE, m_item.m_dPrice);
    DDX_Slider(pDX, IDC_LEVEL, m_item.m_nLevel);
    DDX_Radio(pDX, IDC_STATE_NEW, m_item.m_nState);
    DDX_Check(pDX, IDC_FRAGILE, m_item.m_bFragile);
    DDX_Check(pDX, IDC_HAZARDOUS, m_item.m_bHazardous);
    DDX_LBIndex(pDX, IDC_CATEGORY, m_item.m_nCategory);
    ExchangeUnit(pDX);

    // These check nothing on this platform.
    DDV_MaxChars(pDX, m_item.m_strNumber, NUMBER_LENGTH);
    DDV_MinMaxDouble(pDX, m_item.m_fWeight, 0, MOST_WEIGHT);
    DDV_MinMaxDouble(pDX, m_item.m_dPrice, 0, MOST_PRICE);
    if (pDX->m_bSaveAndValidate && !Validate())
        pDX->Fail();
}

void CItemDlg::FillLists()
{
    m_room.SubclassDlgItem(IDC_ROOM, this);
    for (int i = 0; i < m_stock.GetRoomCount(); ++i)
        m_room.AddString(m_stock.GetRoom(i).m_strName);

    m_category.SubclassDlgItem(IDC_CATEGORY, this);
    const CStringArray &categories = CStock::GetCategories();
    for (int i = 0; i < categories.GetSize(); ++i)
        m_category.AddString(categories[i]);

    m_packing.SubclassDlgItem(IDC_PACKING, this);
    for (UINT nID = IDS_PACKING_FIRST; nID <= IDS_PACKING_LAST; ++nID)
        m_packing.AddString(LoadText(nID));
}

// An imported item may have a unit of its own.
void CItemDlg::FillUnits()
{
    m_unit.SubclassDlgItem(IDC_UNIT, this);
    for (UINT nID = IDS_UNIT_FIRST; nID <= IDS_UNIT_LAST; ++nID) {
        const int nIndex = m_unit.AddString(LoadText(nID));
        if (m_item.m_strUnit == LoadText(nID))
            m_unit.SetCurSel(nIndex);
    }
    if (m_unit.GetCurSel() < 0 && !m_item.m_strUnit.IsEmpty())
        m_unit.SetCurSel(m_unit.InsertString(m_unit.GetCount(), m_item.m_strUnit));
}

void CItemDlg::ExchangeUnit(CDataExchange *pDX)
{
    // It exchanges nothing on this platform.
    DDX_LBString(pDX, IDC_UNIT, m_item.m_strUnit);
    const int nUnit = m_unit.GetCurSel();
    if (pDX->m_bSaveAndValidate && m_unit.GetSel(nUnit) > 0)
        m_unit.GetText(nUnit, m_item.m_strUnit);
}

// DDX_Text() shows six decimals: here are as few digits as give the same weight when they are read.
void CItemDlg::ShowWeight()
{
    CString strText;
    int nDigits = FLT_DIG;
    do
        strText.Format(_T("%.*g"), nDigits, double(m_item.m_fWeight));
    while (float(_tcstod(strText, nullptr)) != m_item.m_fWeight && nDigits++ < FLT_DECIMAL_DIG);
    SetDlgItemText(IDC_WEIGHT, strText);
}

// Two decimals, or more where they are not 0.
void CItemDlg::ShowPrice()
{
    CString strText;
    GetDlgItemText(IDC_PRICE, strText);
    int nLength = strText.GetLength();
    const int nLeast = nLength - 4;
    while (nLength > nLeast && strText[nLength - 1] == _T('0'))
        --nLength;
    SetDlgItemText(IDC_PRICE, strText.Left(nLength));
}

void CItemDlg::OnLevelChanged(int nLevel)
{
    SetDlgItemText(IDC_LEVEL_TEXT, FormatText(IDS_ITEM_PERCENT, nLevel));
}

BOOL CItemDlg::Validate()
{
    if (IsBlank(m_item.m_strNumber))
        return Refuse(IDC_NUMBER, IDS_ITEM_NO_NUMBER);
    if (m_item.m_strNumber.GetLength() > NUMBER_LENGTH)
        return Refuse(IDC_NUMBER, IDS_ITEM_LONG_NUMBER);
    const CStockItem *pSame = m_stock.FindNumber(m_item.m_strNumber);
    if (pSame && pSame != m_pEdited)
        return Refuse(IDC_NUMBER, IDS_ITEM_NUMBER_TAKEN);
    if (IsBlank(m_item.m_strName))
        return Refuse(IDC_NAME, IDS_ITEM_NO_NAME);
    if (m_note.GetWindowTextLength() > NOTE_LENGTH)
        return Refuse(IDC_NOTE, IDS_ITEM_LONG_NOTE);

    for (const CNumberField &field : NUMBER_FIELDS) {
        CString strText;
        GetDlgItemText(field.nID, strText);
        if (!IsAllowed(field, strText))
            return Refuse(field.nID, field.nIDReason);
    }
    return TRUE;
}

BOOL CItemDlg::Refuse(int nIDField, UINT nIDReason)
{
    MessageBox(LoadText(nIDReason), LoadText(IDS_APP_TITLE), MB_ICONWARNING);
    GetDlgItem(nIDField)->SetFocus();
    return FALSE;
}
