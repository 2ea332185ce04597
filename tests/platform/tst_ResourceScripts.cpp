#include "ResourceFixture.h"
#include "resources/resource.h"

#include <QtTest>

// Scripts as programs bring them along: their encodings, and the forms that their statements have.
class tst_ResourceScripts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void encoding_data();
    void encoding();
    void codePage_data();
    void codePage();
    void form_data();
    void form();
    void imageForm_data();
    void imageForm();
    void moduleWithNothingThatIsRead();
};

void tst_ResourceScripts::encoding_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("UTF-8") << QByteArray(KX_encoding_utf8);
    QTest::newRow("UTF-8 with mark") << QByteArray(KX_encoding_utf8_mark);
    QTest::newRow("UTF-16, little-endian") << QByteArray(KX_encoding_utf16le);
    QTest::newRow("UTF-16, big-endian") << QByteArray(KX_encoding_utf16be);
    QTest::newRow("code page 1252") << QByteArray(KX_encoding_cp1252);
}

void tst_ResourceScripts::encoding()
{
    QFETCH(QByteArray, file);
    const LoadedModule module(file);
    QVERIFY(module);
    QCOMPARE(loadString(module, IDS_GREETING), QString::fromUtf8("\u00fcber \u20ac \u201cq\u201d"));
    QCOMPARE(loadString(module, IDS_WIDE), QString::fromUtf8("wide \u00fc\u20ac"));
}

void tst_ResourceScripts::codePage_data()
{
    QTest::addColumn<uint>("id");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, uint id, const char *text) {
        QTest::newRow(name) << id << QString::fromUtf8(text);
    };
    row("pragma on the first line", 1, "\u0414\u0430");
    row("included file takes the page", 2, "\u041d\u0435\u0442");
    row("comment before the pragma", 3, "\u65e5\u672c");
    row("two escaped bytes for a character", 4, "\uff71 \u5c0e");
    row("bytes that the page leaves undefined", 5, "\u00e4");
    row("file included before the pragma", 16, "\u65e5");
    row("comment in another page", 17, "\u65e5");
    row("first of several pages", 6, "\u00e4");
    row("escape in the first page", 7, "\u00e4");
    row("second page", 8, "\u0434");
    row("escape in the second page", 9, "\u0434\u0434");
    row("file included under the second page", 18, "\u041d\u0435\u0442");
    row("UTF-8 after a code page", 10, "\u0434\u20ac\u00e4");
    row("ISO 8859-2", 11, "\u0105");
    row("KOI8-R", 12, "\u0434");
    row("KOI8-U", 13, "\u0454");
    row("the system's page", 14, "\u20ac");
    row("UTF-16 without mark", 15, "unmarked \u00e4");
}

void tst_ResourceScripts::codePage()
{
    QFETCH(uint, id);
    QFETCH(QString, text);
    const LoadedModule module(KX_pages);
    QVERIFY(module);
    QCOMPARE(loadString(module, id), text);
}

void tst_ResourceScripts::form_data()
{
    QTest::addColumn<uint>("id");
    QTest::addColumn<QString>("text");
    QTest::newRow("keywords in small letters") << uint(IDS_GREETING) << QStringLiteral("lower case");
    QTest::newRow("text that is a file name") << uint(IDS_QUOTED) << QStringLiteral("resource.h");
    QTest::newRow("the same on one line") << uint(IDS_NUL) << QStringLiteral("resource.h");
    QTest::newRow("escape and trigraph") << uint(IDS_ESCAPES) << QString::fromUtf8("\u00e4 ?\?=");
    QTest::newRow("wide, the same escape") << uint(IDS_WIDE) << QString::fromUtf8("\u00e4");
    QTest::newRow("two literals") << uint(IDS_JOINED) << QStringLiteral("one two");
    QTest::newRow("standard identifier") << 0xF101U << QStringLiteral("standard identifier");
    QTest::newRow("sum as identifier") << 0x401U << QStringLiteral("sum");
    QTest::newRow("options before the body") << uint(IDS_VARIANT) << QStringLiteral("German");
}

void tst_ResourceScripts::form()
{
    QFETCH(uint, id);
    QFETCH(QString, text);
    const LoadedModule module(KX_forms);
    QVERIFY(module);
    QCOMPARE(loadString(module, id), text);
}

void tst_ResourceScripts::imageForm_data()
{
    QTest::addColumn<QString>("name");
    const auto row = [](const char *name, const char *resource) {
        QTest::newRow(name) << QString::fromUtf8(resource);
    };
    row("bare name, small letters", "#400");
    row("sum as number", "#401");
    row("sum in parentheses", "#402");
    row("comments between", "#403");
    row("file on the next line", "#404");
    row("special characters in the file's name", "#405");
    row("type as number", "#406");
    row("quoted name behind a quoted file", "QUOTED");
    row("name with a blank", "with a blank");
    row("name with a hyphen", "WITH-HYPHEN");
    row("name beyond ASCII", "gr\u00f6\u00dfe");
    row("name that begins with a digit", "3rd");
    row("quoted type", "last");
}

void tst_ResourceScripts::imageForm()
{
    QFETCH(QString, name);
    const LoadedModule module(KX_forms);
    QVERIFY(module);
    QCOMPARE(loadImage(module, name.toStdWString().c_str()), arrow());
}

void tst_ResourceScripts::moduleWithNothingThatIsRead()
{
    const LoadedModule module(KX_nothing);
    QVERIFY(module);
    QCOMPARE(loadString(module, IDS_GREETING), QString());
}

QTEST_MAIN(tst_ResourceScripts)
#include "tst_ResourceScripts.moc"
