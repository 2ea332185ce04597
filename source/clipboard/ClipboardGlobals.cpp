#include "ClipboardStore.h"
#include "KxClipboard.h"

#include <QMimeData>

static HeldRecords records;

// Destroyed in reverse order: an attached clipboard frees what the store holds; the records free the rest.
QMimeData g_clipboardData;
std::map<int, CString> g_mapCF;
KxPlatformClipboard g_platformClipboard;
int g_iCFIndex = 3456;

HeldRecords &heldRecords()
{
    return records;
}
