#include "KxDiagnostics.h"
#include "KxString.h"
#include "QtConversions.h"

#include <cstdarg>
#include <cstdio>

void AfxTrace(const wchar_t *format, ...)
{
    if (!format)
        return;
    va_list arguments;
    va_start(arguments, format);
    CString text;
    text.FormatV(format, arguments);
    va_end(arguments);
    // Narrow, because the program's own narrow output to the stream would be lost after a wide one.
    std::fputs(toQString(text.c_str()).toLocal8Bit().constData(), stderr);
}

void AfxTrace(const char *format, ...)
{
    if (!format)
        return;
    va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stderr, format, arguments);
    va_end(arguments);
}
