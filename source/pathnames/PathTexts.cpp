#include "KxUiPathname.h"

#include "KxPlatform.h"
#include "KxVolumes.h"
#include "PathText.h"

#include <cwchar>
#include <utility>

static bool isGraphic(wchar_t ch)
{
    return ch > L' ' && ch < L'\x7F';
}

path_type GetAttByPath(const CString &path, const CString &baseDir)
{
    constexpr DWORD kindBits = 0xF000;
    constexpr DWORD directoryKind = 0x4000;

    CString name;
    name.reserve(baseDir.size() + 1 + path.size());
    name += baseDir;
    if (!endsWith(name, L'/'))
        name += L'/';
    name += path;
    const DWORD mode = GetFileAttributesW(name);
    if (mode == INVALID_FILE_ATTRIBUTES)
        return PT_PATH;
    return (mode & kindBits) == directoryKind ? PT_DIRECTORY : PT_FILE;
}

bool IsPathType(const CString &baseName)
{
    return holdsWildcard(baseName, 0);
}

void GetPathStrNoExt(CString &path, wchar_t separator)
{
    const int dot = path.ReverseFind(L'.');
    if (dot > path.ReverseFind(separator))
        path.resize(static_cast<std::size_t>(dot));
}

void upperPathFirstChar(CString &text)
{
    if (text.size() > 1 && isDrive(text[0], text[1]))
        text[0] = toDriveLetter(text[0]);
}

void ReleaseCStrPtr(CString **text)
{
    ReleaseStringPtr(text);
}

void CKdUiPathname::GetAttributes(const CString *path, const CString *baseDir, path_type *type) const
{
    if (!type)
        return;
    *type = PT_PATH;
    if (!path)
        return;
    if (holdsWildcard(*path, nameStart(*path, m_separator)))
        *type = PT_WILDCARD;
    else if (baseDir)
        *type = GetAttByPath(*path, *baseDir);
}

bool CKdUiPathname::IsDeviceName(const CString &) const
{
    return false;
}

wchar_t CKdUiPathname::GetLastCharacter(const CString &text)
{
    return text.IsEmpty() ? L'\0' : text.back();
}

void CKdUiPathname::StripSpaces(CString &text) const
{
    // The locale is asked for the characters that may be white space in any of them.
    if (!text.IsEmpty() && !isGraphic(text.front()))
        text.TrimLeft();
    if (!text.IsEmpty() && !isGraphic(text.back()))
        text.TrimRight();
}

void CKdUiPathname::Unquote(CString &text) const
{
    if (text.Find(L'"') < 0)
        return;
    CString trimmed(text);
    StripSpaces(trimmed);
    if (trimmed.size() > 1 && trimmed.front() == L'"' && trimmed.back() == L'"')
        text.assign(trimmed, 1, trimmed.size() - 2);
}

void CKdUiPathname::lstrncpy_x(wchar_t *dst, const wchar_t *src, int n) const
{
    if (!dst || !src || n < 0)
        return;
    const auto count = static_cast<std::size_t>(n);
    std::wmemmove(dst, src, count);
    dst[count] = L'\0';
}
