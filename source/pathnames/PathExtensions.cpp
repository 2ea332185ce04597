#include "KxUiPathname.h"

#include "PathText.h"

#include <cwchar>

bool CKdUiPathname::VerifyExtension(const wchar_t *list) const
{
    if (!list)
        return false;
    CString extension;
    GetExtension(extension);
    if (*list == L'\0' || extension.IsEmpty())
        return *list == L'\0' && extension.IsEmpty();

    for (CString item;; ++list) {
        GetFirstExtInList(list, item);
        if (extension.CompareNoCase(item) == 0)
            return true;
        list += item.size();
        if (*list == L'\0')
            return false;
    }
}

unsigned CKdUiPathname::ReplaceExtensionAlways(const wchar_t *ext)
{
    if (!isEditable())
        return notAPath;
    if (!ext)
        return badArgument;
    // The text may lie in the path, which is cut first.
    const CString extension(ext);
    GetPathStrNoExt(*m_path, m_separator);
    if (!extension.IsEmpty() && extension.front() != L'.')
        *m_path += L'.';
    *m_path += extension;
    m_type = PT_PATH;
    return editDone;
}

unsigned CKdUiPathname::ReplaceExtensionIfNoMatch(const wchar_t *list)
{
    if (!list)
        return ReplaceExtensionAlways(nullptr);
    if (VerifyExtension(list))
        return editDone;
    CString extension;
    GetFirstExtInList(list, extension);
    return ReplaceExtensionAlways(extension);
}

// Unlike a replaced extension, one that is added gets a dot always.
unsigned CKdUiPathname::AddExtensionAlways(const wchar_t *ext)
{
    if (!ext)
        return badArgument;
    if (!isEditable())
        return notAPath;
    const CString extension(ext);
    if (!extension.IsEmpty()) {
        *m_path += L'.';
        *m_path += extension;
    }
    m_type = PT_PATH;
    return editDone;
}

unsigned CKdUiPathname::AddExtensionIfNoMatch(const wchar_t *list)
{
    if (!list)
        return badArgument;
    if (VerifyExtension(list))
        return editDone;
    CString extension;
    GetFirstExtInList(list, extension);
    return AddExtensionAlways(extension);
}

void CKdUiPathname::RemoveExtensionAlways()
{
    if (!isEditable())
        return;
    GetPathStrNoExt(*m_path, m_separator);
    m_type = PT_PATH;
}

void CKdUiPathname::RemoveExtensionIfMatch(const wchar_t *list)
{
    if (VerifyExtension(list))
        RemoveExtensionAlways();
}

void CKdUiPathname::GetFirstExtInList(const wchar_t *list, CString &out) const
{
    if (list)
        out.assign(list, std::wcscspn(list, L";"));
}
