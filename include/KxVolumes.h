/// @file KxVolumes.h
/// @brief Volume descriptors: what the file system of a drive letter accepts as a name.
///
/// The platform tells nothing about volumes, so the library makes no descriptor by itself: the list stays
/// empty and every path name is without a volume. The application may put descriptors of its own into the
/// list. Nothing here is synchronised: it belongs to the thread that parses paths.
#pragma once

#include "KxString.h"
#include "KxWinTypes.h"

#include <QList>

#include <cstdio>

/// Kinds of file systems. 1 and 7 are not used.
enum FS_TYPE : unsigned {
    FS_NONE = 0, ///< No file system.
    FS_NTFS = 2, ///< That of CKdUiNTFSVolumeDescriptor.
    FS_FAT = 3,  ///< FAT with names of 8.3 characters.
    FS_VFAT = 4, ///< FAT with long names.
    FS_HPFS = 5, ///< The high-performance file system.
    FS_CDFS = 6, ///< The file system of a CD-ROM.
    FS_UFS = 8   ///< A network file system.
};

/// The rules of one volume. Where a text is null, the answer is false.
class KX_MFC_EXPORT CKdUiVolumeDescriptor
{
public:
    /// Flags of a volume.
    enum Flag : BYTE {
        fixedDrive = 0x01,   ///< A drive whose medium stays.
        removable = 0x02,    ///< A drive whose medium can be taken out.
        cdRom = 0x04,        ///< A CD-ROM drive; #readOnly too.
        remote = 0x08,       ///< A drive of the network.
        ramDisk = 0x10,      ///< A drive in memory.
        readOnly = 0x20,     ///< What CheckReadOnly() gives.
        caseSensitive = 0x40 ///< What IsCaseSensitive() gives; nothing here sets it.
    };

    /// A fixed drive, whatever the volume is.
    /// @param name the volume's name, for example "C:".
    explicit CKdUiVolumeDescriptor(const CString &name);
    CKdUiVolumeDescriptor(const CKdUiVolumeDescriptor &) = delete;
    CKdUiVolumeDescriptor &operator=(const CKdUiVolumeDescriptor &) = delete;
    /// Frees the names.
    virtual ~CKdUiVolumeDescriptor();

    /// @return whether the volume cannot be written.
    virtual bool CheckReadOnly();
    /// Checks a whole file name.
    /// @param name the name, with its directories and drive.
    /// @param allowWild whether "*" and "?" are allowed.
    /// @return whether the volume accepts it.
    virtual bool ValidateFilename(const CString *name, bool allowWild) = 0;
    /// Checks one component of a name.
    /// @param segment the component, without separators.
    /// @param allowWild whether "*" and "?" are allowed.
    /// @return whether the volume accepts it.
    virtual bool ValidateSegment(const CString *segment, bool allowWild) = 0;
    /// @return whether names that differ in case only are different.
    virtual bool IsCaseSensitive();
    /// @return true. Fixed result.
    virtual bool PreservesCase();
    /// @return true. Fixed result.
    virtual bool AllowsCaseSensitiveLookup();
    /// Gives a path the case in which the volume keeps it: @p path stays as it is.
    virtual void VolCase(CString &path);
    /// @return whether two names are the same one on this volume, with regard to case only where
    /// IsCaseSensitive().
    virtual bool VolMatch(const wchar_t *left, const CString *right);
    /// @return whether two names are the same one on this volume, with regard to case only where
    /// IsCaseSensitive().
    virtual bool VolMatch(const CString *left, const CString *right);
    /// @return the name given to the constructor, owned by the descriptor.
    virtual const CString *GetLocalName();
    /// Fixed result: 0x7FFFFFFF bytes. The free space is not known.
    virtual unsigned GetVolFreeSpace();
    /// Fixed result: true. The free space is not known.
    /// @param size in bytes; ignored.
    virtual bool WillFit(unsigned size);
    /// @return whether the volume is still of its kind: true for a fixed drive and a RAM disk; false for all
    /// others, since the platform does not tell.
    virtual bool VolumeValid();

    /// @return the index of the first @p ch in @p text, or -1.
    static int Find(const CString &text, unsigned ch);
    /// @return false. Fixed result: no character counts as a control character.
    static bool IsControl(int ch);
    /// Sets the connection name to "GetConnectionName Failed": the platform knows no connections.
    void GetConnectionName();

protected:
    /// @return false. Fixed result: names are not multibyte texts.
    static bool InitModeMultiByte();
    /// @return whether @p fsName is the name of a file system of this @p kind. For a network file system the
    /// test is inverted: ported code relies on true when the name does not contain "NFS".
    static bool IsNameOfKind(FS_TYPE kind, const CString &fsName);
    /// Replaces the flags by those of a Win32 drive type.
    ///
    /// Removable (2), fixed (3) and RAM disk (6) have one flag each. A CD-ROM (5) is read-only too. A remote
    /// drive (4) gets a connection name. A drive without a root (1) is remote when its name followed by a
    /// backslash begins with the network prefix. All others have none.
    void SetDriveType(unsigned driveType);

    /// @name Fields
    /// @{
    FS_TYPE m_fsType = FS_NONE;               ///< Set by the subclass.
    BYTE m_flags = 0;                         ///< Flag values, combined.
    CString *m_localName = nullptr;           ///< Owned; never null.
    unsigned m_maxComponent = 255;            ///< Longest component, in characters.
    unsigned m_maxPath = 1023;                ///< Longest path, in characters.
    wchar_t m_separator = L'\\';              ///< Between components.
    bool m_multiByte = false;                 ///< What InitModeMultiByte() gave.
    unsigned m_fsFlags = 0;                   ///< File-system flags.
    CString *m_fsName = nullptr;              ///< Name of the file system, owned; null.
    CString *m_connectionName = nullptr;      ///< Owned; null unless the volume is remote.
    const wchar_t *m_networkPrefix = L"\\\\"; ///< What a network path begins with.
    /// @}
};

/// An NTFS volume.
class KX_MFC_EXPORT CKdUiNTFSVolumeDescriptor : public CKdUiVolumeDescriptor
{
public:
    /// @copydoc CKdUiVolumeDescriptor::CKdUiVolumeDescriptor
    explicit CKdUiNTFSVolumeDescriptor(const CString &name);

    /// Refuses a name above 1023 characters, a colon elsewhere than behind a drive letter, two backslashes
    /// behind the first character, and the characters &lt; &gt; | / and the double quote. Backslashes and
    /// the colon are accepted. The empty name is valid.
    bool ValidateFilename(const CString *name, bool allowWild) override;
    /// Refuses a component above 255 characters and the characters : &lt; &gt; / \\ | and the double quote.
    /// The empty component is valid.
    bool ValidateSegment(const CString *segment, bool allowWild) override;
};

/// Deletes the descriptors in ::volumeList when the process ends or unloads the library.
class KX_MFC_EXPORT CDelVolumeList
{
public:
    /// Makes an object; the list stays as it is.
    CDelVolumeList() = default;
    CDelVolumeList(const CDelVolumeList &) = delete;
    CDelVolumeList &operator=(const CDelVolumeList &) = delete;
    /// Empties ::volumeList and deletes what was in it.
    ~CDelVolumeList();
};

/// The descriptors that CKdUiPathname looks up, owned by the list. Path names borrow them, so that none is to
/// be deleted before the path names of its volume. Empty at start.
extern KX_MFC_EXPORT QList<CKdUiVolumeDescriptor *> volumeList;
/// Made after ::volumeList and destroyed before it.
extern KX_MFC_EXPORT CDelVolumeList volumelistdel;

/// Tells the kind of a file system by its name.
/// @param fsName "NTFS", "HPFS", "CDFS" or a name with "NFS" in it; any other name, and null, is FAT.
/// @param type receives the kind. FAT is #FS_FAT when @p maxComponent is 12, else #FS_VFAT.
/// @param maxComponent longest component, in characters; 12 where names have 8.3 characters.
KX_MFC_EXPORT void GetDriveTypeByVol(const wchar_t *fsName, FS_TYPE &type, unsigned maxComponent);

/// Writes the name of a kind of file system and a line feed, with fwprintf(): "NTFS", "FAT", "VFAT", "NOFS"
/// for 0, "UFS", "CDFS", "HPFS"; "???" for any other.
/// @param f the stream, which is not closed. With null, or a null stream, nothing is written.
/// @param t the kind.
KX_MFC_EXPORT void dump_file_type(FILE **f, FS_TYPE t);

/// Checks the colons of a name.
/// @param name the name.
/// @param first the name's first character.
/// @return true without a colon, and when the last colon is at index 1 and @p first is a letter; false
/// otherwise and for null.
KX_MFC_EXPORT bool ValidateVolChar(const CString *name, wchar_t first);

/// Sets @p out to @p path without its first character. With null, @p out stays as it is.
KX_MFC_EXPORT void StringFromPath(CString &out, const CString *path);

/// @name Volume information
/// No counterpart on this platform: nothing is known about any volume.
/// @{

/// Fixed result: sets @p success to false. All else stays as it is.
KX_MFC_EXPORT void GetVolumeInfo(const wchar_t *root, CString &fsName, unsigned &maxComponent, bool &success);
/// Fixed result: 1. Everything stays as it is.
KX_MFC_EXPORT unsigned GetVolumeInfo(const wchar_t *root, CString &volumeName, unsigned &maxComponent,
                                     unsigned &fsFlags, CString &fsName);
/// @}

/// Case mapping that lets no exception through.
struct KX_MFC_EXPORT KxErrorEat
{
    /// Converts to upper case with the global locale. A text that its locale refuses by throwing stays as it
    /// was.
    static void strMakeUpper(CString &text);
    /// Converts to lower case with the global locale. A text that its locale refuses by throwing stays as it
    /// was.
    static void strMakeLower(CString &text);
};

/// Deletes the string at @p *text and sets the pointer to null. Does nothing for null.
KX_MFC_EXPORT void ReleaseStringPtr(CString **text);

/// Finds a buffer for the bytes of a text and its terminator: four for each character.
/// @param text only its length counts.
/// @param buffer 1024 bytes of the caller, or null.
/// @return @p buffer with all its bytes cleared, when it suffices; else a new array, cleared, which the
/// caller releases with delete[].
KX_MFC_EXPORT char *InitVolumeChar(CString &text, char *buffer);
