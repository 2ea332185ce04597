#include "KxString.h"

#include "KxPlatform.h"
#include "KxUser32.h"

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cwchar>
#include <memory>
#include <typeinfo>

namespace {

// Formats of up to 256 characters are formatted on the stack.
constexpr std::size_t stackElements = 1280;
constexpr int resourceElements = 1024;

// The text up to its first null, as vswprintf leaves it in a buffer of nulls. The buffer is cleared only when
// the call fails, because only then may elements that it did not write belong to the result.
std::size_t formatted(wchar_t *buffer, std::size_t size, const wchar_t *format, va_list args)
{
    va_list again;
    va_copy(again, args);
    buffer[0] = L'\0';
    if (ssvsprintf(buffer, size - 1, format, args) < 0) {
        std::fill_n(buffer, size, L'\0');
        ssvsprintf(buffer, size - 1, format, again);
    }
    va_end(again);
    return std::wcslen(buffer);
}

// A facet of the application's own may override the one-element conversions alone, which are the ones that
// ported code gets. The standard facet converts a whole text alike, and faster.
bool convertsRangesAlike(const std::ctype<wchar_t> &ctype)
{
    return typeid(ctype) == typeid(std::ctype<wchar_t>);
}

} // namespace

int ssvsprintf(wchar_t *buffer, std::size_t count, const wchar_t *format, va_list args)
{
    return std::vswprintf(buffer, count, format, args);
}

wchar_t *StdCodeCvt(wchar_t *dst, int dstLen, const char *src, int srcLen, const std::locale &locale)
{
    if (!dst)
        return dst;

    dst[0] = L'\0';
    if (!src || srcLen <= 0 || dstLen <= 0)
        return dst;

    using Facet = std::codecvt<wchar_t, char, std::mbstate_t>;
    std::mbstate_t state{};
    const char *srcNext = src;
    wchar_t *dstNext = dst;
    std::use_facet<Facet>(locale).in(state, src, src + srcLen, srcNext, dst, dst + dstLen, dstNext);
    *std::min(dstNext, dst + dstLen) = L'\0';
    return dst;
}

template <typename CT> int CStdStr<CT>::Compare(const CT *other) const
{
    const CT nothing{};
    return this->compare(other ? other : &nothing);
}

template <typename CT> int CStdStr<CT>::CompareNoCase(const CT *other) const
{
    return ssicmp(this->c_str(), other);
}

template <typename CT> CStdStr<CT> CStdStr<CT>::Left(int n) const
{
    const std::size_t count = static_cast<std::size_t>(std::max(n, 0));
    return CStdStr(this->substr(0, count));
}

template <typename CT> CStdStr<CT> CStdStr<CT>::Mid(int first, int count) const
{
    const std::size_t begin = static_cast<std::size_t>(std::max(first, 0));
    if (begin > this->size())
        return CStdStr();

    return CStdStr(this->substr(begin, static_cast<std::size_t>(std::max(count, 0))));
}

template <typename CT> CStdStr<CT> CStdStr<CT>::Mid(int first) const
{
    const std::int64_t count = std::int64_t{GetLength()} - first;
    return Mid(first, static_cast<int>(std::min(count, std::int64_t{INT_MAX})));
}

template <typename CT> CStdStr<CT> &CStdStr<CT>::MakeUpper()
{
    return toUpper(std::locale());
}

template <typename CT> CStdStr<CT> &CStdStr<CT>::MakeLower()
{
    return ToLower(std::locale());
}

template <typename CT> CStdStr<CT> &CStdStr<CT>::toUpper(const std::locale &locale)
{
    const auto &ctype = std::use_facet<std::ctype<CT>>(locale);
    if (convertsRangesAlike(ctype)) {
        ctype.toupper(this->data(), this->data() + this->size());
        return *this;
    }
    for (CT &ch : *this)
        ch = ctype.toupper(ch);
    return *this;
}

template <typename CT> CStdStr<CT> &CStdStr<CT>::ToLower(const std::locale &locale)
{
    const auto &ctype = std::use_facet<std::ctype<CT>>(locale);
    if (convertsRangesAlike(ctype)) {
        ctype.tolower(this->data(), this->data() + this->size());
        return *this;
    }
    for (CT &ch : *this)
        ch = ctype.tolower(ch);
    return *this;
}

template <typename CT> CStdStr<CT> &CStdStr<CT>::TrimLeft()
{
    this->erase(this->begin(), std::find_if(this->begin(), this->end(), NotSpace<CT>()));
    return *this;
}

template <typename CT> CStdStr<CT> &CStdStr<CT>::TrimRight()
{
    this->erase(std::find_if(this->rbegin(), this->rend(), NotSpace<CT>()).base(), this->end());
    return *this;
}

template <typename CT> CT *CStdStr<CT>::GetBuffer(int n)
{
    if (n > 0 && static_cast<std::size_t>(n) > this->size())
        this->resize(static_cast<std::size_t>(n));
    return &(*this)[0];
}

template <typename CT> void CStdStr<CT>::ReleaseBuffer(int n)
{
    this->resize(static_cast<std::size_t>(n < 0 ? GetLength() : n));
}

template <typename CT> void CStdStr<CT>::Format(const CT *format, ...)
{
    va_list args;
    va_start(args, format);
    FormatV(format, args);
    va_end(args);
}

template <typename CT> void CStdStr<CT>::FormatV(const CT *format, va_list args)
{
    if (!format) {
        Empty();
        return;
    }

    const std::size_t size = static_cast<std::size_t>(sslen(format)) + 1024;
    if (size <= stackElements) {
        CT buffer[stackElements];
        this->assign(buffer, formatted(buffer, size, format, args));
        return;
    }
    const std::unique_ptr<CT[]> buffer(new CT[size]);
    this->assign(buffer.get(), formatted(buffer.get(), size, format, args));
}

template <typename CT> bool CStdStr<CT>::LoadStringW(unsigned id)
{
    return LoadStringW(nullptr, id);
}

template <typename CT> bool CStdStr<CT>::LoadStringW(HINSTANCE hinst, unsigned id)
{
    const HINSTANCE module = hinst ? hinst : AfxGetResourceHandle();
    // A missing string leaves nothing of the former text.
    Empty();
    const int count = ::LoadStringW(module, id, GetBuffer(resourceElements), resourceElements);
    ReleaseBuffer(-1);
    return count > 0;
}

template class CStdStr<wchar_t>;
