/// @file ClipboardStore.h
/// @brief What the clipboard's store holds for a format.
#pragma once

#include <QString>

#include <set>

class QByteArray;
struct KxGlobalMemory;

/// Records in the store, which are freed in the end if no clipboard did it.
class HeldRecords
{
public:
    HeldRecords() = default;
    HeldRecords(const HeldRecords &) = delete;
    HeldRecords &operator=(const HeldRecords &) = delete;
    ~HeldRecords();

    /// Whether the record is new here.
    bool add(KxGlobalMemory *record) { return m_records.insert(record).second; }
    /// Frees a record and its block.
    void release(KxGlobalMemory *record);

private:
    std::set<KxGlobalMemory *> m_records;
};

/// The records that the store holds.
HeldRecords &heldRecords();

/// The MIME type under which the store keeps the format of this name.
QString mimeTypeOf(const wchar_t *name);

/// The record behind the bytes of a format.
KxGlobalMemory *recordIn(const QByteArray &bytes);

/// Frees what the store holds under a MIME type, which stays registered.
void releaseRecord(const QString &mimeType);
