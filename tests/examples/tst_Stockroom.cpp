#include "StockItems.h"

#include <QtTest>

#include <set>
#include <vector>

/// The rooms and items of the example.
class tst_Stockroom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void categoriesHaveNames();
    void addsRooms();
    void roomsLieInOneAnother_data();
    void roomsLieInOneAnother();
    void refusesItems_data();
    void refusesItems();
    void keepsItems();
    void changesItems();
    void removesItems();
    void removesManyItems();
    void givesFreeNumbers_data();
    void givesFreeNumbers();
    void finds_data();
    void finds();
    void countsItems();
    void countsTo65535();
    void makesSample();

    void tellsProgress();
};

void tst_Stockroom::categoriesHaveNames()
{
    const CStringArray &categories = CStock::GetCategories();
    QCOMPARE(categories.GetSize(), 8);
    QCOMPARE(toQt(categories[0]), QStringLiteral("Raw materials"));
    QCOMPARE(toQt(categories[7]), QStringLiteral("Office supplies"));
    QCOMPARE(&CStock::GetCategories(), &categories);
    QCOMPARE(categories.GetSize(), 8);
}

void tst_Stockroom::addsRooms()
{
    Stock stock;
    QCOMPARE(stock.AddRoom(_T("Attic"), Office, CRect(1, 2, 3, 4)), 4);
    QCOMPARE(toQt(stock.GetRoom(4).m_strName), QStringLiteral("Attic"));
    QCOMPARE(stock.GetRoom(4).m_nParent, int(Office));
    QVERIFY(stock.GetRoom(4).m_rcPlan == CRect(1, 2, 3, 4));
    QCOMPARE(stock.FindRoom(_T("Attic")), 4);
    QCOMPARE(stock.FindRoom(_T("attic")), NO_ROOM);

    QCOMPARE(stock.AddRoom(_T(""), NO_ROOM), NO_ROOM);
    QCOMPARE(stock.AddRoom(nullptr, NO_ROOM), NO_ROOM);
    QCOMPARE(stock.AddRoom(_T("Attic"), NO_ROOM), NO_ROOM);
    QCOMPARE(stock.AddRoom(_T("Cellar"), 5), NO_ROOM);
    QCOMPARE(stock.AddRoom(_T("Cellar"), -2), NO_ROOM);
    QCOMPARE(stock.GetRoomCount(), 5);
    QVERIFY(stock.GetRoom(5).m_strName.IsEmpty());
    QVERIFY(stock.GetRoom(NO_ROOM).m_strName.IsEmpty());
}

void tst_Stockroom::roomsLieInOneAnother_data()
{
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("outer");
    QTest::addColumn<bool>("lies");

    QTest::newRow("itself") << int(Rack) << int(Rack) << true;
    QTest::newRow("next") << int(Rack) << int(Hall) << true;
    QTest::newRow("outermost") << int(Rack) << int(Works) << true;
    QTest::newRow("everywhere") << int(Rack) << NO_ROOM << true;
    QTest::newRow("the other way") << int(Hall) << int(Rack) << false;
    QTest::newRow("neighbour") << int(Rack) << int(Office) << false;
    QTest::newRow("unknown") << 4 << NO_ROOM << false;
    QTest::newRow("in unknown") << int(Hall) << 4 << false;
}

void tst_Stockroom::roomsLieInOneAnother()
{
    QFETCH(int, room);
    QFETCH(int, outer);
    QTEST(bool(Stock().IsRoomIn(room, outer)), "lies");
}

void tst_Stockroom::refusesItems_data()
{
    QTest::addColumn<QString>("number");
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("category");
    QTest::addColumn<bool>("refused");

    QTest::newRow("good") << "B" << int(Office) << 7 << false;
    QTest::newRow("longest number") << QString(40, u'x') << int(Hall) << 0 << false;
    QTest::newRow("other case") << "a" << int(Hall) << 0 << false;
    QTest::newRow("no number") << "" << int(Hall) << 0 << true;
    QTest::newRow("long number") << QString(41, u'x') << int(Hall) << 0 << true;
    QTest::newRow("taken number") << "A" << int(Hall) << 0 << true;
    QTest::newRow("no room") << "B" << NO_ROOM << 0 << true;
    QTest::newRow("unknown room") << "B" << 4 << 0 << true;
    QTest::newRow("no category") << "B" << int(Hall) << -1 << true;
    QTest::newRow("unknown category") << "B" << int(Hall) << 8 << true;
}

void tst_Stockroom::refusesItems()
{
    QFETCH(QString, number);
    QFETCH(int, room);
    QFETCH(int, category);
    QFETCH(bool, refused);
    CStockItem item = makeItem(toText(number), room);
    item.m_nCategory = category;

    Stock stock;
    CStockItem *other = stock.AddItem(makeItem(_T("A")));
    CStockItem *changed = stock.AddItem(makeItem(_T("C")));
    const CStockItem before = *changed;
    QCOMPARE(bool(stock.ChangeItem(changed, item)), !refused);
    QVERIFY(same(*changed, refused ? before : item));
    QCOMPARE(numbersIn(stock), refused ? QStringLiteral("A C") : QStringLiteral("A ") + number);
    stock.RemoveItem(changed);

    const CStockItem *added = stock.AddItem(item);
    QCOMPARE(added == nullptr, refused);
    QVERIFY(refused || (added != &item && same(*added, item)));
    QCOMPARE(stock.GetItemCount(), refused ? 1 : 2);
    QCOMPARE(stock.FindNumber(_T("A")), other);
}

void tst_Stockroom::keepsItems()
{
    Stock stock;
    CStockItem *first = stock.AddItem(makeItem(_T("A")));
    for (int i = 0; i < 100; i++)
        stock.AddItem(makeItem(toText(QString::number(i))));

    QCOMPARE(stock.GetItemCount(), 101);
    QCOMPARE(stock.GetItem(0), first);
    QCOMPARE(stock.FindNumber(_T("A")), first);
    QCOMPARE(stock.FindNumber(_T("99")), stock.GetItem(100));
    QVERIFY(!stock.GetItem(-1) && !stock.GetItem(101));
    QVERIFY(!stock.FindNumber(_T("100")) && !stock.FindNumber(_T("")) && !stock.FindNumber(nullptr));

    stock.RemoveItems();
    QCOMPARE(stock.GetItemCount(), 0);
    QVERIFY(!stock.FindNumber(_T("A")));
    QCOMPARE(stock.GetRoomCount(), 4);
}

void tst_Stockroom::changesItems()
{
    Stock stock;
    CStockItem *item = stock.AddItem(makeItem(_T("A")));
    stock.AddItem(makeItem(_T("B")));
    QVERIFY(stock.ChangeItem(item, makeItem(_T("A"), Rack, _T("Nut"))));
    QCOMPARE(toQt(item->m_strName), QStringLiteral("Nut"));
    QVERIFY(stock.ChangeItem(item, makeItem(_T("C"))));
    QCOMPARE(numbersIn(stock), QStringLiteral("C B"));
    QCOMPARE(stock.FindNumber(_T("C")), item);
    QVERIFY(!stock.FindNumber(_T("A")));

    CStockItem stranger = makeItem(_T("B"));
    QVERIFY(!stock.ChangeItem(&stranger, makeItem(_T("D"))));
    QCOMPARE(toQt(stranger.m_strNumber), QStringLiteral("B"));
    QVERIFY(!stock.ChangeItem(nullptr, makeItem(_T("D"))));
    QCOMPARE(numbersIn(stock), QStringLiteral("C B"));
}

void tst_Stockroom::removesItems()
{
    Stock stock;
    for (LPCTSTR number : {_T("A"), _T("B"), _T("C")})
        stock.AddItem(makeItem(number));
    CStockItem *last = stock.FindNumber(_T("C"));
    CStockItem stranger = makeItem(_T("A"));
    QVERIFY(!stock.RemoveItem(nullptr));
    QVERIFY(!stock.RemoveItem(&stranger));
    QVERIFY(stock.RemoveItem(stock.FindNumber(_T("B"))));
    QCOMPARE(numbersIn(stock), QStringLiteral("A C"));
    QVERIFY(!stock.FindNumber(_T("B")));
    QCOMPARE(stock.FindNumber(_T("C")), last);
    QVERIFY(stock.AddItem(makeItem(_T("B"))));
}

void tst_Stockroom::removesManyItems()
{
    Stock stock;
    for (LPCTSTR number : {_T("A"), _T("B"), _T("C"), _T("D"), _T("E")})
        stock.AddItem(makeItem(number));
    CStockItem stranger = makeItem(_T("B"));
    CPtrArray items;
    for (void *item : {stock.GetItem(3), stock.GetItem(0), stock.GetItem(3), &stranger})
        items.Add(item);
    items.Add(nullptr);
    CStockItem *last = stock.GetItem(4);
    stock.RemoveItems(items);
    QCOMPARE(numbersIn(stock), QStringLiteral("B C E"));
    QCOMPARE(stock.GetItem(2), last);
    QVERIFY(!stock.FindNumber(_T("A")) && !stock.FindNumber(_T("D")));
    QCOMPARE(stock.FindNumber(_T("E")), last);

    stock.RemoveItems(Items(stock));
    QCOMPARE(stock.GetItemCount(), 0);
    QVERIFY(stock.AddItem(makeItem(_T("E"))));
}

void tst_Stockroom::givesFreeNumbers_data()
{
    const QString x40(40, u'x');
    const QString x29(29, u'x');
    const QString x31(31, u'x');
    QTest::addColumn<QString>("taken");
    QTest::addColumn<QString>("like");
    QTest::addColumn<QString>("free");

    QTest::newRow("free itself") << "A-1"
                                 << "A-2"
                                 << "A-2";
    QTest::newRow("next") << "A-1"
                          << "A-1"
                          << "A-2";
    QTest::newRow("next but one") << "A-1 A-2 A-3 A-5"
                                  << "A-1"
                                  << "A-4";
    QTest::newRow("gaps may stay") << "A-1 A-2 A-4"
                                   << "A-1"
                                   << "A-5";
    QTest::newRow("leading zero") << "A-009"
                                  << "A-009"
                                  << "A-010";
    QTest::newRow("another digit") << "A-99"
                                   << "A-99"
                                   << "A-100";
    QTest::newRow("nine digits") << "999999999"
                                 << "999999999"
                                 << "1000000000";
    QTest::newRow("more digits") << "7000999999999"
                                 << "7000999999999"
                                 << "70001000000000";
    QTest::newRow("no digits") << "Bolt"
                               << "Bolt"
                               << "Bolt-2";
    QTest::newRow("no digits twice") << "Bolt Bolt-2"
                                     << "Bolt"
                                     << "Bolt-3";
    QTest::newRow("digits in front") << "7B"
                                     << "7B"
                                     << "7B-2";
    QTest::newRow("nothing") << ""
                             << ""
                             << "1";
    QTest::newRow("nothing twice") << "1 2"
                                   << ""
                                   << "3";
    QTest::newRow("too long") << "" << x40 + u'y' << x40;
    QTest::newRow("no room for digits") << x40 << x40 << x29 + QStringLiteral("-2");
    QTest::newRow("no room for another digit")
        << x31 + QStringLiteral("999999999") << x31 + QStringLiteral("999999999")
        << x29 + QStringLiteral("1000000000");
}

void tst_Stockroom::givesFreeNumbers()
{
    QFETCH(QString, taken);
    QFETCH(QString, like);
    Stock stock;
    const QStringList numbers = taken.split(QLatin1Char(' '));
    for (const QString &number : numbers)
        stock.AddItem(makeItem(toText(number)));

    const CString free = stock.GetFreeNumber(toText(like));
    QTEST(toQt(free), "free");
    QVERIFY(stock.AddItem(makeItem(free)));
}

void tst_Stockroom::finds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("room");
    QTest::addColumn<QString>("found");

    QTest::newRow("all") << "" << NO_ROOM << "A-1 A-2 b-3 aaab";
    QTest::newRow("room with inner one") << "" << int(Hall) << "A-1 A-2";
    QTest::newRow("innermost room") << "" << int(Rack) << "A-2";
    QTest::newRow("outermost room") << "" << int(Works) << "A-1 A-2 b-3 aaab";
    QTest::newRow("unknown room") << "" << 4 << "";
    QTest::newRow("number") << "a-" << NO_ROOM << "A-1 A-2";
    QTest::newRow("number, other case") << "B-3" << NO_ROOM << "b-3";
    QTest::newRow("name") << "COPPER pipe" << NO_ROOM << "A-1";
    QTest::newRow("end of name") << "pipe" << NO_ROOM << "A-1";
    QTest::newRow("longer than name") << "pipes" << NO_ROOM << "";
    QTest::newRow("note") << "keep dry" << NO_ROOM << "A-2";
    QTest::newRow("not across fields") << "A-2G" << NO_ROOM << "";
    QTest::newRow("after a false start") << "aab" << NO_ROOM << "aaab";
    QTest::newRow("in another room") << "copper" << int(Office) << "";
    QTest::newRow("umlaut") << QStringLiteral("GRÖSSE") << NO_ROOM << "A-2";
    QTest::newRow("Cyrillic") << QStringLiteral("КАБЕЛЬ") << NO_ROOM << "b-3";
    QTest::newRow("beyond 16 bits") << QStringLiteral("𐐀") << NO_ROOM << "b-3";
}

void tst_Stockroom::finds()
{
    QFETCH(QString, text);
    QFETCH(int, room);
    QFETCH(QString, found);
    Stock stock;
    stock.AddItem(makeItem(_T("A-1"), Hall, _T("Copper pipe")));
    stock.AddItem(makeItem(_T("A-2"), Rack, _T("Grösse"), _T("Keep DRY")));
    stock.AddItem(makeItem(_T("b-3"), Office, _T("Кабель 𐐨")));
    stock.AddItem(makeItem(_T("aaab"), Works));

    CPtrArray items;
    items.Add(stock.GetItem(3));
    stock.Find(toText(text), room, items);
    QCOMPARE(items[0], stock.GetItem(3));
    items.RemoveAt(0);
    QCOMPARE(numbersIn(items), found);
}

void tst_Stockroom::countsItems()
{
    Stock stock;
    stock.AddRoom(_T("Attic"), NO_ROOM, CRect(0, 0, 10, 10));
    int number = 0;
    for (const int room : {Hall, Rack, Rack, Office})
        stock.AddItem(makeItem(toText(QString::number(number++)), room));

    CWordArray counts;
    CByteArray usage;
    for (int run = 0; run < 2; run++) {
        stock.CountItems(counts, usage);
        QCOMPARE(std::vector<WORD>(counts.GetData(), counts.GetData() + counts.GetSize()),
                 (std::vector<WORD>{4, 3, 2, 1, 0}));
        // The rack has 2 on a quarter of the floor, so it is 8 times as full as the office.
        QCOMPARE(std::vector<BYTE>(usage.GetData(), usage.GetData() + usage.GetSize()),
                 (std::vector<BYTE>{0, 1 + 254 * 3 / 8, 255, 1 + 254 / 8, 0}));
    }
}

void tst_Stockroom::countsTo65535()
{
    Stock stock;
    for (int i = 0; i < 65537; i++)
        stock.AddItem(makeItem(toText(QString::number(i))));
    CWordArray counts;
    CByteArray usage;
    stock.CountItems(counts, usage);
    QCOMPARE(counts[Hall], WORD(65535));
    QCOMPARE(usage[Hall], BYTE(255));
}

void tst_Stockroom::makesSample()
{
    Stock stock;
    stock.AddItem(makeItem(_T("A")));
    stock.MakeSample(0);
    QCOMPARE(stock.GetItemCount(), 0);
    QCOMPARE(stock.FindRoom(_T("Hall")), NO_ROOM);
    const int rooms = stock.GetRoomCount();
    QVERIFY(rooms > 10);

    stock.MakeSample(3000);
    QCOMPARE(stock.GetItemCount(), 3000);
    QCOMPARE(stock.GetRoomCount(), rooms);
    CStock again;
    again.MakeSample(3000);
    std::set<int> used;
    for (int i = 0; i < 3000; i++) {
        QVERIFY(same(*stock.GetItem(i), *again.GetItem(i)));
        used.insert(stock.GetItem(i)->m_nRoom);
    }
    QVERIFY(used.size() > 10);
}

void tst_Stockroom::tellsProgress()
{
    Progress progress;
    Stock().MakeSample(1100, &progress);
    QVERIFY(progress.isComplete(1100));
}

QTEST_GUILESS_MAIN(tst_Stockroom)
#include "tst_Stockroom.moc"
