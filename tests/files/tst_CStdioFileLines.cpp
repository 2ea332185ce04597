#include "Folder.h"
#include "KxFiles.h"

#include <QTextCodec>
#include <QtTest>

/// Reading text line by line.
class tst_CStdioFileLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); }
    void lines_data();
    void lines();
    void carriageReturnsAlone_data();
    void carriageReturnsAlone();
    void linesIntoABuffer_data() { lines_data(); }
    void linesIntoABuffer();
    void endOfFileGivesEmptyLines();
    void bufferIsFilledWhateverItsSize();
    void withoutABufferNothingIsRead();
    void decodesByTheLocale_data();
    void decodesByTheLocale();
    void byteOrderMarkSelectsUnicode_data();
    void byteOrderMarkSelectsUnicode();
    void nullCharactersStayInTheLine();
    void lineOfTenMegabytes_data();
    void lineOfTenMegabytes();
    void writeOnlyFileHasNoLines();
    void readsBackWhatWasWritten();
    void seesWhatAnotherProgramAppends();
};

using Lines = QStringList;

static Lines split(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char('|'));
}

void tst_CStdioFileLines::lines_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<Lines>("lines");

    QTest::newRow("empty file") << QByteArray() << split("||");
    QTest::newRow("LF") << QByteArray("a\nb\nc\n") << split("a|b|c");
    QTest::newRow("CR LF") << QByteArray("a\r\nb\r\nc\r\n") << split("a|b|c");
    QTest::newRow("mixed") << QByteArray("a\r\nb\nc\r\n") << split("a|b|c");
    QTest::newRow("last line without an end") << QByteArray("a\nb") << split("a|b|");
    QTest::newRow("empty lines") << QByteArray("\n\r\na\n") << split("||a");
    QTest::newRow("blanks stay") << QByteArray(" a \t\n\tb\n") << split(" a \t|\tb|");
}

void tst_CStdioFileLines::lines()
{
    QFETCH(QByteArray, content);
    QFETCH(Lines, lines);
    const Folder folder;
    const std::wstring name = folder.make("file", content);
    for (const unsigned flags : {0x0000u, 0x4000u, 0x0002u, 0x4003u}) {
        CStdioFile file;
        QVERIFY(file.Open(name.c_str(), flags));
        for (const QString &expected : lines) {
            CString line(L"before");
            QCOMPARE(file.ReadString(line), TRUE);
            QCOMPARE(QString::fromStdWString(line), expected);
        }
    }
}

void tst_CStdioFileLines::carriageReturnsAlone_data()
{
    QTest::addColumn<unsigned>("flags");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<Lines>("lines");

    QTest::newRow("no line end") << 0x0000u << QByteArray("a\rb\nc\n") << split("a\rb|c");
    QTest::newRow("two before LF") << 0x0000u << QByteArray("a\r\r\nb\n") << split("a\r|b");
    QTest::newRow("after LF") << 0x0000u << QByteArray("a\n\rb\n") << split("a|\rb");
    QTest::newRow("dropped from text") << 0x4000u << QByteArray("a\rb\nc\n") << split("ab|c");
    QTest::newRow("two before LF dropped from text") << 0x4000u << QByteArray("a\r\r\nb\n") << split("a|b");
    QTest::newRow("after LF dropped from text") << 0x4000u << QByteArray("a\n\rb\n") << split("a|b");
}

void tst_CStdioFileLines::carriageReturnsAlone()
{
    QFETCH(unsigned, flags);
    QFETCH(QByteArray, content);
    QFETCH(Lines, lines);
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.make("file", content).c_str(), flags));
    for (const QString &expected : lines) {
        CString line;
        file.ReadString(line);
        QCOMPARE(QString::fromStdWString(line), expected);
    }
}

void tst_CStdioFileLines::linesIntoABuffer()
{
    QFETCH(QByteArray, content);
    QFETCH(Lines, lines);
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.make("file", content).c_str(), CFile::modeRead));
    for (const QString &expected : lines) {
        wchar_t buffer[16] = L"before";
        QCOMPARE(file.ReadString(buffer, 16), &buffer[0]);
        QCOMPARE(QString::fromWCharArray(buffer), expected);
    }
}

void tst_CStdioFileLines::endOfFileGivesEmptyLines()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.make("file", "a").c_str(), CFile::modeRead));
    CString line;
    file.ReadString(line);
    for (int i = 0; i < 3; ++i) {
        line = L"before";
        QCOMPARE(file.ReadString(line), TRUE);
        QVERIFY(line.IsEmpty());
        wchar_t buffer[8] = L"before";
        QCOMPARE(file.ReadString(buffer, 8), &buffer[0]);
        QCOMPARE(buffer[0], L'\0');
    }
}

void tst_CStdioFileLines::bufferIsFilledWhateverItsSize()
{
    const Folder folder;
    for (const unsigned max : {0u, 1u, 3u, 0xFFFFFFFFu}) {
        CStdioFile file;
        QVERIFY(file.Open(folder.make("file", "0123456\nnext").c_str(), CFile::modeRead));
        wchar_t buffer[9] = L"........";
        QCOMPARE(file.ReadString(buffer, max), &buffer[0]);
        QCOMPARE(std::wstring(buffer, 9), std::wstring(L"0123456\0\0", 9));
    }
}

void tst_CStdioFileLines::withoutABufferNothingIsRead()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.make("file", "a\nb\n").c_str(), CFile::modeRead));
    QVERIFY(!file.ReadString(nullptr, 8));
    CString line;
    file.ReadString(line);
    QCOMPARE(std::wstring(line), std::wstring(L"a"));
}

void tst_CStdioFileLines::decodesByTheLocale_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("line");

    const QString text = QString::fromUtf8("\u00E9\u20AC");
    QTest::newRow("UTF-8") << QByteArray("UTF-8") << QByteArray("\xC3\xA9\xE2\x82\xAC\n") << text;
    QTest::newRow("ISO-8859-15") << QByteArray("ISO-8859-15") << QByteArray("\xE9\xA4\n") << text;
    QTest::newRow("beyond 16 bits") << QByteArray("UTF-8") << QByteArray("\xF0\x9F\x98\x80\n")
                                    << QString::fromUtf8("\U0001F600");
    QTest::newRow("bytes that are not UTF-8")
        << QByteArray("UTF-8") << QByteArray("a\xFF\n") << QString::fromUtf8("a\uFFFD");
}

void tst_CStdioFileLines::decodesByTheLocale()
{
    QFETCH(QByteArray, codec);
    QFETCH(QByteArray, content);
    QFETCH(QString, line);
    const Folder folder;
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(codec));
    CStdioFile file;
    QVERIFY(file.Open(folder.make("file", content).c_str(), CFile::modeRead | CFile::typeText));
    CString read;
    file.ReadString(read);
    QCOMPARE(std::wstring(read), line.toStdWString());
}

void tst_CStdioFileLines::byteOrderMarkSelectsUnicode_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("UTF-8") << QByteArray("\xEF\xBB\xBF\xC3\xA9\n");
    QTest::newRow("UTF-16, little endian") << QByteArray("\xFF\xFE\xE9\x00\x0A\x00", 6);
    QTest::newRow("UTF-16, big endian") << QByteArray("\xFE\xFF\x00\xE9\x00\x0A", 6);
}

void tst_CStdioFileLines::byteOrderMarkSelectsUnicode()
{
    QFETCH(QByteArray, content);
    const Folder folder;
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    CStdioFile file;
    QVERIFY(file.Open(folder.make("file", content).c_str(), CFile::modeRead));
    CString line;
    file.ReadString(line);
    QCOMPARE(std::wstring(line), std::wstring(L"\u00E9"));
}

void tst_CStdioFileLines::nullCharactersStayInTheLine()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.make("file", QByteArray("a\0b\nc\0d\n", 8)).c_str(), CFile::modeRead));
    CString line;
    file.ReadString(line);
    QCOMPARE(std::wstring(line), std::wstring(L"a\0b", 3));
    wchar_t buffer[5] = L"....";
    file.ReadString(buffer, 5);
    QCOMPARE(std::wstring(buffer, 5), std::wstring(L"c\0d\0\0", 5));
}

void tst_CStdioFileLines::lineOfTenMegabytes_data()
{
    QTest::addColumn<QByteArray>("lineEnd");

    QTest::newRow("LF") << QByteArray("\n");
    QTest::newRow("CR LF") << QByteArray("\r\n");
    QTest::newRow("none") << QByteArray();
}

void tst_CStdioFileLines::lineOfTenMegabytes()
{
    QFETCH(QByteArray, lineEnd);
    constexpr int length = 10 * 1024 * 1024;
    const Folder folder;
    CStdioFile file;
    const QByteArray content = QByteArray(length - 1, 'x') + 'y' + lineEnd + "next";
    QVERIFY(file.Open(folder.make("file", content).c_str(), CFile::modeRead));
    CString line;
    file.ReadString(line);
    QCOMPARE(int(line.size()), length + (lineEnd.isEmpty() ? 4 : 0));
    QCOMPARE(line[length - 1], L'y');
    file.ReadString(line);
    QCOMPARE(std::wstring(line), std::wstring(lineEnd.isEmpty() ? L"" : L"next"));
}

void tst_CStdioFileLines::writeOnlyFileHasNoLines()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeWrite));
    file.WriteString(L"line\n");
    file.Flush();
    file.SeekToBegin();
    CString line(L"before");
    QCOMPARE(file.ReadString(line), TRUE);
    QVERIFY(line.IsEmpty());
}

void tst_CStdioFileLines::readsBackWhatWasWritten()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.name("file").c_str(), CFile::modeReadWrite | CFile::typeText));
    file.WriteString(L"first\n");
    file.WriteString(L"second\n");
    file.Flush();
    QVERIFY(file.SeekToBegin());
    CString line;
    file.ReadString(line);
    QCOMPARE(std::wstring(line), std::wstring(L"first"));
    file.ReadString(line);
    QCOMPARE(std::wstring(line), std::wstring(L"second"));
}

void tst_CStdioFileLines::seesWhatAnotherProgramAppends()
{
    const Folder folder;
    CStdioFile file;
    QVERIFY(file.Open(folder.make("file", "a\n").c_str(), CFile::modeRead));
    CString line;
    file.ReadString(line);
    file.ReadString(line);
    QVERIFY(line.IsEmpty());
    QFile other(folder.path("file"));
    QVERIFY(other.open(QIODevice::Append));
    other.write("b\n");
    other.close();
    file.ReadString(line);
    QCOMPARE(std::wstring(line), std::wstring(L"b"));
}

QTEST_GUILESS_MAIN(tst_CStdioFileLines)
#include "tst_CStdioFileLines.moc"
