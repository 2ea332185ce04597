/// @file KxFiles.h
/// @brief The file classes, file status and time.
///
/// Unlike in MFC nothing throws: failures are results, and CFileException arguments are ignored. Names are
/// encoded as Qt encodes file names; a character that the locale cannot express is replaced.
#pragma once

#include "KxString.h"
#include "KxWinTypes.h"

#include <cstddef>
#include <cstdint>
#include <ctime>
#include <memory>

class QFile;
class QFileInfo;
struct CFileImpl;
struct CStdioFileImpl;

/// Accepted by CFile::Open() and ignored.
class CFileException
{
};

/// A point in time in whole seconds.
class KX_MFC_EXPORT CTime
{
public:
    /// The epoch, 1 January 1970 UTC.
    CTime() = default;
    /// @param time seconds since the epoch.
    CTime(std::time_t time)
        : m_time(time)
    {
    }
    /// A local time, in the time zone of the process.
    ///
    /// Values out of their range are carried over, as mktime() does: the 32nd of January is the 1st of
    /// February. A time that cannot be expressed gives -1 seconds.
    /// @param year the full year, for example 2024.
    /// @param month 1 for January.
    /// @param day 1 for the first.
    /// @param hour hours since midnight.
    /// @param minute minutes of the hour.
    /// @param second seconds of the minute.
    /// @param dst positive: the values are in daylight saving time, 0: they are not, negative: the time zone
    /// decides.
    CTime(int year, int month, int day, int hour, int minute, int second, int dst = -1);

    /// @return seconds since the epoch.
    std::time_t GetTime() const { return m_time; }

    /// @name Comparison by the seconds since the epoch
    /// @{
    bool operator==(CTime time) const
    {
        return m_time == time.m_time;
    } ///< @return whether both are the same.
    bool operator!=(CTime time) const { return m_time != time.m_time; } ///< @return whether they differ.
    bool operator<(CTime time) const { return m_time < time.m_time; }   ///< @return whether this is earlier.
    bool operator>(CTime time) const { return m_time > time.m_time; }   ///< @return whether this is later.
    bool operator<=(CTime time) const
    {
        return m_time <= time.m_time;
    } ///< @return whether this is not later.
    bool operator>=(CTime time) const
    {
        return m_time >= time.m_time;
    } ///< @return whether this is not earlier.
    /// @}

private:
    std::int64_t m_time = 0;
};

/// What is known about a file.
struct CFileStatus
{
    CTime m_ctime;              ///< Creation; where none is kept, the last status change.
    CTime m_mtime;              ///< Last modification.
    CTime m_atime;              ///< Last access.
    long long m_size;           ///< In bytes.
    BYTE m_attribute;           ///< CFile::normal, CFile::readOnly or CFile::hidden, never two of them.
    wchar_t m_szFullName[1024]; ///< The absolute path.
};

static_assert(sizeof(CTime) == 8);
static_assert(offsetof(CFileStatus, m_mtime) == 8 && offsetof(CFileStatus, m_atime) == 16);
static_assert(offsetof(CFileStatus, m_size) == 24 && offsetof(CFileStatus, m_attribute) == 32);
static_assert(offsetof(CFileStatus, m_szFullName) == 36 && sizeof(CFileStatus) == 4136);

/// Fills @p status from what @p info knows, with times in whole seconds.
///
/// A file that can be read and not written is read-only; only another one can be hidden.
/// @return TRUE; FALSE, with @p status untouched, when the file does not exist or its absolute path does not
/// fit m_szFullName with its terminator.
KX_MFC_EXPORT BOOL GetFileStatus(QFileInfo info, CFileStatus &status);

/// A binary file on a QFile, with Qt's buffering.
///
/// Written data is sure to be in the file after Flush(), Seek(), Close() or destruction.
class KX_MFC_EXPORT CFile : public CObject
{
public:
    /// Flags of Open(). Only modeWrite, modeReadWrite and typeText have an effect; the others, sharing modes
    /// among them, are ignored.
    enum OpenFlags : unsigned {
        modeRead = 0x0000,       ///< Opens a file that exists.
        modeWrite = 0x0001,      ///< Creates or empties the file, whether or not modeCreate is set.
        modeReadWrite = 0x0002,  ///< Creates the file where needed and never empties it.
        shareCompat = 0x0000,    ///< Ignored.
        shareExclusive = 0x0010, ///< Ignored.
        shareDenyWrite = 0x0020, ///< Ignored.
        shareDenyRead = 0x0030,  ///< Ignored.
        shareDenyNone = 0x0040,  ///< Ignored.
        modeNoInherit = 0x0080,  ///< Ignored.
        modeCreate = 0x1000,     ///< Ignored: modeWrite and modeReadWrite create without it.
        modeNoTruncate = 0x2000, ///< Ignored: modeWrite empties and modeReadWrite keeps the file.
        typeText = 0x4000,       ///< Reading drops carriage returns. Line ends are written unchanged.
        typeBinary = 0x8000      ///< The default: bytes as they are.
    };
    /// Origins of Seek(), which does not apply them.
    enum SeekPosition : unsigned { begin = 0, current = 1, end = 2 };
    /// Values of CFileStatus::m_attribute: readable only, hidden, or neither.
    enum Attribute : BYTE { normal = 0, readOnly = 1, hidden = 2 };

    /// The open C stream that was given to CFile(void *), or the file descriptor after Open(); all bits set
    /// (INVALID_HANDLE_VALUE) when there is neither.
    HANDLE m_hFile;

    /// An object without a file.
    CFile();
    /// Reads and writes on an open C stream, such as CreateFileW() gives.
    ///
    /// Neither Close() nor the destructor closes the stream, and it must not be closed before them.
    /// GetStatus() fails, since a stream has no name.
    /// @param hFile a `FILE *`, owned by the caller. With null or INVALID_HANDLE_VALUE there is no file.
    explicit CFile(void *hFile);
    /// Opens @p name with @p flags as CFile::Open() does. Whether it succeeded shows in #m_hFile.
    CFile(const wchar_t *name, unsigned flags);
    /// Closes the file as CFile::Close() does, not as an override would.
    ~CFile() override;

    /// Opens a file. A file that is still open is closed first.
    ///
    /// Unlike in MFC the sharing flags do nothing, modeWrite empties the file always, and modeCreate |
    /// modeReadWrite does not.
    /// @param name the file, absolute or in the current directory.
    /// @param flags OpenFlags, combined. modeWrite | modeReadWrite is modeReadWrite.
    /// @param error ignored.
    /// @return TRUE; FALSE when the file cannot be opened so or is a directory. FALSE with no effect when @p
    /// name is null.
    virtual BOOL Open(const wchar_t *name, unsigned flags, CFileException *error = nullptr);
    /// @return the size in bytes, with all that was written; 0 when there is no such file. A file that was
    /// closed has the size that is on disk.
    virtual unsigned long long GetLength() const;
    /// @return the position in bytes from the start; 0 when the file is closed.
    virtual unsigned long long GetPosition() const;
    /// Moves the position. It may lie past the end.
    ///
    /// Unlike in MFC the origin is not applied: @p offset always counts from the start. Ported code computes
    /// absolute positions itself.
    /// @param offset bytes from the start of the file.
    /// @param from a SeekPosition. The position is first moved to this number, so where that fails it stays.
    /// @return the position then, whether or not the move succeeded; 0 when the file is closed.
    virtual unsigned long long Seek(long long offset, unsigned from);
    /// Reads at the position and moves it.
    /// @param buf receives the data; owned by the caller.
    /// @param count bytes to read at most.
    /// @return the bytes read, 0 at the end of the file; -1 as an unsigned number on failure, also when the
    /// file is closed, was opened for writing only, or @p buf is null and @p count is not 0.
    virtual unsigned Read(void *buf, unsigned count);
    /// Writes at the position and moves it.
    ///
    /// Unlike in MFC this has a result. Small pieces are collected: whether they could be written shows in a
    /// later call, or in GetLength(), which gives 0 when it could not write them.
    /// @param buf the data; owned by the caller.
    /// @param count bytes at @p buf.
    /// @return the bytes taken; -1 as an unsigned number on failure, also when the file is closed, was opened
    /// for reading only, or @p buf is null and @p count is not 0.
    virtual unsigned Write(const void *buf, unsigned count);
    /// Moves the position to 0.
    /// @return whether it could be moved; FALSE when the file is closed.
    virtual BOOL SeekToBegin();
    /// Writes what was collected and closes the file. The object can be opened again.
    virtual void Close();
    /// Writes what was collected. Does nothing when the file is closed.
    virtual void Flush();

    /// Fills @p status for the file that was last opened, whether or not it could be.
    ///
    /// What the first call after Open() finds out is remembered: later calls give the same until the next
    /// Open().
    /// @return as GetFileStatus(); FALSE when no file was opened by name.
    BOOL GetStatus(CFileStatus &status) const;
    /// Fills @p status for the file @p name as it is now.
    /// @return as GetFileStatus(); FALSE with no effect when @p name is null.
    static BOOL GetStatus(const wchar_t *name, CFileStatus &status);
    /// Removes the file @p name with DeleteFileW().
    /// @return nonzero on success.
    static BOOL Remove(const wchar_t *name);

    /// @return the QFile behind this object, which owns it; never null.
    QFile *implement() const;

private:
    std::unique_ptr<CFileImpl> m_impl;
};

/// A text file of lines, on a QTextStream over the file.
///
/// Text is encoded by Qt's codec for the locale; when reading, a byte order mark selects a Unicode encoding.
/// The stream is attached by Open() alone. It reads and writes ahead, so do not mix its members with Read(),
/// Write() and Seek(): after ReadString() neither Flush() nor Seek() brings the stream back, Open() does.
class KX_MFC_EXPORT CStdioFile : public CFile
{
public:
    /// An object without a file.
    CStdioFile();
    /// Opens the file for the members of CFile only.
    ///
    /// Unlike in MFC, WriteString() then writes nothing and ReadString() gives empty lines: ported code calls
    /// Open() for text.
    CStdioFile(const wchar_t *name, unsigned flags);
    /// Closes the file. Text written after the last Flush() or Close() may be lost, unlike in MFC.
    ~CStdioFile() override;

    /// Opens a file as CFile::Open() does and attaches the text stream.
    BOOL Open(const wchar_t *name, unsigned flags, CFileException *error = nullptr) override;
    /// Writes the text that WriteString() collected, and closes the file.
    void Close() override;
    /// Writes the text that WriteString() collected, and not what Write() did.
    void Flush() override;

    /// Writes @p text as it is; no line end is added.
    ///
    /// Nothing is written when @p text is null, when the file was not opened for writing by Open(), or after
    /// text could not be written, until the next Open().
    virtual void WriteString(const wchar_t *text);
    /// Reads a whole line, whatever its length, without its line end (LF or CR LF).
    /// @param buf receives the line and a terminator; owned by the caller and large enough for both.
    /// @param max ignored, unlike in MFC.
    /// @return @p buf, also at the end of the file, where the line is empty. With null nothing is read.
    virtual wchar_t *ReadString(wchar_t *buf, unsigned max);
    /// Reads a whole line, whatever its length, without its line end (LF or CR LF).
    /// @param line receives the line; empty when there is none to read.
    /// @return TRUE always, also at the end of the file, unlike in MFC: end a loop by what the file contains.
    virtual BOOL ReadString(CString &line);

private:
    std::unique_ptr<CStdioFileImpl> m_stdio;
};

// Memory files hide Read() and Write() of files on purpose: there is no file behind them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"

/// A view of a block of memory.
///
/// It has no position and its Read() and Detach() are not virtual: the operations of CFile, called through a
/// CFile pointer, find a closed file.
class KX_MFC_EXPORT CMemFile : public CFile
{
public:
    /// @param buffer the block, owned by the caller, who keeps it as long as this object reads it.
    /// @param size bytes of the block.
    CMemFile(unsigned char *buffer, unsigned size);
    ~CMemFile() override;

    /// Copies from the start of the block, in every call.
    /// @param dst receives the data; owned by the caller. With null nothing is copied.
    /// @param count bytes to copy; no more than the block has are copied.
    /// @return @p dst, not a count as in MFC.
    unsigned char *Read(unsigned char *dst, unsigned count);
    /// @return null. Fixed result: the block stays.
    unsigned char *Detach();

protected:
    /// @name The block
    /// @{
    unsigned char *m_lpBuffer; ///< The bytes; null when there is no block.
    unsigned m_nBufferSize;    ///< In bytes. Keeps its value when the block is detached.
    /// @}
};

/// What an HGLOBAL points to: a block of memory. Both are allocated with malloc().
struct KxGlobalMemory
{
    void *block;        ///< The bytes, owned; null when there are none.
    std::uint64_t size; ///< Bytes of the block.
    std::uint64_t zero; ///< 0.
};

static_assert(offsetof(KxGlobalMemory, size) == 8 && offsetof(KxGlobalMemory, zero) == 16);
static_assert(sizeof(KxGlobalMemory) == 24);

/// A memory file that owns its block and can hand it out for the clipboard.
class KX_MFC_EXPORT CSharedFile : public CMemFile
{
public:
    /// An object without a block.
    /// @param allocFlags ignored.
    explicit CSharedFile(int allocFlags = 0);
    /// Frees the block, unless it was handed out.
    ~CSharedFile() override;

    /// Replaces the content by a copy of @p src. Unlike in MFC nothing is appended.
    ///
    /// The former block is not freed; it belongs to whoever kept its address. Write once, or Detach() first.
    ///
    /// The former content stays when @p src is null and @p count is not 0, or when there is no memory.
    /// @param src the data; owned by the caller.
    /// @param count bytes at @p src.
    void Write(unsigned char *src, unsigned count);
    /// Hands out the block. The object has none then and can be written again.
    /// @return a new KxGlobalMemory, owned by the caller or by the clipboard store that takes it. Its block
    /// is null when there was none, whereas its size is that of the last Write(). Null when there is no
    /// memory.
    HGLOBAL Detach();

private:
    [[maybe_unused]] int m_reserved = 0;
};

#pragma GCC diagnostic pop

/// Tells whether a file exists. It neither matches wildcards nor lists directories.
class KX_MFC_EXPORT CFileFind
{
public:
    /// @param name the file or directory; wildcards are taken literally.
    /// @param unused ignored.
    /// @return whether it exists; FALSE when @p name is null.
    virtual BOOL FindFile(const wchar_t *name, unsigned unused = 0);
};
