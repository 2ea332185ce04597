#include "KxGuard.h"
#include "foundation/QtConversions.h"
#include "foundation/TextBuffers.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QTextEdit>

template <typename SpinBox, typename Number> static void setValueSilently(SpinBox *box, Number value)
{
    const QSignalBlocker blocker(box);
    box->setValue(value);
}

static void setWidgetText(QWidget *widget, const QString &text)
{
    if (auto *edit = qobject_cast<QLineEdit *>(widget))
        edit->setText(text);
    else if (auto *doubleBox = qobject_cast<QDoubleSpinBox *>(widget))
        setValueSilently(doubleBox, text.toDouble());
    else if (auto *box = qobject_cast<QSpinBox *>(widget))
        setValueSilently(box, text.toInt());
    else if (auto *label = qobject_cast<QLabel *>(widget))
        label->setText(text);
    else if (auto *group = qobject_cast<QGroupBox *>(widget))
        group->setTitle(text);
    else if (auto *button = qobject_cast<QAbstractButton *>(widget))
        button->setText(text);
    else if (auto *combo = qobject_cast<QComboBox *>(widget))
        combo->setEditText(text);
    else if (auto *textEdit = qobject_cast<QTextEdit *>(widget))
        textEdit->setText(text);
    else
        widget->setWindowTitle(text);
}

static QString widgetText(QWidget *widget)
{
    if (const auto *edit = qobject_cast<QLineEdit *>(widget))
        return edit->text();
    // The text as it is shown, prefix and suffix included, although setting one takes a number.
    if (const auto *box = qobject_cast<QAbstractSpinBox *>(widget))
        return box->text();
    if (const auto *label = qobject_cast<QLabel *>(widget))
        return label->text();
    if (const auto *group = qobject_cast<QGroupBox *>(widget))
        return group->title();
    if (const auto *button = qobject_cast<QAbstractButton *>(widget))
        return button->text();
    if (const auto *combo = qobject_cast<QComboBox *>(widget))
        return combo->isEditable() ? combo->lineEdit()->text() : combo->currentText();
    if (const auto *textEdit = qobject_cast<QTextEdit *>(widget))
        return textEdit->toPlainText();
    return widget->windowTitle();
}

void CWnd::SetWindowTextW(const wchar_t *lpszString)
{
    auto *widget = boundWidget(this);
    if (widget && lpszString)
        setWidgetText(widget, toQString(lpszString));
}

void CWnd::GetWindowTextW(CString &rString)
{
    if (auto *widget = boundWidget(this))
        rString = toCString(widgetText(widget));
}

int CWnd::GetWindowTextW(wchar_t *lpszBuffer, int nMaxCount)
{
    if (!boundWidget(this))
        return withoutWidget<int>(this);
    if (!lpszBuffer || nMaxCount < 1)
        return 0;
    CString text;
    GetWindowTextW(text);
    return copyToBuffer(text, lpszBuffer, nMaxCount);
}

int CWnd::GetWindowTextLengthW()
{
    if (isNullObject(this))
        return withoutWidget<int>(this);
    CString text;
    GetWindowTextW(text);
    return text.GetLength();
}

int CWnd::GetDlgItemTextW(int nID, CString &rString) const
{
    if (!boundWidget(this))
        return withoutWidget<int>(this);
    GetDlgItem(nID)->GetWindowTextW(rString);
    return rString.GetLength();
}

void CWnd::SetDlgItemTextW(int nID, const wchar_t *lpszString)
{
    if (boundWidget(this))
        GetDlgItem(nID)->SetWindowTextW(lpszString);
}
