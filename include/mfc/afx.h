/// @file afx.h
/// @brief Strings, files and collections, with the diagnostic macros of ported sources.
#pragma once

#include "windows.h"

#include <KxCollections.h>
#include <KxDiagnostics.h>
#include <KxFiles.h>
#include <KxString.h>

#include <cassert>

/// @name Checks
/// assert() underneath: a check that fails ends the program with a message on the standard error stream. With
/// NDEBUG nothing is checked, and VERIFY alone still evaluates its argument.
/// @{
#ifndef ASSERT
#define ASSERT(condition) assert(condition)
#endif
#ifndef VERIFY
#ifdef NDEBUG
#define VERIFY(condition) static_cast<void>(condition)
#else
#define VERIFY(condition) assert(condition)
#endif
#endif
#define ASSERT_VALID(object) ASSERT((object) != nullptr)
#define ASSERT_POINTER(pointer, type) ASSERT((pointer) != nullptr)
/// @}

/// @name Traces
/// They write a formatted text to the standard error stream with AfxTrace(). With NDEBUG they evaluate
/// nothing.
/// @{
#ifndef TRACE
#ifdef NDEBUG
#define TRACE(...) static_cast<void>(0)
#else
#define TRACE(...) AfxTrace(__VA_ARGS__)
#endif
#endif
#define TRACE0(text) TRACE(text)
#define TRACE1 TRACE
#define TRACE2 TRACE
#define TRACE3 TRACE
/// @}

/// Sources say "#define new DEBUG_NEW" to record where memory was allocated. Use a sanitizer for that.
#ifndef DEBUG_NEW
#define DEBUG_NEW new
#endif

/// @name Marks of declarations
/// They stand for nothing.
/// @{
#ifndef afx_msg
#define afx_msg
#endif
#define AFXAPI
#define AFX_CDECL
/// @}

/// @name Run-time class information
/// The library does not keep any, so these stand for nothing: use dynamic_cast.
/// @{
#define DECLARE_DYNAMIC(className)
#define DECLARE_DYNCREATE(className)
#define DECLARE_SERIAL(className)
#define IMPLEMENT_DYNAMIC(className, baseName)
#define IMPLEMENT_DYNCREATE(className, baseName)
#define IMPLEMENT_SERIAL(className, baseName, schema)
/// @}
