#include "PathTexts.h"

#include <QRandomGenerator>
#include <QTest>

static constexpr path_type untouched = PT_FILE;

using Edit = unsigned (CKdUiPathname::*)();
using TextEdit = unsigned (CKdUiPathname::*)(const wchar_t *);

/// A volume whose local name has four characters.
class ShareVolume : public CKdUiNTFSVolumeDescriptor
{
public:
    ShareVolume()
        : CKdUiNTFSVolumeDescriptor(L"//ab")
    {
    }
};

class tst_PathEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void trim_data();
    void trim();
    void trimSlash_data();
    void trimSlash();
    void trimComponent_data();
    void trimComponent();
    void append_data();
    void append();
    void appendSlash_data();
    void appendSlash();
    void appendComponent_data();
    void appendComponent();
    void appendsPartsOfItself();
    void componentsComeAndGo();
    void removeSpaces_data();
    void removeSpaces();
    void baseCase_data();
    void baseCase();
    void whatIsNoPath();
    void randomEdits();

private:
    static void trimColumns();
    static void trimRow(const char *name, int category, const char *path, unsigned code, const char *after,
                        path_type typeAfter);
    static void checkTrim(Edit edit);
};

void tst_PathEditing::trimColumns()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QString>("path");
    QTest::addColumn<unsigned>("code");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("typeAfter");
}

void tst_PathEditing::trimRow(const char *name, int category, const char *path, unsigned code,
                              const char *after, path_type typeAfter)
{
    QTest::newRow(name) << category << QString::fromUtf8(path) << code << QString::fromUtf8(after)
                        << int(typeAfter);
}

void tst_PathEditing::checkTrim(Edit edit)
{
    QFETCH(int, category);
    QFETCH(QString, path);

    ShareVolume share;
    ProbePath probe;
    probe.set(path_category(category), wide(path));
    if (category == PC_UNC)
        probe.setVolume(&share);
    probe.setBaseDir(L"/base");
    QTEST((probe.*edit)(), "code");
    QTEST(pathOf(probe), "after");
    QTEST(int(probe.GetPathType()), "typeAfter");
    QCOMPARE(int(probe.category()), category);
    QCOMPARE(shown(probe.baseDir()), QStringLiteral("/base"));
}

void tst_PathEditing::trim_data()
{
    trimColumns();
    trimRow("drive, file in the root", PC_DRIVE, "C:/x", 0, "C:/", PT_PATH);
    trimRow("drive, file in a directory", PC_DRIVE, "C:/a/x", 0, "C:/a/", PT_PATH);
    trimRow("drive, no separator", PC_DRIVE, "C:x", 0, "C:/", PT_PATH);
    trimRow("drive alone", PC_DRIVE, "C:", 0, "C:/", PT_PATH);
    trimRow("drive, neither separator nor colon", PC_DRIVE, "Cx", 4, "Cx", untouched);
    trimRow("drive, two characters left", PC_DRIVE, "a/x", 0, "a//", PT_PATH);
    trimRow("drive, ends with a separator", PC_DRIVE, "C:/a/", 0, "C:/a/", untouched);
    trimRow("rooted, file in the root", PC_ROOTED, "/x", 0, "/", PT_PATH);
    trimRow("rooted, file in a directory", PC_ROOTED, "/a/x", 0, "/a/", PT_PATH);
    trimRow("rooted, two characters left", PC_ROOTED, "a/x", 0, "a/", PT_PATH);
    trimRow("rooted, no separator", PC_ROOTED, "x", 4, "x", untouched);
    trimRow("root", PC_ROOTED, "/", 0, "/", untouched);
    trimRow("relative, in a directory", PC_RELATIVE, "a/x", 0, "a/", PT_PATH);
    trimRow("relative, no separator", PC_RELATIVE, "x", 3, "x", untouched);
    trimRow("relative, empty", PC_RELATIVE, "", 3, "", untouched);
    trimRow("network, no separator", PC_UNC, "x", 4, "x", untouched);
    trimRow("network, inside the volume's name", PC_UNC, "//abx", 3, "//abx", untouched);
    trimRow("network, behind the volume's name", PC_UNC, "//ab/x", 0, "//ab/", PT_PATH);
    trimRow("unknown category", 9, "/a/x", 4, "/a/x", untouched);
    trimRow("unknown category, separator at the end", 9, "/a/", 0, "/a/", untouched);
}

void tst_PathEditing::trim()
{
    checkTrim(&CKdUiPathname::Trim);
}

void tst_PathEditing::trimSlash_data()
{
    trimColumns();
    trimRow("no separator at the end", PC_ROOTED, "/a", 0, "/a", untouched);
    trimRow("empty", PC_RELATIVE, "", 0, "", untouched);
    trimRow("one of two", PC_ROOTED, "/a//", 0, "/a/", PT_PATH);
    trimRow("rooted", PC_ROOTED, "/a/", 0, "/a", PT_PATH);
    trimRow("root", PC_ROOTED, "/", 3, "/", untouched);
    trimRow("two separators", PC_ROOTED, "//", 0, "/", PT_PATH);
    trimRow("drive", PC_DRIVE, "C:/a/", 0, "C:/a", PT_PATH);
    trimRow("root of a drive", PC_DRIVE, "C:/", 3, "C:/", untouched);
    trimRow("drive, one character left", PC_DRIVE, "a/", 0, "a", PT_PATH);
    trimRow("relative", PC_RELATIVE, "a/", 0, "a", PT_PATH);
    trimRow("relative, two characters left", PC_RELATIVE, "ab/", 0, "ab", PT_PATH);
    trimRow("relative, nothing left", PC_RELATIVE, "/", 0, "", PT_PATH);
    trimRow("network, the volume's name would be left", PC_UNC, "//ab/", 3, "//ab/", untouched);
    trimRow("network, more would be left", PC_UNC, "//abc/", 0, "//abc", PT_PATH);
    trimRow("unknown category", 9, "/a/", 4, "/a/", untouched);
    trimRow("unknown category, no separator at the end", -1, "/a", 0, "/a", untouched);
    trimRow("category below all", -1, "/a/", 4, "/a/", untouched);
}

void tst_PathEditing::trimSlash()
{
    checkTrim(&CKdUiPathname::TrimSlash);
}

void tst_PathEditing::trimComponent_data()
{
    trimColumns();
    trimRow("drive, file in the root", PC_DRIVE, "C:/x", 0, "C:/", PT_PATH);
    trimRow("drive, file in a directory", PC_DRIVE, "C:/a/x", 0, "C:/a", PT_PATH);
    trimRow("drive, no separator", PC_DRIVE, "C:x", 0, "C:/", PT_PATH);
    trimRow("drive alone", PC_DRIVE, "C:", 0, "C:/", PT_PATH);
    trimRow("root of a drive", PC_DRIVE, "C:/", 0, "C:/", PT_PATH);
    trimRow("drive, neither separator nor colon", PC_DRIVE, "Cx", 0, "", PT_PATH);
    trimRow("drive, colon elsewhere", PC_DRIVE, "ab:x", 0, "ab:", PT_PATH);
    trimRow("drive, ends with a separator", PC_DRIVE, "C:/a/", 0, "C:/a", PT_PATH);
    trimRow("rooted, file in the root", PC_ROOTED, "/x", 0, "/", PT_PATH);
    trimRow("rooted, file in a directory", PC_ROOTED, "/a/x", 0, "/a", PT_PATH);
    trimRow("rooted, two characters left", PC_ROOTED, "/a/x", 0, "/a", PT_PATH);
    trimRow("root", PC_ROOTED, "/", 0, "/", PT_PATH);
    trimRow("rooted, no separator", PC_ROOTED, "x", 4, "x", untouched);
    trimRow("relative, in a directory", PC_RELATIVE, "a/b/x", 0, "a/b", PT_PATH);
    trimRow("relative, no separator", PC_RELATIVE, "x", 3, "x", untouched);
    trimRow("relative, separator first", PC_RELATIVE, "/x", 0, "", PT_PATH);
    trimRow("network, no separator", PC_UNC, "x", 4, "x", untouched);
    trimRow("network, inside the volume's name", PC_UNC, "//abx", 3, "//abx", untouched);
    trimRow("network, behind the volume's name", PC_UNC, "//ab/x", 0, "//ab", PT_PATH);
    trimRow("unknown category", 9, "/a/x", 4, "/a/x", untouched);
}

void tst_PathEditing::trimComponent()
{
    checkTrim(&CKdUiPathname::TrimComponent);
}

static void pathRow(const char *name, const char *path, const char *after)
{
    QTest::newRow(name) << QString::fromUtf8(path) << QString::fromUtf8(after);
}

static void pathColumns()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("after");
}

static ProbePath probeOf(const QString &path, path_type type = PT_FILE)
{
    ProbePath probe;
    probe.set(PC_ROOTED, wide(path), type);
    return probe;
}

void tst_PathEditing::append_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("after");

    QTest::newRow("text") << QStringLiteral("b\\c:") << QStringLiteral("/ab\\c:");
    QTest::newRow("empty") << QStringLiteral("") << QStringLiteral("/a");
    QTest::newRow("null") << QString() << QStringLiteral("/a");
}

void tst_PathEditing::append()
{
    QFETCH(QString, text);

    ProbePath probe = probeOf(QStringLiteral("/a"));
    const CString wideText = wide(text);
    QCOMPARE(probe.Append(text.isNull() ? nullptr : wideText.c_str()), 0U);
    QTEST(pathOf(probe), "after");
    QCOMPARE(probe.GetPathType(), PT_PATH);
}

void tst_PathEditing::appendSlash_data()
{
    pathColumns();
    pathRow("name", "/a", "/a/");
    pathRow("separator", "/a/", "/a/");
    pathRow("colon", "C:", "C:");
    pathRow("backslash", "a\\", "a\\/");
    pathRow("empty", "", "");
}

void tst_PathEditing::appendSlash()
{
    QFETCH(QString, path);

    ProbePath probe = probeOf(path, PT_DIRECTORY);
    QCOMPARE(probe.AppendSlash(), 0U);
    QTEST(pathOf(probe), "after");
    QCOMPARE(probe.GetPathType(), PT_DIRECTORY);
}

void tst_PathEditing::appendComponent_data()
{
    pathColumns();
    pathRow("name", "/a", "/a/x");
    pathRow("separator", "/a/", "/a/x");
    pathRow("colon", "C:", "C:/x");
    pathRow("empty", "", "/x");
}

void tst_PathEditing::appendComponent()
{
    QFETCH(QString, path);

    ProbePath probe = probeOf(path);
    QCOMPARE(probe.AppendComponent(L"x"), 0U);
    QTEST(pathOf(probe), "after");
    QCOMPARE(probe.GetPathType(), PT_PATH);

    ProbePath withoutText = probeOf(path);
    QCOMPARE(withoutText.AppendComponent(nullptr), 0U);
    QCOMPARE(pathOf(withoutText), pathOf(probe).chopped(1));
    QCOMPARE(withoutText.GetPathType(), PT_PATH);
}

void tst_PathEditing::appendsPartsOfItself()
{
    const QString text = QStringLiteral("/some/longer/path");
    for (int from = 0; from <= text.size(); ++from) {
        ProbePath appended = probeOf(text);
        QCOMPARE(appended.Append(appended.GetPathString() + from), 0U);
        QCOMPARE(pathOf(appended), text + text.mid(from));
        ProbePath component = probeOf(text);
        QCOMPARE(component.AppendComponent(component.GetPathString() + from), 0U);
        QCOMPARE(pathOf(component), text + QLatin1Char('/') + text.mid(from));
    }
}

void tst_PathEditing::componentsComeAndGo()
{
    for (const wchar_t *text : {L"/", L"/a", L"c:/", L"c:/a", L"x", L"d/x"}) {
        const ProbePath base(L"/no/where");
        ProbePath path(text, &base);
        const CString before = path.GetPathString();
        QCOMPARE(path.AppendComponent(L"component"), 0U);
        QCOMPARE(path.TrimComponent(), 0U);
        QCOMPARE(pathOf(path), shown(before));
        if (before.back() == L'/')
            continue;
        QCOMPARE(path.AppendSlash(), 0U);
        QCOMPARE(path.TrimSlash(), 0U);
        QCOMPARE(pathOf(path), shown(before));
    }
}

void tst_PathEditing::removeSpaces_data()
{
    pathColumns();
    pathRow("both ends of the stem", "/a b/ x y .dat", "/a b/x y.dat");
    pathRow("extension keeps its blanks", "/a/x. dat ", "/a/x. dat ");
    pathRow("no extension", "/a/\t x\n", "/a/x");
    pathRow("last of two dots", "/ a.b .c", "/a.b.c");
    pathRow("behind a colon", "C: x .y", "C:x.y");
    pathRow("dot in the directory", "/a. b/ x", "/a. b/x");
    pathRow("relative", " x", "x");
    pathRow("no name", "/ a /", "/ a /");
    pathRow("nothing but blanks", "/   ", "/");
    pathRow("blank stem", " .x", ".x");
    pathRow("dot", ".", ".");
    pathRow("two dots", "..", "..");
    pathRow("empty", "", "");
}

void tst_PathEditing::removeSpaces()
{
    QFETCH(QString, path);

    ProbePath probe = probeOf(path);
    probe.RemoveSpaces();
    QTEST(pathOf(probe), "after");
    QCOMPARE(probe.GetPathType(), untouched);
}

void tst_PathEditing::baseCase_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("upper");
    QTest::addColumn<QString>("lower");

    const auto row = [](const char *path, const char *upper, const char *lower) {
        QTest::newRow(path) << QString::fromUtf8(path) << QString::fromUtf8(upper)
                            << QString::fromUtf8(lower);
    };
    row("/Dir/Name.Ext", "/Dir/NAME.EXT", "/Dir/name.ext");
    row("C:Name", "C:NAME", "C:name");
    row("Name", "NAME", "name");
    row("/Dir/", "/Dir/", "/Dir/");
    row("", "", "");
}

void tst_PathEditing::baseCase()
{
    QFETCH(QString, path);

    ProbePath probe = probeOf(path);
    probe.BaseToUpper();
    QTEST(pathOf(probe), "upper");
    probe = probeOf(path);
    probe.BaseToLower();
    QTEST(pathOf(probe), "lower");
    QCOMPARE(probe.GetPathType(), untouched);
}

void tst_PathEditing::whatIsNoPath()
{
    ProbePath device;
    device.set(PC_RELATIVE, L"NUL/x.dat", PT_DEVICE);
    ProbePath withoutText;
    withoutText.set(PC_ROOTED, nullptr, PT_PATH);
    ProbePath nothing;
    for (ProbePath *path : {&nothing, &device, &withoutText}) {
        const auto before = path->state();
        for (const Edit edit : {&CKdUiPathname::Trim, &CKdUiPathname::TrimSlash,
                                &CKdUiPathname::TrimComponent, &CKdUiPathname::AppendSlash})
            QCOMPARE((path->*edit)(), 2U);
        for (const TextEdit edit : {&CKdUiPathname::Append, &CKdUiPathname::AppendComponent}) {
            QCOMPARE((path->*edit)(L"x"), 2U);
            QCOMPARE((path->*edit)(nullptr), 2U);
        }
        QVERIFY(path->state() == before);
    }
    nothing.RemoveSpaces();
    nothing.BaseToLower();
    nothing.BaseToUpper();
    QVERIFY2(!nothing.fault(), nothing.fault());
    QVERIFY(nothing.IsEmpty());
}

void tst_PathEditing::randomEdits()
{
    static const wchar_t *const texts[] = {L"",  L"/", L"x", L"a.b", L" . ", L"..", L"c:",
                                           L":", L"*", L";", L"Ж/",  L".d",  L"\\"};
    static const Edit edits[] = {&CKdUiPathname::Trim, &CKdUiPathname::TrimSlash,
                                 &CKdUiPathname::TrimComponent, &CKdUiPathname::AppendSlash};
    static const TextEdit textEdits[] = {&CKdUiPathname::Append,
                                         &CKdUiPathname::AppendComponent,
                                         &CKdUiPathname::ReplaceExtensionAlways,
                                         &CKdUiPathname::AddExtensionAlways,
                                         &CKdUiPathname::ReplaceExtensionIfNoMatch,
                                         &CKdUiPathname::AddExtensionIfNoMatch};
    QRandomGenerator random(4712);
    const ProbePath base(L"/no/where*");
    for (int run = 0; run < 500; ++run) {
        ProbePath path(run % 3 == 0 ? L"/a" : run % 3 == 1 ? L"c:a" : L"a/b", &base);
        for (int step = 0; step < 40; ++step) {
            const auto before = path.state();
            const wchar_t *text = texts[random.bounded(quint32(std::size(texts)))];
            const bool withText = random.bounded(2) == 0;
            const unsigned code = withText
                                      ? (path.*textEdits[random.bounded(quint32(std::size(textEdits)))])(text)
                                      : (path.*edits[random.bounded(quint32(std::size(edits)))])();
            QVERIFY2(!path.fault(), path.fault());
            QVERIFY(code == 0 || path.state() == before);
            path.RemoveSpaces();
            QVERIFY2(!path.fault(), path.fault());
        }
    }
}

QTEST_GUILESS_MAIN(tst_PathEditing)
#include "tst_PathEditing.moc"
