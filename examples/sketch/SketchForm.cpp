#include "SketchForm.h"

#include "SketchDlg.h"
#include "ui_SketchDlg.h"

#include <QButtonGroup>
#include <QPainter>
#include <QPixmap>

static CPoint toPoint(const QPoint &point)
{
    return CPoint(point.x(), point.y());
}

static QIcon swatch(COLORREF color)
{
    QPixmap pixmap(14, 14);
    pixmap.fill(QColor(GetRValue(color), GetGValue(color), GetBValue(color)));
    QPainter painter(&pixmap);
    painter.setPen(Qt::gray);
    painter.drawRect(0, 0, 13, 13);
    return pixmap;
}

SketchForm::SketchForm(CSketchDlg &dlg)
    : QBaseDialog(nullptr)
    , m_dlg(dlg)
    , m_ui(std::make_unique<Ui::SketchDlg>())
{
    m_ui->setupUi(this);

    for (int i = 0; i < m_ui->color->count(); ++i)
        m_ui->color->setItemIcon(i, swatch(COLORS[i]));

    // DDX_Radio() exchanges the button's ID in the group that belongs to the buttons' parent widget.
    auto *tools = new QButtonGroup(m_ui->line->parentWidget());
    tools->addButton(m_ui->line, TOOL_LINE);
    tools->addButton(m_ui->freehand, TOOL_FREEHAND);
    tools->addButton(m_ui->box, TOOL_BOX);
    tools->addButton(m_ui->fill, TOOL_FILL);
    connect(tools, &QButtonGroup::idClicked, this, [this] { m_dlg.OnChange(); });

    registerControls();
    connectControls();
}

SketchForm::~SketchForm() = default;

void SketchForm::OnCancel()
{
    m_dlg.OnCancel();
}

void SketchForm::registerControls()
{
    const struct
    {
        int id;
        QWidget *widget;
    } controls[] = {
        {IDC_TOOL_LINE, m_ui->line}, {IDC_TOOL_FREEHAND, m_ui->freehand},
        {IDC_TOOL_BOX, m_ui->box},   {IDC_TOOL_FILL, m_ui->fill},
        {IDC_COLOR, m_ui->color},    {IDC_STYLE, m_ui->style},
        {IDC_WIDTH, m_ui->width},    {IDC_WIDTH_TEXT, m_ui->widthText},
        {IDC_CANVAS, m_ui->canvas},  {IDC_UNDO, m_ui->undo},
        {IDC_CLEAR, m_ui->clear},    {IDC_FILE, m_ui->file},
        {IDC_PRINT, m_ui->print},    {IDC_STATUS, m_ui->status},
        {IDCANCEL, m_ui->close},
    };
    m_dlg.Attach(reinterpret_cast<HWND>(static_cast<QWidget *>(this)));
    for (const auto &control : controls)
        m_dlg.SetDlgItem(control.id, reinterpret_cast<HWND>(control.widget));
}

// The library connects no signal, so the application routes those of its controls to the dialog object.
void SketchForm::connectControls()
{
    const auto changed = [this] { m_dlg.OnChange(); };
    connect(m_ui->color, QOverload<int>::of(&QComboBox::activated), this, changed);
    connect(m_ui->style, QOverload<int>::of(&QComboBox::activated), this, changed);
    connect(m_ui->width, &QSlider::valueChanged, this, changed);

    connect(m_ui->canvas, &Canvas::pressed, this, [this](QPoint at) { m_dlg.OnLButtonDown(toPoint(at)); });
    connect(m_ui->canvas, &Canvas::moved, this, [this](QPoint to) { m_dlg.OnMouseMove(toPoint(to)); });
    connect(m_ui->canvas, &Canvas::released, this, [this](QPoint at) { m_dlg.OnLButtonUp(toPoint(at)); });

    connect(m_ui->undo, &QPushButton::clicked, this, [this] { m_dlg.OnUndo(); });
    connect(m_ui->clear, &QPushButton::clicked, this, [this] { m_dlg.OnClear(); });
    connect(m_ui->print, &QPushButton::clicked, this, [this] { m_dlg.OnPrint(); });
    connect(m_ui->close, &QPushButton::clicked, this, &SketchForm::OnCancel);
}
