#include "Folder.h"
#include "KxFiles.h"

#include <QTextCodec>
#include <QtTest>

/// Writing text, and what becomes of it.
class tst_CStdioFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); }
    void writesTextAsItIs_data();
    void writesTextAsItIs();
    void encodesByTheLocale_data();
    void encodesByTheLocale();
    void flushReachesTheDisk();
    void closeReachesTheDisk();
    void closeThroughTheBaseClass();
    void textAfterTheLastFlushIsLost();
    void textWithoutAFlushIsLost();
    void bytesOfTheFileAreNotLost();
    void openingAgainKeepsTheTextBefore();
    void opensAgainAfterClose();
    void failedOpenAttachesNothing();
    void withoutATextWritesNothing();
    void constructorAttachesNoText();
    void opensAfterTheConstructor();
    void closedFileTakesNoText();
    void readOnlyFileTakesNoText();
    void longText();
    void closesWhenTheBaseIsDestroyed();
};

void tst_CStdioFile::writesTextAsItIs_data()
{
    QTest::addColumn<unsigned>("flags");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("content");

    const QString lines = QStringLiteral("a\nb\r\nc");
    QTest::newRow("no line end is added") << 0x0001u << QStringLiteral("line") << QByteArray("line");
    QTest::newRow("line ends, binary") << 0x8001u << lines << QByteArray("a\nb\r\nc");
    QTest::newRow("line ends, text") << 0x4001u << lines << QByteArray("a\nb\r\nc");
    QTest::newRow("empty") << 0x4001u << QString() << QByteArray();
    QTest::newRow("percent signs") << 0x4001u << QStringLiteral("%d%s") << QByteArray("%d%s");
    QTest::newRow("read and write") << 0x4003u << QStringLiteral("line") << QByteArray("line");
}

void tst_CStdioFile::writesTextAsItIs()
{
    QFETCH(unsigned, flags);
    QFETCH(QString, text);
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.name("file").c_str(), flags));
    file.WriteString(text.toStdWString().c_str());
    file.Close();
    QTEST(folder.content("file"), "content");
}

void tst_CStdioFile::encodesByTheLocale_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("content");

    const QString text = QString::fromUtf8("\u00E9\u20AC");
    QTest::newRow("UTF-8") << QByteArray("UTF-8") << text << QByteArray("\xC3\xA9\xE2\x82\xAC");
    QTest::newRow("UTF-8 beyond 16 bits")
        << QByteArray("UTF-8") << QString::fromUtf8("\U0001F600") << QByteArray("\xF0\x9F\x98\x80");
    QTest::newRow("ISO-8859-1") << QByteArray("ISO-8859-1") << text << QByteArray("\xE9?");
    QTest::newRow("ISO-8859-15") << QByteArray("ISO-8859-15") << text << QByteArray("\xE9\xA4");
}

void tst_CStdioFile::encodesByTheLocale()
{
    QFETCH(QByteArray, codec);
    QFETCH(QString, text);
    const Folder folder;
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(codec));
    CStdioFile file;
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite | CFile::typeText));
    file.WriteString(text.toStdWString().c_str());
    file.Close();
    QTEST(folder.content("file"), "content");
}

void tst_CStdioFile::flushReachesTheDisk()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
    file.WriteString(L"0123");
    QCOMPARE(folder.content("file"), QByteArray());
    file.Flush();
    QCOMPARE(folder.content("file"), QByteArray("0123"));
}

void tst_CStdioFile::closeReachesTheDisk()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
    file.WriteString(L"0123");
    file.Close();
    QCOMPARE(file.m_hFile, INVALID_HANDLE_VALUE);
    QCOMPARE(folder.content("file"), QByteArray("0123"));
}

void tst_CStdioFile::closeThroughTheBaseClass()
{
    const Folder folder;
    CStdioFile text;
    CFile &file = text;
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
    text.WriteString(L"01");
    file.Flush();
    QCOMPARE(folder.content("file"), QByteArray("01"));
    text.WriteString(L"23");
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("0123"));
}

void tst_CStdioFile::textAfterTheLastFlushIsLost()
{
    const Folder folder;
    {
        CStdioFile file;
        QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
        file.WriteString(L"kept");
        file.Flush();
        file.WriteString(L"lost");
    }
    QCOMPARE(folder.content("file"), QByteArray("kept"));
}

void tst_CStdioFile::textWithoutAFlushIsLost()
{
    const Folder folder;
    {
        CStdioFile file;
        QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
        file.WriteString(L"lost");
    }
    QCOMPARE(folder.content("file"), QByteArray());
}

void tst_CStdioFile::bytesOfTheFileAreNotLost()
{
    const Folder folder;
    {
        CStdioFile file;
        QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
        QCOMPARE(file.Write("kept", 4), 4u);
        file.WriteString(L"lost");
    }
    QCOMPARE(folder.content("file"), QByteArray("kept"));
}

void tst_CStdioFile::openingAgainKeepsTheTextBefore()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.name("first").c_str(), CFile::modeWrite));
    file.WriteString(L"0123");
    QVERIFY(file.Open(folder.name("second").c_str(), CFile::modeWrite));
    file.WriteString(L"45");
    file.Close();
    QCOMPARE(folder.content("first"), QByteArray("0123"));
    QCOMPARE(folder.content("second"), QByteArray("45"));
}

void tst_CStdioFile::opensAgainAfterClose()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
    file.WriteString(L"0123\n");
    file.Close();
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeRead));
    CString line;
    QVERIFY(file.ReadString(line));
    QCOMPARE(std::wstring(line), std::wstring(L"0123"));
}

void tst_CStdioFile::failedOpenAttachesNothing()
{
    const Folder folder;
    CStdioFile file;
    CString line(L"before");
    QVERIFY(!file.Open(folder.name("missing").c_str(), CFile::modeRead));
    QVERIFY(!file.Open(nullptr, CFile::modeRead));
    file.WriteString(L"0123");
    QVERIFY(file.ReadString(line));
    QVERIFY(line.IsEmpty());
    file.Close();
    QCOMPARE(folder.content("missing"), QByteArray("missing"));
}

void tst_CStdioFile::withoutATextWritesNothing()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
    file.WriteString(L"01");
    file.WriteString(nullptr);
    file.WriteString(L"23");
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("0123"));
}

void tst_CStdioFile::constructorAttachesNoText()
{
    const Folder folder;
    CString line(L"before");
    wchar_t buffer[8] = L"before";
    {
        CStdioFile file(folder.make("file", "line\n").c_str(), CFile::modeReadWrite);
        QVERIFY(file.m_hFile != INVALID_HANDLE_VALUE);
        QVERIFY(file.ReadString(line));
        QVERIFY(line.IsEmpty());
        QCOMPARE(file.ReadString(buffer, 8), &buffer[0]);
        QCOMPARE(buffer[0], L'\0');
        file.WriteString(L"0123");
        file.Flush();
        QCOMPARE(file.Write("LI", 2), 2u);
        file.Close();
    }
    QCOMPARE(folder.content("file"), QByteArray("LIne\n"));
}

void tst_CStdioFile::opensAfterTheConstructor()
{
    const Folder folder;
    CStdioFile file(folder.make("file", "line\n").c_str(), CFile::modeRead);
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeRead));
    CString line;
    file.ReadString(line);
    QCOMPARE(std::wstring(line), std::wstring(L"line"));
}

void tst_CStdioFile::closedFileTakesNoText()
{
    const Folder folder;
    CStdioFile file;
    CString line;
    QVERIFY(file.Open(folder.make("first", "a\nb\n").c_str(), CFile::modeReadWrite));
    file.ReadString(line);
    file.Close();
    file.WriteString(L"0123");
    file.Flush();
    QVERIFY(file.ReadString(line));
    QVERIFY(line.IsEmpty());
    QVERIFY(file.Open(folder.name("second").c_str(), CFile::modeWrite));
    file.Close();
    QCOMPARE(folder.content("first"), QByteArray("a\nb\n"));
    QCOMPARE(folder.content("second"), QByteArray());
}

void tst_CStdioFile::readOnlyFileTakesNoText()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.make("file", "a\nb\n").c_str(), CFile::modeRead));
    file.WriteString(L"0123");
    file.Flush();
    CString line;
    file.ReadString(line);
    QCOMPARE(std::wstring(line), std::wstring(L"a"));
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("a\nb\n"));
}

void tst_CStdioFile::longText()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
    file.WriteString(std::wstring(1000000, L'\u00E9').c_str());
    file.Flush();
    QCOMPARE(folder.content("file"), QByteArray("\xC3\xA9").repeated(1000000));
}

void tst_CStdioFile::closesWhenTheBaseIsDestroyed()
{
    const Folder folder;
    std::unique_ptr<CFile> file = std::make_unique<CStdioFile>();
    QVERIFY(file->Open(folder.name("file").c_str(), CFile::modeWrite));
    static_cast<CStdioFile *>(file.get())->WriteString(L"lost");
    file.reset();
    QCOMPARE(folder.content("file"), QByteArray());
}

QTEST_GUILESS_MAIN(tst_CStdioFile)
#include "tst_CStdioFile.moc"
