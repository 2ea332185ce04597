#include "KxVolumes.h"

#include <algorithm>
#include <cwchar>
#include <cwctype>

namespace {

const wchar_t *nameOf(FS_TYPE type)
{
    switch (type) {
    case FS_NONE:
        return L"NOFS";
    case FS_NTFS:
        return L"NTFS";
    case FS_FAT:
        return L"FAT";
    case FS_VFAT:
        return L"VFAT";
    case FS_HPFS:
        return L"HPFS";
    case FS_CDFS:
        return L"CDFS";
    case FS_UFS:
        return L"UFS";
    default:
        return L"???";
    }
}

// The case of a text is worth less than the text: whatever the locale throws, it is put back.
void mapCase(CString &text, CString &(CString::*map)())
{
    CString former(text);
    try {
        (text.*map)();
    } catch (...) {
        text.swap(former);
    }
}

} // namespace

void GetDriveTypeByVol(const wchar_t *fsName, FS_TYPE &type, unsigned maxComponent)
{
    const CString name(fsName);
    if (name == L"NTFS")
        type = FS_NTFS;
    else if (name == L"HPFS")
        type = FS_HPFS;
    else if (name == L"CDFS")
        type = FS_CDFS;
    else if (name.Find(L"NFS") >= 0)
        type = FS_UFS;
    else
        type = maxComponent == 12 ? FS_FAT : FS_VFAT;
}

void dump_file_type(FILE **f, FS_TYPE t)
{
    if (f && *f)
        std::fwprintf(*f, L"%ls\n", nameOf(t));
}

bool ValidateVolChar(const CString *name, wchar_t first)
{
    if (!name)
        return false;
    const int colon = name->ReverseFind(L':');
    return colon < 0 || (colon == 1 && std::iswalpha(static_cast<std::wint_t>(first)));
}

void StringFromPath(CString &out, const CString *path)
{
    if (path)
        out = path->Mid(1);
}

void GetVolumeInfo(const wchar_t *, CString &, unsigned &, bool &success)
{
    success = false;
}

unsigned GetVolumeInfo(const wchar_t *, CString &, unsigned &, unsigned &, CString &)
{
    return 1;
}

void KxErrorEat::strMakeUpper(CString &text)
{
    mapCase(text, &CString::MakeUpper);
}

void KxErrorEat::strMakeLower(CString &text)
{
    mapCase(text, &CString::MakeLower);
}

void ReleaseStringPtr(CString **text)
{
    if (!text)
        return;
    delete *text;
    *text = nullptr;
}

char *InitVolumeChar(CString &text, char *buffer)
{
    constexpr std::size_t bufferBytes = 1024;
    const std::size_t bytes = (static_cast<std::size_t>(text.GetLength()) + 1) * sizeof(wchar_t);
    if (!buffer || bytes > bufferBytes)
        return new char[bytes]();
    std::fill_n(buffer, bufferBytes, '\0');
    return buffer;
}
