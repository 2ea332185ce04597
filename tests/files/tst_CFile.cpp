#include "Folder.h"
#include "KxFiles.h"

#include <QtTest>

#include <fcntl.h>

class tst_CFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modesThatExistingFilesMeet_data();
    void modesThatExistingFilesMeet();
    void modesThatMissingFilesMeet_data();
    void modesThatMissingFilesMeet();
    void constructorOpens();
    void handleIsTheDescriptor();
    void readsInPieces();
    void textModeDropsCarriageReturns_data();
    void textModeDropsCarriageReturns();
    void textModeWritesLineEndsUnchanged();
    void seekIsAbsolute_data();
    void seekIsAbsolute();
    void seekToBegin();
    void seekWritesWhatWasCollected();
    void overwritesInTheMiddle();
    void lengthCountsWhatWasCollected();
    void flushReachesTheDisk();
    void closeReachesTheDisk();
    void destructorReachesTheDisk();
    void destructorPassesByOverrides();
    void opensAgain();
    void opensAnotherFileWithoutClose();
    void removes();
    void finds_data();
    void finds();
    void constants();
};

void tst_CFile::modesThatExistingFilesMeet_data()
{
    QTest::addColumn<unsigned>("flags");
    QTest::addColumn<QByteArray>("read");
    QTest::addColumn<int>("written");
    QTest::addColumn<QByteArray>("content");

    const QByteArray none("failed");
    QTest::newRow("0x0000 reads") << 0x0000u << QByteArray("before") << -1 << QByteArray("before");
    QTest::newRow("0x0001 empties and writes") << 0x0001u << none << 2 << QByteArray("XY");
    QTest::newRow("0x0002 reads and writes")
        << 0x0002u << QByteArray("before") << 2 << QByteArray("beforeXY");
    QTest::newRow("0x0003 reads and writes")
        << 0x0003u << QByteArray("before") << 2 << QByteArray("beforeXY");
    QTest::newRow("0x4001 empties and writes text") << 0x4001u << none << 2 << QByteArray("XY");
    QTest::newRow("0x1000 does not create") << 0x1000u << QByteArray("before") << -1 << QByteArray("before");
    QTest::newRow("0x1002 does not empty") << 0x1002u << QByteArray("before") << 2 << QByteArray("beforeXY");
    QTest::newRow("0x2001 empties all the same") << 0x2001u << none << 2 << QByteArray("XY");
    QTest::newRow("sharing bits") << 0x00F0u << QByteArray("before") << -1 << QByteArray("before");
    QTest::newRow("every bit but the first three")
        << 0xFFFFBFFCu << QByteArray("before") << -1 << QByteArray("before");
}

void tst_CFile::modesThatExistingFilesMeet()
{
    QFETCH(unsigned, flags);
    const Folder folder;
    CFile file;
    QVERIFY(file.Open(folder.make("file", "before").c_str(), flags));

    QByteArray bytes(16, '.');
    const int count = int(file.Read(bytes.data(), 16));
    QTEST(count < 0 ? QByteArray("failed") : bytes.left(count), "read");
    QTEST(int(file.Write("XY", 2)), "written");
    file.Close();
    QTEST(folder.content("file"), "content");
}

void tst_CFile::modesThatMissingFilesMeet_data()
{
    QTest::addColumn<unsigned>("flags");
    QTest::addColumn<bool>("opens");

    QTest::newRow("0x0000") << 0x0000u << false;
    QTest::newRow("0x1000") << 0x1000u << false;
    QTest::newRow("0x4000") << 0x4000u << false;
    QTest::newRow("0x0001") << 0x0001u << true;
    QTest::newRow("0x0002") << 0x0002u << true;
    QTest::newRow("0x0003") << 0x0003u << true;
    QTest::newRow("0x1001") << 0x1001u << true;
}

void tst_CFile::modesThatMissingFilesMeet()
{
    QFETCH(unsigned, flags);
    QFETCH(bool, opens);
    const Folder folder;
    CFile file;
    QCOMPARE(bool(file.Open(folder.name("file").c_str(), flags)), opens);
    QCOMPARE(file.m_hFile != INVALID_HANDLE_VALUE, opens);
    QCOMPARE(folder.content("file"), opens ? QByteArray() : QByteArray("missing"));
}

void tst_CFile::constructorOpens()
{
    const Folder folder;
    const CFile there(folder.make("file", "before").c_str(), CFile::modeRead);
    const CFile missing(folder.name("missing").c_str(), CFile::modeRead);
    QVERIFY(there.m_hFile != INVALID_HANDLE_VALUE);
    QCOMPARE(there.GetLength(), 6ull);
    QCOMPARE(missing.m_hFile, INVALID_HANDLE_VALUE);
}

void tst_CFile::handleIsTheDescriptor()
{
    const Folder folder;
    CFile file;
    QCOMPARE(file.m_hFile, INVALID_HANDLE_VALUE);
    QVERIFY(file.Open(folder.make("file").c_str(), CFile::modeRead));
    const int descriptor = int(reinterpret_cast<std::intptr_t>(file.m_hFile));
    QCOMPARE(descriptor, file.implement()->handle());
    QVERIFY(fcntl(descriptor, F_GETFD) >= 0);
    file.Close();
    QCOMPARE(file.m_hFile, INVALID_HANDLE_VALUE);
    QCOMPARE(fcntl(descriptor, F_GETFD), -1);
}

void tst_CFile::readsInPieces()
{
    const Folder folder;
    CFile file(folder.make("file", "0123456789").c_str(), CFile::modeRead);
    char bytes[16] = {};
    QCOMPARE(file.Read(bytes, 4), 4u);
    QCOMPARE(file.GetPosition(), 4ull);
    QCOMPARE(file.Read(bytes, 0), 0u);
    QCOMPARE(file.Read(nullptr, 0), 0u);
    QCOMPARE(file.Read(bytes, 16), 6u);
    QCOMPARE(QByteArray(bytes), QByteArray("456789"));
    QCOMPARE(file.Read(bytes, 16), 0u);
    QCOMPARE(file.GetPosition(), 10ull);
}

void tst_CFile::textModeDropsCarriageReturns_data()
{
    QTest::addColumn<unsigned>("flags");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("text") << 0x4000u << QByteArray("a\nb\ncd\n");
    QTest::newRow("text, read and write") << 0x4002u << QByteArray("a\nb\ncd\n");
    QTest::newRow("binary") << 0x8000u << QByteArray("a\r\nb\nc\rd\r\n");
    QTest::newRow("neither") << 0x0000u << QByteArray("a\r\nb\nc\rd\r\n");
}

void tst_CFile::textModeDropsCarriageReturns()
{
    QFETCH(unsigned, flags);
    const Folder folder;
    CFile file(folder.make("file", "a\r\nb\nc\rd\r\n").c_str(), flags);
    char bytes[32] = {};
    const unsigned count = file.Read(bytes, sizeof bytes);
    QTEST(QByteArray(bytes, int(count)), "bytes");
}

void tst_CFile::textModeWritesLineEndsUnchanged()
{
    const Folder folder;
    CFile file(folder.name("file").c_str(), 0x4001);
    QCOMPARE(file.Write("a\nb\r\nc", 6), 6u);
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("a\nb\r\nc"));
}

void tst_CFile::seekIsAbsolute_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<unsigned>("from");
    QTest::addColumn<qulonglong>("position");

    const QByteArray ten("0123456789");
    QTest::newRow("begin") << ten << qint64{3} << 0u << 3ull;
    QTest::newRow("current is absolute") << ten << qint64{3} << 1u << 3ull;
    QTest::newRow("end is absolute") << ten << qint64{3} << 2u << 3ull;
    QTest::newRow("to the end") << ten << qint64{10} << 0u << 10ull;
    QTest::newRow("past the end") << ten << qint64{20} << 0u << 20ull;
    QTest::newRow("to the end of two bytes by end") << QByteArray("01") << qint64{10} << 2u << 10ull;
    QTest::newRow("past the end of an empty file") << QByteArray() << qint64{5} << 1u << 5ull;
    QTest::newRow("past 32 bits") << ten << qint64{0x100000005} << 0u << 0x100000005ull;
    QTest::newRow("negative stays at the origin 0") << ten << qint64{-1} << 0u << 0ull;
    QTest::newRow("negative stays at the origin 1") << ten << qint64{-1} << 1u << 1ull;
    QTest::newRow("negative stays at the origin 2") << ten << qint64{-4} << 2u << 2ull;
    QTest::newRow("negative stays at an unknown origin") << ten << qint64{-1} << 7u << 7ull;
    QTest::newRow("unknown origin") << ten << qint64{3} << 0xFFFFFFFFu << 3ull;
}

void tst_CFile::seekIsAbsolute()
{
    QFETCH(QByteArray, content);
    QFETCH(qint64, offset);
    QFETCH(unsigned, from);
    const Folder folder;
    CFile file(folder.make("file", content).c_str(), CFile::modeRead);
    file.Seek(1, CFile::begin);
    QTEST(qulonglong{file.Seek(offset, from)}, "position");
    QTEST(qulonglong{file.GetPosition()}, "position");
    QCOMPARE(file.GetLength(), qulonglong(content.size()));
}

void tst_CFile::seekToBegin()
{
    const Folder folder;
    CFile file(folder.make("file", "0123").c_str(), CFile::modeRead);
    char byte = '.';
    file.Seek(2, CFile::begin);
    QVERIFY(file.SeekToBegin());
    QCOMPARE(file.GetPosition(), 0ull);
    QCOMPARE(file.Read(&byte, 1), 1u);
    QCOMPARE(byte, '0');
}

void tst_CFile::seekWritesWhatWasCollected()
{
    const Folder folder;
    CFile file(folder.name("file").c_str(), CFile::modeWrite);
    file.Write("0123", 4);
    QCOMPARE(file.Seek(1, CFile::begin), 1ull);
    QCOMPARE(folder.content("file"), QByteArray("0123"));
}

void tst_CFile::overwritesInTheMiddle()
{
    const Folder folder;
    CFile file(folder.make("file", "0123456789").c_str(), CFile::modeReadWrite);
    file.Seek(4, CFile::begin);
    QCOMPARE(file.Write("ab", 2), 2u);
    QCOMPARE(file.GetPosition(), 6ull);
    char byte = '.';
    QCOMPARE(file.Read(&byte, 1), 1u);
    QCOMPARE(byte, '6');
    file.Seek(12, CFile::begin);
    file.Write("c", 1);
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("0123ab6789\0\0c", 13));
}

void tst_CFile::lengthCountsWhatWasCollected()
{
    const Folder folder;
    CFile file(folder.make("file", "before").c_str(), CFile::modeWrite);
    QCOMPARE(file.GetLength(), 0ull);
    file.Write("0123", 4);
    QCOMPARE(file.GetLength(), 4ull);
    QCOMPARE(file.GetPosition(), 4ull);
    file.Close();
    QCOMPARE(file.GetLength(), 4ull);
    QCOMPARE(file.GetPosition(), 0ull);
}

void tst_CFile::flushReachesTheDisk()
{
    const Folder folder;
    CFile file(folder.name("file").c_str(), CFile::modeWrite);
    file.Write("0123", 4);
    QCOMPARE(folder.content("file"), QByteArray());
    file.Flush();
    QCOMPARE(folder.content("file"), QByteArray("0123"));
}

void tst_CFile::closeReachesTheDisk()
{
    const Folder folder;
    CFile file(folder.name("file").c_str(), CFile::modeWrite);
    file.Write("0123", 4);
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("0123"));
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("0123"));
}

void tst_CFile::destructorReachesTheDisk()
{
    const Folder folder;
    {
        CFile file(folder.name("file").c_str(), CFile::modeWrite);
        file.Write("0123", 4);
    }
    QCOMPARE(folder.content("file"), QByteArray("0123"));
}

class CountingFile : public CFile
{
public:
    using CFile::CFile;
    void Close() override { ++closed; }
    static inline int closed = 0;
};

void tst_CFile::destructorPassesByOverrides()
{
    const Folder folder;
    {
        CountingFile file(folder.name("file").c_str(), CFile::modeWrite);
        file.Write("0123", 4);
        CFile &base = file;
        base.Close();
    }
    QCOMPARE(CountingFile::closed, 1);
    QCOMPARE(folder.content("file"), QByteArray("0123"));
}

void tst_CFile::opensAgain()
{
    const Folder folder;
    const std::wstring name = folder.name("file");
    CFile file(name.c_str(), CFile::modeWrite);
    file.Write("0123", 4);
    file.Close();
    char bytes[5] = {};
    QVERIFY(file.Open(name.c_str(), CFile::modeRead));
    QCOMPARE(file.Read(bytes, 4), 4u);
    QCOMPARE(QByteArray(bytes), QByteArray("0123"));
}

void tst_CFile::opensAnotherFileWithoutClose()
{
    const Folder folder;
    CFile file(folder.name("first").c_str(), CFile::modeWrite);
    file.Write("0123", 4);
    QVERIFY(file.Open(folder.name("second").c_str(), CFile::modeWrite));
    QCOMPARE(folder.content("first"), QByteArray("0123"));
    file.Write("45", 2);
    file.Flush();
    QCOMPARE(folder.content("second"), QByteArray("45"));
}

void tst_CFile::removes()
{
    const Folder folder;
    QVERIFY(folder.makeDirectory("dir"));
    const std::wstring name = folder.make("file");
    QVERIFY(CFile::Remove(name.c_str()));
    QCOMPARE(folder.content("file"), QByteArray("missing"));
    QVERIFY(!CFile::Remove(name.c_str()));
    QVERIFY(!CFile::Remove(folder.name("dir").c_str()));
    QVERIFY(!CFile::Remove(L""));
    QVERIFY(!CFile::Remove(nullptr));
}

void tst_CFile::finds_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("found");

    QTest::newRow("file") << QStringLiteral("/file.txt") << true;
    QTest::newRow("directory") << QStringLiteral("/dir") << true;
    QTest::newRow("missing") << QStringLiteral("/missing") << false;
    QTest::newRow("wildcard is taken literally") << QStringLiteral("/*.txt") << false;
    QTest::newRow("question mark is taken literally") << QStringLiteral("/file.tx?") << false;
    QTest::newRow("another case") << QStringLiteral("/FILE.TXT") << false;
}

void tst_CFile::finds()
{
    QFETCH(QString, name);
    QFETCH(bool, found);
    const Folder folder;
    folder.make("file.txt");
    QVERIFY(folder.makeDirectory("dir"));
    CFileFind find;
    QCOMPARE(bool(find.FindFile((folder.path(".") + name).toStdWString().c_str())), found);
    QVERIFY(!find.FindFile(nullptr, 0));
    QVERIFY(!find.FindFile(L"", 0));
}

void tst_CFile::constants()
{
    QCOMPARE(CFile::modeCreate | CFile::modeWrite | CFile::modeNoTruncate, 0x3001u);
    QCOMPARE(CFile::modeReadWrite | CFile::typeText | CFile::typeBinary, 0xC002u);
    QCOMPARE(unsigned(CFile::modeRead), 0u);
    QCOMPARE(CFile::shareExclusive | CFile::shareDenyNone, 0x50u);
    QCOMPARE(unsigned(CFile::shareDenyWrite), 0x20u);
    QCOMPARE(unsigned(CFile::shareDenyRead), 0x30u);
    QCOMPARE(unsigned(CFile::begin), 0u);
    QCOMPARE(unsigned(CFile::current), 1u);
    QCOMPARE(unsigned(CFile::end), 2u);
}

QTEST_GUILESS_MAIN(tst_CFile)
#include "tst_CFile.moc"
