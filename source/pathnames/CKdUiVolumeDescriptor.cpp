#include "KxVolumes.h"

namespace {

enum DriveType : unsigned {
    driveWithoutRoot = 1,
    driveRemovable = 2,
    driveFixed = 3,
    driveRemote = 4,
    driveCdRom = 5,
    driveRamDisk = 6
};

bool holds(const CString &text, const wchar_t *part)
{
    return text.Find(part) >= 0;
}

bool holdsAny(const CString &text, const CString &forbidden)
{
    for (const wchar_t ch : text) {
        if (CKdUiVolumeDescriptor::IsControl(static_cast<int>(ch)) ||
            CKdUiVolumeDescriptor::Find(forbidden, static_cast<unsigned>(ch)) >= 0)
            return true;
    }
    return false;
}

CString withWildcards(const wchar_t *forbidden, bool allowWild)
{
    CString all(forbidden);
    if (!allowWild)
        all += L"*?";
    return all;
}

} // namespace

CKdUiVolumeDescriptor::CKdUiVolumeDescriptor(const CString &name)
    : m_localName(new CString(name))
    , m_multiByte(InitModeMultiByte())
{
    SetDriveType(driveFixed);
}

CKdUiVolumeDescriptor::~CKdUiVolumeDescriptor()
{
    ReleaseStringPtr(&m_localName);
    ReleaseStringPtr(&m_fsName);
    ReleaseStringPtr(&m_connectionName);
}

void CKdUiVolumeDescriptor::SetDriveType(unsigned driveType)
{
    m_flags = 0;
    switch (driveType) {
    case driveWithoutRoot:
        if ((*m_localName + m_separator).find(m_networkPrefix) == 0)
            m_flags = remote;
        break;
    case driveRemovable:
        m_flags = removable;
        break;
    case driveFixed:
        m_flags = fixedDrive;
        break;
    case driveRemote:
        m_flags = remote;
        GetConnectionName();
        break;
    case driveCdRom:
        m_flags = cdRom | readOnly;
        break;
    case driveRamDisk:
        m_flags = ramDisk;
        break;
    default:
        break;
    }
}

bool CKdUiVolumeDescriptor::InitModeMultiByte()
{
    return false;
}

bool CKdUiVolumeDescriptor::CheckReadOnly()
{
    return m_flags & readOnly;
}

bool CKdUiVolumeDescriptor::IsCaseSensitive()
{
    return m_flags & caseSensitive;
}

bool CKdUiVolumeDescriptor::PreservesCase()
{
    return true;
}

bool CKdUiVolumeDescriptor::AllowsCaseSensitiveLookup()
{
    return true;
}

void CKdUiVolumeDescriptor::VolCase(CString &) {}

bool CKdUiVolumeDescriptor::VolMatch(const wchar_t *left, const CString *right)
{
    if (!left || !right)
        return false;
    return (IsCaseSensitive() ? right->Compare(left) : right->CompareNoCase(left)) == 0;
}

bool CKdUiVolumeDescriptor::VolMatch(const CString *left, const CString *right)
{
    return left && CKdUiVolumeDescriptor::VolMatch(left->c_str(), right);
}

const CString *CKdUiVolumeDescriptor::GetLocalName()
{
    return m_localName;
}

unsigned CKdUiVolumeDescriptor::GetVolFreeSpace()
{
    return 0x7FFFFFFF;
}

bool CKdUiVolumeDescriptor::WillFit(unsigned)
{
    return true;
}

bool CKdUiVolumeDescriptor::VolumeValid()
{
    if (m_flags & (fixedDrive | ramDisk))
        return true;
    CString root(*m_localName);
    if (root.IsEmpty() || root.back() != m_separator)
        root += m_separator;
    CString fsName(L"nofilesystem");
    bool success = false;
    GetVolumeInfo(root, fsName, m_maxComponent, success);
    return success && IsNameOfKind(m_fsType, fsName);
}

bool CKdUiVolumeDescriptor::IsNameOfKind(FS_TYPE kind, const CString &fsName)
{
    switch (kind) {
    case FS_NTFS:
        return fsName == L"NTFS";
    case FS_FAT:
    case FS_VFAT:
        return fsName == L"FAT";
    case FS_HPFS:
        return fsName == L"HPFS";
    case FS_CDFS:
        return fsName == L"CDFS";
    case FS_UFS:
        return !holds(fsName, L"NFS");
    default:
        return false;
    }
}

int CKdUiVolumeDescriptor::Find(const CString &text, unsigned ch)
{
    return text.Find(static_cast<wchar_t>(ch));
}

bool CKdUiVolumeDescriptor::IsControl(int)
{
    return false;
}

void CKdUiVolumeDescriptor::GetConnectionName()
{
    ReleaseStringPtr(&m_connectionName);
    m_connectionName = new CString(L"GetConnectionName Failed");
}

CKdUiNTFSVolumeDescriptor::CKdUiNTFSVolumeDescriptor(const CString &name)
    : CKdUiVolumeDescriptor(name)
{
    m_fsType = FS_NTFS;
}

bool CKdUiNTFSVolumeDescriptor::ValidateFilename(const CString *name, bool allowWild)
{
    if (!name || name->size() > m_maxPath || !ValidateVolChar(name, name->c_str()[0]))
        return false;
    CString rest;
    StringFromPath(rest, name);
    return !holds(rest, m_networkPrefix) && !holdsAny(*name, withWildcards(L"<>|/\"", allowWild));
}

bool CKdUiNTFSVolumeDescriptor::ValidateSegment(const CString *segment, bool allowWild)
{
    return segment && segment->size() <= m_maxComponent &&
           !holdsAny(*segment, withWildcards(L":<>/\\|\"", allowWild));
}
