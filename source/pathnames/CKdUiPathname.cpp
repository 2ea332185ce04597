#include "KxUiPathname.h"

#include "KxPlatformServices.h"
#include "PathText.h"

#include <cwchar>
#include <utility>

static CString *copyOf(const CString *text)
{
    return text ? new CString(*text) : nullptr;
}

CKdUiPathname::CKdUiPathname(const CKdUiPathname &other)
{
    CKdUiPathname::AssignCopy(other);
}

CKdUiPathname &CKdUiPathname::operator=(const CKdUiPathname &other)
{
    if (&other != this)
        AssignCopy(other);
    return *this;
}

CKdUiPathname::~CKdUiPathname()
{
    Empty();
}

void CKdUiPathname::AssignCopy(const CKdUiPathname &other)
{
    if (&other == this)
        return;
    Empty();
    m_type = other.m_type;
    m_volume = other.m_volume;
    m_path = copyOf(other.m_path);
    m_baseDir = copyOf(other.m_baseDir);
    m_category = other.m_category;
    m_separator = other.m_separator;
    m_explicit = other.m_explicit;
}

void CKdUiPathname::Empty()
{
    m_volume = nullptr;
    m_type = PT_EMPTY;
    ReleaseCStrPtr(&m_baseDir);
    ReleaseCStrPtr(&m_path);
}

const wchar_t *CKdUiPathname::GetPathString() const
{
    return m_path ? m_path->c_str() : nullptr;
}

std::size_t CKdUiPathname::baseStart() const
{
    return m_path ? nameStart(*m_path, m_separator) : 0;
}

// Where the base name begins and where its last dot is; npos without one.
bool CKdUiPathname::splitBasename(std::size_t &begin, std::size_t &dot) const
{
    if (IsEmpty() || !m_path)
        return false;
    begin = baseStart();
    dot = m_path->rfind(L'.');
    if (dot != CString::npos && dot < begin)
        dot = CString::npos;
    return begin < m_path->size();
}

void CKdUiPathname::GetBasename(CString &out) const
{
    if (!IsEmpty() && m_path)
        out.assign(*m_path, baseStart(), CString::npos);
}

void CKdUiPathname::GetFilename(CString &out) const
{
    std::size_t begin;
    std::size_t dot;
    if (m_type != PT_WILDCARD && splitBasename(begin, dot))
        out.assign(*m_path, begin, dot == CString::npos ? dot : dot - begin);
}

void CKdUiPathname::GetExtension(CString &out) const
{
    std::size_t begin;
    std::size_t dot;
    if (splitBasename(begin, dot) && dot != CString::npos)
        out.assign(*m_path, dot + 1, CString::npos);
}

bool CKdUiPathname::GetFullPath(CString &out) const
{
    if (IsEmpty())
        return false;
    out.Empty();
    if (IsPath() && m_category != PC_ROOTED && m_baseDir) {
        out = *m_baseDir;
        if (!endsWith(out, m_separator))
            out += m_separator;
    }
    if (m_path)
        out += *m_path;

    std::wstring corrected;
    if (platformServices().pathCorrection().correct(out, corrected))
        out = CString(std::move(corrected));
    return true;
}

bool CKdUiPathname::GetFullPath(wchar_t *buf) const
{
    if (!buf)
        return false;
    CString path;
    const bool known = GetFullPath(path);
    std::wcscpy(buf, path.c_str());
    return known;
}

void CKdUiPathname::GetFullUNCPath(CString &) const {}

void CKdUiPathname::GetParent(CKdUiPathname &out) const
{
    if (!isEditable())
        return;
    out = *this;
    out.m_type = PT_DIRECTORY;
    out.TrimSlash();
    const std::size_t end = out.baseStart();
    if (end > 0) {
        out.m_path->resize(end);
        return;
    }
    if (!out.m_baseDir) {
        out.Empty();
        return;
    }
    std::swap(out.m_path, out.m_baseDir);
    ReleaseCStrPtr(&out.m_baseDir);
    ParseRelPath(&out.m_path, out.m_separator, out.m_category);
}

bool CKdUiPathname::PathMatch(const CKdUiPathname *other) const
{
    if (!other)
        return false;
    if (other == this)
        return true;
    if (other->m_volume != m_volume)
        return false;
    CString path;
    other->GetFullPath(path);
    return PathMatch(path.c_str());
}

bool CKdUiPathname::PathMatch(const wchar_t *text) const
{
    if (!text)
        return false;
    CString path;
    GetFullPath(path);
    CString other(text);
    upperPathFirstChar(other);
    const bool ends = endsWith(path, m_separator);
    if (ends != endsWith(other, m_separator))
        (ends ? other : path) += m_separator;
    return path.CompareNoCase(other) == 0;
}
