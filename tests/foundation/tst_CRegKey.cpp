#include "KxRegistry.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <string>
#include <type_traits>
#include <vector>

using namespace std::string_literals;

static_assert(sizeof(CRegKey) == 3 * sizeof(void *));
static_assert(!std::is_copy_constructible_v<CRegKey> && !std::is_copy_assignable_v<CRegKey>);

Q_DECLARE_METATYPE(const wchar_t *)
Q_DECLARE_METATYPE(std::wstring)

// A table cell: literals of different lengths are one type.
static const wchar_t *wide(const wchar_t *text)
{
    return text;
}

class tst_CRegKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void storesUnderItsGroup();
    void writesTheStoreOfTheUser();
    void readsBack_data();
    void readsBack();
    void fillsTheBuffer_data();
    void fillsTheBuffer();
    void clearsBytes();
    void refusesASmallBuffer_data();
    void refusesASmallBuffer();
    void failedQueryLeavesTheGroupOpen();
    void missingBufferOrCount();
    void missingValueReadsEmpty_data();
    void missingValueReadsEmpty();
    void unusableNameStoresNothing_data();
    void unusableNameStoresNothing();
    void withoutAPathValuesLieAtTheTop();
    void laterShorterPathKeepsTheTail();
    void longestPath();
    void refusesPaths_data();
    void refusesPaths();
    void parentKeyIsIgnored();
    void otherArgumentsAreIgnored();
    void fixedResults();
    void handleIsNull();
    void storeThatCannotBeWritten();

private:
    QString storedAt(const QString &key) const;
    QStringList storedKeys() const;
    QScopedPointer<QTemporaryDir> m_dir;
};

static QString queried(CRegKey &key, const wchar_t *valueName)
{
    wchar_t buffer[4096] = {};
    unsigned count = 4096;
    return key.QueryValue(buffer, valueName, &count) == 0 ? QString::fromStdWString(buffer)
                                                          : QStringLiteral("failed");
}

void tst_CRegKey::init()
{
    m_dir.reset(new QTemporaryDir);
    QVERIFY(m_dir->isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir->path());
}

QString tst_CRegKey::storedAt(const QString &key) const
{
    const QSettings settings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Orvane"),
                             QStringLiteral("Velmo"));
    return settings.value(key, QStringLiteral("absent")).toString();
}

QStringList tst_CRegKey::storedKeys() const
{
    QSettings settings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Orvane"),
                       QStringLiteral("Velmo"));
    settings.setFallbacksEnabled(false);
    return settings.allKeys();
}

void tst_CRegKey::storesUnderItsGroup()
{
    CRegKey key;
    QCOMPARE(key.Create(nullptr, L"Software\\App"), 0);
    QCOMPARE(key.SetValue(L"1", L"Flag"), 0);
    QCOMPARE(storedKeys(), QStringList(QStringLiteral("Software/App/Flag")));
    QCOMPARE(storedAt(QStringLiteral("Software/App/Flag")), QStringLiteral("1"));

    wchar_t buffer[10];
    unsigned count = 10;
    QCOMPARE(key.QueryValue(buffer, L"Flag", &count), 0);
    QCOMPARE(QString::fromStdWString(buffer), QStringLiteral("1"));
    QCOMPARE(count, 10u);
}

void tst_CRegKey::writesTheStoreOfTheUser()
{
    {
        CRegKey key;
        key.Create(nullptr, L"Group");
        key.SetValue(L"text", L"Name");
    }
    QFile file(m_dir->filePath(QStringLiteral("Orvane/Velmo.conf")));
    QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QCOMPARE(file.readAll(), QByteArray("[Group]\nName=text\n"));
}

void tst_CRegKey::readsBack_data()
{
    QTest::addColumn<std::wstring>("value");

    QTest::newRow("empty") << L""s;
    QTest::newRow("above the BMP") << L"a\U0001F600b"s;
    QTest::newRow("like a list") << L"a, b; c"s;
    QTest::newRow("at sign, quotes, backslash, line ends") << L"@x \"q\" \\n \r\n\t"s;
    QTest::newRow("longer than the path may be") << std::wstring(4000, L'v');
}

void tst_CRegKey::readsBack()
{
    QFETCH(std::wstring, value);
    {
        CRegKey key;
        key.Create(nullptr, L"Key");
        QCOMPARE(key.SetValue(value.c_str(), L"Value"), 0);
        QCOMPARE(queried(key, L"Value"), QString::fromStdWString(value));
    }
    CRegKey later;
    later.Create(nullptr, L"Key");
    QCOMPARE(queried(later, L"Value"), QString::fromStdWString(value));
}

void tst_CRegKey::fillsTheBuffer_data()
{
    QTest::addColumn<std::wstring>("value");
    QTest::addColumn<unsigned>("count");
    QTest::addColumn<std::wstring>("buffer");

    // The buffer holds eight '#' before the call.
    QTest::newRow("filled up with nulls") << L"ab"s << 6u << L"ab\0\0\0###"s;
    QTest::newRow("room for the terminator") << L"abc"s << 5u << L"abc\0####"s;
    QTest::newRow("one element of room is not terminated") << L"abc"s << 4u << L"abc#####"s;
    QTest::newRow("no room: last element is not copied") << L"abc"s << 3u << L"ab######"s;
    QTest::newRow("one element") << L"a"s << 1u << L"\0#######"s;
    QTest::newRow("empty value") << L""s << 3u << L"\0\0######"s;
    QTest::newRow("empty value, one element") << L""s << 1u << L"\0#######"s;
    QTest::newRow("empty value, no element") << L""s << 0u << L"########"s;
    QTest::newRow("surrogate pair counts two") << L"\U0001F600"s << 2u << L"\U0001F600#######"s;
}

void tst_CRegKey::fillsTheBuffer()
{
    QFETCH(std::wstring, value);
    QFETCH(unsigned, count);
    QFETCH(std::wstring, buffer);

    CRegKey key;
    key.SetValue(value.c_str(), L"Value");
    std::wstring actual(8, L'#');
    QCOMPARE(key.QueryValue(&actual[0], L"Value", &count), 0);
    QCOMPARE(QString::fromStdWString(actual), QString::fromStdWString(buffer));
}

void tst_CRegKey::clearsBytes()
{
    CRegKey key;
    wchar_t element = 0x00105678;
    unsigned count = 1;
    QCOMPARE(key.QueryValue(&element, L"Missing", &count), 0);
    QCOMPARE(int(element), 0x00105600);
}

void tst_CRegKey::refusesASmallBuffer_data()
{
    QTest::addColumn<std::wstring>("value");
    QTest::addColumn<unsigned>("count");

    QTest::newRow("one too small") << L"abc"s << 2u;
    QTest::newRow("no element") << L"a"s << 0u;
    QTest::newRow("surrogate pair counts two") << L"\U0001F600"s << 1u;
}

void tst_CRegKey::refusesASmallBuffer()
{
    QFETCH(std::wstring, value);
    QFETCH(unsigned, count);

    CRegKey key;
    key.SetValue(value.c_str(), L"Value");
    std::wstring buffer(8, L'#');
    const unsigned former = count;
    QCOMPARE(key.QueryValue(&buffer[0], L"Value", &count), -1);
    QCOMPARE(QString::fromStdWString(buffer), QStringLiteral("########"));
    QCOMPARE(count, former);
}

void tst_CRegKey::failedQueryLeavesTheGroupOpen()
{
    CRegKey key;
    key.Create(nullptr, L"A\\B");
    key.SetValue(L"long text", L"Value");
    wchar_t buffer[2];
    unsigned count = 2;
    QCOMPARE(key.QueryValue(buffer, L"Value", &count), -1);

    QCOMPARE(queried(key, L"Value"), QString());
    key.SetValue(L"nested", L"Value");
    QCOMPARE(storedAt(QStringLiteral("A/B/A/B/Value")), QStringLiteral("nested"));
    QCOMPARE(storedAt(QStringLiteral("A/B/Value")), QStringLiteral("long text"));
    QCOMPARE(queried(key, L"Value"), QStringLiteral("nested"));

    QCOMPARE(key.QueryValue(buffer, L"Value", &count), -1);
    key.SetValue(L"deeper", L"Value");
    QCOMPARE(storedAt(QStringLiteral("A/B/A/B/A/B/Value")), QStringLiteral("deeper"));
}

void tst_CRegKey::missingBufferOrCount()
{
    CRegKey key;
    key.Create(nullptr, L"Key");
    key.SetValue(L"text", L"Value");
    wchar_t buffer[] = L"####";
    unsigned count = 4;
    QCOMPARE(key.QueryValue(nullptr, L"Value", &count), -1);
    QCOMPARE(key.QueryValue(buffer, L"Value", nullptr), -1);
    QCOMPARE(QString::fromStdWString(buffer), QStringLiteral("####"));
    QCOMPARE(queried(key, L"Value"), QStringLiteral("text"));
}

void tst_CRegKey::missingValueReadsEmpty_data()
{
    QTest::addColumn<const wchar_t *>("name");

    QTest::newRow("unknown") << wide(L"Unknown");
    QTest::newRow("empty") << wide(L"");
    QTest::newRow("null") << wide(nullptr);
    QTest::newRow("separators only") << wide(L"//");
}

void tst_CRegKey::missingValueReadsEmpty()
{
    QFETCH(const wchar_t *, name);
    CRegKey key;
    key.Create(nullptr, L"Key");
    key.SetValue(L"text", L"Value");
    QCOMPARE(queried(key, name), QString());
    QCOMPARE(queried(key, L"Value"), QStringLiteral("text"));
}

void tst_CRegKey::unusableNameStoresNothing_data()
{
    QTest::addColumn<const wchar_t *>("name");

    QTest::newRow("empty") << wide(L"");
    QTest::newRow("null") << wide(nullptr);
    QTest::newRow("separators only") << wide(L"//");
}

void tst_CRegKey::unusableNameStoresNothing()
{
    QFETCH(const wchar_t *, name);
    CRegKey key;
    key.Create(nullptr, L"Key");
    QCOMPARE(key.SetValue(L"text", name), 0);
    QCOMPARE(storedKeys(), QStringList());

    QCOMPARE(key.SetValue(nullptr, L"Value"), 0);
    QCOMPARE(storedAt(QStringLiteral("Key/Value")), QString());
}

void tst_CRegKey::withoutAPathValuesLieAtTheTop()
{
    CRegKey key;
    QCOMPARE(key.Open(nullptr, L"Software\\App"), 0);
    key.SetValue(L"1", L"Flag");
    QCOMPARE(storedKeys(), QStringList(QStringLiteral("Flag")));
    QCOMPARE(queried(key, L"Flag"), QStringLiteral("1"));
}

void tst_CRegKey::laterShorterPathKeepsTheTail()
{
    CRegKey key;
    key.Create(nullptr, L"Long\\Path");
    key.Create(nullptr, L"X");
    key.SetValue(L"1", L"Flag");
    QCOMPARE(storedKeys(), QStringList(QStringLiteral("Xong/Path/Flag")));

    key.Create(nullptr, L"");
    QCOMPARE(queried(key, L"Flag"), QStringLiteral("1"));
}

void tst_CRegKey::longestPath()
{
    for (int length : {512, 513, 2047, 2048}) {
        const std::wstring path(std::size_t(length), L'p');
        CRegKey key;
        QCOMPARE(key.Create(nullptr, path.c_str()), 0);
        key.SetValue(L"1", L"Flag");
        QCOMPARE(storedAt(QString::fromStdWString(path + L"/Flag")), QStringLiteral("1"));
    }
}

void tst_CRegKey::refusesPaths_data()
{
    QTest::addColumn<std::wstring>("path");
    QTest::addColumn<bool>("isNull");

    QTest::newRow("null") << std::wstring() << true;
    QTest::newRow("2049 elements") << std::wstring(2049, L'p') << false;
    QTest::newRow("a million elements") << std::wstring(1000000, L'p') << false;
}

void tst_CRegKey::refusesPaths()
{
    QFETCH(std::wstring, path);
    QFETCH(bool, isNull);

    CRegKey key;
    key.Create(nullptr, L"Former");
    QCOMPARE(key.Create(nullptr, isNull ? nullptr : path.c_str()), 0);
    key.SetValue(L"1", L"Flag");
    QCOMPARE(storedKeys(), QStringList(QStringLiteral("Former/Flag")));
}

void tst_CRegKey::parentKeyIsIgnored()
{
    CRegKey writer;
    writer.Create(HKEY_CURRENT_USER, L"Key");
    writer.SetValue(L"shared", L"Value");

    CRegKey reader;
    reader.Create(HKEY_LOCAL_MACHINE, L"Key");
    QCOMPARE(queried(reader, L"Value"), QStringLiteral("shared"));
}

void tst_CRegKey::otherArgumentsAreIgnored()
{
    CRegKey key;
    wchar_t className[] = L"Class";
    SECURITY_ATTRIBUTES security = {1, nullptr, TRUE};
    unsigned disposition = 77;
    QCOMPARE(key.Create(nullptr, L"Key", className, 1, 0, &security, &disposition), 0);
    QCOMPARE(disposition, 77u);
    QCOMPARE(key.SetValue(L"whole text", L"Value", true, 2), 0);
    QCOMPARE(storedAt(QStringLiteral("Key/Value")), QStringLiteral("whole text"));
}

void tst_CRegKey::fixedResults()
{
    CRegKey key;
    key.Create(nullptr, L"Key");
    key.SetValue(L"1", L"Flag");
    QCOMPARE(key.RecurseDeleteKey(L"Key"), 0);
    QCOMPARE(key.RecurseDeleteKey(nullptr), 0);
    QCOMPARE(key.Open(nullptr, L"Other", KEY_READ), 0);
    QCOMPARE(key.Open(nullptr, nullptr), 0);
    QCOMPARE(key.Close(), 0);
    QCOMPARE(queried(key, L"Flag"), QStringLiteral("1"));
}

void tst_CRegKey::handleIsNull()
{
    CRegKey key;
    key.Create(HKEY_CURRENT_USER, L"Key");
    QVERIFY(!static_cast<HKEY>(static_cast<const CRegKey &>(key)));
}

void tst_CRegKey::storeThatCannotBeWritten()
{
    // A file stands where the folder would have to be made.
    QFile file(m_dir->filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       file.fileName() + QStringLiteral("/sub"));
    {
        CRegKey key;
        QCOMPARE(key.Create(nullptr, L"Key"), 0);
        QCOMPARE(key.SetValue(L"1", L"Flag"), 0);
    }
    CRegKey later;
    later.Create(nullptr, L"Key");
    QCOMPARE(later.SetValue(L"2", L"Other"), 0);
}

QTEST_MAIN(tst_CRegKey)
#include "tst_CRegKey.moc"
