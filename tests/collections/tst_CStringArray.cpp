#include "InvalidArguments.h"
#include "KxArrays.h"

#include <QtTest>

#include <cstring>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<CStringArray> && !std::is_copy_assignable_v<CStringArray>);
static_assert(!std::is_polymorphic_v<CStringArray> && sizeof(CStringArray) == 4 * sizeof(void *));
static_assert(std::is_same_v<decltype(std::declval<CStringArray &>()[0]), CString &>);
static_assert(std::is_same_v<decltype(std::declval<const CStringArray &>()[0]), const CString &>);

namespace {

// The fields in their order, as subclasses of ported code see them.
struct Opened : CStringArray
{
    using CStringArray::InsertEmpty;
    using CStringArray::m_nGrowBy;
    using CStringArray::m_nMaxSize;
    using CStringArray::m_nSize;
    using CStringArray::m_pData;
};

QString joined(const CStringArray &array)
{
    QStringList texts;
    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        texts << QString::fromStdWString(array[i]);
    return texts.join(QLatin1Char('|'));
}

const wchar_t *const noText = nullptr;

} // namespace

class tst_CStringArray : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { takeInvalidArguments(); }
    void fieldsStandInOrder();
    void takesTexts();
    void takesStrings();
    void takesOtherStrings();
    void nullTextIsEmpty();
    void ownTextIsSound();
    void insertsAnotherArray();
    void keepsEmbeddedNulls();
    void badRangesAreLeftAlone();
    void subclassInsertsEmptyStrings();
};

void tst_CStringArray::fieldsStandInOrder()
{
    Opened array;
    array.SetSize(3, 9);
    array.Add(L"x");
    INT_PTR words[4];
    static_assert(sizeof(words) == sizeof(array));
    std::memcpy(words, static_cast<const void *>(&array), sizeof(words));
    QCOMPARE(words[0], reinterpret_cast<INT_PTR>(array.m_pData));
    QCOMPARE(words[1], INT_PTR(4));
    QCOMPARE(words[2], INT_PTR(12));
    QCOMPARE(words[3], INT_PTR(9));
}

void tst_CStringArray::takesTexts()
{
    CStringArray array;
    QCOMPARE(array.Add(L"a"), INT_PTR(0));
    QCOMPARE(array.Add(L"b"), INT_PTR(1));
    array.SetAt(0, L"A");
    array.SetAtGrow(3, L"d");
    array.SetAtGrow(1, L"B");
    array.InsertAt(1, L"x");
    array.InsertAt(0, L"y", 2);
    QCOMPARE(joined(array), QStringLiteral("y|y|A|x|B||d"));
    QCOMPARE(takeInvalidArguments(), 0);
}

void tst_CStringArray::takesStrings()
{
    CStringArray array;
    const CString text(L"a string of more characters than fit inside its object");
    QCOMPARE(array.Add(text), INT_PTR(0));
    array.SetAtGrow(1, text);
    array.InsertAt(1, CString(L"x"), 2);
    array.SetAt(0, CString(L"first"));
    array.ElementAt(1) += L"y";
    array[2] = L"z";
    QCOMPARE(joined(array), QStringLiteral("first|xy|z|") + QString::fromStdWString(text));
    QCOMPARE(array.GetAt(3), text);
}

// Everything that converts to a string serves too.
void tst_CStringArray::takesOtherStrings()
{
    CStringArray array;
    array.Add(std::wstring(L"wide"));
    array.Add("narrow");
    array.SetAtGrow(2, std::wstring(L"standard"));
    array.InsertAt(0, std::wstring(L"x"));
    QCOMPARE(joined(array), QStringLiteral("x|wide|narrow|standard"));
}

void tst_CStringArray::nullTextIsEmpty()
{
    CStringArray array;
    array.Add(noText);
    array.Add(L"b");
    array.SetAt(1, noText);
    array.SetAtGrow(2, noText);
    array.InsertAt(0, noText, 2);
    QCOMPARE(array.GetSize(), INT_PTR(5));
    QCOMPARE(joined(array), QStringLiteral("||||"));
}

void tst_CStringArray::ownTextIsSound()
{
    CStringArray array;
    array.Add(L"a first element of many characters: tail");
    array.Add(array[0].Find(L"tail") + array[0].c_str());
    array.InsertAt(0, array[1].c_str(), 2);
    array.SetAt(0, array[0].c_str() + 1);
    array.SetAtGrow(9, array[1].c_str());
    QCOMPARE(array[0], CString(L"ail"));
    QCOMPARE(array[1], CString(L"tail"));
    QCOMPARE(array[3], CString(L"tail"));
    QCOMPARE(array[9], CString(L"tail"));
}

void tst_CStringArray::insertsAnotherArray()
{
    CStringArray source;
    source.Add(L"x");
    source.Add(L"y");
    const CStringArray &other = source;

    CStringArray array;
    array.InsertAt(1, &other);
    array.InsertAt(0, &other);
    QCOMPARE(joined(array), QStringLiteral("x|y||x|y"));
    QCOMPARE(joined(other), QStringLiteral("x|y"));
}

void tst_CStringArray::keepsEmbeddedNulls()
{
    const CString text(std::wstring(L"a\0b", 3));
    CStringArray array;
    array.Add(text);
    array.InsertAt(0, text, 2);
    CStringArray other;
    other.Append(array);
    QCOMPARE(other[0].size(), std::size_t(3));
    QCOMPARE(other[2].size(), std::size_t(3));
}

void tst_CStringArray::badRangesAreLeftAlone()
{
    CStringArray array;
    array.Add(L"a");
    array.Add(L"b");
    array.Add(L"c");
    array.RemoveAt(2, 2);
    array.RemoveAt(3);
    array.RemoveAt(INTPTR_MAX, 1);
    QCOMPARE(joined(array), QStringLiteral("a|b|c"));
    QCOMPARE(takeInvalidArguments(), 3);
}

void tst_CStringArray::subclassInsertsEmptyStrings()
{
    Opened array;
    array.Add(L"a");
    array.Add(L"b");
    array.Add(L"c");
    array.InsertEmpty(1, 1);
    array.InsertEmpty(3, 3);
    QCOMPARE(joined(array), QStringLiteral("a||b||||c"));
}

QTEST_MAIN(tst_CStringArray)
#include "tst_CStringArray.moc"
