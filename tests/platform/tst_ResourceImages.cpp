#include "ImageFormats.h"
#include "LanguageIds.h"
#include "ResourceBytes.h"
#include "ResourceImage.h"
#include "StringTable.h"

#include <QBuffer>
#include <QFile>
#include <QLocale>
#include <QtEndian>
#include <QtTest>

namespace {
QString stringOf(const QByteArray &image, unsigned id, LanguageId language = 0x409)
{
    const StringTable table({ResourceImage(bytesOf(image))}, language);
    wchar_t buffer[100];
    const int count = table.copy(id, buffer, 100);
    return QString::fromWCharArray(buffer, count);
}
} // namespace

class tst_ResourceImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bitmap_data();
    void bitmap();
    void bitmapFile_data();
    void bitmapFile();
    void bitmapCutShort_data();
    void bitmapCutShort();
    void damagedBitmap_data();
    void damagedBitmap();
    void alphaMask();
    void damagedIcon_data();
    void damagedIcon();
    void iconGroupCutShort();
    void strings();
    void neutralLanguage();
    void nameInSmallLetters();
    void loneSurrogates();
    void stringBlockCutShort();
    void damagedImage_data();
    void damagedImage();
    void realImageCutShort();
    void realImageWithAnyByteChanged();
    void languageId_data();
    void languageId();
};

void tst_ResourceImages::bitmap_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Pixels>("pixels");
    const auto row = [](const char *name, const QByteArray &bytes, const Pixels &pixels = allColors) {
        QTest::newRow(name) << bytes << pixels;
    };

    row("1 bit", infoHeader({3, 2, 1}) + palette(2) + bits1(), twoColors);
    row("1 bit, number of colours told", infoHeader({3, 2, 1, 0, 2}) + palette(2) + bits1(), twoColors);
    row("4 bits", infoHeader({3, 2, 4}) + palette(16) + bits4());
    row("4 bits, less colours", infoHeader({3, 2, 4, 0, 4}) + palette(4) + bits4());
    row("8 bits", infoHeader({3, 2, 8}) + palette(256) + bits8());
    row("8 bits, less colours", infoHeader({3, 2, 8, 0, 4}) + palette(4) + bits8());
    row("16 bits", infoHeader({3, 2, 16}) + bits16(0x7C00, 0x3E0, 0x1F));
    row("16 bits, masks",
        infoHeader({3, 2, 16, 3}) + masks({0xF800, 0x7E0, 0x1F}) + bits16(0xF800, 0x7E0, 0x1F));
    row("24 bits", infoHeader({3, 2, 24}) + bits24());
    row("24 bits with a palette", infoHeader({3, 2, 24, 0, 4}) + palette(4) + bits24());
    row("32 bits", infoHeader({3, 2, 32}) + bits32());
    row("32 bits, masks", infoHeader({3, 2, 32, 3}) + masks({0xFF0000, 0xFF00, 0xFF}) + bits32());

    row("1 bit, top-down", infoHeader({3, -2, 1}) + palette(2) + topDown(bits1()), twoColors);
    row("4 bits, top-down", infoHeader({3, -2, 4}) + palette(16) + topDown(bits4()));
    row("8 bits, top-down", infoHeader({3, -2, 8}) + palette(256) + topDown(bits8()));
    row("16 bits, top-down", infoHeader({3, -2, 16}) + topDown(bits16(0x7C00, 0x3E0, 0x1F)));
    row("24 bits, top-down", infoHeader({3, -2, 24}) + topDown(bits24()));
    row("32 bits, top-down", infoHeader({3, -2, 32}) + topDown(bits32()));

    row("1 bit, core header", coreHeader(1) + palette(2, 3) + bits1(), twoColors);
    row("4 bits, core header", coreHeader(4) + palette(16, 3) + bits4());
    row("8 bits, core header", coreHeader(8) + palette(256, 3) + bits8());
    row("24 bits, core header", coreHeader(24) + bits24());
}

void tst_ResourceImages::bitmap()
{
    QFETCH(QByteArray, bytes);
    QFETCH(Pixels, pixels);

    const QImage image = readBitmap(bytesOf(bytes));
    QCOMPARE(image.size(), QSize(3, 2));
    for (int i = 0; i < pixels.size(); ++i)
        QCOMPARE(image.pixel(i % 3, i / 3), pixels[i]);
}

void tst_ResourceImages::bitmapFile_data()
{
    QTest::addColumn<QByteArray>("signature");
    QTest::addColumn<int>("told");
    QTest::addColumn<int>("gap");
    QTest::addColumn<bool>("readable");
    QTest::newRow("pixels behind the header") << QByteArray("BM") << 54 << 0 << true;
    QTest::newRow("gap before the pixels") << QByteArray("BM") << 60 << 6 << true;
    QTest::newRow("no offset told") << QByteArray("BM") << 0 << 0 << true;
    QTest::newRow("pixels beyond the end") << QByteArray("BM") << 61 << 6 << false;
    QTest::newRow("largest offset") << QByteArray("BM") << -1 << 0 << false;
    QTest::newRow("another signature") << QByteArray("BA") << 54 << 0 << false;
}

void tst_ResourceImages::bitmapFile()
{
    QFETCH(QByteArray, signature);
    QFETCH(int, told);
    QFETCH(int, gap);
    QFETCH(bool, readable);
    QByteArray file = signature + QByteArray(8, '\0');
    put(file, std::uint32_t(told));
    file += infoHeader({3, 2, 24}) + QByteArray(gap, '\xEE') + bits24();
    const QImage image = readBitmapFile(bytesOf(file));
    QCOMPARE(image.isNull(), !readable);
    for (int i = 0; readable && i < allColors.size(); ++i)
        QCOMPARE(image.pixel(i % 3, i / 3), allColors[i]);
}

void tst_ResourceImages::bitmapCutShort_data()
{
    bitmap_data();
}

void tst_ResourceImages::bitmapCutShort()
{
    QFETCH(QByteArray, bytes);
    for (int size = 0; size < bytes.size(); ++size)
        QVERIFY2(readBitmap(bytesOf(bytes.left(size))).isNull(), qPrintable(QString::number(size)));
}

void tst_ResourceImages::damagedBitmap_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const InfoHeader &header) {
        QTest::newRow(name) << infoHeader(header) + palette(256) + QByteArray(1000, '\0');
    };
    row("no width", {0, 2});
    row("no height", {3, 0});
    row("negative width", {-3, 2});
    row("smallest height", {3, INT_MIN});
    row("largest size", {INT_MAX, INT_MAX});
    row("row size wraps", {0x20000001, 2, 32});
    row("0 bits", {3, 2, 0});
    row("2 bits", {3, 2, 2});
    row("33 bits", {3, 2, 33});
    row("JPEG", {3, 2, 24, 4});
    row("unknown compression", {3, 2, 24, 99});
    row("more colours than bytes", {3, 2, 24, 0, 600});
    row("huge number of colours", {3, 2, 8, 0, -1});
    row("unknown header", {3, 2, 24, 0, 0, 41});
    row("header beyond the end", {3, 2, 24, 0, 0, 0x7FFFFFFF});
    row("no header", {3, 2, 24, 0, 0, 0});
    row("run lengths of a huge bitmap", {30000, 30000, 8, 1});
}

void tst_ResourceImages::damagedBitmap()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(readBitmap(bytesOf(bytes)).isNull());
}

void tst_ResourceImages::alphaMask()
{
    QByteArray header = infoHeader({1, 1, 32, 3, 0, 108});
    header += masks({0xFF0000, 0xFF00, 0xFF, 0xFF000000}) + QByteArray(108 - 56, '\0');
    const QImage image = readBitmap(bytesOf(header + QByteArray("\x10\x20\x30\x40")));
    QCOMPARE(image.pixel(0, 0), QRgb(0x40302010));
}

void tst_ResourceImages::damagedIcon_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray png("\x89PNG\r\n\x1A\n\0\0\0\x0DIHDR", 16);
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("header only") << infoHeader({4, 8, 32});
    QTest::newRow("no height") << infoHeader({4, 0, 32}) + QByteArray(100, '\0');
    QTest::newRow("top-down") << infoHeader({4, -8, 32}) + QByteArray(100, '\0');
    QTest::newRow("core header") << coreHeader(32) + QByteArray(100, '\0');
    QTest::newRow("run lengths") << infoHeader({4, 8, 8, 1}) + QByteArray(2000, '\0');
    QTest::newRow("signature only") << png;
    QTest::newRow("PNG without width") << png + QByteArray(50, '\0');
    QTest::newRow("huge PNG") << png + QByteArray(8, '\x7F') + QByteArray(50, '\0');
}

void tst_ResourceImages::damagedIcon()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(readIcon(bytesOf(bytes)).isNull());
}

void tst_ResourceImages::iconGroupCutShort()
{
    QByteArray group;
    for (const int value : {0, 1, 2})
        put(group, std::uint16_t(value));
    for (const int size : {16, 0}) {
        put(group, {size, size, 0, 0});
        put(group, std::uint16_t(1));
        put(group, std::uint16_t(8));
        put(group, std::uint32_t(99));
        put(group, std::uint16_t(7));
    }
    const auto entries = readIconGroup(bytesOf(group));
    QCOMPARE(entries.size(), std::size_t(2));
    QCOMPARE(entries[0].size, QSize(16, 16));
    QCOMPARE(entries[1].size, QSize(256, 256));
    QCOMPARE(entries[1].id, std::uint16_t(7));
    for (int size = 0; size < group.size(); ++size)
        QVERIFY(readIconGroup(bytesOf(group.left(size))).empty());
    group[2] = 2;
    QVERIFY2(readIconGroup(bytesOf(group)).empty(), "a group of cursors");
}

void tst_ResourceImages::strings()
{
    const QByteArray bytes = image(record(6, 1, 0x409, stringBlock({{}, QStringLiteral("one")})) +
                                   record(6, 4096, 0x409, stringBlock({QStringLiteral("high")})));
    QCOMPARE(stringOf(bytes, 1), QStringLiteral("one"));
    QCOMPARE(stringOf(bytes, 0), QString());
    QCOMPARE(stringOf(bytes, 2), QString());
    QCOMPARE(stringOf(bytes, 65520), QStringLiteral("high"));
}

void tst_ResourceImages::neutralLanguage()
{
    const QByteArray french = record(6, 1, 0x40C, stringBlock({QStringLiteral("French")}));
    const QByteArray neutral = record(6, 1, 0, stringBlock({QStringLiteral("neutral")}));
    QCOMPARE(stringOf(image(french + neutral), 0), QStringLiteral("neutral"));
    QCOMPARE(stringOf(image(french + neutral), 0, 0x80C), QStringLiteral("French"));
    QCOMPARE(stringOf(image(french), 0), QStringLiteral("French"));
}

void tst_ResourceImages::nameInSmallLetters()
{
    QByteArray bytes = record(2, 'a', 0, "data");
    // The mark of a number becomes a letter, and what follows the number ends the text.
    bytes.replace(12, 2, QByteArray("b", 2));
    const QByteArray named = image(bytes.left(4) + QByteArray("\x24\0\0\0", 4) + bytes.mid(8, 8) +
                                   QByteArray(4, '\0') + bytes.mid(16));
    QVERIFY(ResourceImage(bytesOf(named)).find(ResourceType::Bitmap, {0, u"BA"}, 0).size() == 1);
}

void tst_ResourceImages::loneSurrogates()
{
    const ushort units[] = {0xD800, 'a', 0xDC00, 0xD83D};
    const QByteArray bytes = image(record(6, 1, 0, stringBlock({QString::fromUtf16(units, 4)})));
    const StringTable table({ResourceImage(bytesOf(bytes))}, 0);
    wchar_t buffer[10];
    QCOMPARE(table.copy(0, buffer, 10), 4);
    for (int i = 0; i < 4; ++i)
        QCOMPARE(buffer[i], wchar_t(units[i]));
}

void tst_ResourceImages::stringBlockCutShort()
{
    const QByteArray block = stringBlock({QStringLiteral("one"), QStringLiteral("two")});
    for (int size = 0; size <= block.size(); ++size) {
        const QByteArray bytes = image(record(6, 1, 0, block.left(size)));
        QCOMPARE(stringOf(bytes, 0), size >= 8 ? QStringLiteral("one") : QString());
        QCOMPARE(stringOf(bytes, 1), size >= 16 ? QStringLiteral("two") : QString());
    }
}

void tst_ResourceImages::damagedImage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = image(record(6, 1, 0x409, stringBlock({QStringLiteral("text")})));
    const auto changed = [&](int offset, std::uint32_t number) {
        QByteArray bytes = good;
        qToLittleEndian(number, bytes.data() + offset);
        return bytes;
    };
    const int second = 32;
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray(256, '\0');
    QTest::newRow("ones") << QByteArray(256, '\xFF');
    QTest::newRow("no header") << changed(second + 4, 0);
    QTest::newRow("header ends in the sizes") << changed(second + 4, 7);
    QTest::newRow("header ends in the type") << changed(second + 4, 10);
    QTest::newRow("header ends in the name") << changed(second + 4, 14);
    QTest::newRow("header ends in the attributes") << changed(second + 4, 31);
    QTest::newRow("header beyond the end") << changed(second + 4, 0xFFFFFFFF);
    QTest::newRow("data one beyond the end") << changed(second, 41);
    QTest::newRow("data far beyond the end") << changed(second, 0xFFFFFFFF);
    QTest::newRow("sizes wrap") << changed(0, 0xFFFFFFE0);
    QTest::newRow("name without end") << changed(second + 12, 0x00410041);
    QTest::newRow("garbage behind") << good + QByteArray("abc");
    QTest::newRow("half a record behind") << good + good.left(20);
    QTest::newRow("wrong type") << changed(second + 8, 0x0007FFFF);
    QTest::newRow("wrong block") << changed(second + 12, 0x0002FFFF);
    QTest::newRow("block beyond all strings") << changed(second + 12, 0xFFFFFFFF);
    QTest::newRow("block behind all strings") << changed(second + 12, 0x1001FFFF);
    QTest::newRow("block 0") << changed(second + 12, 0x0000FFFF);
    QCOMPARE(stringOf(good, 0), QStringLiteral("text"));
}

void tst_ResourceImages::damagedImage()
{
    QFETCH(QByteArray, bytes);
    // Copied to the end of a block of memory, where a sanitizer sees a read too far.
    const std::vector<std::uint8_t> exact(bytes.begin(), bytes.end());
    const ResourceImage image({exact.data(), exact.size()});
    const StringTable table({image}, 0x409);
    for (unsigned id = 0; id < 16; ++id) {
        wchar_t buffer[100];
        QCOMPARE(table.copy(id, buffer, 100), 0);
    }
}

void tst_ResourceImages::realImageCutShort()
{
    QFile file(QStringLiteral(KX_FUZZ_CORPUS "/names.res"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    QVERIFY(!ResourceImage(bytesOf(whole)).find(ResourceType::Bitmap, {0, u"NAMED"}, 0).empty());
    for (int size = 0; size < whole.size(); ++size) {
        const QByteArray cut = whole.left(size);
        const std::vector<std::uint8_t> exact(cut.begin(), cut.end());
        const ResourceImage image({exact.data(), exact.size()});
        for (const auto &resource : image.find(ResourceType::Bitmap, {0, u"NAMED"}, 0))
            QCOMPARE(readBitmap(resource.data).size(), QSize(3, 2));
    }
}

// Whatever the change, it ends, and a sanitizer has nothing to report.
void tst_ResourceImages::realImageWithAnyByteChanged()
{
    QFile file(QStringLiteral(KX_FUZZ_CORPUS "/icon.res"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    int found = 0;
    for (int at = 0; at < whole.size(); ++at) {
        std::vector<std::uint8_t> changed(whole.begin(), whole.end());
        changed[std::size_t(at)] ^= 0xFF;
        const ResourceImage image({changed.data(), changed.size()});
        for (const auto &group : image.find(ResourceType::IconGroup, {1, {}}, 0)) {
            for (const IconEntry &entry : readIconGroup(group.data)) {
                for (const auto &icon : image.find(ResourceType::Icon, {entry.id, {}}, 0))
                    found += !readIcon(icon.data).isNull();
            }
        }
    }
    QVERIFY(found > 0);
}

void tst_ResourceImages::languageId_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("id");
    const auto row = [](const char *locale, int id) {
        QTest::newRow(locale) << QString::fromUtf8(locale) << id;
    };
    row("C", 0x0409);
    row("en_US", 0x0409);
    row("en_GB", 0x0809);
    row("en_DE", 0x0409);
    row("de", 0x0407);
    row("de_AT", 0x0C07);
    row("de_BE", 0x0407);
    row("fr_CA", 0x0C0C);
    row("zh_CN", 0x0804);
    row("zh_TW", 0x0404);
    row("pt_BR", 0x0416);
    row("pt_PT", 0x0816);
    row("nb_NO", 0x0414);
    row("eo", 0);
}

void tst_ResourceImages::languageId()
{
    QFETCH(QString, locale);
    QFETCH(int, id);
    QCOMPARE(int(::languageId(QLocale(locale))), id);
}

QTEST_GUILESS_MAIN(tst_ResourceImages)
#include "tst_ResourceImages.moc"
