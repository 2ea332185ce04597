#include "KxCommonControls.h"
#include "windows/KxGuard.h"

#include <QSlider>

static void setBoundRange(const CWnd *window, int min, int max)
{
    if (auto *slider = boundWidget<QAbstractSlider>(window))
        slider->setRange(min, max);
}

CSliderCtrl::CSliderCtrl() = default;

CSliderCtrl::~CSliderCtrl() = default;

int CSliderCtrl::GetPos() const
{
    const auto *slider = boundWidget<QAbstractSlider>(this);
    return slider ? slider->sliderPosition() : 0;
}

void CSliderCtrl::SetPos(int nPos)
{
    if (auto *slider = boundWidget<QAbstractSlider>(this))
        slider->setSliderPosition(nPos);
}

void CSliderCtrl::SetRange(int nMin, int nMax, bool)
{
    setBoundRange(this, nMin, nMax);
}

int CSliderCtrl::SetPageSize(int nSize)
{
    auto *slider = boundWidget<QAbstractSlider>(this);
    if (!slider)
        return 0;
    const int previous = slider->pageStep();
    slider->setPageStep(nSize);
    return previous;
}

void CSliderCtrl::SetTicFreq(int nFreq)
{
    if (auto *slider = boundWidget<QSlider>(this))
        slider->setSingleStep(nFreq);
}

int CSliderCtrl::GetPageSize() const
{
    return 0;
}

int CSliderCtrl::GetLineSize() const
{
    return 0;
}

int CSliderCtrl::SetLineSize(int)
{
    return 0;
}

int CSliderCtrl::GetRangeMin() const
{
    return 0;
}

int CSliderCtrl::GetRangeMax() const
{
    return 0;
}

void CSliderCtrl::GetRange(int &, int &) const {}

void CSliderCtrl::SetRangeMin(int, bool) {}

void CSliderCtrl::SetRangeMax(int, bool) {}

void CSliderCtrl::GetSelection(int &, int &) const {}

void CSliderCtrl::SetSelection(int, int) {}

UINT CSliderCtrl::GetNumTics() const
{
    return 0;
}

DWORD *CSliderCtrl::GetTicArray() const
{
    return nullptr;
}

int CSliderCtrl::GetTic(int) const
{
    return 0;
}

int CSliderCtrl::GetTicPos(int) const
{
    return 0;
}

BOOL CSliderCtrl::SetTic(int)
{
    return FALSE;
}

void CSliderCtrl::GetChannelRect(RECT *) const {}

void CSliderCtrl::GetThumbRect(RECT *) const {}

CScrollBar::CScrollBar() = default;

CScrollBar::~CScrollBar() = default;

int CScrollBar::SetScrollPos(int nPos, bool)
{
    auto *slider = boundWidget<QAbstractSlider>(this);
    if (!slider)
        return 0;
    const int previous = slider->value();
    slider->setValue(nPos);
    return previous;
}

void CScrollBar::SetScrollRange(int nMinPos, int nMaxPos, bool)
{
    setBoundRange(this, nMinPos, nMaxPos);
}

int CScrollBar::GetScrollPos() const
{
    return 0;
}

void CScrollBar::GetScrollRange(int *, int *) const {}
