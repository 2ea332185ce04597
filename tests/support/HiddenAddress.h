#ifndef HIDDENADDRESS_H
#define HIDDENADDRESS_H

#include <cstdint>

/// An object pointer with this address, which the compiler cannot see through: ported code gets such pointers
/// from failed lookups, so that a null object must not be a compile-time constant here either.
template <typename Object> Object *objectAt(std::uintptr_t address)
{
    volatile std::uintptr_t hidden = address;
    return reinterpret_cast<Object *>(hidden);
}

#endif
