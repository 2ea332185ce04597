#include "KxFiles.h"

#include "foundation/QtConversions.h"

#include <QFile>
#include <QTextStream>

#include <cwchar>

struct CStdioFileImpl
{
    QTextStream stream;
    QString line;
};

namespace {

// A stream complains about a device that is missing, closed or opened the other way, and keeps the text.
bool canRead(const QTextStream &stream)
{
    return stream.device() && stream.device()->isReadable();
}

bool canWrite(const QTextStream &stream)
{
    return stream.device() && stream.device()->isWritable() && stream.status() == QTextStream::Ok;
}

} // namespace

CStdioFile::CStdioFile()
    : m_stdio(std::make_unique<CStdioFileImpl>())
{
}

CStdioFile::CStdioFile(const wchar_t *name, unsigned flags)
    : CFile(name, flags)
    , m_stdio(std::make_unique<CStdioFileImpl>())
{
}

CStdioFile::~CStdioFile()
{
    // Text that was neither flushed nor closed is lost: a stream that has failed writes nothing more.
    m_stdio->stream.setStatus(QTextStream::WriteFailed);
}

BOOL CStdioFile::Open(const wchar_t *name, unsigned flags, CFileException *error)
{
    if (!CFile::Open(name, flags, error))
        return FALSE;
    m_stdio->stream.setDevice(implement());
    return TRUE;
}

void CStdioFile::Close()
{
    m_stdio->stream.flush();
    CFile::Close();
}

void CStdioFile::Flush()
{
    m_stdio->stream.flush();
}

void CStdioFile::WriteString(const wchar_t *text)
{
    if (canWrite(m_stdio->stream))
        m_stdio->stream << toQString(text);
}

wchar_t *CStdioFile::ReadString(wchar_t *buf, unsigned)
{
    if (!buf)
        return nullptr;

    // The whole line, whatever the buffer holds: ported code sizes its buffer by the file's lines.
    CString line;
    CStdioFile::ReadString(line);
    return std::wmemcpy(buf, line.c_str(), line.size() + 1);
}

BOOL CStdioFile::ReadString(CString &line)
{
    QString &qtLine = m_stdio->line;
    if (!canRead(m_stdio->stream) || !m_stdio->stream.readLineInto(&qtLine))
        qtLine.clear();

    // In place: files are read line by line into one string.
    line.resize(static_cast<std::size_t>(qtLine.size()));
    line.resize(static_cast<std::size_t>(qtLine.toWCharArray(line.data())));
    return TRUE;
}
