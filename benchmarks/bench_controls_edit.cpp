// The text of edit controls beside plain Qt code.

#include "KxEditControls.h"

#include <benchmark/benchmark.h>

#include <QLineEdit>

#include <array>

namespace {

constexpr std::array<const wchar_t *, 2> texts{L"The first of two texts", L"And the second one"};

void setEditTextKx(benchmark::State &state)
{
    QLineEdit line;
    CEdit edit;
    edit.SetHandle(reinterpret_cast<HWND>(static_cast<QWidget *>(&line)));
    std::size_t i = 0;
    for (auto _ : state)
        edit.SetWindowTextW(texts[++i % texts.size()]);
}

void setEditTextPlain(benchmark::State &state)
{
    QLineEdit line;
    std::size_t i = 0;
    for (auto _ : state)
        line.setText(QString::fromWCharArray(texts[++i % texts.size()]));
}

BENCHMARK(setEditTextKx)->Name("CEdit::SetWindowTextW/Kx");
BENCHMARK(setEditTextPlain)->Name("CEdit::SetWindowTextW/plain");

} // namespace
