#include "../files/Folder.h"
#include "PathTexts.h"
#include "ScriptedCorrection.h"

#include <QTest>

#include <clocale>

class tst_PathQueries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_folder.isValid()); }
    void types_data();
    void types();
    void nameParts_data();
    void nameParts();
    void namePartsOfEachType();
    void fullPath_data();
    void fullPath();
    void correctedPath();
    void correctedByThePlatform();
    void fullPathOfNothing();
    void fullPathInABuffer();
    void parent_data();
    void parent();
    void parentOfItself();
    void parentOfWhatIsNoPath();
    void matchesText_data();
    void matchesText();
    void matchesDriveLettersOfAnyScript();
    void matchesOther();
    void matchesItselfUnasked();

private:
    Folder m_folder;
};

void tst_PathQueries::types_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isPath");

    QTest::newRow("empty") << int(PT_EMPTY) << false;
    QTest::newRow("path") << int(PT_PATH) << true;
    QTest::newRow("wildcard") << int(PT_WILDCARD) << true;
    QTest::newRow("file") << int(PT_FILE) << true;
    QTest::newRow("directory") << int(PT_DIRECTORY) << true;
    QTest::newRow("device") << int(PT_DEVICE) << false;
}

void tst_PathQueries::types()
{
    QFETCH(int, type);

    ProbePath path;
    path.set(PC_ROOTED, L"/a", path_type(type));
    QTEST(path.IsPath(), "isPath");
    QCOMPARE(path.IsEmpty(), type == 0);
    QCOMPARE(int(path.GetPathType()), type);
}

void tst_PathQueries::nameParts_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("base");
    QTest::addColumn<QString>("filename");
    QTest::addColumn<QString>("extension");

    // What is left alone shows as "same".
    const auto row = [](const char *path, const char *base, const char *filename, const char *extension) {
        QTest::newRow(path) << QString::fromUtf8(path) << QString::fromUtf8(base)
                            << QString::fromUtf8(filename) << QString::fromUtf8(extension);
    };
    row("a/b", "b", "b", "same");
    row("a/b.tar.gz", "b.tar.gz", "b.tar", "gz");
    row("C:x.dat", "x.dat", "x", "dat");
    row("C:a:b", "b", "b", "same");
    row("C:/x:y.z", "x:y.z", "x:y", "z");
    row("x.", "x.", "x", "");
    row(".x", ".x", "", "x");
    row("a.b/c", "c", "c", "same");
    row("a.b/", "", "same", "same");
    row("C:", "", "same", "same");
    row("", "", "same", "same");
    row("/дом/家.😀", "家.😀", "家", "😀");
}

void tst_PathQueries::nameParts()
{
    QFETCH(QString, path);

    ProbePath probe;
    probe.set(PC_RELATIVE, wide(path));
    CString base = L"same";
    CString filename = L"same";
    CString extension = L"same";
    probe.GetBasename(base);
    probe.GetFilename(filename);
    probe.GetExtension(extension);
    QTEST(shown(base), "base");
    QTEST(shown(filename), "filename");
    QTEST(shown(extension), "extension");
}

void tst_PathQueries::namePartsOfEachType()
{
    for (int type = PT_EMPTY; type <= PT_DEVICE; ++type) {
        ProbePath probe;
        probe.set(PC_ROOTED, L"/a/b.c", path_type(type));
        CString base = L"same";
        CString filename = L"same";
        CString extension = L"same";
        probe.GetBasename(base);
        probe.GetFilename(filename);
        probe.GetExtension(extension);
        QCOMPARE(base == L"b.c", type != PT_EMPTY);
        QCOMPARE(filename == L"b", type != PT_EMPTY && type != PT_WILDCARD);
        QCOMPARE(extension == L"c", type != PT_EMPTY);
    }
    const CKdUiPathname nothing;
    CString out = L"same";
    nothing.GetBasename(out);
    nothing.GetFilename(out);
    nothing.GetExtension(out);
    nothing.GetFullUNCPath(out);
    ProbePath(L"/a").GetFullUNCPath(out);
    QCOMPARE(shown(out), QStringLiteral("same"));
}

void tst_PathQueries::fullPath_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("baseDir");
    QTest::addColumn<QString>("full");

    const auto row = [](const char *name, path_category category, path_type type, const QString &baseDir,
                        const char *full) {
        QTest::newRow(name) << int(category) << int(type) << baseDir << QString::fromUtf8(full);
    };
    row("no base", PC_RELATIVE, PT_PATH, none(), "d/x");
    row("base", PC_RELATIVE, PT_PATH, QStringLiteral("/b"), "/b/d/x");
    row("base with a separator", PC_RELATIVE, PT_WILDCARD, QStringLiteral("/b/"), "/b/d/x");
    row("empty base", PC_RELATIVE, PT_FILE, QString(), "/d/x");
    row("base of a drive", PC_DRIVE, PT_DIRECTORY, QStringLiteral("B:"), "B:/d/x");
    row("base of a rooted path", PC_ROOTED, PT_FILE, QStringLiteral("/b"), "d/x");
    row("base of a device", PC_RELATIVE, PT_DEVICE, QStringLiteral("/b"), "d/x");
}

void tst_PathQueries::fullPath()
{
    QFETCH(int, category);
    QFETCH(int, type);
    QFETCH(QString, baseDir);

    ScriptedCorrection correction;
    ProbePath probe;
    probe.set(path_category(category), L"d/x", path_type(type));
    if (baseDir != none())
        probe.setBaseDir(wide(baseDir));
    CString full = L"former";
    QVERIFY(probe.GetFullPath(full));
    QTEST(shown(full), "full");
    QCOMPARE(correction.asked(), static_cast<const std::wstring &>(full));
}

void tst_PathQueries::correctedPath()
{
    ScriptedCorrection correction;
    correction.answer(true, L"/Corrected");
    const ProbePath path(L"/typed");
    CString full;
    QVERIFY(path.GetFullPath(full));
    QCOMPARE(shown(full), QStringLiteral("/Corrected"));
    QCOMPARE(pathOf(path), QStringLiteral("/typed"));

    // A base is corrected when a path is parsed against it.
    const ProbePath relative(L"x", &path);
    QCOMPARE(shown(relative.baseDir()), QStringLiteral("/Corrected"));
    correction.answer(true, L"");
    const ProbePath baseIsEmpty(L"x", &path);
    QVERIFY(!baseIsEmpty.baseDir());
    QCOMPARE(baseIsEmpty.GetPathType(), PT_PATH);
    QVERIFY2(!baseIsEmpty.parseFault(), baseIsEmpty.parseFault());
}

void tst_PathQueries::correctedByThePlatform()
{
    m_folder.make("Name.Dat");
    const ProbePath path(m_folder.name("nAME.dAT").c_str());
    QCOMPARE(path.GetPathType(), PT_PATH);
    CString full;
    QVERIFY(path.GetFullPath(full));
    QCOMPARE(shown(full), m_folder.path("Name.Dat"));
}

void tst_PathQueries::fullPathOfNothing()
{
    const CKdUiPathname nothing;
    CString out = L"same";
    QVERIFY(!nothing.GetFullPath(out));
    QCOMPARE(shown(out), QStringLiteral("same"));
}

void tst_PathQueries::fullPathInABuffer()
{
    wchar_t buffer[] = L"xxxxxx";
    QVERIFY(ProbePath(L"c:/d").GetFullPath(buffer));
    QCOMPARE(shown(buffer), QStringLiteral("C:/d"));
    QCOMPARE(buffer[5], L'x');
    QVERIFY(!CKdUiPathname().GetFullPath(buffer));
    QCOMPARE(buffer[0], L'\0');
    QCOMPARE(buffer[1], L':');
    QVERIFY(!ProbePath(L"c:/d").GetFullPath(static_cast<wchar_t *>(nullptr)));
}

void tst_PathQueries::parent_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("baseDir");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("categoryAfter");

    const auto row = [](const char *name, path_category category, const char *path, const QString &baseDir,
                        const QString &parent, path_type type, path_category categoryAfter) {
        QTest::newRow(name) << int(category) << QString::fromUtf8(path) << baseDir << parent << int(type)
                            << int(categoryAfter);
    };
    const auto inside = [&](const char *name, path_category category, const char *path, const char *parent,
                            path_type type) {
        row(name, category, path, QStringLiteral("/b"), QString::fromUtf8(parent), type, category);
    };
    inside("rooted", PC_ROOTED, "/a/x", "/a/", PT_DIRECTORY);
    inside("rooted with a separator", PC_ROOTED, "/a/x/", "/a/", PT_PATH);
    inside("in the root", PC_ROOTED, "/x", "/", PT_DIRECTORY);
    inside("root", PC_ROOTED, "/", "/", PT_DIRECTORY);
    inside("two separators", PC_ROOTED, "/a//x", "/a//", PT_DIRECTORY);
    inside("drive", PC_DRIVE, "C:/x", "C:/", PT_DIRECTORY);
    inside("root of a drive", PC_DRIVE, "C:/", "C:/", PT_DIRECTORY);
    inside("drive without a separator", PC_DRIVE, "C:x", "C:", PT_DIRECTORY);
    inside("relative in a directory", PC_RELATIVE, "d/x", "d/", PT_DIRECTORY);
    const auto component = [&](const char *name, const char *path, const QString &baseDir,
                               const QString &parent, path_type type, path_category category) {
        row(name, PC_RELATIVE, path, baseDir, parent, type, category);
    };
    component("rooted base", "x", QStringLiteral("/b"), QStringLiteral("/b"), PT_DIRECTORY, PC_ROOTED);
    component("separator at the end", "x/", QStringLiteral("/b"), QStringLiteral("/b"), PT_PATH, PC_ROOTED);
    component("base of a drive", "x", QStringLiteral("c:/b"), QStringLiteral("C:/b"), PT_DIRECTORY, PC_DRIVE);
    component("network base", "x", QStringLiteral("//b"), QStringLiteral("//b"), PT_DIRECTORY, PC_UNC);
    component("relative base", "x", QStringLiteral("b"), QStringLiteral("b"), PT_DIRECTORY, PC_RELATIVE);
    component("empty base", "x", QString(), QString(), PT_DIRECTORY, PC_RELATIVE);
    component("no base", "x", none(), none(), PT_EMPTY, PC_RELATIVE);
}

void tst_PathQueries::parent()
{
    QFETCH(int, category);
    QFETCH(QString, path);
    QFETCH(QString, baseDir);

    ProbePath probe;
    probe.set(path_category(category), wide(path), PT_FILE);
    if (baseDir != none())
        probe.setBaseDir(wide(baseDir));
    const auto before = probe.state();
    ProbePath parent(L"c:/former");
    probe.GetParent(parent);
    QVERIFY(probe.state() == before);
    QTEST(pathOf(parent), "parent");
    QTEST(int(parent.GetPathType()), "type");
    QTEST(int(parent.category()), "categoryAfter");
    const bool isBase = pathOf(parent).compare(shown(probe.baseDir()), Qt::CaseInsensitive) == 0;
    QCOMPARE(parent.baseDir() == nullptr, isBase || parent.IsEmpty());
    QVERIFY2(!parent.fault(), parent.fault());
}

void tst_PathQueries::parentOfItself()
{
    const ProbePath base(L"/no/where");
    ProbePath path(L"d/x", &base);
    path.GetParent(path);
    QCOMPARE(pathOf(path), QStringLiteral("d/"));
    path.GetParent(path);
    QCOMPARE(pathOf(path), QStringLiteral("/no/where"));
    QCOMPARE(path.GetPathType(), PT_PATH);
    path.GetParent(path);
    path.GetParent(path);
    path.GetParent(path);
    QCOMPARE(pathOf(path), QStringLiteral("/"));
}

void tst_PathQueries::parentOfWhatIsNoPath()
{
    ProbePath device;
    device.set(PC_RELATIVE, L"a/b", PT_DEVICE);
    ProbePath out(L"/former");
    const auto before = out.state();
    device.GetParent(out);
    CKdUiPathname().GetParent(out);
    QVERIFY(out.state() == before);
}

void tst_PathQueries::matchesText_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("matches");

    const auto row = [](const char *name, const char *path, const char *text, bool matches) {
        QTest::newRow(name) << QString::fromUtf8(path) << QString::fromUtf8(text) << matches;
    };
    row("equal", "/a/b", "/a/b", true);
    row("other case", "/a/B", "/A/b", true);
    row("different", "/a/b", "/a/c", false);
    row("separator on the left", "/a/b/", "/a/b", true);
    row("separator on the right", "/a/b", "/a/b/", true);
    row("separators on both", "/a/b/", "/a/b/", true);
    row("two separators", "/a/b//", "/a/b/", false);
    row("drive letter", "c:/a", "c:/A", true);
    row("backslashes count", "/a/b", "\\a\\b", false);
    row("nothing and nothing", "", "", true);
    row("nothing and the root", "", "/", true);
    row("nothing and something", "", "/a", false);
    row("something and nothing", "/a", "", false);
    row("part of it", "/a/b", "/a", false);
}

void tst_PathQueries::matchesText()
{
    QFETCH(QString, path);
    QFETCH(QString, text);
    QFETCH(bool, matches);

    const ScriptedCorrection correction;
    const ProbePath probe(wide(path));
    QCOMPARE(probe.PathMatch(wide(text)), matches);
    QVERIFY(!probe.PathMatch(static_cast<const wchar_t *>(nullptr)));
}

void tst_PathQueries::matchesDriveLettersOfAnyScript()
{
    const ScriptedCorrection correction;
    const QByteArray former = setlocale(LC_CTYPE, nullptr);
    QVERIFY(setlocale(LC_CTYPE, "C.UTF-8"));
    const ProbePath path(L"é:/a");
    const bool matches = path.PathMatch(L"é:/A");
    setlocale(LC_CTYPE, former.constData());
    QCOMPARE(pathOf(path), QStringLiteral("É:/a"));
    QVERIFY(matches);
}

void tst_PathQueries::matchesOther()
{
    const ScriptedCorrection correction;
    const ProbePath base(L"/no/where");
    const ProbePath rooted(L"/no/where/x");
    ProbePath relative(L"X/", &base);
    QVERIFY(rooted.PathMatch(&relative) && relative.PathMatch(&rooted));
    QVERIFY(!rooted.PathMatch(&base));
    QVERIFY(!rooted.PathMatch(static_cast<const CKdUiPathname *>(nullptr)));

    CKdUiNTFSVolumeDescriptor volume(L"C:");
    relative.setVolume(&volume);
    QVERIFY(!rooted.PathMatch(&relative));
    QVERIFY(relative.PathMatch(&relative));
    const CKdUiPathname nothing;
    const CKdUiPathname empty;
    QVERIFY(nothing.PathMatch(&empty) && !nothing.PathMatch(&rooted));
}

void tst_PathQueries::matchesItselfUnasked()
{
    const ProbePath path(L"/no/where");
    const ScriptedCorrection correction;
    QVERIFY(path.PathMatch(&path));
    QVERIFY(correction.asked().empty());
}

QTEST_GUILESS_MAIN(tst_PathQueries)
#include "tst_PathQueries.moc"
