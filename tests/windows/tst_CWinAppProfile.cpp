#include "KxApplication.h"

#include <QtTest>

#include <limits>

/// The integers of the profile, in a settings folder of the test's own.
class tst_CWinAppProfile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void roundTrip_data();
    void roundTrip();
    void missingEntry();
    void sections_data();
    void sections();
    void sectionsAreSeparate();
    void storedText_data();
    void storedText();
    void writtenFile();
    void outsideChangeIsSeen();
    void namesRefused_data();
    void namesRefused();
    void foldersThatCannotBeWritten();
    void stringsAreNotRead();
    void binariesAreNotRead();

private:
    QString settingsFile() const { return m_folder->filePath(QStringLiteral("Orvane/Velmo.conf")); }
    QByteArray fileContent() const;
    void writeFile(const QByteArray &content) const;

    QScopedPointer<QTemporaryDir> m_folder;
    CWinApp m_application;
};

void tst_CWinAppProfile::init()
{
    m_folder.reset(new QTemporaryDir);
    QVERIFY(m_folder->isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder->path());
}

void tst_CWinAppProfile::cleanup()
{
    m_folder.reset();
}

QByteArray tst_CWinAppProfile::fileContent() const
{
    QFile file(settingsFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_CWinAppProfile::writeFile(const QByteArray &content) const
{
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("Orvane")));
    QFile file(settingsFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void tst_CWinAppProfile::roundTrip_data()
{
    QTest::addColumn<int>("value");

    QTest::newRow("5") << 5;
    QTest::newRow("0") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void tst_CWinAppProfile::roundTrip()
{
    QFETCH(int, value);

    QCOMPARE(m_application.WriteProfileInt(L"A", L"B", 77), TRUE);
    QCOMPARE(m_application.WriteProfileInt(L"A", L"B", value), TRUE);
    QCOMPARE(m_application.GetProfileIntW(L"A", L"B", 9), value);

    const QSettings independent(settingsFile(), QSettings::IniFormat);
    QCOMPARE(independent.value(QStringLiteral("A/B")).toInt(), value);
}

void tst_CWinAppProfile::missingEntry()
{
    m_application.WriteProfileInt(L"A", L"B", 5);
    for (int value : {9, 0, -9, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        QCOMPARE(m_application.GetProfileIntW(L"A", L"C", value), value);
        QCOMPARE(m_application.GetProfileIntW(L"C", L"B", value), value);
    }
    // Asking stores nothing.
    QVERIFY(!fileContent().contains('C'));
}

void tst_CWinAppProfile::sections_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("key");

    QTest::newRow("plain") << QStringLiteral("A") << QStringLiteral("B") << QStringLiteral("A/B");
    QTest::newRow("nested section") << QStringLiteral("A/B") << QStringLiteral("C")
                                    << QStringLiteral("A/B/C");
    QTest::newRow("nested entry") << QStringLiteral("A") << QStringLiteral("B/C") << QStringLiteral("A/B/C");
    QTest::newRow("no section") << QStringLiteral("") << QStringLiteral("B") << QStringLiteral("B");
    QTest::newRow("spaces") << QStringLiteral("A a") << QStringLiteral("B = b")
                            << QStringLiteral("A a/B = b");
    const QString wide = QString::fromStdWString(L"\u00e4\u4e2d\U0001F600");
    QTest::newRow("beyond 16 bits") << wide << wide << (wide + QLatin1Char('/') + wide);
}

void tst_CWinAppProfile::sections()
{
    QFETCH(QString, section);
    QFETCH(QString, entry);
    QFETCH(QString, key);

    const std::wstring wideSection = section.toStdWString();
    const std::wstring wideEntry = entry.toStdWString();
    QCOMPARE(m_application.WriteProfileInt(wideSection.c_str(), wideEntry.c_str(), 5), TRUE);
    QCOMPARE(m_application.GetProfileIntW(wideSection.c_str(), wideEntry.c_str(), 9), 5);
    QCOMPARE(QSettings(settingsFile(), QSettings::IniFormat).allKeys(), QStringList(key));
}

void tst_CWinAppProfile::sectionsAreSeparate()
{
    m_application.WriteProfileInt(L"A", L"B", 1);
    m_application.WriteProfileInt(L"C", L"B", 2);
    m_application.WriteProfileInt(L"A", L"D", 3);
    QCOMPARE(m_application.GetProfileIntW(L"A", L"B", 9), 1);
    QCOMPARE(m_application.GetProfileIntW(L"C", L"B", 9), 2);
    QCOMPARE(m_application.GetProfileIntW(L"A", L"D", 9), 3);
}

void tst_CWinAppProfile::storedText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("value");

    QTest::newRow("number") << QByteArray("12") << 12;
    QTest::newRow("negative number") << QByteArray("-12") << -12;
    QTest::newRow("word") << QByteArray("abc") << 0;
    QTest::newRow("empty") << QByteArray() << 0;
    QTest::newRow("number and word") << QByteArray("12abc") << 0;
    QTest::newRow("fraction") << QByteArray("3.7") << 0;
    QTest::newRow("hexadecimal") << QByteArray("0x10") << 0;
    QTest::newRow("truth") << QByteArray("true") << 0;
}

void tst_CWinAppProfile::storedText()
{
    QFETCH(QByteArray, text);

    writeFile("[A]\nB=" + text + "\n");
    QTEST(m_application.GetProfileIntW(L"A", L"B", 9), "value");
}

void tst_CWinAppProfile::writtenFile()
{
    QVERIFY(!QFile::exists(settingsFile()));
    m_application.WriteProfileInt(L"A", L"B", 5);
    QCOMPARE(fileContent(), QByteArray("[A]\nB=5\n"));
    m_application.WriteProfileInt(L"A/X", L"B", -6);
    QCOMPARE(fileContent(), QByteArray("[A]\nB=5\nX\\B=-6\n"));
}

// Another process, or CRegKey, may write between two calls.
void tst_CWinAppProfile::outsideChangeIsSeen()
{
    m_application.WriteProfileInt(L"A", L"B", 5);
    writeFile("[A]\nB=12345\nD=6\n");
    QCOMPARE(m_application.GetProfileIntW(L"A", L"B", 9), 12345);

    m_application.WriteProfileInt(L"A", L"C", 7);
    QCOMPARE(fileContent(), QByteArray("[A]\nB=12345\nC=7\nD=6\n"));
    QVERIFY(QFile::remove(settingsFile()));
    QCOMPARE(m_application.GetProfileIntW(L"A", L"B", 9), 9);
}

void tst_CWinAppProfile::namesRefused_data()
{
    QTest::addColumn<bool>("hasSection");
    QTest::addColumn<QString>("entry");

    QTest::newRow("null section") << false << QStringLiteral("B");
    QTest::newRow("null entry") << true << QString();
    QTest::newRow("empty entry") << true << QStringLiteral("");
    QTest::newRow("both null") << false << QString();
}

void tst_CWinAppProfile::namesRefused()
{
    QFETCH(bool, hasSection);
    QFETCH(QString, entry);

    const std::wstring wideEntry = entry.toStdWString();
    const wchar_t *section = hasSection ? L"A" : nullptr;
    const wchar_t *name = entry.isNull() ? nullptr : wideEntry.c_str();
    QCOMPARE(m_application.WriteProfileInt(section, name, 5), FALSE);
    QCOMPARE(m_application.GetProfileIntW(section, name, 9), 9);
    QVERIFY(!QFile::exists(settingsFile()));
}

// Below a regular file there is no folder, not even for root.
void tst_CWinAppProfile::foldersThatCannotBeWritten()
{
    const QString file = m_folder->filePath(QStringLiteral("file"));
    QVERIFY(QFile(file).open(QIODevice::WriteOnly));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, file + QStringLiteral("/below"));

    QCOMPARE(m_application.WriteProfileInt(L"A", L"B", 5), TRUE);
    QCOMPARE(m_application.GetProfileIntW(L"A", L"B", 9), 9);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
             QStringList(QStringLiteral("file")));
}

void tst_CWinAppProfile::stringsAreNotRead()
{
    writeFile("[A]\nB=text\n");

    QVERIFY(m_application.GetProfileStringW(L"A", L"B", L"default").IsEmpty());
    QVERIFY(m_application.GetProfileStringW(L"A", L"B").IsEmpty());
    QVERIFY(m_application.GetProfileStringW(nullptr, nullptr, nullptr).IsEmpty());
    QCOMPARE(m_application.WriteProfileStringW(L"A", L"B", L"other"), FALSE);
    QCOMPARE(m_application.WriteProfileStringW(L"A", L"C", L"other"), FALSE);
    QCOMPARE(m_application.WriteProfileStringW(L"A", nullptr, nullptr), FALSE);
    QCOMPARE(fileContent(), QByteArray("[A]\nB=text\n"));
}

void tst_CWinAppProfile::binariesAreNotRead()
{
    writeFile("[A]\nB=@ByteArray(data)\n");

    BYTE bytes[] = {1, 2, 3};
    BYTE *data = bytes;
    UINT size = 3;
    QCOMPARE(m_application.GetProfileBinary(L"A", L"B", &data, &size), FALSE);
    QCOMPARE(data, bytes + 0);
    QCOMPARE(size, 3u);
    QCOMPARE(m_application.GetProfileBinary(nullptr, nullptr, nullptr, nullptr), FALSE);
    QCOMPARE(m_application.WriteProfileBinary(L"A", L"B", bytes, 3), FALSE);
    QCOMPARE(m_application.WriteProfileBinary(L"A", L"C", nullptr, 0), FALSE);
    QCOMPARE(fileContent(), QByteArray("[A]\nB=@ByteArray(data)\n"));
}

QTEST_GUILESS_MAIN(tst_CWinAppProfile)
#include "tst_CWinAppProfile.moc"
