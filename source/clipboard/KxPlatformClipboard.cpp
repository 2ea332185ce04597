#include "ClipboardStore.h"
#include "KxClipboard.h"

#include <QMimeData>

KxPlatformClipboard::KxPlatformClipboard() = default;

KxPlatformClipboard::~KxPlatformClipboard()
{
    if (m_pData)
        releaseAllRecords();
}

bool KxPlatformClipboard::isDataAvailable(unsigned short format, FORMATETC *fe) const
{
    return getGlobalData(format, fe) != nullptr;
}

HGLOBAL KxPlatformClipboard::getGlobalData(unsigned short format, FORMATETC *) const
{
    const auto it = g_mapCF.find(format);
    if (it == g_mapCF.end() || !m_pData)
        return nullptr;

    // Qt may have data to offer for a format that the store does not have.
    const QString mimeType = mimeTypeOf(it->second.c_str());
    const QByteArray bytes = m_pData->data(mimeType);
    return bytes.isEmpty() || !m_pData->hasFormat(mimeType) ? nullptr : recordIn(bytes);
}

bool KxPlatformClipboard::attachClipboard()
{
    m_pData = &g_clipboardData;
    return true;
}

bool KxPlatformClipboard::getNextFormat(FORMATETC *fe)
{
    if (!fe)
        return false;
    if (++m_nEnumStep <= 1) {
        fe->cfFormat = TOCLIPFORMAT(m_nEnumStep);
        return true;
    }
    // Ported code that cached under a number it never registered gets a step more, maybe with no format.
    if (++m_nEnumFormat >= firstNumber + int(g_mapCF.size()))
        return false;
    fe->cfFormat = CLIPFORMAT(g_mapCF.count(m_nEnumFormat) ? m_nEnumFormat : 0);
    return true;
}
