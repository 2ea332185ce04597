/// @file WindowGlobals.h
/// @brief Process-wide objects of the window module.
#pragma once

#include <set>

class CWnd;

/// The living wrappers that the library made. Many live until the process exits, and leak checkers find them here.
std::set<CWnd *> &libraryWrappers();
