#include "Folder.h"
#include "KxFiles.h"
#include "Unprivileged.h"

#include <QTextCodec>
#include <QtTest>

#include <sys/stat.h>

class tst_CFileFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); }
    void closedFile_data();
    void closedFile();
    void otherDirection();
    void missingBuffer();
    void namesThatCannotBeOpened_data();
    void namesThatCannotBeOpened();
    void failedOpenClosesTheFormerFile();
    void openWithoutANameChangesNothing();
    void permissions();
    void readOnlyDirectory();
    void nameThatTheLocaleCannotExpress();
    void nameOnDiskThatIsNotText();
    void nameOfCharactersThatDoNotExist();
    void fileRemovedWhileOpen();
    void fileShortenedWhileOpen();
};

enum State { NeverOpened, Closed, FailedToOpen };
Q_DECLARE_METATYPE(State)

static void bringTo(State state, CFile &file, const Folder &folder)
{
    if (state == NeverOpened)
        return;
    if (state == Closed)
        file.Open(folder.make("file", "before").c_str(), CFile::modeReadWrite);
    file.Close();
    if (state == FailedToOpen)
        file.Open(folder.name("missing").c_str(), CFile::modeRead);
}

void tst_CFileFailures::closedFile_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<qulonglong>("length");

    QTest::newRow("never opened") << NeverOpened << 0ull;
    QTest::newRow("closed") << Closed << 6ull;
    QTest::newRow("failed to open") << FailedToOpen << 0ull;
}

void tst_CFileFailures::closedFile()
{
    QFETCH(State, state);
    const Folder folder;
    CFile file;
    bringTo(state, file, folder);

    char byte = '.';
    file.Flush();
    QCOMPARE(file.m_hFile, INVALID_HANDLE_VALUE);
    QCOMPARE(file.Read(&byte, 1), 0xFFFFFFFFu);
    QCOMPARE(file.Write(&byte, 1), 0xFFFFFFFFu);
    QCOMPARE(byte, '.');
    QCOMPARE(file.Seek(3, CFile::begin), 0ull);
    QVERIFY(!file.SeekToBegin());
    QCOMPARE(file.GetPosition(), 0ull);
    QTEST(qulonglong{file.GetLength()}, "length");
    file.Close();
}

void tst_CFileFailures::otherDirection()
{
    const Folder folder;
    char byte = '.';
    CFile reader(folder.make("file", "before").c_str(), CFile::modeRead);
    QCOMPARE(reader.Write("x", 1), 0xFFFFFFFFu);
    reader.Close();
    QCOMPARE(folder.content("file"), QByteArray("before"));

    CFile writer(folder.name("file").c_str(), CFile::modeWrite);
    writer.Write("after", 5);
    writer.SeekToBegin();
    QCOMPARE(writer.Read(&byte, 1), 0xFFFFFFFFu);
    QCOMPARE(byte, '.');
}

void tst_CFileFailures::missingBuffer()
{
    const Folder folder;
    CFile file(folder.make("file", "before").c_str(), CFile::modeReadWrite);
    QCOMPARE(file.Read(nullptr, 3), 0xFFFFFFFFu);
    QCOMPARE(file.GetPosition(), 0ull);
    QCOMPARE(file.Write(nullptr, 3), 0xFFFFFFFFu);
    QCOMPARE(file.Write(nullptr, 0), 0u);
    QCOMPARE(file.GetPosition(), 0ull);
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("before"));
}

void tst_CFileFailures::namesThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("directory") << QStringLiteral("/dir");
    QTest::newRow("in a missing directory") << QStringLiteral("/missing/file");
    QTest::newRow("below a file") << QStringLiteral("/file/file");
    QTest::newRow("ends in a slash") << QStringLiteral("/file/");
    QTest::newRow("component of 256 bytes") << QStringLiteral("/") + QString(256, QLatin1Char('n'));
    QTest::newRow("path of 5000 bytes") << QStringLiteral("/.").repeated(2500) + QStringLiteral("/file");
}

void tst_CFileFailures::namesThatCannotBeOpened()
{
    QFETCH(QString, name);
    const Folder folder;
    folder.make("file", "before");
    QVERIFY(folder.makeDirectory("dir"));
    const std::wstring path = (folder.path(".") + name).toStdWString();
    for (const unsigned flags : {0x0000u, 0x0001u, 0x0002u, 0x0003u, 0x4001u, 0x3001u}) {
        CFile file;
        QVERIFY(!file.Open(path.c_str(), flags));
        QCOMPARE(file.m_hFile, INVALID_HANDLE_VALUE);
    }
    QCOMPARE(folder.content("file"), QByteArray("before"));
}

void tst_CFileFailures::failedOpenClosesTheFormerFile()
{
    const Folder folder;
    for (const std::wstring &other : {folder.name("missing/file"), std::wstring()}) {
        CFile file(folder.name("file").c_str(), CFile::modeWrite);
        file.Write("0123", 4);
        QVERIFY(!file.Open(other.c_str(), CFile::modeWrite));
        QCOMPARE(file.m_hFile, INVALID_HANDLE_VALUE);
        QCOMPARE(file.Write("4", 1), 0xFFFFFFFFu);
        QCOMPARE(folder.content("file"), QByteArray("0123"));
    }
}

void tst_CFileFailures::openWithoutANameChangesNothing()
{
    const Folder folder;
    CFile file(folder.name("file").c_str(), CFile::modeWrite);
    file.Write("0123", 4);
    QVERIFY(!file.Open(nullptr, CFile::modeRead));
    QVERIFY(file.m_hFile != INVALID_HANDLE_VALUE);
    QCOMPARE(file.Write("45", 2), 2u);
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("012345"));
    QCOMPARE(CFile(static_cast<const wchar_t *>(nullptr), 0).m_hFile, INVALID_HANDLE_VALUE);
}

void tst_CFileFailures::permissions()
{
    const Folder folder;
    const std::wstring name = folder.make("file", "before");
    chmod(QFile::encodeName(folder.path(".")), 0777);
    chmod(QFile::encodeName(folder.path("file")), 0444);
    const Unprivileged unprivileged;
    if (!unprivileged.permissionsBind()) {
        // QSKIP() is not pedantic C++17.
        QTest::qSkip("the superuser's rights cannot be given up here", __FILE__, __LINE__);
        return;
    }

    CFile file;
    QVERIFY(!file.Open(name.c_str(), CFile::modeWrite));
    QVERIFY(!file.Open(name.c_str(), CFile::modeReadWrite));
    QVERIFY(file.Open(name.c_str(), CFile::modeRead));
    QCOMPARE(folder.content("file"), QByteArray("before"));
}

void tst_CFileFailures::readOnlyDirectory()
{
    const Folder folder;
    QVERIFY(folder.makeDirectory("dir"));
    const std::wstring name = folder.make("dir/file", "before");
    chmod(QFile::encodeName(folder.path(".")), 0777);
    chmod(QFile::encodeName(folder.path("dir")), 0555);
    {
        const Unprivileged unprivileged;
        if (!unprivileged.permissionsBind()) {
            QTest::qSkip("the superuser's rights cannot be given up here", __FILE__, __LINE__);
            return;
        }
        QVERIFY(!CFile().Open(folder.name("dir/new").c_str(), CFile::modeWrite | CFile::modeCreate));
        QVERIFY(!CFile::Remove(name.c_str()));
        QVERIFY(CFile().Open(name.c_str(), CFile::modeRead));
    }
    chmod(QFile::encodeName(folder.path("dir")), 0777);
    QCOMPARE(folder.content("dir/file"), QByteArray("before"));
}

void tst_CFileFailures::nameThatTheLocaleCannotExpress()
{
    const Folder folder;
    const std::wstring name = folder.name("name") + L"\u20AC";
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    CFile file(name.c_str(), CFile::modeWrite);
    QVERIFY(file.m_hFile != INVALID_HANDLE_VALUE);
    file.Write("0123", 4);
    file.Close();
    // Qt's replacement character, whatever it is, stands for the one that is not there.
    QCOMPARE(QDir(folder.path(".")).entryList(QDir::Files | QDir::Hidden).size(), 1);
    QVERIFY(file.Open(name.c_str(), CFile::modeRead));
    QCOMPARE(file.GetLength(), 4ull);
}

void tst_CFileFailures::nameOnDiskThatIsNotText()
{
    const Folder folder;
    const QByteArray bytes = QFile::encodeName(folder.path("name")) + "\xFF";
    FILE *stream = std::fopen(bytes.constData(), "w");
    QVERIFY(stream);
    std::fclose(stream);

    const std::wstring name = QFile::decodeName(bytes).toStdWString();
    QVERIFY(!CFile().Open(name.c_str(), CFile::modeRead));
    QVERIFY(!CFile::Remove(name.c_str()));
    CFileStatus status;
    QVERIFY(!CFile::GetStatus(name.c_str(), status));
    QCOMPARE(::remove(bytes.constData()), 0);
}

void tst_CFileFailures::nameOfCharactersThatDoNotExist()
{
    const Folder folder;
    const std::wstring name = folder.name("name") + wchar_t(0x110000) + wchar_t(0x7FFFFFFF) + wchar_t(0xD800);
    QVERIFY(!CFile().Open(name.c_str(), CFile::modeRead));
    QVERIFY(!CFileFind().FindFile(name.c_str()));
    QVERIFY(!CFile::Remove(name.c_str()));
}

void tst_CFileFailures::fileRemovedWhileOpen()
{
    const Folder folder;
    CFile file(folder.make("file", "before").c_str(), CFile::modeReadWrite);
    QVERIFY(CFile::Remove(folder.name("file").c_str()));

    char bytes[7] = {};
    QCOMPARE(file.Read(bytes, 6), 6u);
    QCOMPARE(QByteArray(bytes), QByteArray("before"));
    QCOMPARE(file.Write("more", 4), 4u);
    file.Flush();
    QCOMPARE(file.GetLength(), 10ull);
    file.Close();
    QCOMPARE(folder.content("file"), QByteArray("missing"));
    QCOMPARE(file.GetLength(), 0ull);
}

void tst_CFileFailures::fileShortenedWhileOpen()
{
    const Folder folder;
    CFile file(folder.make("file", "before").c_str(), CFile::modeRead);
    QVERIFY(QFile::resize(folder.path("file"), 2));
    char bytes[7] = {};
    QCOMPARE(file.GetLength(), 2ull);
    file.Seek(4, CFile::begin);
    QCOMPARE(file.Read(bytes, 6), 0u);
}

QTEST_GUILESS_MAIN(tst_CFileFailures)
#include "tst_CFileFailures.moc"
