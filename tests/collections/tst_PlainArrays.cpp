// Ported headers name the arrays without including anything.
class CStringArray;
class CWordArray;
class CByteArray;
class CPtrArray;

#include "InvalidArguments.h"
#include "KxArrays.h"

#include <QtTest>

#include <cstdlib>
#include <type_traits>

#if defined(__SANITIZE_ADDRESS__)
#define KX_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KX_ADDRESS_SANITIZER
#endif
#endif

static_assert(!std::is_copy_constructible_v<CWordArray> && !std::is_copy_assignable_v<CWordArray>);
static_assert(!std::is_polymorphic_v<CPtrArray> && sizeof(CPtrArray) == 4 * sizeof(void *));
static_assert(std::is_same_v<decltype(std::declval<const CWordArray &>()[0]), WORD>);
static_assert(std::is_same_v<decltype(std::declval<CWordArray &>()[0]), WORD &>);
static_assert(std::is_same_v<decltype(std::declval<const CWordArray &>().GetData()), const WORD *>);
static_assert(std::is_same_v<decltype(std::declval<CByteArray &>().GetData()), BYTE *>);
static_assert(std::is_same_v<decltype(std::declval<const CPtrArray &>().GetData()), const void **>);
static_assert(std::is_same_v<decltype(std::declval<CPtrArray &>().GetData()), void **>);

namespace {

template <typename Array> struct Opened : Array
{
    using Array::InsertEmpty;
    using Array::m_nGrowBy;
    using Array::m_nMaxSize;
    using Array::m_nSize;
    using Array::m_pData;
};

template <typename Array> using ElementOf = std::remove_pointer_t<decltype(Opened<Array>::m_pData)>;

template <typename Array> ElementOf<Array> element(int value)
{
    if constexpr (std::is_pointer_v<ElementOf<Array>>)
        return reinterpret_cast<ElementOf<Array>>(std::intptr_t(value));
    else
        return ElementOf<Array>(value);
}

// What every class is put through.
template <typename Array> struct Steps
{
    static void upperBound();
    static void data();
    static void indexing();
    static void advisoryIndex();
    static void removesPastTheEnd();
    static void staleSlotsAreCleared();
    static void subclassInsertsZeros();
};

template <typename Array> void Steps<Array>::upperBound()
{
    Array array;
    QCOMPARE(array.GetUpperBound(), INT_PTR(-1));
    array.SetSize(3);
    QCOMPARE(array.GetUpperBound(), INT_PTR(2));
    array.RemoveAt(0, 3);
    QCOMPARE(array.GetUpperBound(), INT_PTR(-1));
}

template <typename Array> void Steps<Array>::data()
{
    Array array;
    const Array &constant = array;
    QVERIFY(!array.GetData() && !constant.GetData());
    array.SetSize(2);
    array.GetData()[1] = element<Array>(7);
    QCOMPARE(array.GetAt(1), element<Array>(7));
    QVERIFY(constant.GetData()[1] == element<Array>(7));
    QCOMPARE(static_cast<const void *>(array.GetData()), static_cast<const void *>(&array[0]));
    array.RemoveAll();
    QVERIFY(!array.GetData());
}

template <typename Array> void Steps<Array>::indexing()
{
    Array array;
    const Array &constant = array;
    array.SetSize(2);
    array[1] = element<Array>(9);
    takeInvalidArguments();
    QCOMPARE(constant[1], element<Array>(9));
    QCOMPARE(array.ElementAt(1), element<Array>(9));
    QCOMPARE(&array.ElementAt(0), &array[0]);
    QCOMPARE(takeInvalidArguments(), 0);
}

// A slot that is allocated but not in use is read and written all the same.
template <typename Array> void Steps<Array>::advisoryIndex()
{
    Array array;
    array.SetSize(3);
    array.RemoveAt(2);
    takeInvalidArguments();
    array.SetAt(2, element<Array>(5));
    QCOMPARE(takeInvalidArguments(), 1);
    QCOMPARE(array.GetSize(), INT_PTR(2));
    QCOMPARE(array.GetAt(2), element<Array>(5));
    QCOMPARE(array.ElementAt(2), element<Array>(5));
    array[2] = element<Array>(6);
    const Array &constant = array;
    QCOMPARE(constant[2], element<Array>(6));
    QCOMPARE(takeInvalidArguments(), 4);
}

template <typename Array> void Steps<Array>::removesPastTheEnd()
{
    Array array;
    for (int i = 1; i <= 4; ++i)
        array.Add(element<Array>(i));
    const auto removing = [&array](INT_PTR index, INT_PTR count) {
        takeInvalidArguments();
        array.RemoveAt(index, count);
        return takeInvalidArguments() == 1 ? array.GetSize() : INT_PTR(-1);
    };
    QCOMPARE(removing(3, 2), INT_PTR(2));
    QCOMPARE(array[0], element<Array>(1));
    QCOMPARE(array[1], element<Array>(2));
    QCOMPARE(removing(INTPTR_MAX, 1), INT_PTR(1));
    QCOMPARE(removing(1, 2), INT_PTR(1));
    QCOMPARE(removing(1, 1), INT_PTR(0));
    QCOMPARE(removing(0, 1), INT_PTR(0));
}

template <typename Array> void Steps<Array>::staleSlotsAreCleared()
{
    Array array;
    for (int i = 1; i <= 4; ++i)
        array.Add(element<Array>(i));
    array.RemoveAt(1, 3);
    array.SetSize(4);
    QCOMPARE(array[1], element<Array>(0));
    QCOMPARE(array[3], element<Array>(0));
    array.RemoveAt(1, 3);
    array.InsertAt(3, element<Array>(8));
    QCOMPARE(array[2], element<Array>(0));
    QCOMPARE(array[3], element<Array>(8));
}

template <typename Array> void Steps<Array>::subclassInsertsZeros()
{
    Opened<Array> array;
    for (int i = 1; i <= 3; ++i)
        array.Add(element<Array>(i));
    array.InsertEmpty(1, 2);
    const int expected[]{1, 0, 0, 2, 3};
    QCOMPARE(array.GetSize(), INT_PTR(std::size(expected)));
    for (int i = 0; i < 5; ++i)
        QCOMPARE(array[i], element<Array>(expected[i]));
}

template <typename Array> void addSteps(const char *name)
{
    QTest::addRow("%s upper bound", name) << &Steps<Array>::upperBound;
    QTest::addRow("%s data", name) << &Steps<Array>::data;
    QTest::addRow("%s indexing", name) << &Steps<Array>::indexing;
    QTest::addRow("%s advisory index", name) << &Steps<Array>::advisoryIndex;
    QTest::addRow("%s removes past the end", name) << &Steps<Array>::removesPastTheEnd;
    QTest::addRow("%s stale slots are cleared", name) << &Steps<Array>::staleSlotsAreCleared;
    QTest::addRow("%s subclass inserts zeros", name) << &Steps<Array>::subclassInsertsZeros;
}

} // namespace

using Step = void (*)();

Q_DECLARE_METATYPE(Step)

class tst_PlainArrays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void behaves_data();
    void behaves();
    void pointersToArraysAreElementsToo();
    void stepOfALargeSize_data();
    void stepOfALargeSize();
};

void tst_PlainArrays::behaves_data()
{
    QTest::addColumn<Step>("step");
    addSteps<CWordArray>("CWordArray");
    addSteps<CByteArray>("CByteArray");
    addSteps<CPtrArray>("CPtrArray");
}

void tst_PlainArrays::behaves()
{
    QFETCH(Step, step);
    step();
}

void tst_PlainArrays::pointersToArraysAreElementsToo()
{
    CPtrArray inner;
    inner.Add(nullptr);
    inner.Add(&inner);

    CPtrArray array;
    array.InsertAt(0, &inner);
    QCOMPARE(array.GetSize(), INT_PTR(2));
    array.InsertAt(0, static_cast<void *>(&inner));
    QCOMPARE(array.GetSize(), INT_PTR(3));
    QCOMPARE(array[0], static_cast<void *>(&inner));
    QCOMPARE(array[1], static_cast<void *>(nullptr));
}

void tst_PlainArrays::stepOfALargeSize_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<qint64>("step");

    QTest::newRow("largest 32-bit size") << qint64(INT32_MAX) << qint64(1024);
    QTest::newRow("negative as 32 bits") << qint64(INT32_MAX) + 1 << qint64(4);
    QTest::newRow("small as 32 bits") << (qint64(1) << 32) + 80 << qint64(10);
}

void tst_PlainArrays::stepOfALargeSize()
{
#ifdef KX_ADDRESS_SANITIZER
    QTest::qSkip("the sanitizer's allocator would touch all of the memory", __FILE__, __LINE__);
#else
    QFETCH(qint64, size);
    QFETCH(qint64, step);

    // Memory that is not written takes no space.
    Opened<CByteArray> array;
    array.m_pData = static_cast<BYTE *>(std::calloc(std::size_t(size), 1));
    if (!array.m_pData)
        return QTest::qSkip("there is not as much memory", __FILE__, __LINE__);
    array.m_nSize = array.m_nMaxSize = INT_PTR(size);
    array.Add(1);
    QCOMPARE(array.m_nMaxSize, INT_PTR(size + step));
#endif
}

QTEST_MAIN(tst_PlainArrays)
#include "tst_PlainArrays.moc"
