#include "../files/Folder.h"
#include "PathTexts.h"
#include "WorkingDirectory.h"

#include <QRandomGenerator>
#include <QTest>

#include <unistd.h>

class tst_PathParsing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_folder.isValid()); }
    void accepted_data();
    void accepted();
    void refused_data();
    void refused();
    void nullTextChangesNothing();
    void types_data();
    void types();
    void flagHasNoEffect();
    void textOfItself();
    void baseIsItself();
    void findingDoesNothing();
    void inTheCurrentDirectory();
    void currentDirectoryThatIsNoPath();
    void withoutCurrentDirectory();
    void currentDirectoryTooLong();
    void newObject();
    void emptied();
    void copies();
    void assignsItself();
    void assignsThroughTheVirtualMember();
    void randomTexts();

private:
    Folder m_folder;
};

void tst_PathParsing::accepted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("base");
    QTest::addColumn<int>("category");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("baseDir");
    QTest::addColumn<bool>("isExplicit");

    const auto row = [](const char *name, const QString &text, const char *base, path_category category,
                        const QString &path, const QString &baseDir, bool isExplicit) {
        QTest::newRow(name) << text << QString::fromUtf8(base) << int(category) << path << baseDir
                            << isExplicit;
    };
    const auto drive = [&](const char *name, const char *text, const char *path) {
        row(name, QString::fromUtf8(text), "", PC_DRIVE, QString::fromUtf8(path), none(), true);
    };
    const auto rooted = [&](const char *name, const char *text, const char *path) {
        row(name, QString::fromUtf8(text), "", PC_ROOTED, QString::fromUtf8(path), QString(), true);
    };
    const auto relative = [&](const char *name, const char *text, const char *path, bool isExplicit) {
        row(name, QString::fromUtf8(text), "/no/where", PC_RELATIVE, QString::fromUtf8(path),
            QStringLiteral("/no/where"), isExplicit);
    };
    drive("quotes, blanks and backslashes", "  \"c:\\work\\a.dat\"\t", "C:/work/a.dat");
    drive("blanks inside the quotes", "\" c:\\a\n\"", "C:/a");
    drive("capital drive letter", "Z:/a", "Z:/a");
    drive("nothing but a drive", "c:", "C:");
    drive("drive without a separator", "c:x", "C:x");
    drive("two separators behind the drive", "c://x", "C://x");
    rooted("root", "/", "/");
    rooted("root as a backslash", "\\", "/");
    rooted("mixed separators", "\\a/b\\c", "/a/b/c");
    rooted("separators inside", "/a//b", "/a//b");
    rooted("any script", "/дом/家/😀", "/дом/家/😀");
    rooted("quoted", "\"/a b\"", "/a b");
    relative("name", "x", "x", false);
    relative("name in a directory", "d\\x", "d/x", true);
    relative("dots", "..", "..", false);
    relative("blanks inside", " a b ", "a b", false);
    relative("one quote", "\"", "\"", false);
    relative("quote at the start", " \"a ", "\"a", false);
    relative("quote at the end", "a\"", "a\"", false);
    relative("quotes inside", "a\"b\"c", "a\"b\"c", false);
    relative("two pairs of quotes", "\"\"a\"\"", "\"a\"", false);
    row("relative to a drive", QStringLiteral("x"), "c:\\d", PC_RELATIVE, QStringLiteral("x"),
        QStringLiteral("C:/d"), false);
    row("relative to wildcards", QStringLiteral("x"), "/d/*", PC_RELATIVE, QStringLiteral("x"),
        QStringLiteral("/d/*"), false);
    const QString longName(5000, QLatin1Char('n'));
    row("very long", QStringLiteral("c:/") + longName, "", PC_DRIVE, QStringLiteral("C:/") + longName, none(),
        true);
}

void tst_PathParsing::accepted()
{
    QFETCH(QString, text);
    QFETCH(QString, base);

    const ProbePath basePath(wide(base));
    ProbePath path;
    QCOMPARE(path.ParseRelative(wide(text), &basePath), 0U);
    QTEST(int(path.category()), "category");
    QTEST(pathOf(path), "path");
    QTEST(shown(path.baseDir()), "baseDir");
    QTEST(path.isExplicit(), "isExplicit");
    QVERIFY2(!path.parseFault(), path.parseFault());
    QVERIFY(!path.volume());
    QVERIFY(volumeList.isEmpty());
}

void tst_PathParsing::refused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasBase");

    QTest::newRow("empty") << QString() << true;
    QTest::newRow("blanks") << QStringLiteral(" \t\n ") << true;
    QTest::newRow("empty quotes") << QStringLiteral("\"\"") << true;
    QTest::newRow("blanks in quotes") << QStringLiteral("\"  \"") << true;
    QTest::newRow("two colons") << QStringLiteral("a:b:c") << true;
    QTest::newRow("colon twice in a row") << QStringLiteral("c::") << true;
    QTest::newRow("relative with a colon") << QStringLiteral("dir/x:y") << true;
    QTest::newRow("colon alone") << QStringLiteral(":") << true;
    QTest::newRow("drive that is no letter") << QStringLiteral("1:/x") << true;
    QTest::newRow("rooted with a colon") << QStringLiteral("/x:y") << true;
    QTest::newRow("colon behind the root") << QStringLiteral("/:") << true;
    QTest::newRow("network path") << QStringLiteral("//server/share") << true;
    QTest::newRow("network path with backslashes") << QStringLiteral("\\\\server\\share\\x") << true;
    QTest::newRow("two separators") << QStringLiteral("//") << true;
    QTest::newRow("relative without a base") << QStringLiteral("x") << false;
}

void tst_PathParsing::refused()
{
    QFETCH(QString, text);
    QFETCH(bool, hasBase);

    const ProbePath root(L"/");
    const ProbePath nothing;
    for (const CKdUiPathname *base : {hasBase ? &root : nullptr, hasBase ? &root : &nothing}) {
        ProbePath path(L"/former/path");
        QCOMPARE(path.ParseRelative(wide(text), base), 1U);
        QVERIFY(path.IsEmpty());
        QVERIFY2(!path.fault(), path.fault());
    }
}

void tst_PathParsing::nullTextChangesNothing()
{
    ProbePath path(L"/a/b*");
    const auto before = path.state();
    QCOMPARE(path.ParseRelative(nullptr, nullptr), 1U);
    QCOMPARE(path.ParseRelative(nullptr, &path), 1U);
    QCOMPARE(path.Parse(nullptr), 1U);
    QVERIFY(path.state() == before);
}

void tst_PathParsing::types_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("type");

    QTest::newRow("file") << QStringLiteral("file") << int(PT_FILE);
    QTest::newRow("directory") << QStringLiteral("directory") << int(PT_DIRECTORY);
    QTest::newRow("directory with a separator") << QStringLiteral("directory/") << int(PT_DIRECTORY);
    QTest::newRow("file with a separator") << QStringLiteral("file/") << int(PT_PATH);
    QTest::newRow("missing") << QStringLiteral("missing") << int(PT_PATH);
    QTest::newRow("other case") << QStringLiteral("FILE") << int(PT_PATH);
    QTest::newRow("in a file") << QStringLiteral("file/x") << int(PT_PATH);
    QTest::newRow("star") << QStringLiteral("*") << int(PT_WILDCARD);
    QTest::newRow("question mark") << QStringLiteral("fil?") << int(PT_WILDCARD);
    QTest::newRow("file with a star in its name") << QStringLiteral("star*") << int(PT_WILDCARD);
    QTest::newRow("wildcard in the directory") << QStringLiteral("d*/file") << int(PT_PATH);
    QTest::newRow("link to a directory") << QStringLiteral("link") << int(PT_DIRECTORY);
    QTest::newRow("link to nothing") << QStringLiteral("dangling") << int(PT_PATH);
    QTest::newRow("name too long") << QString(300, QLatin1Char('n')) << int(PT_PATH);
    QTest::newRow("device file") << QStringLiteral("../../dev/null") << int(PT_FILE);
    QTest::newRow("no character") << QString(QChar(0xD800)) << int(PT_PATH);
}

void tst_PathParsing::types()
{
    QFETCH(QString, name);

    m_folder.make("file");
    m_folder.make("star*");
    QVERIFY(m_folder.makeDirectory("directory"));
    QFile::link(QStringLiteral("directory"), m_folder.path("link"));
    QFile::link(QStringLiteral("nothing"), m_folder.path("dangling"));
    const ProbePath folder(m_folder.name("").c_str());
    const ProbePath relative(wide(name), &folder);
    QTEST(int(relative.GetPathType()), "type");
    const QString full = m_folder.path("") + QLatin1Char('/') + name;
    const ProbePath rooted(wide(full));
    QTEST(int(rooted.GetPathType()), "type");
    // Paths with a drive are never looked up.
    const ProbePath drive(wide(QStringLiteral("c:") + full));
    QVERIFY(drive.GetPathType() == (relative.GetPathType() == PT_WILDCARD ? PT_WILDCARD : PT_PATH));
}

void tst_PathParsing::flagHasNoEffect()
{
    const ProbePath base(L"/no/where");
    ProbePath off;
    ProbePath on;
    QCOMPARE(off.ParseRelative(L"d/x", &base, false), 0U);
    QCOMPARE(on.ParseRelative(L"d/x", &base, true), 0U);
    QVERIFY(on.state() == off.state());
    QCOMPARE(on.Parse(L"d/x", true), off.Parse(L"d/x", false));
    QVERIFY(on.state() == off.state());
}

void tst_PathParsing::textOfItself()
{
    ProbePath path(L"c:/some/longer/path");
    QCOMPARE(path.ParseRelative(path.GetPathString() + 2, nullptr), 0U);
    QCOMPARE(pathOf(path), QStringLiteral("/some/longer/path"));
    QCOMPARE(path.Parse(path.GetPathString() + 5), 0U);
    QCOMPARE(pathOf(path), QStringLiteral("/longer/path"));
}

void tst_PathParsing::baseIsItself()
{
    ProbePath path(L"/no/where");
    QCOMPARE(path.ParseRelative(L"x", &path), 0U);
    QCOMPARE(pathOf(path), QStringLiteral("x"));
    QCOMPARE(shown(path.baseDir()), QStringLiteral("/no/where"));
    QCOMPARE(path.ParseRelative(path.GetPathString(), &path), 0U);
    QCOMPARE(shown(path.baseDir()), QStringLiteral("/no/where/x"));
    QCOMPARE(path.ParseRelative(L"a:b:c", &path), 1U);
    QVERIFY(path.IsEmpty());
}

void tst_PathParsing::findingDoesNothing()
{
    ProbePath path(L"/a");
    const auto before = path.state();
    QCOMPARE(path.ParseAndOSFind(L"/tmp"), 1U);
    QCOMPARE(path.ParseAndOSFind(nullptr), 1U);
    QVERIFY(path.state() == before);
}

void tst_PathParsing::inTheCurrentDirectory()
{
    m_folder.make("file");
    const WorkingDirectory here(m_folder.path(""));
    ProbePath path;
    QCOMPARE(path.Parse(L" file "), 0U);
    QCOMPARE(path.GetPathType(), PT_FILE);
    QCOMPARE(shown(path.baseDir()), QDir::currentPath() + QLatin1Char('/'));
    QVERIFY2(!path.parseFault(), path.parseFault());
    QCOMPARE(path.Parse(L"/"), 0U);
    QCOMPARE(path.GetPathType(), PT_DIRECTORY);
    QCOMPARE(path.Parse(L"//a"), 1U);
    QVERIFY(path.IsEmpty());
}

void tst_PathParsing::currentDirectoryThatIsNoPath()
{
    QVERIFY(m_folder.makeDirectory("col:on"));
    const WorkingDirectory here(m_folder.path("col:on"));
    for (const wchar_t *text : {L"x", L"/tmp", L"a:b:c"}) {
        ProbePath path(L"/former");
        QCOMPARE(path.Parse(text), 4U);
        QVERIFY(path.IsEmpty());
        QVERIFY2(!path.fault(), path.fault());
    }
}

void tst_PathParsing::withoutCurrentDirectory()
{
    QVERIFY(m_folder.makeDirectory("gone"));
    const WorkingDirectory here(m_folder.path("gone"));
    QVERIFY(QDir().rmdir(m_folder.path("gone")));
    ProbePath path(L"/former");
    QCOMPARE(path.Parse(L"x"), 1U);
    QVERIFY(path.IsEmpty());
    QCOMPARE(path.Parse(L"/"), 0U);
    QCOMPARE(path.GetPathType(), PT_DIRECTORY);
}

void tst_PathParsing::currentDirectoryTooLong()
{
    const WorkingDirectory here(m_folder.path(""));
    const QByteArray name(200, 'd');
    for (int depth = 0; depth < 6; ++depth)
        QVERIFY(QDir().mkdir(QString::fromLatin1(name)) && chdir(name.constData()) == 0);
    ProbePath path;
    QCOMPARE(path.Parse(L"x"), 1U);
    QCOMPARE(path.Parse(L"/"), 0U);
}

void tst_PathParsing::newObject()
{
    const ProbePath path;
    QVERIFY(path.IsEmpty() && !path.IsPath());
    QCOMPARE(path.GetPathType(), PT_EMPTY);
    QCOMPARE(path.GetSeparator(), L'/');
    QVERIFY(!path.GetPathString() && !path.baseDir() && !path.volume() && !path.isExplicit());
}

void tst_PathParsing::emptied()
{
    ProbePath path(L"c:/a");
    CKdUiNTFSVolumeDescriptor volume(L"C:");
    path.setVolume(&volume);
    path.setBaseDir(L"/base");
    path.Empty();
    QVERIFY2(!path.fault(), path.fault());
    QVERIFY(path.IsEmpty());
    QCOMPARE(path.category(), PC_DRIVE);
    QVERIFY(path.isExplicit());
}

void tst_PathParsing::copies()
{
    CKdUiNTFSVolumeDescriptor volume(L"C:");
    const ProbePath base(L"/no/where");
    ProbePath path(L"d/x*", &base);
    path.setVolume(&volume);
    path.setSeparator(L'|');
    const auto before = path.state();

    ProbePath constructed(path);
    ProbePath assigned(L"c:/former");
    assigned = path;
    QVERIFY(constructed.state() == before && assigned.state() == before);
    constructed.Append(L"y");
    assigned.Empty();
    QVERIFY(path.state() == before);

    path.setSeparator(L'/');
    assigned = ProbePath();
    QVERIFY2(!assigned.fault(), assigned.fault());
    QVERIFY(assigned.IsEmpty());
    const ProbePath copyOfNothing(assigned);
    QVERIFY(copyOfNothing.IsEmpty());
}

void tst_PathParsing::assignsItself()
{
    ProbePath path(L"c:/a");
    const auto before = path.state();
    const ProbePath &same = path;
    path = same;
    path.AssignCopy(same);
    QVERIFY(path.state() == before);
}

void tst_PathParsing::assignsThroughTheVirtualMember()
{
    class Counting : public CKdUiPathname
    {
    public:
        void AssignCopy(const CKdUiPathname &other) override
        {
            ++m_count;
            CKdUiPathname::AssignCopy(other);
        }
        int m_count = 0;
    };
    const ProbePath path(L"c:/a");
    Counting copy;
    static_cast<CKdUiPathname &>(copy) = path;
    QCOMPARE(copy.m_count, 1);
    QCOMPARE(pathOf(copy), QStringLiteral("C:/a"));
}

void tst_PathParsing::randomTexts()
{
    static const wchar_t alphabet[] = L"/\\:ab.*? \"\tЖ😀c:";
    QRandomGenerator random(4711);
    const ProbePath base(L"/no/where*");
    for (int i = 0; i < 20000; ++i) {
        CString text;
        for (quint32 length = random.bounded(12U); length > 0; --length)
            text += alphabet[random.bounded(quint32(std::size(alphabet) - 1))];
        ProbePath path(text, &base);
        if (path.parseFault())
            QFAIL(qPrintable(shown(text) + QLatin1String(path.parseFault())));

        // What was parsed parses again, to the same.
        CString full;
        if (!path.GetFullPath(full))
            continue;
        const ProbePath again(full, nullptr);
        CString fullAgain;
        QVERIFY2(again.GetFullPath(fullAgain) || again.IsEmpty(), qPrintable(shown(full)));
        if (path.category() != PC_RELATIVE)
            QVERIFY2(full == fullAgain, qPrintable(shown(full)));
    }
}

QTEST_GUILESS_MAIN(tst_PathParsing)
#include "tst_PathParsing.moc"
