#include "ResourceFixture.h"
#include "resources/resource.h"

#include <KxEmbeddedResources.h>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

namespace {
// Made before main(), as an application's static objects are.
const QString g_loadedEarly = loadString(nullptr, IDS_FIRST);
// Set up before the application object is made, but after that.
const bool g_localeIsSet = [] {
    QLocale::setDefault(QLocale(QStringLiteral("de_AT")));
    return true;
}();

QImage blue()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::blue);
    return image;
}
} // namespace

class tst_PlatformResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void text_data();
    void text();
    void longText();
    void room_data();
    void room();
    void unknownString_data();
    void unknownString();
    void loadsBeforeMain();
    void language_data();
    void language();
    void languageOfBitmap();
    void chosenLanguage();
    void languageOfTheDefaultLocaleIsKept();
    void satellite();
    void satelliteUsedTwice();
    void moduleWithoutResources();
    void imageForATime();
    void releasedModule();
    void bitmap_data();
    void bitmap();
    void bitmapIsAGdiObject();
    void imageIsScaled_data();
    void imageIsScaled();
    void icon_data();
    void icon();
    void imageOfFile_data();
    void imageOfFile();
    void bitmapFileIsReadAsTheResource();
    void unknownImage_data();
    void unknownImage();
};

void tst_PlatformResources::initTestCase()
{
    QVERIFY(g_localeIsSet);
    QCOMPARE(loadString(nullptr, IDS_GREETING), QStringLiteral("Servus"));
    QLocale::setDefault(QLocale::c());
    QCOMPARE(SetThreadUILanguage(0), LANGID(0x0409));
}

void tst_PlatformResources::text_data()
{
    QTest::addColumn<uint>("id");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, uint id, const QString &text) {
        QTest::newRow(name) << id << text;
    };

    row("smallest identifier", IDS_FIRST, QStringLiteral("first"));
    row("plain", IDS_GREETING, QStringLiteral("Hello"));
    row("doubled quotes", IDS_QUOTED, QStringLiteral("say \"hi\" twice"));
    row("escapes", IDS_ESCAPES, QStringLiteral("tab\tline\nreturn\r\\back AA\b"));
    row("wide", IDS_WIDE, QString::fromUtf8("wide \u20ac \u20ac \"\u00fc\" \U0001F600"));
    row("escaped bytes of the code page", IDS_CODE_PAGE,
        QString::fromUtf8("\u20ac\u2122\u00fc\u00fc\u20ac C:\\x86\\347"));
    row("special characters", IDS_SEMICOLON, QStringLiteral("a;b [c] ;; $x ${y} @z@ %d"));
    row("beyond 16 bits", IDS_SURROGATES, QString::fromUtf8("a\U0001F600b"));
    row("continued line", IDS_JOINED, QStringLiteral("one two"));
    row("null inside", IDS_NUL, QString(QStringLiteral("a")) + QChar() + QLatin1Char('b'));
    row("from an included file in a code page", IDS_INCLUDED, QString::fromUtf8("from \u201cinside\u201d"));
    row("from a definition", IDS_DEFINED, QStringLiteral("from outside"));
    row("largest identifier", IDS_LAST, QStringLiteral("last"));
    row("standard identifier", 0xE000, QStringLiteral("Title"));
    row("second script", IDS_SECOND, QStringLiteral("from the second script"));
}

void tst_PlatformResources::text()
{
    QFETCH(uint, id);
    QFETCH(QString, text);
    const DefaultLocale english(QStringLiteral("en_US"));
    QCOMPARE(loadString(nullptr, id), text);
}

void tst_PlatformResources::longText()
{
    const DefaultLocale english(QStringLiteral("en_US"));
    const QString text = loadString(nullptr, IDS_LONG);
    QCOMPARE(text.size(), 4097);
    for (int i = 0; i < text.size(); ++i)
        QCOMPARE(text[i], QChar('a' + i % 26));
}

void tst_PlatformResources::room_data()
{
    QTest::addColumn<uint>("id");
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("buffer");

    const uint plain = IDS_GREETING;
    QTest::newRow("negative") << plain << -1 << 0 << QStringLiteral("########");
    QTest::newRow("none") << plain << 0 << 0 << QStringLiteral("########");
    QTest::newRow("terminator only") << plain << 1 << 0 << QStringLiteral(".#######");
    QTest::newRow("one character") << plain << 2 << 1 << QStringLiteral("H.######");
    QTest::newRow("one too few") << plain << 5 << 4 << QStringLiteral("Hell.###");
    QTest::newRow("exact") << plain << 6 << 5 << QStringLiteral("Hello.##");
    QTest::newRow("more") << plain << 8 << 5 << QStringLiteral("Hello.##");
    const uint surrogates = IDS_SURROGATES;
    QTest::newRow("cut before a pair") << surrogates << 2 << 1 << QStringLiteral("a.######");
    QTest::newRow("cut behind a pair") << surrogates << 3 << 2 << QString::fromUtf8("a\U0001F600.#####");
    QTest::newRow("a pair is one") << surrogates << 8 << 3 << QString::fromUtf8("a\U0001F600b.####");
}

void tst_PlatformResources::room()
{
    QFETCH(uint, id);
    QFETCH(int, room);
    QFETCH(int, count);
    QFETCH(QString, buffer);

    const DefaultLocale english(QStringLiteral("en_US"));
    wchar_t text[] = L"########";
    QCOMPARE(LoadStringW(nullptr, id, text, room), count);
    std::replace(text, text + 8, L'\0', L'.');
    QCOMPARE(QString::fromWCharArray(text, 8), buffer);
}

void tst_PlatformResources::unknownString_data()
{
    QTest::addColumn<uint>("id");
    QTest::newRow("0") << 0U;
    QTest::newRow("in a known block") << uint(IDS_FIRST) + 1;
    QTest::newRow("in an unknown block") << 40000U;
    QTest::newRow("beyond 16 bits") << 0x10000U;
    QTest::newRow("known in the low 16 bits") << 0x10000U + IDS_GREETING;
    QTest::newRow("largest") << 0xFFFFFFFFU;
}

void tst_PlatformResources::unknownString()
{
    QFETCH(uint, id);
    wchar_t buffer[] = L"before";
    QCOMPARE(LoadStringW(nullptr, id, buffer, 6), 0);
    QCOMPARE(std::wstring(buffer), std::wstring());
    QCOMPARE(buffer[1], L'e');
    QCOMPARE(LoadStringW(nullptr, id, nullptr, 6), 0);
}

void tst_PlatformResources::loadsBeforeMain()
{
    QCOMPARE(g_loadedEarly, QStringLiteral("first"));
}

void tst_PlatformResources::language_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<uint>("id");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *locale, uint id, const char *text) {
        QTest::newRow(name) << QString::fromUtf8(locale) << id << QString::fromUtf8(text);
    };

    row("exact", "de_DE", IDS_GREETING, "Gr\u00fc\u00df Gott");
    row("exact variant", "de_AT", IDS_GREETING, "Servus");
    row("other variant", "de_CH", IDS_GREETING, "Gr\u00fc\u00df Gott");
    row("variant that Win32 does not number", "de_BE", IDS_GREETING, "Gr\u00fc\u00df Gott");
    row("the variant lacks it", "de_AT", IDS_VARIANT, "Farbe");
    row("neutral", "ja_JP", IDS_GREETING, "neutral");
    row("neutral, for a language without number", "eo", IDS_GREETING, "neutral");
    row("only the neutral table has it", "de_DE", IDS_ONLY_NEUTRAL, "neutral only");
    row("the best table lacks it", "de_DE", IDS_ONLY_ENGLISH, "English only");
    row("only another language has it", "de_DE", IDS_ONLY_FRENCH, "fran\u00e7ais");
    row("first of the others", "ja_JP", IDS_VARIANT, "Farbe");
    row("exact variant of English", "en_GB", IDS_VARIANT, "Colour");
    row("other variant of English", "en_US", IDS_VARIANT, "Colour");
    row("the C locale is English", "C", IDS_GREETING, "Hello");
}

void tst_PlatformResources::language()
{
    QFETCH(QString, locale);
    QFETCH(uint, id);
    QFETCH(QString, text);
    const DefaultLocale guard(locale);
    QCOMPARE(loadString(nullptr, id), text);
}

void tst_PlatformResources::languageOfBitmap()
{
    const wchar_t *name = MAKEINTRESOURCEW(IDB_LANGUAGE);
    {
        const DefaultLocale german(QStringLiteral("de_AT"));
        QCOMPARE(loadImage(nullptr, name), blue());
    }
    const DefaultLocale english(QStringLiteral("en_GB"));
    QCOMPARE(loadImage(nullptr, name), arrow());
}

void tst_PlatformResources::chosenLanguage()
{
    const DefaultLocale english(QStringLiteral("en_US"));
    QCOMPARE(SetThreadUILanguage(0x0C07), LANGID(0x0C07));
    QCOMPARE(loadString(nullptr, IDS_GREETING), QStringLiteral("Servus"));
    QLocale::setDefault(QLocale(QStringLiteral("fr_FR")));
    QCOMPARE(loadString(nullptr, IDS_GREETING), QStringLiteral("Servus"));
    QCOMPARE(SetThreadUILanguage(0), LANGID(0x040C));
    QCOMPARE(loadString(nullptr, IDS_ONLY_FRENCH), QString::fromUtf8("fran\u00e7ais"));
}

void tst_PlatformResources::languageOfTheDefaultLocaleIsKept()
{
    const DefaultLocale english(QStringLiteral("en_US"));
    QCOMPARE(loadString(nullptr, IDS_GREETING), QStringLiteral("Hello"));
    QLocale::setDefault(QLocale(QStringLiteral("de_AT")));
    QCOMPARE(loadString(nullptr, IDS_GREETING), QStringLiteral("Hello"));
    QCOMPARE(SetThreadUILanguage(0), LANGID(0x0C07));
    QCOMPARE(loadString(nullptr, IDS_GREETING), QStringLiteral("Servus"));
}

void tst_PlatformResources::satellite()
{
    const DefaultLocale english(QStringLiteral("en_US"));
    const LoadedModule module(KX_satellite);
    QVERIFY(module);
    QCOMPARE(loadString(module, IDS_GREETING), QStringLiteral("from the satellite"));
    QCOMPARE(loadImage(module, MAKEINTRESOURCEW(IDB_ARROW)), blue());
    // Each module has its own resources only.
    QCOMPARE(loadString(module, IDS_FIRST), QString());
    QCOMPARE(loadString(nullptr, IDS_GREETING), QStringLiteral("Hello"));
    QVERIFY(loadImage(module, MAKEINTRESOURCEW(IDB_BARE)).isNull());
}

void tst_PlatformResources::satelliteUsedTwice()
{
    const HINSTANCE module = LoadLibraryW(QStringLiteral(KX_satellite).toStdWString().c_str());
    QCOMPARE(LoadLibraryW(QStringLiteral(KX_satellite).toStdWString().c_str()), module);
    QVERIFY(FreeLibrary(module));
    QCOMPARE(loadString(module, IDS_GREETING), QStringLiteral("from the satellite"));
    QVERIFY(FreeLibrary(module));
    QCOMPARE(loadString(module, IDS_GREETING), QString());
}

void tst_PlatformResources::moduleWithoutResources()
{
    const LoadedModule module(KX_MODULE_FILE);
    QVERIFY(module);
    QCOMPARE(loadString(module, IDS_GREETING), QString());
    QVERIFY(loadImage(module, MAKEINTRESOURCEW(IDB_ARROW)).isNull());
}

void tst_PlatformResources::imageForATime()
{
    // One block of strings for the identifiers 496 to 511, of which the second is "x".
    alignas(4) static const unsigned char image[] = {
        0x24, 0, 0, 0, 0x20, 0, 0, 0, 0xFF, 0xFF, 6, 0, 0xFF, 0xFF, 32, 0, //
        0,    0, 0, 0, 0,    0, 0, 0, 0,    0,    0, 0, 0,    0,    0,  0, //
        0,    0, 1, 0, 'x',  0, 0, 0, 0,    0,    0, 0, 0,    0,    0,  0, //
        0,    0, 0, 0, 0,    0, 0, 0, 0,    0,    0, 0, 0,    0,    0,  0, 0, 0, 0, 0};
    QCOMPARE(loadString(nullptr, 497), QString());
    {
        const KxEmbeddedResources resources(image, image + sizeof image);
        QCOMPARE(loadString(nullptr, 497), QStringLiteral("x"));
        QCOMPARE(loadString(nullptr, IDS_FIRST), QStringLiteral("first"));
    }
    QCOMPARE(loadString(nullptr, 497), QString());
    QCOMPARE(loadString(nullptr, IDS_FIRST), QStringLiteral("first"));
}

void tst_PlatformResources::releasedModule()
{
    const HINSTANCE module = LoadLibraryW(QStringLiteral(KX_satellite).toStdWString().c_str());
    QCOMPARE(loadString(module, IDS_GREETING), QStringLiteral("from the satellite"));
    QVERIFY(FreeLibrary(module));
    int foreign = 0;
    for (const HINSTANCE none :
         {module, reinterpret_cast<HINSTANCE>(&foreign), reinterpret_cast<HINSTANCE>(std::uintptr_t{1})}) {
        QCOMPARE(loadString(none, IDS_GREETING), QString());
        QVERIFY(loadImage(none, MAKEINTRESOURCEW(IDB_ARROW)).isNull());
    }
    const LoadedModule again(KX_satellite);
    QCOMPARE(loadString(again, IDS_GREETING), QStringLiteral("from the satellite"));
}

void tst_PlatformResources::bitmap_data()
{
    QTest::addColumn<quintptr>("name");
    QTest::newRow("number") << quintptr(IDB_ARROW);
    QTest::newRow("file name without quotes") << quintptr(IDB_BARE);
    static const wchar_t text[] = L"NamedArrow";
    QTest::newRow("name") << quintptr(text);
    static const wchar_t capitals[] = L"NAMEDARROW";
    QTest::newRow("name in another case") << quintptr(capitals);
    static const wchar_t number[] = L"#300";
    QTest::newRow("number as text") << quintptr(number);
}

void tst_PlatformResources::bitmap()
{
    QFETCH(quintptr, name);
    QCOMPARE(loadImage(nullptr, reinterpret_cast<const wchar_t *>(name)), arrow());
}

void tst_PlatformResources::bitmapIsAGdiObject()
{
    KxGdiObjectService &gdi = platformServices().gdiObjects();
    const HANDLE first = LoadImageW(nullptr, MAKEINTRESOURCEW(IDB_ARROW), IMAGE_BITMAP, 0, 0, 0);
    const HANDLE second = LoadImageW(nullptr, MAKEINTRESOURCEW(IDB_ARROW), IMAGE_BITMAP, 0, 0, 0);
    QVERIFY(first && second && first != second);
    QCOMPARE(gdi.bitmapImage(first), arrow());
    QPainter(gdi.bitmapDevice(first)).fillRect(0, 0, 3, 2, Qt::red);
    QCOMPARE(gdi.bitmapImage(first).pixelColor(2, 1), QColor(Qt::red));
    QCOMPARE(gdi.bitmapImage(second), arrow());
    QVERIFY(gdi.deleteObject(first));
    QVERIFY(gdi.bitmapImage(first).isNull());
    QVERIFY(gdi.deleteObject(second));
}

void tst_PlatformResources::imageIsScaled_data()
{
    QTest::addColumn<QSize>("wanted");
    QTest::addColumn<QSize>("size");
    QTest::newRow("own size") << QSize(0, 0) << QSize(3, 2);
    QTest::newRow("own size, told") << QSize(3, 2) << QSize(3, 2);
    QTest::newRow("wider") << QSize(30, 0) << QSize(30, 2);
    QTest::newRow("taller") << QSize(0, 8) << QSize(3, 8);
    QTest::newRow("smaller") << QSize(1, 1) << QSize(1, 1);
    QTest::newRow("negative width") << QSize(-1, 2) << QSize(0, 0);
    QTest::newRow("negative height") << QSize(3, -1) << QSize(0, 0);
    QTest::newRow("largest") << QSize(8192, 1) << QSize(8192, 1);
    QTest::newRow("too wide") << QSize(8193, 1) << QSize(0, 0);
    QTest::newRow("too tall") << QSize(1, INT_MAX) << QSize(0, 0);
}

void tst_PlatformResources::imageIsScaled()
{
    QFETCH(QSize, wanted);
    QFETCH(QSize, size);
    const QImage image =
        loadImage(nullptr, MAKEINTRESOURCEW(IDB_ARROW), IMAGE_BITMAP, wanted.width(), wanted.height());
    QCOMPARE(image.size(), size);
    if (!size.isEmpty()) {
        QCOMPARE(image.format(), QImage::Format_RGB32);
        // The whole image is scaled: blue is the same all over.
        QCOMPARE(image.pixelColor(size.width() - 1, size.height() - 1).blue(), 50);
    }
}

void tst_PlatformResources::icon_data()
{
    QTest::addColumn<QSize>("wanted");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QColor>("color");
    QTest::newRow("the first by default") << QSize(0, 0) << QSize(8, 8) << QColor(Qt::red);
    QTest::newRow("exact, most colours") << QSize(4, 4) << QSize(4, 4) << QColor(Qt::green);
    QTest::newRow("compressed") << QSize(24, 24) << QSize(24, 24) << QColor(Qt::blue);
    QTest::newRow("nearest, scaled up") << QSize(30, 30) << QSize(30, 30) << QColor(Qt::blue);
    QTest::newRow("nearest, scaled down") << QSize(2, 2) << QSize(2, 2) << QColor(Qt::green);
    QTest::newRow("width alone") << QSize(4, 0) << QSize(4, 4) << QColor(Qt::green);
}

void tst_PlatformResources::icon()
{
    QFETCH(QSize, wanted);
    QFETCH(QSize, size);
    QFETCH(QColor, color);

    const QImage image =
        loadImage(nullptr, MAKEINTRESOURCEW(IDI_STAR), IMAGE_ICON, wanted.width(), wanted.height());
    QCOMPARE(image.size(), size);
    QCOMPARE(image.pixelColor(0, 0), color);
    const bool halfTransparent = color != QColor(Qt::blue);
    QCOMPARE(image.pixelColor(size.width() - 1, 0).alpha(), halfTransparent ? 0 : 255);
}

void tst_PlatformResources::imageOfFile_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<uint>("type");
    QTest::addColumn<QSize>("wanted");
    QTest::addColumn<QSize>("size");
    const QString bitmap = QStringLiteral(KX_RESOURCES_DIR "/arrow.bmp");
    const QString icon = QStringLiteral(KX_RESOURCES_DIR "/star.ico");
    QTest::newRow("bitmap") << bitmap << IMAGE_BITMAP << QSize(0, 0) << QSize(3, 2);
    QTest::newRow("bitmap, scaled") << bitmap << IMAGE_BITMAP << QSize(6, 6) << QSize(6, 6);
    QTest::newRow("icon") << icon << IMAGE_ICON << QSize(0, 0) << QSize(8, 8);
    QTest::newRow("icon, another size") << icon << IMAGE_ICON << QSize(24, 24) << QSize(24, 24);
    QTest::newRow("icon asked for as a bitmap") << icon << IMAGE_BITMAP << QSize(0, 0) << QSize(0, 0);
    QTest::newRow("bitmap asked for as an icon") << bitmap << IMAGE_ICON << QSize(0, 0) << QSize(0, 0);
    QTest::newRow("missing") << QStringLiteral("/nowhere.bmp") << IMAGE_BITMAP << QSize(0, 0) << QSize(0, 0);
    QTest::newRow("directory") << QStringLiteral(KX_RESOURCES_DIR) << IMAGE_BITMAP << QSize(0, 0)
                               << QSize(0, 0);
    QTest::newRow("endless") << QStringLiteral("/dev/zero") << IMAGE_BITMAP << QSize(0, 0) << QSize(0, 0);
    QTest::newRow("empty name") << QString() << IMAGE_BITMAP << QSize(0, 0) << QSize(0, 0);
    QTest::newRow("resource name") << QStringLiteral("#300") << IMAGE_BITMAP << QSize(0, 0) << QSize(0, 0);
}

void tst_PlatformResources::imageOfFile()
{
    QFETCH(QString, file);
    QFETCH(uint, type);
    QFETCH(QSize, wanted);
    QFETCH(QSize, size);
    const QImage image = loadImage(nullptr, file.toStdWString().c_str(), type, wanted.width(),
                                   wanted.height(), LR_LOADFROMFILE);
    QCOMPARE(image.size(), size);
    if (size == QSize(3, 2))
        QCOMPARE(image, arrow());
    if (size == QSize(24, 24))
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::blue));
}

void tst_PlatformResources::bitmapFileIsReadAsTheResource()
{
    // One white pixel of 16 bits.
    const QByteArray bytes = QByteArray::fromHex("424d3a000000000000003600000028000000010000000100"
                                                 "000001001000000000000400000000000000000000000000"
                                                 "000000000000ff7f0000");
    const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("white.bmp")));
    const auto load = [&](const QByteArray &content) {
        const bool written = file.open(QFile::WriteOnly) && file.write(content) == content.size();
        file.close();
        return written ? loadImage(nullptr, file.fileName().toStdWString().c_str(), IMAGE_BITMAP, 0, 0,
                                   LR_LOADFROMFILE)
                       : arrow();
    };
    QCOMPARE(load(bytes).size(), QSize(1, 1));
    QCOMPARE(load(bytes).pixelColor(0, 0), QColor(Qt::white));
    for (int size = 0; size < bytes.size(); ++size)
        QVERIFY2(load(bytes.left(size)).isNull(), qPrintable(QString::number(size)));
}

void tst_PlatformResources::unknownImage_data()
{
    QTest::addColumn<quintptr>("name");
    QTest::addColumn<uint>("type");
    QTest::addColumn<uint>("flags");
    QTest::newRow("null") << quintptr(0) << IMAGE_BITMAP << 0U;
    QTest::newRow("unknown number") << quintptr(9999) << IMAGE_BITMAP << 0U;
    QTest::newRow("number of an icon") << quintptr(IDI_STAR) << IMAGE_BITMAP << 0U;
    QTest::newRow("number of a bitmap") << quintptr(IDB_ARROW) << IMAGE_ICON << 0U;
    QTest::newRow("cursor") << quintptr(IDI_STAR) << IMAGE_CURSOR << 0U;
    QTest::newRow("unknown type") << quintptr(IDB_ARROW) << 7U << 0U;
    QTest::newRow("null file") << quintptr(0) << IMAGE_BITMAP << LR_LOADFROMFILE;
    QTest::newRow("number for a file") << quintptr(IDB_ARROW) << IMAGE_BITMAP << LR_LOADFROMFILE;
    static const wchar_t text[] = L"Nobody";
    QTest::newRow("unknown name") << quintptr(text) << IMAGE_BITMAP << 0U;
    static const wchar_t empty[] = L"";
    QTest::newRow("empty name") << quintptr(empty) << IMAGE_BITMAP << 0U;
    static const wchar_t large[] = L"#65836";
    QTest::newRow("number beyond 16 bits as text") << quintptr(large) << IMAGE_BITMAP << 0U;
    static const wchar_t mark[] = L"#";
    QTest::newRow("no number as text") << quintptr(mark) << IMAGE_BITMAP << 0U;
}

void tst_PlatformResources::unknownImage()
{
    QFETCH(quintptr, name);
    QFETCH(uint, type);
    QFETCH(uint, flags);
    QVERIFY(!LoadImageW(nullptr, reinterpret_cast<const wchar_t *>(name), type, 0, 0, flags));
}

QTEST_MAIN(tst_PlatformResources)
#include "tst_PlatformResources.moc"
