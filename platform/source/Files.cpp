#include "FileNames.h"

#include <KxPlatform.h>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace {
std::optional<int> accessFlags(DWORD access)
{
    switch (access) {
    case GENERIC_READ:
        return O_RDONLY;
    case GENERIC_WRITE:
        return O_WRONLY;
    case GENERIC_READ | GENERIC_WRITE:
        return O_RDWR;
    default:
        return std::nullopt;
    }
}

std::optional<int> dispositionFlags(DWORD disposition, DWORD access)
{
    switch (disposition) {
    case CREATE_NEW:
        return O_CREAT | O_EXCL;
    case CREATE_ALWAYS:
        return O_CREAT | O_TRUNC;
    case OPEN_EXISTING:
        return 0;
    case OPEN_ALWAYS:
        return O_CREAT;
    case TRUNCATE_EXISTING:
        return access & GENERIC_WRITE ? std::optional<int>(O_TRUNC) : std::nullopt;
    default:
        return std::nullopt;
    }
}

const char *streamMode(int flags)
{
    switch (flags & O_ACCMODE) {
    case O_RDONLY:
        return "r";
    case O_WRONLY:
        return "w";
    default:
        return "r+";
    }
}

bool isDirectory(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode);
}

FILE *openStream(const QByteArray &name, int flags)
{
    const int descriptor = open(name.constData(), flags | O_CLOEXEC, 0666);
    if (descriptor < 0)
        return nullptr;
    FILE *stream = isDirectory(descriptor) ? nullptr : fdopen(descriptor, streamMode(flags));
    if (!stream)
        close(descriptor);
    return stream;
}

std::optional<std::wstring> currentDirectory()
{
    const std::unique_ptr<char, decltype(&std::free)> path(getcwd(nullptr, 0), &std::free);
    if (!path)
        return std::nullopt;
    const std::optional<QString> text = decodeFileName(QByteArray(path.get()));
    return text ? std::optional<std::wstring>(text->toStdWString()) : std::nullopt;
}

// Renames unless newName exists.
int renameToFreeName(const QByteArray &oldName, const QByteArray &newName)
{
    if (renameat2(AT_FDCWD, oldName.constData(), AT_FDCWD, newName.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    // Not every file system can look and rename in one step.
    struct stat status = {};
    if (errno != EINVAL || lstat(newName.constData(), &status) == 0)
        return -1;
    return std::rename(oldName.constData(), newName.constData());
}
} // namespace

HANDLE CreateFileW(const wchar_t *name, DWORD access, DWORD, SECURITY_ATTRIBUTES *, DWORD disposition, DWORD,
                   HANDLE)
{
    const auto encoded = encodeFileName(name);
    const auto accessing = accessFlags(access);
    const auto creating = dispositionFlags(disposition, access);
    if (!encoded || !accessing || !creating)
        return INVALID_HANDLE_VALUE;
    FILE *stream = openStream(*encoded, *accessing | *creating);
    return stream ? stream : INVALID_HANDLE_VALUE;
}

BOOL CloseHandle(HANDLE handle)
{
    if (!handle || handle == INVALID_HANDLE_VALUE)
        return FALSE;
    return std::fclose(static_cast<FILE *>(handle)) == 0;
}

BOOL DeleteFileW(const wchar_t *name)
{
    const auto encoded = encodeFileName(name);
    return encoded && unlink(encoded->constData()) == 0;
}

DWORD GetFileAttributesW(const wchar_t *name)
{
    const auto encoded = encodeFileName(name);
    struct stat status = {};
    if (!encoded || stat(encoded->constData(), &status) != 0)
        return INVALID_FILE_ATTRIBUTES;
    return status.st_mode;
}

DWORD GetCurrentDirectoryW(DWORD bufferMax, wchar_t *buffer)
{
    const std::optional<std::wstring> path = currentDirectory();
    if (!path)
        return 0;
    const auto length = DWORD(path->size());
    if (!buffer || bufferMax <= length)
        return length + 1;
    std::wmemcpy(buffer, path->c_str(), length + 1);
    return length;
}

BOOL SetCurrentDirectoryW(const wchar_t *path)
{
    const auto encoded = encodeFileName(path);
    return encoded && chdir(encoded->constData()) == 0;
}

int _wrename(const wchar_t *oldName, const wchar_t *newName)
{
    const auto encodedOld = encodeFileName(oldName);
    const auto encodedNew = encodeFileName(newName);
    if (!encodedOld || !encodedNew)
        return -1;
    // A name may be given to its bearer again.
    if (*encodedOld == *encodedNew)
        return std::rename(encodedOld->constData(), encodedNew->constData());
    return renameToFreeName(*encodedOld, *encodedNew);
}
