#ifndef LISTSCENE_H
#define LISTSCENE_H

#include "KxListControl.h"
#include "WidgetWatch.h"
#include "WindowHandle.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QListWidget>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QTableWidget>
#include <QtTest>

#include <functional>
#include <memory>

/// The kinds of widget that a list control tells apart.
enum class Kind { List, Table, Standard, Strings, NoModel, Other };

/// A list control bound to a widget of a kind, and all that an operation may change of it in one line.
///
/// The line has the headings and then the rows, with " / " before each: "-" is an empty cell, "#" a column
/// without a heading, ":10" data under Qt::UserRole, "*" a selected and "@" the current cell, "(type)" the
/// type of what is not stored as it should be, "e" a list's item that can be edited.
class ListScene
{
public:
    explicit ListScene(Kind kind)
        : m_kind(kind)
        , m_widget(made(kind))
    {
        control.SetHandle(handleOf(m_widget.get()));
    }

    QWidget *widget() const { return m_widget.get(); }
    QListWidget *list() const { return qobject_cast<QListWidget *>(m_widget.get()); }
    QTableWidget *table() const { return qobject_cast<QTableWidget *>(m_widget.get()); }
    QTableView *view() const { return qobject_cast<QTableView *>(m_widget.get()); }
    QStandardItemModel *standardModel() const { return qobject_cast<QStandardItemModel *>(model()); }
    QAbstractItemModel *model() const
    {
        const auto *items = qobject_cast<QAbstractItemView *>(m_widget.get());
        return items ? items->model() : nullptr;
    }
    void destroyWidget() { m_widget.reset(); }
    QWidget *releaseWidget() { return m_widget.release(); }

    QString state() const
    {
        if (const auto *label = qobject_cast<QLabel *>(m_widget.get()))
            return label->text();
        if (!model())
            return QStringLiteral("no model");
        QStringList lines{headings()};
        for (int row = 0; row < model()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model()->columnCount(); ++column)
                cells << cell(model()->index(row, column));
            lines << cells.join(QLatin1Char(' '));
        }
        return lines.join(QStringLiteral(" / "));
    }

    CListCtrl control;

private:
    QString headings() const
    {
        QStringList texts;
        for (int column = 0; column < model()->columnCount(); ++column) {
            const QVariant heading = model()->headerData(column, Qt::Horizontal);
            texts << (heading.type() == QVariant::String ? quoted(heading.toString()) : QStringLiteral("#"));
        }
        return texts.join(QLatin1Char(' '));
    }

    static QString quoted(const QString &text) { return text.isEmpty() ? QStringLiteral("''") : text; }

    static QString typed(const QVariant &value, QVariant::Type expected)
    {
        const QString text = quoted(value.toString());
        return value.type() == expected ? text
                                        : text + QStringLiteral("(%1)").arg(QLatin1String(value.typeName()));
    }

    QString cell(const QModelIndex &index) const
    {
        const QVariant display = index.data();
        const QVariant user = index.data(Qt::UserRole);
        const auto *selection = qobject_cast<QAbstractItemView *>(m_widget.get())->selectionModel();
        QString text = display.isValid() ? typed(display, QVariant::String) : QStringLiteral("-");
        if (user.isValid())
            text += QLatin1Char(':') + typed(user, QVariant::ULongLong);
        if (selection && selection->isSelected(index))
            text += QLatin1Char('*');
        if (selection && selection->currentIndex() == index)
            text += QLatin1Char('@');
        if (m_kind == Kind::List && (index.flags() & Qt::ItemIsEditable))
            text += QLatin1Char('e');
        return text;
    }

    // # / a0:10 / a1:11 / a2
    static std::unique_ptr<QWidget> madeList()
    {
        auto list = std::make_unique<QListWidget>();
        list->addItems({QStringLiteral("a0"), QStringLiteral("a1"), QStringLiteral("a2")});
        list->item(0)->setData(Qt::UserRole, qulonglong(10));
        list->item(1)->setData(Qt::UserRole, qulonglong(11));
        return list;
    }

    // A B # / a0:10 b0 c0 / a1:11 b1 - / a2:12 b2:77 c2
    static std::unique_ptr<QWidget> madeTable()
    {
        auto table = std::make_unique<QTableWidget>(3, 3);
        for (int row = 0; row < 3; ++row) {
            for (int column = 0; column < 3; ++column) {
                const QString name = QString(QChar('a' + column)) + QString::number(row);
                table->setItem(row, column, new QTableWidgetItem(name));
            }
            table->item(row, 0)->setData(Qt::UserRole, qulonglong(10 + row));
        }
        table->item(2, 1)->setData(Qt::UserRole, qulonglong(77));
        delete table->takeItem(1, 2);
        table->setHorizontalHeaderItem(0, new QTableWidgetItem(QStringLiteral("A")));
        table->setHorizontalHeaderItem(1, new QTableWidgetItem(QStringLiteral("B")));
        return table;
    }

    // A B # / 10 b0 / 11 b1 / x b2
    QAbstractItemModel *madeStandard(QObject *owner)
    {
        auto *model = new QStandardItemModel(3, 3, owner);
        const QStringList first{QStringLiteral("10"), QStringLiteral("11"), QStringLiteral("x")};
        for (int row = 0; row < 3; ++row) {
            model->setItem(row, 0, new QStandardItem(first.at(row)));
            model->setItem(row, 1, new QStandardItem(QStringLiteral("b%1").arg(row)));
        }
        model->setHorizontalHeaderItem(0, new QStandardItem(QStringLiteral("A")));
        model->setHorizontalHeaderItem(1, new QStandardItem(QStringLiteral("B")));
        return model;
    }

    std::unique_ptr<QWidget> madeView(Kind kind)
    {
        auto view = std::make_unique<QTableView>();
        const QStringList strings{QStringLiteral("10"), QStringLiteral("11"), QStringLiteral("x")};
        if (kind == Kind::Standard)
            view->setModel(madeStandard(view.get()));
        else if (kind == Kind::Strings)
            view->setModel(new QStringListModel(strings, view.get()));
        return view;
    }

    std::unique_ptr<QWidget> made(Kind kind)
    {
        if (kind == Kind::List)
            return madeList();
        if (kind == Kind::Table)
            return madeTable();
        if (kind == Kind::Other)
            return std::make_unique<QLabel>(QStringLiteral("label"));
        return madeView(kind);
    }

    Kind m_kind;
    std::unique_ptr<QWidget> m_widget;
};

/// Columns and rows of cells, in the order in which they are selected.
using Cells = QList<QPoint>;

/// Selects cells, one after the other.
inline void select(const ListScene &scene, const Cells &cells)
{
    auto *view = qobject_cast<QAbstractItemView *>(scene.widget());
    view->setSelectionMode(QAbstractItemView::MultiSelection);
    for (const QPoint &cell : cells)
        view->selectionModel()->select(scene.model()->index(cell.y(), cell.x()), QItemSelectionModel::Select);
}

/// All cells of rows with three columns.
inline Cells wholeRows(const QList<int> &rows)
{
    Cells cells;
    for (const int row : rows)
        cells << QPoint(0, row) << QPoint(1, row) << QPoint(2, row);
    return cells;
}

/// An operation on a scene and what it gives.
using ListCall = std::function<qint64(CListCtrl &)>;
Q_DECLARE_METATYPE(Cells)
Q_DECLARE_METATYPE(ListCall)
Q_DECLARE_METATYPE(Kind)

/// A record for the operations that take one.
inline wchar_t newText[] = L"new";

inline LVITEMW record(int row, int column, wchar_t *text, LPARAM data, UINT mask = 0)
{
    LVITEMW item{};
    item.mask = mask;
    item.iItem = row;
    item.iSubItem = column;
    item.pszText = text;
    item.lParam = data;
    return item;
}

/// A table of operations: columns, and rows of them. No state says that the operation changes nothing at all.
inline void addListColumns()
{
    QTest::addColumn<Kind>("kind");
    QTest::addColumn<ListCall>("call");
    QTest::addColumn<qint64>("result");
    QTest::addColumn<QString>("after");
}

#define LIST_ROW(name, kind, expression, result, after)                                                      \
    QTest::newRow(name) << (kind) << ListCall([](CListCtrl &c) { return qint64(c.expression); })             \
                        << qint64(result) << QString::fromLatin1(after)

/// An operation that changes nothing.
#define LIST_ROW_NOTHING(name, kind, expression, result) LIST_ROW(name, kind, expression, result, nullptr)

/// A function of a control and a record.
#define RECORD_ROW(name, kind, function, item, result, after)                                                \
    QTest::newRow(name) << (kind) << ListCall([](CListCtrl &c) { return qint64(function(c, item)); })        \
                        << qint64(result) << QString::fromLatin1(after)

/// Runs a row of such a table.
#define VERIFY_LIST_ROW()                                                                                    \
    do {                                                                                                     \
        QFETCH(Kind, kind);                                                                                  \
        QFETCH(ListCall, call);                                                                              \
        QFETCH(QString, after);                                                                              \
        ListScene scene(kind);                                                                               \
        const QString before = scene.state();                                                                \
        WidgetWatch watch(scene.widget());                                                                   \
        QTEST(call(scene.control), "result");                                                                \
        QCOMPARE(scene.state(), after.isNull() ? before : after);                                            \
        QVERIFY(!after.isNull() || watch.isUntouched());                                                     \
    } while (false)

#endif
