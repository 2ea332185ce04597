#include "KxUiPathname.h"

#include "KxPlatform.h"
#include "PathText.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <exception>

namespace {

/// The current directory of the process, changed as long as one lives.
class DirectoryChange
{
public:
    explicit DirectoryChange(const CString *directory)
        : m_changes(directory && !directory->IsEmpty())
    {
        if (!m_changes)
            return;
        const DWORD length = GetCurrentDirectoryW(maxPathLength + 1, m_former);
        m_formerIsKnown = length > 0 && length <= maxPathLength;
        m_changed = SetCurrentDirectoryW(*directory);
    }
    ~DirectoryChange()
    {
        if (m_changed && m_formerIsKnown)
            SetCurrentDirectoryW(m_former);
    }
    DirectoryChange(const DirectoryChange &) = delete;
    DirectoryChange &operator=(const DirectoryChange &) = delete;

    bool failed() const { return m_changes && !m_changed; }

private:
    const bool m_changes;
    bool m_changed = false;
    bool m_formerIsKnown = false;
    wchar_t m_former[maxPathLength + 1] = {};
};

constexpr int digitCount = 5;
constexpr wchar_t digitsToCome[] = L"00000";

void putRandomDigits(wchar_t *place)
{
    wchar_t digits[digitCount + 1];
    std::swprintf(digits, digitCount + 1, L"%0*d", digitCount, std::rand() % 100000);
    std::wmemcpy(place, digits, digitCount);
}

} // namespace

bool CKdUiPathname::Exists()
{
    if (m_type == PT_DEVICE)
        return true;
    if (IsEmpty() || m_type == PT_WILDCARD)
        return false;
    GetAttributes(m_path, m_baseDir, &m_type);
    return m_type != PT_PATH;
}

bool CKdUiPathname::openFullPath(DWORD access, DWORD shareMode, DWORD disposition, HANDLE &handle) const
{
    CString path;
    handle = INVALID_HANDLE_VALUE;
    if (GetFullPath(path)) {
        handle = CreateFileW(path, access, shareMode, nullptr, disposition,
                             FILE_ATTRIBUTE_NORMAL | FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
    }
    return handle != INVALID_HANDLE_VALUE;
}

bool CKdUiPathname::OpenReadOnly(void *&handle) const
{
    return openFullPath(GENERIC_READ, FILE_SHARE_READ, OPEN_EXISTING, handle);
}

bool CKdUiPathname::OpenWriteOnly(void *&handle) const
{
    return openFullPath(GENERIC_WRITE, 0, CREATE_ALWAYS, handle);
}

void CKdUiPathname::Open(FILE **, const wchar_t *)
{
    std::terminate();
}

bool CKdUiPathname::Rename(const wchar_t *newName)
{
    if (!isEditable())
        return false;
    const DirectoryChange change(m_baseDir);
    if (change.failed() || _wrename(*m_path, newName) != 0)
        return false;
    *m_path = newName;
    return true;
}

bool CKdUiPathname::Remove()
{
    return false;
}

bool CKdUiPathname::GetUniqueName(CKdUiPathname &out, bool always) const
{
    if (IsEmpty())
        return false;
    out = *this;
    return (!always && !out.Exists()) || out.makeUnique();
}

bool CKdUiPathname::makeUnique()
{
    if (!isEditable())
        return false;
    CString name;
    CString extension;
    GetFilename(name);
    GetExtension(extension);
    if (name.IsEmpty())
        name = L"kxTmp";
    Trim();

    const int room =
        std::min(1019, maxPathLength - m_path->GetLength()) - extension.GetLength() - digitCount - 1;
    if (room < 1) {
        Empty();
        return false;
    }
    name = name.Left(room);
    const std::size_t place = m_path->size() + name.size();
    Append(name + digitsToCome);
    if (!extension.IsEmpty())
        AddExtensionAlways(extension);
    tryNames(place);
    return true;
}

void CKdUiPathname::tryNames(std::size_t place)
{
    constexpr int tries = 200;
    for (int i = 0; i < tries; ++i) {
        putRandomDigits(&(*m_path)[place]);
        if (!Exists())
            return;
    }
    Empty();
}
