#include "BoundControl.h"
#include "KxListBoxes.h"
#include "LeftBehind.h"

#include <QtTest>

#include <memory>

/// Slots that change or delete the list in the middle of an operation.
class tst_CListBoxSlots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void selectStringWhileItemsGo();
    void selectStringWhileItemsCome();
    void selectStringWhileTheListGoes();
    void addStringWhileItemsCome();
    void changesWhileTheListGoes();

private:
    std::unique_ptr<LeftBehind> m_leftBehind;
};

void tst_CListBoxSlots::init()
{
    m_leftBehind = std::make_unique<LeftBehind>();
}

void tst_CListBoxSlots::cleanup()
{
    QVERIFY(m_leftBehind->nothing());
}

void tst_CListBoxSlots::selectStringWhileItemsGo()
{
    BoundControl<CListBox, QListWidget> list;
    list.widget.addItems({QStringLiteral("x"), QStringLiteral("x"), QStringLiteral("x")});
    connect(&list.widget, &QListWidget::currentRowChanged, this, [&list](int row) {
        if (row == 1)
            list.widget.clear();
    });
    QCOMPARE(list.control.SelectString(-1, L"x"), 0);
    QCOMPARE(list.widget.count(), 0);
}

void tst_CListBoxSlots::selectStringWhileItemsCome()
{
    BoundControl<CListBox, QListWidget> list;
    list.widget.addItems({QStringLiteral("x"), QStringLiteral("x")});
    connect(&list.widget, &QListWidget::currentRowChanged, this,
            [&list] { list.widget.addItem(QStringLiteral("x")); });
    QCOMPARE(list.control.SelectString(-1, L"x"), 0);
    QCOMPARE(list.widget.currentRow(), 1);
    QCOMPARE(list.widget.count(), 4);
}

void tst_CListBoxSlots::selectStringWhileTheListGoes()
{
    auto *widget = new QListWidget;
    widget->addItems({QStringLiteral("x"), QStringLiteral("x")});
    CListBox control;
    control.SetHandle(handleOf(widget));
    // The last signal of a change, so that Qt itself is done with the list.
    connect(widget, &QListWidget::currentRowChanged, this, [widget] { delete widget; });
    QCOMPARE(control.SelectString(-1, L"x"), 0);
    QCOMPARE(control.GetCount(), 0);
}

void tst_CListBoxSlots::addStringWhileItemsCome()
{
    BoundControl<CListBox, QListWidget> list;
    connect(list.widget.model(), &QAbstractItemModel::rowsInserted, this, [&list] {
        if (list.widget.count() < 3)
            list.widget.addItem(QStringLiteral("more"));
    });
    QCOMPARE(list.control.AddString(L"y"), 2);
}

void tst_CListBoxSlots::changesWhileTheListGoes()
{
    CListBox control;
    auto *widget = new QListWidget;
    control.SetHandle(handleOf(widget));
    widget->addItem(QStringLiteral("x"));
    connect(widget->model(), &QAbstractItemModel::rowsInserted, this, [widget] { delete widget; });
    QCOMPARE(control.AddString(L"y"), LB_ERR);
    QCOMPARE(control.GetCount(), 0);

    CListBox other;
    widget = new QListWidget;
    other.SetHandle(handleOf(widget));
    widget->addItem(QStringLiteral("x"));
    connect(widget->model(), &QAbstractItemModel::rowsRemoved, this, [widget] { delete widget; });
    QCOMPARE(other.DeleteString(0), 0);
    QCOMPARE(other.GetCount(), 0);
}

QTEST_MAIN(tst_CListBoxSlots)
#include "tst_CListBoxSlots.moc"
