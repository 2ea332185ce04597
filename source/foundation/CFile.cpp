#include "KxFiles.h"

#include "foundation/QtConversions.h"

#include <KxPlatform.h>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

struct CFileImpl
{
    QFile file;
    QFileInfo info;
};

namespace {

constexpr auto failed = static_cast<unsigned>(-1);

QIODevice::OpenMode openMode(unsigned flags)
{
    QIODevice::OpenMode mode = flags & CFile::modeWrite ? QIODevice::WriteOnly : QIODevice::ReadOnly;
    if (flags & CFile::modeReadWrite)
        mode |= QIODevice::ReadWrite;
    if (flags & CFile::typeText)
        mode |= QIODevice::Text;
    return mode;
}

} // namespace

CFile::CFile()
    : m_hFile(INVALID_HANDLE_VALUE)
    , m_impl(std::make_unique<CFileImpl>())
{
}

CFile::CFile(void *hFile)
    : CFile()
{
    if (!hFile || hFile == INVALID_HANDLE_VALUE)
        return;

    m_hFile = hFile;
    m_impl->file.open(static_cast<FILE *>(hFile), QIODevice::ReadWrite, QFileDevice::DontCloseHandle);
    m_impl->info.setFile(m_impl->file);
}

CFile::CFile(const wchar_t *name, unsigned flags)
    : CFile()
{
    CFile::Open(name, flags, nullptr);
}

CFile::~CFile()
{
    CFile::Close();
}

BOOL CFile::Open(const wchar_t *name, unsigned flags, CFileException *)
{
    if (!name)
        return FALSE;

    CFile::Close();
    const QString qtName = toQString(name);
    m_impl->file.setFileName(qtName);
    m_impl->info.setFile(qtName);
    if (qtName.isEmpty() || !m_impl->file.open(openMode(flags)))
        return FALSE;

    m_hFile = reinterpret_cast<HANDLE>(std::intptr_t{m_impl->file.handle()});
    return TRUE;
}

unsigned long long CFile::GetLength() const
{
    return static_cast<unsigned long long>(m_impl->file.size());
}

unsigned long long CFile::GetPosition() const
{
    return static_cast<unsigned long long>(m_impl->file.pos());
}

unsigned long long CFile::Seek(long long offset, unsigned from)
{
    // The origin is a position of its own: ported code passes absolute offsets with any origin.
    if (m_impl->file.isOpen() && m_impl->file.seek(from))
        m_impl->file.seek(offset);
    return GetPosition();
}

unsigned CFile::Read(void *buf, unsigned count)
{
    if ((!buf && count > 0) || !m_impl->file.isReadable())
        return failed;
    return static_cast<unsigned>(m_impl->file.read(static_cast<char *>(buf), count));
}

unsigned CFile::Write(const void *buf, unsigned count)
{
    if ((!buf && count > 0) || !m_impl->file.isWritable())
        return failed;
    return static_cast<unsigned>(m_impl->file.write(static_cast<const char *>(buf), count));
}

BOOL CFile::SeekToBegin()
{
    return m_impl->file.isOpen() && m_impl->file.seek(0);
}

void CFile::Close()
{
    m_impl->file.close();
    // QFile would still ask a C stream for its size, which the owner may close from here on.
    if (m_impl->file.fileName().isEmpty())
        m_impl->file.setFileName(QString());
    m_hFile = INVALID_HANDLE_VALUE;
}

void CFile::Flush()
{
    if (m_impl->file.isOpen())
        m_impl->file.flush();
}

BOOL CFile::GetStatus(CFileStatus &status) const
{
    return GetFileStatus(m_impl->info, status);
}

BOOL CFile::GetStatus(const wchar_t *name, CFileStatus &status)
{
    return GetFileStatus(QFileInfo(toQString(name)), status);
}

BOOL CFile::Remove(const wchar_t *name)
{
    return DeleteFileW(name);
}

QFile *CFile::implement() const
{
    return &m_impl->file;
}
