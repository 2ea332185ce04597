#include "ExchangeControl.h"
#include "foundation/QtConversions.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>

template <typename Flag> static void exchangeCheck(CDataExchange *exchange, int nIDC, Flag &value)
{
    auto *button = exchangeWidget<QAbstractButton>(exchange, nIDC);
    if (!button || !button->isCheckable())
        return;
    if (exchange->m_bSaveAndValidate)
        value = button->isChecked();
    else
        button->setChecked(value != 0);
}

void DDX_Check(CDataExchange *pDX, int nIDC, bool &value)
{
    exchangeCheck(pDX, nIDC, value);
}

void DDX_Check(CDataExchange *pDX, int nIDC, int &value)
{
    exchangeCheck(pDX, nIDC, value);
}

void DDX_Radio(CDataExchange *pDX, int nIDC, int &value)
{
    const auto *radio = exchangeWidget<QRadioButton>(pDX, nIDC);
    const QWidget *parent = radio ? radio->parentWidget() : nullptr;
    const auto *group =
        parent ? parent->findChild<QButtonGroup *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
    if (!group)
        return;
    if (pDX->m_bSaveAndValidate)
        value = group->checkedId();
    else if (auto *button = group->button(value))
        button->setChecked(true);
}

void DDX_CBString(CDataExchange *pDX, int nIDC, CString &value)
{
    auto *combo = exchangeWidget<QComboBox>(pDX, nIDC);
    if (!combo)
        return;
    if (pDX->m_bSaveAndValidate)
        value = toCString(combo->currentText());
    else
        combo->setCurrentText(toQString(value));
}

static int correctIndex(int &index, int count)
{
    // The member learns of the correction.
    if (index < 0 || index >= count)
        index = 0;
    return index;
}

void DDX_CBIndex(CDataExchange *pDX, int nIDC, int &index)
{
    auto *combo = exchangeWidget<QComboBox>(pDX, nIDC);
    if (!combo)
        return;
    if (pDX->m_bSaveAndValidate)
        index = combo->currentIndex();
    else
        combo->setCurrentIndex(correctIndex(index, combo->count()));
}

void DDX_LBIndex(CDataExchange *pDX, int nIDC, int &index)
{
    auto *list = exchangeWidget<QListWidget>(pDX, nIDC);
    if (!list)
        return;
    if (pDX->m_bSaveAndValidate)
        index = list->currentRow();
    else
        list->setCurrentRow(correctIndex(index, list->count()));
}

void DDX_LBString(CDataExchange *pDX, int nIDC, CString &)
{
    // The look-up alone, which makes the control's object; the text stays on both sides.
    exchangeControl(pDX, nIDC);
}

void DDX_Slider(CDataExchange *pDX, int nIDC, int &value)
{
    auto *slider = exchangeWidget<QSlider>(pDX, nIDC);
    if (!slider)
        return;
    if (pDX->m_bSaveAndValidate) {
        value = slider->value();
        return;
    }
    if (value < slider->minimum() || value > slider->maximum())
        return;
    const QSignalBlocker blocker(slider);
    slider->setValue(value);
}

void DDX_Control(CDataExchange *pDX, int nIDC, CWnd &rControl)
{
    if (exchangeControl(pDX, nIDC) && !rControl.m_hWnd)
        rControl.SubclassDlgItem(static_cast<UINT>(nIDC), pDX->m_pDlgWnd);
}
