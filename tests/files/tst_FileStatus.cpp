#include "Folder.h"
#include "KxFiles.h"
#include "Unprivileged.h"

#include <QDateTime>
#include <QFileInfo>
#include <QTextCodec>
#include <QtTest>

#include <algorithm>
#include <cstring>
#include <ctime>
#include <sys/stat.h>
#include <utime.h>

class tst_FileStatus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { useZone("UTC0"); }
    void sizeAndName();
    void nameIsFilledUpWithNulls();
    void nameBecomesAbsolute();
    void nameBeyond16Bits();
    void times();
    void timesInAnotherZone();
    void creationTime();
    void attributes_data();
    void attributes();
    void directory();
    void missingFile_data();
    void missingFile();
    void pathsNearTheLimit_data();
    void pathsNearTheLimit();
    void openFileRemembersItsStatus();
    void openFileOfEachKind();

private:
    static void useZone(const char *zone);
};

void tst_FileStatus::useZone(const char *zone)
{
    qputenv("TZ", zone);
    tzset();
}

static CFileStatus statusOf(const std::wstring &name)
{
    CFileStatus status;
    if (!CFile::GetStatus(name.c_str(), status))
        status.m_size = -1;
    return status;
}

void tst_FileStatus::sizeAndName()
{
    const Folder folder;
    const std::wstring name = folder.make("file", "before");
    const CFileStatus status = statusOf(name);
    QCOMPARE(status.m_size, 6ll);
    QCOMPARE(QString::fromWCharArray(status.m_szFullName), folder.path("file"));
    QCOMPARE(statusOf(folder.make("empty")).m_size, 0ll);
}

void tst_FileStatus::nameIsFilledUpWithNulls()
{
    const Folder folder;
    const std::wstring name = folder.make("file");
    CFileStatus status;
    std::memset(static_cast<void *>(&status), 0xA5, sizeof status);
    QVERIFY(GetFileStatus(QFileInfo(folder.path("file")), status));
    QVERIFY(std::all_of(status.m_szFullName + name.size(), std::end(status.m_szFullName),
                        [](wchar_t ch) { return ch == L'\0'; }));
}

void tst_FileStatus::nameBecomesAbsolute()
{
    const Folder folder;
    folder.make("file");
    QVERIFY(QDir::setCurrent(folder.path(".")));
    const CFileStatus status = statusOf(L"file");
    const QString here = QDir::currentPath();
    QDir::setCurrent(QDir::rootPath());
    QCOMPARE(QString::fromWCharArray(status.m_szFullName), here + QStringLiteral("/file"));
}

void tst_FileStatus::nameBeyond16Bits()
{
    const Folder folder;
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const std::wstring name = folder.name("file") + L"\U0001F600";
    CFile file(name.c_str(), CFile::modeWrite);
    CFileStatus status;
    QVERIFY(file.GetStatus(status));
    QCOMPARE(std::wstring(status.m_szFullName), name);
    QVERIFY(CFile::Remove(name.c_str()));
}

static std::wstring fileOfTimes(const Folder &folder, std::time_t access, std::time_t modification)
{
    std::wstring name = folder.make("file");
    const utimbuf times = {access, modification};
    utime(QFile::encodeName(folder.path("file")), &times);
    return name;
}

void tst_FileStatus::times()
{
    const Folder folder;
    const CFileStatus status = statusOf(fileOfTimes(folder, 1000000001, 981173106));
    QCOMPARE(qint64{status.m_atime.GetTime()}, qint64{1000000001});
    QCOMPARE(qint64{status.m_mtime.GetTime()}, qint64{981173106});
}

void tst_FileStatus::timesInAnotherZone()
{
    useZone("CET-1CEST,M3.5.0,M10.5.0/3");
    const Folder folder;
    const CFileStatus status = statusOf(fileOfTimes(folder, 1593561600, 1577836800));
    QCOMPARE(qint64{status.m_atime.GetTime()}, qint64{1593561600});
    QCOMPARE(qint64{status.m_mtime.GetTime()}, qint64{1577836800});
}

void tst_FileStatus::creationTime()
{
    const Folder folder;
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    const CFileStatus status = statusOf(fileOfTimes(folder, 1000000001, 981173106));
    QVERIFY(qint64{status.m_ctime.GetTime()} >= before - 1);
    QVERIFY(qint64{status.m_ctime.GetTime()} <= QDateTime::currentSecsSinceEpoch());
}

void tst_FileStatus::attributes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<uint>("mode");
    QTest::addColumn<int>("attribute");

    QTest::newRow("normal") << QByteArray("file") << 0644u << 0;
    QTest::newRow("hidden") << QByteArray(".file") << 0644u << 2;
    QTest::newRow("read-only") << QByteArray("file") << 0444u << 1;
    QTest::newRow("read-only and hidden") << QByteArray(".file") << 0444u << 1;
    QTest::newRow("write-only") << QByteArray("file") << 0222u << 0;
    QTest::newRow("write-only and hidden") << QByteArray(".file") << 0222u << 2;
    QTest::newRow("neither readable nor writable") << QByteArray("file") << 0000u << 0;
}

void tst_FileStatus::attributes()
{
    QFETCH(QByteArray, name);
    QFETCH(uint, mode);
    const Folder folder;
    const Unprivileged unprivileged;
    if (!unprivileged.permissionsBind()) {
        // QSKIP() is not pedantic C++17.
        QTest::qSkip("the superuser's rights cannot be given up here", __FILE__, __LINE__);
        return;
    }

    const Folder own;
    const std::wstring path = own.make(name.constData());
    chmod(QFile::encodeName(own.path(name.constData())), mode);
    QTEST(int(statusOf(path).m_attribute), "attribute");
}

void tst_FileStatus::directory()
{
    const Folder folder;
    QVERIFY(folder.makeDirectory(".dir"));
    const CFileStatus status = statusOf(folder.name(".dir"));
    QVERIFY(status.m_size >= 0);
    QCOMPARE(status.m_attribute, BYTE{CFile::hidden});
    QCOMPARE(QString::fromWCharArray(status.m_szFullName), folder.path(".dir"));
}

void tst_FileStatus::missingFile_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing") << QStringLiteral("/missing/file");
    QTest::newRow("empty") << QString();
    QTest::newRow("below a file") << QStringLiteral("/dev/null/file");
}

void tst_FileStatus::missingFile()
{
    QFETCH(QString, name);
    CFileStatus status;
    std::memset(static_cast<void *>(&status), 0xA5, sizeof status);
    const QByteArray untouched(sizeof status, char(0xA5));
    const auto *bytes = reinterpret_cast<const char *>(&status);

    QVERIFY(!CFile::GetStatus(name.toStdWString().c_str(), status));
    QVERIFY(!GetFileStatus(QFileInfo(name), status));
    QVERIFY(!CFile::GetStatus(nullptr, status));
    QVERIFY(!CFile().GetStatus(status));
    QCOMPARE(QByteArray::fromRawData(bytes, sizeof status), untouched);
}

void tst_FileStatus::pathsNearTheLimit_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("fits");

    QTest::newRow("1022") << 1022 << true;
    QTest::newRow("1023") << 1023 << true;
    QTest::newRow("1024") << 1024 << false;
    QTest::newRow("1025") << 1025 << false;
    QTest::newRow("2000") << 2000 << false;
}

// The path of a new file, of so many characters.
static QString makePath(const Folder &folder, int length)
{
    QString path = QDir(folder.path(".")).canonicalPath();
    while (length - path.size() > 202)
        path += QLatin1Char('/') + QString(100, QLatin1Char('d'));
    QDir().mkpath(path);
    path += QLatin1Char('/') + QString(length - path.size() - 1, QLatin1Char('f'));
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write("0123") == 4 ? path : QString();
}

void tst_FileStatus::pathsNearTheLimit()
{
    QFETCH(int, length);
    QFETCH(bool, fits);
    const Folder folder;
    const QString path = makePath(folder, length);
    QCOMPARE(path.size(), length);
    CFileStatus status;
    status.m_size = -1;
    status.m_szFullName[0] = L'?';
    QCOMPARE(bool(CFile::GetStatus(path.toStdWString().c_str(), status)), fits);
    QCOMPARE(status.m_size, fits ? 4ll : -1ll);
    QCOMPARE(status.m_szFullName[0], fits ? L'/' : L'?');
    if (fits)
        QCOMPARE(QString::fromWCharArray(status.m_szFullName), path);
    QVERIFY(CFile().Open(path.toStdWString().c_str(), CFile::modeRead));
}

void tst_FileStatus::openFileRemembersItsStatus()
{
    const Folder folder;
    const std::wstring name = folder.make("file", "before");
    CFile file(name.c_str(), CFile::modeReadWrite);
    CFileStatus status;
    QVERIFY(file.GetStatus(status));
    QCOMPARE(status.m_size, 6ll);

    file.Seek(6, CFile::begin);
    file.Write("more", 4);
    file.Close();
    QVERIFY(file.GetStatus(status));
    QCOMPARE(status.m_size, 6ll);
    QCOMPARE(statusOf(name).m_size, 10ll);
    QVERIFY(file.Open(name.c_str(), CFile::modeRead));
    QVERIFY(file.GetStatus(status));
    QCOMPARE(status.m_size, 10ll);
}

void tst_FileStatus::openFileOfEachKind()
{
    const Folder folder;
    CFileStatus status;
    QVERIFY(CFile(folder.name("new").c_str(), CFile::modeWrite).GetStatus(status));
    QCOMPARE(status.m_size, 0ll);
    QVERIFY(!CFile(folder.name("missing").c_str(), CFile::modeRead).GetStatus(status));
    QVERIFY(CStdioFile(folder.make("text", "line").c_str(), CFile::modeRead).GetStatus(status));
    QCOMPARE(status.m_size, 4ll);
}

QTEST_GUILESS_MAIN(tst_FileStatus)
#include "tst_FileStatus.moc"
