#include "KxFiles.h"

#include "foundation/QtConversions.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

CTime toTime(const QDateTime &qtTime)
{
    const QDate date = qtTime.date();
    const QTime time = qtTime.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

QDateTime creationTime(const QFileInfo &info)
{
    const QDateTime birth = info.birthTime();
    return birth.isValid() ? birth : info.metadataChangeTime();
}

// A read-only file does not count as hidden.
CFile::Attribute attributeOf(const QFileInfo &info)
{
    if (info.isReadable() && !info.isWritable())
        return CFile::readOnly;
    return info.isHidden() ? CFile::hidden : CFile::normal;
}

} // namespace

CTime::CTime(int year, int month, int day, int hour, int minute, int second, int dst)
    : m_time(-1)
{
    constexpr int lowest = std::numeric_limits<int>::min();
    if (year < lowest + 1900 || month == lowest)
        return;

    std::tm parts = {};
    parts.tm_sec = second;
    parts.tm_min = minute;
    parts.tm_hour = hour;
    parts.tm_mday = day;
    parts.tm_mon = month - 1;
    parts.tm_year = year - 1900;
    parts.tm_isdst = dst;
    m_time = std::mktime(&parts);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the signature is the interface's.
BOOL GetFileStatus(QFileInfo info, CFileStatus &status)
{
    if (!info.exists())
        return FALSE;
    const CString path = toCString(info.absoluteFilePath());
    if (path.size() >= std::size(status.m_szFullName))
        return FALSE;

    std::fill(std::begin(status.m_szFullName), std::end(status.m_szFullName), L'\0');
    std::copy(path.begin(), path.end(), status.m_szFullName);
    status.m_size = info.size();
    status.m_attribute = attributeOf(info);
    status.m_mtime = toTime(info.lastModified());
    status.m_ctime = toTime(creationTime(info));
    status.m_atime = toTime(info.lastRead());
    return TRUE;
}

BOOL CFileFind::FindFile(const wchar_t *name, unsigned)
{
    return QFileInfo::exists(toQString(name));
}
