#include "KxUiPathname.h"

#include "KxPlatform.h"
#include "KxVolumes.h"
#include "PathText.h"

#include <algorithm>
#include <utility>

namespace {

path_category categoryOf(CString &work, wchar_t separator, wchar_t first, wchar_t second)
{
    if (first == separator)
        return second == separator ? PC_UNC : PC_ROOTED;
    if (!isDrive(first, second))
        return PC_RELATIVE;
    work[0] = toDriveLetter(first);
    return PC_DRIVE;
}

CString *fullPathOf(const CKdUiPathname *base)
{
    CString path;
    if (base)
        base->GetFullPath(path);
    return path.IsEmpty() ? nullptr : new CString(std::move(path));
}

CString *nameOf(CKdUiVolumeDescriptor *volume)
{
    const CString *name = volume ? volume->GetLocalName() : nullptr;
    return name ? new CString(*name) : new CString;
}

} // namespace

void GetWorkString(CString &work, wchar_t separator, wchar_t &first, wchar_t &second)
{
    std::transform(work.begin(), work.end(), work.begin(),
                   [separator](wchar_t ch) { return ch == L'\\' ? separator : ch; });
    first = work.c_str()[0];
    second = work.size() > 1 ? work.c_str()[1] : L'\0';
}

bool GetPathCatType(CString &work, wchar_t separator, wchar_t first, wchar_t second,
                    const CKdUiPathname *base, path_category &category)
{
    category = work.IsEmpty() ? PC_RELATIVE : categoryOf(work, separator, first, second);
    if (category != PC_DRIVE && work.Find(L':') >= 0)
        return false;
    return category != PC_RELATIVE || (base && base->IsPath());
}

void ParseRelPath(CString **path, wchar_t separator, path_category &category)
{
    if (!path || !*path)
        return;
    CString &work = **path;
    const wchar_t first = work.c_str()[0];
    category = categoryOf(work, separator, first, first ? work.c_str()[1] : L'\0');
}

unsigned GetUNCScount(const CString &, wchar_t)
{
    return 0;
}

const wchar_t *GetWorkPtrByIndex(CString &work, wchar_t separator, path_category category, int prefix)
{
    const auto length = std::min(static_cast<std::size_t>(std::max(prefix, 0)), work.size());
    if (category == PC_UNC && length == work.size())
        work += separator;
    return work.c_str() + length;
}

void GetRelPath(path_category category, const CKdUiPathname *base, CKdUiVolumeDescriptor *volume,
                CString **baseDir)
{
    if (!baseDir)
        return;
    *baseDir = nullptr;
    if (category == PC_ROOTED)
        *baseDir = nameOf(volume);
    else if (category == PC_RELATIVE)
        *baseDir = fullPathOf(base);
}

bool GetPathBuffer(CString &buffer, const CString *baseDir, wchar_t separator, const CString &work, bool)
{
    CString joined;
    if (baseDir)
        joined = *baseDir;
    if (!endsWith(joined, separator) && work.c_str()[0] != separator && baseDir)
        joined += separator;
    joined += work;
    buffer = std::move(joined);
    return true;
}

unsigned CKdUiPathname::Parse(const wchar_t *text, bool flag)
{
    if (!text)
        return badArgument;

    CKdUiPathname directory;
    wchar_t name[maxPathLength + 1] = {};
    const DWORD length = GetCurrentDirectoryW(maxPathLength + 1, name);
    const bool known = length > 0 && length <= maxPathLength;
    if (known && directory.ParseRelative(name, nullptr) != editDone) {
        Empty();
        return noSeparator;
    }
    directory.AppendSlash();
    return ParseRelative(text, &directory, flag);
}

unsigned CKdUiPathname::ParseRelative(const wchar_t *text, const CKdUiPathname *base, bool flag)
{
    if (!text)
        return badArgument;
    if (base == this) {
        const CKdUiPathname former(*this);
        return ParseRelative(text, &former, flag);
    }

    // The string of the former path serves again; the text may lie in it.
    std::unique_ptr<CString> work(m_path ? std::exchange(m_path, nullptr) : new CString);
    *work = text;
    Empty();
    Unquote(*work);
    StripSpaces(*work);
    const std::size_t colon = work->find(L':');
    if (work->IsEmpty() || (colon != CString::npos && work->find(L':', colon + 1) != CString::npos))
        return badArgument;
    return parseWork(std::move(work), base);
}

unsigned CKdUiPathname::parseWork(std::unique_ptr<CString> work, const CKdUiPathname *base)
{
    if (IsDeviceName(*work)) {
        work->MakeUpper();
        m_path = work.release();
        m_type = PT_DEVICE;
        return editDone;
    }

    wchar_t first;
    wchar_t second;
    GetWorkString(*work, m_separator, first, second);
    path_category category;
    if (!GetPathCatType(*work, m_separator, first, second, base, category))
        return badArgument;
    if (category == PC_UNC && GetUNCScount(*work, m_separator) == 0)
        return badArgument;
    takePath(std::move(work), category, base);
    return editDone;
}

void CKdUiPathname::takePath(std::unique_ptr<CString> work, path_category category, const CKdUiPathname *base)
{
    // Only a drive has a colon.
    const bool hasColon = category == PC_DRIVE;
    if (hasColon)
        m_volume = FindVolumeDescriptor(CString(work->substr(0, 2)));
    else if (category == PC_RELATIVE)
        m_volume = base->m_volume;
    if (m_volume)
        m_volume->VolCase(*work);

    GetRelPath(category, base, m_volume, &m_baseDir);
    m_path = work.release();
    m_category = category;
    GetAttributes(m_path, m_baseDir, &m_type);
    m_explicit = hasColon || m_path->Find(m_separator) >= 0;
}

unsigned CKdUiPathname::ParseAndOSFind(const wchar_t *)
{
    return badArgument;
}
