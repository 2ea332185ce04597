/// @file atlbase.h
/// @brief Registry keys.
#pragma once

#include "windows.h"

#include <KxRegistry.h>
