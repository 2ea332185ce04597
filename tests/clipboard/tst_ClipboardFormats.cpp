#include "GlobalMemory.h"
#include "KxClipboard.h"

#include <QMimeData>
#include <QtTest>

#include <climits>
#include <cstring>

/// Registering formats and enumerating them. The process has one set of formats, so the first rows are told
/// by absolute numbers and the later ones by how far they are from g_iCFIndex.
class tst_ClipboardFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsRegisteredAtFirst();
    void unusedEnumeration();
    void firstFormats();
    void enumerationOfTwoFormats();

    void builtInNumbers_data();
    void builtInNumbers();
    void registering_data();
    void registering();
    void nullName();
    void emptyName();
    void sameFormInTheStore();
    void nameOnlyInTheStore();

    void enumerationIsShared();
    void enumerationStartsAnew();
    void enumerationWithoutARecord();
    void enumerationWritesOneField();
    void unregisteredNumberTakesAStep();
    void nextNumberTakesAStep();
    void registeredWhileEnumerating();
};

// The numbers that an enumeration reports.
static QList<int> enumerated()
{
    COleDataObject object;
    object.BeginEnumFormats();
    QList<int> numbers;
    FORMATETC fe = {};
    while (object.GetNextFormat(&fe))
        numbers << fe.cfFormat;
    return numbers;
}

void tst_ClipboardFormats::nothingIsRegisteredAtFirst()
{
    QCOMPARE(g_iCFIndex, 3456);
    QVERIFY(g_mapCF.empty());
    QVERIFY(g_clipboardData.formats().isEmpty());
}

void tst_ClipboardFormats::unusedEnumeration()
{
    KxPlatformClipboard clipboard;
    FORMATETC fe = {};
    QVERIFY(clipboard.getNextFormat(&fe));
    QCOMPARE(int(fe.cfFormat), 13);
    QVERIFY(clipboard.getNextFormat(&fe));
    QCOMPARE(int(fe.cfFormat), 2);
    QVERIFY(!clipboard.getNextFormat(&fe));
    QVERIFY(!clipboard.getNextFormat(&fe));
    QCOMPARE(int(fe.cfFormat), 2);
}

void tst_ClipboardFormats::firstFormats()
{
    QCOMPARE(RegisterClipboardFormatW(L"Fmt A"), 3456u);
    QCOMPARE(RegisterClipboardFormatW(L"Fmt A"), 3456u);
    QCOMPARE(RegisterClipboardFormatW(L"Fmt B"), 3457u);
    QCOMPARE(RegisterClipboardFormatW(L"Fmt A"), 3456u);
    QCOMPARE(g_iCFIndex, 3458);
    QCOMPARE(g_mapCF.size(), std::size_t{2});
    QCOMPARE(g_mapCF[3456], CString(L"Fmt A"));
    QCOMPARE(g_mapCF[3457], CString(L"Fmt B"));
    QVERIFY(g_clipboardData.hasFormat(QStringLiteral("Fmt A")));
    QVERIFY(g_clipboardData.data(QStringLiteral("Fmt A")).isEmpty());
}

void tst_ClipboardFormats::enumerationOfTwoFormats()
{
    QCOMPARE(enumerated(), (QList<int>{13, 2, 3456, 3457}));
}

void tst_ClipboardFormats::builtInNumbers_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("number");

    QTest::newRow("first") << 0 << 13;
    QTest::newRow("second") << 1 << 2;
    QTest::newRow("third") << 2 << 1;
    QTest::newRow("negative") << -1 << 1;
    QTest::newRow("largest") << INT_MAX << 1;
    QTest::newRow("smallest") << INT_MIN << 1;
}

void tst_ClipboardFormats::builtInNumbers()
{
    QFETCH(int, position);
    QFETCH(int, number);
    QCOMPARE(int(TOCLIPFORMAT(position)), number);
}

void tst_ClipboardFormats::registering_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isNew");

    QTest::newRow("another name") << QStringLiteral("Fmt C") << true;
    QTest::newRow("the same name again") << QStringLiteral("Fmt C") << false;
    QTest::newRow("another case") << QStringLiteral("fmt c") << true;
    QTest::newRow("start of a name") << QStringLiteral("Fmt") << true;
    QTest::newRow("name with more after it") << QStringLiteral("Fmt C ") << true;
    QTest::newRow("text of Qt") << QStringLiteral("text/plain") << true;
    QTest::newRow("text of Qt again") << QStringLiteral("text/plain") << false;
    QTest::newRow("URLs of Qt") << QStringLiteral("text/uri-list") << true;
    QTest::newRow("URLs of Qt again") << QStringLiteral("text/uri-list") << false;
    QTest::newRow("beyond 16 bits") << QString::fromUcs4(U"\U0001F600 form") << true;
    QTest::newRow("beyond 16 bits again") << QString::fromUcs4(U"\U0001F600 form") << false;
    QTest::newRow("long") << QString(10000, u'x') << true;
    QTest::newRow("long again") << QString(10000, u'x') << false;
}

void tst_ClipboardFormats::registering()
{
    QFETCH(QString, name);
    QFETCH(bool, isNew);

    const int next = g_iCFIndex;
    const std::wstring wideName = name.toStdWString();
    const UINT number = RegisterClipboardFormatW(wideName.c_str());
    QCOMPARE(g_iCFIndex, isNew ? next + 1 : next);
    QCOMPARE(int(number) >= next, isNew);
    QCOMPARE(g_mapCF.at(int(number)), CString(wideName));
    QCOMPARE(RegisterClipboardFormatW(wideName.c_str()), number);
}

void tst_ClipboardFormats::nullName()
{
    const auto before = g_mapCF;
    const QStringList formats = g_clipboardData.formats();
    const int next = g_iCFIndex;
    QCOMPARE(RegisterClipboardFormatW(nullptr), 0u);
    QCOMPARE(g_mapCF, before);
    QCOMPARE(g_clipboardData.formats(), formats);
    QCOMPARE(g_iCFIndex, next);
}

void tst_ClipboardFormats::emptyName()
{
    const UINT next = UINT(g_iCFIndex);
    QCOMPARE(RegisterClipboardFormatW(L""), next);
    QCOMPARE(RegisterClipboardFormatW(L""), next);
    HGLOBAL memory = newMemory("x");
    COleDataSource().CacheGlobalData(next, memory);
    COleDataObject object;
    object.AttachClipboard();
    QVERIFY(!object.IsDataAvailable(static_cast<unsigned short>(next)));
    freeMemory(memory);
}

// One character, and the two that UTF-16 has in its place.
void tst_ClipboardFormats::sameFormInTheStore()
{
    const wchar_t surrogates[] = {0xD83D, 0xDE80, 0};
    const UINT number = RegisterClipboardFormatW(L"\U0001F680");
    QVERIFY(number != 0);
    const int next = g_iCFIndex;
    QCOMPARE(RegisterClipboardFormatW(surrogates), 0u);
    QCOMPARE(g_iCFIndex, next);
    QCOMPARE(RegisterClipboardFormatW(L"\U0001F680"), number);
}

void tst_ClipboardFormats::nameOnlyInTheStore()
{
    const QString name = QStringLiteral("not registered");
    g_clipboardData.setData(name, QByteArray());
    const auto before = g_mapCF;
    QCOMPARE(RegisterClipboardFormatW(L"not registered"), 0u);
    QCOMPARE(g_mapCF, before);
    g_clipboardData.removeFormat(name);
}

void tst_ClipboardFormats::enumerationIsShared()
{
    COleDataObject first;
    COleDataObject second;
    FORMATETC fe = {};
    first.BeginEnumFormats();
    QVERIFY(first.GetNextFormat(&fe));
    QVERIFY(second.GetNextFormat(&fe));
    QCOMPARE(int(fe.cfFormat), 2);
    QVERIFY(first.GetNextFormat(&fe));
    QCOMPARE(int(fe.cfFormat), 3456);
    QVERIFY(g_platformClipboard.getNextFormat(&fe));
    QCOMPARE(int(fe.cfFormat), 3457);
}

void tst_ClipboardFormats::enumerationStartsAnew()
{
    const QList<int> numbers = enumerated();
    QVERIFY(numbers.size() > 4);
    QCOMPARE(enumerated(), numbers);
}

void tst_ClipboardFormats::enumerationWithoutARecord()
{
    COleDataObject object;
    object.BeginEnumFormats();
    QVERIFY(!object.GetNextFormat(nullptr));
    FORMATETC fe = {};
    QVERIFY(object.GetNextFormat(&fe));
    QCOMPARE(int(fe.cfFormat), 13);
}

void tst_ClipboardFormats::enumerationWritesOneField()
{
    COleDataObject object;
    object.BeginEnumFormats();
    FORMATETC fe;
    std::memset(&fe, 0x5A, sizeof fe);
    QVERIFY(object.GetNextFormat(&fe));
    QCOMPARE(int(fe.cfFormat), 13);
    FORMATETC expected;
    std::memset(&expected, 0x5A, sizeof expected);
    expected.cfFormat = 13;
    QCOMPARE(std::memcmp(&fe, &expected, sizeof fe), 0);
}

void tst_ClipboardFormats::unregisteredNumberTakesAStep()
{
    const QList<int> numbers = enumerated();
    HGLOBAL memory = newMemory("x");
    COleDataSource().CacheGlobalData(5, memory);
    freeMemory(memory);
    QCOMPARE(enumerated(), numbers + QList<int>{0});
    QVERIFY(g_mapCF.at(5).IsEmpty());
    g_mapCF.erase(5);
}

void tst_ClipboardFormats::nextNumberTakesAStep()
{
    const QList<int> numbers = enumerated();
    const int next = g_iCFIndex;
    HGLOBAL memory = newMemory("x");
    COleDataSource().CacheGlobalData(unsigned(next), memory);
    QCOMPARE(enumerated(), numbers + QList<int>{next});
    QVERIFY(g_mapCF.at(next).IsEmpty());
    freeMemory(memory);

    QCOMPARE(RegisterClipboardFormatW(L"takes the number over"), UINT(next));
    QCOMPARE(g_mapCF.at(next), CString(L"takes the number over"));
    QCOMPARE(enumerated(), numbers + QList<int>{next});
}

void tst_ClipboardFormats::registeredWhileEnumerating()
{
    COleDataObject object;
    object.BeginEnumFormats();
    FORMATETC fe = {};
    for (std::size_t i = 0; i < g_mapCF.size() + 2; ++i)
        QVERIFY(object.GetNextFormat(&fe));
    const UINT number = RegisterClipboardFormatW(L"registered while enumerating");
    QVERIFY(object.GetNextFormat(&fe));
    QCOMPARE(UINT(fe.cfFormat), number);
    QVERIFY(!object.GetNextFormat(&fe));
}

QTEST_APPLESS_MAIN(tst_ClipboardFormats)
#include "tst_ClipboardFormats.moc"
