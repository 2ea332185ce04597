#pragma once

#include "GuidedTour.h"

class QAbstractItemView;

/// Works with 50,000 items: finds, sorts, edits, copies, exports and imports them, and looks at the plan.
class Tour : public GuidedTour
{
public:
    using GuidedTour::GuidedTour;

protected:
    void walk() override;

private:
    void startsEmpty();
    void makesSample();
    void choosesRoom();
    void searches();
    void showsAllItems();
    void scrollsToEnd();
    void sorts();
    void showsPlan();
    void zoomsIn();
    void goesToRoom();
    void takesNumber();
    void spoilsQuantity();
    void correctsQuantity();
    void showsChange();
    void copies();
    void pastes();
    void showsDeletion();
    void namesExport();
    void showsExport();
    void hasKeptSettings();
    void namesImport();
    void showsImport();
    void namesForeignFile();
    void showsRefusal();

    void changesLayout();
    void hasKeptLayout();
    /// @param former the file that the dialog begins with.
    void namesFile(const QString &former);
    void leavesOutLines();
    void namesNewItem();
    void copiesNewItem();
    void pastesNewItem();
    void showsRowBehind();
    void keepsStock();

    static void turnTo(int page);
    static void chooseRoom(const QString &name);
    /// Types into the search line.
    static void search(const QString &text);
    /// @return where the tool crib is on the plan.
    static QPoint showToolCrib();
    /// @return the texts of a row.
    static QStringList textsIn(const QAbstractItemView *list, int row);
    static void clickRow(QAbstractItemView *list, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    void expectStatus(const QString &expected);
    void expectMessage(const QString &expected);
    /// Expects that a room is chosen in the tree and shows so many items.
    void expectRoom(const QString &expected);
    /// Expects that the first selected row of the room's list is that of an item.
    void expectSelected(const QString &number);
    /// Expects that a list has so many rows, and in each of them the text in that column.
    void expectRows(const char *list, int rows, int column, const QString &part);
    /// Expects the text beside the slider of the item dialog to tell its place.
    void expectLevel();
    /// Expects the colour at a point of the plan, given as its place at 100 %.
    void expectOnPlan(QPoint point, QRgb color);

    QStringList m_row; ///< What the item that is edited shows.
    int m_exported = 0;
    QSize m_size; ///< Of the main window.
    int m_treeWidth = 0;
};
