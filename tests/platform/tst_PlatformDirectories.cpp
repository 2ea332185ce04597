#include "DirectoryFixture.h"

#include <sys/stat.h>
#include <unistd.h>

class tst_PlatformDirectories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_directory = std::make_unique<DirectoryFixture>(); }
    void cleanup() { m_directory.reset(); }

    void currentDirectory();
    void currentDirectoryBuffer_data();
    void currentDirectoryBuffer();
    void currentDirectoryRoot();
    void currentDirectoryRemoved();
    void currentDirectoryThatIsNoText();
    void setCurrentDirectory_data();
    void setCurrentDirectory();

private:
    std::unique_ptr<DirectoryFixture> m_directory;
};

void tst_PlatformDirectories::currentDirectory()
{
    wchar_t buffer[1024] = {};
    const DWORD length = GetCurrentDirectoryW(1024, buffer);
    QCOMPARE(QString::fromWCharArray(buffer), m_directory->path());
    QCOMPARE(length, DWORD(std::wcslen(buffer)));
}

void tst_PlatformDirectories::currentDirectoryBuffer_data()
{
    QTest::addColumn<int>("roomLeft");
    QTest::addColumn<bool>("hasBuffer");
    QTest::addColumn<bool>("written");
    QTest::newRow("exact room") << 1 << true << true;
    QTest::newRow("no room for the terminator") << 0 << true << false;
    QTest::newRow("a character short") << -1 << true << false;
    QTest::newRow("no buffer") << 1 << false << false;
}

void tst_PlatformDirectories::currentDirectoryBuffer()
{
    QFETCH(int, roomLeft);
    QFETCH(bool, hasBuffer);
    QFETCH(bool, written);

    const std::wstring expected = m_directory->path().toStdWString();
    const auto length = DWORD(expected.size());
    std::wstring buffer(length + 1, L'.');
    const DWORD result = GetCurrentDirectoryW(length + DWORD(roomLeft), hasBuffer ? buffer.data() : nullptr);
    QCOMPARE(result, written ? length : length + 1);
    QCOMPARE(buffer, written ? expected + L'\0' : std::wstring(length + 1, L'.'));
    QCOMPARE(GetCurrentDirectoryW(0, nullptr), length + 1);
}

void tst_PlatformDirectories::currentDirectoryRoot()
{
    QVERIFY(SetCurrentDirectoryW(L"/"));
    wchar_t buffer[8] = {};
    QCOMPARE(GetCurrentDirectoryW(8, buffer), 1U);
    QCOMPARE(std::wstring(buffer), std::wstring(L"/"));
}

void tst_PlatformDirectories::currentDirectoryRemoved()
{
    QVERIFY(SetCurrentDirectoryW(L"dir"));
    QCOMPARE(rmdir("../dir"), 0);
    wchar_t buffer[1024] = L"before";
    QCOMPARE(GetCurrentDirectoryW(1024, buffer), 0U);
    QCOMPARE(GetCurrentDirectoryW(0, nullptr), 0U);
    QCOMPARE(std::wstring(buffer), std::wstring(L"before"));
}

void tst_PlatformDirectories::currentDirectoryThatIsNoText()
{
    QCOMPARE(mkdir("d\xFF", 0700), 0);
    QCOMPARE(chdir("d\xFF"), 0);
    wchar_t buffer[1024] = L"before";
    QCOMPARE(GetCurrentDirectoryW(1024, buffer), 0U);
    QCOMPARE(std::wstring(buffer), std::wstring(L"before"));
    // QTemporaryDir cannot remove it.
    QCOMPARE(rmdir("../d\xFF"), 0);
}

void tst_PlatformDirectories::setCurrentDirectory_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("childAfter");
    QTest::newRow("directory") << QStringLiteral("dir") << QStringLiteral("/dir");
    QTest::newRow("directory, slash") << QStringLiteral("dir/") << QStringLiteral("/dir");
    QTest::newRow("here") << QStringLiteral(".") << QString();
    QTest::newRow("file") << QStringLiteral("file") << QString();
    QTest::newRow("missing") << QStringLiteral("missing") << QString();
    QTest::newRow("empty name") << QString() << QString();
}

void tst_PlatformDirectories::setCurrentDirectory()
{
    QFETCH(QString, name);
    QFETCH(QString, childAfter);
    const bool enters = !childAfter.isEmpty() || name == QLatin1String(".");
    QCOMPARE(SetCurrentDirectoryW(name.toStdWString().c_str()) != 0, enters);
    QCOMPARE(QDir::currentPath(), m_directory->path() + childAfter);
}

QTEST_MAIN(tst_PlatformDirectories)
#include "tst_PlatformDirectories.moc"
