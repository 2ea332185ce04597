#pragma once

#include "StockData.h"

#include <QIcon>

/// The pictures in the strip IDB_SYMBOLS, from left to right.
enum SYMBOL {
    SYMBOL_STOCK,
    SYMBOL_BUILDING,
    SYMBOL_ROOM,
    SYMBOL_ITEM,
    SYMBOL_LOW,
    SYMBOL_BROKEN,
    SYMBOL_NEW,
    SYMBOL_EDIT,
    SYMBOL_DELETE,
    SYMBOL_COPY,
    SYMBOL_PASTE,
    SYMBOL_IMPORT,
    SYMBOL_EXPORT,
    SYMBOL_SAMPLE,
    SYMBOL_FIND,
    SYMBOL_COUNT
};

/// Stands where an image list is elsewhere: CImageList holds no pictures on this platform.
class CSymbols
{
public:
    /// Cuts the strip, in which magenta is transparent, into square pictures.
    CSymbols();

    const QIcon &GetIcon(int nSymbol) const { return m_icons[nSymbol]; }

private:
    QIcon m_icons[SYMBOL_COUNT];
};

/// @return the picture that tells how an item is.
SYMBOL GetItemSymbol(const CStockItem &item);

/// @return the icon IDR_MAINFRAME in its sizes.
QIcon LoadProgramIcon();
