#include "KxUiPathname.h"

#include "PathText.h"

#include <algorithm>

namespace {

constexpr int fewestChars = 12;
// Of a path with a drive, whatever the separator is.
constexpr wchar_t driveMarker[] = L"\\...";
constexpr wchar_t plainMarker[] = L"...";
// The room that either marker is given.
constexpr std::size_t markerLength = 4;

// The longest row of last components, with the separator before them, that fits behind the marker.
std::size_t tailStart(const CString &path, wchar_t separator, std::size_t prefix, std::size_t maxChars)
{
    const std::size_t first = prefix + markerLength + path.size() - maxChars;
    return std::min(path.find(separator, first), path.size());
}

} // namespace

void CKdUiPathname::GetDisplayName(CString &out, int maxChars) const
{
    out.Empty();
    if (!isEditable())
        return;
    const auto room = static_cast<std::size_t>(std::max(maxChars, fewestChars));
    if (maxChars == -1 || room >= m_path->size())
        out = *m_path;
    else if (m_path->size() - baseStart() > room)
        cutBasename(out, room);
    else
        cutDirectories(out, room);
}

// The start of the base name, a tilde, and the extension where there is room for it.
void CKdUiPathname::cutBasename(CString &out, std::size_t room) const
{
    std::size_t begin = 0;
    std::size_t dot = CString::npos;
    splitBasename(begin, dot);
    std::size_t extension = dot == CString::npos ? 0 : m_path->size() - dot - 1;
    if (room <= extension + 2)
        extension = 0;
    out.assign(*m_path, begin, room - extension - 2);
    out += L'~';
    if (extension > 0)
        out.append(*m_path, dot, CString::npos);
}

void CKdUiPathname::cutDirectories(CString &out, std::size_t room) const
{
    if (m_category < PC_DRIVE || m_category > PC_RELATIVE)
        return;

    const bool hasVolume = m_category == PC_DRIVE || m_category == PC_UNC;
    const std::size_t prefix = hasVolume ? static_cast<std::size_t>(volumeNameLength()) : 0;
    const std::size_t begin = baseStart();
    if (room < prefix + (hasVolume ? 5 : 4) + m_path->size() - begin) {
        out.assign(*m_path, begin, CString::npos);
        return;
    }
    out.assign(*m_path, 0, prefix);
    out += hasVolume ? driveMarker : plainMarker;
    out.append(*m_path, tailStart(*m_path, m_separator, prefix, room), CString::npos);
}
