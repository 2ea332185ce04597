#ifndef PROBEPATH_H
#define PROBEPATH_H

#include "KxPathNames.h"

#include <cwchar>
#include <string>
#include <tuple>

/// A path name that shows its fields and can be put into any state.
class ProbePath : public CKdUiPathname
{
public:
    ProbePath() = default;
    explicit ProbePath(const wchar_t *text, const CKdUiPathname *base = nullptr)
    {
        ParseRelative(text, base);
    }

    /// Replaces the path, without parsing. Null leaves none.
    void set(path_category category, const wchar_t *path, path_type type = PT_FILE)
    {
        Empty();
        m_type = type;
        m_category = category;
        m_path = path ? new CString(path) : nullptr;
    }
    void setBaseDir(const wchar_t *baseDir)
    {
        ReleaseCStrPtr(&m_baseDir);
        m_baseDir = new CString(baseDir);
    }
    void setVolume(CKdUiVolumeDescriptor *volume) { m_volume = volume; }

    void setSeparator(wchar_t separator) { m_separator = separator; }

    path_category category() const { return m_category; }
    const CString *path() const { return m_path; }
    const CString *baseDir() const { return m_baseDir; }
    CKdUiVolumeDescriptor *volume() const { return m_volume; }
    bool isExplicit() const { return m_explicit; }

    /// Everything that there is to see.
    auto state() const
    {
        return std::make_tuple(m_type, m_volume, shown(m_path), shown(m_baseDir), m_category, m_separator,
                               m_explicit);
    }

    /// @return what is wrong with the object whatever was done to it; null for nothing.
    const char *fault() const
    {
        if (m_type < PT_EMPTY || m_type > PT_DIRECTORY || m_separator != L'/')
            return "a field is out of range";
        if (m_category < PC_DRIVE || m_category > PC_RELATIVE)
            return "no such category";
        if (IsEmpty())
            return m_path || m_baseDir || m_volume ? "an empty path name holds something" : nullptr;
        if (!m_path)
            return "a path without a text";
        if (std::wcslen(m_path->c_str()) != m_path->size())
            return "the text holds a null";
        return nullptr;
    }

    /// @return what is wrong with the result of a parse; null for nothing.
    const char *parseFault() const
    {
        if (const char *wrong = fault())
            return wrong;
        return IsEmpty() ? nullptr : contentFault();
    }

private:
    static CString shown(const CString *text) { return text ? *text : CString(L"(none)"); }

    const char *contentFault() const
    {
        const bool separated = m_path->Find(L'/') >= 0;
        const bool hasColon = m_path->Find(L':') >= 0;
        if (m_path->IsEmpty() || m_path->Find(L'\\') >= 0)
            return "the text is empty or holds a backslash";
        if (m_explicit != (separated || hasColon))
            return "explicit or not";
        if (hasColon != (m_category == PC_DRIVE))
            return "a colon without a drive";
        return categoryFault();
    }

    const char *categoryFault() const
    {
        const wchar_t *text = m_path->c_str();
        const bool isRooted = text[0] == L'/' && text[1] != L'/';
        if (m_category == PC_DRIVE)
            return text[1] == L':' && !m_baseDir && m_type <= PT_WILDCARD ? nullptr : "a wrong drive path";
        if (m_category == PC_ROOTED)
            return isRooted && m_baseDir && m_baseDir->IsEmpty() ? nullptr : "a wrong rooted path";
        if (m_category == PC_RELATIVE)
            return text[0] != L'/' && (!m_baseDir || !m_baseDir->IsEmpty()) ? nullptr
                                                                            : "a wrong relative path";
        return "a network path";
    }
};

#endif
