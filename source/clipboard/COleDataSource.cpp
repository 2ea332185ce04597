#include "ClipboardStore.h"
#include "KxClipboard.h"
#include "KxFiles.h"

#include <QMimeData>

void COleDataSource::CacheGlobalData(unsigned format, HGLOBAL hGlobal)
{
    // Ported code sees the number in its enumerations from now on, registered or not.
    const CString &name = g_mapCF[int(format)];
    const QString mimeType = mimeTypeOf(name.c_str());
    if (!hGlobal || name.IsEmpty() || !g_clipboardData.hasFormat(mimeType) || isHeld(hGlobal))
        return;

    releaseRecord(mimeType);
    typesOfRecords()[hGlobal] = mimeType;
    const auto *record = static_cast<const char *>(hGlobal);
    g_clipboardData.setData(mimeType, QByteArray::fromRawData(record, sizeof(KxGlobalMemory)));
}
