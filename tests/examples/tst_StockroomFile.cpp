#include "StockItems.h"

#include "StockClipboard.h"
#include "StockFile.h"

#include "Folder.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTextCodec>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>

namespace {

QString filesIn(const Folder &folder)
{
    return QDir(folder.path("")).entryList(QDir::Files | QDir::Hidden).join(QLatin1Char(' '));
}

QByteArray lineOf(const char *number)
{
    return toQt(CStockFile::FormatLine(makeItem(CString(number)), Stock())).toLatin1();
}

/// Makes files of this process end at a size, as on a disk that is full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t size)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit = {size, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_former = {};
    void (*m_handler)(int);
};

} // namespace

/// The file of the example, and what it copies and pastes.
class tst_StockroomFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void linesKeepEverything();
    void refusesLines_data();
    void refusesLines();
    void filesKeepEverything_data();
    void filesKeepEverything();
    void importsEditedFiles_data();
    void importsEditedFiles();
    void refusesFiles_data();
    void refusesFiles();
    void replacesFiles();
    void keepsFormerFile();
    void refusesToWrite_data();
    void refusesToWrite();
    void tellsProgress();

    void clipboardIsEmptyAtFirst();
    void pastesCopies();
    void copiesText();

private:
    Folder m_folder;
};

void tst_StockroomFile::init()
{
    // It lacks most characters.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
}

void tst_StockroomFile::linesKeepEverything()
{
    const Stock stock;
    for (const CStockItem &item : {makeItem(_T("1")), extremeItem()}) {
        const CString line = CStockFile::FormatLine(item, stock);
        for (const wchar_t character : line)
            QVERIFY(character == '\t' || (character >= ' ' && character <= '~'));
        CStockItem read = makeItem(_T("other"), Rack, _T("other"), _T("other"));
        QVERIFY(CStockFile::ParseLine(line, stock, read));
        QVERIFY(same(read, item));
    }
}

void tst_StockroomFile::refusesLines_data()
{
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("text");

    const QString note81(81, u'x');
    QTest::newRow("backslash alone") << 0 << "\\";
    QTest::newRow("unfinished code") << 0 << "\\41";
    QTest::newRow("no code") << 0 << "\\x;";
    QTest::newRow("code 0") << 0 << "\\0;";
    QTest::newRow("code of 33 bits") << 0 << "\\100000000;";
    QTest::newRow("negative code") << 0 << "\\-41;";
    QTest::newRow("space in code") << 0 << "\\ 41;";
    QTest::newRow("long note") << 2 << note81;
    QTest::newRow("unknown room") << 3 << "Attic";
    QTest::newRow("no room") << 3 << "";
    QTest::newRow("category below 0") << 4 << "-1";
    QTest::newRow("category above 7") << 4 << "8";
    QTest::newRow("shelf of 9 bits") << 7 << "256";
    QTest::newRow("no number") << 7 << "";
    QTest::newRow("space before") << 7 << " 1";
    QTest::newRow("space behind") << 7 << "1 ";
    QTest::newRow("other digits") << 7 << QStringLiteral("１");
    QTest::newRow("temperature of 17 bits") << 8 << "32768";
    QTest::newRow("quantity of 33 bits") << 9 << "2147483648";
    QTest::newRow("fraction") << 9 << "1.5";
    QTest::newRow("negative reorder") << 10 << "-1";
    QTest::newRow("batch of 65 bits") << 11 << "9223372036854775808";
    QTest::newRow("endless batch") << 11 << QString(40, u'0');
    QTest::newRow("negative serial") << 12 << "-1";
    QTest::newRow("decimal comma") << 13 << "1,5";
    QTest::newRow("no finite weight") << 13 << "inf";
    QTest::newRow("price is no number") << 14 << "nan";
    QTest::newRow("price too large") << 14 << "1e999";
    QTest::newRow("state below 0") << 15 << "-1";
    QTest::newRow("state above 2") << 15 << "3";
    QTest::newRow("fragile is 2") << 16 << "2";
    QTest::newRow("hazardous is -1") << 17 << "-1";
    QTest::newRow("level below 0") << 18 << "-1";
    QTest::newRow("level above 100") << 18 << "101";
    QTest::newRow("another field") << 18 << "1\t";
}

void tst_StockroomFile::refusesLines()
{
    QFETCH(int, field);
    QFETCH(QString, text);
    const Stock stock;
    const CStockItem before = makeItem(_T("before"));
    CStockItem item = before;
    QStringList fields = toQt(CStockFile::FormatLine(extremeItem(), stock)).split(QLatin1Char('\t'));
    QCOMPARE(fields.size(), 19);
    fields[field] = text;
    QVERIFY(!CStockFile::ParseLine(toText(fields.join(QLatin1Char('\t'))), stock, item));
    fields.removeAt(field);
    QVERIFY(!CStockFile::ParseLine(toText(fields.join(QLatin1Char('\t'))), stock, item));
    QVERIFY(!CStockFile::ParseLine(_T(""), stock, item));
    QVERIFY(same(item, before));
}

void tst_StockroomFile::filesKeepEverything_data()
{
    QTest::addColumn<QByteArray>("codec");
    for (const char *codec : {"US-ASCII", "ISO-8859-1", "UTF-8"})
        QTest::newRow(codec) << QByteArray(codec);
}

void tst_StockroomFile::filesKeepEverything()
{
    QFETCH(QByteArray, codec);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(codec));
    const Folder folder;
    Stock stock;
    stock.AddItem(extremeItem());
    stock.AddItem(makeItem(_T("2"), Rack));

    CStockFile file;
    file.m_strError = _T("before");
    QCOMPARE(file.Export(Items(stock), stock, folder.name("stock.stk").c_str()), 2);
    QVERIFY(file.m_strError.IsEmpty());
    Stock read;
    QCOMPARE(file.Import(read, folder.name("stock.stk").c_str()), 2);
    QCOMPARE(file.m_nSkipped, 0);
    QVERIFY(file.m_strError.IsEmpty());
    QVERIFY(same(*read.GetItem(0), *stock.GetItem(0)));
    QVERIFY(same(*read.GetItem(1), *stock.GetItem(1)));
}

void tst_StockroomFile::importsEditedFiles_data()
{
    const QByteArray a = lineOf("A");
    const QByteArray b = lineOf("B");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("numbers");
    QTest::addColumn<int>("skipped");

    QTest::newRow("as written") << "Stockroom 1\n" + a + '\n' + b + '\n' << "taken A B" << 0;
    QTest::newRow("no items") << QByteArray("Stockroom 1\n") << "taken" << 0;
    QTest::newRow("no line end at all") << QByteArray("Stockroom 1") << "taken" << 0;
    QTest::newRow("no last line end") << "Stockroom 1\n" + a << "taken A" << 0;
    QTest::newRow("Windows line ends") << "Stockroom 1\r\n" + a + "\r\n" + b + "\r\n"
                                       << "taken A B" << 0;
    QTest::newRow("byte order mark") << "\xEF\xBB\xBFStockroom 1\n" + a << "taken A" << 0;
    QTest::newRow("empty lines") << "Stockroom 1\n\n" + a + "\n\n\n" + b + "\n\n"
                                 << "taken A B" << 0;
    QTest::newRow("bad lines") << "Stockroom 1\n?\n" + a + "\tmore\n" + b + "\nx"
                               << "taken B" << 3;
    QTest::newRow("cut off") << "Stockroom 1\n" + a + '\n' + b.left(30) << "taken A" << 1;
    QTest::newRow("number twice") << "Stockroom 1\n" + a + '\n' + a << "taken A" << 1;
    QTest::newRow("number in stock") << "Stockroom 1\n" + lineOf("taken") + '\n' + b << "taken B" << 1;
    QTest::newRow("no number") << "Stockroom 1\n" + lineOf("") + '\n' + b << "taken B" << 1;
    QTest::newRow("several blocks") << "Stockroom 1\n" + QByteArray(200000, '\n') + a << "taken A" << 0;
}

void tst_StockroomFile::importsEditedFiles()
{
    QFETCH(QByteArray, content);
    const Folder folder;
    Stock stock;
    stock.AddItem(makeItem(_T("taken")));

    CStockFile file;
    const int added = file.Import(stock, folder.make("stock.stk", content).c_str());
    QTEST(numbersIn(stock), "numbers");
    QCOMPARE(added, stock.GetItemCount() - 1);
    QTEST(file.m_nSkipped, "skipped");
    QVERIFY(file.m_strError.IsEmpty());
    QCOMPARE(folder.content("stock.stk"), content);
}

void tst_StockroomFile::refusesFiles_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("error");

    const QString foreign = QStringLiteral("The file %1 holds no stock of this program.");
    const auto contentRow = [&](const char *row, const QByteArray &content) {
        QTest::newRow(row) << toQt(m_folder.make(row, content).c_str())
                           << foreign.arg(toQt(m_folder.name(row).c_str()));
    };
    contentRow("empty", "");
    contentRow("text", "Hello\nStockroom 1\n");
    contentRow("other case", "stockroom 1\n");
    contentRow("later form", "Stockroom 12\n");
    contentRow("cut off", "Stockroom");
    contentRow("16 bits", QByteArray("\xFF\xFES\0t\0o\0c\0k\0", 12));
    contentRow("coloned: name", "");
    QTest::newRow("missing") << "/nowhere/stock.stk"
                             << "There is no file /nowhere/stock.stk.";
    QTest::newRow("long name") << QStringLiteral("/nowhere/%1/stock.stk").arg(QString(50, u'x'))
                               << "There is no file .../stock.stk.";
    QTest::newRow("no name") << ""
                             << "There is no file .";
    QTest::newRow("folder") << "/usr/lib"
                            << "The file /usr/lib cannot be read.";
    QTest::newRow("read error") << "/proc/self/mem"
                                << "The file /proc/self/mem cannot be read.";
}

void tst_StockroomFile::refusesFiles()
{
    QFETCH(QString, path);
    Stock stock;
    CStockFile file;
    file.m_nSkipped = 7;
    QCOMPARE(file.Import(stock, toText(path)), -1);
    QTEST(toQt(file.m_strError), "error");
    QCOMPARE(file.m_nSkipped, 0);
    QCOMPARE(stock.GetItemCount(), 0);
}

void tst_StockroomFile::replacesFiles()
{
    const Folder folder;
    Stock stock;
    stock.AddItem(makeItem(_T("A")));
    folder.make("stock.stk", QByteArray(10000, 'x'));
    folder.make("stock.stk~", "kept");

    CStockFile file;
    QCOMPARE(file.Export(Items(stock), stock, folder.name("stock.stk").c_str()), 1);
    QCOMPARE(folder.content("stock.stk"), "Stockroom 1\n" + lineOf("A") + '\n');
    QCOMPARE(folder.content("stock.stk~"), QByteArray("kept"));
    QCOMPARE(file.Export(CPtrArray(), stock, folder.name("stock.stk").c_str()), 0);
    QCOMPARE(folder.content("stock.stk"), QByteArray("Stockroom 1\n"));
    QCOMPARE(filesIn(folder), QStringLiteral("stock.stk stock.stk~"));
}

void tst_StockroomFile::keepsFormerFile()
{
    const Folder folder;
    folder.make("stock.stk", "former");
    Stock stock;
    for (int i = 0; i < 1000; i++)
        stock.AddItem(makeItem(toText(QString::number(i))));

    CStockFile file;
    const CString path = folder.name("stock.stk");
    const FullDisk full(5000);
    QCOMPARE(file.Export(Items(stock), stock, path), -1);
    QCOMPARE(toQt(file.m_strError), QStringLiteral("The file %1 cannot be written.").arg(toQt(path)));
    QCOMPARE(folder.content("stock.stk"), QByteArray("former"));
    QCOMPARE(filesIn(folder), QStringLiteral("stock.stk"));
}

void tst_StockroomFile::refusesToWrite_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("in no folder") << "/nowhere/stock.stk";
    QTest::newRow("folder") << ".";
    QTest::newRow("no name") << "";
}

void tst_StockroomFile::refusesToWrite()
{
    QFETCH(QString, path);
    const Stock stock;
    CStockFile file;
    const Folder folder;
    QVERIFY(QDir::setCurrent(folder.path("")));
    QCOMPARE(file.Export(CPtrArray(), stock, toText(path)), -1);
    QVERIFY(!file.m_strError.IsEmpty());
    QCOMPARE(file.Export(CPtrArray(), stock, nullptr), -1);
    QCOMPARE(filesIn(folder), QString());
    QDir::setCurrent(QDir::rootPath());
}

void tst_StockroomFile::tellsProgress()
{
    const Folder folder;
    Stock stock;
    stock.MakeSample(1100);
    CStockFile file;
    Progress writing;
    file.Export(Items(stock), stock, folder.name("stock.stk").c_str(), &writing);
    QVERIFY(writing.isComplete(1100));

    Progress reading;
    stock.RemoveItems();
    QCOMPARE(file.Import(stock, folder.name("stock.stk").c_str(), &reading), 1100);
    QVERIFY(reading.isComplete(1102)); // lines, with the first one and the nothing behind the last one
}

void tst_StockroomFile::clipboardIsEmptyAtFirst()
{
    Stock stock;
    CPtrArray added;
    CopyItems(CPtrArray(), stock);
    QVERIFY(!CanPasteItems());
    QVERIFY(!PasteItems(stock, Hall, added));
    QCOMPARE(stock.GetItemCount(), 0);
}

void tst_StockroomFile::pastesCopies()
{
    Stock stock;
    stock.AddItem(makeItem(_T("other"), Rack));
    CopyItems(Items(stock), stock);
    stock.RemoveItems();
    stock.AddItem(extremeItem());
    stock.AddItem(makeItem(_T("A-1")));
    CopyItems(Items(stock), stock);
    CopyItems(CPtrArray(), stock);
    QVERIFY(CanPasteItems());

    CPtrArray added;
    added.Add(nullptr);
    QVERIFY(PasteItems(stock, Rack, added));
    QCOMPARE(added.GetSize(), 3);
    QCOMPARE(stock.GetItemCount(), 4);
    CStockItem expected = extremeItem();
    expected.m_strNumber += _T("-2");
    expected.m_nRoom = Rack;
    QCOMPARE(added[1], stock.GetItem(2));
    QVERIFY(same(*stock.GetItem(2), expected));
    QCOMPARE(toQt(stock.GetItem(3)->m_strNumber), QStringLiteral("A-2"));

    QVERIFY(!PasteItems(stock, NO_ROOM, added));
    QCOMPARE(added.GetSize(), 3);
    QCOMPARE(stock.GetItemCount(), 4);
    QVERIFY(PasteItems(stock, Rack, added));
    QCOMPARE(stock.GetItemCount(), 6);

    CStock other;
    QVERIFY(!PasteItems(other, other.AddRoom(_T("Attic"), NO_ROOM), added));
    QCOMPARE(other.GetItemCount(), 0);
}

void tst_StockroomFile::copiesText()
{
    Stock stock;
    CStockItem item = makeItem(_T("A-1"), Office, _T("a\tb\nc"), _T("Ж \\"));
    item.m_nQuantity = 3;
    item.m_strUnit = _T("kg");
    item.m_dPrice = 2.345;
    stock.AddItem(item);
    stock.AddItem(makeItem(_T("A-2")));
    CopyItems(Items(stock), stock);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("A-1\ta b c\tBüro\tRaw materials\t3\tkg\t2.35\tЖ \\\n"
                            "A-2\tBolt\tHall\tRaw materials\t0\t\t0.00\t\n"));
}

QTEST_MAIN(tst_StockroomFile)
#include "tst_StockroomFile.moc"
