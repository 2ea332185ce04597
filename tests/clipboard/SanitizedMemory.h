#pragma once

/// Whether an address sanitizer is at work, which keeps freed blocks for a while and finds leaks by itself.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool isMemorySanitized = true;
#elif defined(__has_feature)
constexpr bool isMemorySanitized = __has_feature(address_sanitizer);
#else
constexpr bool isMemorySanitized = false;
#endif
