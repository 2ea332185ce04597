#include "Symbols.h"

#include "resource.h"

#include <KxPlatformServices.h>

#include <QBitmap>
#include <QImage>

static const QRgb TRANSPARENT_COLOR = qRgb(255, 0, 255);

static QImage LoadPicture(int nID, UINT nType, int nSize)
{
    CBitmap bitmap;
    bitmap.Attach(static_cast<HBITMAP>(
        ::LoadImage(nullptr, MAKEINTRESOURCE(nID), nType, nSize, nSize, LR_DEFAULTCOLOR)));
    QImage picture = platformServices().image().image(bitmap.GetSafeHandle());
    bitmap.DeleteObject();
    return picture;
}

CSymbols::CSymbols()
{
    const QImage strip = LoadPicture(IDB_SYMBOLS, IMAGE_BITMAP, 0);
    QPixmap pictures = QPixmap::fromImage(strip);
    pictures.setMask(QBitmap::fromImage(strip.createMaskFromColor(TRANSPARENT_COLOR)));
    const int nSize = strip.height();
    for (int nSymbol = 0; nSymbol < SYMBOL_COUNT; nSymbol++)
        m_icons[nSymbol] = pictures.copy(nSymbol * nSize, 0, nSize, nSize);
}

SYMBOL GetItemSymbol(const CStockItem &item)
{
    if (item.m_nState == STATE_BROKEN)
        return SYMBOL_BROKEN;
    // A quantity is never negative.
    return UINT(item.m_nQuantity) < item.m_nReorder ? SYMBOL_LOW : SYMBOL_ITEM;
}

QIcon LoadProgramIcon()
{
    QIcon icon;
    for (int nSize : {16, 32, 48})
        icon.addPixmap(QPixmap::fromImage(LoadPicture(IDR_MAINFRAME, IMAGE_ICON, nSize)));
    return icon;
}
