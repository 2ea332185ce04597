#pragma once

#include "StockData.h"

/// Puts items on the clipboard: as lines in the program's own format, and as text for other programs.
void CopyItems(const CPtrArray &items, const CStock &stock);
BOOL CanPasteItems();
/// Adds the items on the clipboard under free numbers to a room.
/// @param added receives the new items.
/// @return FALSE when there are none.
BOOL PasteItems(CStock &stock, int nRoom, CPtrArray &added);
