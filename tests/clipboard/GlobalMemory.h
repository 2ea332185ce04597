#pragma once

#include "KxFiles.h"

#include <QByteArray>

#include <cstdlib>

/// A handle with a block of its own, as an application makes it.
inline HGLOBAL newMemory(const QByteArray &content)
{
    QByteArray copy = content;
    CSharedFile file;
    file.Write(reinterpret_cast<unsigned char *>(copy.data()), unsigned(copy.size()));
    return file.Detach();
}

/// What is in the block of a handle.
inline QByteArray contentOf(HGLOBAL memory)
{
    const auto *record = static_cast<const KxGlobalMemory *>(memory);
    return record ? QByteArray(static_cast<const char *>(record->block), int(record->size)) : QByteArray();
}

/// Frees a handle that stayed the application's.
inline void freeMemory(HGLOBAL memory)
{
    std::free(static_cast<KxGlobalMemory *>(memory)->block);
    std::free(memory);
}
