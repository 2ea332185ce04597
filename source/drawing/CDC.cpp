#include "KxDrawing.h"

KxQtPaintDeviceWrapper::~KxQtPaintDeviceWrapper() = default;

CDC::CDC() = default;

CDC::~CDC()
{
    delete reinterpret_cast<KxQtPaintDeviceWrapper *>(m_hDC);
}

CDC::operator HDC() const
{
    return m_hDC;
}

HDC CDC::GetSafeHdc() const
{
    // Never m_hDC: ported code asks by conversion and takes null here for "no context".
    return nullptr;
}
