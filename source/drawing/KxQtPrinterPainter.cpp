#include "KxPainter.h"

#include <QPainter>

KxQtPrinterPainter::KxQtPrinterPainter(QPaintDevice *device)
    : KxQtPainterWrapper(device)
{
    if (device)
        wrappedPainter()->begin(device);
}

KxQtPrinterPainter::~KxQtPrinterPainter()
{
    if (wrappedPainter()->isActive())
        wrappedPainter()->end();
}

bool KxQtPrinterPainter::beginDraw()
{
    if (!wrappedDevice())
        return false;
    save();
    setDefaultPenAndBrush();
    return true;
}

bool KxQtPrinterPainter::endDraw()
{
    if (!wrappedDevice())
        return false;
    restore();
    return true;
}
