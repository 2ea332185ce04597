#include "KxPainter.h"

#include <QPaintDevice>

KxQtPaintDeviceWrapper::KxQtPaintDeviceWrapper() = default;

KxQtPaintDeviceWrapper::KxQtPaintDeviceWrapper(QPaintDevice *device)
    : m_pDestinationDevice(device)
{
}

KxQtPaintDeviceWrapper::~KxQtPaintDeviceWrapper() = default;

void KxQtPaintDeviceWrapper::setDestinationDevice(QPaintDevice *device)
{
    m_pDestinationDevice = device;
}

QPaintDevice *KxQtPaintDeviceWrapper::destinationDevice() const
{
    return m_pDestinationDevice;
}

int KxQtPaintDeviceWrapper::width() const
{
    return m_pDestinationDevice ? m_pDestinationDevice->width() : 0;
}

int KxQtPaintDeviceWrapper::height() const
{
    return m_pDestinationDevice ? m_pDestinationDevice->height() : 0;
}

int KxQtPaintDeviceWrapper::depth() const
{
    return m_pDestinationDevice ? m_pDestinationDevice->depth() : 0;
}

bool KxQtPaintDeviceWrapper::beginDraw()
{
    return true;
}

bool KxQtPaintDeviceWrapper::endDraw()
{
    return true;
}

KxQtPainterWrapper *KxQtPaintDeviceWrapper::painter()
{
    if (!m_pPainter)
        m_pPainter = std::make_unique<KxQtPainterWrapper>(m_pDestinationDevice);
    return m_pPainter.get();
}
