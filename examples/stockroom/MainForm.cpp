#include "MainForm.h"

#include "MainDlg.h"
#include "Texts.h"
#include "ui_MainForm.h"

#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QStyledItemDelegate>

namespace {

/// Numbers stand at the right of their column, apart from the text of the next one.
class NumberDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        return QStyledItemDelegate::displayText(value, locale) + QChar(EN_SPACE);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }
};

QString text(UINT id)
{
    return QString::fromWCharArray(LoadText(id));
}

CPoint toPoint(const QPoint &point)
{
    return CPoint(point.x(), point.y());
}

} // namespace

MainForm::MainForm(CMainDlg &dlg)
    : QBaseDialog(nullptr)
    , m_dlg(dlg)
    , m_ui(std::make_unique<Ui::MainForm>())
{
    m_ui->setupUi(this);
    // A program's main window, not the tool window that a dialog is.
    setWindowFlags(Qt::Window);
    m_ui->allItems->setModel(&dlg.GetModel());
    // The searches of before are offered in the list; completing them would change what is typed.
    m_ui->search->setCompleter(nullptr);
    // Its place stays, so that nothing moves when it is shown.
    QSizePolicy policy = m_ui->progress->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_ui->progress->setSizePolicy(policy);
    m_ui->splitter->setStretchFactor(1, 1);

    loadTexts();
    loadSymbols();
    layOutList(m_ui->items);
    layOutList(m_ui->allItems);
    registerControls();
    connectControls();
    addShortcuts();
}

MainForm::~MainForm() = default;

void MainForm::OnCancel()
{
    m_dlg.OnCancel();
}

void MainForm::setLayoutSizes(int width, int height, int treeWidth)
{
    const int letter = fontMetrics().averageCharWidth();
    resize(width > 0 ? width : 156 * letter, height > 0 ? height : 96 * letter);
    const int tree = treeWidth > 0 ? treeWidth : 33 * letter;
    m_ui->splitter->setSizes({tree, this->width() - tree});
}

int MainForm::treeWidth() const
{
    return m_ui->rooms->width();
}

void MainForm::loadTexts()
{
    setWindowTitle(text(IDS_APP_TITLE));
    m_ui->searchLabel->setText(text(IDS_SEARCH));
    m_ui->zoomLabel->setText(text(IDS_ZOOM));
    m_ui->views->setTabText(VIEW_ROOM, text(IDS_VIEW_ROOM));
    m_ui->views->setTabText(VIEW_ALL, text(IDS_VIEW_ALL));
    m_ui->views->setTabText(VIEW_PLAN, text(IDS_VIEW_PLAN));
    const struct
    {
        UINT id;
        QAbstractButton *button;
    } buttons[] = {
        {IDS_NEW, m_ui->newItem},        {IDS_EDIT, m_ui->edit},     {IDS_DELETE, m_ui->remove},
        {IDS_COPY, m_ui->copy},          {IDS_PASTE, m_ui->paste},   {IDS_IMPORT, m_ui->importItems},
        {IDS_EXPORT, m_ui->exportItems}, {IDS_SAMPLE, m_ui->sample}, {IDS_FIND, m_ui->find},
    };
    for (const auto &[id, button] : buttons)
        button->setText(text(id));
}

void MainForm::loadSymbols()
{
    setWindowIcon(LoadProgramIcon());
    const struct
    {
        SYMBOL symbol;
        QAbstractButton *button;
    } buttons[] = {
        {SYMBOL_NEW, m_ui->newItem},        {SYMBOL_EDIT, m_ui->edit},     {SYMBOL_DELETE, m_ui->remove},
        {SYMBOL_COPY, m_ui->copy},          {SYMBOL_PASTE, m_ui->paste},   {SYMBOL_IMPORT, m_ui->importItems},
        {SYMBOL_EXPORT, m_ui->exportItems}, {SYMBOL_SAMPLE, m_ui->sample}, {SYMBOL_FIND, m_ui->find},
    };
    for (const auto &[symbol, button] : buttons)
        button->setIcon(m_dlg.GetSymbols().GetIcon(symbol));
}

void MainForm::layOutList(QTableView *list)
{
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    list->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    list->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    list->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    auto *delegate = new NumberDelegate(list);
    for (int column = 0; column < COLUMN_COUNT; ++column) {
        if (IsNumberColumn(column))
            list->setItemDelegateForColumn(column, delegate);
    }
}

void MainForm::registerControls()
{
    const struct
    {
        int id;
        QWidget *widget;
    } controls[] = {
        {IDC_ROOMS, m_ui->rooms},        {IDC_VIEWS, m_ui->views},        {IDC_ITEMS, m_ui->items},
        {IDC_ALL_ITEMS, m_ui->allItems}, {IDC_PLAN, m_ui->plan},          {IDC_SEARCH, m_ui->search},
        {IDC_FIND, m_ui->find},          {IDC_ZOOM, m_ui->zoom},          {IDC_ZOOM_TEXT, m_ui->zoomText},
        {IDC_PROGRESS, m_ui->progress},  {IDC_STATUS, m_ui->status},      {IDC_NEW, m_ui->newItem},
        {IDC_EDIT, m_ui->edit},          {IDC_DELETE, m_ui->remove},      {IDC_COPY, m_ui->copy},
        {IDC_PASTE, m_ui->paste},        {IDC_IMPORT, m_ui->importItems}, {IDC_EXPORT, m_ui->exportItems},
        {IDC_SAMPLE, m_ui->sample},
    };
    m_dlg.Attach(reinterpret_cast<HWND>(static_cast<QWidget *>(this)));
    for (const auto &control : controls)
        m_dlg.SetDlgItem(control.id, reinterpret_cast<HWND>(control.widget));
}

// The library connects no signal, so the application routes those of its controls to the dialog object.
void MainForm::connectControls()
{
    const struct
    {
        QAbstractButton *button;
        void (CMainDlg::*command)();
    } buttons[] = {
        {m_ui->newItem, &CMainDlg::OnNew},        {m_ui->edit, &CMainDlg::OnEdit},
        {m_ui->remove, &CMainDlg::OnDelete},      {m_ui->copy, &CMainDlg::OnCopy},
        {m_ui->paste, &CMainDlg::OnPaste},        {m_ui->importItems, &CMainDlg::OnImport},
        {m_ui->exportItems, &CMainDlg::OnExport}, {m_ui->sample, &CMainDlg::OnSample},
        {m_ui->find, &CMainDlg::OnFind},
    };
    for (const auto &[button, command] : buttons)
        connect(button, &QAbstractButton::clicked, this, [this, command = command] { (m_dlg.*command)(); });

    connect(m_ui->search->lineEdit(), &QLineEdit::returnPressed, this, [this] { m_dlg.OnFind(); });
    connect(m_ui->search, QOverload<int>::of(&QComboBox::activated), this, [this] { m_dlg.OnFind(); });
    connect(m_ui->rooms, &QTreeWidget::currentItemChanged, this, [this] { m_dlg.OnRoom(); });
    connect(m_ui->views, &QTabWidget::currentChanged, this, [this] { m_dlg.OnView(); });
    connectList(m_ui->items);
    connectList(m_ui->allItems);
    connect(m_ui->zoom, &QSlider::valueChanged, this, [this](int zoom) { m_dlg.OnZoom(zoom); });
    connect(m_ui->plan, &PlanCanvas::pressed, this,
            [this](const QPoint &at) { m_dlg.OnPlanClick(toPoint(at)); });
    connect(m_ui->plan, &PlanCanvas::doubleClicked, this,
            [this](const QPoint &at) { m_dlg.OnPlanDoubleClick(toPoint(at)); });
}

void MainForm::connectList(QTableView *list)
{
    connect(list, &QTableView::customContextMenuRequested, this,
            [this, list](const QPoint &at) { showMenu(list->viewport()->mapToGlobal(at)); });
    connect(list, &QTableView::doubleClicked, this, [this] { m_dlg.OnEdit(); });
    connect(list->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int column) { m_dlg.OnColumnClick(column); });
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_dlg.OnSelection(); });
}

void MainForm::addShortcuts()
{
    const auto add = [this](QWidget *where, const QKeySequence &keys, void (CMainDlg::*command)()) {
        auto *shortcut = new QShortcut(keys, where);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, [this, command] { (m_dlg.*command)(); });
    };
    for (QWidget *list : {static_cast<QWidget *>(m_ui->items), static_cast<QWidget *>(m_ui->allItems)}) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_F2})
            add(list, key, &CMainDlg::OnEdit);
        add(list, QKeySequence::Delete, &CMainDlg::OnDelete);
        add(list, QKeySequence::Copy, &CMainDlg::OnCopy);
        add(list, QKeySequence::Paste, &CMainDlg::OnPaste);
    }
    add(m_ui->rooms, QKeySequence::Paste, &CMainDlg::OnPaste);

    auto *find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, m_ui->search, [this] {
        m_ui->search->setFocus(Qt::ShortcutFocusReason);
        m_ui->search->lineEdit()->selectAll();
    });
}

void MainForm::showMenu(const QPoint &globalPlace)
{
    QMenu menu(this);
    for (QToolButton *button : {m_ui->edit, m_ui->remove, m_ui->copy, m_ui->paste}) {
        QAction *action = menu.addAction(button->icon(), button->text(), button, &QToolButton::click);
        action->setEnabled(button->isEnabled());
    }
    menu.exec(globalPlace);
}
