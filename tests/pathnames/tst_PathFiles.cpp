#include "../files/Folder.h"
#include "../files/Unprivileged.h"
#include "KxPlatform.h"
#include "PathTexts.h"
#include "ScriptedCorrection.h"
#include "WorkingDirectory.h"

#include <QRegularExpression>
#include <QTest>

#include <cstdlib>
#include <sys/stat.h>

class tst_PathFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_folder.isValid()); }
    void existence();
    void existenceOfWildcards();
    void attributes_data();
    void attributes();
    void directoryThatCannotBeSearched();
    void opensToRead();
    void opensToWrite();
    void openFails_data();
    void openFails();
    void renames_data();
    void renames();
    void renameFails();
    void renameNeedsTheBaseDirectory();
    void removesNothing();
    void uniqueNames_data();
    void uniqueNames();
    void uniqueNameOfAFreeName();
    void uniqueNameInItself();
    void uniqueNameOfWhatIsNoPath();
    void uniqueNameTakesOneNumberPerTry();
    void uniqueNameGivesUp();
    void uniqueNameLeavesNoRoom_data();
    void uniqueNameLeavesNoRoom();

private:
    ProbePath inFolder(const char *name) const { return ProbePath(m_folder.name(name).c_str()); }

    Folder m_folder;
};

void tst_PathFiles::existence()
{
    ProbePath path = inFolder("comes and goes");
    QVERIFY(!path.Exists());
    m_folder.make("comes and goes");
    QVERIFY(path.Exists());
    QCOMPARE(path.GetPathType(), PT_FILE);
    QVERIFY(QFile::remove(m_folder.path("comes and goes")));
    QVERIFY(!path.Exists());
    QCOMPARE(path.GetPathType(), PT_PATH);
    QVERIFY(m_folder.makeDirectory("comes and goes"));
    QVERIFY(path.Exists());
    QCOMPARE(path.GetPathType(), PT_DIRECTORY);

    QVERIFY(!CKdUiPathname().Exists());
    path.set(PC_RELATIVE, L"device", PT_DEVICE);
    QVERIFY(path.Exists());
    QCOMPARE(path.GetPathType(), PT_DEVICE);
}

void tst_PathFiles::existenceOfWildcards()
{
    m_folder.make("star*");
    ProbePath path = inFolder("star*");
    QVERIFY(!path.Exists());
    path = inFolder("star");
    path.Append(L"*");
    QVERIFY(path.Exists());
    QCOMPARE(path.GetPathType(), PT_WILDCARD);
    QVERIFY(!path.Exists());
}

void tst_PathFiles::attributes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("baseDir");
    QTest::addColumn<int>("type");

    QTest::newRow("file") << QStringLiteral("file") << QString() << int(PT_FILE);
    QTest::newRow("file, separator in the base")
        << QStringLiteral("file") << QStringLiteral("/") << int(PT_FILE);
    QTest::newRow("directory") << QStringLiteral(".") << QString() << int(PT_DIRECTORY);
    QTest::newRow("no path") << none() << QString() << int(PT_PATH);
    QTest::newRow("empty path") << QString() << QString() << int(PT_DIRECTORY);
    QTest::newRow("missing") << QStringLiteral("missing") << QString() << int(PT_PATH);
    QTest::newRow("no base") << QStringLiteral("/") << none() << int(PT_PATH);
    QTest::newRow("wildcard without a base") << QStringLiteral("*") << none() << int(PT_WILDCARD);
    QTest::newRow("wildcard") << QStringLiteral("x/a?b") << QString() << int(PT_WILDCARD);
    QTest::newRow("wildcard in a directory") << QStringLiteral("*/x") << QString() << int(PT_PATH);
    QTest::newRow("wildcard before a colon") << QStringLiteral("?:x") << QString() << int(PT_PATH);
}

void tst_PathFiles::attributes()
{
    QFETCH(QString, path);
    QFETCH(QString, baseDir);

    m_folder.make("file");
    const CString widePath = wide(path);
    const CString base = wide(m_folder.path("") + baseDir);
    path_type type = PT_DEVICE;
    CKdUiPathname().GetAttributes(path == none() ? nullptr : &widePath, baseDir == none() ? nullptr : &base,
                                  &type);
    QTEST(int(type), "type");
    ProbePath probe(L"/x*");
    const auto before = probe.state();
    probe.GetAttributes(&widePath, &base, nullptr);
    QVERIFY(probe.state() == before);
}

void tst_PathFiles::directoryThatCannotBeSearched()
{
    QVERIFY(m_folder.makeDirectory("locked/inner"));
    const QByteArray folder = QFile::encodeName(m_folder.path(""));
    const QByteArray locked = QFile::encodeName(m_folder.path("locked"));
    QVERIFY(chmod(folder.constData(), 0755) == 0 && chmod(locked.constData(), 0) == 0);
    path_type outside = PT_EMPTY;
    path_type inside = PT_EMPTY;
    {
        const Unprivileged user;
        if (!user.permissionsBind()) {
            // QSKIP() is not pedantic C++17.
            QTest::qSkip("the superuser's rights cannot be given up here", __FILE__, __LINE__);
            return;
        }
        outside = inFolder("locked").GetPathType();
        inside = inFolder("locked/inner").GetPathType();
    }
    QVERIFY(chmod(locked.constData(), 0700) == 0);
    QCOMPARE(outside, PT_DIRECTORY);
    QCOMPARE(inside, PT_PATH);
}

void tst_PathFiles::opensToRead()
{
    m_folder.make("read", "content");
    void *handle = nullptr;
    QVERIFY(inFolder("read").OpenReadOnly(handle));
    char buffer[16] = {};
    auto *stream = static_cast<FILE *>(handle);
    QCOMPARE(std::fread(buffer, 1, sizeof buffer, stream), std::size_t(7));
    QCOMPARE(QByteArray(buffer), QByteArray("content"));
    QVERIFY(std::fputc('x', stream) == EOF);
    QVERIFY(CloseHandle(handle));

    // The spelling of the file system is opened.
    QVERIFY(inFolder("READ").OpenReadOnly(handle));
    QVERIFY(CloseHandle(handle));
    const ProbePath folder = inFolder("");
    QVERIFY(ProbePath(L"read", &folder).OpenReadOnly(handle));
    QVERIFY(CloseHandle(handle));
}

void tst_PathFiles::opensToWrite()
{
    m_folder.make("write", "a longer content");
    for (const char *name : {"write", "new"}) {
        void *handle = nullptr;
        QVERIFY(inFolder(name).OpenWriteOnly(handle));
        std::fputs("short", static_cast<FILE *>(handle));
        QVERIFY(CloseHandle(handle));
        QCOMPARE(m_folder.content(name), QByteArray("short"));
    }
    ProbePath device;
    device.set(PC_RELATIVE, L"/dev/null", PT_DEVICE);
    void *handle = nullptr;
    QVERIFY(device.OpenWriteOnly(handle) && CloseHandle(handle));
    QVERIFY(device.OpenReadOnly(handle) && CloseHandle(handle));
}

void tst_PathFiles::openFails_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("empty path name") << QString();
    QTest::newRow("missing directory") << QStringLiteral("/missing directory/x");
    QTest::newRow("directory") << QStringLiteral("/");
}

void tst_PathFiles::openFails()
{
    QFETCH(QString, name);

    const ProbePath path(wide(name));
    void *handle = nullptr;
    QVERIFY(!path.OpenReadOnly(handle));
    QCOMPARE(handle, INVALID_HANDLE_VALUE);
    handle = nullptr;
    QVERIFY(!path.OpenWriteOnly(handle));
    QCOMPARE(handle, INVALID_HANDLE_VALUE);
}

void tst_PathFiles::renames_data()
{
    QTest::addColumn<bool>("isRelative");

    QTest::newRow("relative") << true;
    QTest::newRow("rooted") << false;
}

void tst_PathFiles::renames()
{
    QFETCH(bool, isRelative);

    const Folder folder;
    folder.make("old", "content");
    const WorkingDirectory here(isRelative ? QStringLiteral("/") : folder.path(""));
    const QString directory = QDir::currentPath();
    const ProbePath base(folder.name("").c_str());
    const std::wstring name = isRelative ? L"old" : folder.name("old");
    ProbePath path(name.c_str(), &base);
    const CString baseDir = *path.baseDir();

    QVERIFY(path.Rename(L"new name"));
    QCOMPARE(folder.content("new name"), QByteArray("content"));
    QCOMPARE(folder.content("old"), QByteArray("missing"));
    QCOMPARE(pathOf(path), QStringLiteral("new name"));
    QCOMPARE(path.GetPathType(), PT_FILE);
    QCOMPARE(path.category(), isRelative ? PC_RELATIVE : PC_ROOTED);
    QCOMPARE(*path.baseDir(), baseDir);
    QCOMPARE(QDir::currentPath(), directory);
    if (isRelative) {
        QVERIFY(path.Rename(path.GetPathString() + 4));
        QCOMPARE(pathOf(path), QStringLiteral("name"));
    }
}

void tst_PathFiles::renameFails()
{
    const Folder folder;
    folder.make("old");
    folder.make("taken", "content");
    const ProbePath base(folder.name("").c_str());
    ProbePath path(L"old", &base);
    const auto before = path.state();
    const QString directory = QDir::currentPath();
    for (const wchar_t *name : {static_cast<const wchar_t *>(nullptr), L"", L"taken", L"missing/x"})
        QVERIFY(!path.Rename(name));
    QVERIFY(path.state() == before);
    QCOMPARE(folder.content("old"), QByteArray());
    QCOMPARE(folder.content("taken"), QByteArray("content"));
    QCOMPARE(QDir::currentPath(), directory);

    ProbePath missing(L"missing", &base);
    QVERIFY(!missing.Rename(L"new"));
    QVERIFY(!CKdUiPathname().Rename(L"new"));
    ProbePath device;
    device.set(PC_RELATIVE, wide(folder.path("old")), PT_DEVICE);
    QVERIFY(!device.Rename(wide(folder.path("new"))));
    QCOMPARE(folder.content("old"), QByteArray());
}

// Nothing is renamed in another directory than its own.
void tst_PathFiles::renameNeedsTheBaseDirectory()
{
    const Folder folder;
    QVERIFY(folder.makeDirectory("base") && folder.makeDirectory("gone"));
    folder.make("old");
    const ProbePath base(folder.name("base").c_str());
    ProbePath path(L"old", &base);
    {
        const WorkingDirectory here(folder.path(""));
        QVERIFY(QDir().rmdir(QStringLiteral("base")));
        QVERIFY(!path.Rename(L"new"));
        QCOMPARE(folder.content("old"), QByteArray());
    }
    const ProbePath root(folder.name("").c_str());
    path = ProbePath(L"old", &root);
    const WorkingDirectory here(folder.path("gone"));
    QVERIFY(QDir().rmdir(folder.path("gone")));
    // There is no way back.
    QVERIFY(path.Rename(L"new"));
    QCOMPARE(folder.content("new"), QByteArray());
    QCOMPARE(QDir::currentPath(), QDir(folder.path("")).canonicalPath());
}

void tst_PathFiles::removesNothing()
{
    m_folder.make("kept");
    ProbePath path = inFolder("kept");
    const auto before = path.state();
    QVERIFY(!path.Remove());
    QVERIFY(path.state() == before && path.Exists());
}

void tst_PathFiles::uniqueNames_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("pattern");

    const auto row = [](const char *path, const char *pattern) {
        QTest::newRow(path) << QString::fromUtf8(path) << QString::fromUtf8(pattern);
    };
    row("/no/where/name.dat", "/no/where/name\\d{5}\\.dat");
    row("/no/where/name", "/no/where/name\\d{5}");
    row("/no/where/b.tar.gz", "/no/where/b.tar\\d{5}\\.gz");
    row("/no/where/", "/no/where/kxTmp\\d{5}");
    row("/no/where/.dat", "/no/where/kxTmp\\d{5}\\.dat");
    row("/no/where/name.", "/no/where/name\\d{5}");
    row("c:name.dat", "C:/name\\d{5}\\.dat");
    row("d/name.dat", "d/name\\d{5}\\.dat");
    row("name.dat", "name.datname\\d{5}\\.dat");
    row("/no/where/na*me.dat", "/no/where/kxTmp\\d{5}\\.dat");
    row("/no/where/name.d?t", "/no/where/kxTmp\\d{5}\\.d\\?t");
}

void tst_PathFiles::uniqueNames()
{
    QFETCH(QString, path);
    QFETCH(QString, pattern);

    const ProbePath base(L"/no/where");
    const ProbePath probe(wide(path), &base);
    const auto before = probe.state();
    ProbePath unique(L"/former");
    QVERIFY(probe.GetUniqueName(unique, true));
    QVERIFY(probe.state() == before);
    const QRegularExpression expected(QRegularExpression::anchoredPattern(pattern));
    QVERIFY2(expected.match(pathOf(unique)).hasMatch(), qPrintable(pathOf(unique)));
    QVERIFY(unique.IsPath() && unique.category() == probe.category());
    QCOMPARE(shown(unique.baseDir()), shown(probe.baseDir()));
    QVERIFY2(!unique.fault(), unique.fault());
}

void tst_PathFiles::uniqueNameOfAFreeName()
{
    m_folder.make("exists");
    CKdUiPathname unique;
    QVERIFY(inFolder("free").GetUniqueName(unique, false));
    QCOMPARE(pathOf(unique), m_folder.path("free"));
    QVERIFY(inFolder("*").GetUniqueName(unique, false));
    QCOMPARE(pathOf(unique), m_folder.path("*"));
    QVERIFY(inFolder("exists").GetUniqueName(unique, false));
    QVERIFY(pathOf(unique).startsWith(m_folder.path("exists")));
    QCOMPARE(pathOf(unique).size(), m_folder.path("exists").size() + 5);
    QVERIFY(!unique.Exists());
    // The type that is remembered is looked up again.
    ProbePath stale = inFolder("free");
    m_folder.make("free");
    QVERIFY(stale.GetUniqueName(unique, false));
    QVERIFY(pathOf(unique) != m_folder.path("free"));
}

void tst_PathFiles::uniqueNameInItself()
{
    ProbePath path(L"/no/where/name.dat");
    QVERIFY(path.GetUniqueName(path, true));
    QCOMPARE(pathOf(path).size(), int(std::wcslen(L"/no/where/name.dat")) + 5);
    QVERIFY(pathOf(path).startsWith(QStringLiteral("/no/where/name")));
}

void tst_PathFiles::uniqueNameOfWhatIsNoPath()
{
    ProbePath out(L"/former");
    const auto before = out.state();
    QVERIFY(!CKdUiPathname().GetUniqueName(out, true));
    QVERIFY(!CKdUiPathname().GetUniqueName(out, false));
    QVERIFY(out.state() == before);
    ProbePath device;
    device.set(PC_RELATIVE, L"device", PT_DEVICE);
    QVERIFY(!device.GetUniqueName(out, true));
}

static QString digits(int number)
{
    return QStringLiteral("%1").arg(number % 100000, 5, 10, QLatin1Char('0'));
}

void tst_PathFiles::uniqueNameTakesOneNumberPerTry()
{
    std::srand(1);
    const QString first = digits(std::rand());
    const QString second = digits(std::rand());
    const int next = std::rand();
    const QString taken = QStringLiteral("x") + first;
    m_folder.make(qPrintable(taken));

    std::srand(1);
    CKdUiPathname unique;
    QVERIFY(inFolder("x").GetUniqueName(unique, true));
    QCOMPARE(pathOf(unique), m_folder.path("x") + second);
    QCOMPARE(std::rand(), next);
}

void tst_PathFiles::uniqueNameGivesUp()
{
    const Folder folder;
    std::srand(2);
    for (int i = 0; i < 200; ++i)
        folder.make(qPrintable(QStringLiteral("x") + digits(std::rand())));
    const int next = std::rand();

    std::srand(2);
    ProbePath unique;
    QVERIFY(ProbePath(folder.name("x").c_str()).GetUniqueName(unique, true));
    QVERIFY(unique.IsEmpty());
    QVERIFY2(!unique.fault(), unique.fault());
    QCOMPARE(std::rand(), next);
}

void tst_PathFiles::uniqueNameLeavesNoRoom_data()
{
    QTest::addColumn<int>("directory");
    QTest::addColumn<int>("name");
    QTest::addColumn<int>("extension");
    QTest::addColumn<int>("total");

    // Characters, the separators of the directory included; a total of 0 is for no room.
    QTest::newRow("fits") << 1000 << 13 << 3 << 1000 + 13 + 5 + 1 + 3;
    QTest::newRow("name is cut") << 1000 << 14 << 3 << 1000 + 14 + 5 + 1 + 3;
    QTest::newRow("one character is left") << 1013 << 50 << 3 << 1013 + 1 + 5 + 1 + 3;
    QTest::newRow("none is left") << 1014 << 50 << 3 << 0;
    QTest::newRow("directory too long") << 5000 << 3 << 3 << 0;
    QTest::newRow("extension too long") << 3 << 3 << 2000 << 0;
    QTest::newRow("short directory") << 1 << 2000 << 3 << 1 + 1019 - 3 - 5 - 1 + 5 + 1 + 3;
}

void tst_PathFiles::uniqueNameLeavesNoRoom()
{
    QFETCH(int, directory);
    QFETCH(int, name);
    QFETCH(int, extension);
    QFETCH(int, total);

    const CString text = CString(std::wstring(std::size_t(directory - 1), L'd')) + L'/' +
                         CString(std::wstring(std::size_t(name), L'n')) + L'.' +
                         CString(std::wstring(std::size_t(extension), L'e'));
    ProbePath path;
    path.set(PC_ROOTED, text);
    ProbePath unique(L"/former");
    QCOMPARE(path.GetUniqueName(unique, true), total != 0);
    QCOMPARE(unique.IsEmpty(), total == 0);
    QCOMPARE(int(unique.GetPathString() ? std::wcslen(unique.GetPathString()) : 0), total);
    QVERIFY2(!unique.fault(), unique.fault());
}

QTEST_GUILESS_MAIN(tst_PathFiles)
#include "tst_PathFiles.moc"
