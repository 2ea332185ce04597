#include "stdafx.h"
#include "ConverterForm.h"
#include "ConverterDlg.h"
#include "ui_ConverterDlg.h"

#include <KxPlatform.h>
#include <KxPlatformServices.h>

ConverterForm::ConverterForm(CConverterDlg &dlg)
    : m_dlg(dlg)
    , m_ui(std::make_unique<Ui::ConverterDlg>())
{
    m_ui->setupUi(this);
    showIcon();
    bindControls();
    connectControls();
}

ConverterForm::~ConverterForm() = default;

void ConverterForm::OnCancel()
{
    m_dlg.OnCancel();
}

void ConverterForm::bindControls()
{
    const struct
    {
        int id;
        QWidget *widget;
    } controls[] = {
        {IDC_QUANTITY, m_ui->quantity}, {IDC_AMOUNT, m_ui->amount},
        {IDC_FROM, m_ui->from},         {IDC_TO, m_ui->to},
        {IDC_SWAP, m_ui->swap},         {IDC_DECIMALS, m_ui->decimals},
        {IDC_CONVERT, m_ui->convert},   {IDC_RESULT, m_ui->result},
        {IDC_HISTORY, m_ui->history},   {IDC_CLEAR, m_ui->clear},
        {IDCANCEL, m_ui->closeButton},
    };
    m_dlg.Attach(reinterpret_cast<HWND>(static_cast<QWidget *>(this)));
    for (const auto &control : controls)
        m_dlg.SetDlgItem(control.id, reinterpret_cast<HWND>(control.widget));
}

// The entries of the message map, one by one.
void ConverterForm::connectControls()
{
    connect(m_ui->convert, &QPushButton::clicked, this, [this] { m_dlg.OnBnClickedConvert(); });
    connect(m_ui->swap, &QPushButton::clicked, this, [this] { m_dlg.OnBnClickedSwap(); });
    connect(m_ui->clear, &QPushButton::clicked, this, [this] { m_dlg.OnBnClickedClear(); });
    connect(m_ui->quantity, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [this] { m_dlg.OnCbnSelchangeQuantity(); });
    connect(m_ui->amount, &QLineEdit::textChanged, this, [this] { m_dlg.OnEnChangeAmount(); });
    connect(this, &QDialog::finished, this, [this] { m_dlg.OnDestroy(); });
    connect(m_ui->closeButton, &QPushButton::clicked, this, &ConverterForm::OnCancel);
}

void ConverterForm::showIcon()
{
    HANDLE icon = LoadImageW(nullptr, MAKEINTRESOURCEW(IDR_MAINFRAME), IMAGE_ICON, 32, 32, 0);
    const QPixmap picture = QPixmap::fromImage(platformServices().image().image(icon));
    platformServices().gdiObjects().deleteObject(icon);
    setWindowIcon(picture);
    m_ui->icon->setPixmap(picture);
}
