#include "KxGuard.h"

#include <QAbstractButton>

static QAbstractButton *buttonOf(const CWnd *dialog, int nID)
{
    // By the handle, so that a button stays one while its object is detached.
    return boundWidget(dialog) ? qobject_cast<QAbstractButton *>(handleWidget(dialog->GetDlgItem(nID)))
                               : nullptr;
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const
{
    const auto *button = buttonOf(this, nIDButton);
    return button ? button->isChecked() : withoutWidget<UINT>(this);
}

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck)
{
    if (auto *button = buttonOf(this, nIDButton))
        button->setChecked(nCheck != BST_UNCHECKED);
}

void CWnd::CheckRadioButton(int nIDFirst, int nIDLast, int nIDCheckButton)
{
    if (!boundWidget(this))
        return;
    const auto &children = d_ptr->m_mapChildren;
    for (auto it = children.lower_bound(nIDFirst); it != children.end() && it->first <= nIDLast; ++it) {
        auto *button = buttonOf(this, it->first);
        if (!button)
            continue;
        button->setChecked(false);
        if (it->first == nIDCheckButton)
            button->setChecked(true);
    }
}

int CWnd::GetCheckedRadioButton(int nIDFirst, int nIDLast) const
{
    if (!boundWidget(this))
        return withoutWidget<int>(this);
    const auto &children = d_ptr->m_mapChildren;
    for (auto it = children.lower_bound(nIDFirst); it != children.end() && it->first <= nIDLast; ++it) {
        if (IsDlgButtonChecked(it->first))
            return it->first;
    }
    return 0;
}
