#include "ClipboardStore.h"
#include "KxClipboard.h"

#include <QMimeData>

static std::map<const void *, QString> recordTypes;

// Destroyed in reverse order, the store last.
QMimeData g_clipboardData;

// Frees what is left when no clipboard was ever attached.
static const struct LastRelease
{
    LastRelease() = default;
    LastRelease(const LastRelease &) = delete;
    LastRelease &operator=(const LastRelease &) = delete;
    ~LastRelease() { releaseAllRecords(); }
} lastRelease;

std::map<int, CString> g_mapCF;
KxPlatformClipboard g_platformClipboard;
int g_iCFIndex = firstNumber;

std::map<const void *, QString> &typesOfRecords()
{
    return recordTypes;
}
