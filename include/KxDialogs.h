/// @file KxDialogs.h
/// @brief Dialogs, the Qt dialog that hosts them, and dialog data exchange.
///
/// A ported dialog class derives from CDialog. The application builds its widget, best a QBaseDialog, binds
/// it with CWnd::Attach(), registers each control with CWnd::SetDlgItem() and calls CDialog::DoModal(). The
/// members and the controls are kept in step by the DDX_ functions, which the class calls from
/// CWnd::DoDataExchange(). The file dialogs are in KxFileDialogs.h, which this header includes; message boxes
/// are in KxApplication.h.
#pragma once

#include "KxFileDialogs.h"
#include "KxWindows.h"

#include <QDialog>

struct CDialogPrivate;

/// A dialog, bound to a Qt dialog that the application builds itself.
///
/// The application makes its QBaseDialog (or other QDialog), binds it with Attach(), registers the controls
/// with SetDlgItem() and calls DoModal(), any number of times. No dialog template is loaded; the template
/// arguments are ignored.
class KX_MFC_EXPORT CDialog : public CWnd
{
public:
    /// The code given to EndDialog() in the current or last run; -100 when none was.
    int m_nModalResult = -100;

    /// Makes an unbound dialog without a logical parent.
    CDialog();
    /// Makes an unbound dialog.
    /// @param nIDTemplate ignored.
    /// @param pParent the logical parent; not owned.
    explicit CDialog(UINT nIDTemplate, CWnd *pParent = nullptr);
    /// Makes an unbound dialog.
    /// @param lpszTemplateName ignored.
    /// @param pParent the logical parent; not owned.
    explicit CDialog(const wchar_t *lpszTemplateName, CWnd *pParent = nullptr);

    using CWnd::Create;
    /// Prepares a modeless dialog: records the logical parent and calls OnInitDialog(). The application shows
    /// the window, unlike MFC.
    /// @param lpszTemplateName ignored.
    /// @param pParentWnd the logical parent; not owned, may be null.
    /// @return TRUE; unbound: FALSE.
    virtual BOOL Create(const wchar_t *lpszTemplateName, CWnd *pParentWnd = nullptr);
    /// The same for a template identifier.
    virtual BOOL Create(UINT nIDTemplate, CWnd *pParentWnd = nullptr);

    /// Runs the dialog: calls OnInitDialog(), then the widget's exec().
    /// @return the code given to EndDialog(); if none was, or if it was -100, IDOK when the widget was
    /// accepted and IDCANCEL otherwise. 0, with nothing shown, when unbound or not bound to a QDialog.
    virtual INT_PTR DoModal();
    /// Fills the controls: UpdateData(FALSE). @return TRUE.
    virtual BOOL OnInitDialog();
    /// Reads the controls back with UpdateData(TRUE) and, when that gives TRUE, ends the dialog with IDOK.
    virtual void OnOK();
    /// Rejects the QDialog, so that DoModal() gives IDCANCEL; nothing when bound to none.
    virtual void OnCancel();
    /// Fixed result: TRUE. Nothing calls it.
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT *pResult);

    /// Accepts the QDialog and lets DoModal() give @p nResult; nothing when bound to none.
    void EndDialog(int nResult);

    /// @name Fixed results
    /// No counterpart on this platform: these do nothing.
    /// @{
    void OnHScroll(UINT nSBCode, UINT nPos, CWnd *pScrollBar); ///< Nothing; CWnd stands for the scroll bar.
    void GotoDlgCtrl(CWnd *pWndCtrl);                          ///< Nothing.
    BOOL OnHelpInfo(HELPINFO *pHelpInfo);                      ///< FALSE.
    /// @}

protected:
    /// For subclasses with private data of their own.
    /// @param d private data made with `new`; this object takes it over and deletes it.
    /// @param pParent the logical parent; not owned.
    CDialog(CDialogPrivate &d, CWnd *pParent);
};

/// A CDialog whose editor commands have no effect.
class KX_MFC_EXPORT CKdUiDialog : public CDialog
{
public:
    /// Makes an unbound dialog.
    /// @param nIDTemplate ignored.
    /// @param pParent the logical parent; not owned.
    explicit CKdUiDialog(UINT nIDTemplate, CWnd *pParent = nullptr);

    void BeginEditorCommand();                   ///< Fixed result: nothing.
    void CompleteEditorCommand();                ///< Fixed result: nothing.
    void SetDialogName(const wchar_t *lpszName); ///< Fixed result: nothing.
};

/// A CKdUiDialog that ignores size messages. Resize the Qt dialog.
class KX_MFC_EXPORT CKcUiDialog : public CKdUiDialog
{
public:
    /// Makes an unbound dialog.
    /// @param nIDTemplate ignored.
    /// @param pParent the logical parent; not owned.
    explicit CKcUiDialog(UINT nIDTemplate, CWnd *pParent = nullptr);

    void OnSize(UINT nType, int cx, int cy); ///< Fixed result: nothing.
    void OnSizing(UINT nSide, RECT *lpRect); ///< Fixed result: nothing.
};

/// A dialog shown as a page of a tabbed host dialog, its logical parent.
class KX_MFC_EXPORT CKcUiTabChildDialog : public CKcUiDialog
{
public:
    /// Makes an unbound page.
    /// @param nIDTemplate ignored.
    /// @param pParent the tabbed host; not owned.
    explicit CKcUiTabChildDialog(UINT nIDTemplate, CWnd *pParent = nullptr);

    /// Enables the host's control 1501 (its Apply button) when the page has changes to apply, and disables it
    /// otherwise, moving the focus from it to this page first.
    /// @param bDirty whether the page has changes to apply.
    /// @return the result of CWnd::EnableWindow() on that control; 0 without a host.
    BOOL SetDirty(bool bDirty);
};

/// The Qt dialog that hosts a CDialog: centred on the screen whenever it is shown, a tool window of the main
/// window.
class KX_MFC_EXPORT QBaseDialog : public QDialog
{
    Q_OBJECT

public:
    /// Makes a hidden tool window.
    /// @param parent the Qt parent; null takes the main window (kdqt_velmoMainWnd()) when there is one.
    explicit QBaseDialog(QWidget *parent = nullptr);

    /// Runs the dialog and calls execCallBack() at its end.
    /// @return the result of QDialog::exec().
    int exec() override;

    virtual void OnOK();     ///< Calls accept().
    virtual void OnCancel(); ///< Calls reject(); the Escape key comes here.
    /// Calls accept() and lets execCallBack() know @p nID.
    virtual void endById(int nID);
    /// Told how a run ended; does nothing.
    /// @param nID what endById() was given; -1 when the run ended otherwise.
    virtual void execCallBack(int nID);

protected:
    /// The Escape key calls OnCancel(); every other key is QDialog's.
    void keyPressEvent(QKeyEvent *event) override;
    /// Moves the centre of the dialog to that of the default screen's available area.
    void showEvent(QShowEvent *event) override;

private:
    int m_nEndID = -1;
};

/// One run of data exchange, which CWnd::UpdateData() hands to CWnd::DoDataExchange().
///
/// Each DDX_ function takes the run and the identifier under which the control is registered. It is skipped,
/// in both directions, when the run, its window or that window's handle is null, when the identifier is not
/// registered, when the control is not bound, and when its widget is of another kind. Nothing ever reports a
/// failure or shows a message, unlike MFC; applications that validate call Fail().
class KX_MFC_EXPORT CDataExchange
{
public:
    bool m_bSaveAndValidate;        ///< true: controls to members. false: members to controls.
    bool m_bEditLastControl = true; ///< Read by nothing.
    bool m_bFail = false;           ///< Set by Fail().
    CWnd *m_pDlgWnd;                ///< The window whose controls are exchanged; not owned.

    /// Describes a run; nothing is exchanged yet.
    /// @param pDlgWnd the window whose controls are exchanged; not owned, may be null.
    /// @param bSaveAndValidate true: controls to members. false: members to controls.
    CDataExchange(CWnd *pDlgWnd, bool bSaveAndValidate);

    /// Makes CWnd::UpdateData() give FALSE. Returns normally: no exception, no message, no change of focus.
    void Fail();
    /// @return the handle of control @p nIDC; null when the window is null or the identifier unknown. Nothing
    /// is recorded, unlike MFC.
    HWND PrepareEditCtrl(int nIDC);
};

/// @name Text exchange
/// Numbers are read from the control's text with _wtoi (integers up to 32 bits), _wtol (long) or _wtof, so
/// that leading digits count and other text gives 0, and truncated to the member's type; an empty text leaves
/// the member. They are written with CString::Format: "%d", "%ld" or "%f". Unsigned values above the signed
/// maximum therefore show as negative numbers.
/// @{

/// _wtoi, the low 8 bits; "%d".
KX_MFC_EXPORT void DDX_Text(CDataExchange *pDX, int nIDC, unsigned char &value);
/// _wtoi, the low 16 bits; "%d".
KX_MFC_EXPORT void DDX_Text(CDataExchange *pDX, int nIDC, short &value);
/// _wtoi; "%d".
KX_MFC_EXPORT void DDX_Text(CDataExchange *pDX, int nIDC, int &value);
/// _wtoi; "%d" of the same bits, thus signed.
KX_MFC_EXPORT void DDX_Text(CDataExchange *pDX, int nIDC, unsigned int &value);
/// _wtol; "%ld".
KX_MFC_EXPORT void DDX_Text(CDataExchange *pDX, int nIDC, long &value);
/// _wtol; "%ld" of the same bits, thus signed.
KX_MFC_EXPORT void DDX_Text(CDataExchange *pDX, int nIDC, unsigned long &value);
/// _wtof; "%f", six decimals.
KX_MFC_EXPORT void DDX_Text(CDataExchange *pDX, int nIDC, float &value);
/// _wtof; "%lf", six decimals.
KX_MFC_EXPORT void DDX_Text(CDataExchange *pDX, int nIDC, double &value);
/// Exchanges the text itself, an empty one included.
KX_MFC_EXPORT void DDX_Text(CDataExchange *pDX, int nIDC, CString &value);
/// Exchanges the text of a buffer.
/// @param pDX the run.
/// @param nIDC the control's identifier.
/// @param value the buffer, owned by the caller.
/// @param nMaxLen size of @p value in characters; at most nMaxLen - 1 and a terminator are read into it.
KX_MFC_EXPORT void DDX_Text(CDataExchange *pDX, int nIDC, wchar_t *value, int nMaxLen);
/// @}

/// @name Exchange with other controls
/// Each function is skipped unless the control is a widget of the class that it names; see CDataExchange.
/// @{

/// Exchanges whether a checkable QAbstractButton is checked. There is no third state.
KX_MFC_EXPORT void DDX_Check(CDataExchange *pDX, int nIDC, bool &value);
/// The same with 1 and 0; every value but 0 checks.
KX_MFC_EXPORT void DDX_Check(CDataExchange *pDX, int nIDC, int &value);
/// Exchanges the checked button of a radio group.
///
/// The group is the first QButtonGroup that is a direct child of the QRadioButton's parent widget, and the
/// value is the group's button ID, not a position as in MFC.
/// @param pDX the run.
/// @param nIDC the identifier of one of the group's buttons.
/// @param value saved: -1 when no button is checked. Loaded: a value that is no button's ID changes nothing.
KX_MFC_EXPORT void DDX_Radio(CDataExchange *pDX, int nIDC, int &value);
/// Exchanges a QComboBox's current text.
KX_MFC_EXPORT void DDX_CBString(CDataExchange *pDX, int nIDC, CString &value);
/// Exchanges a QComboBox's current index, -1 when there is none. Loading an index that does not exist sets
/// @p index to 0 and selects the first item.
KX_MFC_EXPORT void DDX_CBIndex(CDataExchange *pDX, int nIDC, int &index);
/// Exchanges a QListWidget's current row by the rules of DDX_CBIndex().
KX_MFC_EXPORT void DDX_LBIndex(CDataExchange *pDX, int nIDC, int &index);
/// Fixed result: exchanges nothing.
KX_MFC_EXPORT void DDX_LBString(CDataExchange *pDX, int nIDC, CString &value);
/// Exchanges a QSlider's value. Loading emits no signal and ignores a value out of the slider's range.
KX_MFC_EXPORT void DDX_Slider(CDataExchange *pDX, int nIDC, int &value);
/// Binds @p rControl to control @p nIDC, in both directions, with CWnd::SubclassDlgItem(); nothing when it
/// has a handle.
KX_MFC_EXPORT void DDX_Control(CDataExchange *pDX, int nIDC, CWnd &rControl);
/// @}

/// @name Validation
/// Fixed results: these check nothing, and an exchange never fails by itself, unlike MFC.
/// @{
KX_MFC_EXPORT void DDV_MinMaxInt(CDataExchange *pDX, int value, int minVal, int maxVal); ///< Nothing.
KX_MFC_EXPORT void DDV_MinMaxDouble(CDataExchange *pDX, double value, double minVal,
                                    double maxVal);                                    ///< Nothing.
KX_MFC_EXPORT void DDV_MaxChars(CDataExchange *pDX, const CString &value, int nChars); ///< Nothing.
/// @}
