/// @file KxUiPathname.h
/// @brief CKdUiPathname, one file-system path as text.
///
/// Paths are UTF-32 texts; the functions of the platform library encode them for the file system.
#pragma once

#include "KxString.h"
#include "KxWinTypes.h"

#include <cstdio>
#include <memory>

class CKdUiVolumeDescriptor;

/// What a path name names.
enum path_type : int {
    PT_EMPTY = 0,     ///< Nothing was parsed.
    PT_PATH = 1,      ///< Nothing was found there, or the path was edited since it was looked up.
    PT_WILDCARD = 2,  ///< The last component holds "*" or "?".
    PT_FILE = 3,      ///< It exists and is no directory.
    PT_DIRECTORY = 4, ///< It exists and is a directory.
    PT_DEVICE = 5     ///< A device name.
};

/// What the text of a path begins with.
enum path_category : int {
    PC_DRIVE = 0,   ///< A letter and a colon.
    PC_UNC = 1,     ///< Two separators.
    PC_ROOTED = 2,  ///< One separator.
    PC_RELATIVE = 3 ///< Anything else: relative to a base.
};

/// A file-system path: parsed from what a user typed or a document holds, split, edited and looked up.
///
/// Parsing turns backslashes into the separator "/". A path with a drive letter is kept as text: it is never
/// looked up by GetAttributes(), and counts as not found. Paths that begin with two separators are refused.
///
/// The editing operations give a result code: 0 done; 1 bad argument or text; 2 not a path; 3 the edit would
/// leave the root of the path; 4 there is no separator where one is needed. Only those with code 0 change
/// something, and they set the type to #PT_PATH unless they say otherwise. Any text given may be one of this
/// object's own. Nothing throws for bad input.
class KX_MFC_EXPORT CKdUiPathname
{
public:
    /// @name Construction and copying
    /// @{

    /// An empty path name, with the separator "/".
    CKdUiPathname() = default;
    /// A deep copy of the texts; the volume is shared.
    CKdUiPathname(const CKdUiPathname &other);
    /// Copies with AssignCopy().
    CKdUiPathname &operator=(const CKdUiPathname &other);
    /// Not virtual: delete an object through a pointer to its own class.
    ~CKdUiPathname();
    /// Makes the path name empty. The category and the separator stay as they are.
    void Empty();
    /// @}

    /// @name Parsing
    /// @{

    /// Parses @p text against the current directory.
    /// @param text as in ParseRelative().
    /// @param flag no effect.
    /// @return the code of ParseRelative(); 4 when the name of the current directory is no path, for example
    /// because it holds a colon. Then the object is empty, too. Without a current directory, or with one
    /// above 1023 characters, only absolute paths can be parsed.
    virtual unsigned Parse(const wchar_t *text, bool flag = false);
    /// Replaces the content by a deep copy. Assigning a path name to itself changes nothing.
    virtual void AssignCopy(const CKdUiPathname &other);
    /// Parses @p text and looks it up in the file system.
    ///
    /// White space around the text is dropped, and so is a pair of double quotes with the white space around
    /// and inside it.
    /// @param text the text; it may be one of this object's own.
    /// @param base the directory that a relative @p text is relative to; may be this object. Null, or one
    /// that is no path, for absolute texts only.
    /// @param flag no effect.
    /// @return 0; 1 when the text is empty, holds a colon elsewhere than behind a drive letter, begins with
    /// two separators, or is relative without a base. Then the object is empty. 1 with the object as it was
    /// when @p text is null.
    unsigned ParseRelative(const wchar_t *text, const CKdUiPathname *base, bool flag = false);
    /// @return 1. Fixed result: nothing is searched for and nothing changes.
    unsigned ParseAndOSFind(const wchar_t *text);
    /// @}

    /// @name Queries
    /// @{

    /// @return the type as it was last found out; Exists() looks again.
    path_type GetPathType() const { return m_type; }
    /// @return whether the type is #PT_PATH, #PT_WILDCARD, #PT_FILE or #PT_DIRECTORY.
    bool IsPath() const { return m_type >= PT_PATH && m_type <= PT_DIRECTORY; }
    /// @return whether the type is #PT_EMPTY.
    bool IsEmpty() const { return m_type == PT_EMPTY; }
    /// @return the separator, "/".
    wchar_t GetSeparator() const { return m_separator; }
    /// @return the path as parsed and edited, without the base directory; valid until the next change. Null
    /// when empty.
    const wchar_t *GetPathString() const;
    /// Sets @p out to what follows the last separator, or else the last colon; it may be empty. An empty path
    /// name leaves @p out as it was.
    void GetBasename(CString &out) const;
    /// Sets @p out to the base name up to its last dot. Left as it was when the base name is empty, or when
    /// the type is #PT_EMPTY or #PT_WILDCARD.
    void GetFilename(CString &out) const;
    /// Sets @p out to what follows the last dot of the base name. Left as it was, and not emptied, when there
    /// is no dot: pass an empty string.
    void GetExtension(CString &out) const;
    /// Joins the base directory of a relative path and the path, and lets the platform correct the case.
    /// @param out receives the path as the file system spells it, or as it was joined when the platform finds
    /// no such path.
    /// @return true; false with @p out as it was when empty.
    bool GetFullPath(CString &out) const;
    /// Copies the full path.
    /// @param buf receives the text and its terminator; owned by the caller and large enough for both. An
    /// empty path name gives an empty text.
    /// @return as GetFullPath(CString &); false when @p buf is null.
    bool GetFullPath(wchar_t *buf) const;
    /// Does nothing: network paths are not supported. @p out stays as it is.
    void GetFullUNCPath(CString &out) const;
    /// Sets @p out, which may be this object, to the directory that the path lies in.
    ///
    /// The path is cut behind its last separator, or else its last colon, after a trailing separator was
    /// removed. The type is #PT_DIRECTORY, but #PT_PATH when a trailing separator was removed. The parent of
    /// a single relative component is the base directory, as an absolute path without a base; it is empty
    /// when there is none. Nothing happens when this is no path.
    void GetParent(CKdUiPathname &out) const;
    /// Shortens the path for a caption.
    ///
    /// A path that does not fit becomes a marker and as many of its last components as fit: "..." or, for a
    /// path with a drive, the name of its volume, if it has one, and "\...", with a backslash. When the
    /// marker and the base name do not fit either, the base name stands alone, its middle replaced by "~"
    /// where it is too long itself.
    /// @param out receives the text; empty when this is no path.
    /// @param maxChars the most characters; below 12 counts as 12, and -1 as the full length.
    void GetDisplayName(CString &out, int maxChars) const;
    /// Compares the full paths without regard to case or to a trailing separator.
    /// @return whether they are equal; false for null, or when the volumes differ; true for this object.
    bool PathMatch(const CKdUiPathname *other) const;
    /// Compares the full path with @p text, whose drive letter counts as upper case, without regard to case
    /// or to a trailing separator.
    /// @return whether they are equal; false for null.
    bool PathMatch(const wchar_t *text) const;
    /// @}

    /// @name Editing components
    /// @{

    /// Removes the last component and keeps the separator before it. A path that ends with a separator stays
    /// as it is, type included. A drive keeps its root: "C:x" becomes "C:/".
    unsigned Trim();
    /// Removes one trailing separator. A path without one stays as it is, type included. Code 3 for a root.
    unsigned TrimSlash();
    /// Removes the last component and the separator before it; a root stays.
    unsigned TrimComponent();
    /// Appends @p text as it is; null appends nothing.
    unsigned Append(const wchar_t *text);
    /// Appends a separator, unless the path is empty or ends with one or with a colon. The type stays.
    unsigned AppendSlash();
    /// Appends a separator, unless there is one at the end, and @p text; null appends the separator only.
    unsigned AppendComponent(const wchar_t *text);
    /// Removes white space around the base name without its extension. The type stays.
    void RemoveSpaces();
    /// Converts the base name to lower case, with the global locale. The type stays.
    void BaseToLower();
    /// Converts the base name to upper case, with the global locale. The type stays.
    void BaseToUpper();
    /// @}

    /// @name Extensions
    /// A list holds extensions without dots, separated by semicolons: "dat;txt".
    /// @{

    /// Compares the extension with those of a list, without regard to case.
    /// @return whether the list holds it. The empty list is that of a path without extension, which no other
    /// list holds. False for null.
    bool VerifyExtension(const wchar_t *list) const;
    /// Replaces the extension, or appends one.
    /// @param ext with or without its dot; the empty text removes the extension; null gives 1.
    unsigned ReplaceExtensionAlways(const wchar_t *ext);
    /// Replaces the extension by the first of @p list, unless the list holds it already; null gives 1.
    unsigned ReplaceExtensionIfNoMatch(const wchar_t *list);
    /// Appends a dot and an extension. Unlike ReplaceExtensionAlways() this takes a dot of @p ext for a part
    /// of it: ".dat" gives "name..dat".
    /// @param ext the empty text appends nothing; null gives 1.
    unsigned AddExtensionAlways(const wchar_t *ext);
    /// Appends the first extension of @p list, unless the list holds that of the path already; null gives 1.
    unsigned AddExtensionIfNoMatch(const wchar_t *list);
    /// Removes the extension with its dot.
    void RemoveExtensionAlways();
    /// Removes the extension when @p list holds it.
    void RemoveExtensionIfMatch(const wchar_t *list);
    /// Sets @p out to the first extension of a list, which may be empty. Null leaves @p out as it was.
    void GetFirstExtInList(const wchar_t *list, CString &out) const;
    /// @}

    /// @name The file
    /// @{

    /// Looks the path up again and sets the type.
    /// @return whether it exists; for a path whose base name was edited to hold a wildcard true once, until
    /// its type is #PT_WILDCARD. False for that type and when empty; true for a device.
    bool Exists();
    /// Opens an existing file for reading.
    /// @param handle receives a handle of CreateFileW(), to be released with CloseHandle(); on failure
    /// INVALID_HANDLE_VALUE.
    /// @return whether it could be opened.
    bool OpenReadOnly(void *&handle) const;
    /// Creates or empties a file for writing.
    /// @param handle receives a handle of CreateFileW(), to be released with CloseHandle(); on failure
    /// INVALID_HANDLE_VALUE.
    /// @return whether it could be opened.
    bool OpenWriteOnly(void *&handle) const;
    /// Not supported: ends the process with std::terminate().
    [[noreturn]] void Open(FILE **file, const wchar_t *mode);
    /// Renames or moves the file. The current directory is the base directory meanwhile, and stays so when
    /// the former one is gone or its name is longer than 1023 characters.
    /// @param newName taken over as the path on success; category, type and base directory stay.
    /// @return whether it was renamed. False for null, when @p newName exists, and when the current directory
    /// cannot be changed to the base directory.
    bool Rename(const wchar_t *newName);
    /// @return false. Fixed result: nothing is removed.
    bool Remove();
    /// Makes the name of a file beside this one that does not exist: the name without extension, five random
    /// digits of rand(), and the extension. A path without a name gets "kxTmp".
    ///
    /// A single relative component cannot be trimmed: its new name begins with the whole of it.
    /// @param out receives the name; may be this object. It is empty when 200 names were tried in vain, or
    /// when the directory and the extension leave no room below 1023 characters.
    /// @param always whether to do so for a path that does not exist itself.
    /// @return true; false, with @p out as it was, when empty; false when there is no room.
    bool GetUniqueName(CKdUiPathname &out, bool always) const;
    /// Looks a path up.
    /// @param path null gives #PT_PATH.
    /// @param baseDir the directory that @p path lies in. Null, there is none: nothing is looked up then.
    /// @param type receives #PT_WILDCARD when the base name holds "*" or "?"; #PT_DIRECTORY or #PT_FILE for
    /// what exists; else #PT_PATH. Null is ignored.
    void GetAttributes(const CString *path, const CString *baseDir, path_type *type) const;
    /// @}

    /// @name Volumes
    /// @{

    /// Tells the kind of file system of a volume, which the platform does not know.
    /// @param root gets a trailing separator; left alone when it is empty.
    /// @return 0; 1 when @p root is empty.
    int GetFileSystem(CString &root) const;
    /// Looks a volume up by its name.
    /// @param volume for example "C:", in this case.
    /// @return the first descriptor in ::volumeList with this name; else that of NewVolDescriptor(); null
    /// when @p volume is empty.
    CKdUiVolumeDescriptor *FindVolumeDescriptor(const CString &volume) const;
    /// Appends a descriptor to ::volumeList when the volume is an NTFS one.
    /// @return it; null for any other volume, which are all on this platform.
    CKdUiVolumeDescriptor *NewVolDescriptor(const CString &volume) const;
    /// @}

    /// @name Texts
    /// @{

    /// @return false. Fixed result: no name is that of a device.
    bool IsDeviceName(const CString &name) const;
    /// @return the last character; 0 for an empty string.
    static wchar_t GetLastCharacter(const CString &text);
    /// Drops white space at both ends.
    void StripSpaces(CString &text) const;
    /// Removes a pair of double quotes at both ends, with the white space around it. Other texts stay.
    void Unquote(CString &text) const;
    /// Copies exactly @p n characters and writes a terminator behind them. Nothing is written when a pointer
    /// is null or @p n is negative.
    /// @param dst room for @p n + 1 characters.
    /// @param src at least @p n characters.
    /// @param n the number of characters; below 0 nothing is written.
    void lstrncpy_x(wchar_t *dst, const wchar_t *src, int n) const;
    /// @}

protected:
    /// @name Fields
    /// @{
    path_type m_type = PT_EMPTY;               ///< What the path names, as last asked or edited.
    CKdUiVolumeDescriptor *m_volume = nullptr; ///< Borrowed from ::volumeList; null without a volume.
    CString *m_path = nullptr;                 ///< Owned; null when empty.
    CString *m_baseDir = nullptr;              ///< Owned: the base's full path; "" if rooted; null otherwise.
    path_category m_category = PC_RELATIVE;    ///< How the text begins.
    wchar_t m_separator = L'/';                ///< Between components; nothing changes it.
    bool m_explicit = false;                   ///< The parsed path held a separator, or its text a colon.
    /// @}

private:
    unsigned parseWork(std::unique_ptr<CString> work, const CKdUiPathname *base);
    void takePath(std::unique_ptr<CString> work, path_category category, const CKdUiPathname *base);
    bool isEditable() const;
    int volumeNameLength() const;
    std::size_t baseStart() const;
    unsigned refusalToCutAt(int pos) const;
    unsigned cutTo(std::size_t length);
    void mapBasename(void (*map)(CString &));
    bool splitBasename(std::size_t &begin, std::size_t &dot) const;
    void cutBasename(CString &out, std::size_t room) const;
    void cutDirectories(CString &out, std::size_t room) const;
    bool makeUnique();
    void tryNames(std::size_t place);
    bool openFullPath(DWORD access, DWORD shareMode, DWORD disposition, HANDLE &handle) const;
};

/// @name The steps of parsing
/// @{

/// Turns every backslash of a path into the separator.
/// @param work the path.
/// @param separator what stands between components.
/// @param first receives the first character.
/// @param second receives the second character; 0 when there is none.
KX_MFC_EXPORT void GetWorkString(CString &work, wchar_t separator, wchar_t &first, wchar_t &second);
/// Tells the category of a path from its first two characters.
/// @param work the path; a drive letter is made upper case.
/// @param separator what stands between components.
/// @param first the first character.
/// @param second the second character; 0 when there is none.
/// @param base what a relative path is relative to; may be null.
/// @param category receives the category.
/// @return false when the path holds a colon and has no drive, or is relative without a base that is a path.
KX_MFC_EXPORT bool GetPathCatType(CString &work, wchar_t separator, wchar_t first, wchar_t second,
                                  const CKdUiPathname *base, path_category &category);
/// Tells the category of a path that was parsed before; a drive letter is made upper case. Nothing happens
/// when @p path or the string is null.
KX_MFC_EXPORT void ParseRelPath(CString **path, wchar_t separator, path_category &category);
/// @return 0. Fixed result: network paths have no server and share, so that parsing refuses them.
KX_MFC_EXPORT unsigned GetUNCScount(const CString &work, wchar_t separator);
/// Finds what follows the prefix of a path. A network path that ends there gets a separator.
/// @param work the path.
/// @param separator what stands between components.
/// @param category the path's category.
/// @param prefix characters of the prefix; limited to those there are.
/// @return the rest of @p work, valid until it is changed.
KX_MFC_EXPORT const wchar_t *GetWorkPtrByIndex(CString &work, wchar_t separator, path_category category,
                                               int prefix);
/// Makes the base directory of a path.
/// @param category a rooted path has the name of its volume, an empty string without one; a relative path the
/// full path of its base; all others have none.
/// @param base what a relative path is relative to; may be null.
/// @param volume the volume of the path; may be null.
/// @param baseDir receives a new string, owned by the caller, or null; what was there is not deleted. Nothing
/// happens for null.
KX_MFC_EXPORT void GetRelPath(path_category category, const CKdUiPathname *base,
                              CKdUiVolumeDescriptor *volume, CString **baseDir);
/// Joins a base directory and a path, with one separator added when neither has it.
/// @param buffer receives the text; may be @p work.
/// @param baseDir the base directory; may be null.
/// @param separator what stands between components.
/// @param work the path.
/// @param flag no effect.
/// @return true.
KX_MFC_EXPORT bool GetPathBuffer(CString &buffer, const CString *baseDir, wchar_t separator,
                                 const CString &work, bool flag);
/// @}

/// @name Helpers of path names
/// @{

/// Looks up @p path in @p baseDir.
/// @return #PT_DIRECTORY, #PT_FILE for everything else that exists, or #PT_PATH.
KX_MFC_EXPORT path_type GetAttByPath(const CString &path, const CString &baseDir);
/// @return whether the base name holds "*" or "?".
KX_MFC_EXPORT bool IsPathType(const CString &baseName);
/// Removes the text from the last dot on, when the dot stands behind the last separator.
KX_MFC_EXPORT void GetPathStrNoExt(CString &path, wchar_t separator);
/// Makes a letter before a colon at the start of @p text upper case.
KX_MFC_EXPORT void upperPathFirstChar(CString &text);
/// Deletes the string at @p *text and sets the pointer to null. Does nothing for null.
KX_MFC_EXPORT void ReleaseCStrPtr(CString **text);
/// @}
