#include "PathTexts.h"

#include <QTest>

#include <cstring>
#include <vector>

/// A volume that shows its fields.
class ProbeVolume : public CKdUiNTFSVolumeDescriptor
{
public:
    explicit ProbeVolume(const wchar_t *name = L"C:")
        : CKdUiNTFSVolumeDescriptor(name)
    {
    }

    using CKdUiVolumeDescriptor::InitModeMultiByte;
    using CKdUiVolumeDescriptor::IsNameOfKind;
    using CKdUiVolumeDescriptor::m_connectionName;
    using CKdUiVolumeDescriptor::m_flags;
    using CKdUiVolumeDescriptor::m_fsFlags;
    using CKdUiVolumeDescriptor::m_fsName;
    using CKdUiVolumeDescriptor::m_fsType;
    using CKdUiVolumeDescriptor::m_maxComponent;
    using CKdUiVolumeDescriptor::m_maxPath;
    using CKdUiVolumeDescriptor::m_multiByte;
    using CKdUiVolumeDescriptor::m_networkPrefix;
    using CKdUiVolumeDescriptor::m_separator;
    using CKdUiVolumeDescriptor::SetDriveType;

    void VolCase(CString &path) override { path.MakeLower(); }
};

/// Keeps a descriptor in the list as long as one lives.
class ListedVolume
{
public:
    explicit ListedVolume(const wchar_t *name)
        : m_volume(name)
    {
        volumeList.append(&m_volume);
    }
    ~ListedVolume() { volumeList.removeOne(&m_volume); }
    ListedVolume(const ListedVolume &) = delete;
    ListedVolume &operator=(const ListedVolume &) = delete;

    CKdUiVolumeDescriptor *get() { return &m_volume; }

private:
    ProbeVolume m_volume;
};

// The place of a virtual member in its class's table, as the C++ ABI encodes it in a member pointer.
template <typename Member> static std::ptrdiff_t slotOf(Member member)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof member == sizeof words);
    std::memcpy(words, &member, sizeof words);
    return (words[0] - 1) / std::ptrdiff_t{sizeof(void *)};
}

class tst_Volumes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(volumeList.isEmpty()); }
    void newDescriptor();
    void virtualOrder();
    void driveTypes_data();
    void driveTypes();
    void fixedAnswers();
    void matching();
    void validNames_data();
    void validNames();
    void longNames();
    void volumeStaysValid();
    void namesOfKinds();
    void pathsAreWithoutVolume();
    void pathsOnAListedVolume();
    void firstOfTheListedVolumes();
    void trimmingOnAVolume();
};

void tst_Volumes::newDescriptor()
{
    ProbeVolume volume(L"X:");
    QCOMPARE(int(volume.m_fsType), 2);
    QCOMPARE(int(volume.m_flags), 1);
    QCOMPARE(shown(volume.GetLocalName()), QStringLiteral("X:"));
    QCOMPARE(volume.m_maxComponent, 255U);
    QCOMPARE(volume.m_maxPath, 1023U);
    QCOMPARE(volume.m_separator, L'\\');
    QVERIFY(!volume.m_multiByte && !ProbeVolume::InitModeMultiByte());
    QCOMPARE(volume.m_fsFlags, 0U);
    QVERIFY(!volume.m_fsName && !volume.m_connectionName);
    QCOMPARE(shown(CString(volume.m_networkPrefix)), QStringLiteral("\\\\"));
    volume.GetConnectionName();
    volume.GetConnectionName();
    QCOMPARE(shown(volume.m_connectionName), QStringLiteral("GetConnectionName Failed"));
}

void tst_Volumes::virtualOrder()
{
    using Volume = CKdUiVolumeDescriptor;
    using TextMatch = bool (Volume::*)(const wchar_t *, const CString *);
    using StringMatch = bool (Volume::*)(const CString *, const CString *);
    const std::vector<std::ptrdiff_t> places = {slotOf(&Volume::CheckReadOnly),
                                                slotOf(&Volume::ValidateFilename),
                                                slotOf(&Volume::ValidateSegment),
                                                slotOf(&Volume::IsCaseSensitive),
                                                slotOf(&Volume::PreservesCase),
                                                slotOf(&Volume::AllowsCaseSensitiveLookup),
                                                slotOf(&Volume::VolCase),
                                                slotOf<TextMatch>(&Volume::VolMatch),
                                                slotOf<StringMatch>(&Volume::VolMatch),
                                                slotOf(&Volume::GetLocalName),
                                                slotOf(&Volume::GetVolFreeSpace),
                                                slotOf(&Volume::WillFit),
                                                slotOf(&Volume::VolumeValid)};
    for (std::size_t i = 0; i < places.size(); ++i)
        QCOMPARE(places[i], std::ptrdiff_t(i) + 2);
    QCOMPARE(slotOf(&CKdUiPathname::Parse), std::ptrdiff_t{0});
    QCOMPARE(slotOf(&CKdUiPathname::AssignCopy), std::ptrdiff_t{1});
    static_assert(!std::has_virtual_destructor_v<CKdUiPathname> && sizeof(CKdUiPathname) == 56);
    static_assert(std::has_virtual_destructor_v<Volume> && std::is_abstract_v<Volume>);
    static_assert(sizeof(path_type) == 4 && sizeof(path_category) == 4 && sizeof(FS_TYPE) == 4);
}

void tst_Volumes::driveTypes_data()
{
    QTest::addColumn<unsigned>("driveType");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("flags");

    QTest::newRow("unknown") << 0U << QStringLiteral("C:") << 0;
    QTest::newRow("no root") << 1U << QStringLiteral("C:") << 0;
    QTest::newRow("no root, network") << 1U << QStringLiteral("\\\\server") << 8;
    QTest::newRow("no root, completed by the backslash") << 1U << QStringLiteral("\\") << 8;
    QTest::newRow("no root, prefix elsewhere") << 1U << QStringLiteral("a\\\\b") << 0;
    QTest::newRow("removable") << 2U << QStringLiteral("C:") << 2;
    QTest::newRow("fixed") << 3U << QStringLiteral("C:") << 1;
    QTest::newRow("remote") << 4U << QStringLiteral("C:") << 8;
    QTest::newRow("CD-ROM") << 5U << QStringLiteral("C:") << 0x24;
    QTest::newRow("RAM disk") << 6U << QStringLiteral("C:") << 0x10;
    QTest::newRow("beyond") << 7U << QStringLiteral("C:") << 0;
}

void tst_Volumes::driveTypes()
{
    QFETCH(unsigned, driveType);
    QFETCH(QString, name);
    QFETCH(int, flags);

    ProbeVolume volume(wide(name));
    volume.SetDriveType(driveType);
    QCOMPARE(int(volume.m_flags), flags);
    QCOMPARE(volume.m_connectionName != nullptr, driveType == 4);
    QCOMPARE(volume.CheckReadOnly(), driveType == 5);
    // Only a fixed drive and a RAM disk are sure to stay what they are.
    QCOMPARE(volume.VolumeValid(), driveType == 3 || driveType == 6);
}

void tst_Volumes::fixedAnswers()
{
    CKdUiNTFSVolumeDescriptor volume(L"C:");
    QVERIFY(volume.PreservesCase() && volume.AllowsCaseSensitiveLookup());
    QVERIFY(!volume.CheckReadOnly() && !volume.IsCaseSensitive());
    QCOMPARE(volume.GetVolFreeSpace(), 0x7FFFFFFFU);
    QVERIFY(volume.WillFit(0) && volume.WillFit(0xFFFFFFFF));
    CString text = L"MiXed";
    volume.VolCase(text);
    QCOMPARE(shown(text), QStringLiteral("MiXed"));
    for (int ch = 0; ch < 256; ++ch)
        QVERIFY(!CKdUiVolumeDescriptor::IsControl(ch));
    QCOMPARE(CKdUiVolumeDescriptor::Find(L"abcb", L'b'), 1);
    QCOMPARE(CKdUiVolumeDescriptor::Find(L"abc", L'x'), -1);
}

void tst_Volumes::matching()
{
    ProbeVolume volume;
    const CString name = L"Name";
    const CString other = L"nAME";
    for (const bool sensitive : {false, true}) {
        volume.m_flags = BYTE(sensitive ? 0x40 : 0);
        QCOMPARE(volume.IsCaseSensitive(), sensitive);
        QVERIFY(volume.VolMatch(&name, &name) && volume.VolMatch(L"Name", &name));
        QCOMPARE(volume.VolMatch(&name, &other), !sensitive);
        QCOMPARE(volume.VolMatch(L"NAME", &name), !sensitive);
        QVERIFY(!volume.VolMatch(L"Nam", &name));
    }
    const wchar_t *noText = nullptr;
    const CString *noString = nullptr;
    QVERIFY(!volume.VolMatch(noText, &name) && !volume.VolMatch(L"Name", noString));
    QVERIFY(!volume.VolMatch(noString, &name) && !volume.VolMatch(&name, noString));
    QVERIFY(!volume.VolMatch(noString, noString) && !volume.VolMatch(noText, noString));
}

void tst_Volumes::validNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isName");
    QTest::addColumn<bool>("isSegment");

    const auto row = [](const char *text, bool isName, bool isSegment) {
        QTest::newRow(text) << QString::fromUtf8(text) << isName << isSegment;
    };
    row("", true, true);
    row("name.txt", true, true);
    row("имя", true, true);
    row("a b\tc\x01", true, true);
    row("c:\\a\\b", true, false);
    row("a:b", true, false);
    row("ab:c", false, false);
    row("1:b", false, false);
    row(":", false, false);
    row("a:b:", false, false);
    row("\\\\server\\share", true, false);
    row("\\\\\\server", false, false);
    row("c:\\\\a", false, false);
    row("a<b", false, false);
    row("a>b", false, false);
    row("a|b", false, false);
    row("a/b", false, false);
    row("a\"b", false, false);
    row("a\\b", true, false);
}

void tst_Volumes::validNames()
{
    QFETCH(QString, text);
    QFETCH(bool, isName);
    QFETCH(bool, isSegment);

    CKdUiNTFSVolumeDescriptor volume(L"C:");
    const CString name = wide(text);
    for (const bool allowWild : {false, true}) {
        QCOMPARE(volume.ValidateFilename(&name, allowWild), isName);
        QCOMPARE(volume.ValidateSegment(&name, allowWild), isSegment);
        for (const wchar_t *wildcard : {L"*", L"?"}) {
            const CString wild = name + wildcard;
            QCOMPARE(volume.ValidateFilename(&wild, allowWild), isName && allowWild);
            QCOMPARE(volume.ValidateSegment(&wild, allowWild), isSegment && allowWild);
        }
        QVERIFY(!volume.ValidateFilename(nullptr, allowWild));
        QVERIFY(!volume.ValidateSegment(nullptr, allowWild));
    }
}

void tst_Volumes::longNames()
{
    ProbeVolume volume;
    const auto ofLength = [](std::size_t length) { return CString(std::wstring(length, L'n')); };
    const CString segment = ofLength(255);
    const CString longSegment = ofLength(256);
    const CString name = ofLength(1023);
    const CString longName = ofLength(1024);
    QVERIFY(volume.ValidateSegment(&segment, false) && !volume.ValidateSegment(&longSegment, false));
    QVERIFY(volume.ValidateFilename(&name, false) && !volume.ValidateFilename(&longName, false));
    volume.m_maxComponent = 256;
    QVERIFY(volume.ValidateSegment(&longSegment, false));
}

void tst_Volumes::volumeStaysValid()
{
    ProbeVolume volume;
    volume.m_flags = CKdUiVolumeDescriptor::removable | CKdUiVolumeDescriptor::ramDisk;
    QVERIFY(volume.VolumeValid());
    for (const int type : {0, 2, 3, 4, 5, 6, 8}) {
        volume.m_flags = CKdUiVolumeDescriptor::remote;
        volume.m_fsType = FS_TYPE(type);
        QVERIFY(!volume.VolumeValid());
        QCOMPARE(volume.m_maxComponent, 255U);
    }
}

void tst_Volumes::namesOfKinds()
{
    const wchar_t *const names[] = {L"NTFS", L"FAT", L"HPFS", L"CDFS", L"NFS", L"xNFSx", L"", L"ntfs"};
    const auto kindsOf = [](const wchar_t *name) {
        QString kinds;
        for (unsigned kind = 0; kind < 10; ++kind)
            kinds += ProbeVolume::IsNameOfKind(FS_TYPE(kind), name) ? QString::number(kind) : QString();
        return kinds;
    };
    const char *const expected[] = {"28", "348", "58", "68", "", "", "8", "8"};
    for (std::size_t i = 0; i < std::size(names); ++i)
        QCOMPARE(kindsOf(names[i]), QLatin1String(expected[i]));
}

void tst_Volumes::pathsAreWithoutVolume()
{
    const CKdUiPathname path;
    for (const wchar_t *name : {L"", L"C:", L"c:", L"/"})
        QVERIFY(!path.FindVolumeDescriptor(name) && !path.NewVolDescriptor(name));
    CString root;
    QCOMPARE(path.GetFileSystem(root), 1);
    QVERIFY(root.IsEmpty());
    for (int i = 0; i < 2; ++i) {
        root = i == 0 ? L"C:" : L"C:/";
        QCOMPARE(path.GetFileSystem(root), 0);
        QCOMPARE(shown(root), QStringLiteral("C:/"));
    }
    QVERIFY(!ProbePath(L"c:/a").volume());
}

void tst_Volumes::pathsOnAListedVolume()
{
    ListedVolume listed(L"C:");
    const ProbePath drive(L"c:/Some/Path");
    QCOMPARE(drive.volume(), listed.get());
    QCOMPARE(pathOf(drive), QStringLiteral("c:/some/path"));
    QVERIFY(!drive.baseDir());
    const ProbePath relative(L"File", &drive);
    QCOMPARE(relative.volume(), listed.get());
    QCOMPARE(pathOf(relative), QStringLiteral("file"));
    const ProbePath rooted(L"/File", &drive);
    QVERIFY(!rooted.volume());
    QCOMPARE(pathOf(rooted), QStringLiteral("/File"));
    QCOMPARE(shown(rooted.baseDir()), QString());
    QVERIFY(!ProbePath(L"d:/x").volume());
    const ProbePath copy(drive);
    QCOMPARE(copy.volume(), listed.get());
}

void tst_Volumes::firstOfTheListedVolumes()
{
    ListedVolume other(L"c:");
    ListedVolume first(L"C:");
    const ListedVolume second(L"C:");
    const ListedVolume nameless(L"");
    QCOMPARE(CKdUiPathname().FindVolumeDescriptor(L"C:"), first.get());
    QCOMPARE(CKdUiPathname().FindVolumeDescriptor(L"c:"), other.get());
    QVERIFY(!CKdUiPathname().FindVolumeDescriptor(L"C"));
    QVERIFY(!CKdUiPathname().FindVolumeDescriptor(L""));
}

void tst_Volumes::trimmingOnAVolume()
{
    ProbeVolume volume(L"//srv/share");
    ProbePath path;
    path.set(PC_UNC, L"//srv/share/alpha/beta/x.txt");
    path.setVolume(&volume);
    CString name;
    path.GetDisplayName(name, 23);
    QCOMPARE(shown(name), QStringLiteral("//srv/share\\.../x.txt"));
    path.GetDisplayName(name, 21);
    QCOMPARE(shown(name), QStringLiteral("//srv/share\\.../x.txt"));
    path.GetDisplayName(name, 20);
    QCOMPARE(shown(name), QStringLiteral("x.txt"));
    path.set(PC_ROOTED, L"/alpha/beta/gamma/x.txt");
    path.setVolume(&volume);
    path.GetDisplayName(name, 22);
    QCOMPARE(shown(name), QStringLiteral(".../beta/gamma/x.txt"));
}

QTEST_GUILESS_MAIN(tst_Volumes)
#include "tst_Volumes.moc"
