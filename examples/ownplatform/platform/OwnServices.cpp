#include "OwnServices.h"

#include <algorithm>
#include <cwctype>

void PanelKeyboard::setKey(int virtualKey, bool down)
{
    if (down)
        m_down.insert(virtualKey);
    else
        m_down.erase(virtualKey);
}

QPaintDevice *OwnObjects::bitmapDevice(HANDLE handle)
{
    const auto found = m_bitmaps.find(handle);
    return found == m_bitmaps.end() ? nullptr : &found->second;
}

QImage OwnObjects::bitmapImage(HANDLE handle)
{
    const auto found = m_bitmaps.find(handle);
    return found == m_bitmaps.end() ? QImage() : found->second;
}

std::optional<COLORREF> OwnObjects::brushColor(HANDLE handle)
{
    const auto found = m_brushes.find(handle);
    return found == m_brushes.end() ? std::nullopt : std::optional<COLORREF>(found->second);
}

HANDLE OwnObjects::createBitmap(UINT, int width, int height)
{
    QImage bitmap(width, height, QImage::Format_RGB32);
    if (bitmap.isNull())
        return nullptr;
    bitmap.fill(Qt::black);
    return m_bitmaps.emplace(nextHandle(), bitmap).first->first;
}

HANDLE OwnObjects::createSolidBrush(COLORREF color)
{
    return m_brushes.emplace(nextHandle(), color).first->first;
}

int OwnObjects::deleteObject(HANDLE handle)
{
    const auto bitmap = m_bitmaps.find(handle);
    if (bitmap != m_bitmaps.end() && bitmap->second.paintingActive())
        return 0;
    return int(m_bitmaps.erase(handle) + m_brushes.erase(handle));
}

bool ServerPaths::correct(const std::wstring &path, std::wstring &corrected)
{
    corrected = path;
    std::transform(corrected.begin(), corrected.end(), corrected.begin(), std::towlower);
    return true;
}
