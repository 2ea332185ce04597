/// @file KxPathNames.h
/// @brief Path names, and the volumes that they lie on.
#pragma once

#include "KxUiPathname.h"
#include "KxVolumes.h"
