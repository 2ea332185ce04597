/// @file ClipboardStore.h
/// @brief What the clipboard's store holds for a format.
#pragma once

#include <QString>

#include <map>

class QByteArray;
struct KxGlobalMemory;

/// The first number of a registered format.
constexpr int firstNumber = 3456;

/// The MIME types under which records were put into the store. The application may have emptied it since.
std::map<const void *, QString> &typesOfRecords();

/// The MIME type under which the store keeps the format of this name.
QString mimeTypeOf(const wchar_t *name);

/// The record behind the bytes of a format.
KxGlobalMemory *recordIn(const QByteArray &bytes);

/// Whether the store holds a record, under whatever MIME type.
bool isHeld(const void *record);

/// Frees what the store holds under a MIME type, which stays registered.
void releaseRecord(const QString &mimeType);

/// Frees what the store holds.
void releaseAllRecords();
