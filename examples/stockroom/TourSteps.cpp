#include "MainDlg.h"
#include "PlanCanvas.h"
#include "Tour.h"

#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>

namespace {

QString textAt(const QAbstractItemView *list, int row, int column)
{
    return list->model()->index(row, column).data().toString().trimmed();
}

} // namespace

void Tour::startsEmpty()
{
    expectRoom(QStringLiteral("All rooms (0)"));
    expectStatus(QStringLiteral("The stock is empty. Make a sample, import a file, or add an item."));
    expectRows("items", 0, 0, {});
    expect(!control<QWidget>("progress")->isVisible(), QStringLiteral("there is a progress bar"));
    for (const char *button : {"edit", "remove", "copy", "paste", "exportItems"})
        expect(!control<QWidget>(button)->isEnabled(),
               QStringLiteral("%1 can be pressed").arg(QLatin1String(button)));
}

void Tour::makesSample()
{
    auto *bar = control<QProgressBar>("progress");
    int moves = 0;
    connect(bar, &QProgressBar::valueChanged, this, [&](int percent) {
        ++moves;
        expect(bar->isVisible(), QStringLiteral("the progress is not shown"));
        if (percent == 60)
            shoot("02-progress");
    });
    click("sample");
    bar->disconnect(this);
    expect(moves >= 100, QStringLiteral("the progress bar moved %1 times").arg(moves));
    expect(!bar->isVisible(), QStringLiteral("the progress bar stays"));

    expectStatus(QStringLiteral("Made-up items: 50000"));
    expectRoom(QStringLiteral("All rooms (50000)"));
    expect(control<QWidget>("exportItems")->isEnabled(), QStringLiteral("nothing can be exported"));
}

void Tour::choosesRoom()
{
    chooseRoom(QStringLiteral("Small parts"));
    expectRoom(QStringLiteral("Small parts (10104)"));
    expectRows("items", 2000, COLUMN_ROOM, QStringLiteral("Small parts"));
    expectStatus(QStringLiteral("The first 2000 of 10104 items. A search narrows them down."));
}

void Tour::searches()
{
    search(QStringLiteral("hex bolt"));
    expectRows("items", 412, COLUMN_NAME, QStringLiteral("Hex bolt"));
    expectRows("items", 412, COLUMN_ROOM, QStringLiteral("Small parts"));
    expectStatus(QStringLiteral("412 of 50000 items"));
}

void Tour::showsAllItems()
{
    turnTo(VIEW_ALL);
    expectRows("allItems", 2144, COLUMN_NAME, QStringLiteral("Hex bolt"));
    expectStatus(QStringLiteral("2144 of 50000 items"));
}

void Tour::scrollsToEnd()
{
    search({});
    expectRows("allItems", 50000, COLUMN_NAME, {});
    auto *list = control<QTableView>("allItems");
    clickRow(list, 0);
    press(Qt::Key_End, Qt::ControlModifier);
    const QRect last = list->visualRect(list->model()->index(49999, 0));
    expect(list->viewport()->rect().contains(last.center()), QStringLiteral("the last row is not in view"));
    expect(textAt(list, 49999, 0).endsWith(QStringLiteral("-50000")),
           QStringLiteral("the last row is wrong"));
}

void Tour::sorts()
{
    auto *list = control<QTableView>("allItems");
    const auto clickHeading = [&] {
        const int x = list->horizontalHeader()->sectionViewportPosition(COLUMN_PRICE);
        click(list->horizontalHeader()->viewport(), QPoint(x + 12, 6));
    };
    const auto isSorted = [&](int sign) {
        double former = -sign * 1e9;
        for (int row = 0; row < 50000; ++row) {
            const double price = textAt(list, row, COLUMN_PRICE).toDouble();
            if ((price - former) * sign < 0)
                return false;
            former = price;
        }
        return true;
    };
    press(Qt::Key_Home, Qt::ControlModifier);
    clickHeading();
    expect(isSorted(1), QStringLiteral("the prices do not rise"));
    clickHeading();
    expect(isSorted(-1), QStringLiteral("the prices do not fall"));
    expect(list->horizontalHeader()->sortIndicatorSection() == COLUMN_PRICE &&
               list->horizontalHeader()->sortIndicatorOrder() == Qt::DescendingOrder,
           QStringLiteral("the order is not marked"));
}

void Tour::showsPlan()
{
    turnTo(VIEW_PLAN);
    expectText("zoom", control<QLabel>("zoomText")->text(), QStringLiteral("70 %"));
    expectOnPlan({540, 100}, qRgb(228, 235, 226)); // out of doors
    expectOnPlan({20, 300}, qRgb(69, 78, 94));     // a wall
    expectOnPlan({100, 290}, qRgb(247, 247, 244)); // a corridor
    expectOnPlan({520, 290}, qRgb(247, 247, 244)); // the open gate at its end
    expectOnPlan({845, 655}, qRgb(245, 160, 131)); // the legend
    expectOnPlan({120, 60}, qRgb(255, 222, 133));  // High racks, nearly full
    expectOnPlan({800, 605}, qRgb(232, 236, 241)); // Canteen, which is empty
    click(control<PlanCanvas>("plan"), showToolCrib());
    expectRoom(QStringLiteral("Tool crib (2446)"));
    expectOnPlan({770, 60}, qRgb(21, 101, 192)); // the frame around it
}

void Tour::expectOnPlan(QPoint point, QRgb color)
{
    const QPoint at = point * control<QSlider>("zoom")->value() / 100;
    const QRgb shown = control<PlanCanvas>("plan")->grab(QRect(at, QSize(1, 1))).toImage().pixel(0, 0);
    expect(shown == color,
           QStringLiteral("the plan is %1 at %2, %3").arg(shown, 0, 16).arg(point.x()).arg(point.y()));
}

void Tour::zoomsIn()
{
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(control<QSlider>("zoom"), Qt::Key_PageUp);
    expectText("zoom", control<QLabel>("zoomText")->text(), QStringLiteral("145 %"));
    const auto *plan = control<PlanCanvas>("plan");
    expect(plan->width() == 1450, QStringLiteral("the plan did not grow"));
    control<QScrollArea>("planArea")->ensureVisible(0, 0);
    chooseRoom(QStringLiteral("Canteen"));
    expect(plan->visibleRegion().contains(QPoint(860, 560) * 145 / 100),
           QStringLiteral("the plan does not scroll to the room"));
}

QPoint Tour::showToolCrib()
{
    const QPoint at = QPoint(820, 85) * control<QSlider>("zoom")->value() / 100;
    control<QScrollArea>("planArea")->ensureVisible(at.x(), at.y());
    return at;
}

void Tour::goesToRoom()
{
    auto *plan = control<PlanCanvas>("plan");
    const QPoint at = showToolCrib();
    click(plan, at);
    QTest::mouseDClick(plan, Qt::LeftButton, Qt::NoModifier, at);
    expect(control<QTabWidget>("views")->currentIndex() == VIEW_ROOM, QStringLiteral("the plan stays"));
    expectRows("items", 2000, COLUMN_ROOM, QStringLiteral("Tool crib"));
    auto *list = control<QTableWidget>("items");
    clickRow(list, 2);
    m_row = textsIn(list, 2);
}

void Tour::takesNumber()
{
    expectText("room", control<QComboBox>("room")->currentText(), QStringLiteral("Tool crib"));
    expectText("number", control<QLineEdit>("number")->text(), m_row[COLUMN_NUMBER]);
    expectText("price", control<QLineEdit>("price")->text(), m_row[COLUMN_PRICE]);
    expectText("weight", control<QLineEdit>("weight")->text(), QStringLiteral("94.2"));
    expectLevel();
    QTest::keyClick(control<QSlider>("level"), Qt::Key_PageDown);
    expectLevel();
    type("number", QStringLiteral("CH-00021"));
}

void Tour::expectLevel()
{
    expectText("levelText", control<QLabel>("levelText")->text(),
               QStringLiteral("%1 %").arg(control<QSlider>("level")->value()));
}

void Tour::spoilsQuantity()
{
    expect(control<QWidget>("number")->hasFocus(), QStringLiteral("the focus is not on the number"));
    type("number", m_row[COLUMN_NUMBER]);
    type("quantity", QStringLiteral("many"));
}

void Tour::correctsQuantity()
{
    expect(control<QWidget>("quantity")->hasFocus(), QStringLiteral("the focus is not on the quantity"));
    type("quantity", QStringLiteral("777"));
}

void Tour::showsChange()
{
    m_row[COLUMN_QUANTITY] = QStringLiteral("777");
    const auto *list = control<QTableWidget>("items");
    expect(list->currentRow() == 2, QStringLiteral("row %1 is selected").arg(list->currentRow()));
    expectText("items", textsIn(list, 2).join(QLatin1Char('|')), m_row.join(QLatin1Char('|')));
}

QStringList Tour::textsIn(const QAbstractItemView *list, int row)
{
    QStringList texts;
    for (int column = 0; column < COLUMN_COUNT; ++column)
        texts << textAt(list, row, column);
    return texts;
}

void Tour::copies()
{
    auto *list = control<QTableWidget>("items");
    clickRow(list, 2, Qt::ShiftModifier);
    clickRow(list, 4, Qt::ShiftModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    expectStatus(QStringLiteral("Copied items: 3"));
    const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
    expect(lines.size() == 4, QStringLiteral("%1 lines were copied").arg(lines.size()));
    for (int row = 0; row < 3; ++row)
        expect(lines.value(row).startsWith(textAt(list, row + 2, 0) + QLatin1Char('\t')),
               QStringLiteral("line %1 is another item").arg(row));
}

void Tour::pastes()
{
    chooseRoom(QStringLiteral("Cage"));
    expectRoom(QStringLiteral("Cage (2470)"));
    press(Qt::Key_V, Qt::ControlModifier);
    expectStatus(QStringLiteral("Pasted items: 3"));
    expectRoom(QStringLiteral("Cage (2473)"));
    auto *list = control<QTableWidget>("items");
    clickRow(list, list->currentRow());
}

void Tour::showsDeletion()
{
    expectStatus(QStringLiteral("Deleted items: 1"));
    expectRoom(QStringLiteral("Cage (2472)"));
    search(QStringLiteral("bolt"));
    m_exported = control<QTableWidget>("items")->rowCount();
    expectRows("items", m_exported, COLUMN_NAME, QStringLiteral("bolt"));
}

void Tour::namesExport()
{
    const QString file = fileInFolder(QStringLiteral("cage.stk"));
    QFile::remove(file);
    type("fileNameEdit", file.chopped(4)); // the dialog appends the extension
}

void Tour::showsExport()
{
    expectStatus(QStringLiteral("Exported items: %1").arg(m_exported));
    QFile file(fileInFolder(QStringLiteral("cage.stk")));
    expect(file.open(QIODevice::ReadOnly) && file.readAll().count('\n') == m_exported + 1,
           QStringLiteral("the file does not hold %1 items").arg(m_exported));
    changesLayout();
}

void Tour::hasKeptSettings()
{
    hasKeptLayout();
    expectRoom(QStringLiteral("Cage (0)"));
    const auto *search = control<QComboBox>("search");
    expectText("search", search->currentText(), QStringLiteral("bolt"));
    expectText("search", search->itemText(1), QStringLiteral("hex bolt"));
    expect(control<QSlider>("zoom")->value() == 145, QStringLiteral("the zoom changed"));
}

void Tour::namesImport()
{
    type("fileNameEdit", fileInFolder(QStringLiteral("cage.stk")));
}

void Tour::showsImport()
{
    expectStatus(QStringLiteral("Imported items: %1").arg(m_exported));
    expectRoom(QStringLiteral("Cage (%1)").arg(m_exported));
    expectRows("items", m_exported, COLUMN_NAME, QStringLiteral("bolt"));
}

void Tour::namesForeignFile()
{
    const QString name = fileInFolder(QStringLiteral("letter.stk"));
    QFile file(name);
    file.open(QIODevice::WriteOnly);
    file.write("Dear stock,\n");
    type("fileNameEdit", name);
}

void Tour::showsRefusal()
{
    const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    expect(box->text().endsWith(QStringLiteral("letter.stk holds no stock of this program.")),
           QStringLiteral("the message is \"%1\"").arg(box->text()));
}
