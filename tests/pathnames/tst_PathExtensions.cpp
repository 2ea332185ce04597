#include "PathTexts.h"

#include <QTest>

static constexpr path_type untouched = PT_FILE;

using TextEdit = unsigned (CKdUiPathname::*)(const wchar_t *);

class tst_PathExtensions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replaceExtension_data();
    void replaceExtension();
    void addExtension_data();
    void addExtension();
    void removeExtension_data();
    void removeExtension();
    void verifyExtension_data();
    void verifyExtension();
    void ifNoMatch_data();
    void ifNoMatch();
    void firstExtension_data();
    void firstExtension();
    void extensionsOfItself();
    void whatIsNoPath();
};

static ProbePath probeOf(const QString &path, path_type type = PT_FILE)
{
    ProbePath probe;
    probe.set(PC_ROOTED, wide(path), type);
    return probe;
}

static void extensionRow(const char *name, const char *path, const char *extension, const char *after)
{
    QTest::newRow(name) << QString::fromUtf8(path) << QString::fromUtf8(extension)
                        << QString::fromUtf8(after);
}

static void extensionColumns()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("after");
}

static void checkExtension(TextEdit edit)
{
    QFETCH(QString, path);
    QFETCH(QString, extension);

    ProbePath probe = probeOf(path);
    QCOMPARE((probe.*edit)(wide(extension)), 0U);
    QTEST(pathOf(probe), "after");
    QCOMPARE(probe.GetPathType(), PT_PATH);
    const auto before = probe.state();
    QCOMPARE((probe.*edit)(nullptr), 1U);
    QVERIFY(probe.state() == before);
}

void tst_PathExtensions::replaceExtension_data()
{
    extensionColumns();
    extensionRow("without dot", "/a/name.x", "dat", "/a/name.dat");
    extensionRow("with dot", "/a/name.x", ".dat", "/a/name.dat");
    extensionRow("none before", "/a/name", "dat", "/a/name.dat");
    extensionRow("empty", "/a/name.x", "", "/a/name");
    extensionRow("empty, none before", "/a/name", "", "/a/name");
    extensionRow("last of two dots", "/a/b.tar.gz", "xz", "/a/b.tar.xz");
    extensionRow("dot in the directory", "/a.b/name", "dat", "/a.b/name.dat");
    extensionRow("dot right behind the separator", "/a/.x", "dat", "/a/.dat");
    extensionRow("no name", "/a.b/", "dat", "/a.b/.dat");
    extensionRow("dot at the end", "name.", "dat", "name.dat");
    extensionRow("nothing left", ".x", "", "");
}

void tst_PathExtensions::replaceExtension()
{
    checkExtension(&CKdUiPathname::ReplaceExtensionAlways);
}

void tst_PathExtensions::addExtension_data()
{
    extensionColumns();
    extensionRow("without dot", "/a/name", "dat", "/a/name.dat");
    extensionRow("with dot", "/a/name", ".dat", "/a/name..dat");
    extensionRow("empty", "/a/name.x", "", "/a/name.x");
    extensionRow("one before", "/a/name.x", "dat", "/a/name.x.dat");
}

void tst_PathExtensions::addExtension()
{
    checkExtension(&CKdUiPathname::AddExtensionAlways);
}

void tst_PathExtensions::removeExtension_data()
{
    extensionColumns();
    extensionRow("in the list", "/a/name.TXT", "dat;txt", "/a/name");
    extensionRow("not in the list", "/a/name.x", "dat;txt", "/a/name.x");
    extensionRow("none", "/a/name", "", "/a/name");
}

void tst_PathExtensions::removeExtension()
{
    QFETCH(QString, path);
    QFETCH(QString, extension);
    QFETCH(QString, after);

    ProbePath matching = probeOf(path);
    matching.RemoveExtensionIfMatch(wide(extension));
    QCOMPARE(pathOf(matching), after);
    const bool matches = probeOf(path).VerifyExtension(wide(extension));
    QCOMPARE(matching.GetPathType(), matches ? PT_PATH : untouched);
    ProbePath always = probeOf(path);
    always.RemoveExtensionAlways();
    QCOMPARE(pathOf(always), QStringLiteral("/a/name"));
    QCOMPARE(always.GetPathType(), PT_PATH);
    const auto before = always.state();
    always.RemoveExtensionIfMatch(nullptr);
    QVERIFY(always.state() == before);
}

void tst_PathExtensions::verifyExtension_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("list");
    QTest::addColumn<bool>("holds");

    const auto row = [](const char *name, const char *path, const char *list, bool holds) {
        QTest::newRow(name) << QString::fromUtf8(path) << QString::fromUtf8(list) << holds;
    };
    row("first", "/x.dat", "dat;txt", true);
    row("last", "/x.txt", "dat;txt", true);
    row("other case", "/x.TxT", "dat;tXt", true);
    row("none of them", "/x.xml", "dat;txt", false);
    row("part of one", "/x.da", "dat;txt", false);
    row("more than one", "/x.datt", "dat;txt", false);
    row("single", "/x.dat", "dat", true);
    row("behind an empty one", "/x.dat", ";dat", true);
    row("empty one at the end", "/x.xml", "dat;", false);
    row("blanks count", "/x.dat", " dat", false);
    row("dots count", "/x.dat", ".dat", false);
    row("empty list, extension", "/x.dat", "", false);
    row("empty list, no extension", "/x", "", true);
    row("empty list, dot at the end", "/x.", "", true);
    row("no extension", "/x", "dat", false);
    row("no extension, empty one in the list", "/x", ";", false);
    row("dot in the directory", "/a.dat/x", "dat", false);
}

void tst_PathExtensions::verifyExtension()
{
    QFETCH(QString, path);
    QFETCH(QString, list);

    const ProbePath probe = probeOf(path);
    QTEST(probe.VerifyExtension(wide(list)), "holds");
    QVERIFY(!probe.VerifyExtension(nullptr));
}

void tst_PathExtensions::ifNoMatch_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("replaced");
    QTest::addColumn<QString>("added");
    QTest::addColumn<int>("type");

    const auto row = [](const char *name, const char *path, const char *list, const char *replaced,
                        const char *added, path_type type) {
        QTest::newRow(name) << QString::fromUtf8(path) << QString::fromUtf8(list)
                            << QString::fromUtf8(replaced) << QString::fromUtf8(added) << int(type);
    };
    row("match", "/x.txt", "dat;txt", "/x.txt", "/x.txt", untouched);
    row("no match", "/x.xml", "dat;txt", "/x.dat", "/x.xml.dat", PT_PATH);
    row("no extension", "/x", "dat", "/x.dat", "/x.dat", PT_PATH);
    row("no extension, empty list", "/x", "", "/x", "/x", untouched);
    row("empty list", "/x.xml", "", "/x", "/x.xml", PT_PATH);
    row("empty first", "/x.xml", ";dat", "/x", "/x.xml", PT_PATH);
    row("dot", "/x.xml", ".dat", "/x.dat", "/x.xml..dat", PT_PATH);
}

void tst_PathExtensions::ifNoMatch()
{
    QFETCH(QString, path);
    QFETCH(QString, list);

    ProbePath probe = probeOf(path);
    QCOMPARE(probe.ReplaceExtensionIfNoMatch(wide(list)), 0U);
    QTEST(pathOf(probe), "replaced");
    QTEST(int(probe.GetPathType()), "type");
    probe = probeOf(path);
    QCOMPARE(probe.AddExtensionIfNoMatch(wide(list)), 0U);
    QTEST(pathOf(probe), "added");
    QTEST(int(probe.GetPathType()), "type");

    const auto before = probe.state();
    QCOMPARE(probe.ReplaceExtensionIfNoMatch(nullptr), 1U);
    QCOMPARE(probe.AddExtensionIfNoMatch(nullptr), 1U);
    QVERIFY(probe.state() == before);
}

void tst_PathExtensions::firstExtension_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("first");

    QTest::newRow("two") << QStringLiteral("dat;txt") << QStringLiteral("dat");
    QTest::newRow("one") << QStringLiteral("dat") << QStringLiteral("dat");
    QTest::newRow("none") << QString() << QString();
    QTest::newRow("empty one") << QStringLiteral(";txt") << QString();
}

void tst_PathExtensions::firstExtension()
{
    QFETCH(QString, list);

    const CKdUiPathname path;
    CString out = L"former";
    path.GetFirstExtInList(nullptr, out);
    QCOMPARE(shown(out), QStringLiteral("former"));
    path.GetFirstExtInList(wide(list), out);
    QTEST(shown(out), "first");
    CString same = wide(list);
    path.GetFirstExtInList(same, same);
    QTEST(shown(same), "first");
}

void tst_PathExtensions::extensionsOfItself()
{
    ProbePath path(L"c:/some.extension/name.other");
    QCOMPARE(path.ReplaceExtensionAlways(path.GetPathString() + 7), 0U);
    QCOMPARE(pathOf(path), QStringLiteral("C:/some.extension/name.extension/name.other"));
    path = ProbePath(L"c:/name");
    QCOMPARE(path.AddExtensionAlways(path.GetPathString()), 0U);
    QCOMPARE(pathOf(path), QStringLiteral("C:/name.C:/name"));
    path = ProbePath(L"c:/name.other");
    QCOMPARE(path.ReplaceExtensionIfNoMatch(path.GetPathString() + 3), 0U);
    QCOMPARE(pathOf(path), QStringLiteral("C:/name.name.other"));
}

void tst_PathExtensions::whatIsNoPath()
{
    ProbePath device;
    device.set(PC_RELATIVE, L"NUL/x.dat", PT_DEVICE);
    ProbePath nothing;
    for (ProbePath *path : {&nothing, &device}) {
        const auto before = path->state();
        for (const TextEdit edit :
             {&CKdUiPathname::ReplaceExtensionAlways, &CKdUiPathname::AddExtensionAlways,
              &CKdUiPathname::ReplaceExtensionIfNoMatch, &CKdUiPathname::AddExtensionIfNoMatch})
            QCOMPARE((path->*edit)(L"txt"), 2U);
        QCOMPARE(path->ReplaceExtensionAlways(nullptr), 2U);
        QCOMPARE(path->ReplaceExtensionIfNoMatch(nullptr), 2U);
        QCOMPARE(path->AddExtensionAlways(nullptr), 1U);
        QCOMPARE(path->AddExtensionIfNoMatch(nullptr), 1U);
        path->RemoveExtensionAlways();
        path->RemoveExtensionIfMatch(L"dat");
        QVERIFY(path->state() == before);
    }
    QVERIFY(device.VerifyExtension(L"dat"));
    QCOMPARE(device.ReplaceExtensionIfNoMatch(L"dat"), 0U);
    QVERIFY(nothing.VerifyExtension(L""));
    QCOMPARE(nothing.AddExtensionIfNoMatch(L""), 0U);
    QVERIFY(nothing.IsEmpty());
}

QTEST_GUILESS_MAIN(tst_PathExtensions)
#include "tst_PathExtensions.moc"
