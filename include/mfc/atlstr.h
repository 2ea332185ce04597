/// @file atlstr.h
/// @brief Strings.
#pragma once

#include "windows.h"

#include <KxString.h>
