#include "CommonPage.h"

CCommonPage::CCommonPage(CWnd *pParent)
    : CGalleryPage(CCommonPage::IDD, pParent)
{
}

void CCommonPage::DoDataExchange(CDataExchange *pDX)
{
    CGalleryPage::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_TABS, m_tabs);
    DDX_Control(pDX, IDC_SLIDER, m_slider);
    DDX_Control(pDX, IDC_SCROLLBAR, m_scrollBar);
    DDX_Control(pDX, IDC_SPIN, m_spin);
}

BOOL CCommonPage::OnInitDialog()
{
    CGalleryPage::OnInitDialog();
    SHOW(m_tabs.GetItemCount());
    SHOW(m_tabs.GetCurSel());
    SHOW(m_slider.SetRange(0, 50));
    SHOW(m_slider.SetTicFreq(5));
    SHOW(m_slider.SetPos(10));
    SHOW(m_scrollBar.SetScrollRange(0, 200));
    SHOW_NOTE(m_scrollBar.SetScrollPos(60), L"the former position");
    return TRUE;
}

void CCommonPage::OnTabs()
{
    SHOW_NOTE(m_tabs.SetCurSel(2), L"the former index; with a signal");
    SHOW_NOTE(m_tabs.SetActiveTab(1), L"the former index; no signal");
    SHOW(m_tabs.GetActiveTab());
    SHOW_NOTE(m_tabs.SetCurSel(9), L"changes nothing");
    SHOW_NOTE(m_tabs.InsertItem(0, L"Autumn"), L"nothing: a tab needs a page");
    SHOW(m_tabs.GetItemCount());
    SHOW_NOTE(m_tabs.DeleteItem(9), L"FALSE");
}

void CCommonPage::OnSlider()
{
    SHOW_NOTE(m_slider.SetPos(70), L"bounded to the range");
    SHOW(m_slider.GetPos());
    SHOW_NOTE(m_slider.SetPageSize(5), L"the former page step");
    SHOW_NOTE(m_slider.GetPageSize(), L"0, also after SetPageSize");
    SHOW_NOTE(m_slider.GetRangeMax(), L"no range is reported");
}

void CCommonPage::OnScrollBar()
{
    SHOW_NOTE(m_scrollBar.SetScrollPos(150), L"the former position");
    SHOW_NOTE(m_scrollBar.GetScrollPos(), L"0, wherever the bar stands");
    SHOW_NOTE(m_scrollBar.SetScrollRange(0, 100), L"bounds the position");
}

void CCommonPage::OnFixedResults()
{
    SHOW_NOTE(m_spin.SetPos(7), L"use CEdit for a spin box");
    SHOW(m_spin.GetPos());
    SHOW(m_spin.GetBuddy());

    CToolTipCtrl toolTip;
    SHOW(toolTip.Create(this));
    SHOW_NOTE(toolTip.AddTool(&m_spin, IDC_SPIN), L"TRUE, but nothing is shown");
    SHOW_NOTE(toolTip.AddTool(&m_spin, L"Eggs"), L"FALSE, unlike the form above");

    CImageList images;
    SHOW(images.Create(16, 16, 0, 4, 4));
    SHOW_NOTE(images.Add(HICON()), L"the list holds no images");
    SHOW_NOTE(images.DeleteImageList(), L"FALSE");
}
