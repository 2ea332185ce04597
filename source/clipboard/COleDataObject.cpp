#include "ClipboardStore.h"
#include "KxClipboard.h"

COleDataObject::COleDataObject()
    : m_pClipboard(&g_platformClipboard)
{
}

COleDataObject::~COleDataObject() = default;

bool COleDataObject::IsDataAvailable(unsigned short format, FORMATETC *fe) const
{
    return m_pClipboard->isDataAvailable(format, fe);
}

HGLOBAL COleDataObject::GetGlobalData(unsigned short format, FORMATETC *fe) const
{
    return m_pClipboard->getGlobalData(format, fe);
}

bool COleDataObject::AttachClipboard()
{
    return m_pClipboard->attachClipboard();
}

void COleDataObject::BeginEnumFormats()
{
    m_pClipboard->m_nEnumStep = -1;
    m_pClipboard->m_nEnumFormat = firstNumber - 1;
}

bool COleDataObject::GetNextFormat(FORMATETC *fe)
{
    return m_pClipboard->getNextFormat(fe);
}
