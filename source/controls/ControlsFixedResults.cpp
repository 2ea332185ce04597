#include "KxCommonControls.h"

CSpinButtonCtrl::CSpinButtonCtrl() = default;

CSpinButtonCtrl::~CSpinButtonCtrl() = default;

CWnd *CSpinButtonCtrl::SetBuddy(CWnd *)
{
    return nullptr;
}

CWnd *CSpinButtonCtrl::GetBuddy() const
{
    return nullptr;
}

int CSpinButtonCtrl::SetPos(int)
{
    return 0;
}

int CSpinButtonCtrl::GetPos() const
{
    return 0;
}

void CSpinButtonCtrl::SetRange(short, short) {}

void CSpinButtonCtrl::SetRange32(int, int) {}

CToolTipCtrl::CToolTipCtrl() = default;

CToolTipCtrl::~CToolTipCtrl() = default;

BOOL CToolTipCtrl::Create(CWnd *, unsigned)
{
    return TRUE;
}

BOOL CToolTipCtrl::AddTool(CWnd *, unsigned, const RECT *, unsigned long)
{
    return TRUE;
}

BOOL CToolTipCtrl::AddTool(CWnd *, const wchar_t *, const RECT *, unsigned long)
{
    return FALSE;
}

void CToolTipCtrl::Activate(bool) {}

void CToolTipCtrl::RelayEvent(MSG *) {}

BOOL CImageList::Create(int, int, unsigned, int, int)
{
    return TRUE;
}

int CImageList::Add(CBitmap *, unsigned)
{
    return 0;
}

int CImageList::Add(HICON)
{
    return 0;
}

COLORREF CImageList::SetBkColor(unsigned)
{
    return 0;
}

HICON CImageList::ExtractIconW(int)
{
    return nullptr;
}

BOOL CImageList::DeleteImageList()
{
    return FALSE;
}
