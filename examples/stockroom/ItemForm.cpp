#include "ItemForm.h"

#include "ItemDlg.h"
#include "Texts.h"
#include "ui_ItemForm.h"

#include <QButtonGroup>

static QString loadText(UINT id)
{
    return QString::fromStdWString(LoadText(id));
}

INT_PTR EditItem(CItemDlg &dlg, QWidget *parent)
{
    ItemForm form(dlg, parent);
    return dlg.DoModal();
}

ItemForm::ItemForm(CItemDlg &dlg, QWidget *parent)
    : QBaseDialog(parent)
    , m_dlg(dlg)
    , m_ui(std::make_unique<Ui::ItemForm>())
{
    m_ui->setupUi(this);

    // DDX_Radio() exchanges the button's ID in the group that belongs to the buttons' parent widget.
    auto *states = new QButtonGroup(m_ui->stateNew->parentWidget());
    states->addButton(m_ui->stateNew, STATE_NEW);
    states->addButton(m_ui->stateUsed, STATE_USED);
    states->addButton(m_ui->stateBroken, STATE_BROKEN);

    loadTexts();
    registerControls();
    connectControls();
}

ItemForm::~ItemForm() = default;

void ItemForm::OnOK()
{
    m_dlg.OnOK();
}

void ItemForm::OnCancel()
{
    m_dlg.OnCancel();
}

void ItemForm::loadTexts()
{
    m_ui->articleBox->setTitle(loadText(IDS_ITEM_ARTICLE));
    m_ui->storageBox->setTitle(loadText(IDS_ITEM_STORAGE));
    m_ui->stockBox->setTitle(loadText(IDS_ITEM_STOCK));
    m_ui->conditionBox->setTitle(loadText(IDS_ITEM_CONDITION));
    m_ui->categoryBox->setTitle(loadText(IDS_ITEM_CATEGORY));
    m_ui->unitBox->setTitle(loadText(IDS_ITEM_UNIT));

    const struct
    {
        UINT id;
        QLabel *label;
    } labels[] = {
        {IDS_ITEM_NUMBER, m_ui->numberLabel},   {IDS_ITEM_NAME, m_ui->nameLabel},
        {IDS_ITEM_NOTE, m_ui->noteLabel},       {IDS_ITEM_ROOM, m_ui->roomLabel},
        {IDS_ITEM_SHELF, m_ui->shelfLabel},     {IDS_ITEM_TEMPERATURE, m_ui->temperatureLabel},
        {IDS_ITEM_LEVEL, m_ui->levelLabel},     {IDS_ITEM_QUANTITY, m_ui->quantityLabel},
        {IDS_ITEM_REORDER, m_ui->reorderLabel}, {IDS_ITEM_PACKING, m_ui->packingLabel},
        {IDS_ITEM_WEIGHT, m_ui->weightLabel},   {IDS_ITEM_PRICE, m_ui->priceLabel},
        {IDS_ITEM_BATCH, m_ui->batchLabel},     {IDS_ITEM_SERIAL, m_ui->serialLabel},
    };
    for (const auto &[id, label] : labels)
        label->setText(loadText(id));

    const struct
    {
        UINT id;
        QAbstractButton *button;
    } buttons[] = {
        {IDS_ITEM_STATE_NEW, m_ui->stateNew},
        {IDS_ITEM_STATE_USED, m_ui->stateUsed},
        {IDS_ITEM_STATE_BROKEN, m_ui->stateBroken},
        {IDS_ITEM_FRAGILE, m_ui->fragile},
        {IDS_ITEM_HAZARDOUS, m_ui->hazardous},
        {IDS_ITEM_OK, m_ui->ok},
        {IDS_ITEM_CANCEL, m_ui->cancel},
    };
    for (const auto &[id, button] : buttons)
        button->setText(loadText(id));
}

void ItemForm::registerControls()
{
    const struct
    {
        int id;
        QWidget *widget;
    } controls[] = {
        {IDC_NUMBER, m_ui->number},
        {IDC_NAME, m_ui->name},
        {IDC_NOTE, m_ui->note},
        {IDC_ROOM, m_ui->room},
        {IDC_CATEGORY, m_ui->category},
        {IDC_PACKING, m_ui->packing},
        {IDC_UNIT, m_ui->unit},
        {IDC_SHELF, m_ui->shelf},
        {IDC_TEMPERATURE, m_ui->temperature},
        {IDC_QUANTITY, m_ui->quantity},
        {IDC_REORDER, m_ui->reorder},
        {IDC_BATCH, m_ui->batch},
        {IDC_SERIAL, m_ui->serial},
        {IDC_WEIGHT, m_ui->weight},
        {IDC_PRICE, m_ui->price},
        {IDC_STATE_NEW, m_ui->stateNew},
        {IDC_STATE_USED, m_ui->stateUsed},
        {IDC_STATE_BROKEN, m_ui->stateBroken},
        {IDC_FRAGILE, m_ui->fragile},
        {IDC_HAZARDOUS, m_ui->hazardous},
        {IDC_LEVEL, m_ui->level},
        {IDC_LEVEL_TEXT, m_ui->levelText},
        {IDOK, m_ui->ok},
        {IDCANCEL, m_ui->cancel},
    };
    m_dlg.Attach(reinterpret_cast<HWND>(static_cast<QWidget *>(this)));
    for (const auto &control : controls)
        m_dlg.SetDlgItem(control.id, reinterpret_cast<HWND>(control.widget));
}

void ItemForm::connectControls()
{
    connect(m_ui->ok, &QPushButton::clicked, this, &ItemForm::OnOK);
    connect(m_ui->cancel, &QPushButton::clicked, this, &ItemForm::OnCancel);
    connect(m_ui->level, &QSlider::valueChanged, this, [this](int level) { m_dlg.OnLevelChanged(level); });
}
