#include "KxDeviceContext.h"
#include "windows/KxGuard.h"

#include <KxPlatform.h>
#include <KxPlatformServices.h>

#include <cstdint>
#include <utility>

bool CGdiObject::Attach(void *handle)
{
    m_hObject = handle;
    return true;
}

void *CGdiObject::Detach()
{
    return std::exchange(m_hObject, nullptr);
}

CGdiObject::operator void *() const
{
    return m_hObject;
}

void *CGdiObject::GetSafeHandle() const
{
    return isNullObject(this) ? nullptr : m_hObject;
}

CGdiObject *CGdiObject::FromHandle(void *)
{
    return nullptr;
}

bool CGdiObject::DeleteObject()
{
    return true;
}

int CGdiObject::GetObjectW(int, void *)
{
    return 0;
}

bool CBitmap::Attach(HBITMAP handle)
{
    return CGdiObject::Attach(handle);
}

HBITMAP CBitmap::Detach()
{
    return static_cast<HBITMAP>(CGdiObject::Detach());
}

CBitmap::operator HBITMAP() const
{
    return static_cast<HBITMAP>(m_hObject);
}

bool CBitmap::CreateCompatibleBitmap(CDC *, int w, int h)
{
    m_hObject = platformServices().gdiObjects().createBitmap(0, w, h);
    return m_hObject != nullptr;
}

bool CBitmap::LoadBitmapW(UINT id)
{
    m_hObject = id > 0xFFFF ? nullptr : LoadImageW(nullptr, MAKEINTRESOURCEW(int(id)), 0, 0, 0, 0);
    return true;
}

int CBitmap::DeleteObject()
{
    return m_hObject ? platformServices().gdiObjects().deleteObject(m_hObject) : 0;
}

int CBitmap::Add(CBitmap *, UINT)
{
    return 0;
}

CBrush::CBrush() = default;

CBrush::CBrush(COLORREF c)
{
    m_hObject = platformServices().gdiObjects().createSolidBrush(c);
}

CFont *CFont::FromHandle(HFONT)
{
    return nullptr;
}

bool CFont::CreateFontW(int, int, int, int, int, BYTE, BYTE, BYTE, BYTE, BYTE, BYTE, BYTE, BYTE,
                        const wchar_t *)
{
    return true;
}
