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

KxGlobalMemory *recordIn(const QByteArray &bytes)
{
    return reinterpret_cast<KxGlobalMemory *>(const_cast<char *>(bytes.constData()));
}

bool isHeld(const void *record)
{
    const auto it = typesOfRecords().find(record);
    return it != typesOfRecords().end() && recordIn(g_clipboardData.data(it->second)) == record;
}

void releaseRecord(const QString &mimeType)
{
    const QByteArray bytes = g_clipboardData.data(mimeType);
    if (bytes.isEmpty())
        return;

    KxGlobalMemory *record = recordIn(bytes);
    typesOfRecords().erase(record);
    g_clipboardData.setData(mimeType, QByteArray());
    std::free(record->block);
    std::free(record);
}

void releaseAllRecords()
{
    const QStringList mimeTypes = g_clipboardData.formats();
    for (const QString &mimeType : mimeTypes)
        releaseRecord(mimeType);
}
