#include "resource.h"

#include <afxwin.h>

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

#include <cstdio>

class CStationDlg : public CDialog
{
public:
    CStationDlg()
        : CDialog(IDD_STATION)
    {
    }

    // Ported code asks this of what a look-up gave it.
    bool IsThere() const { return this != nullptr; }

    CString m_strName = _T("No resources");
    int m_nPort = 8080;

protected:
    void DoDataExchange(CDataExchange *pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_NAME, m_strName);
        DDX_Text(pDX, IDC_PORT, m_nPort);
    }
};

static HWND handleOf(QWidget &widget)
{
    return reinterpret_cast<HWND>(&widget);
}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QBaseDialog form;
    QLineEdit name(&form);
    QLineEdit port(&form);

    CStationDlg dlg;
    dlg.Attach(handleOf(form));
    dlg.SetDlgItem(IDC_NAME, handleOf(name));
    dlg.SetDlgItem(IDC_PORT, handleOf(port));
    CString strName;
    if (strName.LoadString(IDS_NAME))
        dlg.m_strName = strName;

    QTimer::singleShot(0, &form, [&] {
        name.insert(QStringLiteral(" North"));
        port.insert(QStringLiteral("1"));
        dlg.OnOK();
    });
    const INT_PTR nResult = dlg.DoModal();

    CStationDlg *volatile pNone = nullptr;
    std::printf("%ls, port %d, result %d, null is %s\n", dlg.m_strName.c_str(), dlg.m_nPort, int(nResult),
                pNone->IsThere() ? "there" : "not there");
}
