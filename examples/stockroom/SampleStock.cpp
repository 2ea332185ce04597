#include "StockData.h"

#include <algorithm>
#include <random>

struct CSampleRoom
{
    LPCTSTR lpszName;
    int nParent;
    RECT rcPlan;
    int nShare; // of the items, in per cent
    short nTemperature;
};

struct CSampleArticle
{
    LPCTSTR lpszName;
    LPCTSTR lpszPrefix; // of the numbers
    int nCategory;
    LPCTSTR lpszPacking;
    LPCTSTR lpszUnit;
    int nGrams;
    int nCents;
};

static const CSampleRoom ROOMS[] = {
    {_T("Warehouse"), NO_ROOM, {20, 20, 520, 620}, 0, 20},
    {_T("High racks"), 0, {20, 20, 240, 270}, 20, 20},
    {_T("Small parts"), 0, {240, 20, 400, 270}, 20, 20},
    {_T("Cage"), 0, {400, 20, 520, 270}, 5, 20},
    {_T("Pallet bay"), 0, {20, 310, 240, 620}, 14, 20},
    {_T("Cold store"), 0, {240, 310, 400, 620}, 8, 4},
    {_T("Freezer"), 0, {400, 310, 520, 620}, 3, -18},
    {_T("Workshop"), NO_ROOM, {560, 20, 980, 300}, 0, 20},
    {_T("Machine shop"), 7, {560, 20, 770, 150}, 4, 20},
    {_T("Tool crib"), 7, {770, 20, 870, 150}, 5, 20},
    {_T("Paint store"), 7, {870, 20, 980, 150}, 5, 12},
    {_T("Assembly"), 7, {560, 190, 830, 300}, 3, 20},
    {_T("Test bench"), 7, {830, 190, 980, 300}, 1, 20},
    {_T("Offices"), NO_ROOM, {560, 340, 980, 620}, 0, 20},
    {_T("Laboratory"), 13, {560, 340, 720, 460}, 3, 20},
    {_T("Archive"), 13, {720, 340, 850, 460}, 4, 18},
    {_T("Post room"), 13, {850, 340, 980, 460}, 1, 20},
    {_T("Reception"), 13, {560, 500, 740, 620}, 1, 20},
    {_T("Canteen"), 13, {740, 500, 980, 620}, 0, 20},
    {_T("Yard"), NO_ROOM, {}, 0, 20},
    {_T("Container A"), 19, {}, 2, 8},
    {_T("Container B"), 19, {}, 1, 8},
};

// By category, in the order of CStock::GetCategories().
static const int CHEMICALS = 4;
static const CSampleArticle ARTICLES[] = {
    {_T("Steel sheet"), _T("RM"), 0, _T("Pallet"), _T("pcs"), 7850, 4200},
    {_T("Brass rod"), _T("RM"), 0, _T("Crate"), _T("m"), 2400, 1890},
    {_T("Copper pipe"), _T("RM"), 0, _T("Loose"), _T("m"), 910, 1125},
    {_T("Hex bolt"), _T("FA"), 1, _T("Box"), _T("pcs"), 35, 18},
    {_T("Wood screw"), _T("FA"), 1, _T("Box"), _T("pcs"), 6, 4},
    {_T("Lock washer"), _T("FA"), 1, _T("Bag"), _T("pcs"), 2, 3},
    {_T("Rivet"), _T("FA"), 1, _T("Bag"), _T("pcs"), 1, 2},
    {_T("Socket spanner"), _T("TO"), 2, _T("Loose"), _T("pcs"), 310, 1450},
    {_T("Twist drill"), _T("TO"), 2, _T("Box"), _T("pcs"), 48, 620},
    {_T("File set"), _T("TO"), 2, _T("Box"), _T("set"), 840, 2395},
    {_T("Relay"), _T("EL"), 3, _T("Box"), _T("pcs"), 64, 890},
    {_T("Power cable"), _T("EL"), 3, _T("Drum"), _T("m"), 180, 175},
    {_T("Terminal block"), _T("EL"), 3, _T("Bag"), _T("pcs"), 22, 210},
    {_T("Machine oil"), _T("CH"), CHEMICALS, _T("Drum"), _T("l"), 870, 640},
    {_T("Cleaning solvent"), _T("CH"), CHEMICALS, _T("Drum"), _T("l"), 790, 520},
    {_T("Two-part adhesive"), _T("CH"), CHEMICALS, _T("Box"), _T("set"), 420, 3150},
    {_T("Ball bearing"), _T("SP"), 5, _T("Box"), _T("pcs"), 145, 760},
    {_T("Drive belt"), _T("SP"), 5, _T("Loose"), _T("pcs"), 230, 1340},
    {_T("Oil seal"), _T("SP"), 5, _T("Bag"), _T("pcs"), 12, 95},
    {_T("Stretch film"), _T("PA"), 6, _T("Pallet"), _T("roll"), 2300, 980},
    {_T("Folding carton"), _T("PA"), 6, _T("Pallet"), _T("pcs"), 320, 88},
    {_T("Copying paper"), _T("OF"), 7, _T("Box"), _T("set"), 2500, 465},
    {_T("Ring binder"), _T("OF"), 7, _T("Box"), _T("pcs"), 410, 230},
};

static LPCTSTR const NOTES[] = {
    _T("Keep dry"),
    _T("Supplier: Müller & Söhne, Köln"),
    _T("Ask for \"first choice\" only"),
    _T("Поставщик: «Прогресс»"),
    _T("Two men to lift; use the crane at gate 4"),
    _T("Προσοχή: εύθραυστο"),
};

static const int ITEMS_PER_PROGRESS = 250;

// Makes the same items in every run and on every platform, which the distributions of <random> do not promise.
class CSampleMaker
{
public:
    CStockItem Make(int nIndex);

private:
    int Roll(int nLeast, int nMost);
    int RollRoom();
    void Describe(CStockItem &item, const CSampleArticle &article, int nIndex);
    void Place(CStockItem &item);
    void Count(CStockItem &item);

    std::minstd_rand m_engine;
};

CStockItem CSampleMaker::Make(int nIndex)
{
    const CSampleArticle &article = ARTICLES[Roll(0, int(_countof(ARTICLES)) - 1)];
    CStockItem item;
    Describe(item, article, nIndex);
    Place(item);
    Count(item);
    const int nSize = Roll(1, 12);
    item.m_fWeight = float(article.nGrams * nSize) / 1000;
    item.m_dPrice = article.nCents * nSize / 100.0;
    return item;
}

// Both ends can be rolled.
int CSampleMaker::Roll(int nLeast, int nMost)
{
    return nLeast + int(m_engine() % unsigned(nMost - nLeast + 1));
}

int CSampleMaker::RollRoom()
{
    int nShare = Roll(1, 100);
    int nRoom = 0;
    while (nShare > ROOMS[nRoom].nShare)
        nShare -= ROOMS[nRoom++].nShare;
    return nRoom;
}

void CSampleMaker::Describe(CStockItem &item, const CSampleArticle &article, int nIndex)
{
    item.m_strNumber.Format(_T("%ls-%05d"), article.lpszPrefix, nIndex + 1);
    item.m_strName.Format(_T("%ls %lc-%d"), article.lpszName, wint_t(_T('A') + Roll(0, 5)), 4 * Roll(1, 30));
    // About one item in three has a note.
    const UINT nNote = UINT(Roll(0, 3 * int(_countof(NOTES)) - 1));
    if (nNote < _countof(NOTES))
        _tcsncpy(item.m_szNote, NOTES[nNote], NOTE_LENGTH);
    item.m_nCategory = article.nCategory;
    item.m_strPacking = article.lpszPacking;
    item.m_strUnit = article.lpszUnit;
    item.m_bHazardous = article.nCategory == CHEMICALS;
}

void CSampleMaker::Place(CStockItem &item)
{
    item.m_nRoom = RollRoom();
    item.m_nTemperature = ROOMS[item.m_nRoom].nTemperature;
    item.m_nShelf = BYTE(Roll(1, 48));
}

void CSampleMaker::Count(CStockItem &item)
{
    item.m_nQuantity = Roll(0, 400);
    item.m_nReorder = UINT(10 * Roll(0, 8));
    item.m_lBatch = Roll(100000, 999999);
    item.m_ulSerial = 3000000000UL + m_engine() % 1000000;
    item.m_nState = std::max(0, Roll(-7, STATE_BROKEN)); // most items are new
    item.m_bFragile = Roll(1, 10) == 1;
    item.m_nLevel = 5 * Roll(0, 20);
}

void CStock::MakeSample(int nItems, CProgress *pProgress)
{
    RemoveItems();
    RemoveRooms();
    for (const CSampleRoom &room : ROOMS)
        AddRoom(room.lpszName, room.nParent, room.rcPlan);

    CSampleMaker maker;
    for (int i = 0; i < nItems; i++) {
        if (pProgress && i % ITEMS_PER_PROGRESS == 0)
            pProgress->OnProgress(i, nItems);
        AddItem(maker.Make(i));
    }
    if (pProgress)
        pProgress->OnProgress(nItems, nItems);
}
