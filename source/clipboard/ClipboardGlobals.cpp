#include "ClipboardStore.h"
#include "KxClipboard.h"

#include <QMimeData>

static std::set<const void *> records;

// Destroyed in reverse order: the clipboard frees what the store holds.
QMimeData g_clipboardData;
std::map<int, CString> g_mapCF;
KxPlatformClipboard g_platformClipboard;
int g_iCFIndex = 3456;

std::set<const void *> &heldRecords()
{
    return records;
}
