#include "SettingsForm.h"

#include "SettingsDlg.h"
#include "ui_SettingsDlg.h"

#include <QButtonGroup>

static QString loadText(UINT id)
{
    CString text;
    text.LoadStringW(id);
    return QString::fromWCharArray(text);
}

SettingsForm::SettingsForm(CSettingsDlg &dlg)
    : QBaseDialog(nullptr)
    , m_dlg(dlg)
    , m_ui(std::make_unique<Ui::SettingsDlg>())
{
    m_ui->setupUi(this);

    // DDX_Radio() exchanges the button's ID in the group that belongs to the buttons' parent widget.
    auto *units = new QButtonGroup(m_ui->metric->parentWidget());
    units->addButton(m_ui->metric, 0);
    units->addButton(m_ui->imperial, 1);

    loadTexts();
    registerControls();
    connectControls();
}

SettingsForm::~SettingsForm() = default;

void SettingsForm::OnOK()
{
    m_dlg.OnOK();
}

void SettingsForm::OnCancel()
{
    m_dlg.OnCancel();
}

// The file formats stay: their names are what is stored.
void SettingsForm::loadTexts()
{
    setWindowTitle(loadText(IDS_TITLE));
    m_ui->stationBox->setTitle(loadText(IDS_STATION));
    m_ui->unitsBox->setTitle(loadText(IDS_UNITS));
    m_ui->channelBox->setTitle(loadText(IDS_CHANNEL));

    const struct
    {
        UINT id;
        QLabel *label;
    } labels[] = {
        {IDS_NAME, m_ui->nameLabel},   {IDS_PORT, m_ui->portLabel},     {IDS_INTERVAL, m_ui->intervalLabel},
        {IDS_SPEED, m_ui->speedLabel}, {IDS_FORMAT, m_ui->formatLabel}, {IDS_VOLUME, m_ui->volumeLabel},
    };
    for (const auto &[id, label] : labels)
        label->setText(loadText(id));

    const struct
    {
        UINT id;
        QAbstractButton *button;
    } buttons[] = {
        {IDS_METRIC, m_ui->metric}, {IDS_IMPERIAL, m_ui->imperial}, {IDS_AUTOSTART, m_ui->autoStart},
        {IDS_OK, m_ui->ok},         {IDS_CANCEL, m_ui->cancel},
    };
    for (const auto &[id, button] : buttons)
        button->setText(loadText(id));

    for (const UINT id : {IDS_TEMPERATURE, IDS_PRESSURE, IDS_HUMIDITY, IDS_WIND})
        m_ui->channel->addItem(loadText(id));
}

void SettingsForm::registerControls()
{
    const struct
    {
        int id;
        QWidget *widget;
    } controls[] = {
        {IDC_NAME, m_ui->name},
        {IDC_PORT, m_ui->port},
        {IDC_INTERVAL, m_ui->interval},
        {IDC_SPEED, m_ui->speed},
        {IDC_FORMAT, m_ui->format},
        {IDC_UNITS_METRIC, m_ui->metric},
        {IDC_UNITS_IMPERIAL, m_ui->imperial},
        {IDC_CHANNEL, m_ui->channel},
        {IDC_VOLUME, m_ui->volume},
        {IDC_VOLUME_TEXT, m_ui->volumeText},
        {IDC_AUTOSTART, m_ui->autoStart},
        {IDOK, m_ui->ok},
        {IDCANCEL, m_ui->cancel},
    };
    m_dlg.Attach(reinterpret_cast<HWND>(static_cast<QWidget *>(this)));
    for (const auto &control : controls)
        m_dlg.SetDlgItem(control.id, reinterpret_cast<HWND>(control.widget));
}

// The library connects no signal, so the application routes its buttons to the dialog object.
void SettingsForm::connectControls()
{
    connect(m_ui->ok, &QPushButton::clicked, this, &SettingsForm::OnOK);
    connect(m_ui->cancel, &QPushButton::clicked, this, &SettingsForm::OnCancel);
    connect(m_ui->volume, &QSlider::valueChanged, this, [this](int value) { m_dlg.OnVolumeChanged(value); });
}
