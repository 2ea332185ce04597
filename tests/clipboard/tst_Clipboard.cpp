#include "GlobalMemory.h"
#include "KxClipboard.h"
#include "SanitizedMemory.h"

#include <QMimeData>
#include <QUrl>
#include <QtTest>

#include <malloc.h>

#include <type_traits>

static_assert(sizeof(KxPlatformClipboard) == 16 && !std::is_polymorphic_v<KxPlatformClipboard>);
static_assert(sizeof(COleDataObject) == sizeof(void *) && !std::is_polymorphic_v<COleDataObject>);
static_assert(std::is_empty_v<COleDataSource>);
static_assert(std::is_same_v<decltype(FORMATETC::cfFormat), unsigned short>);

/// Data on the clipboard: handed over, read, replaced.
class tst_Clipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void notBeforeTheFirstAttachment();

    void roundTrip_data();
    void roundTrip();
    void storeHoldsTheRecordItself();
    void emptyBlock();
    void sourceAndObjectHoldNothing();
    void replaced();
    void replacingFreesHandleAndBlock();
    void replacingLeavesNothingBehind();
    void formatsAreApart();

    void builtInFormats_data();
    void builtInFormats();
    void unregisteredNumbers_data();
    void unregisteredNumbers();
    void lookUpAddsNoEntry();
    void registeredWithoutData();
    void formatThatLeftTheStore();
    void nullHandle();
    void storeEmptiedByTheApplication();
    void sameHandleAgain();
    void handleOfAnotherFormat();
    void handleAgainAfterItsRelease();

    void unattachedClipboard();
    void destructionOfAnAttachedClipboard();
    void destructionOfAnUnattachedClipboard();
};

static unsigned short newFormat()
{
    static int count = 0;
    const std::wstring name = L"format " + std::to_wstring(++count);
    return static_cast<unsigned short>(RegisterClipboardFormatW(name.c_str()));
}

static HGLOBAL cached(unsigned format, const QByteArray &content)
{
    HGLOBAL memory = newMemory(content);
    COleDataSource().CacheGlobalData(format, memory);
    return memory;
}

// Must be the first: no object lets go of the clipboard again.
void tst_Clipboard::notBeforeTheFirstAttachment()
{
    const unsigned short format = newFormat();
    HGLOBAL memory = cached(format, "early");
    COleDataObject object;
    COleDataObject other;
    QVERIFY(!object.IsDataAvailable(format));
    QVERIFY(!object.GetGlobalData(format));
    QVERIFY(object.AttachClipboard());
    QVERIFY(object.IsDataAvailable(format));
    QVERIFY(other.IsDataAvailable(format));
    QCOMPARE(other.GetGlobalData(format), memory);
}

void tst_Clipboard::roundTrip_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << QStringLiteral("Fmt A");
    QTest::newRow("other characters") << QStringLiteral(u"Gr\u00F6\u00DFe \u4E2D\u6587");
    QTest::newRow("beyond 16 bits") << QString::fromUcs4(U"\U0001F600");
    QTest::newRow("Qt's text") << QStringLiteral("text/plain");
    QTest::newRow("Qt's rich text") << QStringLiteral("text/html");
    QTest::newRow("Qt's URLs") << QStringLiteral("text/uri-list");
    QTest::newRow("Qt's colours") << QStringLiteral("application/x-color");
    QTest::newRow("Qt's images") << QStringLiteral("application/x-qt-image");
    QTest::newRow("an image type") << QStringLiteral("image/png");
}

void tst_Clipboard::roundTrip()
{
    QFETCH(QString, name);

    const auto format = static_cast<unsigned short>(RegisterClipboardFormatW(name.toStdWString().c_str()));
    COleDataObject object;
    QVERIFY(!object.IsDataAvailable(format));
    QVERIFY(!object.GetGlobalData(format));

    HGLOBAL memory = cached(format, "some content");
    FORMATETC fe = {};
    QVERIFY(object.IsDataAvailable(format));
    QVERIFY(object.IsDataAvailable(format, &fe));
    QCOMPARE(object.GetGlobalData(format), memory);
    QCOMPARE(object.GetGlobalData(format, &fe), memory);
    QCOMPARE(int(fe.cfFormat), 0);
    QCOMPARE(contentOf(memory), QByteArray("some content"));

    HGLOBAL second = cached(format, "other");
    QCOMPARE(object.GetGlobalData(format), second);
    QCOMPARE(RegisterClipboardFormatW(name.toStdWString().c_str()), UINT(format));
}

void tst_Clipboard::storeHoldsTheRecordItself()
{
    const UINT format = RegisterClipboardFormatW(L"record");
    HGLOBAL memory = cached(format, "content");
    const QByteArray bytes = g_clipboardData.data(QStringLiteral("record"));
    QCOMPARE(static_cast<const void *>(bytes.constData()), memory);
    QCOMPARE(bytes.size(), 24);
}

void tst_Clipboard::emptyBlock()
{
    const unsigned short format = newFormat();
    HGLOBAL memory = CSharedFile().Detach();
    COleDataSource().CacheGlobalData(format, memory);
    QVERIFY(COleDataObject().IsDataAvailable(format));
    QCOMPARE(COleDataObject().GetGlobalData(format), memory);
    cached(format, "frees a record without a block");
}

void tst_Clipboard::sourceAndObjectHoldNothing()
{
    const unsigned short format = newFormat();
    HGLOBAL memory = newMemory("content");
    {
        COleDataSource source;
        source.CacheGlobalData(format, memory);
        const COleDataObject object;
        QCOMPARE(object.GetGlobalData(format), memory);
    }
    QCOMPARE(COleDataObject().GetGlobalData(format), memory);
    QCOMPARE(contentOf(memory), QByteArray("content"));
}

void tst_Clipboard::replaced()
{
    const unsigned short format = newFormat();
    cached(format, "first");
    HGLOBAL second = cached(format, "second");
    QCOMPARE(COleDataObject().GetGlobalData(format), second);
    QCOMPARE(contentOf(second), QByteArray("second"));
}

// A block as large as this one is mapped by itself, and unmapped when it is freed.
void tst_Clipboard::replacingFreesHandleAndBlock()
{
    // The sanitizer keeps freed blocks, and finds leaks by itself.
    if (isMemorySanitized)
        return;
    const unsigned short format = newFormat();
    const auto mappedBefore = mallinfo2().hblks;
    cached(format, QByteArray(40'000'000, 'x'));
    QCOMPARE(mallinfo2().hblks, mappedBefore + 1);
    cached(format, "small");
    QCOMPARE(mallinfo2().hblks, mappedBefore);
}

void tst_Clipboard::replacingLeavesNothingBehind()
{
    if (isMemorySanitized)
        return;
    constexpr int times = 10000;
    const unsigned short format = newFormat();
    cached(format, "content");
    const auto usedBefore = mallinfo2().uordblks;
    for (int i = 0; i < times; ++i)
        cached(format, "content");
    QVERIFY(mallinfo2().uordblks < usedBefore + times);
}

void tst_Clipboard::formatsAreApart()
{
    const unsigned short first = newFormat();
    const unsigned short second = newFormat();
    HGLOBAL ofFirst = cached(first, "first");
    QVERIFY(!COleDataObject().IsDataAvailable(second));
    HGLOBAL ofSecond = cached(second, "second");
    QCOMPARE(COleDataObject().GetGlobalData(first), ofFirst);
    QCOMPARE(COleDataObject().GetGlobalData(second), ofSecond);
}

void tst_Clipboard::builtInFormats_data()
{
    QTest::addColumn<int>("number");

    QTest::newRow("text") << int(CF_TEXT);
    QTest::newRow("bitmap") << int(CF_BITMAP);
    QTest::newRow("Unicode text") << int(CF_UNICODETEXT);
    QTest::newRow("none") << 0;
}

void tst_Clipboard::builtInFormats()
{
    QFETCH(int, number);

    const auto format = static_cast<unsigned short>(number);
    COleDataObject object;
    QVERIFY(!object.IsDataAvailable(format));
    QVERIFY(!object.GetGlobalData(format));
    HGLOBAL memory = cached(format, "content");
    QVERIFY(!object.IsDataAvailable(format));
    QVERIFY(!object.GetGlobalData(format));
    freeMemory(memory);
    g_mapCF.erase(number);
}

void tst_Clipboard::unregisteredNumbers_data()
{
    QTest::addColumn<unsigned>("number");

    QTest::newRow("below the first") << 3455u;
    QTest::newRow("far above") << 60000u;
    QTest::newRow("above 16 bits") << 0x10000u + 3456u;
    QTest::newRow("largest") << UINT_MAX;
}

void tst_Clipboard::unregisteredNumbers()
{
    QFETCH(unsigned, number);

    newFormat();
    const auto before = g_mapCF;
    const QStringList formats = g_clipboardData.formats();
    HGLOBAL memory = cached(number, "content");
    QCOMPARE(g_clipboardData.formats(), formats);
    QCOMPARE(contentOf(memory), QByteArray("content"));
    freeMemory(memory);

    auto expected = before;
    expected[int(number)] = CString();
    QCOMPARE(g_mapCF, expected);
    g_mapCF = before;
}

void tst_Clipboard::lookUpAddsNoEntry()
{
    const auto before = g_mapCF;
    QVERIFY(!COleDataObject().IsDataAvailable(7));
    QVERIFY(!COleDataObject().GetGlobalData(7));
    QCOMPARE(g_mapCF, before);
}

void tst_Clipboard::registeredWithoutData()
{
    const unsigned short format = newFormat();
    QVERIFY(!COleDataObject().IsDataAvailable(format));
    QVERIFY(!COleDataObject().GetGlobalData(format));
}

// Qt would answer with the URLs' text.
void tst_Clipboard::formatThatLeftTheStore()
{
    const UINT format = RegisterClipboardFormatW(L"text/plain");
    const QByteArray bytes = g_clipboardData.data(QStringLiteral("text/plain"));
    g_clipboardData.removeFormat(QStringLiteral("text/plain"));
    g_clipboardData.setUrls({QUrl(QStringLiteral("file:///a"))});
    QVERIFY(!g_clipboardData.data(QStringLiteral("text/plain")).isEmpty());
    QVERIFY(!COleDataObject().IsDataAvailable(static_cast<unsigned short>(format)));

    HGLOBAL memory = cached(format, "never registered as far as the store knows");
    QVERIFY(!COleDataObject().GetGlobalData(static_cast<unsigned short>(format)));
    freeMemory(memory);
    g_clipboardData.removeFormat(QStringLiteral("text/uri-list"));
    g_clipboardData.setData(QStringLiteral("text/plain"), bytes);
}

void tst_Clipboard::nullHandle()
{
    const unsigned short format = newFormat();
    HGLOBAL memory = cached(format, "content");
    COleDataSource().CacheGlobalData(format, nullptr);
    QCOMPARE(COleDataObject().GetGlobalData(format), memory);

    // Also without a handle the number takes a step in enumerations.
    const auto before = g_mapCF;
    COleDataSource().CacheGlobalData(9, nullptr);
    QCOMPARE(g_mapCF.size(), before.size() + 1);
    QVERIFY(g_mapCF.at(9).IsEmpty());
    g_mapCF = before;
}

void tst_Clipboard::storeEmptiedByTheApplication()
{
    const unsigned short format = newFormat();
    HGLOBAL memory = cached(format, "content");
    const QString name = QString::fromWCharArray(g_mapCF.at(format).c_str());
    g_clipboardData.setData(name, QByteArray());
    QVERIFY(!COleDataObject().GetGlobalData(format));
    COleDataSource().CacheGlobalData(format, memory);
    QCOMPARE(COleDataObject().GetGlobalData(format), memory);
}

void tst_Clipboard::sameHandleAgain()
{
    const unsigned short format = newFormat();
    HGLOBAL memory = cached(format, "content");
    COleDataSource().CacheGlobalData(format, memory);
    QCOMPARE(COleDataObject().GetGlobalData(format), memory);
    QCOMPARE(contentOf(memory), QByteArray("content"));
}

void tst_Clipboard::handleOfAnotherFormat()
{
    const unsigned short first = newFormat();
    const unsigned short second = newFormat();
    HGLOBAL ofFirst = cached(first, "first");
    HGLOBAL ofSecond = cached(second, "second");
    COleDataSource().CacheGlobalData(second, ofFirst);
    QCOMPARE(COleDataObject().GetGlobalData(first), ofFirst);
    QCOMPARE(COleDataObject().GetGlobalData(second), ofSecond);
    QCOMPARE(contentOf(ofSecond), QByteArray("second"));

    cached(first, "frees the handle");
    QCOMPARE(contentOf(ofSecond), QByteArray("second"));
}

// The allocator gives a freed record's address out again.
void tst_Clipboard::handleAgainAfterItsRelease()
{
    const unsigned short first = newFormat();
    const unsigned short second = newFormat();
    for (int i = 0; i < 100; ++i) {
        cached(first, "first");
        HGLOBAL memory = cached(second, "second");
        QCOMPARE(COleDataObject().GetGlobalData(second), memory);
    }
}

void tst_Clipboard::unattachedClipboard()
{
    const unsigned short format = newFormat();
    HGLOBAL memory = cached(format, "content");
    KxPlatformClipboard clipboard;
    QVERIFY(!clipboard.isDataAvailable(format, nullptr));
    QVERIFY(!clipboard.getGlobalData(format, nullptr));
    QVERIFY(clipboard.attachClipboard());
    QVERIFY(clipboard.isDataAvailable(format, nullptr));
    QCOMPARE(clipboard.getGlobalData(format, nullptr), memory);
}

void tst_Clipboard::destructionOfAnAttachedClipboard()
{
    const unsigned short format = newFormat();
    const unsigned short other = newFormat();
    cached(format, "content");
    cached(other, "content");
    {
        KxPlatformClipboard clipboard;
        clipboard.attachClipboard();
    }
    COleDataObject object;
    QVERIFY(!object.IsDataAvailable(format));
    QVERIFY(!object.IsDataAvailable(other));
    HGLOBAL memory = cached(format, "again");
    QCOMPARE(object.GetGlobalData(format), memory);
}

void tst_Clipboard::destructionOfAnUnattachedClipboard()
{
    const unsigned short format = newFormat();
    HGLOBAL memory = cached(format, "content");
    {
        KxPlatformClipboard clipboard;
    }
    QCOMPARE(COleDataObject().GetGlobalData(format), memory);
    QCOMPARE(contentOf(memory), QByteArray("content"));
}

QTEST_APPLESS_MAIN(tst_Clipboard)
#include "tst_Clipboard.moc"
