/// @file KxArrays.h
/// @brief The growable arrays: CStringArray, CWordArray, CByteArray and CPtrArray.
///
/// All four share KxArray; CStringArray adds text arguments, the others KxPlainArray's access to the storage.
#pragma once

#include "KxLists.h"
#include "KxString.h"
#include "KxWinTypes.h"

/// What the four arrays have in common. Applications use CStringArray, CWordArray, CByteArray and CPtrArray.
///
/// Indexes and counts are 0-based, signed and pointer-sized. Argument checks are advisory: a failed one calls
/// AfxThrowInvalidArgException(), which returns, and the operation carries on. A bad index is therefore not
/// trapped: reading or writing outside the storage is undefined. Where carrying on would leave the array
/// itself damaged the operation changes nothing instead; each member says so.
///
/// The array grows by fixed steps, see SetSize(). A size that cannot be represented or allocated throws
/// std::bad_alloc and leaves the array as it was. When the characters of a string cannot be copied into an
/// array that has grown already, std::bad_alloc leaves it grown, with the strings not yet copied empty or
/// unchanged.
///
/// Value arguments may refer to elements of the array itself. Arrays are not copied implicitly (see Copy())
/// and not synchronised. Unlike MFC's they do not derive from CObject and have no virtual members.
/// @tparam Array the class that derives from this one.
/// @tparam Element the element type.
/// @tparam Value how an element is passed and returned: by value, or by constant reference.
template <typename Array, typename Element, typename Value> class KX_MFC_EXPORT KxArray
{
public:
    KxArray(const KxArray &) = delete;
    KxArray &operator=(const KxArray &) = delete;

    /// @name Size
    /// @{

    /// @return the number of elements.
    INT_PTR GetSize() const { return m_nSize; }
    /// @return the number of elements.
    INT_PTR GetCount() const { return m_nSize; }
    /// @return true when there are no elements. Storage may be allocated nevertheless.
    bool IsEmpty() const { return m_nSize == 0; }
    /// Changes the number of elements; new ones are empty, zero or null.
    ///
    /// Size 0 frees the storage. The first allocation has exactly @p newSize slots. Later ones add the
    /// grow-by step to the capacity, or more when @p newSize needs it. A step of 0 is computed at each
    /// growth: an eighth of the size, at least 4 and at most 1024. The plain arrays take the size for that as
    /// a 32-bit signed integer, so their step is 4 again from 2^31 elements on. Shrinking to another size
    /// than 0 keeps the capacity. The fixed step makes filling a long array one element at a time quadratic:
    /// pass a @p growBy in the order of the expected size.
    /// @param newSize number of elements. A negative one calls AfxThrowInvalidArgException() and changes
    /// nothing, the step included.
    /// @param growBy slots to add at each growth, stored for later growth; 0 computes them; a negative value
    /// keeps the stored one, which is 0 at first.
    /// @throws std::bad_alloc when the storage cannot be allocated.
    void SetSize(INT_PTR newSize, INT_PTR growBy = -1);
    /// Removes all elements and frees the storage. The grow-by step stays.
    void RemoveAll() { SetSize(0, -1); }
    /// Gives back the slots that are not in use.
    /// @throws std::bad_alloc when the smaller storage cannot be allocated.
    void FreeExtra();
    /// @}

    /// @name Element access
    /// An index below 0 or not below GetSize() calls AfxThrowInvalidArgException(), then the slot is accessed
    /// regardless.
    /// @{

    /// @return the element at @p index.
    Value GetAt(INT_PTR index) const
    {
        CheckIndex(index);
        return m_pData[index];
    }
    /// @return the element at @p index, valid until the array changes its size.
    Element &ElementAt(INT_PTR index)
    {
        CheckIndex(index);
        return m_pData[index];
    }
    /// @return GetAt(@p index).
    Value operator[](INT_PTR index) const { return GetAt(index); }
    /// @return ElementAt(@p index).
    Element &operator[](INT_PTR index) { return ElementAt(index); }
    /// Assigns @p value to the element at @p index.
    void SetAt(INT_PTR index, Value value)
    {
        CheckIndex(index);
        m_pData[index] = value;
    }
    /// @}

    /// @name Growing
    /// @{

    /// Assigns @p value to the element at @p index; when there is none yet, SetSize(@p index + 1) makes it
    /// first.
    ///
    /// A negative index calls AfxThrowInvalidArgException() and changes nothing.
    /// @throws std::bad_alloc when the array cannot grow.
    void SetAtGrow(INT_PTR index, Value value) { StoreGrowing(index, Element(value)); }
    /// Appends copies of the elements of @p other.
    ///
    /// Appending an array to itself calls AfxThrowInvalidArgException(); it then holds its content twice.
    /// When both arrays are empty the storage is freed.
    /// @return the size before, thus the index of the first new element.
    /// @throws std::bad_alloc when the array cannot grow.
    INT_PTR Append(const Array &other);
    /// Makes this array hold copies of the elements of @p other; nothing when that is this array.
    ///
    /// The storage changes as with SetSize(other.GetSize()): an empty @p other frees it, and the step stays.
    /// @throws std::bad_alloc when the array cannot grow.
    void Copy(const Array &other);
    /// @}

    /// @name Inserting and removing
    /// @{

    /// Inserts @p value @p count times in front of the element at @p index.
    ///
    /// An index past the end fills the gap with empty, zero or null elements. A negative index or a count
    /// below 1 calls AfxThrowInvalidArgException(). A negative index then changes nothing. Nor does a count
    /// below 1 within the array; at or past the end, such a count sets the size to @p index + @p count, or
    /// changes nothing when that is negative.
    /// @throws std::bad_alloc when the array cannot grow.
    void InsertAt(INT_PTR index, Value value, INT_PTR count = 1);
    /// Removes @p count elements from @p index on. The capacity stays.
    ///
    /// A range that does not lie within the array calls AfxThrowInvalidArgException(). Then a string array
    /// changes nothing. So does a plain one, unless only the end of the range is too high and @p count is at
    /// most the size: then it moves nothing and gets shorter by @p count elements at its end.
    void RemoveAt(INT_PTR index, INT_PTR count = 1);
    /// @}

protected:
    KxArray() = default;
    ~KxArray();

    /// Grows the capacity to @p size slots at least, by a step of @p growBy slots or a computed one.
    void Reserve(INT_PTR size, INT_PTR growBy);
    /// SetSize() with good arguments. New plain elements are left as they are.
    void Resize(INT_PTR newSize, INT_PTR growBy);
    /// Makes room for @p count empty, zero or null elements at @p index. Bad arguments are treated as
    /// InsertAt() does.
    void InsertEmpty(INT_PTR index, INT_PTR count);
    /// What the derived classes' InsertAt() with an array does.
    void InsertArray(INT_PTR index, const Array *other);
    /// SetAtGrow() with a value that does not lie in the array.
    void StoreGrowing(INT_PTR index, Element value);
    /// Calls AfxThrowInvalidArgException() when there is no element at @p index.
    void CheckIndex(INT_PTR index) const
    {
        if (index < 0 || index >= m_nSize)
            AfxThrowInvalidArgException();
    }

    Element *m_pData = nullptr; ///< The storage; null when there is none.
    INT_PTR m_nSize = 0;        ///< Elements in use.
    INT_PTR m_nMaxSize = 0;     ///< Slots allocated.
    INT_PTR m_nGrowBy = 0;      ///< Slots to add at each growth; 0 computes them.
};

/// What CWordArray, CByteArray and CPtrArray add to KxArray: direct access to the storage.
/// @tparam Array the class that derives from this one.
/// @tparam Element the element type.
/// @tparam ConstElement the element type that the constant GetData() points to.
template <typename Array, typename Element, typename ConstElement>
class KX_MFC_EXPORT KxPlainArray : public KxArray<Array, Element, Element>
{
    using Base = KxArray<Array, Element, Element>;

public:
    /// @return GetSize() - 1; -1 when the array is empty.
    INT_PTR GetUpperBound() const { return this->m_nSize - 1; }
    /// @return the first element, valid until the array changes its size; null when nothing is allocated.
    ConstElement *GetData() const { return const_cast<ConstElement *>(this->m_pData); }
    /// @return the first element, valid until the array changes its size; null when nothing is allocated.
    Element *GetData() { return this->m_pData; }
    /// Appends @p value.
    /// @return the index of the new element.
    /// @throws std::bad_alloc when the array cannot grow.
    INT_PTR Add(Element value)
    {
        if (__builtin_expect(this->m_nSize == this->m_nMaxSize, 0))
            this->Reserve(this->m_nSize + 1, this->m_nGrowBy);
        const INT_PTR index = this->m_nSize;
        this->m_pData[index] = value;
        this->m_nSize = index + 1;
        return index;
    }

    using Base::InsertAt;
    /// Inserts copies of the elements of @p other, which may be this array, in front of the element at @p
    /// index.
    ///
    /// An index past the end fills the gap with zero or null elements. A null @p other or a negative index
    /// calls AfxThrowInvalidArgException() and changes nothing. An empty @p other changes nothing.
    /// @throws std::bad_alloc when the array cannot grow.
    void InsertAt(INT_PTR index, Array *other) { Base::InsertArray(index, other); }

protected:
    KxPlainArray() = default;
    ~KxPlainArray() = default;
};

/// A growable array of strings. The members that take an element also take a text; a null one is the empty
/// text.
class KX_MFC_EXPORT CStringArray : public KxArray<CStringArray, CString, const CString &>
{
public:
    /// An empty array without storage.
    CStringArray();
    /// Destroys the strings and frees the storage.
    ~CStringArray();

    using KxArray::InsertAt;
    using KxArray::SetAt;
    using KxArray::SetAtGrow;

    /// Assigns @p text to the element at @p index. A bad index is treated as SetAt() with a string does.
    void SetAt(INT_PTR index, const wchar_t *text);
    /// Assigns @p text as SetAtGrow() with a string does.
    /// @throws std::bad_alloc when the array cannot grow.
    void SetAtGrow(INT_PTR index, const wchar_t *text);
    /// Appends @p value.
    /// @return the index of the new element.
    /// @throws std::bad_alloc when the array cannot grow.
    INT_PTR Add(const CString &value);
    /// Appends @p text.
    /// @return the index of the new element.
    /// @throws std::bad_alloc when the array cannot grow.
    INT_PTR Add(const wchar_t *text);
    /// Inserts @p text @p count times, as InsertAt() with a string does.
    /// @throws std::bad_alloc when the array cannot grow.
    void InsertAt(INT_PTR index, const wchar_t *text, INT_PTR count = 1);
    /// Inserts copies of the strings of @p other, which may be this array, in front of the element at @p
    /// index.
    ///
    /// An index past the end fills the gap with empty strings. A null @p other or a negative index calls
    /// AfxThrowInvalidArgException() and changes nothing. An empty @p other changes nothing.
    /// @throws std::bad_alloc when the array cannot grow.
    void InsertAt(INT_PTR index, const CStringArray *other);
};

/// A growable array of unsigned 16-bit numbers.
class KX_MFC_EXPORT CWordArray : public KxPlainArray<CWordArray, WORD, const WORD>
{
};

/// A growable array of unsigned 8-bit numbers.
class KX_MFC_EXPORT CByteArray : public KxPlainArray<CByteArray, BYTE, const BYTE>
{
};

/// A growable array of pointers. What they point to is not owned.
class KX_MFC_EXPORT CPtrArray : public KxPlainArray<CPtrArray, void *, const void *>
{
};

extern template class KxArray<CStringArray, CString, const CString &>;
extern template class KxArray<CWordArray, WORD, WORD>;
extern template class KxArray<CByteArray, BYTE, BYTE>;
extern template class KxArray<CPtrArray, void *, void *>;
