#include "PageForms.h"

#include "CommonPage.h"
#include "EditPage.h"
#include "ListBoxPage.h"
#include "ListPage.h"
#include "PageFrame.h"
#include "TreePage.h"
#include "ui_CommonPage.h"
#include "ui_EditPage.h"
#include "ui_ListBoxPage.h"
#include "ui_ListPage.h"
#include "ui_TreePage.h"

#include <QStandardItemModel>

QWidget *makePageForm(CEditPage &page)
{
    auto *frame = new PageFrame;
    Ui::EditPage ui;
    ui.setupUi(frame->controls());
    frame->bind(page, {{IDC_NAME, ui.name},
                       {IDC_NOTES, ui.notes},
                       {IDC_EGGS, ui.eggs},
                       {IDC_CAPTION, ui.caption},
                       {IDC_SEEN, ui.seen},
                       {IDC_MALE, ui.male},
                       {IDC_FEMALE, ui.female},
                       {IDC_PLAY, ui.play}});

    frame->onClick(ui.write, page, &CEditPage::OnWrite);
    frame->onClick(ui.read, page, &CEditPage::OnRead);
    frame->onClick(ui.setCaption, page, &CEditPage::OnCaption);
    frame->onClick(ui.setPicture, page, &CEditPage::OnPicture);
    frame->onClick(ui.check, page, &CEditPage::OnCheck);
    QObject::connect(ui.seen, &QCheckBox::toggled, frame,
                     [&page](bool checked) { page.OnSignal(L"toggled", checked); });
    QObject::connect(ui.play, &QPushButton::clicked, frame,
                     [&page](bool checked) { page.OnSignal(L"clicked", checked); });
    QObject::connect(ui.eggs, qOverload<int>(&QSpinBox::valueChanged), frame,
                     [&page](int value) { page.OnSignal(L"valueChanged", value); });
    return frame;
}

QWidget *makePageForm(CListBoxPage &page)
{
    auto *frame = new PageFrame;
    Ui::ListBoxPage ui;
    ui.setupUi(frame->controls());
    frame->bind(page, {{IDC_TREES, ui.trees}, {IDC_BIRDS, ui.birds}});

    frame->onClick(ui.findTree, page, &CListBoxPage::OnFindTree);
    frame->onClick(ui.selectTree, page, &CListBoxPage::OnSelectTree);
    frame->onClick(ui.deleteTree, page, &CListBoxPage::OnDeleteTree);
    frame->onClick(ui.findBird, page, &CListBoxPage::OnFindBird);
    frame->onClick(ui.selectBird, page, &CListBoxPage::OnSelectBird);
    frame->onClick(ui.deleteBird, page, &CListBoxPage::OnDeleteBird);
    QObject::connect(ui.trees, qOverload<int>(&QComboBox::currentIndexChanged), frame,
                     [&page](int index) { page.OnSignal(L"currentIndexChanged", index); });
    QObject::connect(ui.birds, &QListWidget::currentRowChanged, frame,
                     [&page](int row) { page.OnSignal(L"currentRowChanged", row); });
    return frame;
}

QWidget *makePageForm(CListPage &page)
{
    auto *frame = new PageFrame;
    Ui::ListPage ui;
    ui.setupUi(frame->controls());
    auto *model = new QStandardItemModel(0, 2, frame);
    model->setHorizontalHeaderLabels({QStringLiteral("Tree"), QStringLiteral("Size")});
    model->appendRow({new QStandardItem(QStringLiteral("Oak")), new QStandardItem(QStringLiteral("30 m"))});
    model->appendRow({new QStandardItem(QStringLiteral("Ash")), new QStandardItem(QStringLiteral("35 m"))});
    ui.view->setModel(model);
    frame->bind(page, {{IDC_LIST, ui.list}, {IDC_TABLE, ui.table}, {IDC_VIEW, ui.view}});

    frame->onClick(ui.insert, page, &CListPage::OnInsert);
    frame->onClick(ui.data, page, &CListPage::OnData);
    frame->onClick(ui.headings, page, &CListPage::OnHeadings);
    frame->onClick(ui.selectRows, page, &CListPage::OnSelect);
    frame->onClick(ui.selected, page, &CListPage::OnSelected);
    frame->onClick(ui.deleteRows, page, &CListPage::OnDelete);
    QObject::connect(ui.list, &QListWidget::currentRowChanged, frame,
                     [&page](int row) { page.OnSignal(L"currentRowChanged", row); });
    return frame;
}

QWidget *makePageForm(CTreePage &page)
{
    auto *frame = new PageFrame;
    Ui::TreePage ui;
    ui.setupUi(frame->controls());
    frame->bind(page, {{IDC_TREE, ui.tree}});

    frame->onClick(ui.expand, page, &CTreePage::OnExpand);
    frame->onClick(ui.walk, page, &CTreePage::OnWalk);
    frame->onClick(ui.selectItem, page, &CTreePage::OnSelect);
    frame->onClick(ui.edit, page, &CTreePage::OnEdit);
    frame->onClick(ui.remove, page, &CTreePage::OnDelete);
    QObject::connect(ui.tree, &QTreeWidget::itemChanged, frame,
                     [&page](QTreeWidgetItem *, int column) { page.OnSignal(L"itemChanged", column); });
    return frame;
}

QWidget *makePageForm(CCommonPage &page)
{
    auto *frame = new PageFrame;
    Ui::CommonPage ui;
    ui.setupUi(frame->controls());
    frame->bind(
        page,
        {{IDC_TABS, ui.tabs}, {IDC_SLIDER, ui.slider}, {IDC_SCROLLBAR, ui.scrollBar}, {IDC_SPIN, ui.spin}});

    frame->onClick(ui.selectTab, page, &CCommonPage::OnTabs);
    frame->onClick(ui.moveSlider, page, &CCommonPage::OnSlider);
    frame->onClick(ui.scroll, page, &CCommonPage::OnScrollBar);
    frame->onClick(ui.fixed, page, &CCommonPage::OnFixedResults);
    QObject::connect(ui.tabs, &QTabWidget::currentChanged, frame,
                     [&page](int index) { page.OnSignal(L"currentChanged", index); });
    QObject::connect(ui.slider, &QSlider::valueChanged, frame,
                     [&page](int value) { page.OnSignal(L"valueChanged", value); });
    QObject::connect(ui.scrollBar, &QScrollBar::valueChanged, frame,
                     [&page](int value) { page.OnSignal(L"valueChanged", value); });
    return frame;
}
