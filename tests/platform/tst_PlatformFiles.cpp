#include "DirectoryFixture.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace {
QByteArray content(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}
} // namespace

class tst_PlatformFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_directory = std::make_unique<DirectoryFixture>(); }
    void cleanup() { m_directory.reset(); }

    void dispositions_data();
    void dispositions();
    void access_data();
    void access();
    void refusesToCreate_data();
    void refusesToCreate();
    void streamsAreNotInherited();
    void closeHandle();
    void closeHandleReportsLostData();
    void deleteFile_data();
    void deleteFile();
    void deletesTheLinkOnly();
    void attributes_data();
    void attributes();
    void attributesFollowLinks();
    void rename_data();
    void rename();
    void renamesDirectories();

private:
    std::unique_ptr<DirectoryFixture> m_directory;
};

void tst_PlatformFiles::dispositions_data()
{
    QTest::addColumn<uint>("disposition");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("opens");
    QTest::addColumn<QByteArray>("contentAfter");

    const auto rows = [](const char *name, uint disposition, const char *ofFile, const char *ofMissing) {
        const auto row = [=](const char *target, const char *after, const char *otherwise) {
            QTest::addRow("%s, %s", name, target)
                << disposition << QString::fromLatin1(target) << (after != nullptr)
                << QByteArray(after ? after : otherwise);
        };
        row("file", ofFile, "before");
        row("missing", ofMissing, "no file");
    };
    rows("CREATE_NEW", CREATE_NEW, nullptr, "");
    rows("CREATE_ALWAYS", CREATE_ALWAYS, "", "");
    rows("OPEN_EXISTING", OPEN_EXISTING, "before", nullptr);
    rows("OPEN_ALWAYS", OPEN_ALWAYS, "before", "");
    rows("TRUNCATE_EXISTING", TRUNCATE_EXISTING, "", nullptr);
    rows("disposition 0", 0, nullptr, nullptr);
    rows("disposition 6", 6, nullptr, nullptr);
}

void tst_PlatformFiles::dispositions()
{
    QFETCH(uint, disposition);
    QFETCH(QString, name);
    QFETCH(bool, opens);
    QFETCH(QByteArray, contentAfter);

    for (const DWORD access : {GENERIC_WRITE, GENERIC_READ | GENERIC_WRITE}) {
        const DirectoryFixture directory;
        HANDLE handle = openFile(name.toStdWString(), access, disposition);
        QCOMPARE(handle != INVALID_HANDLE_VALUE, opens);
        QCOMPARE(CloseHandle(handle), BOOL(opens));
        QCOMPARE(content(name), contentAfter);
    }
}

void tst_PlatformFiles::access_data()
{
    QTest::addColumn<uint>("access");
    QTest::addColumn<uint>("disposition");
    QTest::addColumn<bool>("reads");
    QTest::addColumn<bool>("writes");

    QTest::newRow("read") << GENERIC_READ << OPEN_EXISTING << true << false;
    QTest::newRow("write") << GENERIC_WRITE << OPEN_EXISTING << false << true;
    QTest::newRow("both") << (GENERIC_READ | GENERIC_WRITE) << OPEN_EXISTING << true << true;
    QTest::newRow("read, created when needed") << GENERIC_READ << OPEN_ALWAYS << true << false;
}

void tst_PlatformFiles::access()
{
    QFETCH(uint, access);
    QFETCH(uint, disposition);
    QFETCH(bool, reads);
    QFETCH(bool, writes);

    HANDLE handle = openFile(L"file", access, disposition);
    QVERIFY(handle != INVALID_HANDLE_VALUE);
    auto *stream = static_cast<FILE *>(handle);
    char text[6] = {};
    QCOMPARE(std::fread(text, 1, sizeof text, stream), reads ? sizeof text : 0);
    std::rewind(stream);
    QCOMPARE(std::fwrite("AF", 1, 2, stream), std::size_t(writes ? 2 : 0));
    QVERIFY(CloseHandle(handle));
    QCOMPARE(content(QStringLiteral("file")), QByteArray(writes ? "AFfore" : "before"));
}

void tst_PlatformFiles::refusesToCreate_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<uint>("access");
    QTest::addColumn<uint>("disposition");

    const QString file = QStringLiteral("file");
    QTest::newRow("no access") << file << 0U << OPEN_EXISTING;
    QTest::newRow("unknown access") << file << 0x10000000U << OPEN_EXISTING;
    QTest::newRow("unknown access bit") << file << (GENERIC_READ | 1U) << OPEN_EXISTING;
    QTest::newRow("read access empties nothing") << file << GENERIC_READ << TRUNCATE_EXISTING;
    QTest::newRow("directory, read") << QStringLiteral("dir") << GENERIC_READ << OPEN_EXISTING;
    QTest::newRow("directory, write") << QStringLiteral("dir") << GENERIC_WRITE << OPEN_EXISTING;
    QTest::newRow("directory, created") << QStringLiteral("dir") << GENERIC_WRITE << CREATE_ALWAYS;
    QTest::newRow("directory, slash") << QStringLiteral("dir/") << GENERIC_READ << OPEN_EXISTING;
    QTest::newRow("missing directory") << QStringLiteral("no/file") << GENERIC_WRITE << CREATE_ALWAYS;
    QTest::newRow("file as directory") << QStringLiteral("file/file") << GENERIC_WRITE << CREATE_ALWAYS;
    QTest::newRow("slash behind a file") << QStringLiteral("file/") << GENERIC_READ << OPEN_EXISTING;
    QTest::newRow("name too long") << QString(300, QLatin1Char('x')) << GENERIC_WRITE << CREATE_ALWAYS;
    QTest::newRow("empty name") << QString() << GENERIC_WRITE << CREATE_ALWAYS;
}

void tst_PlatformFiles::refusesToCreate()
{
    QFETCH(QString, name);
    QFETCH(uint, access);
    QFETCH(uint, disposition);

    QCOMPARE(openFile(name.toStdWString(), access, disposition), INVALID_HANDLE_VALUE);
    QCOMPARE(content(QStringLiteral("file")), QByteArray("before"));
    QCOMPARE(QDir().entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
}

void tst_PlatformFiles::streamsAreNotInherited()
{
    HANDLE handle = openFile(L"file", GENERIC_READ, OPEN_EXISTING);
    QVERIFY(handle != INVALID_HANDLE_VALUE);
    QVERIFY(fcntl(fileno(static_cast<FILE *>(handle)), F_GETFD) & FD_CLOEXEC);
    QVERIFY(CloseHandle(handle));
}

void tst_PlatformFiles::closeHandle()
{
    QCOMPARE(CloseHandle(nullptr), FALSE);
    QCOMPARE(CloseHandle(INVALID_HANDLE_VALUE), FALSE);
    HANDLE handle = openFile(L"new", GENERIC_WRITE, CREATE_NEW);
    QVERIFY(std::fputs("text", static_cast<FILE *>(handle)) >= 0);
    QVERIFY(CloseHandle(handle));
    QCOMPARE(content(QStringLiteral("new")), QByteArray("text"));
}

void tst_PlatformFiles::closeHandleReportsLostData()
{
    HANDLE handle = openFile(L"/dev/full", GENERIC_WRITE, OPEN_EXISTING);
    QVERIFY(handle != INVALID_HANDLE_VALUE);
    QVERIFY(std::fputs("text", static_cast<FILE *>(handle)) >= 0);
    QCOMPARE(CloseHandle(handle), FALSE);
}

void tst_PlatformFiles::deleteFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("deleted");
    QTest::newRow("file") << QStringLiteral("file") << true;
    QTest::newRow("missing") << QStringLiteral("missing") << false;
    QTest::newRow("directory") << QStringLiteral("dir") << false;
    QTest::newRow("file as directory") << QStringLiteral("file/file") << false;
    QTest::newRow("slash behind a file") << QStringLiteral("file/") << false;
    QTest::newRow("empty name") << QString() << false;
}

void tst_PlatformFiles::deleteFile()
{
    QFETCH(QString, name);
    QFETCH(bool, deleted);
    QCOMPARE(DeleteFileW(name.toStdWString().c_str()) != 0, deleted);
    QCOMPARE(QFile::exists(QStringLiteral("file")), !deleted);
    QVERIFY(QFile::exists(QStringLiteral("dir")));
}

void tst_PlatformFiles::deletesTheLinkOnly()
{
    QVERIFY(QFile::link(QStringLiteral("file"), QStringLiteral("link")));
    QVERIFY(DeleteFileW(L"link"));
    QVERIFY(!QFileInfo(QStringLiteral("link")).isSymLink());
    QCOMPARE(content(QStringLiteral("file")), QByteArray("before"));
}

void tst_PlatformFiles::attributes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<uint>("mode");
    QTest::newRow("file") << QStringLiteral("file") << uint(S_IFREG | 0640);
    QTest::newRow("directory") << QStringLiteral("dir") << uint(S_IFDIR | 0750);
    QTest::newRow("directory, slash") << QStringLiteral("dir/") << uint(S_IFDIR | 0750);
    QTest::newRow("missing") << QStringLiteral("missing") << INVALID_FILE_ATTRIBUTES;
    QTest::newRow("file as directory") << QStringLiteral("file/file") << INVALID_FILE_ATTRIBUTES;
    QTest::newRow("slash behind a file") << QStringLiteral("file/") << INVALID_FILE_ATTRIBUTES;
    QTest::newRow("empty name") << QString() << INVALID_FILE_ATTRIBUTES;
}

void tst_PlatformFiles::attributes()
{
    QFETCH(QString, name);
    QFETCH(uint, mode);
    QCOMPARE(chmod("file", 0640), 0);
    QCOMPARE(chmod("dir", 0750), 0);
    QCOMPARE(GetFileAttributesW(name.toStdWString().c_str()), mode);
    QCOMPARE(int(INVALID_FILE_ATTRIBUTES), -1);
}

void tst_PlatformFiles::attributesFollowLinks()
{
    QVERIFY(QFile::link(QStringLiteral("dir"), QStringLiteral("link")));
    QVERIFY(QFile::link(QStringLiteral("missing"), QStringLiteral("broken")));
    QCOMPARE(GetFileAttributesW(L"link") & 0xF000, DWORD(S_IFDIR));
    QCOMPARE(GetFileAttributesW(L"broken"), INVALID_FILE_ATTRIBUTES);
}

void tst_PlatformFiles::rename_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<int>("result");
    QTest::newRow("free name") << QStringLiteral("file") << QStringLiteral("new") << 0;
    QTest::newRow("other case") << QStringLiteral("file") << QStringLiteral("FILE") << 0;
    QTest::newRow("into a directory") << QStringLiteral("file") << QStringLiteral("dir/new") << 0;
    QTest::newRow("its own name") << QStringLiteral("file") << QStringLiteral("file") << 0;
    QTest::newRow("name of a file") << QStringLiteral("file") << QStringLiteral("taken") << -1;
    QTest::newRow("name of a broken link") << QStringLiteral("file") << QStringLiteral("broken") << -1;
    QTest::newRow("name of a directory") << QStringLiteral("file") << QStringLiteral("dir") << -1;
    QTest::newRow("missing") << QStringLiteral("missing") << QStringLiteral("new") << -1;
    QTest::newRow("missing, its own name") << QStringLiteral("missing") << QStringLiteral("missing") << -1;
    QTest::newRow("into a missing directory") << QStringLiteral("file") << QStringLiteral("no/new") << -1;
    QTest::newRow("no old name") << QString() << QStringLiteral("new") << -1;
    QTest::newRow("no new name") << QStringLiteral("file") << QString() << -1;
}

void tst_PlatformFiles::rename()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(int, result);

    QVERIFY(QFile::copy(QStringLiteral("file"), QStringLiteral("taken")));
    QVERIFY(QFile::link(QStringLiteral("nowhere"), QStringLiteral("broken")));
    QCOMPARE(_wrename(from.toStdWString().c_str(), to.toStdWString().c_str()), result);
    QCOMPARE(content(result == 0 ? to : QStringLiteral("file")), QByteArray("before"));
    QCOMPARE(QFile::exists(QStringLiteral("file")), result != 0 || from == to);
    QVERIFY(QFileInfo(QStringLiteral("broken")).isSymLink());
}

void tst_PlatformFiles::renamesDirectories()
{
    QCOMPARE(_wrename(L"dir", L"other"), 0);
    QVERIFY(QFileInfo(QStringLiteral("other")).isDir());
    QVERIFY(QDir().mkdir(QStringLiteral("empty")));
    QCOMPARE(_wrename(L"other", L"empty"), -1);
}

QTEST_MAIN(tst_PlatformFiles)
#include "tst_PlatformFiles.moc"
