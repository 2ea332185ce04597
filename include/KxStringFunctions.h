/// @file KxStringFunctions.h
/// @brief The function templates beneath CString, on plain null-terminated texts and standard strings.
///
/// Nothing here crashes on a null text: it counts as the empty text.
#pragma once

#include "KxWinTypes.h"

#include <cstdarg>
#include <functional>
#include <locale>
#include <string>

/// @name Function templates on the element type
/// @{

/// @return the number of elements before the first null; 0 for a null pointer.
template <typename CT> inline int sslen(const CT *text)
{
    return text ? static_cast<int>(std::char_traits<CT>::length(text)) : 0;
}

/// @return @p ch in upper case, by the rules of @p locale; itself when it has none.
template <typename CT> inline CT sstoupper(const CT &ch, const std::locale &locale)
{
    return std::toupper(ch, locale);
}

/// @return @p ch in lower case, by the rules of @p locale; itself when it has none.
template <typename CT> inline CT sstolower(const CT &ch, const std::locale &locale)
{
    return std::tolower(ch, locale);
}

/// sstoupper() as a function object that std::bind2nd can bind to a locale.
template <typename CT = wchar_t> struct SSToUpper
{
    using first_argument_type = CT;           ///< The element.
    using second_argument_type = std::locale; ///< The locale.
    using result_type = CT;                   ///< The converted element.

    /// @return @p ch in upper case.
    CT operator()(const CT &ch, const std::locale &locale) const { return sstoupper(ch, locale); }
};

/// sstolower() as a function object that std::bind2nd can bind to a locale.
template <typename CT = wchar_t> struct SSToLower
{
    using first_argument_type = CT;           ///< The element.
    using second_argument_type = std::locale; ///< The locale.
    using result_type = CT;                   ///< The converted element.

    /// @return @p ch in lower case.
    CT operator()(const CT &ch, const std::locale &locale) const { return sstolower(ch, locale); }
};

/// Predicate: an element that its locale does not count as white space. std::not1 can negate it.
template <typename CT = wchar_t> struct NotSpace
{
    using argument_type = CT; ///< The element.
    using result_type = bool; ///< Whether it is no white space.

    std::locale locale; ///< Says what is white space.

    /// Uses @p spaceLocale, or the global locale.
    explicit NotSpace(const std::locale &spaceLocale = std::locale())
        : locale(spaceLocale)
    {
    }

    /// @return true when @p ch is not white space.
    bool operator()(CT ch) const { return !std::isspace(ch, locale); }
};

/// Compares two texts without regard to case, by the rules of the classic "C" locale whatever the global
/// locale is.
/// @return the lower-cased element of @p left minus that of @p right where the texts first differ; 0 when
/// they are equal. A text that begins the other one is the smaller.
template <typename CT> int ssicmp(const CT *left, const CT *right)
{
    const CT nothing{};
    const auto &ctype = std::use_facet<std::ctype<CT>>(std::locale::classic());
    left = left ? left : &nothing;
    right = right ? right : &nothing;
    for (;; ++left, ++right) {
        const CT a = ctype.tolower(*left);
        const CT b = ctype.tolower(*right);
        if (a == CT() || a != b)
            return static_cast<int>(static_cast<unsigned>(a) - static_cast<unsigned>(b));
    }
}
/// @}

/// @name Plain functions
/// @{

/// The C library's vswprintf().
/// @param buffer receives the text, terminated; owned by the caller.
/// @param count elements of @p buffer, the terminator included.
/// @param format as in CString::Format(); not null.
/// @param args the started argument list.
/// @return the number of elements written without the terminator; negative when the output does not fit or an
/// argument cannot be converted.
KX_MFC_EXPORT int ssvsprintf(wchar_t *buffer, std::size_t count, const wchar_t *format, va_list args);

/// Converts narrow text with the std::codecvt facet of @p locale and terminates the result where conversion
/// stopped. Bytes that the locale cannot convert end the text; no error is reported.
/// @param dst receives the text: room for @p dstLen elements and a terminator.
/// @param dstLen elements that may be written before the terminator.
/// @param src the narrow text, which need not be terminated.
/// @param srcLen bytes to convert.
/// @param locale the locale that says how @p src is encoded.
/// @return @p dst.
KX_MFC_EXPORT wchar_t *StdCodeCvt(wchar_t *dst, int dstLen, const char *src, int srcLen,
                                  const std::locale &locale);
/// @}

/// @name Assigning and appending
/// @{

/// Assigns @p src to @p dst; does nothing when both share one buffer.
template <typename CT> inline void ssasn(std::basic_string<CT> &dst, const std::basic_string<CT> &src)
{
    if (dst.c_str() != src.c_str())
        dst.assign(src);
}

/// Assigns the text at @p src, which may lie inside @p dst. A null pointer empties @p dst.
///
/// A pointer into @p dst keeps everything stored from there on, embedded nulls too.
template <typename CT> void ssasn(std::basic_string<CT> &dst, const CT *src)
{
    if (!src) {
        dst.clear();
        return;
    }
    const std::less_equal<const CT *> notAfter;
    const CT *first = dst.c_str();
    if (notAfter(first, src) && notAfter(src, first + dst.size()))
        dst.erase(0, static_cast<std::size_t>(src - first));
    else
        dst.assign(src);
}

/// Assigns the narrow text @p src, converted with the global locale's std::codecvt facet. Text that the
/// locale cannot convert ends there. A null pointer empties @p dst.
template <typename CT> void ssasn(std::basic_string<CT> &dst, const char *src)
{
    const int count = sslen(src);
    if (count == 0) {
        dst.clear();
        return;
    }
    dst.resize(static_cast<std::size_t>(count) + 1);
    StdCodeCvt(&dst[0], count, src, count, std::locale());
    dst.resize(static_cast<std::size_t>(sslen(dst.c_str())));
}

/// Appends @p src, which may be @p dst itself.
template <typename CT> inline void ssadd(std::basic_string<CT> &dst, const std::basic_string<CT> &src)
{
    dst.append(src);
}

/// Appends the text at @p src, which may lie inside @p dst. A null pointer appends nothing.
template <typename CT> inline void ssadd(std::basic_string<CT> &dst, const CT *src)
{
    if (src)
        dst.append(src);
}
/// @}
