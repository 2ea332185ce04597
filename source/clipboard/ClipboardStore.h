/// @file ClipboardStore.h
/// @brief What the clipboard's store holds for a format.
#pragma once

#include <QString>

#include <set>

class QByteArray;

/// The records that the store holds.
std::set<const void *> &heldRecords();

/// The MIME type under which the store keeps the format of this name.
QString mimeTypeOf(const wchar_t *name);

/// The record behind the bytes of a format.
void *recordIn(const QByteArray &bytes);

/// Frees what the store holds under a MIME type, which stays registered.
void releaseRecord(const QString &mimeType);
