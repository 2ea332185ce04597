#include "Folder.h"
#include "KxFiles.h"

#include <QtTest>

#include <algorithm>
#include <csignal>
#include <sys/resource.h>

/// Files that are larger than expected, and disks that are smaller.
class tst_CFileLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beyond32Bits();
    void hugeFileIsShortened();
    void largeFileInUnevenPieces();
    void fullDevice();
    void fullDeviceWithText();
    void writesUpToTheLimit();
    void textUpToTheLimit();
};

static constexpr qint64 fiveGigabytes = qint64{5} << 30;

static bool makeSparse(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.resize(fiveGigabytes);
}

void tst_CFileLimits::beyond32Bits()
{
    const Folder folder;
    if (!makeSparse(folder.path("file"))) {
        // QSKIP() is not pedantic C++17.
        QTest::qSkip("the file system refuses a file of 5 GB", __FILE__, __LINE__);
        return;
    }
    const std::wstring name = folder.name("file");
    CFile file(name.c_str(), CFile::modeReadWrite);
    QCOMPARE(file.GetLength(), qulonglong(fiveGigabytes));
    QCOMPARE(file.Seek(fiveGigabytes, CFile::end), qulonglong(fiveGigabytes));
    QCOMPARE(file.Write("end", 3), 3u);
    QCOMPARE(file.GetLength(), qulonglong(fiveGigabytes + 3));

    char bytes[5] = {'.', '.', '.', '.', '.'};
    QCOMPARE(file.Seek(fiveGigabytes - 1, CFile::begin), qulonglong(fiveGigabytes - 1));
    QCOMPARE(file.Read(bytes, 5), 4u);
    QCOMPARE(QByteArray(bytes, 5), QByteArray("\0end.", 5));
    CFileStatus status;
    QVERIFY(CFile::GetStatus(name.c_str(), status));
    QCOMPARE(status.m_size, static_cast<long long>(fiveGigabytes + 3));
}

void tst_CFileLimits::hugeFileIsShortened()
{
    const Folder folder;
    if (!makeSparse(folder.path("file"))) {
        QTest::qSkip("the file system refuses a file of 5 GB", __FILE__, __LINE__);
        return;
    }
    CFile file(folder.name("file").c_str(), CFile::modeReadWrite);
    file.Seek(fiveGigabytes, CFile::begin);
    QVERIFY(file.implement()->resize(10));
    QCOMPARE(file.GetLength(), 10ull);
    char byte = '.';
    QCOMPARE(file.Read(&byte, 1), 0u);
}

void tst_CFileLimits::largeFileInUnevenPieces()
{
    const Folder folder;
    const std::wstring name = folder.name("file");
    const QByteArray block = QByteArray("0123456789abcdef!").repeated(4099);
    CFile file(name.c_str(), CFile::modeWrite);
    int start = 0;
    for (int size = 1; start < block.size(); start += size, size = size * 3 % 20011)
        QCOMPARE(file.Write(block.constData() + start, unsigned(std::min(size, block.size() - start))),
                 unsigned(std::min(size, block.size() - start)));
    file.Close();
    QCOMPARE(folder.content("file"), block);
}

void tst_CFileLimits::fullDevice()
{
    CFile file;
    if (!file.Open(L"/dev/full", CFile::modeWrite)) {
        QTest::qSkip("there is no /dev/full", __FILE__, __LINE__);
        return;
    }
    const QByteArray large(100000, 'x');
    QCOMPARE(file.Write(large.constData(), unsigned(large.size())), 0xFFFFFFFFu);
    // A small piece is collected, and fails with the next one that does not fit beside it.
    QCOMPARE(file.Write("01", 2), 2u);
    file.Flush();
    QCOMPARE(file.Write(large.constData(), unsigned(large.size())), 0xFFFFFFFFu);
    file.Close();
    QCOMPARE(file.m_hFile, INVALID_HANDLE_VALUE);
}

void tst_CFileLimits::fullDeviceWithText()
{
    CStdioFile file;
    if (!file.Open(L"/dev/full", CFile::modeWrite | CFile::typeText)) {
        QTest::qSkip("there is no /dev/full", __FILE__, __LINE__);
        return;
    }
    file.WriteString(L"01");
    file.Flush();
    file.WriteString(L"23");
    file.Close();

    const Folder folder;
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
    file.WriteString(L"45");
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("45"));
}

// No file can grow past the limit, as on a full disk.
class SizeLimit
{
public:
    explicit SizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    SizeLimit(const SizeLimit &) = delete;
    SizeLimit &operator=(const SizeLimit &) = delete;

private:
    rlimit m_before;
};

void tst_CFileLimits::writesUpToTheLimit()
{
    const Folder folder;
    const QByteArray block(65536, 'x');
    unsigned third = 0;
    CFile file(folder.name("file").c_str(), CFile::modeWrite);
    {
        const SizeLimit limit(2 * 65536);
        QCOMPARE(file.Write(block.constData(), 65536), 65536u);
        QCOMPARE(file.Write(block.constData(), 65536), 65536u);
        third = file.Write("0123", 4);
        file.Flush();
        QCOMPARE(file.Write(block.constData(), 65536), 0xFFFFFFFFu);
    }
    QCOMPARE(third, 4u);
    file.Close();
    QVERIFY(folder.content("file").startsWith(block + block));
}

void tst_CFileLimits::textUpToTheLimit()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
    {
        const SizeLimit limit(4);
        file.WriteString(L"0123");
        file.Flush();
        file.WriteString(L"lost");
        file.Flush();
        file.WriteString(L"lost too");
    }
    file.Close();
    QVERIFY(folder.content("file").startsWith("0123"));
    QVERIFY(!folder.content("file").contains("too"));
}

QTEST_GUILESS_MAIN(tst_CFileLimits)
#include "tst_CFileLimits.moc"
