/// @file KxPlatform.h
/// @brief The Win32 and C run-time functions that the platform library provides.
///
/// File names are UTF-32 texts and reach the file system as QFile::encodeName() encodes them. A name that
/// holds something other than Unicode code points, or that has no encoding, names no file: the function
/// fails. A null argument gives the failure value; nothing here throws.
///
/// A platform library that takes the place of this one (see docs/platform.md) defines all that is declared here and in
/// KxEmbeddedResources.h.
#pragma once

#include "KxPlatformExport.h"

#include <KxWinTypes.h>

/// @name Resources and modules
/// @{

/// Copies the string resource @p id of a module into a buffer.
///
/// Of several languages the wanted one (see SetThreadUILanguage()) is taken, then another variant of it, then
/// the neutral one, then the first. Unlike Win32, a string that the language's table lacks is taken from the
/// next one in that order.
/// @param module what LoadLibraryW() gave, not yet released, or null for the program itself; any other value
/// is a module without resources.
/// @param id the string's identifier, at most 65535.
/// @param buffer receives the text, cut to @p bufferMax - 1 characters and terminated. A character beyond 16
/// bits counts as one.
/// @param bufferMax room in @p buffer, in characters.
/// @return the number of characters copied, without the terminator; 0 and an empty @p buffer when there is no
/// such string; 0 with nothing written when @p buffer is null or @p bufferMax is below 1. Unlike Win32, no
/// room does not ask for the resource's address.
KX_PLATFORM_EXPORT int LoadStringW(HINSTANCE module, UINT id, wchar_t *buffer, int bufferMax);

/// Chooses the language in which strings and images are loaded from now on, in all threads.
///
/// Without a call it is that in which QLocale() wants texts: as it was when the first resource was loaded,
/// and as it is then once an application object was made or destroyed.
/// @param language a language identifier; 0 takes the language of QLocale() as it is now, which is how a
/// change of the default locale is made known.
/// @return the language in effect; 0 when QLocale() has one that Win32 does not number.
KX_PLATFORM_EXPORT LANGID SetThreadUILanguage(LANGID language);

/// Loads a bitmap or icon, from the resources of a module or from a file.
///
/// The language is chosen as for strings. An image without transparency has the format RGB32, one with
/// transparency ARGB32. Unlike Win32, cursors are not loaded, and an icon's handle is deleted like that of a
/// bitmap.
/// @param module as in LoadStringW(); ignored with LR_LOADFROMFILE.
/// @param name the resource's name, in any case, "#" with its number, or MAKEINTRESOURCEW() of its number;
/// the file's name with LR_LOADFROMFILE.
/// @param type IMAGE_BITMAP or IMAGE_ICON; others are refused.
/// @param cx wanted width in pixels, to which the image is scaled; 0 keeps its own. Of an icon's images the
/// one of the nearest size is taken, or the first when both sizes are 0.
/// @param cy wanted height in pixels, as @p cx.
/// @param flags LR_LOADFROMFILE or 0; the other flags are ignored.
/// @return the handle of an image, known to the GDI object service and the image service, and owned by the
/// caller, who releases it with KxGdiObjectService::deleteObject(); null when there is no such image, when it
/// is damaged, or when a size is negative or too large.
KX_PLATFORM_EXPORT HANDLE LoadImageW(HINSTANCE module, const wchar_t *name, UINT type, int cx, int cy,
                                     UINT flags);

/// @return what stands for a resource's name in LoadImageW(): the low 16 bits of @p id, in place of an
/// address.
inline const wchar_t *MAKEINTRESOURCEW(int id)
{
    return reinterpret_cast<const wchar_t *>(std::uintptr_t(WORD(id)));
}

/// Loads a shared library with the dynamic loader, all its symbols resolved and none of them made global. Its
/// handle selects the resources that `kx_add_resources()` embedded in it.
///
/// A name without a slash is searched on the loader's path. Loading a library twice gives the same handle;
/// each success is paired with one FreeLibrary().
/// @return the module; null when @p name is null or empty, or when the loader refuses it.
KX_PLATFORM_EXPORT HINSTANCE LoadLibraryW(const wchar_t *name);

/// Releases one use of a module.
/// @param module what LoadLibraryW() gave, not yet released; anything else is refused.
/// @return nonzero on success; FALSE otherwise.
KX_PLATFORM_EXPORT BOOL FreeLibrary(HINSTANCE module);
/// @}

/// @name Files
/// @{

/// Opens or creates a file as a C stream.
///
/// The handle is the stream (`FILE *`), so that it can be read with the C library or given to CFile(handle).
/// @param name the file; directories are refused.
/// @param access GENERIC_READ, GENERIC_WRITE or both; others are refused.
/// @param shareMode ignored.
/// @param security ignored.
/// @param disposition CREATE_NEW fails when the file exists; CREATE_ALWAYS creates or empties it;
/// OPEN_EXISTING fails when it does not exist; OPEN_ALWAYS creates it when needed; TRUNCATE_EXISTING empties
/// it, fails when it does not exist and needs GENERIC_WRITE. Others are refused.
/// @param flags ignored.
/// @param templateFile ignored.
/// @return the stream, owned by the caller and released with CloseHandle() or fclose(); INVALID_HANDLE_VALUE
/// on failure.
KX_PLATFORM_EXPORT HANDLE CreateFileW(const wchar_t *name, DWORD access, DWORD shareMode,
                                      SECURITY_ATTRIBUTES *security, DWORD disposition, DWORD flags,
                                      HANDLE templateFile);

/// Closes the stream behind a handle of CreateFileW().
/// @param handle such a handle, not yet closed; anything else but null and INVALID_HANDLE_VALUE is undefined.
/// @return nonzero on success; FALSE for null and INVALID_HANDLE_VALUE, or when buffered data could not be
/// written.
KX_PLATFORM_EXPORT BOOL CloseHandle(HANDLE handle);

/// Removes a file, or a symbolic link but not its target.
/// @return nonzero on success; FALSE when it does not exist, is a directory or cannot be removed.
KX_PLATFORM_EXPORT BOOL DeleteFileW(const wchar_t *name);

/// @return the POSIX mode word (st_mode) of what @p name names, symbolic links followed, in place of the
/// Win32 attribute bits; INVALID_FILE_ATTRIBUTES when it does not exist or cannot be reached.
KX_PLATFORM_EXPORT DWORD GetFileAttributesW(const wchar_t *name);

/// Copies the absolute path of the current directory, without a trailing slash except for the root.
/// @param bufferMax room in @p buffer, in characters.
/// @param buffer receives the path; null asks for the room needed.
/// @return the length without the terminator; when the room does not suffice or @p buffer is null, the room
/// needed with the terminator, and nothing is written; 0 when there is no current directory, or when its name
/// is no text.
KX_PLATFORM_EXPORT DWORD GetCurrentDirectoryW(DWORD bufferMax, wchar_t *buffer);

/// Changes the current directory of the process.
/// @return nonzero on success; FALSE when @p path is not a directory that can be entered.
KX_PLATFORM_EXPORT BOOL SetCurrentDirectoryW(const wchar_t *path);

/// Renames or moves a file or directory within a file system.
/// @return 0 on success; -1 on failure, also when @p newName exists, as the Windows run-time library has it.
KX_PLATFORM_EXPORT int _wrename(const wchar_t *oldName, const wchar_t *newName);
/// @}

/// @name Wide characters and memory
/// The number parsers skip leading white space, take an optional sign and the longest number that follows.
/// @{

/// @return the decimal number at the start of @p text, limited to the range of int; 0 when there is none.
KX_PLATFORM_EXPORT int _wtoi(const wchar_t *text);

/// @return the decimal number at the start of @p text, limited to the range of long (64 bits, unlike Win32);
/// 0 when there is none.
KX_PLATFORM_EXPORT long _wtol(const wchar_t *text);

/// @return the floating-point number at the start of @p text, written in the C library's locale as "%f"
/// writes it; 0 when there is none; plus or minus infinity when it is too large.
KX_PLATFORM_EXPORT double _wtof(const wchar_t *text);

/// @return the character position after @p current; null for null.
KX_PLATFORM_EXPORT wchar_t *_wcsinc(const wchar_t *current);

/// @return the character at @p current; 0 for null.
KX_PLATFORM_EXPORT unsigned int _wcsnextc(const wchar_t *current);

/// Copies bytes when they fit. The blocks must not overlap.
/// @param dest receives the bytes.
/// @param destSize room in @p dest, in bytes.
/// @param src the bytes.
/// @param count their number.
/// @return 0 on success, also when @p count is 0; EINVAL when @p dest is null; EINVAL with all of @p dest
/// zeroed when @p src is null; ERANGE with all of @p dest zeroed when @p count exceeds @p destSize.
KX_PLATFORM_EXPORT int memcpy_s(void *dest, std::size_t destSize, const void *src, std::size_t count);
/// @}
