#include "PathTexts.h"

#include <QTest>

#include <algorithm>
#include <locale>
#include <memory>
#include <stdexcept>
#include <vector>

class tst_VolumeFunctions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kindsOfNames_data();
    void kindsOfNames();
    void dumpedKinds();
    void volumeInformation();
    void smallFunctions();
    void mapsCase();
    void mappingThatThrows();
    void scratchBuffers();
};

void tst_VolumeFunctions::kindsOfNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("kindOfShortNames");

    QTest::newRow("NTFS") << QStringLiteral("NTFS") << 2 << 2;
    QTest::newRow("HPFS") << QStringLiteral("HPFS") << 5 << 5;
    QTest::newRow("CDFS") << QStringLiteral("CDFS") << 6 << 6;
    QTest::newRow("NFS") << QStringLiteral("NFS") << 8 << 8;
    QTest::newRow("NFS inside") << QStringLiteral("a NFS4") << 8 << 8;
    QTest::newRow("FAT") << QStringLiteral("FAT") << 4 << 3;
    QTest::newRow("FAT32") << QStringLiteral("FAT32") << 4 << 3;
    QTest::newRow("other case") << QStringLiteral("ntfs") << 4 << 3;
    QTest::newRow("unknown") << QStringLiteral("ext4") << 4 << 3;
    QTest::newRow("empty") << QString() << 4 << 3;
}

void tst_VolumeFunctions::kindsOfNames()
{
    QFETCH(QString, name);

    FS_TYPE type = FS_NONE;
    GetDriveTypeByVol(wide(name), type, 255);
    QTEST(int(type), "kind");
    GetDriveTypeByVol(wide(name), type, 12);
    QTEST(int(type), "kindOfShortNames");
    GetDriveTypeByVol(nullptr, type, 11);
    QCOMPARE(int(type), 4);
}

void tst_VolumeFunctions::dumpedKinds()
{
    const std::unique_ptr<FILE, int (*)(FILE *)> file(std::tmpfile(), &std::fclose);
    FILE *stream = file.get();
    QVERIFY(stream);
    for (unsigned kind = 0; kind < 10; ++kind)
        dump_file_type(&stream, FS_TYPE(kind));
    std::rewind(stream);
    wchar_t written[128] = {};
    std::size_t length = 0;
    for (std::wint_t ch; (ch = std::fgetwc(stream)) != WEOF;)
        written[length++] = wchar_t(ch);
    QCOMPARE(shown(CString(written)),
             QStringLiteral("NOFS\n???\nNTFS\nFAT\nVFAT\nHPFS\nCDFS\n???\nUFS\n???\n"));
    FILE *noStream = nullptr;
    dump_file_type(&noStream, FS_NTFS);
    dump_file_type(nullptr, FS_NTFS);
}

void tst_VolumeFunctions::volumeInformation()
{
    CString fsName = L"former";
    CString volumeName = L"former";
    unsigned maxComponent = 7;
    unsigned fsFlags = 8;
    bool success = true;
    GetVolumeInfo(L"C:\\", fsName, maxComponent, success);
    QVERIFY(!success);
    QCOMPARE(GetVolumeInfo(L"C:\\", volumeName, maxComponent, fsFlags, fsName), 1U);
    QVERIFY(fsName == L"former" && volumeName == L"former" && maxComponent == 7 && fsFlags == 8);
}

void tst_VolumeFunctions::smallFunctions()
{
    const CString path = L"C:/x";
    CString out = L"former";
    StringFromPath(out, nullptr);
    QCOMPARE(shown(out), QStringLiteral("former"));
    StringFromPath(out, &path);
    QCOMPARE(shown(out), QStringLiteral(":/x"));
    StringFromPath(out, &out);
    QCOMPARE(shown(out), QStringLiteral("/x"));
    const CString nothing;
    StringFromPath(out, &nothing);
    QVERIFY(out.IsEmpty());

    QVERIFY(!ValidateVolChar(nullptr, L'C'));
    QVERIFY(ValidateVolChar(&path, L'C') && ValidateVolChar(&nothing, L'1'));
    QVERIFY(!ValidateVolChar(&path, L'1'));
    const CString twoColons = L"C:x:";
    const CString late = L"Cx:";
    QVERIFY(!ValidateVolChar(&twoColons, L'C') && !ValidateVolChar(&late, L'C'));

    auto *text = new CString(L"x");
    ReleaseStringPtr(&text);
    QVERIFY(!text);
    ReleaseStringPtr(&text);
    ReleaseStringPtr(nullptr);
}

void tst_VolumeFunctions::mapsCase()
{
    CString text = L"MiXed 1";
    KxErrorEat::strMakeUpper(text);
    QCOMPARE(shown(text), QStringLiteral("MIXED 1"));
    KxErrorEat::strMakeLower(text);
    QCOMPARE(shown(text), QStringLiteral("mixed 1"));
}

// Gives up at a percent sign, when some of the text is converted already.
class ThrowingCase : public std::ctype<wchar_t>
{
protected:
    wchar_t do_toupper(wchar_t ch) const override { return refused(ch) ? ch : L'U'; }
    wchar_t do_tolower(wchar_t ch) const override { return refused(ch) ? ch : L'L'; }

private:
    static bool refused(wchar_t ch) { return ch == L'%' ? throw std::runtime_error("refused") : false; }
};

void tst_VolumeFunctions::mappingThatThrows()
{
    const std::locale former = std::locale::global(std::locale(std::locale(), new ThrowingCase));
    CString fine = L"ab";
    CString upper = L"ab%c";
    CString lower = L"AB%C";
    KxErrorEat::strMakeUpper(fine);
    KxErrorEat::strMakeUpper(upper);
    KxErrorEat::strMakeLower(lower);
    ProbePath path(L"/a/ab%c");
    path.BaseToUpper();
    std::locale::global(former);
    QCOMPARE(shown(fine), QStringLiteral("UU"));
    QCOMPARE(shown(upper), QStringLiteral("ab%c"));
    QCOMPARE(shown(lower), QStringLiteral("AB%C"));
    QCOMPARE(pathOf(path), QStringLiteral("/a/ab%c"));
}

void tst_VolumeFunctions::scratchBuffers()
{
    std::vector<char> buffer(1025, 'x');
    CString fits(std::wstring(255, L'n'));
    QCOMPARE(InitVolumeChar(fits, buffer.data()), buffer.data());
    QVERIFY(std::all_of(buffer.begin(), buffer.end() - 1, [](char ch) { return ch == 0; }));
    QCOMPARE(buffer.back(), 'x');

    buffer.assign(1025, 'x');
    CString longer(std::wstring(256, L'n'));
    const std::unique_ptr<char[]> made(InitVolumeChar(longer, buffer.data()));
    QVERIFY(made.get() != buffer.data());
    QVERIFY(std::all_of(made.get(), made.get() + 1028, [](char ch) { return ch == 0; }));
    QCOMPARE(buffer.front(), 'x');
    const std::unique_ptr<char[]> withoutBuffer(InitVolumeChar(fits, nullptr));
    QVERIFY(withoutBuffer);
}

QTEST_GUILESS_MAIN(tst_VolumeFunctions)
#include "tst_VolumeFunctions.moc"
