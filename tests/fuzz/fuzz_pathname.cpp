#include "ProbePath.h"
#include "ScriptedCorrection.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
extern "C" const char *__asan_default_options();

// The classes that the fuzzer sees the branches of are in the library, too.
const char *__asan_default_options()
{
    return "detect_odr_violation=0";
}

namespace {

using Edit = unsigned (CKdUiPathname::*)();
using TextEdit = unsigned (CKdUiPathname::*)(const wchar_t *);

/// Hands out the input byte by byte, then zeros.
class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size)
        : m_next(data)
        , m_end(data + size)
    {
    }

    bool atEnd() const { return m_next == m_end; }
    unsigned byte() { return atEnd() ? 0 : *m_next++; }

    // Characters that mean something to a path are more likely than others.
    CString text()
    {
        static const wchar_t alphabet[] = L"/\\:.*? \";ab\u0416\U0001F600\t";
        CString text;
        for (unsigned length = byte() % 32; length > 0 && !atEnd(); --length) {
            const unsigned ch = byte();
            text += ch < 128 ? alphabet[ch % 14] : static_cast<wchar_t>(ch - 127);
        }
        return text;
    }

private:
    const std::uint8_t *m_next;
    const std::uint8_t *const m_end;
};

void fail(const char *fault)
{
    std::fprintf(stderr, "%s\n", fault);
    std::abort();
}

void check(const char *fault)
{
    if (fault)
        fail(fault);
}

void parse(ProbePath &path, Input &input)
{
    const ProbePath base(L"/no/where*");
    const CString text = input.text();
    const unsigned code = path.ParseRelative(text, input.byte() % 2 ? &base : &path);
    check(path.parseFault());
    if ((code == 0) != path.IsPath() || code > 1)
        fail("a wrong code of a parse");

    CString full;
    if (!path.GetFullPath(full) || path.category() == PC_RELATIVE)
        return;
    CString again;
    if (!ProbePath(full).GetFullPath(again) || again != full)
        fail("the full path parses to another one");
}

void edit(ProbePath &path, Input &input)
{
    static const Edit edits[] = {&CKdUiPathname::Trim, &CKdUiPathname::TrimSlash,
                                 &CKdUiPathname::TrimComponent, &CKdUiPathname::AppendSlash};
    static const TextEdit textEdits[] = {&CKdUiPathname::Append,
                                         &CKdUiPathname::AppendComponent,
                                         &CKdUiPathname::ReplaceExtensionAlways,
                                         &CKdUiPathname::AddExtensionAlways,
                                         &CKdUiPathname::ReplaceExtensionIfNoMatch,
                                         &CKdUiPathname::AddExtensionIfNoMatch};
    const auto before = path.state();
    const unsigned which = input.byte() % 10;
    const CString text = which < 4 ? CString() : input.text();
    const unsigned code = which < 4 ? (path.*edits[which])() : (path.*textEdits[which - 4])(text);
    if (code > 4 || (code != 0 && path.state() != before))
        fail("a refused edit changed something");
}

void change(ProbePath &path, Input &input)
{
    switch (input.byte() % 6) {
    case 0:
        path.RemoveSpaces();
        break;
    case 1:
        path.BaseToUpper();
        break;
    case 2:
        path.BaseToLower();
        break;
    case 3:
        path.RemoveExtensionIfMatch(input.text());
        break;
    case 4:
        path.GetParent(path);
        break;
    default:
        path.RemoveExtensionAlways();
    }
}

void query(const ProbePath &path, Input &input)
{
    const auto before = path.state();
    const int maxChars = static_cast<int>(input.byte());
    CString name;
    path.GetDisplayName(name, maxChars);
    if (name.GetLength() > std::max(maxChars, 12))
        fail("a display name is too long");

    CString base;
    CString filename;
    CString extension;
    path.GetBasename(base);
    path.GetFilename(filename);
    path.GetExtension(extension);
    if (base.find(filename) != 0 || base.size() < filename.size() + extension.size())
        fail("a base name without its parts");
    if (!path.PathMatch(&path))
        fail("no match with itself");
    path.PathMatch(input.text());
    if (path.state() != before)
        fail("a query changed something");
}

} // namespace

// Nothing is read from the file system but what parsing asks for, and no path is corrected.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const ScriptedCorrection correction;
    Input input(data, size);
    ProbePath path;
    while (!input.atEnd()) {
        const unsigned step = input.byte() % 8;
        if (step == 0)
            parse(path, input);
        else if (step < 5)
            edit(path, input);
        else if (step == 5)
            change(path, input);
        else
            query(path, input);
        check(path.fault());
    }
    return 0;
}
