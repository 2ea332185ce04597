/// @file KxDiagnostics.h
/// @brief Diagnostic output of ported code.
#pragma once

#include "KxWinTypes.h"

/// Writes a formatted text to the standard error stream, encoded by the locale. Nothing is added to it.
///
/// The library itself never calls it; TRACE of the afx.h header does, in builds without NDEBUG.
/// @param format a format for CString::Format(), which limits the length of the result; null writes nothing.
KX_MFC_EXPORT void AfxTrace(const wchar_t *format, ...);

/// Same for a narrow format, as printf() takes it.
/// @param format null writes nothing.
KX_MFC_EXPORT void AfxTrace(const char *format, ...) __attribute__((format(printf, 1, 2)));
