#include "Tour.h"

#include "GalleryApp.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTableView>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>
#include <QTreeWidget>

#include <algorithm>

namespace {

void clickRow(QAbstractItemView *view, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QRect place = view->visualRect(view->model()->index(row, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, place.center());
}

} // namespace

void Tour::walk()
{
    runModal(
        {{"1-opened", Window::Form, [] {}, {}},
         {"2-edit", Window::Form, [this] { editPage(); }, {}},
         {"3-list-box", Window::Form, [this] { listBoxPage(); }, {}},
         {"4-list", Window::Form, [this] { listPage(); }, {}},
         {"5-tree", Window::Form, [this] { treePage(); }, {}},
         {"6-common", Window::Form, [this] { commonPage(); }, {}},
         {"7-deleted", Window::Form, [this] { deletesItems(); }, [] { press(Qt::Key_Escape); }}},
        [] { return theApp.ShowGallery(); }, IDCANCEL);
}

void Tour::editPage()
{
    turnTo(0);
    expectText("name", control<QLineEdit>("name")->text(), QStringLiteral("Blackbird"));
    expectText("notes", control<QTextEdit>("notes")->toPlainText(), QStringLiteral("Sings at dusk."));
    expectResult("m_eggs.SetWindowTextW(L\"4\")", "void");
    expectSignals({});

    type("name", QStringLiteral("Goldfinch"));
    click("read");
    expectResult("strText", "\"Goldfinch\"");
    expectResult("m_name.GetLine(0, szLine, 4)", "4");
    expectResult("szLine", "\"Gold\"");
    expectResult("m_notes.GetWindowTextLengthW()", "0");
    expectResult("strText", "\"4 eggs\"");
    expectResult("m_name.GetModify()", "1");

    click("write");
    expectText("name", control<QLineEdit>("name")->text(), QStringLiteral("Nighting"));
    expectText("eggs", control<QSpinBox>("eggs")->text(), QStringLiteral("0 eggs"));
    expectSignals({});
    QTest::keyClick(control<QWidget>("eggs"), Qt::Key_Up);
    expectSignals({QStringLiteral("valueChanged(1)")});

    click("setCaption");
    expectText("caption", control<QLabel>("caption")->text(), QStringLiteral("Nighting"));
    click("setPicture");
    expectResult("m_caption.SetBitmap(m_hPicture)", "null");
    expectResult("m_caption.GetBitmap()", "null");
    expect(control<QLabel>("caption")->pixmap(Qt::ReturnByValue).width() == 48,
           QStringLiteral("the caption shows no picture"));
    expect(!control<QAbstractButton>("play")->icon().isNull(), QStringLiteral("the button has no icon"));
    click("play");
    expectSignals({QStringLiteral("clicked(0)")});

    click("check");
    expectResult("m_seen.SetCheck(2)", "void");
    expectResult("m_seen.GetCheck()", "1");
    expectResult("m_seen.GetState()", "3");
    expectResult("GetCheckedRadioButton(IDC_MALE, IDC_FEMALE)", "1107");
    expect(control<QCheckBox>("seen")->checkState() == Qt::Checked, QStringLiteral("the box is not checked"));
    expect(control<QRadioButton>("female")->isChecked(), QStringLiteral("female is not checked"));
    click("seen");
    expectSignals({QStringLiteral("toggled(1)"), QStringLiteral("toggled(0)")});
}

void Tour::listBoxPage()
{
    turnTo(1);
    expectResult("m_trees.AddString(L\"Lime\")", "2");
    expectResult("m_trees.InsertString(1, L\"Elm\")", "1");
    expect(control<QComboBox>("trees")->count() == 4, QStringLiteral("Oak was added twice"));
    auto *birds = control<QListWidget>("birds");
    expectText("birds", birds->item(1)->text(), QStringLiteral("Song thrush"));
    expect(birds->count() == 4, QStringLiteral("a duplicate is missing"));

    click("findTree");
    expectResult("m_trees.FindString(-1, L\"Ash\")", "2");
    expectResult("m_trees.FindString(-1, L\"ash\")", "-1");
    expectResult("m_trees.GetItemData(1)", "40");
    expectResult("strText", "\"Lime\"");
    QTest::keyClick(control<QWidget>("trees"), Qt::Key_Down);
    expectSignals({QStringLiteral("currentIndexChanged(1)")});

    clickRow(birds, 0);
    clickRow(birds, 2, Qt::ControlModifier);
    click("findBird");
    expectResult("m_birds.FindString(-1, L\"robin\")", "2");
    expectResult("m_birds.FindStringExact(2, L\"Robin\")", "-1");
    expectSelectedRows("birds", {0, 2});
    click("selectBird");
    expectResult("m_birds.GetSelCount()", "2");
    expectResult("m_birds.SetCurSel(-1)", "-1");
    expectResult("m_birds.SelectString(-1, L\"Robin\")", "0");
    expectResult("m_birds.GetCurSel()", "3");
    expectSelectedRows("birds", {0, 3});

    click("selectTree");
    expectResult("m_trees.SetCurSel(2)", "2");
    expectResult("m_trees.SetCurSel(9)", "-1");
    expectResult("m_trees.SelectString(-1, L\"Lime\")", "3");
    expectSignals({QStringLiteral("currentIndexChanged(3)")});
    expectText("trees", control<QComboBox>("trees")->currentText(), QStringLiteral("Lime"));
}

void Tour::listPage()
{
    turnTo(2);
    auto *table = control<QTableWidget>("table");
    auto *view = control<QTableView>("view");
    expectResult("m_table.InsertItem(0, L\"Oak\", 0)", "0");
    expectText("table", table->item(0, 1)->text(), QStringLiteral("30 m"));
    click("insert");
    expectResult("m_list.GetItemCount()", "3");
    expectResult("m_table.GetItemCount()", "3");
    expectResult("m_view.GetItemCount()", "3");
    click("data");
    expectResult("m_list.GetItemData(0)", "30");
    expectResult("m_table.GetItem(&item)", "1");
    expectResult("item.lParam", "28");
    expectResult("m_view.GetItemData(1)", "35");
    expectText("view", view->model()->index(1, 0).data().toString(), QStringLiteral("35"));
    click("headings");
    expectResult("item.pszText", "\"Height\"");
    expectResult("m_list.GetHeaderCtrl()", "null");
    expectText("table", table->horizontalHeaderItem(1)->text(), QStringLiteral("Tallest"));

    click("selectRows");
    expectResult("m_list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED)", "1");
    expectSelectedRows("list", {0});
    expectSelectedRows("view", {0});
    for (const char *name : {"list", "table", "view"}) {
        clickRow(control<QAbstractItemView>(name), 0);
        clickRow(control<QAbstractItemView>(name), 1, Qt::ControlModifier);
        expectSelectedRows(name, {0, 1});
    }
    click("selected");
    expectResult("m_list.GetSelectedCount()", "2");
    expectResult("m_table.GetSelectedCount()", "1");
    expectResult("m_view.GetSelectedCount()", "2");
    expectResult("m_list.GetFirstSelectedItemPosition()", "null");
    expectResult("m_table.GetNextSelectedItem(pos)", "0");
    expectResult("m_table.GetNextSelectedItem(pos)", "1");
    expectResult("m_view.GetNextSelectedItem(pos)", "1");
}

void Tour::treePage()
{
    turnTo(3);
    auto *tree = control<QTreeWidget>("tree");
    expectResult("m_tree.InsertItem(L\"Palms\", nullptr)", "null");
    expectResult("m_tree.InsertItem(&insert)", "not null");
    click("expand");
    clickRow(tree, 0);
    press(Qt::Key_Left);
    expect(!tree->topLevelItem(0)->isExpanded(), QStringLiteral("the Left key collapsed nothing"));
    click("expand");
    expectResult("m_tree.Expand(hTrees, TVE_COLLAPSE)", "1");
    expect(tree->topLevelItem(0)->isExpanded(), QStringLiteral("TVE_COLLAPSE did not expand"));
    expect(tree->topLevelItem(1)->isExpanded(), QStringLiteral("TVIS_EXPANDED did not expand"));

    click("selectItem");
    expectResult("m_tree.GetSelectedItem() == hTree", "1");
    expectText("tree", tree->currentItem()->text(0), QStringLiteral("English oak"));
    click("edit");
    expectResult("m_tree.EditLabel(hTree)", "null");
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Cork oak"));
    press(Qt::Key_Return);
    const auto oakIsRenamed = [&] { return tree->currentItem()->text(0) == QLatin1String("Cork oak"); };
    expect(QTest::qWaitFor(oakIsRenamed), QStringLiteral("the edited label is not Cork oak"));

    click("walk");
    expectResult("m_tree.GetCount()", "2");
    expectResult("m_tree.GetItemText(hTree)", "\"Cork oak\"");
    expectResult("m_tree.GetItemText(hTree)", "\"Ash\"");
    expectResult("m_tree.GetNextSiblingItem(hTrees)", "null");
    expectResult("m_tree.GetItemText(hTrees)", "\"Softwood\"");
    expectResult("m_tree.GetItemData(hTrees)", "7");
}

void Tour::commonPage()
{
    turnTo(4);
    expectResult("m_tabs.GetItemCount()", "3");
    click("fixed");
    expectResult("m_spin.SetPos(7)", "0");
    expectResult("toolTip.AddTool(&m_spin, L\"Eggs\")", "0");
    expectResult("images.Create(16, 16, 0, 4, 4)", "1");
    expectText("spin", control<QSpinBox>("spin")->text(), QStringLiteral("4 eggs"));

    click("scroll");
    expectResult("m_scrollBar.SetScrollPos(150)", "60");
    expectResult("m_scrollBar.GetScrollPos()", "0");
    expectSignals({QStringLiteral("valueChanged(150)"), QStringLiteral("valueChanged(100)")});
    click("moveSlider");
    expectResult("m_slider.GetPos()", "50");
    expectResult("m_slider.SetPageSize(5)", "10");
    expectResult("m_slider.GetPageSize()", "0");
    QTest::keyClick(control<QWidget>("slider"), Qt::Key_PageDown);
    expectSignals({QStringLiteral("valueChanged(50)"), QStringLiteral("valueChanged(45)")});

    click("selectTab");
    expectResult("m_tabs.SetCurSel(2)", "0");
    expectResult("m_tabs.SetActiveTab(1)", "2");
    expectResult("m_tabs.DeleteItem(9)", "0");
    auto *bar = control<QTabWidget>("tabs")->tabBar();
    expectText("tabs", bar->tabText(bar->currentIndex()), QStringLiteral("Summer"));
    click(bar, bar->tabRect(0).center());
    expectSignals({QStringLiteral("currentChanged(2)"), QStringLiteral("currentChanged(0)")});
}

void Tour::deletesItems()
{
    turnTo(2);
    click("deleteRows");
    expectResult("m_list.DeleteItem(9)", "1");
    expectResult("m_list.GetItemCount()", "2");
    expectResult("m_table.GetItemCount()", "0");
    expect(control<QTableWidget>("table")->columnCount() == 2, QStringLiteral("the columns went as well"));

    turnTo(3);
    click("remove");
    expectResult("m_tree.DeleteItem(nullptr)", "1");
    expectResult("m_tree.GetCount()", "1");
    for (const char *button : {"remove", "expand", "selectItem", "edit", "walk"})
        click(button);
    expectResult("m_tree.GetItemText(hTree)", "\"\"");
    expectResult("m_tree.GetCount()", "0");

    turnTo(1);
    click("deleteTree");
    expectResult("m_trees.DeleteString(0)", "0");
    expectResult("m_trees.DeleteString(9)", "-1");
    expectText("trees", control<QComboBox>("trees")->itemText(0), QStringLiteral("Elm"));
    click("deleteBird");
    expectResult("m_birds.DeleteString(9)", "9");
    expectResult("m_birds.GetCount()", "3");
}

void Tour::turnTo(int page)
{
    auto *bar = control<QTabWidget>("pages")->tabBar();
    click(bar, bar->tabRect(page).center());
}

QTableWidget *Tour::results()
{
    return control<QTabWidget>("pages")->currentWidget()->findChild<QTableWidget *>(
        QStringLiteral("results"));
}

void Tour::expectResult(const char *call, const char *result)
{
    QStringList given;
    for (int row = 0; row < results()->rowCount(); ++row) {
        if (results()->item(row, 0)->text() == QLatin1String(call))
            given += results()->item(row, 1)->text();
    }
    expect(given.contains(QLatin1String(result)),
           QStringLiteral("%1 gave %2, not %3")
               .arg(QLatin1String(call), given.join(QStringLiteral(" and ")), QLatin1String(result)));
}

void Tour::expectSignals(const QStringList &expected)
{
    QStringList given;
    for (int row = 0; row < results()->rowCount(); ++row) {
        if (results()->item(row, 2)->text() == QLatin1String("a signal of the widget"))
            given += results()->item(row, 0)->text() + QLatin1Char('(') + results()->item(row, 1)->text() +
                     QLatin1Char(')');
    }
    expectText("signals", given.join(QLatin1Char(' ')), expected.join(QLatin1Char(' ')));
}

void Tour::expectSelectedRows(const char *view, const QList<int> &expected)
{
    QList<int> selected;
    const QModelIndexList rows = control<QAbstractItemView>(view)->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        selected += row.row();
    std::sort(selected.begin(), selected.end());
    expect(selected == expected, QStringLiteral("other rows are selected in %1").arg(QLatin1String(view)));
}
