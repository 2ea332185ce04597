// Window operations, messages and data exchange beside plain Qt code.

#include "KxMFCWrapper.h"

#include <benchmark/benchmark.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QWidget>

#include <array>
#include <map>
#include <string>

namespace {

constexpr int firstId = 1000;
constexpr int childCount = 1000;
constexpr int itemsBeforeClear = 1000;
constexpr std::array<const wchar_t *, 2> texts{L"The first of two texts", L"And the second one"};

HWND handleOf(QWidget *widget)
{
    return reinterpret_cast<HWND>(widget);
}

// Visits every child once, in an order that no cache line predicts.
int nextId(int id)
{
    return firstId + (id - firstId + 387) % childCount;
}

struct Children
{
    Children()
    {
        window.Attach(handleOf(&widget));
        for (int id = firstId; id < firstId + childCount; ++id) {
            auto *child = new QWidget(&widget);
            child->setObjectName(QString::number(id));
            window.SetDlgItem(id, handleOf(child));
            window.GetDlgItem(id);
            byId.emplace(id, child);
        }
    }

    QWidget widget;
    CWnd window;
    std::map<int, QWidget *> byId;
};

void getDlgItemKx(benchmark::State &state)
{
    Children children;
    int id = firstId;
    for (auto _ : state) {
        benchmark::DoNotOptimize(children.window.GetDlgItem(id));
        id = nextId(id);
    }
}
BENCHMARK(getDlgItemKx)->Name("GetDlgItem of 1,000/Kx");

// A dialog written for Qt that still works with control identifiers keeps such a map.
void getDlgItemPlain(benchmark::State &state)
{
    Children children;
    int id = firstId;
    for (auto _ : state) {
        benchmark::DoNotOptimize(children.byId.find(id)->second);
        id = nextId(id);
    }
}
BENCHMARK(getDlgItemPlain)->Name("GetDlgItem of 1,000/plain");

// What code without such a map does.
void findChildPlain(benchmark::State &state)
{
    Children children;
    int id = firstId;
    for (auto _ : state) {
        benchmark::DoNotOptimize(children.widget.findChild<QWidget *>(QString::number(id)));
        id = nextId(id);
    }
}
BENCHMARK(getDlgItemKx)->Name("GetDlgItem of 1,000, by name/Kx");
BENCHMARK(findChildPlain)->Name("GetDlgItem of 1,000, by name/plain");

template <typename Widget> struct Bound
{
    Bound() { window.Attach(handleOf(&widget)); }

    Widget widget;
    CWnd window;
};

void setWindowTextKx(benchmark::State &state)
{
    Bound<QLineEdit> edit;
    std::size_t turn = 0;
    for (auto _ : state)
        edit.window.SetWindowTextW(texts[turn++ % texts.size()]);
}
BENCHMARK(setWindowTextKx)->Name("SetWindowTextW/Kx");

void setWindowTextPlain(benchmark::State &state)
{
    QLineEdit edit;
    std::size_t turn = 0;
    for (auto _ : state)
        edit.setText(QString::fromWCharArray(texts[turn++ % texts.size()]));
}
BENCHMARK(setWindowTextPlain)->Name("SetWindowTextW/plain");

void getWindowTextKx(benchmark::State &state)
{
    Bound<QLineEdit> edit;
    edit.widget.setText(QString::fromWCharArray(texts[0]));
    CString text;
    for (auto _ : state) {
        edit.window.GetWindowTextW(text);
        benchmark::DoNotOptimize(text.data());
    }
}
BENCHMARK(getWindowTextKx)->Name("GetWindowTextW/Kx");

void getWindowTextPlain(benchmark::State &state)
{
    QLineEdit edit(QString::fromWCharArray(texts[0]));
    std::wstring text;
    for (auto _ : state) {
        text = edit.text().toStdWString();
        benchmark::DoNotOptimize(text.data());
    }
}
BENCHMARK(getWindowTextPlain)->Name("GetWindowTextW/plain");

void addStringKx(benchmark::State &state)
{
    QComboBox combo;
    const HWND handle = handleOf(&combo);
    for (auto _ : state) {
        SendMessageW(handle, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(texts[0]));
        if (combo.count() == itemsBeforeClear)
            combo.clear();
    }
}
BENCHMARK(addStringKx)->Name("SendMessageW CB_ADDSTRING/Kx");

void addStringPlain(benchmark::State &state)
{
    QComboBox combo;
    for (auto _ : state) {
        combo.addItem(QString::fromWCharArray(texts[0]));
        if (combo.count() == itemsBeforeClear)
            combo.clear();
    }
}
BENCHMARK(addStringPlain)->Name("SendMessageW CB_ADDSTRING/plain");

void currentIndexKx(benchmark::State &state)
{
    QComboBox combo;
    combo.addItems({QStringLiteral("a"), QStringLiteral("b")});
    const HWND handle = handleOf(&combo);
    for (auto _ : state)
        benchmark::DoNotOptimize(SendMessageW(handle, CB_GETCURSEL, 0, 0));
}
BENCHMARK(currentIndexKx)->Name("SendMessageW CB_GETCURSEL/Kx");

void currentIndexPlain(benchmark::State &state)
{
    QComboBox combo;
    combo.addItems({QStringLiteral("a"), QStringLiteral("b")});
    for (auto _ : state)
        benchmark::DoNotOptimize(combo.currentIndex());
}
BENCHMARK(currentIndexPlain)->Name("SendMessageW CB_GETCURSEL/plain");

// A form of 100 controls and the values behind it, which change with every round.
struct Form
{
    static constexpr std::size_t editCount = 50;
    static constexpr std::size_t checkCount = 25;
    static constexpr std::size_t comboCount = 25;

    Form()
    {
        fill(edits);
        fill(checks);
        fill(combos);
        for (QComboBox *combo : combos)
            combo->addItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
    }

    template <typename Widget, std::size_t Count> void fill(std::array<Widget *, Count> &widgets)
    {
        for (Widget *&each : widgets)
            each = new Widget(&widget);
    }

    void changeValues()
    {
        for (int &number : numbers)
            ++number;
        for (int &flag : flags)
            flag = !flag;
        for (int &index : indexes)
            index = (index + 1) % 3;
    }

    QWidget widget;
    std::array<QLineEdit *, editCount> edits{};
    std::array<QCheckBox *, checkCount> checks{};
    std::array<QComboBox *, comboCount> combos{};
    std::array<int, editCount> numbers{};
    std::array<int, checkCount> flags{};
    std::array<int, comboCount> indexes{};
};

class FormDialog : public CDialog
{
public:
    explicit FormDialog(Form &form)
        : m_form(form)
    {
        Attach(handleOf(&form.widget));
        int id = firstId;
        for (QLineEdit *edit : form.edits)
            SetDlgItem(id++, handleOf(edit));
        for (QCheckBox *check : form.checks)
            SetDlgItem(id++, handleOf(check));
        for (QComboBox *combo : form.combos)
            SetDlgItem(id++, handleOf(combo));
    }

protected:
    void DoDataExchange(CDataExchange *pDX) override
    {
        int id = firstId;
        for (int &number : m_form.numbers)
            DDX_Text(pDX, id++, number);
        for (int &flag : m_form.flags)
            DDX_Check(pDX, id++, flag);
        for (int &index : m_form.indexes)
            DDX_CBIndex(pDX, id++, index);
    }

private:
    Form &m_form;
};

void updateDataKx(benchmark::State &state)
{
    Form form;
    FormDialog dialog(form);
    for (auto _ : state) {
        form.changeValues();
        dialog.UpdateData(FALSE);
        dialog.UpdateData(TRUE);
    }
}
BENCHMARK(updateDataKx)->Name("UpdateData of 100 controls/Kx");

void updateDataPlain(benchmark::State &state)
{
    Form form;
    for (auto _ : state) {
        form.changeValues();
        for (std::size_t i = 0; i < form.edits.size(); ++i)
            form.edits[i]->setText(QString::number(form.numbers[i]));
        for (std::size_t i = 0; i < form.checks.size(); ++i)
            form.checks[i]->setChecked(form.flags[i]);
        for (std::size_t i = 0; i < form.combos.size(); ++i)
            form.combos[i]->setCurrentIndex(form.indexes[i]);

        for (std::size_t i = 0; i < form.edits.size(); ++i)
            form.numbers[i] = form.edits[i]->text().toInt();
        for (std::size_t i = 0; i < form.checks.size(); ++i)
            form.flags[i] = form.checks[i]->isChecked();
        for (std::size_t i = 0; i < form.combos.size(); ++i)
            form.indexes[i] = form.combos[i]->currentIndex();
    }
}
BENCHMARK(updateDataPlain)->Name("UpdateData of 100 controls/plain");

} // namespace
