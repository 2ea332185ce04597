#include "SettingsForm.h"

#include "SettingsDlg.h"
#include "ui_SettingsDlg.h"

#include <QButtonGroup>

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
