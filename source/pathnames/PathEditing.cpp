#include "KxUiPathname.h"

#include "KxVolumes.h"
#include "PathText.h"

bool CKdUiPathname::isEditable() const
{
    return IsPath() && m_path;
}

int CKdUiPathname::volumeNameLength() const
{
    const CString *name = m_volume ? m_volume->GetLocalName() : nullptr;
    return name ? name->GetLength() : 0;
}

// The code of a cut at the separator at pos, -1 if there is none.
unsigned CKdUiPathname::refusalToCutAt(int pos) const
{
    switch (m_category) {
    case PC_DRIVE:
        return editDone;
    case PC_UNC:
        if (pos < 0)
            return noSeparator;
        return pos < volumeNameLength() ? leavesRoot : editDone;
    case PC_ROOTED:
        return pos < 0 ? noSeparator : editDone;
    case PC_RELATIVE:
        return pos < 0 ? leavesRoot : editDone;
    }
    return noSeparator;
}

unsigned CKdUiPathname::cutTo(std::size_t length)
{
    m_path->resize(length);
    // The root of a drive keeps its separator.
    if (m_category == PC_DRIVE && length == 2)
        *m_path += m_separator;
    m_type = PT_PATH;
    return editDone;
}

unsigned CKdUiPathname::Trim()
{
    if (!isEditable())
        return notAPath;
    if (endsWith(*m_path, m_separator))
        return editDone;

    int pos = m_path->ReverseFind(m_separator);
    if (const unsigned refusal = refusalToCutAt(pos))
        return refusal;
    if (pos < 0)
        pos = m_path->Find(L':');
    return pos < 0 ? noSeparator : cutTo(static_cast<std::size_t>(pos) + 1);
}

unsigned CKdUiPathname::TrimSlash()
{
    if (!isEditable())
        return notAPath;
    if (!endsWith(*m_path, m_separator))
        return editDone;
    if (m_category < PC_DRIVE || m_category > PC_RELATIVE)
        return noSeparator;

    const std::size_t length = m_path->size() - 1;
    const bool isRoot = (m_category == PC_ROOTED && length == 0) || (m_category == PC_DRIVE && length == 2) ||
                        (m_category == PC_UNC && length <= static_cast<std::size_t>(volumeNameLength()));
    return isRoot ? leavesRoot : cutTo(length);
}

unsigned CKdUiPathname::TrimComponent()
{
    if (!isEditable())
        return notAPath;

    int pos = m_path->ReverseFind(m_separator);
    if (const unsigned refusal = refusalToCutAt(pos))
        return refusal;
    if (pos < 0)
        pos = m_path->Find(L':') + 1;
    if (m_category == PC_ROOTED && pos == 0)
        pos = 1;
    return cutTo(static_cast<std::size_t>(pos));
}

unsigned CKdUiPathname::Append(const wchar_t *text)
{
    if (!isEditable())
        return notAPath;
    *m_path += text;
    m_type = PT_PATH;
    return editDone;
}

unsigned CKdUiPathname::AppendSlash()
{
    if (!isEditable())
        return notAPath;
    if (!m_path->empty() && m_path->back() != m_separator && m_path->back() != L':')
        *m_path += m_separator;
    return editDone;
}

unsigned CKdUiPathname::AppendComponent(const wchar_t *text)
{
    if (!isEditable())
        return notAPath;
    const std::size_t end = m_path->size();
    const bool separated = endsWith(*m_path, m_separator);
    // The text may lie in the path, so it is copied before anything moves.
    *m_path += text;
    if (!separated)
        m_path->insert(end, 1, m_separator);
    m_type = PT_PATH;
    return editDone;
}

void CKdUiPathname::RemoveSpaces()
{
    if (!m_path)
        return;
    const std::size_t begin = baseStart();
    const std::size_t dot = m_path->rfind(L'.');
    const std::size_t end = dot == CString::npos || dot < begin ? m_path->size() : dot;
    CString stem(m_path->substr(begin, end - begin));
    StripSpaces(stem);
    m_path->replace(begin, end - begin, stem);
}

void CKdUiPathname::mapBasename(void (*map)(CString &))
{
    CString base;
    GetBasename(base);
    if (base.IsEmpty())
        return;
    const std::size_t length = base.size();
    map(base);
    m_path->replace(m_path->size() - length, length, base);
}

void CKdUiPathname::BaseToLower()
{
    mapBasename(&KxErrorEat::strMakeLower);
}

void CKdUiPathname::BaseToUpper()
{
    mapBasename(&KxErrorEat::strMakeUpper);
}
