#include "Tour.h"

#include "Stockroom.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

static qintptr showStockroom()
{
    return theApp.ShowStockroom();
}

void Tour::walk()
{
    runModal(
        {{"01-first-start", Window::Form, [this] { startsEmpty(); }, {}},
         {"03-sample", Window::Form, [this] { makesSample(); }, {}},
         {"04-room", Window::Form, [this] { choosesRoom(); }, {}},
         {"05-found", Window::Form, [this] { searches(); }, {}},
         {"06-all-items", Window::Form, [this] { showsAllItems(); }, {}},
         {"07-end", Window::Form, [this] { scrollsToEnd(); }, {}},
         {"08-sorted", Window::Form, [this] { sorts(); }, {}},
         {"09-plan", Window::Form, [this] { showsPlan(); }, {}},
         {"10-zoomed", Window::Form, [this] { zoomsIn(); }, {}},
         {"11-room-of-plan", Window::Form, [this] { goesToRoom(); }, [] { press(Qt::Key_Return); }},
         {"12-item", Window::Form, [this] { takesNumber(); }, [] { click("ok"); }},
         {"13-number-taken", Window::Message,
          [this] { expectMessage(QStringLiteral("Another item has this number already.")); },
          [] { press(Qt::Key_Return); }},
         {"14-bad-quantity", Window::Form, [this] { spoilsQuantity(); }, [] { click("ok"); }},
         {"15-refused", Window::Message,
          [this] { expectMessage(QStringLiteral("The quantity must be a whole number from 0 to 1000000.")); },
          [] { press(Qt::Key_Return); }},
         {"16-corrected", Window::Form, [this] { correctsQuantity(); }, [] { press(Qt::Key_Return); }},
         {"17-changed", Window::Form, [this] { showsChange(); }, {}},
         {"18-copied", Window::Form, [this] { copies(); }, {}},
         {"19-pasted", Window::Form, [this] { pastes(); }, [] { press(Qt::Key_Delete); }},
         {"20-asked", Window::Message,
          [this] { expectMessage(QStringLiteral("Delete the selected items (1)?")); },
          [] { press(Qt::Key_Return); }},
         {"21-deleted", Window::Form, [this] { showsDeletion(); }, [] { click("exportItems"); }},
         {"22-export", Window::Form, [this] { namesExport(); }, [] { press(Qt::Key_Return); }},
         {"23-exported", Window::Form, [this] { showsExport(); }, [] { press(Qt::Key_Escape); }}},
        showStockroom, IDCANCEL);
    expectStored("Zoom=145");
    expectStored("Room=Cage");
    runModal(
        {{"24-started-again", Window::Form, [this] { hasKeptSettings(); }, [] { click("importItems"); }},
         {"25-import", Window::Form, [this] { namesFile(QStringLiteral("cage.stk")); },
          [] { press(Qt::Key_Return); }},
         {"26-imported", Window::Form, [this] { showsImport(); }, [] { click("importItems"); }},
         {"27-foreign-file", Window::Form, [this] { namesForeignFile(); }, [] { press(Qt::Key_Return); }},
         {"28-refused", Window::Message, [this] { showsRefusal(); }, [] { press(Qt::Key_Return); }},
         {"29-as-before", Window::Form, [this] { showsImport(); }, [] { click("importItems"); }},
         {"30-same-file", Window::Form, [this] { namesFile(QStringLiteral("letter.stk")); },
          [] { press(Qt::Key_Return); }},
         {"31-left-out", Window::Message, [this] { leavesOutLines(); }, [] { press(Qt::Key_Return); }},
         {"32-nothing-new", Window::Form, [this] { expectStatus(QStringLiteral("Imported items: 0")); },
          [] { click("newItem"); }},
         {"33-new-item", Window::Form, [this] { namesNewItem(); }, [] { press(Qt::Key_Return); }},
         {"34-added", Window::Form, [this] { copiesNewItem(); }, {}},
         {"35-copied", Window::Form, [] { chooseRoom(QStringLiteral("All rooms")); },
          [] { press(Qt::Key_V, Qt::ControlModifier); }},
         {"36-paste-where", Window::Message,
          [this] { expectMessage(QStringLiteral("Please choose the room to paste into.")); },
          [] { press(Qt::Key_Return); }},
         {"37-pasted", Window::Form, [this] { pastesNewItem(); }, [] { click("remove"); }},
         {"38-asked", Window::Message, [] {}, [] { press(Qt::Key_Return); }},
         {"39-deleted", Window::Form, [this] { showsRowBehind(); }, [] { click("sample"); }},
         {"40-sample-asks", Window::Message, [] {}, [] { press(Qt::Key_Escape); }},
         {"41-kept", Window::Form, [this] { keepsStock(); }, [] { press(Qt::Key_Escape); }}},
        showStockroom, IDCANCEL);
    expectStored("View=1");
}

void Tour::turnTo(int page)
{
    auto *bar = control<QTabWidget>("views")->tabBar();
    click(bar, bar->tabRect(page).center());
}

void Tour::chooseRoom(const QString &name)
{
    auto *tree = control<QTreeWidget>("rooms");
    auto *item =
        tree->findItems(name + QStringLiteral(" ("), Qt::MatchStartsWith | Qt::MatchRecursive).first();
    tree->scrollToItem(item);
    click(tree->viewport(), tree->visualItemRect(item).center());
}

void Tour::search(const QString &text)
{
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Delete);
    QTest::keyClicks(QApplication::focusWidget(), text);
    press(Qt::Key_Return);
}

void Tour::clickRow(QAbstractItemView *list, int row, Qt::KeyboardModifiers modifiers)
{
    click(list->viewport(), list->visualRect(list->model()->index(row, 1)).center(), modifiers);
}

void Tour::expectStatus(const QString &expected)
{
    expectText("status", control<QLabel>("status")->text(), expected);
}

void Tour::expectMessage(const QString &expected)
{
    expectText("message", qobject_cast<QMessageBox *>(QApplication::activeModalWidget())->text(), expected);
}

void Tour::expectRoom(const QString &expected)
{
    expectText("rooms", control<QTreeWidget>("rooms")->currentItem()->text(0), expected);
}

void Tour::expectRows(const char *list, int rows, int column, const QString &part)
{
    const QAbstractItemModel *model = control<QAbstractItemView>(list)->model();
    expect(
        model->rowCount() == rows,
        QStringLiteral("%1 has %2 rows, not %3").arg(QLatin1String(list)).arg(model->rowCount()).arg(rows));
    for (int row = 0; row < model->rowCount(); ++row) {
        const QString text = model->index(row, column).data().toString();
        expect(text.contains(part, Qt::CaseInsensitive),
               QStringLiteral("%1 shows \"%2\" in row %3").arg(QLatin1String(list), text).arg(row));
    }
}
