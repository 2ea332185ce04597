#include "stdafx.h"

#include <QtTest>
#include <QtWidgets>

#include <cstdio>
#include <unistd.h>

namespace {
enum { IDD_NOTE = 100, IDC_TITLE, IDC_DONE, IDC_COLOUR };

// As its Windows source has it.
class CNoteDlg : public CDialog
{
    DECLARE_DYNAMIC(CNoteDlg)

public:
    explicit CNoteDlg(CWnd *pParent = NULL)
        : CDialog(IDD_NOTE, pParent)
    {
    }
    enum { IDD = IDD_NOTE };

    CString m_strTitle;
    CComboBox m_wndColour;

    afx_msg void OnDone();

protected:
    virtual void DoDataExchange(CDataExchange *pDX) override;
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(CNoteDlg, CDialog)

BEGIN_MESSAGE_MAP(CNoteDlg, CDialog)
ON_BN_CLICKED(IDC_DONE, &CNoteDlg::OnDone)
ON_COMMAND_RANGE(1, 2, OnDone)
ON_WM_PAINT()
END_MESSAGE_MAP()

void CNoteDlg::DoDataExchange(CDataExchange *pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_TITLE, m_strTitle);
    DDX_Control(pDX, IDC_COLOUR, m_wndColour);
}

void CNoteDlg::OnDone()
{
    TCHAR szTitle[MAX_PATH] = {0};
    GetDlgItem(IDC_TITLE)->GetWindowText(szTitle, _countof(szTitle));
    m_strTitle = szTitle;
    SetWindowText(m_strTitle + _T('!'));
    ::SendMessage(m_wndColour, CB_ADDSTRING, 0, (LPARAM) _T("red"));
    VERIFY(m_wndColour.GetCount() == 1);
}

HWND handleOf(QWidget *widget)
{
    return reinterpret_cast<HWND>(widget);
}
} // namespace

class tst_PortedHeaders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dialog();
    void partsOfValues();
    void colours();
    void resourceNames();
    void mouseCoordinates();
    void controlMacros();
    void texts();
    void verifyEvaluates();
    void trace();
};

void tst_PortedHeaders::dialog()
{
    QDialog widget;
    QLineEdit title(QStringLiteral("note"), &widget);
    QComboBox colour(&widget);
    CNoteDlg dlg;
    dlg.Attach(handleOf(&widget));
    dlg.SetDlgItem(IDC_TITLE, handleOf(&title));
    dlg.SetDlgItem(IDC_COLOUR, handleOf(&colour));
    dlg.UpdateData(FALSE);
    title.setText(QStringLiteral("milk"));
    dlg.OnDone();
    QVERIFY(dlg.m_strTitle == _T("milk"));
    QCOMPARE(widget.windowTitle(), QStringLiteral("milk!"));
    QCOMPARE(colour.itemText(0), QStringLiteral("red"));
    CString strText;
    dlg.GetDlgItemText(IDC_TITLE, strText);
    QCOMPARE(QString::fromStdWString(strText), QStringLiteral("milk"));
}

void tst_PortedHeaders::partsOfValues()
{
    QCOMPARE(LOWORD(0x12345678), WORD(0x5678));
    QCOMPARE(HIWORD(0x12345678), WORD(0x1234));
    QCOMPARE(HIWORD(DWORD_PTR(0x9900000000)), WORD(0));
    QCOMPARE(LOBYTE(0x1234), BYTE(0x34));
    QCOMPARE(HIBYTE(0x1234), BYTE(0x12));
    QCOMPARE(MAKEWORD(0x134, 0x212), WORD(0x1234));
    QCOMPARE(MAKELONG(0x15678, 0x21234), LONG(0x12345678));
    QCOMPARE(MAKELONG(0, 0x8000), LONG(INT_MIN));
    QCOMPARE(MAKEWPARAM(1, 0x8000), WPARAM(0x80000001));
    QCOMPARE(MAKELPARAM(1, 0x8000), LPARAM(0x80000001));
    QCOMPARE(MAKELRESULT(1, 0x8000), LRESULT(0x80000001));
}

void tst_PortedHeaders::colours()
{
    const COLORREF color = RGB(1, 2, 3);
    QCOMPARE(color, COLORREF(0x030201));
    QCOMPARE(GetRValue(color), BYTE(1));
    QCOMPARE(GetGValue(color), BYTE(2));
    QCOMPARE(GetBValue(color), BYTE(3));
}

void tst_PortedHeaders::resourceNames()
{
    QCOMPARE(reinterpret_cast<UINT_PTR>(MAKEINTRESOURCE(101)), UINT_PTR(101));
    QVERIFY(IS_INTRESOURCE(MAKEINTRESOURCE(0xFFFF)));
    QVERIFY(!IS_INTRESOURCE(_T("name")));
}

void tst_PortedHeaders::mouseCoordinates()
{
    const LPARAM packed = MAKELPARAM(-3, 5);
    QCOMPARE(GET_X_LPARAM(packed), -3);
    QCOMPARE(GET_Y_LPARAM(packed), 5);
}

void tst_PortedHeaders::controlMacros()
{
    QComboBox colour;
    QCheckBox box;
    QCOMPARE(ComboBox_AddString(handleOf(&colour), _T("red")), 0);
    QCOMPARE(ComboBox_GetCount(handleOf(&colour)), 1);
    ComboBox_SetCurSel(handleOf(&colour), 0);
    QCOMPARE(ComboBox_GetCurSel(handleOf(&colour)), 0);
    ComboBox_ResetContent(handleOf(&colour));
    QCOMPARE(colour.count(), 0);
    Button_SetCheck(handleOf(&box), BST_CHECKED);
    QVERIFY(box.isChecked());
    QCOMPARE(Button_GetCheck(handleOf(&box)), int(BST_CHECKED));
}

void tst_PortedHeaders::texts()
{
    LPCTSTR text = TEXT("Apple");
    QCOMPARE(_tcslen(text), std::size_t(5));
    QCOMPARE(_tcsicmp(text, _T("aPPLE")), 0);
    QCOMPARE(_ttoi(_T("12")), 12);
    QCOMPARE(_totupper(_T('a')), wint_t(L'A'));
}

void tst_PortedHeaders::verifyEvaluates()
{
    int calls = 0;
    VERIFY(++calls == 1);
    QCOMPARE(calls, 1);
    ASSERT(calls == 1);
    ASSERT_VALID(this);
}

// Writes to the standard error stream unless NDEBUG is defined.
void tst_PortedHeaders::trace()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    std::fflush(stderr);
    const int former = dup(STDERR_FILENO);
    dup2(file.handle(), STDERR_FILENO);
    TRACE(_T("%d and %ls\n"), 1, L"two");
    TRACE("%d\n", 3);
    TRACE0("four\n");
    AfxTrace(L"%ls\n", L"always");
    AfxTrace(static_cast<const wchar_t *>(nullptr));
    AfxTrace(static_cast<const char *>(nullptr));
    std::fflush(stderr);
    dup2(former, STDERR_FILENO);
    close(former);
    file.seek(0);
#ifdef NDEBUG
    QCOMPARE(file.readAll(), QByteArray("always\n"));
#else
    QCOMPARE(file.readAll(), QByteArray("1 and two\n3\nfour\nalways\n"));
#endif
}

QTEST_MAIN(tst_PortedHeaders)
#include "tst_PortedHeaders.moc"
