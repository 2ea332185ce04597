#include "PathTexts.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

/// The free functions and small members that path names are made of.
class tst_PathFunctions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void workString_data();
    void workString();
    void categories_data();
    void categories();
    void categoriesOfPathsWithoutText();
    void networkPaths();
    void baseDirectories();
    void joins_data();
    void joins();
    void withoutExtension_data();
    void withoutExtension();
    void driveLetters();
    void wildcards();
    void lookUp();
    void released();
    void lastCharacter();
    void spaces();
    void quotes_data();
    void quotes();
    void copiesCharacters();
    void noDevices();
};

void tst_PathFunctions::workString_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("work");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");

    QTest::newRow("empty") << QString() << QString() << 0 << 0;
    QTest::newRow("one") << QStringLiteral("a") << QStringLiteral("a") << int('a') << 0;
    QTest::newRow("backslashes") << QStringLiteral("\\a\\") << QStringLiteral("|a|") << int('|') << int('a');
}

void tst_PathFunctions::workString()
{
    QFETCH(QString, text);

    CString work = wide(text);
    wchar_t first = L'x';
    wchar_t second = L'x';
    GetWorkString(work, L'|', first, second);
    QTEST(shown(work), "work");
    QTEST(int(first), "first");
    QTEST(int(second), "second");
}

void tst_PathFunctions::categories_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("category");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("accepted");

    const auto row = [](const char *text, path_category category, const char *after, bool accepted) {
        QTest::newRow(text) << QString::fromUtf8(text) << int(category) << QString::fromUtf8(after)
                            << accepted;
    };
    row("", PC_RELATIVE, "", true);
    row("a", PC_RELATIVE, "a", true);
    row("/", PC_ROOTED, "/", true);
    row("/a", PC_ROOTED, "/a", true);
    row("//", PC_UNC, "//", true);
    row("c:", PC_DRIVE, "C:", true);
    row("C:\\", PC_DRIVE, "C:\\", true);
    row("\\a", PC_RELATIVE, "\\a", true);
    row("1:", PC_RELATIVE, "1:", false);
    row("/a:", PC_ROOTED, "/a:", false);
    row("//:", PC_UNC, "//:", false);
}

void tst_PathFunctions::categories()
{
    QFETCH(QString, text);
    QFETCH(int, category);
    QFETCH(bool, accepted);

    CString parsed = wide(text);
    CString *pointer = &parsed;
    path_category found = PC_RELATIVE;
    ParseRelPath(&pointer, L'/', found);
    QCOMPARE(int(found), category);
    QTEST(shown(parsed), "after");

    const ProbePath base(L"/b");
    CString work = wide(text);
    const wchar_t first = work.c_str()[0];
    const wchar_t second = first ? work.c_str()[1] : L'\0';
    QCOMPARE(GetPathCatType(work, L'/', first, second, &base, found), accepted);
    QCOMPARE(int(found), category);
    QTEST(shown(work), "after");
    const CKdUiPathname nothing;
    for (const CKdUiPathname *noBase : {static_cast<const CKdUiPathname *>(nullptr), &nothing})
        QCOMPARE(GetPathCatType(work, L'/', first, second, noBase, found),
                 accepted && category != PC_RELATIVE);
}

void tst_PathFunctions::categoriesOfPathsWithoutText()
{
    path_category category = PC_UNC;
    ParseRelPath(nullptr, L'/', category);
    CString *none = nullptr;
    ParseRelPath(&none, L'/', category);
    QCOMPARE(category, PC_UNC);
}

void tst_PathFunctions::networkPaths()
{
    QCOMPARE(GetUNCScount(L"//server/share/x", L'/'), 0U);
    CString work = L"//s";
    QCOMPARE(shown(GetWorkPtrByIndex(work, L'/', PC_UNC, 2)), QStringLiteral("s"));
    QCOMPARE(shown(work), QStringLiteral("//s"));
    QCOMPARE(shown(GetWorkPtrByIndex(work, L'/', PC_UNC, 3)), QStringLiteral("/"));
    QCOMPARE(shown(work), QStringLiteral("//s/"));
    QCOMPARE(shown(GetWorkPtrByIndex(work, L'/', PC_DRIVE, 4)), QString());
    QCOMPARE(shown(GetWorkPtrByIndex(work, L'/', PC_DRIVE, 99)), QString());
    QCOMPARE(shown(GetWorkPtrByIndex(work, L'/', PC_DRIVE, -1)), QStringLiteral("//s/"));
    QCOMPARE(shown(work), QStringLiteral("//s/"));
}

void tst_PathFunctions::baseDirectories()
{
    const auto baseDirOf = [](path_category category, const CKdUiPathname *base,
                              CKdUiVolumeDescriptor *volume) {
        CString *made = nullptr;
        GetRelPath(category, base, volume, &made);
        const QString text = shown(made);
        ReleaseCStrPtr(&made);
        return text;
    };
    CKdUiNTFSVolumeDescriptor volume(L"C:");
    const ProbePath base(L"/no/where");
    const CKdUiPathname nothing;
    QCOMPARE(baseDirOf(PC_ROOTED, &base, nullptr), QString());
    QCOMPARE(baseDirOf(PC_ROOTED, &base, &volume), QStringLiteral("C:"));
    QCOMPARE(baseDirOf(PC_RELATIVE, &base, &volume), QStringLiteral("/no/where"));
    QCOMPARE(baseDirOf(PC_RELATIVE, &nothing, nullptr), none());
    QCOMPARE(baseDirOf(PC_RELATIVE, nullptr, nullptr), none());
    QCOMPARE(baseDirOf(PC_DRIVE, &base, &volume), none());
    QCOMPARE(baseDirOf(PC_UNC, &base, &volume), none());
    GetRelPath(PC_ROOTED, &base, nullptr, nullptr);
}

void tst_PathFunctions::joins_data()
{
    QTest::addColumn<QString>("baseDir");
    QTest::addColumn<QString>("work");
    QTest::addColumn<QString>("joined");

    const auto row = [](const char *name, const QString &baseDir, const char *work, const char *joined) {
        QTest::newRow(name) << baseDir << QString::fromUtf8(work) << QString::fromUtf8(joined);
    };
    row("no separator", QStringLiteral("/b"), "x", "/b/x");
    row("separator in the base", QStringLiteral("/b/"), "x", "/b/x");
    row("separator in the path", QStringLiteral("/b"), "/x", "/b/x");
    row("separators in both", QStringLiteral("/b/"), "/x", "/b//x");
    row("empty base", QString(), "x", "/x");
    row("empty path", QStringLiteral("/b"), "", "/b/");
    row("no base", none(), "x", "x");
}

void tst_PathFunctions::joins()
{
    QFETCH(QString, baseDir);
    QFETCH(QString, work);

    const CString base = wide(baseDir);
    for (const bool flag : {false, true}) {
        CString joined = wide(work);
        QVERIFY(GetPathBuffer(joined, baseDir == none() ? nullptr : &base, L'/', joined, flag));
        QTEST(shown(joined), "joined");
    }
}

void tst_PathFunctions::withoutExtension_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("after");

    const auto row = [](const char *path, const char *after) {
        QTest::newRow(path) << QString::fromUtf8(path) << QString::fromUtf8(after);
    };
    row("a.b/c.d", "a.b/c");
    row("a.b/c", "a.b/c");
    row("a.b.c", "a.b");
    row(".a", "");
    row("/.a", "/");
    row("a", "a");
    row("", "");
}

void tst_PathFunctions::withoutExtension()
{
    QFETCH(QString, path);

    CString text = wide(path);
    GetPathStrNoExt(text, L'/');
    QTEST(shown(text), "after");
}

void tst_PathFunctions::driveLetters()
{
    const auto upper = [](const wchar_t *text) {
        CString path = text;
        upperPathFirstChar(path);
        return path;
    };
    QVERIFY(upper(L"c:x") == L"C:x" && upper(L"c:") == L"C:");
    QVERIFY(upper(L"cx") == L"cx" && upper(L"c") == L"c" && upper(L"") == L"" && upper(L"/c:") == L"/c:");
}

void tst_PathFunctions::wildcards()
{
    QVERIFY(IsPathType(L"a*") && IsPathType(L"?") && !IsPathType(L"a.b") && !IsPathType(L""));
}

void tst_PathFunctions::lookUp()
{
    const QTemporaryDir directory;
    const CString path = wide(directory.path());
    QCOMPARE(GetAttByPath(path, L""), PT_DIRECTORY);
    QCOMPARE(GetAttByPath(L"", path), PT_DIRECTORY);
    QCOMPARE(GetAttByPath(L"missing", path), PT_PATH);
    QCOMPARE(GetAttByPath(L"null", L"/dev"), PT_FILE);
    QCOMPARE(GetAttByPath(L"null", L"/dev/"), PT_FILE);
    // Its mode shares a bit with that of directories.
    const QByteArray socket = QFile::encodeName(directory.filePath(QStringLiteral("socket")));
    QVERIFY(mknod(socket.constData(), S_IFSOCK | 0600, 0) == 0);
    QCOMPARE(GetAttByPath(L"socket", path), PT_FILE);
}

void tst_PathFunctions::released()
{
    auto *text = new CString(L"x");
    ReleaseCStrPtr(&text);
    QVERIFY(!text);
    ReleaseCStrPtr(&text);
    ReleaseCStrPtr(nullptr);
}

void tst_PathFunctions::lastCharacter()
{
    QCOMPARE(CKdUiPathname::GetLastCharacter(L"ab"), L'b');
    QCOMPARE(CKdUiPathname::GetLastCharacter(L""), L'\0');
}

void tst_PathFunctions::spaces()
{
    CString text = L"\t a b \n";
    CKdUiPathname().StripSpaces(text);
    QCOMPARE(shown(text), QStringLiteral("a b"));
    text = L"  ";
    CKdUiPathname().StripSpaces(text);
    QVERIFY(text.IsEmpty());
}

void tst_PathFunctions::quotes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("after");

    const auto row = [](const char *text, const char *after) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(after);
    };
    row(" \" a \" ", " a ");
    row("\"\"", "");
    row(" \" ", " \" ");
    row(" \"a ", " \"a ");
    row(" a\" ", " a\" ");
    row(" a ", " a ");
    row("", "");
}

void tst_PathFunctions::quotes()
{
    QFETCH(QString, text);

    CString unquoted = wide(text);
    CKdUiPathname().Unquote(unquoted);
    QTEST(shown(unquoted), "after");
}

void tst_PathFunctions::copiesCharacters()
{
    const CKdUiPathname path;
    wchar_t buffer[] = L"xxxxxx";
    path.lstrncpy_x(buffer, L"a\0bc", 3);
    QVERIFY(std::wmemcmp(buffer, L"a\0b\0xx", 6) == 0);
    path.lstrncpy_x(buffer, L"", 0);
    QVERIFY(std::wmemcmp(buffer, L"\0\0b\0xx", 6) == 0);
    path.lstrncpy_x(buffer, L"abc", -1);
    path.lstrncpy_x(buffer, nullptr, 1);
    path.lstrncpy_x(nullptr, L"abc", 1);
    QVERIFY(std::wmemcmp(buffer, L"\0\0b\0xx", 6) == 0);
}

void tst_PathFunctions::noDevices()
{
    for (const wchar_t *name : {L"NUL", L"con", L"COM1:", L"/dev/null", L""})
        QVERIFY(!CKdUiPathname().IsDeviceName(name));
}

QTEST_GUILESS_MAIN(tst_PathFunctions)
#include "tst_PathFunctions.moc"
