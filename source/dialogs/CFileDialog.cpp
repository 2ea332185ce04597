#include "KxFileDialogs.h"

#include "foundation/QtConversions.h"
#include "windows/KxGuard.h"

CFileDialogImpl::CFileDialogImpl()
    : QFileDialog(nullptr, QString(), QString(), QString())
{
}

// The names of a filter text in which names and patterns take turns.
static QStringList filterNames(const wchar_t *filter)
{
    QStringList names;
    const QStringList parts = toQString(filter).split(u'|');
    for (int i = 0; i < parts.size(); i += 2) {
        if (!parts[i].isEmpty())
            names << parts[i];
    }
    return names;
}

CFileDialog::CFileDialog(bool openDialog, const wchar_t *defExt, const wchar_t *fileName, unsigned,
                         const wchar_t *filter, CWnd *parent, unsigned, bool)
    : m_pImpl(new CFileDialogImpl)
{
    m_pImpl->setParent(isNullObject(parent) ? nullptr : handleWidget(parent), m_pImpl->windowFlags());
    m_pImpl->setAcceptMode(openDialog ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    m_pImpl->setDefaultSuffix(toQString(defExt).right(3));
    m_pImpl->setNameFilters(filterNames(filter));
    m_pImpl->selectFile(toQString(fileName));
}

CFileDialog::~CFileDialog()
{
    delete m_pImpl;
}

CString CFileDialog::GetPathName() const
{
    return m_pImpl ? toCString(m_pImpl->selectedFiles().value(0)) : CString();
}

CString CFileDialog::GetFileName() const
{
    return CString();
}

INT_PTR CFileDialog::DoModal()
{
    return m_pImpl ? m_pImpl->exec() : QDialog::Rejected;
}
