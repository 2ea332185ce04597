#include "AnyArray.h"
#include "InvalidArguments.h"

#include <QtTest>

#include <cstdlib>
#include <functional>
#include <new>

// Failing allocations, and the number of strings that are alive. Only long strings use operator new: the storage
// comes from malloc, and short texts stand inside their strings.

static long liveAllocations = 0;
static long allocationsUntilFailure = -1;

void *operator new(std::size_t bytes)
{
    if (allocationsUntilFailure == 0)
        throw std::bad_alloc();
    if (allocationsUntilFailure > 0)
        --allocationsUntilFailure;
    void *memory = std::malloc(bytes ? bytes : 1);
    if (!memory)
        throw std::bad_alloc();
    ++liveAllocations;
    return memory;
}

void operator delete(void *memory) noexcept
{
    liveAllocations -= memory != nullptr;
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    operator delete(memory);
}

// An allocation that is too large fails under the address sanitizer as it does without.
extern "C" KX_MFC_EXPORT const char *__asan_default_options();
extern "C" const char *__asan_default_options()
{
    return "allocator_may_return_null=1";
}

using Change = std::function<void(AnyArray &)>;
using StringChange = void (*)(CStringArray &);

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(StringChange)

namespace {

constexpr INT_PTR tooLarge = INTPTR_MAX / 64;

const CString longText(L"a text of more characters than fit inside a string");

bool throwsBadAlloc(const std::function<void()> &change)
{
    try {
        change();
    } catch (const std::bad_alloc &) {
        return true;
    }
    return false;
}

} // namespace

class tst_ArraysMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tooLargeSizes_data();
    void tooLargeSizes();
    void overflowingStepIsReported();
    void liveStrings_data();
    void liveStrings();
    void failingCopy_data();
    void failingCopy();
    void failingLaterCopy();
    void growthMovesStrings();
};

void tst_ArraysMemory::tooLargeSizes_data()
{
    QTest::addColumn<Change>("change");

    const auto row = [](const char *name, Change change) { QTest::newRow(name) << change; };
    row("SetSize", [](AnyArray &a) { a.setSize(tooLarge); });
    row("SetSize with a step", [](AnyArray &a) { a.setSize(tooLarge, 5); });
    row("SetSize, largest", [](AnyArray &a) { a.setSize(INTPTR_MAX); });
    row("step too large", [](AnyArray &a) { a.setSize(4, tooLarge); });
    row("step overflows", [](AnyArray &a) { a.setSize(4, INTPTR_MAX); });
    row("SetAtGrow", [](AnyArray &a) { a.setAtGrow(tooLarge, 'x'); });
    row("SetAtGrow overflows", [](AnyArray &a) { a.setAtGrow(INTPTR_MAX, 'x'); });
    row("InsertAt", [](AnyArray &a) { a.insertAt(1, 'x', tooLarge); });
    row("InsertAt overflows", [](AnyArray &a) { a.insertAt(1, 'x', INTPTR_MAX); });
    row("InsertAt past the end", [](AnyArray &a) { a.insertAt(tooLarge, 'x', 1); });
    row("InsertAt past the end overflows", [](AnyArray &a) { a.insertAt(INTPTR_MAX, 'x', 1); });
    row("InsertAt with an array", [](AnyArray &a) { a.insertAt(INTPTR_MAX - 1, a.another("xyz").get()); });
}

void tst_ArraysMemory::tooLargeSizes()
{
    QFETCH(Change, change);

    for (const ArrayKind &kind : arrayKinds()) {
        const std::unique_ptr<AnyArray> array = kind.make()->another("aBc");
        const void *storage = array->storage();
        QVERIFY(throwsBadAlloc([&] { change(*array); }));
        QCOMPARE(array->content(), std::string("aBc"));
        QCOMPARE(array->capacity(), INT_PTR(3));
        QCOMPARE(array->growBy(), INT_PTR(0));
        QCOMPARE(array->storage(), storage);

        const std::unique_ptr<AnyArray> none = kind.make();
        QVERIFY(throwsBadAlloc([&] { none->setSize(tooLarge, 7); }));
        QVERIFY(none->isEmpty() && !none->storage() && none->growBy() == 0);
    }
}

void tst_ArraysMemory::overflowingStepIsReported()
{
    for (const ArrayKind &kind : arrayKinds()) {
        const std::unique_ptr<AnyArray> array = kind.make()->another("ab");
        array->setSize(2, INTPTR_MAX);
        takeInvalidArguments();
        QVERIFY(throwsBadAlloc([&] { array->add('c'); }));
        QCOMPARE(takeInvalidArguments(), 1);
        QCOMPARE(array->content(), std::string("ab"));
        QCOMPARE(array->growBy(), INTPTR_MAX);
    }
}

void tst_ArraysMemory::liveStrings_data()
{
    QTest::addColumn<StringChange>("change");
    QTest::addColumn<int>("liveAfter");

    // Each starts from four long strings that fill the storage.
    const auto row = [](const char *name, StringChange change, int liveAfter) {
        QTest::newRow(name) << change << liveAfter;
    };
    row(
        "nothing", [](CStringArray &) {}, 4);
    row(
        "shrunk", [](CStringArray &a) { a.SetSize(1); }, 1);
    row(
        "grown", [](CStringArray &a) { a.SetSize(40); }, 4);
    row(
        "grown within the capacity",
        [](CStringArray &a) {
            a.SetSize(1);
            a.SetSize(3);
        },
        1);
    row(
        "all removed", [](CStringArray &a) { a.RemoveAll(); }, 0);
    row(
        "added", [](CStringArray &a) { a.Add(longText); }, 5);
    row(
        "added as text", [](CStringArray &a) { a.Add(longText.c_str()); }, 5);
    row(
        "own element added", [](CStringArray &a) { a.Add(a[0]); }, 5);
    row(
        "inserted", [](CStringArray &a) { a.InsertAt(1, longText, 2); }, 6);
    row(
        "more inserted than follow", [](CStringArray &a) { a.InsertAt(3, longText, 5); }, 9);
    row(
        "inserted past the end", [](CStringArray &a) { a.InsertAt(7, longText); }, 5);
    row(
        "itself inserted", [](CStringArray &a) { a.InsertAt(2, &a); }, 8);
    row(
        "itself appended", [](CStringArray &a) { a.Append(a); }, 8);
    row(
        "itself copied", [](CStringArray &a) { a.Copy(a); }, 4);
    row(
        "removed", [](CStringArray &a) { a.RemoveAt(1, 2); }, 2);
    row(
        "removed and freed",
        [](CStringArray &a) {
            a.RemoveAt(1, 2);
            a.FreeExtra();
        },
        2);
    row(
        "emptied", [](CStringArray &a) { a.RemoveAt(0, 4); }, 0);
}

void tst_ArraysMemory::liveStrings()
{
    QFETCH(StringChange, change);
    QFETCH(int, liveAfter);

    const long liveBefore = liveAllocations;
    long live = 0;
    {
        CStringArray array;
        array.SetSize(4);
        for (INT_PTR i = 0; i < 4; ++i)
            array.SetAt(i, longText);
        change(array);
        live = liveAllocations - liveBefore;
    }
    const long left = liveAllocations - liveBefore;
    QCOMPARE(live, long(liveAfter));
    QCOMPARE(left, 0L);
}

void tst_ArraysMemory::failingCopy_data()
{
    QTest::addColumn<StringChange>("change");

    const auto row = [](const char *name, StringChange change) { QTest::newRow(name) << change; };
    row("SetAt", [](CStringArray &a) { a.SetAt(0, longText); });
    row("SetAtGrow", [](CStringArray &a) { a.SetAtGrow(5, longText); });
    row("Add", [](CStringArray &a) { a.Add(longText); });
    row("Add as text", [](CStringArray &a) { a.Add(longText.c_str()); });
    row("InsertAt", [](CStringArray &a) { a.InsertAt(1, longText); });
}

// The characters are copied before the array changes.
void tst_ArraysMemory::failingCopy()
{
    QFETCH(StringChange, change);

    CStringArray array;
    array.Add(L"a");
    array.Add(L"b");
    allocationsUntilFailure = 0;
    bool threw = false;
    try {
        change(array);
    } catch (const std::bad_alloc &) {
        threw = true;
    }
    allocationsUntilFailure = -1;
    QVERIFY(threw);
    QCOMPARE(array.GetSize(), INT_PTR(2));
    QCOMPARE(array[0], CString(L"a"));
    QCOMPARE(array[1], CString(L"b"));
}

void tst_ArraysMemory::failingLaterCopy()
{
    CStringArray array;
    array.Add(L"a");
    CStringArray other;
    other.Add(longText);
    other.Add(longText);
    allocationsUntilFailure = 1;
    const bool threw = throwsBadAlloc([&] { array.Append(other); });
    allocationsUntilFailure = -1;
    QVERIFY(threw);
    QCOMPARE(array.GetSize(), INT_PTR(3));
    QCOMPARE(array[0], CString(L"a"));
    QCOMPARE(array[1], longText);
    QCOMPARE(array[2], CString());
}

void tst_ArraysMemory::growthMovesStrings()
{
    CStringArray array;
    array.Add(longText);
    const wchar_t *characters = array[0].c_str();
    array.SetSize(1000);
    array.InsertAt(0, L"x");
    QCOMPARE(static_cast<const void *>(array[1].c_str()), static_cast<const void *>(characters));
    array.RemoveAt(0);
    array.SetSize(2);
    array.FreeExtra();
    QCOMPARE(static_cast<const void *>(array[0].c_str()), static_cast<const void *>(characters));
}

QTEST_MAIN(tst_ArraysMemory)
#include "tst_ArraysMemory.moc"
