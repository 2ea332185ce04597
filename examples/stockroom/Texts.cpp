#include "Texts.h"

CString LoadText(UINT nID)
{
    CString strText;
    strText.LoadString(nID);
    return strText;
}

CString FormatText(UINT nIDFormat, int nNumber)
{
    CString strText;
    strText.Format(LoadText(nIDFormat), nNumber);
    return strText;
}
