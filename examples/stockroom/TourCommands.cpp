// What the commands do where they have something to ask or to remember.
#include "MainDlg.h"
#include "Tour.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

void Tour::changesLayout()
{
    QWidget *window = QApplication::activeModalWidget();
    window->resize(window->size() + QSize(20, 10));
    auto *splitter = control<QSplitter>("splitter");
    splitter->setSizes({splitter->sizes().first() + 30, splitter->sizes().last() - 30});
    turnTo(VIEW_PLAN);
    m_size = window->size();
    m_treeWidth = control<QTreeWidget>("rooms")->width();
}

void Tour::hasKeptLayout()
{
    expect(QApplication::activeModalWidget()->size() == m_size, QStringLiteral("the window's size changed"));
    expect(control<QTreeWidget>("rooms")->width() == m_treeWidth, QStringLiteral("the tree's width changed"));
    expect(control<QTabWidget>("views")->currentIndex() == VIEW_PLAN, QStringLiteral("the page changed"));
    turnTo(VIEW_ROOM);
}

void Tour::namesFile(const QString &former)
{
    expectText("fileNameEdit", control<QLineEdit>("fileNameEdit")->text(), former);
    namesImport();
}

void Tour::leavesOutLines()
{
    expectMessage(
        QStringLiteral("Lines of the file that were left out: %1\n\nThey are damaged, name an unknown "
                       "room, or have a number that is taken.")
            .arg(m_exported));
}

void Tour::namesNewItem()
{
    expectText("number", control<QLineEdit>("number")->text(), QStringLiteral("A-1000"));
    type("name", QStringLiteral("Bolt cutter"));
}

void Tour::copiesNewItem()
{
    expectStatus(QStringLiteral("Added: A-1000"));
    expectSelected(QStringLiteral("A-1000"));

    auto *list = control<QTableWidget>("items");
    const auto choose = [this] {
        const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        expect(menu && menu->actions().size() == 4, QStringLiteral("there is no menu"));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_C);
    };
    QTimer whenOpen;
    whenOpen.setSingleShot(true);
    connect(&whenOpen, &QTimer::timeout, this, choose);
    whenOpen.start(0);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, list->viewport()->mapToGlobal({}));
    QApplication::sendEvent(list->viewport(), &event);
    expectStatus(QStringLiteral("Copied items: 1"));
}

void Tour::pastesNewItem()
{
    chooseRoom(QStringLiteral("Cage"));
    click("paste");
    expectStatus(QStringLiteral("Pasted items: 1"));
    expectSelected(QStringLiteral("A-1001"));
    clickRow(control<QTableWidget>("items"), 1);
}

void Tour::showsRowBehind()
{
    expectStatus(QStringLiteral("Deleted items: 1"));
    const auto *list = control<QTableWidget>("items");
    expectSelected(list->item(1, COLUMN_NUMBER)->text());
}

void Tour::keepsStock()
{
    expectRoom(QStringLiteral("Cage (%1)").arg(m_exported + 1));
    turnTo(VIEW_PLAN);
    search(QStringLiteral("cutter"));
    expect(control<QTabWidget>("views")->currentIndex() == VIEW_ALL, QStringLiteral("the plan stays"));
    expectRows("allItems", 2, COLUMN_NAME, QStringLiteral("Bolt cutter"));
}

void Tour::expectSelected(const QString &number)
{
    const QList<QTableWidgetItem *> selected = control<QTableWidget>("items")->selectedItems();
    expectText("the selected row", selected.isEmpty() ? QString() : selected.first()->text(), number);
}
