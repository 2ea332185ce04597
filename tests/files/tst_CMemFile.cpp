#include "KxFiles.h"

#include <QtTest>

#include <cstdint>
#include <cstdlib>
#include <cstring>

class tst_CMemFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readCopiesFromTheStart_data();
    void readCopiesFromTheStart();
    void everyReadStartsAgain();
    void readOfNothing();
    void readIntoTheBlockItself();
    void blockIsNeitherCopiedNorOwned();
    void detachKeepsTheBlock();
    void throughAFileThereIsNoFile();
    void writeReplacesTheContent();
    void writeOfNothing();
    void writeWithoutDataChangesNothing();
    void detachHandsOutTheBlock();
    void detachKeepsTheSize();
    void detachWithoutABlock();
    void writesAgainAfterDetach();
    void destructionSparesWhatWasHandedOut();
    void sharedFileThroughAFileIsNoFile();
};

// What Read() leaves in a buffer of dots.
static QByteArray bytesRead(CMemFile &file, unsigned count)
{
    QByteArray bytes(8, '.');
    auto *dst = reinterpret_cast<unsigned char *>(bytes.data());
    return file.Read(dst, count) == dst ? bytes : QByteArrayLiteral("another address");
}

// Tells its block.
class OpenSharedFile : public CSharedFile
{
public:
    using CSharedFile::CSharedFile;
    unsigned char *block() const { return m_lpBuffer; }
};

static void write(CSharedFile &file, const QByteArray &content)
{
    QByteArray copy = content;
    file.Write(reinterpret_cast<unsigned char *>(copy.data()), unsigned(copy.size()));
}

static void release(HGLOBAL memory)
{
    std::free(static_cast<KxGlobalMemory *>(memory)->block);
    std::free(memory);
}

void tst_CMemFile::readCopiesFromTheStart_data()
{
    QTest::addColumn<unsigned>("count");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("none") << 0u << QByteArray("........");
    QTest::newRow("some") << 2u << QByteArray("ab......");
    QTest::newRow("all") << 4u << QByteArray("abcd....");
    QTest::newRow("one more than there are") << 5u << QByteArray("abcd....");
    QTest::newRow("most") << 0xFFFFFFFFu << QByteArray("abcd....");
}

void tst_CMemFile::readCopiesFromTheStart()
{
    QFETCH(unsigned, count);
    unsigned char block[] = {'a', 'b', 'c', 'd'};
    CMemFile file(block, sizeof block);
    QTEST(bytesRead(file, count), "bytes");
}

void tst_CMemFile::everyReadStartsAgain()
{
    unsigned char block[] = {'a', 'b', 'c', 'd'};
    CMemFile file(block, sizeof block);
    QCOMPARE(bytesRead(file, 3), QByteArray("abc....."));
    QCOMPARE(bytesRead(file, 3), QByteArray("abc....."));
    QCOMPARE(file.GetPosition(), 0ull);
}

void tst_CMemFile::readOfNothing()
{
    unsigned char block[] = {'a'};
    CMemFile without(nullptr, 4);
    CMemFile empty(block, 0);
    QCOMPARE(bytesRead(without, 4), QByteArray("........"));
    QCOMPARE(bytesRead(empty, 4), QByteArray("........"));
    QCOMPARE(CMemFile(block, 1).Read(nullptr, 1), static_cast<unsigned char *>(nullptr));
}

void tst_CMemFile::readIntoTheBlockItself()
{
    unsigned char block[] = {'a', 'b', 'c', 'd'};
    CMemFile file(block, 3);
    file.Read(block + 1, 3);
    QCOMPARE(QByteArray(reinterpret_cast<char *>(block), 4), QByteArray("aabc"));
}

void tst_CMemFile::blockIsNeitherCopiedNorOwned()
{
    unsigned char block[] = {'a', 'b'};
    {
        CMemFile file(block, sizeof block);
        block[0] = 'x';
        QCOMPARE(bytesRead(file, 2), QByteArray("xb......"));
    }
    QCOMPARE(block[1], static_cast<unsigned char>('b'));
}

void tst_CMemFile::detachKeepsTheBlock()
{
    unsigned char block[] = {'a', 'b'};
    CMemFile file(block, sizeof block);
    QVERIFY(!file.Detach());
    QCOMPARE(bytesRead(file, 2), QByteArray("ab......"));
}

void tst_CMemFile::throughAFileThereIsNoFile()
{
    unsigned char block[] = {'a', 'b'};
    CMemFile memory(block, sizeof block);
    CFile &file = memory;
    unsigned char byte = 'x';
    QCOMPARE(file.m_hFile, INVALID_HANDLE_VALUE);
    QCOMPARE(file.Read(&byte, 1), 0xFFFFFFFFu);
    QCOMPARE(file.Write(&byte, 1), 0xFFFFFFFFu);
    QCOMPARE(file.GetLength(), 0ull);
    QCOMPARE(byte, static_cast<unsigned char>('x'));
    QCOMPARE(block[0], static_cast<unsigned char>('a'));
}

void tst_CMemFile::writeReplacesTheContent()
{
    OpenSharedFile file(0);
    QCOMPARE(bytesRead(file, 8), QByteArray("........"));
    write(file, "first");
    QCOMPARE(bytesRead(file, 8), QByteArray("first..."));
    unsigned char *former = file.block();
    write(file, "2nd");
    QCOMPARE(bytesRead(file, 8), QByteArray("2nd....."));
    // Still there for whoever kept its address.
    QCOMPARE(std::memcmp(former, "first", 5), 0);
    std::free(former);
}

void tst_CMemFile::writeOfNothing()
{
    OpenSharedFile file;
    write(file, "first");
    unsigned char *former = file.block();
    file.Write(nullptr, 0);
    std::free(former);
    QCOMPARE(bytesRead(file, 8), QByteArray("........"));
    HGLOBAL memory = file.Detach();
    QCOMPARE(static_cast<KxGlobalMemory *>(memory)->size, std::uint64_t{0});
    release(memory);
}

void tst_CMemFile::writeWithoutDataChangesNothing()
{
    CSharedFile file;
    write(file, "first");
    file.Write(nullptr, 3);
    QCOMPARE(bytesRead(file, 8), QByteArray("first..."));
}

void tst_CMemFile::detachHandsOutTheBlock()
{
    CSharedFile file(0x2002);
    write(file, "content");
    HGLOBAL memory = file.Detach();

    std::uint64_t words[3];
    std::memcpy(words, memory, sizeof words);
    QCOMPARE(QByteArray(reinterpret_cast<char *>(words[0]), 7), QByteArray("content"));
    QCOMPARE(words[1], std::uint64_t{7});
    QCOMPARE(words[2], std::uint64_t{0});
    QCOMPARE(bytesRead(file, 8), QByteArray("........"));
    release(memory);
}

void tst_CMemFile::detachKeepsTheSize()
{
    CSharedFile file;
    write(file, "content");
    release(file.Detach());
    HGLOBAL second = file.Detach();
    QCOMPARE(static_cast<KxGlobalMemory *>(second)->block, static_cast<void *>(nullptr));
    QCOMPARE(static_cast<KxGlobalMemory *>(second)->size, std::uint64_t{7});
    release(second);
}

void tst_CMemFile::detachWithoutABlock()
{
    CSharedFile file;
    HGLOBAL memory = file.Detach();
    QVERIFY(memory);
    QCOMPARE(static_cast<KxGlobalMemory *>(memory)->block, static_cast<void *>(nullptr));
    QCOMPARE(static_cast<KxGlobalMemory *>(memory)->size, std::uint64_t{0});
    QCOMPARE(static_cast<KxGlobalMemory *>(memory)->zero, std::uint64_t{0});
    release(memory);
}

void tst_CMemFile::writesAgainAfterDetach()
{
    CSharedFile file;
    write(file, "first");
    HGLOBAL first = file.Detach();
    write(file, "2nd");
    QCOMPARE(bytesRead(file, 8), QByteArray("2nd....."));
    QCOMPARE(std::memcmp(static_cast<KxGlobalMemory *>(first)->block, "first", 5), 0);
    release(first);
}

void tst_CMemFile::destructionSparesWhatWasHandedOut()
{
    HGLOBAL memory = nullptr;
    {
        CSharedFile file;
        write(file, "content");
        memory = file.Detach();
    }
    QCOMPARE(std::memcmp(static_cast<KxGlobalMemory *>(memory)->block, "content", 7), 0);
    release(memory);
}

void tst_CMemFile::sharedFileThroughAFileIsNoFile()
{
    CSharedFile shared;
    write(shared, "content");
    CFile &file = shared;
    QCOMPARE(file.Write("other", 5), 0xFFFFFFFFu);
    QCOMPARE(bytesRead(shared, 8), QByteArray("content."));
}

QTEST_GUILESS_MAIN(tst_CMemFile)
#include "tst_CMemFile.moc"
