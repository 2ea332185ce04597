#include "KxFiles.h"

#include <QTest>

#include <cstring>
#include <type_traits>
#include <vector>

// The place of a virtual member in its class's table, as the C++ ABI encodes it in a member pointer.
template <typename Member> static std::ptrdiff_t slotOf(Member member)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof member == sizeof words);
    std::memcpy(words, &member, sizeof words);
    return (words[0] - 1) / std::ptrdiff_t{sizeof(void *)};
}

using Slots = std::vector<std::ptrdiff_t>;

static Slots slotsFrom(std::ptrdiff_t first, std::size_t count)
{
    Slots places(count);
    for (std::size_t i = 0; i < count; ++i)
        places[i] = first + std::ptrdiff_t(i);
    return places;
}

static_assert(std::is_base_of_v<CObject, CFile>);
static_assert(sizeof(CFile) == 3 * sizeof(void *));
static_assert(sizeof(CStdioFile) == 4 * sizeof(void *));
static_assert(sizeof(CMemFile) == 5 * sizeof(void *));
static_assert(sizeof(CSharedFile) == 5 * sizeof(void *), "the integer follows the 32-bit size");
static_assert(sizeof(CFileFind) == sizeof(void *));
static_assert(!std::is_copy_constructible_v<CFile> && !std::is_copy_assignable_v<CFile>);
static_assert(!std::is_copy_constructible_v<CSharedFile> && !std::is_copy_constructible_v<CStdioFile>);

/// The order of virtual operations is part of the binary interface.
class tst_FileVirtualOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileOperationsFollowTheDestructor()
    {
        const Slots places = {
            slotOf(&CFile::Open),        slotOf(&CFile::GetLength), slotOf(&CFile::GetPosition),
            slotOf(&CFile::Seek),        slotOf(&CFile::Read),      slotOf(&CFile::Write),
            slotOf(&CFile::SeekToBegin), slotOf(&CFile::Close),     slotOf(&CFile::Flush)};
        QCOMPARE(places, slotsFrom(2, places.size()));
    }

    void textOperationsFollowThoseOfFiles()
    {
        const Slots places = {slotOf(&CStdioFile::WriteString),
                              slotOf<wchar_t *(CStdioFile::*)(wchar_t *, unsigned)>(&CStdioFile::ReadString),
                              slotOf<BOOL (CStdioFile::*)(CString &)>(&CStdioFile::ReadString)};
        QCOMPARE(places, slotsFrom(11, places.size()));
    }

    void findingIsTheOnlyOperationOfItsClass() { QCOMPARE(slotOf(&CFileFind::FindFile), std::ptrdiff_t{0}); }
};

QTEST_GUILESS_MAIN(tst_FileVirtualOrder)
#include "tst_FileVirtualOrder.moc"
