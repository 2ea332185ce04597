/// @file KxFileDialogs.h
/// @brief The file dialogs, both on QFileDialog and neither a CDialog.
///
/// CFileDialog asks for one file and is set up by its constructor. KxQtFileDialog asks for several files to
/// open, or for a name to save under, and is set up through an OPENFILENAMEW. Both take their Qt parent from
/// a CWnd; the flags, hooks and templates of Win32 have no counterpart.
#pragma once

#include "KxString.h"
#include "KxWinTypes.h"

#include <QFileDialog>
#include <QPointer>
#include <QStringList>

class CWnd;

/// @name Flags of OPENFILENAMEW and of the dialogs' constructors
/// All are ignored: the dialogs behave as QFileDialog does by itself.
/// @{
constexpr DWORD OFN_READONLY = 0x00000001;
constexpr DWORD OFN_OVERWRITEPROMPT = 0x00000002;
constexpr DWORD OFN_HIDEREADONLY = 0x00000004;
constexpr DWORD OFN_NOCHANGEDIR = 0x00000008;
constexpr DWORD OFN_SHOWHELP = 0x00000010;
constexpr DWORD OFN_ENABLEHOOK = 0x00000020;
constexpr DWORD OFN_ENABLETEMPLATE = 0x00000040;
constexpr DWORD OFN_ENABLETEMPLATEHANDLE = 0x00000080;
constexpr DWORD OFN_NOVALIDATE = 0x00000100;
constexpr DWORD OFN_ALLOWMULTISELECT = 0x00000200;
constexpr DWORD OFN_EXTENSIONDIFFERENT = 0x00000400;
constexpr DWORD OFN_PATHMUSTEXIST = 0x00000800;
constexpr DWORD OFN_FILEMUSTEXIST = 0x00001000;
constexpr DWORD OFN_CREATEPROMPT = 0x00002000;
constexpr DWORD OFN_SHAREAWARE = 0x00004000;
constexpr DWORD OFN_NOREADONLYRETURN = 0x00008000;
constexpr DWORD OFN_NOTESTFILECREATE = 0x00010000;
constexpr DWORD OFN_NONETWORKBUTTON = 0x00020000;
constexpr DWORD OFN_NOLONGNAMES = 0x00040000;
constexpr DWORD OFN_EXPLORER = 0x00080000;
constexpr DWORD OFN_NODEREFERENCELINKS = 0x00100000;
constexpr DWORD OFN_LONGNAMES = 0x00200000;
constexpr DWORD OFN_ENABLEINCLUDENOTIFY = 0x00400000;
constexpr DWORD OFN_ENABLESIZING = 0x00800000;
constexpr DWORD OFN_DONTADDTORECENT = 0x02000000;
constexpr DWORD OFN_FORCESHOWHIDDEN = 0x10000000;
/// @}

/// Hook procedure of OPENFILENAMEW; never called.
using LPOFNHOOKPROC = UINT_PTR (*)(HWND, UINT, WPARAM, LPARAM);

#pragma pack(push, 4)
/// What KxQtFileDialog is told before a run. The fields described are read by each KxQtFileDialog::DoModal();
/// the texts are the application's, are not written to, and count as empty when null. The others are ignored.
struct OPENFILENAMEW
{
    DWORD lStructSize;   ///< Ignored.
    HWND hwndOwner;      ///< Ignored: the parent is that of the constructor.
    HINSTANCE hInstance; ///< Ignored.
    /// Name filters in Qt's form, `Data (*.dat);;All (*)`, not parted by nulls as in Win32.
    const wchar_t *lpstrFilter;
    wchar_t *lpstrCustomFilter; ///< Ignored.
    DWORD nMaxCustFilter;       ///< Ignored.
    /// The filter to begin with, from 1; 0 and a number past the last stand for the first. After an accepted
    /// run the filter that the user left selected, 0 when it is none of #lpstrFilter.
    DWORD nFilterIndex;
    /// The name to begin with. Unlike in Win32 it does not receive the chosen one.
    wchar_t *lpstrFile;
    DWORD nMaxFile;          ///< Ignored.
    wchar_t *lpstrFileTitle; ///< Ignored.
    DWORD nMaxFileTitle;     ///< Ignored.
    /// The directory to begin with, with `/` or `\`. What follows the last of these is taken for a file name
    /// when it has a dot in it, and dropped. Empty shows the roots of the file system.
    const wchar_t *lpstrInitialDir;
    /// The dialog's caption; empty gives Qt's.
    const wchar_t *lpstrTitle;
    DWORD Flags;                   ///< Ignored.
    WORD nFileOffset;              ///< Ignored.
    WORD nFileExtension;           ///< Ignored.
    const wchar_t *lpstrDefExt;    ///< Ignored.
    LPARAM lCustData;              ///< Ignored.
    LPOFNHOOKPROC lpfnHook;        ///< Ignored.
    const wchar_t *lpTemplateName; ///< Ignored.
    void *pvReserved;              ///< Ignored.
    DWORD dwReserved;              ///< Ignored.
    DWORD FlagsEx;                 ///< Ignored.
};
#pragma pack(pop)

static_assert(offsetof(OPENFILENAMEW, hwndOwner) == 4 && offsetof(OPENFILENAMEW, hInstance) == 12);
static_assert(offsetof(OPENFILENAMEW, lpstrFilter) == 20 && offsetof(OPENFILENAMEW, lpstrCustomFilter) == 28);
static_assert(offsetof(OPENFILENAMEW, nMaxCustFilter) == 36 && offsetof(OPENFILENAMEW, nFilterIndex) == 40);
static_assert(offsetof(OPENFILENAMEW, lpstrFile) == 44 && offsetof(OPENFILENAMEW, nMaxFile) == 52);
static_assert(offsetof(OPENFILENAMEW, lpstrFileTitle) == 56 && offsetof(OPENFILENAMEW, nMaxFileTitle) == 64);
static_assert(offsetof(OPENFILENAMEW, lpstrInitialDir) == 68 && offsetof(OPENFILENAMEW, lpstrTitle) == 76);
static_assert(offsetof(OPENFILENAMEW, Flags) == 84 && offsetof(OPENFILENAMEW, nFileOffset) == 88);
static_assert(offsetof(OPENFILENAMEW, nFileExtension) == 90 && offsetof(OPENFILENAMEW, lpstrDefExt) == 92);
static_assert(offsetof(OPENFILENAMEW, lCustData) == 100 && offsetof(OPENFILENAMEW, lpfnHook) == 108);
static_assert(offsetof(OPENFILENAMEW, lpTemplateName) == 116 && offsetof(OPENFILENAMEW, pvReserved) == 124);
static_assert(offsetof(OPENFILENAMEW, dwReserved) == 132 && offsetof(OPENFILENAMEW, FlagsEx) == 136);
static_assert(sizeof(OPENFILENAMEW) == 140);

/// The Qt dialog behind a CFileDialog.
class KX_MFC_EXPORT CFileDialogImpl : public QFileDialog
{
public:
    /// A dialog without parent, caption, directory and filter.
    CFileDialogImpl();
};

/// A dialog for one file, set up once by its constructor.
class KX_MFC_EXPORT CFileDialog
{
public:
    /// Makes and sets up the Qt dialog, which stays hidden until DoModal().
    /// @param openDialog true: a name to open. false: a name to save under.
    /// @param defExt its last three characters are appended to a name without a dot; a dot before them is
    /// allowed. Null and empty append nothing.
    /// @param fileName the name to begin with; null for none.
    /// @param flags ignored.
    /// @param filter names and patterns in turn, parted and ended by `|`. Only the names are used, and Qt
    /// takes the patterns from the parentheses in them: `Text (*.txt)|*.txt|All (*.*)|*.*||`. Null for none.
    /// @param parent its handle's widget becomes the dialog's Qt parent, and deletes the dialog if it goes
    /// first: DoModal() then gives 0. Null, one that was never bound, and a destroyed widget give no parent.
    /// @param size ignored.
    /// @param vistaStyle ignored.
    explicit CFileDialog(bool openDialog, const wchar_t *defExt = nullptr, const wchar_t *fileName = nullptr,
                         unsigned flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                         const wchar_t *filter = nullptr, CWnd *parent = nullptr, unsigned size = 0,
                         bool vistaStyle = true);
    CFileDialog(const CFileDialog &) = delete;
    CFileDialog &operator=(const CFileDialog &) = delete;
    /// Deletes the Qt dialog.
    virtual ~CFileDialog();

    /// @return the path selected in the Qt dialog, with `/`, accepted or not; while no name is given, that of
    /// the directory shown; empty once the Qt dialog was deleted with its parent.
    CString GetPathName() const;
    /// @return the empty text, unlike in MFC: take the name from GetPathName().
    CString GetFileName() const;

    /// Runs the dialog.
    /// @return 1 (IDOK) when the user accepted it. 0 when not, unlike in MFC not IDCANCEL.
    virtual INT_PTR DoModal();

private:
    QPointer<CFileDialogImpl> m_pImpl;
};

/// What KxQtFileDialog makes its QFileDialog with.
struct KxQFileDialogArgs
{
    CWnd *parent = nullptr; ///< Not owned.
    QString caption;        ///< OPENFILENAMEW::lpstrTitle.
    QString directory;      ///< OPENFILENAMEW::lpstrInitialDir, with `/` and without a file name.
    QString filter;         ///< The filter text of the constructor.
};

/// What KxQtFileDialog sets on its QFileDialog.
struct KxQFileDialgAttri
{
    /// Whether to open or to save.
    QFileDialog::AcceptMode acceptMode = QFileDialog::AcceptOpen;
    QString defaultSuffix;   ///< Not applied.
    QString initialFileName; ///< Not applied.
    QString fileToSelect;    ///< OPENFILENAMEW::lpstrFile.
    /// ExistingFiles to open, AnyFile to save.
    QFileDialog::FileMode fileMode = QFileDialog::AnyFile;
    QFileDialog::Options options; ///< Not applied.
    QString nameFilterText;       ///< OPENFILENAMEW::lpstrFilter.
    QStringList nameFilters;      ///< Its filters, as the dialog shows them.
    QString selectedNameFilter;   ///< The one to begin with.
};

/// A dialog for several files to open or for a name to save under, set up through OPENFILENAMEW.
///
/// It is 600 x 400 pixels large. The texts on it are translated in the context QObject.
class KX_MFC_EXPORT KxQtFileDialog
{
public:
    /// Keeps what each run begins with; the Qt dialog is made by DoModal().
    /// @param openDialog true: existing files to open. false: a name to save under.
    /// @param defExt kept and not applied.
    /// @param fileName kept and not applied: set OPENFILENAMEW::lpstrFile.
    /// @param flags ignored.
    /// @param filter replaced by OPENFILENAMEW::lpstrFilter in each run.
    /// @param parent the widget of its handle at the time of DoModal() becomes the dialog's Qt parent; null
    /// gives none. Not owned; it lives as long as DoModal() may be called.
    /// @param size ignored.
    /// @param vistaStyle ignored.
    explicit KxQtFileDialog(bool openDialog, const wchar_t *defExt = nullptr,
                            const wchar_t *fileName = nullptr,
                            unsigned flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                            const wchar_t *filter = nullptr, CWnd *parent = nullptr, unsigned size = 0,
                            bool vistaStyle = true);
    KxQtFileDialog(const KxQtFileDialog &) = delete;
    KxQtFileDialog &operator=(const KxQtFileDialog &) = delete;
    /// Deletes the Qt dialog.
    ~KxQtFileDialog();

    /// @name The choice
    /// That of the last accepted run; empty and null before one. A path that does not end in the extension of
    /// the selected name filter has it appended if it is `.svf` or `.scr`, and no other. The extension is
    /// what follows the filter's last dot: an open dialog's `*.scr` has `.scr`, a save dialog's
    /// `Script (*.scr)` ends in `)` and has none.
    /// @{
    CString GetPathName() const; ///< @return the first file's path, with `/`.
    CString GetFileName() const; ///< @return its name with the extension.
    CString GetFileExt() const;  ///< @return what follows its last dot.
    /// @return the position of the first file.
    POSITION GetStartPosition() const;
    /// Gives a file's path and steps to the next.
    /// @param pos from GetStartPosition(); null after the last file.
    /// @return the empty text, with @p pos left as it is, when @p pos is of no file.
    CString GetNextPathName(POSITION &pos) const;
    /// @}

    /// @return the record to fill before DoModal(), owned by this object. At first its texts are empty, or
    /// null if the dialog could write them, and everything else is 0.
    OPENFILENAMEW &GetOFN();

    /// Makes a new Qt dialog, replacing that of the last run, and runs it.
    ///
    /// Open dialogs show a filter's pattern without its name: `Data (*.dat)` as `*.dat`.
    /// @return IDOK when the user accepted it, else IDCANCEL, which changes none of the results.
    INT_PTR DoModal();

    /// Lets the user choose a directory.
    /// @param parent Qt parent; null for none.
    /// @param caption the dialog's caption; empty gives Qt's.
    /// @param directory the one to begin with.
    /// @param options ignored: directories only are shown.
    /// @return the directory's path; empty when the user cancelled.
    static QString getExistingDirectory(QWidget *parent, const QString &caption, const QString &directory,
                                        QFileDialog::Options options);

private:
    void initOpenFileName();
    void readOpenFileName();
    void makeDialog();
    void PraseFileInfo();
    QString withExtension(const QString &path) const;

    [[maybe_unused]] QStringList m_reserved;
    QPointer<QFileDialog> m_pDialog;
    KxQFileDialogArgs m_args;
    KxQFileDialgAttri m_attri;
    CString m_pathName;
    CString m_fileName;
    CString m_fileExt;
    INT_PTR m_nSelected = 0;
    QStringList m_selectedFiles;
    QString m_selectedNameFilter;
    OPENFILENAMEW m_ofn = {};
};
