#include "ClipboardStore.h"

#include "KxClipboard.h"
#include "KxFiles.h"
#include "foundation/QtConversions.h"

#include <QMimeData>

#include <cstdlib>

QString mimeTypeOf(const wchar_t *name)
{
    // Under its own name for lists of URLs Qt keeps no bytes. No format's name has a null in it.
    const QString mimeType = toQString(name);
    return mimeType == QLatin1String("text/uri-list") ? mimeType + QChar(u'\0') : mimeType;
}

static void freeMemory(KxGlobalMemory *record)
{
    std::free(record->block);
    std::free(record);
}

HeldRecords::~HeldRecords()
{
    for (KxGlobalMemory *record : m_records)
        freeMemory(record);
}

void HeldRecords::release(KxGlobalMemory *record)
{
    m_records.erase(record);
    freeMemory(record);
}

KxGlobalMemory *recordIn(const QByteArray &bytes)
{
    return reinterpret_cast<KxGlobalMemory *>(const_cast<char *>(bytes.constData()));
}

void releaseRecord(const QString &mimeType)
{
    const QByteArray bytes = g_clipboardData.data(mimeType);
    if (bytes.isEmpty())
        return;

    g_clipboardData.setData(mimeType, QByteArray());
    heldRecords().release(recordIn(bytes));
}
