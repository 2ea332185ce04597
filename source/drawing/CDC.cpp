#include "KxDeviceContext.h"
#include "KxDoubleBuffer.h"
#include "KxWindows.h"

#include <KxPlatformServices.h>

#include <QWidget>

static KxQtPaintDeviceWrapper *deviceOf(HDC handle)
{
    return reinterpret_cast<KxQtPaintDeviceWrapper *>(handle);
}

static HDC handleOf(KxQtPaintDeviceWrapper *device)
{
    return reinterpret_cast<HDC>(device);
}

CDC *_CreateDCforHwnd(HWND hwnd)
{
    CWnd *window = CWnd::FromHandle(hwnd);
    CDC *dc = window ? window->GetDC() : nullptr;
    if (!dc)
        return nullptr;
    // Ported code may still hold the former device.
    dc->m_hDC = handleOf(new KxGrQtDoubleBufferImage(reinterpret_cast<QWidget *>(hwnd)));
    return dc;
}

KxHDCWrapper::KxHDCWrapper(QPaintDevice *device)
    : KxQtPaintDeviceWrapper(device)
{
}

CDC::CDC() = default;

CDC::~CDC()
{
    delete deviceOf(m_hDC);
}

CDC::operator HDC() const
{
    return m_hDC;
}

CBitmap *CDC::SelectObject(CBitmap *bitmap)
{
    if (!bitmap)
        return nullptr;
    if (m_hDC) {
        const auto *selected = dynamic_cast<KxHDCWrapper *>(deviceOf(m_hDC));
        return selected ? selected->m_pBitmap : nullptr;
    }
    if (!bitmap->m_hObject)
        return nullptr;

    auto *device = new KxHDCWrapper(platformServices().gdiObjects().bitmapDevice(bitmap->m_hObject));
    device->m_pBitmap = bitmap;
    m_hDC = handleOf(device);
    return nullptr;
}

static COLORREF colorOf(const CBrush *brush)
{
    if (!brush || !brush->m_hObject)
        return 0;
    return platformServices().gdiObjects().brushColor(brush->m_hObject).value_or(0);
}

void CDC::FillRect(const RECT *rect, CBrush *brush)
{
    if (!m_hDC || !rect)
        return;
    KxQtPainterWrapper *painter = deviceOf(m_hDC)->painter();
    painter->beginDraw();
    painter->fillRect(*rect, colorOf(brush));
    painter->endDraw();
}

CGdiObject *CDC::SelectStockObject(int)
{
    return nullptr;
}

CFont *CDC::SelectObject(CFont *)
{
    return nullptr;
}

int CDC::SaveDC()
{
    return 0;
}

bool CDC::RestoreDC(int)
{
    return true;
}

HDC CDC::GetSafeHdc() const
{
    // Never m_hDC: ported code asks by conversion and takes null here for "no context".
    return nullptr;
}

bool CDC::Attach(HDC)
{
    return false;
}

HDC CDC::Detach()
{
    return nullptr;
}

CPen *CDC::SelectObject(CPen *)
{
    return nullptr;
}

CBrush *CDC::SelectObject(CBrush *)
{
    return nullptr;
}

CGdiObject *CDC::SelectObject(CGdiObject *)
{
    return nullptr;
}

int CDC::SelectObject(CRgn *)
{
    return 0;
}

CPalette *CDC::SelectPalette(CPalette *, bool)
{
    return nullptr;
}

bool CDC::CreateCompatibleDC(CDC *)
{
    return true;
}

bool CDC::DeleteDC()
{
    return true;
}

int CDC::GetDeviceCaps(int) const
{
    return 0;
}

bool CDC::GetTextMetricsW(TEXTMETRICW *) const
{
    return true;
}

CSize CDC::GetTextExtent(const CString &) const
{
    return CSize(0, 0);
}

bool CDC::BitBlt(int, int, int, int, CDC *, int, int, DWORD)
{
    return true;
}

void CDC::FrameRect(const RECT *, CBrush *) {}

void CDC::FillSolidRect(const RECT *, COLORREF) {}

void CDC::FillSolidRect(int, int, int, int, COLORREF) {}
