#ifndef VIRTUALSLOT_H
#define VIRTUALSLOT_H

#include <cstddef>
#include <cstring>

/// The place of a virtual member in its class's table, as the platform's C++ ABI encodes it in a member pointer.
template <typename Member> std::ptrdiff_t slotOf(Member member)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof member == sizeof words);
    std::memcpy(words, &member, sizeof words);
    return (words[0] - 1) / std::ptrdiff_t{sizeof(void *)};
}

#endif
