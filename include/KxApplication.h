/// @file KxApplication.h
/// @brief The application object, its settings, message boxes, and the document placeholders.
///
/// There is no initialisation call: the constructor of the application's CWinApp subclass stores the object
/// in #g_pWinApp, and the application makes its QApplication and shows its windows itself.
#pragma once

#include "KxString.h"
#include "KxWinTypes.h"

class CDocTemplate;
class CDocument;
class CFile;
class CWinApp;
class CWnd;

/// The application object. The library never writes it: the application's CWinApp subclass stores itself
/// here.
extern KX_MFC_EXPORT CWinApp *g_pWinApp;

/// @return #g_pWinApp.
KX_MFC_EXPORT CWinApp *AfxGetApp();
/// @return the application's main window; null without an application object or main window.
KX_MFC_EXPORT CWnd *AfxGetMainWnd();
/// @return the handle of the main window, which becomes the parent of dialogs made without one; null when
/// there is no main window.
KX_MFC_EXPORT HWND kdqt_velmoMainWnd();

/// The application object.
///
/// Integers of the profile are kept in per-user QSettings in Qt's native format, organisation "Orvane",
/// application "Velmo": a section is a group and an entry a key in it. The store is opened and closed within
/// each call, so that a value is written when the call returns.
class KX_MFC_EXPORT CWinApp
{
public:
    /// The main window; not owned.
    CWnd *m_pMainWnd = nullptr;

    /// An application object without a main window. It stores itself nowhere: see #g_pWinApp.
    CWinApp();
    CWinApp(const CWinApp &) = delete;
    CWinApp &operator=(const CWinApp &) = delete;

    virtual HCURSOR LoadCursorW(UINT nIDResource);                     ///< Fixed result: null.
    virtual HICON LoadIconW(UINT nIDResource);                         ///< Fixed result: null.
    virtual HCURSOR LoadStandardCursor(const wchar_t *lpszCursorName); ///< Fixed result: null.
    virtual HCURSOR LoadStandardCursor(UINT nIDCursor);                ///< Fixed result: null.
    /// @return #m_pMainWnd.
    virtual CWnd *GetMainWnd();
    /// Sets #m_pMainWnd, which is not owned; null for none.
    virtual void SetMainWnd(CWnd *pWnd);
    virtual CDocument *OpenDocumentFile(const wchar_t *lpszFileName); ///< Fixed result: null.
    /// Reads an integer.
    /// @return the value of @p lpszEntry in @p lpszSection, 0 when it is no number; @p nDefault when there is
    /// none or a name is null or the entry is empty.
    virtual int GetProfileIntW(const wchar_t *lpszSection, const wchar_t *lpszEntry, int nDefault);
    /// Stores @p nValue as @p lpszEntry in @p lpszSection.
    /// @return TRUE, also when the settings cannot be written; FALSE when a name is null or the entry is
    /// empty.
    virtual BOOL WriteProfileInt(const wchar_t *lpszSection, const wchar_t *lpszEntry, int nValue);
    /// Fixed result: an empty text, whatever is stored and whatever the default; texts go through CRegKey.
    virtual CString GetProfileStringW(const wchar_t *lpszSection, const wchar_t *lpszEntry,
                                      const wchar_t *lpszDefault = nullptr);
    /// Fixed result: FALSE, nothing is written.
    virtual BOOL WriteProfileStringW(const wchar_t *lpszSection, const wchar_t *lpszEntry,
                                     const wchar_t *lpszValue);
    /// Fixed result: FALSE, the outputs are untouched.
    virtual BOOL GetProfileBinary(const wchar_t *lpszSection, const wchar_t *lpszEntry, BYTE **ppData,
                                  UINT *pBytes);
    /// Fixed result: FALSE, nothing is written.
    virtual BOOL WriteProfileBinary(const wchar_t *lpszSection, const wchar_t *lpszEntry, BYTE *pData,
                                    UINT nBytes);
    virtual CDocTemplate *GetNextDocTemplate(POSITION &pos); ///< Fixed result: null.
    POSITION GetFirstDocTemplatePosition() const;            ///< Fixed result: null.
};

/// Asks the user in a modal message box.
///
/// Buttons: MB_YESNOCANCEL; else OK and Cancel when bit MB_OKCANCEL is set (so MB_RETRYCANCEL as well); else
/// Yes and No when bit MB_YESNO is set (so MB_CANCELTRYCONTINUE as well) or when the icon is the question;
/// else OK. The box stays on top, has no parent, and lets Qt decide whether the text is rich text.
/// @param lpText the text; null counts as empty.
/// @param lpCaption the title; null gives "Velmo.".
/// @param uType MB_ flags: buttons and icon.
/// @return IDOK, IDCANCEL, IDYES or IDNO; 0 when the box was closed otherwise.
KX_MFC_EXPORT int MessageBoxW(const wchar_t *lpText, const wchar_t *lpCaption, UINT uType);
/// The same for ported code that names an owner; @p hWnd is ignored.
/// @return as the other MessageBoxW().
KX_MFC_EXPORT int MessageBoxW(HWND hWnd, const wchar_t *lpText, const wchar_t *lpCaption, UINT uType);
/// MessageBoxW() titled "Velmo.".
/// @param lpszText the text; null counts as empty.
/// @param nType MB_ flags: buttons and icon.
/// @param nIDHelp ignored: there is no help button.
/// @return as MessageBoxW().
KX_MFC_EXPORT int AfxMessageBox(const wchar_t *lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
/// Shows a string resource, an empty text when there is none.
///
/// The box always has a single OK button and no icon: @p nType is dropped, unlike MFC, and so is @p nIDHelp.
/// @param nIDPrompt the string's identifier in the module set with AfxSetResourceHandle().
/// @param nType ignored.
/// @param nIDHelp ignored.
/// @return IDOK; 0 when the box was closed otherwise.
KX_MFC_EXPORT int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = 0xFFFFFFFF);

/// Placeholder for ported document classes.
class KX_MFC_EXPORT CDocument
{
public:
    /// Does nothing.
    CDocument();
    CDocument(const CDocument &) = delete;
    CDocument &operator=(const CDocument &) = delete;
    virtual ~CDocument();
};

/// Placeholder for ported serialisation code: keeps nothing, reads and writes nothing.
class KX_MFC_EXPORT CArchive
{
public:
    /// The arguments are ignored.
    CArchive(CFile *pFile, UINT nMode, int nBufSize = 4096, void *lpBuf = nullptr);
    CArchive(const CArchive &) = delete;
    CArchive &operator=(const CArchive &) = delete;
    ~CArchive();
    void Close(); ///< Does nothing.
};
