#include "KxApplication.h"
#include "KxGuard.h"
#include "foundation/QtConversions.h"

#include <QAbstractButton>
#include <QMessageBox>

static QMessageBox::StandardButtons chosenButtons(UINT type)
{
    if ((type & MB_YESNOCANCEL) == MB_YESNOCANCEL)
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    if (type & MB_OKCANCEL)
        return QMessageBox::Ok | QMessageBox::Cancel;
    if (type & MB_YESNO)
        return QMessageBox::Yes | QMessageBox::No;
    return QMessageBox::NoButton;
}

static QMessageBox::Icon chosenIcon(UINT type)
{
    if ((type & MB_ICONWARNING) == MB_ICONWARNING)
        return QMessageBox::Warning;
    if (type & MB_ICONQUESTION)
        return QMessageBox::Question;
    if (type & MB_ICONINFORMATION)
        return QMessageBox::Information;
    return type & MB_ICONERROR ? QMessageBox::Critical : QMessageBox::NoIcon;
}

static QMessageBox::StandardButtons defaultButtons(QMessageBox::Icon icon)
{
    // A question without buttons of its own asks for Yes or No.
    if (icon == QMessageBox::Question)
        return QMessageBox::Yes | QMessageBox::No;
    return QMessageBox::Ok;
}

static void setButtonText(QMessageBox &box, QMessageBox::StandardButton id, const QString &text)
{
    if (auto *button = box.button(id))
        button->setText(text);
}

static int resultOf(int button)
{
    switch (button) {
    case QMessageBox::Ok:
        return IDOK;
    case QMessageBox::Yes:
        return IDYES;
    case QMessageBox::Cancel:
        return IDCANCEL;
    case QMessageBox::No:
        return IDNO;
    default:
        return 0;
    }
}

int MessageBoxW(const wchar_t *lpText, const wchar_t *lpCaption, UINT uType)
{
    const QMessageBox::Icon icon = chosenIcon(uType);
    QMessageBox::StandardButtons buttons = chosenButtons(uType);
    if (buttons == QMessageBox::NoButton)
        buttons = defaultButtons(icon);

    QMessageBox box(icon, toQString(lpCaption), toQString(lpText), buttons, nullptr,
                    Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    setButtonText(box, QMessageBox::Ok, QObject::tr("&OK"));
    setButtonText(box, QMessageBox::Cancel, QObject::tr("&Cancel"));
    setButtonText(box, QMessageBox::No, QObject::tr("&No"));
    setButtonText(box, QMessageBox::Yes, QObject::tr("&Yes"));
    if (!lpCaption)
        box.setWindowTitle(QStringLiteral("Velmo."));
    box.setWindowFlags(box.windowFlags() | Qt::WindowStaysOnTopHint);
    return resultOf(box.exec());
}

int MessageBoxW(HWND, const wchar_t *lpText, const wchar_t *lpCaption, UINT uType)
{
    return MessageBoxW(lpText, lpCaption, uType);
}

int CWnd::MessageBoxW(const wchar_t *lpszText, const wchar_t *lpszCaption, UINT nType)
{
    if (isNullObject(this))
        return withoutWidget<int>(this);
    return ::MessageBoxW(m_hWnd, lpszText, lpszCaption, nType);
}

int AfxMessageBox(const wchar_t *lpszText, UINT nType, UINT)
{
    return MessageBoxW(nullptr, lpszText, nullptr, nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT, UINT)
{
    CString prompt;
    prompt.LoadStringW(nIDPrompt);
    // The caller's type is dropped: a prompt from the resources is a plain statement.
    return AfxMessageBox(prompt, MB_OK, 0);
}
