#include "KxFileDialogs.h"

#include "foundation/QtConversions.h"
#include "windows/KxGuard.h"

#include <QFileInfo>

#include <algorithm>

// A directory whose last part has a dot names a file in it.
static QString folderOf(const QString &directory)
{
    const int slash = directory.lastIndexOf(u'/');
    return directory.mid(slash + 1).contains(u'.') ? directory.left(slash) : directory;
}

// The comparison is with 0, not with -1: a filter with ")" alone is cut before it.
static QString patternOf(const QString &filter)
{
    const int open = filter.indexOf(u'(');
    const int close = filter.indexOf(u')');
    if (open == 0 || close == 0 || close <= open)
        return filter;
    return filter.mid(open + 1, close - open - 1);
}

KxQtFileDialog::KxQtFileDialog(bool openDialog, const wchar_t *defExt, const wchar_t *fileName, unsigned,
                               const wchar_t *filter, CWnd *parent, unsigned, bool)
{
    m_args.parent = parent;
    m_args.filter = toQString(filter);
    m_attri.acceptMode = openDialog ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave;
    m_attri.fileMode = openDialog ? QFileDialog::ExistingFiles : QFileDialog::AnyFile;
    m_attri.defaultSuffix = toQString(defExt);
    m_attri.initialFileName = toQString(fileName);
    initOpenFileName();
}

KxQtFileDialog::~KxQtFileDialog()
{
    delete m_pDialog;
}

CString KxQtFileDialog::GetPathName() const
{
    return m_pathName;
}

CString KxQtFileDialog::GetFileName() const
{
    return m_fileName;
}

CString KxQtFileDialog::GetFileExt() const
{
    return m_fileExt;
}

POSITION KxQtFileDialog::GetStartPosition() const
{
    return reinterpret_cast<POSITION>(m_nSelected);
}

CString KxQtFileDialog::GetNextPathName(POSITION &pos) const
{
    const auto left = reinterpret_cast<INT_PTR>(pos);
    if (left < 1 || left > m_selectedFiles.size())
        return CString();

    pos = reinterpret_cast<POSITION>(left - 1);
    return toCString(withExtension(m_selectedFiles[int(m_selectedFiles.size() - left)]));
}

OPENFILENAMEW &KxQtFileDialog::GetOFN()
{
    return m_ofn;
}

INT_PTR KxQtFileDialog::DoModal()
{
    readOpenFileName();
    makeDialog();
    // Started from within the first, a second run replaces the dialog that this one runs.
    const QPointer<QFileDialog> dialog = m_pDialog;
    if (dialog->exec() != QDialog::Accepted)
        return IDCANCEL;

    m_selectedFiles = dialog->selectedFiles();
    m_nSelected = m_selectedFiles.size();
    m_selectedNameFilter = dialog->selectedNameFilter();
    PraseFileInfo();
    return IDOK;
}

QString KxQtFileDialog::getExistingDirectory(QWidget *parent, const QString &caption,
                                             const QString &directory, QFileDialog::Options)
{
    // Its parent may go while it runs, and takes it along.
    const QPointer<QFileDialog> dialog = new QFileDialog(parent, caption, directory, QString());
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setLabelText(QFileDialog::Reject, QObject::tr("Cancel"));
    dialog->setOption(QFileDialog::ShowDirsOnly);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    QString chosen = accepted ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return chosen;
}

void KxQtFileDialog::initOpenFileName()
{
    static const wchar_t empty[] = L"";
    m_ofn.lpstrFilter = empty;
    m_ofn.lpstrInitialDir = empty;
    m_ofn.lpstrTitle = empty;
    m_ofn.lpstrDefExt = empty;
    m_ofn.lpTemplateName = empty;
}

void KxQtFileDialog::readOpenFileName()
{
    m_args.caption = toQString(m_ofn.lpstrTitle);
    m_args.directory = folderOf(toQString(m_ofn.lpstrInitialDir).replace(u'\\', u'/'));
    m_attri.fileToSelect = toQString(m_ofn.lpstrFile);
    m_attri.nameFilterText = toQString(m_ofn.lpstrFilter);
    m_attri.nameFilters = m_attri.nameFilterText.split(QStringLiteral(";;"));
    if (m_attri.acceptMode == QFileDialog::AcceptOpen)
        std::transform(m_attri.nameFilters.cbegin(), m_attri.nameFilters.cend(), m_attri.nameFilters.begin(),
                       patternOf);

    const DWORD number = m_ofn.nFilterIndex;
    const bool exists = number >= 1 && number <= DWORD(m_attri.nameFilters.size());
    m_attri.selectedNameFilter = m_attri.nameFilters.value(exists ? int(number) - 1 : 0);
}

void KxQtFileDialog::makeDialog()
{
    delete m_pDialog;
    QWidget *parent = isNullObject(m_args.parent) ? nullptr : handleWidget(m_args.parent);
    m_pDialog = new QFileDialog(parent, m_args.caption, m_args.directory, m_args.filter);
    m_pDialog->setAcceptMode(m_attri.acceptMode);
    m_pDialog->selectFile(m_attri.fileToSelect);
    m_pDialog->setFileMode(m_attri.fileMode);
    m_pDialog->setNameFilters(m_attri.nameFilters);
    m_pDialog->selectNameFilter(m_attri.selectedNameFilter);
    m_pDialog->setLabelText(QFileDialog::FileType, QObject::tr("File Format:"));
    m_pDialog->setLabelText(QFileDialog::Reject, QObject::tr("Cancel "));
    m_pDialog->setFixedSize(600, 400);
    // exec() makes only a hidden dialog modal.
    m_pDialog->setModal(true);
    m_pDialog->setVisible(true);
    m_pDialog->setDirectory(m_args.directory);
}

void KxQtFileDialog::PraseFileInfo()
{
    if (m_selectedFiles.isEmpty())
        return;
    const QString path = withExtension(m_selectedFiles.first());
    const QFileInfo info(path);
    m_pathName = toCString(path);
    m_fileName = toCString(info.fileName());
    m_fileExt = toCString(info.suffix());
    m_ofn.nFilterIndex = DWORD(m_attri.nameFilters.indexOf(m_selectedNameFilter) + 1);
}

QString KxQtFileDialog::withExtension(const QString &path) const
{
    const QString extension = u'.' + m_selectedNameFilter.section(u'.', -1);
    const bool isAppended = extension == QLatin1String(".svf") || extension == QLatin1String(".scr");
    return isAppended && !path.endsWith(extension) ? path + extension : path;
}
