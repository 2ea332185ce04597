// The list control beside plain Qt item widgets and models.

#include "KxListControl.h"

#include <benchmark/benchmark.h>

#include <QListWidget>
#include <QStandardItemModel>
#include <QTableView>
#include <QTableWidget>

namespace {

constexpr int columnCount = 4;

template <typename Widget> struct BoundList
{
    BoundList() { control.SetHandle(reinterpret_cast<HWND>(static_cast<QWidget *>(&widget))); }

    Widget widget;
    CListCtrl control;
};

struct BoundTable : BoundList<QTableWidget>
{
    BoundTable() { widget.setColumnCount(columnCount); }
};

struct BoundView : BoundList<QTableView>
{
    BoundView() { widget.setModel(&model); }

    QStandardItemModel model{0, columnCount};
};

constexpr const wchar_t *texts[columnCount] = {L"The first text", L"second", L"third", L"fourth"};

void fillTableKx(benchmark::State &state)
{
    const int rows = int(state.range(0));
    for (auto _ : state) {
        BoundTable table;
        for (int row = 0; row < rows; ++row) {
            table.control.InsertItem(row, texts[0], 0);
            for (int column = 1; column < columnCount; ++column)
                table.control.SetItemText(row, column, texts[column]);
        }
    }
}
BENCHMARK(fillTableKx)->Name("CListCtrl fill table/Kx")->Arg(1000)->Arg(10000);

void fillTablePlain(benchmark::State &state)
{
    const int rows = int(state.range(0));
    for (auto _ : state) {
        BoundTable table;
        for (int row = 0; row < rows; ++row) {
            table.widget.insertRow(row);
            for (int column = 0; column < columnCount; ++column)
                table.widget.setItem(row, column,
                                     new QTableWidgetItem(QString::fromWCharArray(texts[column])));
        }
    }
}
BENCHMARK(fillTablePlain)->Name("CListCtrl fill table/plain")->Arg(1000)->Arg(10000);

void fill(BoundTable &table, int rows)
{
    table.widget.setRowCount(rows);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columnCount; ++column)
            table.control.SetItemText(row, column, texts[column]);
    }
}

void readTableKx(benchmark::State &state)
{
    const int rows = int(state.range(0));
    BoundTable table;
    fill(table, rows);
    for (auto _ : state) {
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columnCount; ++column)
                benchmark::DoNotOptimize(table.control.GetItemText(row, column));
        }
    }
}
BENCHMARK(readTableKx)->Name("CListCtrl read table/Kx")->Arg(1000)->Arg(10000);

void readTablePlain(benchmark::State &state)
{
    const int rows = int(state.range(0));
    BoundTable table;
    fill(table, rows);
    for (auto _ : state) {
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columnCount; ++column)
                benchmark::DoNotOptimize(table.widget.item(row, column)->text().toStdWString());
        }
    }
}
BENCHMARK(readTablePlain)->Name("CListCtrl read table/plain")->Arg(1000)->Arg(10000);

void fillViewKx(benchmark::State &state)
{
    const int rows = int(state.range(0));
    for (auto _ : state) {
        BoundView view;
        for (int row = 0; row < rows; ++row) {
            view.control.InsertItem(row, texts[0]);
            view.control.SetItemData(row, static_cast<unsigned long>(row));
        }
    }
}
BENCHMARK(fillViewKx)->Name("CListCtrl fill view/Kx")->Arg(1000)->Arg(10000);

void fillViewPlain(benchmark::State &state)
{
    const int rows = int(state.range(0));
    for (auto _ : state) {
        BoundView view;
        for (int row = 0; row < rows; ++row) {
            view.model.insertRow(row);
            view.model.setData(view.model.index(row, 0), qulonglong(row), Qt::DisplayRole);
        }
    }
}
BENCHMARK(fillViewPlain)->Name("CListCtrl fill view/plain")->Arg(1000)->Arg(10000);

void fill(BoundView &view, int rows)
{
    view.model.setRowCount(rows);
    for (int row = 0; row < rows; ++row)
        view.control.SetItemData(row, static_cast<unsigned long>(row));
}

void readViewKx(benchmark::State &state)
{
    const int rows = int(state.range(0));
    BoundView view;
    fill(view, rows);
    for (auto _ : state) {
        for (int row = 0; row < rows; ++row)
            benchmark::DoNotOptimize(view.control.GetItemData(row));
    }
}
BENCHMARK(readViewKx)->Name("CListCtrl read view/Kx")->Arg(1000)->Arg(10000);

void readViewPlain(benchmark::State &state)
{
    const int rows = int(state.range(0));
    BoundView view;
    fill(view, rows);
    for (auto _ : state) {
        for (int row = 0; row < rows; ++row)
            benchmark::DoNotOptimize(view.model.index(row, 0).data(Qt::DisplayRole).toULongLong());
    }
}
BENCHMARK(readViewPlain)->Name("CListCtrl read view/plain")->Arg(1000)->Arg(10000);

void selectionStateKx(benchmark::State &state)
{
    const int rows = int(state.range(0));
    BoundView view;
    fill(view, rows);
    view.widget.selectAll();
    int row = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(view.control.GetItemState(row, LVIS_FOCUSED));
        row = (row + 1) % rows;
    }
}
BENCHMARK(selectionStateKx)->Name("CListCtrl state of a selected row/Kx")->Arg(1000)->Arg(10000);

void selectionStatePlain(benchmark::State &state)
{
    const int rows = int(state.range(0));
    BoundView view;
    fill(view, rows);
    view.widget.selectAll();
    int row = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(view.widget.selectionModel()->isRowSelected(row, QModelIndex()));
        row = (row + 1) % rows;
    }
}
BENCHMARK(selectionStatePlain)->Name("CListCtrl state of a selected row/plain")->Arg(1000)->Arg(10000);

} // namespace
