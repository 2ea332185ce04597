#include "PathTexts.h"

#include <QRandomGenerator>
#include <QTest>

class tst_PathDisplayName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void displayName_data();
    void displayName();
    void displayNameOfWhatIsNoPath();
    void displayNamesFit();
};

void tst_PathDisplayName::displayName_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("maxChars");
    QTest::addColumn<QString>("name");

    const auto row = [](const char *name, int category, const char *path, int maxChars, const char *shown) {
        QTest::newRow(name) << category << QString::fromUtf8(path) << maxChars << QString::fromUtf8(shown);
    };
    // 24 characters, the base name 8.
    const char *rooted = "/alpha/beta/gamma/x1.txt";
    const char *drive = "C:/alpha/beta/gama/x.txt";
    row("full length", PC_ROOTED, rooted, -1, rooted);
    row("fits exactly", PC_ROOTED, rooted, 24, rooted);
    row("one too few", PC_ROOTED, rooted, 23, ".../beta/gamma/x1.txt");
    row("largest", PC_ROOTED, rooted, 2147483647, rooted);
    row("two components fit exactly", PC_ROOTED, rooted, 17, ".../gamma/x1.txt");
    row("two components do not fit", PC_ROOTED, rooted, 16, ".../x1.txt");
    row("below 12 counts as 12", PC_ROOTED, rooted, 5, ".../x1.txt");
    row("negative counts as 12", PC_ROOTED, rooted, -2, ".../x1.txt");
    row("short path, below 12", PC_ROOTED, "/a/b/c/d/e/", 1, "/a/b/c/d/e/");
    row("room for the base name, not for its separator", PC_ROOTED, "/alpha/12345678", 12, "...");
    row("room for the separator, too", PC_ROOTED, "/alpha/1234567", 12, ".../1234567");
    row("no room for the marker", PC_ROOTED, "/alpha/123456789", 12, "123456789");
    row("relative", PC_RELATIVE, "alpha/beta/x.txt", 12, ".../x.txt");
    row("ends with a separator", PC_ROOTED, "/alpha/beta/gamma/", 12, ".../gamma/");
    row("drive", PC_DRIVE, drive, 23, "\\.../beta/gama/x.txt");
    row("drive, one component", PC_DRIVE, drive, 12, "\\.../x.txt");
    row("drive, base name fits exactly", PC_DRIVE, "C:/alpha/1234567", 12, "\\.../1234567");
    row("drive, base name does not fit", PC_DRIVE, "C:/alpha/12345678", 12, "12345678");
    row("drive, no separator", PC_DRIVE, "C:123456789012", 12, "123456789012");
    row("network", PC_UNC, "//srv/share/x.txt", 12, "\\.../x.txt");
    row("base name cut", PC_ROOTED, "/a/12345678901234.txt", 12, "1234567~.txt");
    row("base name cut, no extension", PC_ROOTED, "/a/12345678901234", 12, "1234567890~");
    row("base name cut, dot at the end", PC_ROOTED, "/a/12345678901234.", 12, "1234567890~");
    row("base name cut, longest extension", PC_ROOTED, "/a/12345.678901234", 12, "1~.678901234");
    row("base name cut, extension too long", PC_ROOTED, "/a/1234.5678901234", 12, "1234.56789~");
    row("base name cut, unknown category", 9, "/a/12345678901234", 12, "1234567890~");
    row("unknown category", 9, rooted, 20, "");
    row("unknown category that fits", 9, rooted, 24, rooted);
}

void tst_PathDisplayName::displayName()
{
    QFETCH(int, category);
    QFETCH(QString, path);
    QFETCH(int, maxChars);

    ProbePath probe;
    probe.set(path_category(category), wide(path));
    CString name = L"former";
    probe.GetDisplayName(name, maxChars);
    QTEST(shown(name), "name");
    QCOMPARE(name.size(), std::size_t(name.GetLength()));
}

void tst_PathDisplayName::displayNameOfWhatIsNoPath()
{
    ProbePath device;
    device.set(PC_RELATIVE, L"device", PT_DEVICE);
    for (const CKdUiPathname &path : {CKdUiPathname(), static_cast<CKdUiPathname &>(device)}) {
        CString name = L"former";
        path.GetDisplayName(name, 100);
        QVERIFY(name.IsEmpty());
    }
}

// No display name is longer than asked for, and one that is cut shows the end of the path or of its name.
void tst_PathDisplayName::displayNamesFit()
{
    QRandomGenerator random(4713);
    for (int i = 0; i < 3000; ++i) {
        CString text;
        for (quint32 length = random.bounded(60U); length > 0; --length)
            text += L"ab/.abcdef"[random.bounded(10U)];
        ProbePath path;
        path.set(path_category(random.bounded(4)), text);
        const int maxChars = random.bounded(12, 70);
        CString name;
        path.GetDisplayName(name, maxChars);
        QVERIFY(name.GetLength() <= maxChars);
        const QString last = shown(name).section(QLatin1Char('/'), -1).section(QLatin1Char('~'), -1);
        QVERIFY2(last.contains(QLatin1String("...")) || shown(text).endsWith(last), qPrintable(last));
    }
}

QTEST_GUILESS_MAIN(tst_PathDisplayName)
#include "tst_PathDisplayName.moc"
