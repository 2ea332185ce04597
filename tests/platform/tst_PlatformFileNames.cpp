#include "DirectoryFixture.h"

#include <sys/stat.h>
#include <unistd.h>

Q_DECLARE_METATYPE(std::wstring)

class tst_PlatformFileNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_directory = std::make_unique<DirectoryFixture>(); }
    void cleanup() { m_directory.reset(); }

    void nullNames();
    void namesInAnyScript_data();
    void namesInAnyScript();
    void namesThatAreNoText_data();
    void namesThatAreNoText();
    void namesOutsideOfTheLocale();

private:
    std::unique_ptr<DirectoryFixture> m_directory;
};

void tst_PlatformFileNames::nullNames()
{
    QCOMPARE(CreateFileW(nullptr, GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr), INVALID_HANDLE_VALUE);
    QCOMPARE(DeleteFileW(nullptr), FALSE);
    QCOMPARE(GetFileAttributesW(nullptr), INVALID_FILE_ATTRIBUTES);
    QCOMPARE(SetCurrentDirectoryW(nullptr), FALSE);
    QCOMPARE(_wrename(nullptr, L"new"), -1);
    QCOMPARE(_wrename(L"file", nullptr), -1);
    QCOMPARE(_wrename(nullptr, nullptr), -1);
}

void tst_PlatformFileNames::namesInAnyScript_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("spaces") << QStringLiteral(" a b ");
    QTest::newRow("Latin") << QString::fromUtf8("\u00E4\u00DF\u0142");
    QTest::newRow("decomposed") << QString::fromUtf8("a\u0308");
    QTest::newRow("Cyrillic") << QString::fromUtf8("\u0416\u0443\u043A");
    QTest::newRow("Japanese") << QString::fromUtf8("\u65E5\u672C");
    QTest::newRow("Arabic") << QString::fromUtf8("\u0645\u0644\u0641");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\U0001F600\U00020000");
    QTest::newRow("last code point") << QString::fromUtf8("\U0010FFFD");
}

void tst_PlatformFileNames::namesInAnyScript()
{
    QFETCH(QString, name);
    const std::wstring wide = name.toStdWString();
    HANDLE handle = openFile(wide, GENERIC_WRITE, CREATE_NEW);
    QVERIFY(CloseHandle(handle));
    QVERIFY(QDir().entryList(QDir::Files).contains(name));
    QCOMPARE(GetFileAttributesW(wide.c_str()) & 0xF000, DWORD(S_IFREG));
    QCOMPARE(_wrename(wide.c_str(), (wide + L"x").c_str()), 0);
    QVERIFY(DeleteFileW((wide + L"x").c_str()));
    QVERIFY(QDir().mkdir(name));
    QVERIFY(SetCurrentDirectoryW(wide.c_str()));
    wchar_t buffer[1024] = {};
    QVERIFY(GetCurrentDirectoryW(1024, buffer) > 0);
    QCOMPARE(QString::fromWCharArray(buffer), m_directory->path() + QLatin1Char('/') + name);
}

void tst_PlatformFileNames::namesThatAreNoText_data()
{
    QTest::addColumn<std::wstring>("name");
    QTest::newRow("high surrogate") << std::wstring{L'a', wchar_t(0xD83D)};
    QTest::newRow("low surrogate") << std::wstring{wchar_t(0xDE00), L'a'};
    QTest::newRow("surrogate pair") << std::wstring{wchar_t(0xD83D), wchar_t(0xDE00)};
    QTest::newRow("past the last code point") << std::wstring{wchar_t(0x110000)};
    QTest::newRow("far past, U+10000 in its low bits") << std::wstring{wchar_t(0x04010000)};
    QTest::newRow("negative") << std::wstring{wchar_t(-2)};
}

void tst_PlatformFileNames::namesThatAreNoText()
{
    QFETCH(std::wstring, name);
    QCOMPARE(openFile(name, GENERIC_WRITE, CREATE_ALWAYS), INVALID_HANDLE_VALUE);
    QCOMPARE(DeleteFileW(name.c_str()), FALSE);
    QCOMPARE(GetFileAttributesW(name.c_str()), INVALID_FILE_ATTRIBUTES);
    QCOMPARE(SetCurrentDirectoryW(name.c_str()), FALSE);
    QCOMPARE(_wrename(L"file", name.c_str()), -1);
    QCOMPARE(QDir().entryList(QDir::Files), QStringList{QStringLiteral("file")});
}

void tst_PlatformFileNames::namesOutsideOfTheLocale()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    QVERIFY(CloseHandle(openFile(L"\u00E9", GENERIC_WRITE, CREATE_NEW)));
    QVERIFY(access("\xE9", F_OK) == 0);
    // The character is not replaced by a question mark: that would be another file.
    QVERIFY(CloseHandle(openFile(L"?", GENERIC_WRITE, CREATE_NEW)));
    QCOMPARE(DeleteFileW(L"\u65E5"), FALSE);
    QCOMPARE(GetFileAttributesW(L"\u65E5"), INVALID_FILE_ATTRIBUTES);
    QCOMPARE(openFile(L"\u65E5", GENERIC_WRITE, OPEN_EXISTING), INVALID_HANDLE_VALUE);
    QVERIFY(access("?", F_OK) == 0);
}

QTEST_MAIN(tst_PlatformFileNames)
#include "tst_PlatformFileNames.moc"
