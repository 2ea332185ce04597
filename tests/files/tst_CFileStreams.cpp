#include "Folder.h"
#include "KxFiles.h"

#include <KxPlatform.h>
#include <QtTest>

#include <cstdio>

/// Files on C streams.
class tst_CFileStreams : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storesTheStream();
    void readsAndWrites();
    void startsAtThePositionOfTheStream();
    void closeLeavesTheStreamOpen();
    void destructorLeavesTheStreamOpen();
    void lengthAfterTheStreamHasGone();
    void opensANamedFileAfterwards();
    void hasNoStatus();
    void withoutAStream_data();
    void withoutAStream();
    void readOnlyStream();
    void pipe();
};

static HANDLE openStream(const std::wstring &name, DWORD access = GENERIC_READ | GENERIC_WRITE)
{
    return CreateFileW(name.c_str(), access, 0, nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

void tst_CFileStreams::storesTheStream()
{
    const Folder folder;
    HANDLE stream = openStream(folder.make("file", "before"));
    {
        CFile file(stream);
        QCOMPARE(file.m_hFile, stream);
        QCOMPARE(file.GetLength(), 6ull);
        file.Close();
        QCOMPARE(file.m_hFile, INVALID_HANDLE_VALUE);
    }
    QVERIFY(CloseHandle(stream));
}

void tst_CFileStreams::readsAndWrites()
{
    const Folder folder;
    HANDLE stream = openStream(folder.make("file", "before"));
    {
        CFile file(stream);
        char bytes[7] = {};
        QCOMPARE(file.Read(bytes, 6), 6u);
        QCOMPARE(QByteArray(bytes), QByteArray("before"));
        QCOMPARE(file.Seek(2, CFile::begin), 2ull);
        QCOMPARE(file.Write("XY", 2), 2u);
        file.Flush();
        QCOMPARE(folder.content("file"), QByteArray("beXYre"));
    }
    QVERIFY(CloseHandle(stream));
}

void tst_CFileStreams::startsAtThePositionOfTheStream()
{
    const Folder folder;
    HANDLE stream = openStream(folder.make("file", "before"));
    std::fseek(static_cast<FILE *>(stream), 3, SEEK_SET);
    {
        CFile file(stream);
        char byte = '.';
        QCOMPARE(file.GetPosition(), 3ull);
        QCOMPARE(file.Read(&byte, 1), 1u);
        QCOMPARE(byte, 'o');
    }
    QVERIFY(CloseHandle(stream));
}

void tst_CFileStreams::closeLeavesTheStreamOpen()
{
    const Folder folder;
    HANDLE stream = openStream(folder.name("file"));
    CFile file(stream);
    file.Write("01", 2);
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("01"));
    QCOMPARE(std::fputs("23", static_cast<FILE *>(stream)) >= 0, true);
    QVERIFY(CloseHandle(stream));
    QCOMPARE(folder.content("file"), QByteArray("0123"));
}

void tst_CFileStreams::destructorLeavesTheStreamOpen()
{
    const Folder folder;
    HANDLE stream = openStream(folder.name("file"));
    {
        CFile file(stream);
        file.Write("01", 2);
    }
    QCOMPARE(folder.content("file"), QByteArray("01"));
    QVERIFY(CloseHandle(stream));
}

void tst_CFileStreams::lengthAfterTheStreamHasGone()
{
    const Folder folder;
    HANDLE stream = openStream(folder.make("file", "before"));
    CFile file(stream);
    file.Close();
    QVERIFY(CloseHandle(stream));
    QCOMPARE(file.GetLength(), 0ull);
    QCOMPARE(file.GetPosition(), 0ull);
    file.Flush();
    file.Close();
}

void tst_CFileStreams::opensANamedFileAfterwards()
{
    const Folder folder;
    HANDLE stream = openStream(folder.make("file", "before"));
    CFile file(stream);
    QVERIFY(file.Open(folder.make("other", "0123").c_str(), CFile::modeRead));
    QVERIFY(CloseHandle(stream));
    QCOMPARE(file.GetLength(), 4ull);
    QVERIFY(file.m_hFile != stream);
}

void tst_CFileStreams::hasNoStatus()
{
    const Folder folder;
    HANDLE stream = openStream(folder.make("file", "before"));
    {
        const CFile file(stream);
        CFileStatus status;
        QVERIFY(!file.GetStatus(status));
    }
    QVERIFY(CloseHandle(stream));
}

void tst_CFileStreams::withoutAStream_data()
{
    QTest::addColumn<void *>("stream");

    QTest::newRow("null") << static_cast<void *>(nullptr);
    QTest::newRow("what a failed CreateFileW gives") << openStream(L"/missing/file");
}

void tst_CFileStreams::withoutAStream()
{
    QFETCH(void *, stream);
    CFile file(stream);
    char byte = '.';
    QCOMPARE(file.m_hFile, INVALID_HANDLE_VALUE);
    QCOMPARE(file.Read(&byte, 1), 0xFFFFFFFFu);
    QCOMPARE(file.Write(&byte, 1), 0xFFFFFFFFu);
    QCOMPARE(file.GetLength(), 0ull);
}

void tst_CFileStreams::readOnlyStream()
{
    const Folder folder;
    HANDLE stream = openStream(folder.make("file", "before"), GENERIC_READ);
    {
        CFile file(stream);
        char byte = '.';
        QCOMPARE(file.Read(&byte, 1), 1u);
        const QByteArray large(100000, 'x');
        QCOMPARE(file.Write(large.constData(), unsigned(large.size())), 0xFFFFFFFFu);
    }
    QVERIFY(CloseHandle(stream));
    QCOMPARE(folder.content("file"), QByteArray("before"));
}

void tst_CFileStreams::pipe()
{
    FILE *stream = popen("printf 0123", "r");
    QVERIFY(stream);
    {
        CFile file(stream);
        char bytes[5] = {};
        QCOMPARE(file.Seek(2, CFile::begin), 0ull);
        QVERIFY(!file.SeekToBegin());
        QCOMPARE(file.Read(bytes, 4), 4u);
        QCOMPARE(QByteArray(bytes), QByteArray("0123"));
    }
    QCOMPARE(pclose(stream), 0);
}

QTEST_GUILESS_MAIN(tst_CFileStreams)
#include "tst_CFileStreams.moc"
