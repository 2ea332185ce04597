#include "KxUiPathname.h"

#include "KxVolumes.h"
#include "PathText.h"

#include <algorithm>

int CKdUiPathname::GetFileSystem(CString &root) const
{
    if (root.IsEmpty())
        return 1;
    if (!endsWith(root, m_separator))
        root += m_separator;

    FS_TYPE type = FS_NONE;
    CString fsName;
    unsigned maxComponent = 0;
    bool success = false;
    GetVolumeInfo(root, fsName, maxComponent, success);
    if (success)
        GetDriveTypeByVol(fsName, type, maxComponent);
    return static_cast<int>(type);
}

CKdUiVolumeDescriptor *CKdUiPathname::FindVolumeDescriptor(const CString &volume) const
{
    if (volume.IsEmpty())
        return nullptr;
    const auto found =
        std::find_if(volumeList.cbegin(), volumeList.cend(), [&](CKdUiVolumeDescriptor *descriptor) {
            const CString *name = descriptor ? descriptor->GetLocalName() : nullptr;
            return name && *name == volume;
        });
    return found == volumeList.cend() ? NewVolDescriptor(volume) : *found;
}

CKdUiVolumeDescriptor *CKdUiPathname::NewVolDescriptor(const CString &volume) const
{
    CString root(volume);
    if (GetFileSystem(root) != FS_NTFS)
        return nullptr;
    volumeList.append(new CKdUiNTFSVolumeDescriptor(volume));
    return volumeList.last();
}
