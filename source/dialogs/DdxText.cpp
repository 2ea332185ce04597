#include "ExchangeControl.h"
#include "KxPlatform.h"

template <typename Number, typename Parser, typename Argument>
static void exchangeNumber(CDataExchange *exchange, int nIDC, Number &value, Parser parse,
                           const wchar_t *format, Argument argument)
{
    CWnd *control = exchangeControl(exchange, nIDC);
    if (!control)
        return;
    CString text;
    if (!exchange->m_bSaveAndValidate) {
        text.Format(format, argument);
        control->SetWindowTextW(text);
        return;
    }
    control->GetWindowTextW(text);
    // An empty field leaves the member as it was.
    if (!text.IsEmpty())
        value = static_cast<Number>(parse(text));
}

void DDX_Text(CDataExchange *pDX, int nIDC, unsigned char &value)
{
    exchangeNumber(pDX, nIDC, value, _wtoi, L"%d", value);
}

void DDX_Text(CDataExchange *pDX, int nIDC, short &value)
{
    exchangeNumber(pDX, nIDC, value, _wtoi, L"%d", value);
}

void DDX_Text(CDataExchange *pDX, int nIDC, int &value)
{
    exchangeNumber(pDX, nIDC, value, _wtoi, L"%d", value);
}

void DDX_Text(CDataExchange *pDX, int nIDC, unsigned int &value)
{
    // Signed on purpose, here and for unsigned long: the text reads back to the same member value.
    exchangeNumber(pDX, nIDC, value, _wtoi, L"%d", static_cast<int>(value));
}

void DDX_Text(CDataExchange *pDX, int nIDC, long &value)
{
    exchangeNumber(pDX, nIDC, value, _wtol, L"%ld", value);
}

void DDX_Text(CDataExchange *pDX, int nIDC, unsigned long &value)
{
    exchangeNumber(pDX, nIDC, value, _wtol, L"%ld", static_cast<long>(value));
}

void DDX_Text(CDataExchange *pDX, int nIDC, float &value)
{
    exchangeNumber(pDX, nIDC, value, _wtof, L"%f", static_cast<double>(value));
}

void DDX_Text(CDataExchange *pDX, int nIDC, double &value)
{
    exchangeNumber(pDX, nIDC, value, _wtof, L"%lf", value);
}

void DDX_Text(CDataExchange *pDX, int nIDC, CString &value)
{
    CWnd *control = exchangeControl(pDX, nIDC);
    if (!control)
        return;
    if (pDX->m_bSaveAndValidate)
        control->GetWindowTextW(value);
    else
        control->SetWindowTextW(value);
}

void DDX_Text(CDataExchange *pDX, int nIDC, wchar_t *value, int nMaxLen)
{
    CWnd *control = exchangeControl(pDX, nIDC);
    if (!control)
        return;
    if (pDX->m_bSaveAndValidate)
        control->GetWindowTextW(value, nMaxLen);
    else
        control->SetWindowTextW(value);
}
