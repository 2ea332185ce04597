/// @file KxRegistry.h
/// @brief CRegKey, registry keys kept in the user's settings.
#pragma once

#include "KxWinTypes.h"

#include <memory>

class QSettings;

/// A key of string values in the user's native settings store.
///
/// Every key lives in one store, the QSettings of organisation "Orvane" and application "Velmo"; the Win32
/// parent keys are ignored and the key's path is a settings group. Values reach the disk as QSettings writes
/// them. A store that cannot be written is not reported. Unlike a Win32 key, a CRegKey is neither opened nor
/// closed: Create() alone sets its path, and without one the values lie at the top level of the store.
class KX_MFC_EXPORT CRegKey
{
public:
    /// A key without a path.
    CRegKey();
    CRegKey(const CRegKey &) = delete;
    CRegKey &operator=(const CRegKey &) = delete;
    ~CRegKey();

    /// @return null: no member sets the handle.
    operator HKEY() const { return m_hKey; }

    /// Reads a value. A missing value reads as an empty text.
    ///
    /// The first @p *count bytes (not elements) of @p buffer are cleared, then at most @p *count - 1 elements
    /// are written, filled up with nulls. A text of @p *count - 1 elements or more is therefore not
    /// terminated by this function. @p *count is not updated, unlike in ATL.
    /// @param buffer receives the text; owned by the caller.
    /// @param valueName the name within the key. Null or empty reads as a missing value.
    /// @param count elements of @p buffer.
    /// @return 0; -1 when the text has more than @p *count UTF-16 units. Then the key's group stays open, so
    /// that the next call's group nests inside it. -1 with no effect when @p buffer or @p count is null.
    LONG QueryValue(wchar_t *buffer, const wchar_t *valueName, unsigned *count);

    /// Sets the key's path. The arguments but @p keyName are ignored, and @p disposition is not written.
    ///
    /// The path @p keyName has backslashes between its groups and at most 2048 elements. Only its characters
    /// are written: on an object that had a longer path, the tail of that path stays.
    /// @return 0, also for a null or longer @p keyName, which leaves the path as it was.
    LONG Create(HKEY parent, const wchar_t *keyName, wchar_t *className = nullptr, unsigned options = 0,
                unsigned access = KEY_READ | KEY_WRITE, SECURITY_ATTRIBUTES *security = nullptr,
                unsigned *disposition = nullptr);

    /// Writes a text value.
    /// @param value the text; null counts as empty.
    /// @param valueName the name within the key. Nothing is written when it is null, empty, or slashes only.
    /// @param multi ignored.
    /// @param length ignored: the text ends at its null.
    /// @return 0.
    LONG SetValue(const wchar_t *value, const wchar_t *valueName, bool multi = false, int length = -1);

    /// @name No counterpart on this platform
    /// @{

    /// @return 0. Does nothing: the path is set by Create() alone.
    LONG Open(HKEY parent, const wchar_t *keyName, unsigned access = KEY_READ | KEY_WRITE);
    /// @return 0. The key stays usable.
    LONG Close();
    /// @return 0. Deletes nothing.
    LONG RecurseDeleteKey(const wchar_t *keyName);
    /// @}

private:
    HKEY m_hKey = nullptr;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<wchar_t[]> m_path;
};
