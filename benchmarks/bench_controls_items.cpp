// Combo boxes, list boxes and trees beside plain Qt code.

#include "KxListBoxes.h"
#include "KxTreeControl.h"

#include <benchmark/benchmark.h>

#include <QComboBox>
#include <QListWidget>
#include <QSignalBlocker>
#include <QTreeWidget>

#include <memory>
#include <string>
#include <vector>

namespace {

template <typename Control, typename Widget> struct Bound
{
    Bound() { control.SetHandle(reinterpret_cast<HWND>(static_cast<QWidget *>(&widget))); }

    Widget widget;
    Control control;
};

using BoundCombo = Bound<CComboBox, QComboBox>;
using BoundList = Bound<CListBox, QListWidget>;
using BoundTree = Bound<CTreeCtrl, QTreeWidget>;

std::vector<std::wstring> texts(std::size_t count)
{
    std::vector<std::wstring> all;
    all.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        all.push_back(L"The item with the number " + std::to_wstring(i));
    return all;
}

// Fills a new widget in each round; making and destroying it is not measured.
template <typename Scene, typename Fill> void fillNew(benchmark::State &state, Fill fill)
{
    const auto all = texts(std::size_t(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        auto scene = std::make_unique<Scene>();
        state.ResumeTiming();
        fill(*scene, all);
        state.PauseTiming();
        scene.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void addToComboKx(benchmark::State &state)
{
    fillNew<BoundCombo>(state, [](BoundCombo &combo, const std::vector<std::wstring> &all) {
        for (const std::wstring &text : all)
            combo.control.AddString(text.c_str());
    });
}
BENCHMARK(addToComboKx)->Name("CComboBox::AddString/Kx")->Arg(1000)->Arg(10000);

void addToComboPlain(benchmark::State &state)
{
    fillNew<QComboBox>(state, [](QComboBox &combo, const std::vector<std::wstring> &all) {
        for (const std::wstring &text : all) {
            const QString qtText = QString::fromStdWString(text);
            const QSignalBlocker blocker(&combo);
            if (combo.findText(qtText, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0)
                combo.addItem(qtText);
        }
    });
}
BENCHMARK(addToComboPlain)->Name("CComboBox::AddString/plain")->Arg(1000)->Arg(10000);

void addToListKx(benchmark::State &state)
{
    fillNew<BoundList>(state, [](BoundList &list, const std::vector<std::wstring> &all) {
        for (const std::wstring &text : all)
            list.control.AddString(text.c_str());
    });
}
BENCHMARK(addToListKx)->Name("CListBox::AddString/Kx")->Arg(1000)->Arg(10000);

void addToListPlain(benchmark::State &state)
{
    fillNew<QListWidget>(state, [](QListWidget &list, const std::vector<std::wstring> &all) {
        for (const std::wstring &text : all)
            list.addItem(QString::fromStdWString(text).simplified().trimmed());
    });
}
BENCHMARK(addToListPlain)->Name("CListBox::AddString/plain")->Arg(1000)->Arg(10000);

void readComboKx(benchmark::State &state)
{
    const int count = int(state.range(0));
    BoundCombo combo;
    for (int i = 0; i < count; ++i)
        combo.widget.addItem(QStringLiteral("The item with the number %1").arg(i),
                             QVariant::fromValue<void *>(&combo));
    CString text;
    for (auto _ : state) {
        for (int i = 0; i < combo.control.GetCount(); ++i) {
            combo.control.GetLBText(i, text);
            benchmark::DoNotOptimize(text.data());
            benchmark::DoNotOptimize(combo.control.GetItemDataPtr(i));
        }
    }
}
BENCHMARK(readComboKx)->Name("CComboBox, read all/Kx")->Arg(1000)->Arg(10000);

void readComboPlain(benchmark::State &state)
{
    const int count = int(state.range(0));
    QComboBox combo;
    for (int i = 0; i < count; ++i)
        combo.addItem(QStringLiteral("The item with the number %1").arg(i),
                      QVariant::fromValue<void *>(&combo));
    std::wstring text;
    for (auto _ : state) {
        for (int i = 0; i < combo.count(); ++i) {
            text = combo.itemText(i).toStdWString();
            benchmark::DoNotOptimize(text.data());
            benchmark::DoNotOptimize(combo.itemData(i).value<void *>());
        }
    }
}
BENCHMARK(readComboPlain)->Name("CComboBox, read all/plain")->Arg(1000)->Arg(10000);

void fillList(QListWidget &list, int count)
{
    for (int i = 0; i < count; ++i) {
        auto *item = new QListWidgetItem(QStringLiteral("The item with the number %1").arg(i), &list);
        item->setData(Qt::UserRole, qulonglong(i));
    }
}

void readListKx(benchmark::State &state)
{
    BoundList list;
    fillList(list.widget, int(state.range(0)));
    CString text;
    for (auto _ : state) {
        for (int i = 0; i < list.control.GetCount(); ++i) {
            list.control.GetText(i, text);
            benchmark::DoNotOptimize(text.data());
            benchmark::DoNotOptimize(list.control.GetItemData(i));
        }
    }
}
BENCHMARK(readListKx)->Name("CListBox, read all/Kx")->Arg(1000)->Arg(10000);

void readListPlain(benchmark::State &state)
{
    QListWidget list;
    fillList(list, int(state.range(0)));
    std::wstring text;
    for (auto _ : state) {
        for (int i = 0; i < list.count(); ++i) {
            const QListWidgetItem *item = list.item(i);
            text = item->text().toStdWString();
            benchmark::DoNotOptimize(text.data());
            benchmark::DoNotOptimize(item->data(Qt::UserRole).toULongLong());
        }
    }
}
BENCHMARK(readListPlain)->Name("CListBox, read all/plain")->Arg(1000)->Arg(10000);

void insertTextsKx(benchmark::State &state)
{
    fillNew<BoundTree>(state, [](BoundTree &tree, const std::vector<std::wstring> &all) {
        const HTREEITEM root = tree.control.InsertItem(L"root", TVI_ROOT, TVI_LAST);
        for (const std::wstring &text : all)
            tree.control.InsertItem(text.c_str(), root, TVI_LAST);
    });
}
BENCHMARK(insertTextsKx)->Name("CTreeCtrl::InsertItem of texts/Kx")->Arg(5000)->Arg(50000);

void insertTextsPlain(benchmark::State &state)
{
    fillNew<QTreeWidget>(state, [](QTreeWidget &tree, const std::vector<std::wstring> &all) {
        auto *root = new QTreeWidgetItem(&tree, QStringList(QStringLiteral("root")));
        for (const std::wstring &text : all)
            root->addChild(new QTreeWidgetItem(QStringList(QString::fromStdWString(text))));
    });
}
BENCHMARK(insertTextsPlain)->Name("CTreeCtrl::InsertItem of texts/plain")->Arg(5000)->Arg(50000);

void insertRecordsKx(benchmark::State &state)
{
    fillNew<BoundTree>(state, [](BoundTree &tree, const std::vector<std::wstring> &all) {
        TVINSERTSTRUCTW record{};
        for (const std::wstring &text : all) {
            record.item.pszText = const_cast<wchar_t *>(text.c_str());
            record.item.lParam = LPARAM(text.size());
            tree.control.InsertItem(&record);
        }
    });
}
BENCHMARK(insertRecordsKx)->Name("CTreeCtrl::InsertItem of records/Kx")->Arg(5000)->Arg(50000);

void insertRecordsPlain(benchmark::State &state)
{
    fillNew<QTreeWidget>(state, [](QTreeWidget &tree, const std::vector<std::wstring> &all) {
        for (const std::wstring &text : all) {
            auto *item = new QTreeWidgetItem(QStringList(QString::fromStdWString(text)));
            item->setData(0, Qt::UserRole, qulonglong(text.size()));
            tree.addTopLevelItem(item);
        }
    });
}
BENCHMARK(insertRecordsPlain)->Name("CTreeCtrl::InsertItem of records/plain")->Arg(5000)->Arg(50000);

void fillTree(QTreeWidget &tree, int count)
{
    auto *root = new QTreeWidgetItem(&tree);
    for (int i = 0; i < count; ++i) {
        auto *item = new QTreeWidgetItem(QStringList(QStringLiteral("The item with the number %1").arg(i)));
        item->setData(0, Qt::UserRole, qulonglong(i));
        root->addChild(item);
    }
}

void walkTreeKx(benchmark::State &state)
{
    BoundTree tree;
    fillTree(tree.widget, int(state.range(0)));
    const CTreeCtrl &control = tree.control;
    for (auto _ : state) {
        HTREEITEM item = control.GetChildItem(control.GetRootItem());
        for (; item; item = control.GetNextItem(item, TVGN_NEXT)) {
            benchmark::DoNotOptimize(control.GetItemText(item).data());
            benchmark::DoNotOptimize(control.GetItemData(item));
        }
    }
}
BENCHMARK(walkTreeKx)->Name("CTreeCtrl, walk and read all/Kx")->Arg(5000)->Arg(50000);

void walkTreePlain(benchmark::State &state)
{
    QTreeWidget tree;
    fillTree(tree, int(state.range(0)));
    for (auto _ : state) {
        const QTreeWidgetItem *root = tree.topLevelItem(0);
        for (int i = 0; i < root->childCount(); ++i) {
            const QTreeWidgetItem *item = root->child(i);
            benchmark::DoNotOptimize(item->text(0).toStdWString().data());
            benchmark::DoNotOptimize(item->data(0, Qt::UserRole).toULongLong());
        }
    }
}
BENCHMARK(walkTreePlain)->Name("CTreeCtrl, walk and read all/plain")->Arg(5000)->Arg(50000);

} // namespace
