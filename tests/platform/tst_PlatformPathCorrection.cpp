#include <KxPlatformServices.h>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

// The tree of a test, in the current directory: each name ending in a slash is a directory, the others are
// files.
class tst_PlatformPathCorrection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void correct_data();
    void correct();
    void correctsAbsolutePaths();
    void correctsInPlace();
    void failureLeavesTheOutput_data();
    void failureLeavesTheOutput();
    void ignoresNamesThatAreNoText();
    void followsLinks();
    void brokenLinkIsFound();
    void loopsOfLinksEnd();
    void pathsOfAnyLengthEnd();

private:
    static void make(const QStringList &tree);

    std::unique_ptr<QTemporaryDir> m_directory;
};

void tst_PlatformPathCorrection::init()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    m_directory = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir::setCurrent(m_directory->path()));
}

void tst_PlatformPathCorrection::cleanup()
{
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
    m_directory.reset();
}

void tst_PlatformPathCorrection::make(const QStringList &tree)
{
    for (const QString &name : tree) {
        const QString directory = name.left(name.lastIndexOf(QLatin1Char('/')) + 1);
        QVERIFY(directory.isEmpty() || QDir().mkpath(directory));
        if (name != directory)
            QVERIFY(QFile(name).open(QIODevice::WriteOnly));
    }
}

void tst_PlatformPathCorrection::correct_data()
{
    QTest::addColumn<QStringList>("tree");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("corrected");

    const auto row = [](const char *name, const char *tree, const char *path, const char *corrected) {
        QTest::newRow(name) << QString::fromUtf8(tree).split(QLatin1Char(' ')) << QString::fromUtf8(path)
                            << QString::fromUtf8(corrected);
    };
    row("exists", "Dir/File", "Dir/File", "Dir/File");
    row("exists, beside a variant", "dir/file DIR/FILE", "DIR/FILE", "DIR/FILE");
    row("exists, spelled oddly", "Dir/File", "./Dir//..//Dir/File", "./Dir//..//Dir/File");
    row("file", "File", "fILE", "File");
    row("directory", "Dir/", "DIR", "Dir");
    row("directory, slash", "Dir/", "DIR/", "Dir/");
    row("directory, two slashes", "Dir/", "DIR//", "Dir//");
    row("each component", "Aa/Bb/Cc", "aA/bB/cC", "Aa/Bb/Cc");
    row("last component only", "Aa/Bb/Cc", "Aa/Bb/CC", "Aa/Bb/Cc");
    row("first component only", "Aa/Bb/Cc", "AA/Bb/Cc", "Aa/Bb/Cc");
    row("slashes stay", "Aa/Bb", "aa//bb", "Aa//Bb");
    row("here", "Aa/Bb", "./aa/./bb", "./Aa/./Bb");
    row("up", "Aa/Bb Cc", "aa/../CC", "Aa/../Cc");
    row("here at the end", "Aa/", "aa/.", "Aa/.");
    row("hidden", ".Aa", ".aA", ".Aa");
    row("spaces count", "Aa", "AA", "Aa");
    row("exact component first", "aa/x AA/x", "aa/X", "aa/x");
    row("exact directory lacks the rest", "aa/ AA/x", "aa/X", "AA/x");
    row("first variant in order", "aB Ab AB", "ab", "AB");
    row("first of two variants in order", "aB Ab", "ab", "Ab");
    row("first variant that has the rest", "AA/ Aa/x aA/x", "aa/X", "Aa/x");
    row("variant that is a directory", "AA Aa/x", "aa/x", "Aa/x");
    row("variant for a slash", "AA Aa/", "aa/", "Aa/");
    row("Latin", "\u00C4\u00F6", "\u00E4\u00D6", "\u00C4\u00F6");
    row("Cyrillic", "\u0416\u0443\u043A", "\u0436\u0423\u041A", "\u0416\u0443\u043A");
    row("no case", "\u65E5\u672C/A", "\u65E5\u672C/a", "\u65E5\u672C/A");
    row("beyond the first plane", "\U00010400\U0001F600", "\U00010428\U0001F600", "\U00010400\U0001F600");
}

void tst_PlatformPathCorrection::correct()
{
    QFETCH(QStringList, tree);
    QFETCH(QString, path);
    QFETCH(QString, corrected);

    make(tree);
    std::wstring result;
    QVERIFY(platformServices().pathCorrection().correct(path.toStdWString(), result));
    QCOMPARE(QString::fromStdWString(result), corrected);
}

void tst_PlatformPathCorrection::correctsAbsolutePaths()
{
    make({QStringLiteral("Aa/Bb")});
    const QString base = QDir(m_directory->path()).canonicalPath();
    const QString wrong = QLatin1String("//") + base.mid(1) + QLatin1String("/aa/bb");
    std::wstring result;
    QVERIFY(platformServices().pathCorrection().correct(wrong.toStdWString(), result));
    QCOMPARE(QString::fromStdWString(result),
             QString(QLatin1String("//") + base.mid(1) + QLatin1String("/Aa/Bb")));
    QVERIFY(platformServices().pathCorrection().correct(L"/", result));
    QCOMPARE(result, std::wstring(L"/"));
    QVERIFY(platformServices().pathCorrection().correct(L"/DEV/Null", result));
    QCOMPARE(result, std::wstring(L"/dev/null"));
}

void tst_PlatformPathCorrection::correctsInPlace()
{
    make({QStringLiteral("Aa/Bb")});
    std::wstring path = L"aa/bb";
    QVERIFY(platformServices().pathCorrection().correct(path, path));
    QCOMPARE(path, std::wstring(L"Aa/Bb"));
}

void tst_PlatformPathCorrection::failureLeavesTheOutput_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << QString();
    QTest::newRow("missing") << QStringLiteral("missing");
    QTest::newRow("missing in a directory") << QStringLiteral("DIR/missing");
    QTest::newRow("missing directory") << QStringLiteral("missing/file");
    QTest::newRow("file as directory") << QStringLiteral("FILE/file");
    QTest::newRow("slash behind a file") << QStringLiteral("FILE/");
    QTest::newRow("here behind a file") << QStringLiteral("FILE/.");
    QTest::newRow("up from a file") << QStringLiteral("FILE/../DIR");
    QTest::newRow("missing at the root") << QStringLiteral("/KX-MISSING");
    QTest::newRow("other letters") << QStringLiteral("FILES");
    QTest::newRow("backslash is a character") << QStringLiteral("DIR\\FILE");
    QTest::newRow("name too long") << QString(300, QLatin1Char('x'));
    QTest::newRow("zero inside") << QStringLiteral("File") + QChar(0) + QStringLiteral("x");
}

void tst_PlatformPathCorrection::failureLeavesTheOutput()
{
    QFETCH(QString, path);
    make({QStringLiteral("File"), QStringLiteral("Dir/File")});
    std::wstring result = L"before";
    QVERIFY(!platformServices().pathCorrection().correct(path.toStdWString(), result));
    QCOMPARE(result, std::wstring(L"before"));
}

void tst_PlatformPathCorrection::ignoresNamesThatAreNoText()
{
    FILE *file = std::fopen("a\xFF", "w");
    QVERIFY(file);
    std::fclose(file);
    make({QStringLiteral("Ab")});
    std::wstring result;
    QVERIFY(platformServices().pathCorrection().correct(L"AB", result));
    QCOMPARE(result, std::wstring(L"Ab"));
    QVERIFY(!platformServices().pathCorrection().correct(L"A\uFFFD", result));
    QVERIFY(!platformServices().pathCorrection().correct({L'A', wchar_t(0x110000)}, result));
    QVERIFY(!platformServices().pathCorrection().correct({L'A', wchar_t(0xD800)}, result));
    // QTemporaryDir cannot remove it.
    QCOMPARE(std::remove("a\xFF"), 0);
}

void tst_PlatformPathCorrection::followsLinks()
{
    make({QStringLiteral("Real/File")});
    QVERIFY(QFile::link(QStringLiteral("Real"), QStringLiteral("Link")));
    std::wstring result;
    QVERIFY(platformServices().pathCorrection().correct(L"LINK/FILE", result));
    QCOMPARE(result, std::wstring(L"Link/File"));
}

void tst_PlatformPathCorrection::brokenLinkIsFound()
{
    QVERIFY(QFile::link(QStringLiteral("nowhere"), QStringLiteral("Link")));
    std::wstring result;
    QVERIFY(platformServices().pathCorrection().correct(L"LINK", result));
    QCOMPARE(result, std::wstring(L"Link"));
    QVERIFY(!platformServices().pathCorrection().correct(L"LINK/", result));
}

// Two ways on from each of many places: the search may take each place once only.
void tst_PlatformPathCorrection::loopsOfLinksEnd()
{
    QVERIFY(QFile::link(QStringLiteral("."), QStringLiteral("a")));
    QVERIFY(QFile::link(QStringLiteral("."), QStringLiteral("A")));
    std::wstring path;
    for (int i = 0; i < 35; ++i)
        path += L"a/";
    std::wstring result;
    QVERIFY(!platformServices().pathCorrection().correct(path + L"missing", result));
}

void tst_PlatformPathCorrection::pathsOfAnyLengthEnd()
{
    make({QStringLiteral("File")});
    std::wstring path;
    for (int i = 0; i < 100000; ++i)
        path += L"./";
    std::wstring result;
    QVERIFY(!platformServices().pathCorrection().correct(path + L"FILE", result));
}

QTEST_MAIN(tst_PlatformPathCorrection)
#include "tst_PlatformPathCorrection.moc"
