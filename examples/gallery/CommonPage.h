#pragma once

#include "GalleryPage.h"

/// The smaller common controls: CTabCtrl on a QTabWidget, CSliderCtrl on a QSlider, CScrollBar on a
/// QScrollBar, and the classes that only give fixed results.
class CCommonPage : public CGalleryPage
{
public:
    enum { IDD = IDD_COMMON_PAGE };

    explicit CCommonPage(CWnd *pParent = nullptr);

    BOOL OnInitDialog() override;
    void OnTabs();
    void OnSlider();
    void OnScrollBar();
    void OnFixedResults();

protected:
    void DoDataExchange(CDataExchange *pDX) override;

private:
    CTabCtrl m_tabs;
    CSliderCtrl m_slider;
    CScrollBar m_scrollBar;
    CSpinButtonCtrl m_spin;
};
