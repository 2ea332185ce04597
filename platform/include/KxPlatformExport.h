/// @file KxPlatformExport.h
/// @brief Symbol visibility of the platform library.
#pragma once

/// Marks what the platform library exports.
#define KX_PLATFORM_EXPORT __attribute__((visibility("default")))
