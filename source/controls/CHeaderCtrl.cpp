#include "KxListControl.h"
#include "ListWidgets.h"
#include "foundation/QtConversions.h"

#include <QHeaderView>

namespace {
struct CHeaderCtrlPrivate : CWndPrivate
{
    CString m_strHeading; // What GetItem() gave last.
};
} // namespace

CHeaderCtrl::CHeaderCtrl()
    : CWnd(*new CHeaderCtrlPrivate, nullptr)
{
}

CHeaderCtrl::~CHeaderCtrl() = default;

int CHeaderCtrl::GetItemCount() const
{
    const auto *header = boundWidget<QHeaderView>(this);
    return header && header->model() ? header->model()->columnCount() : withoutWidget<int>(this);
}

// Calls the function with the heading, an item of either kind; FALSE when there is none.
template <typename Use> static BOOL useHeading(const CHeaderCtrl *control, int column, Use use)
{
    const auto useItem = [&](auto *item) -> BOOL {
        if (item)
            use(item);
        return item != nullptr;
    };

    const auto *header = boundWidget<QHeaderView>(control);
    const auto *table = header ? qobject_cast<QTableWidget *>(header->parentWidget()) : nullptr;
    if (table)
        return useItem(table->horizontalHeaderItem(column));
    const auto *view = header ? qobject_cast<QTableView *>(header->parentWidget()) : nullptr;
    const auto *model = view ? standardModel(view) : nullptr;
    return model ? useItem(model->horizontalHeaderItem(column)) : withoutWidget<BOOL>(control);
}

BOOL CHeaderCtrl::GetItem(int nPos, HDITEMW *item) const
{
    if (!item)
        return withoutWidget<BOOL>(this);
    return useHeading(this, nPos, [=](const auto *heading) {
        CString &kept = static_cast<CHeaderCtrlPrivate *>(CWndPrivate::of(this))->m_strHeading;
        kept = toCString(heading->text());
        item->pszText = kept.data();
        item->mask = HDI_TEXT;
    });
}

BOOL CHeaderCtrl::SetItem(int nPos, HDITEMW *item)
{
    if (!item)
        return withoutWidget<BOOL>(this);
    return useHeading(this, nPos, [=](auto *heading) { heading->setText(toQString(item->pszText)); });
}
