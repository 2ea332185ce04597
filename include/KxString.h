/// @file KxString.h
/// @brief CString, the wide string of every interface of the library.
///
/// A wchar_t has 32 bits here, so a CString holds one Unicode code point per element (UTF-32). Nothing in
/// this header crashes on a null text: it counts as the empty text unless a function says otherwise.
#pragma once

#include "KxStringFunctions.h"
#include "KxWinTypes.h"

#include <cstdarg>
#include <locale>
#include <string>
#include <type_traits>
#include <utility>

/// The MFC string on the standard wide string, whose members all stay available.
///
/// Copies are deep. The logical text ends at the first null element: GetLength() counts up to it, whereas
/// IsEmpty(), Left(), Mid() and the indexing members work on the stored size. The two agree again after
/// ReleaseBuffer(-1). Positions are 0-based; a failed search gives -1. A string may be used from any thread
/// but is not synchronised. Only the instantiation for wchar_t exists, in the library.
template <typename CT> class KX_MFC_EXPORT CStdStr : public std::basic_string<CT>
{
    using Base = std::basic_string<CT>;

public:
    /// An empty string.
    CStdStr() = default;
    /// A deep copy.
    CStdStr(const CStdStr &) = default;
    /// Takes over the characters of the other string.
    CStdStr(CStdStr &&) noexcept = default;
    /// Copies up to the null; a null pointer gives an empty string.
    CStdStr(const CT *text)
        : Base(text, static_cast<std::size_t>(sslen(text)))
    {
    }
    /// Converts narrow text with the global locale as far as it can be converted; null gives an empty string.
    CStdStr(const char *text) { ssasn(*this, text); }
    /// Copies a standard string, embedded nulls too.
    CStdStr(const Base &text)
        : Base(text)
    {
    }
    /// Takes over the characters of a standard string.
    CStdStr(Base &&text) noexcept
        : Base(std::move(text))
    {
    }

    /// Assigns a deep copy. Assigning a string to itself does nothing.
    CStdStr &operator=(const CStdStr &other)
    {
        ssasn(*this, other);
        return *this;
    }
    /// Takes over the characters of the other string.
    CStdStr &operator=(CStdStr &&) noexcept = default;
    /// Assigns @p text, which may lie inside this string; a null pointer empties the string.
    CStdStr &operator=(const CT *text)
    {
        ssasn(*this, text);
        return *this;
    }
    /// Converts narrow text with the global locale as far as it can be converted; null empties the string.
    CStdStr &operator=(const char *text)
    {
        ssasn(*this, text);
        return *this;
    }

    /// Assigns one element.
    CStdStr &operator=(CT ch)
    {
        this->assign(1, ch);
        return *this;
    }

    /// @name Access and size
    /// @{

    /// @return c_str(), valid until the string is next changed.
    operator const CT *() const { return this->c_str(); }
    /// @return the number of elements before the first null, at most size().
    int GetLength() const { return sslen(this->c_str()); }
    /// @return true when nothing is stored. A string that stores nulls only is not empty.
    bool IsEmpty() const { return this->empty(); }
    /// @return the element at @p index.
    /// @throws std::out_of_range when @p index is not in 0..size()-1.
    CT GetAt(int index) const { return this->at(static_cast<std::size_t>(index)); }
    /// @return the element at @p index, which is not checked; the terminator at size().
    CT &operator[](int index) { return Base::operator[](static_cast<std::size_t>(index)); }
    /// @return the element at @p index, which is not checked; the terminator at size().
    const CT &operator[](int index) const { return Base::operator[](static_cast<std::size_t>(index)); }
    /// @return the element at an @p index of any other integer type, which is not checked.
    template <typename Index, typename = std::enable_if_t<std::is_integral_v<Index>>>
    CT &operator[](Index index)
    {
        return Base::operator[](static_cast<std::size_t>(index));
    }
    /// @return the element at an @p index of any other integer type, which is not checked.
    template <typename Index, typename = std::enable_if_t<std::is_integral_v<Index>>>
    const CT &operator[](Index index) const
    {
        return Base::operator[](static_cast<std::size_t>(index));
    }
    /// @}

    /// @name Searching and comparing
    /// @{

    /// @return the first position of @p ch, or -1.
    int Find(CT ch) const { return static_cast<int>(this->find(ch)); }
    /// @return the first position of @p sub; 0 when it is empty; -1 when it is not found or null.
    int Find(const CT *sub) const { return sub ? static_cast<int>(this->find(sub)) : -1; }
    /// @return the last position of @p ch, or -1.
    int ReverseFind(CT ch) const { return static_cast<int>(this->rfind(ch)); }
    /// Compares element by element.
    /// @return a negative value, 0 or a positive value: this string is less than, equal to or greater than @p
    /// other.
    int Compare(const CT *other) const;
    /// Compares with @p other without regard to case, by the rules of the classic "C" locale.
    /// @return a negative value, 0 or a positive value, as ssicmp() does.
    int CompareNoCase(const CT *other) const;
    /// @}

    /// @name Extraction
    /// @{

    /// @return the first @p n elements; none for a negative @p n, all of them when there are fewer.
    CStdStr Left(int n) const;
    /// @return up to @p count elements from @p first on. A negative value counts as 0; nothing lies past the
    /// end.
    CStdStr Mid(int first, int count) const;
    /// @return Mid(first, GetLength() - first): the elements from @p first on.
    CStdStr Mid(int first) const;
    /// @}

    /// @name Changes
    /// @{

    /// Erases all elements.
    void Empty() { this->clear(); }
    /// Puts @p ch in place of the element at @p index.
    /// @throws std::out_of_range when @p index is not in 0..size()-1.
    void SetAt(int index, CT ch) { this->at(static_cast<std::size_t>(index)) = ch; }
    /// Appends a string, which may be this one.
    CStdStr &operator+=(const CStdStr &other)
    {
        ssadd(*this, other);
        return *this;
    }
    /// Appends @p text, which may lie inside this string; a null pointer appends nothing.
    CStdStr &operator+=(const CT *text)
    {
        ssadd(*this, text);
        return *this;
    }
    /// Appends one element.
    CStdStr &operator+=(CT ch)
    {
        this->push_back(ch);
        return *this;
    }
    /// Converts every element to upper case with the global locale.
    CStdStr &MakeUpper();
    /// Converts every element to lower case with the global locale.
    CStdStr &MakeLower();
    /// Converts every element to upper case with @p locale.
    CStdStr &toUpper(const std::locale &locale);
    /// Converts every element to lower case with @p locale.
    CStdStr &ToLower(const std::locale &locale);
    /// Erases what the global locale counts as white space from the front.
    CStdStr &TrimLeft();
    /// Erases what the global locale counts as white space from the end.
    CStdStr &TrimRight();
    /// @}

    /// @name Direct access to the characters
    /// @{

    /// Makes room for @p n elements; new elements are null. Never shrinks the string, unlike ReleaseBuffer().
    /// @return the first element, writable, also when the string is empty; owned by the string and valid
    /// until it is next changed.
    CT *GetBuffer(int n);
    /// The same as GetBuffer().
    CT *GetBuf(int n) { return GetBuffer(n); }
    /// Sets the stored size to @p n, or to the number of elements before the first null when @p n is
    /// negative.
    void ReleaseBuffer(int n = -1);
    /// The same as ReleaseBuffer().
    void RelBuf(int n = -1) { ReleaseBuffer(n); }
    /// @}

    /// @name Formatting and resources
    /// @{

    /// Replaces the text by formatted output. The arguments may point into this string.
    ///
    /// Conversions are those of the C library's wide output: %ls takes a wide text and, unlike MFC, %s a
    /// narrow one. At most the format's length plus 1022 elements are kept. When the output does not fit or
    /// an argument cannot be converted, the string holds what the C library left; no error is reported. A
    /// null format gives an empty string.
    void Format(const CT *format, ...);
    /// Format() with the started argument list @p args, which is used up.
    void FormatV(const CT *format, va_list args);
    /// Loads string @p id of the module set with AfxSetResourceHandle(), cut at 1023 elements.
    /// @return true when a string was loaded; false, with an empty string, when there is none.
    bool LoadStringW(unsigned id);
    /// Loads a string of a module, cut at 1023 elements.
    /// @param hinst the module; null for the one set with AfxSetResourceHandle().
    /// @param id the string's identifier.
    /// @return true when a string was loaded; false, with an empty string, when there is none.
    bool LoadStringW(HINSTANCE hinst, unsigned id);
    /// @}
};

/// The wide string that every interface of the library takes and returns.
using CString = CStdStr<wchar_t>;

extern template class CStdStr<wchar_t>;

/// @name Concatenation
/// These give a CString, which converts to a const wchar_t pointer. Mixed with a std::wstring, the standard
/// operators apply and give a std::wstring.
/// @{

/// @return a copy of @p left with one element appended.
template <typename CT> inline CStdStr<CT> operator+(const CStdStr<CT> &left, CT right)
{
    CStdStr<CT> result;
    result.reserve(left.size() + 1);
    result += left;
    result += right;
    return result;
}

/// @return a copy of @p left with @p right appended.
template <typename CT> inline CStdStr<CT> operator+(const CStdStr<CT> &left, const CStdStr<CT> &right)
{
    CStdStr<CT> result;
    result.reserve(left.size() + right.size());
    result += left;
    result += right;
    return result;
}

/// @return a copy of @p left with @p right appended; a null pointer appends nothing.
template <typename CT> inline CStdStr<CT> operator+(const CStdStr<CT> &left, const CT *right)
{
    CStdStr<CT> result;
    result.reserve(left.size() + static_cast<std::size_t>(sslen(right)));
    result += left;
    result += right;
    return result;
}

/// @return @p left with @p right appended; a null pointer counts as empty.
template <typename CT> inline CStdStr<CT> operator+(const CT *left, const CStdStr<CT> &right)
{
    CStdStr<CT> result;
    result.reserve(static_cast<std::size_t>(sslen(left)) + right.size());
    result += left;
    result += right;
    return result;
}

/// @return @p left, whose characters are reused, with one element appended.
template <typename CT> inline CStdStr<CT> operator+(CStdStr<CT> &&left, CT right)
{
    return std::move(left += right);
}

/// @return @p left, whose characters are reused, with @p right appended.
template <typename CT> inline CStdStr<CT> operator+(CStdStr<CT> &&left, const CStdStr<CT> &right)
{
    return std::move(left += right);
}

/// @return @p left, whose characters are reused, with @p right appended; a null pointer appends nothing.
template <typename CT> inline CStdStr<CT> operator+(CStdStr<CT> &&left, const CT *right)
{
    return std::move(left += right);
}

/// Refused: a narrow character would otherwise be added to the address of the text.
template <typename CT> CStdStr<CT> operator+(const CStdStr<CT> &left, char right) = delete;
/// @}
