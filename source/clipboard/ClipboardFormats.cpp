#include "ClipboardStore.h"
#include "KxClipboard.h"

#include <QMimeData>

#include <algorithm>
#include <cwchar>

static UINT registeredNumber(const wchar_t *name)
{
    const auto it = std::find_if(g_mapCF.begin(), g_mapCF.end(), [name](const auto &format) {
        return std::wcscmp(format.second.c_str(), name) == 0;
    });
    return it == g_mapCF.end() ? 0 : UINT(it->first);
}

UINT RegisterClipboardFormatW(const wchar_t *name)
{
    if (!name)
        return 0;
    const QString mimeType = mimeTypeOf(name);
    if (g_clipboardData.hasFormat(mimeType))
        return registeredNumber(name);

    g_clipboardData.setData(mimeType, QByteArray());
    g_mapCF[g_iCFIndex] = name;
    return UINT(g_iCFIndex++);
}

CLIPFORMAT TOCLIPFORMAT(int i)
{
    switch (i) {
    case 0:
        return CF_UNICODETEXT;
    case 1:
        return CF_BITMAP;
    default:
        return CF_TEXT;
    }
}
