#include "KxGuard.h"

#include <QAbstractButton>
#include <QPointer>

#include <utility>
#include <vector>

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
    // All of them before the first slot runs, which may delete a button or this object.
    std::vector<std::pair<int, QPointer<QAbstractButton>>> buttons;
    const auto &children = d_ptr->m_mapChildren;
    for (auto it = children.lower_bound(nIDFirst); it != children.end() && it->first <= nIDLast; ++it)
        buttons.emplace_back(it->first, buttonOf(this, it->first));
    for (const auto &[id, button] : buttons) {
        if (button)
            button->setChecked(false);
        if (button && id == nIDCheckButton)
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
