/// @file WindowGlobals.h
/// @brief Process-wide objects of the window module.
#pragma once

#include <set>

class CWnd;

/// The living wrappers that the library made. Many live until the process exits; the set outlives them all.
std::set<CWnd *> &libraryWrappers();
