// The commands of the main window.
#include "ItemDlg.h"
#include "MainDlg.h"
#include "StockClipboard.h"
#include "StockFile.h"
#include "Texts.h"

#include <algorithm>

static const int SAMPLE_SIZE = 50000;

void CMainDlg::OnNew()
{
    CItemDlg dlg(m_stock, nullptr, this);
    dlg.m_item.m_strNumber = m_stock.GetFreeNumber(LoadText(IDS_FIRST_NUMBER));
    if (m_rooms.GetRoom() != NO_ROOM)
        dlg.m_item.m_nRoom = m_rooms.GetRoom();
    if (EditItem(dlg, GetWidget()) != IDOK)
        return;
    const CStockItem *pItem = m_stock.AddItem(dlg.m_item);
    Refresh();
    SelectItem(pItem);
    CString strText;
    strText.Format(LoadText(IDS_ADDED), LPCTSTR(pItem->m_strNumber));
    SetDlgItemText(IDC_STATUS, strText);
}

void CMainDlg::OnEdit()
{
    CItemList *pList = GetList();
    const int nRow = pList ? pList->GetSelectedRow() : -1;
    if (nRow < 0)
        return;
    CStockItem *pItem = pList->GetStockItem(nRow);
    CItemDlg dlg(m_stock, pItem, this);
    if (EditItem(dlg, GetWidget()) != IDOK)
        return;
    m_stock.ChangeItem(pItem, dlg.m_item);
    Refresh();
    pList->SelectItem(pItem);
}

void CMainDlg::OnDelete()
{
    CPtrArray items;
    CItemList *pList = GetSelectedItems(items);
    const int nItems = int(items.GetSize());
    if (nItems == 0 || ShowMessage(FormatText(IDS_ASK_DELETE, nItems), MB_YESNO | MB_ICONQUESTION) != IDYES)
        return;
    const int nRow = pList->GetSelectedRow();
    m_stock.RemoveItems(items);
    Refresh();
    pList->SelectRow(nRow);
    SetDlgItemText(IDC_STATUS, FormatText(IDS_DELETED, nItems));
}

void CMainDlg::OnCopy()
{
    CPtrArray items;
    GetSelectedItems(items);
    if (items.IsEmpty())
        return;
    CopyItems(items, m_stock);
    OnSelection();
    SetDlgItemText(IDC_STATUS, FormatText(IDS_COPIED, int(items.GetSize())));
}

void CMainDlg::OnPaste()
{
    if (!CanPasteItems())
        return;
    const int nRoom = m_rooms.GetRoom();
    if (nRoom == NO_ROOM) {
        ShowMessage(LoadText(IDS_PASTE_WHERE), MB_ICONINFORMATION);
        return;
    }
    CPtrArray added;
    if (!PasteItems(m_stock, nRoom, added))
        return;
    Refresh();
    SelectItem(static_cast<CStockItem *>(added[0]));
    SetDlgItemText(IDC_STATUS, FormatText(IDS_PASTED, int(added.GetSize())));
}

// Stops at a file that cannot be read. What came before stays.
void CMainDlg::OnImport()
{
    CStringList pathNames;
    if (!AskImportNames(pathNames))
        return;
    CStockFile file;
    int nImported = 0;
    int nSkipped = 0;
    BeginProgress();
    for (POSITION pos = pathNames.GetHeadPosition(); pos && file.m_strError.IsEmpty();) {
        nImported += std::max(file.Import(m_stock, pathNames.GetNext(pos), &m_progress), 0);
        nSkipped += file.m_nSkipped;
    }
    EndProgress();
    if (nImported > 0 || file.m_strError.IsEmpty()) {
        Refresh();
        SetDlgItemText(IDC_STATUS, FormatText(IDS_IMPORTED, nImported));
    }
    if (nSkipped > 0)
        ShowMessage(FormatText(IDS_SKIPPED, nSkipped), MB_ICONINFORMATION);
    if (!file.m_strError.IsEmpty())
        ShowMessage(file.m_strError, MB_ICONWARNING);
}

void CMainDlg::OnExport()
{
    if (m_stock.GetItemCount() == 0 || !AskExportName())
        return;
    CStockFile file;
    CPtrArray items;
    FindItems(m_nView == VIEW_ROOM ? m_rooms.GetRoom() : NO_ROOM, items);
    BeginProgress();
    const int nItems = file.Export(items, m_stock, m_strFile, &m_progress);
    EndProgress();
    if (nItems < 0)
        ShowMessage(file.m_strError, MB_ICONWARNING);
    else
        SetDlgItemText(IDC_STATUS, FormatText(IDS_EXPORTED, nItems));
}

void CMainDlg::OnSample()
{
    const int nItems = m_stock.GetItemCount();
    if (nItems > 0 && ShowMessage(FormatText(IDS_ASK_SAMPLE, nItems), MB_YESNO | MB_ICONQUESTION) != IDYES)
        return;
    m_model.setItems(CPtrArray());
    BeginProgress();
    m_stock.MakeSample(SAMPLE_SIZE, &m_progress);
    EndProgress();
    Refresh();
    SetDlgItemText(IDC_STATUS, FormatText(IDS_SAMPLE_MADE, m_stock.GetItemCount()));
}

// One file or several.
BOOL CMainDlg::AskImportNames(CStringList &pathNames)
{
    const CString strFilter = LoadText(IDS_IMPORT_FILTER);
    const CString strTitle = LoadText(IDS_IMPORT_TITLE);
    KxQtFileDialog dlg(TRUE, STOCK_FILE_EXTENSION, nullptr, OFN_ALLOWMULTISELECT, nullptr, this);
    OPENFILENAME &ofn = dlg.GetOFN();
    ofn.lpstrTitle = strTitle;
    ofn.lpstrFilter = strFilter;
    ofn.lpstrInitialDir = m_strFile; // its folder is shown
    ofn.lpstrFile = m_strFile.GetBuffer(0);
    if (dlg.DoModal() != IDOK)
        return FALSE;
    m_strFile = dlg.GetPathName();
    for (POSITION pos = dlg.GetStartPosition(); pos;)
        pathNames.AddTail(dlg.GetNextPathName(pos));
    return TRUE;
}

BOOL CMainDlg::AskExportName()
{
    CFileDialog dlg(FALSE, STOCK_FILE_EXTENSION, m_strFile, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                    LoadText(IDS_EXPORT_FILTER), this);
    if (dlg.DoModal() != IDOK)
        return FALSE;
    m_strFile = dlg.GetPathName();
    return TRUE;
}

void CMainDlg::BeginProgress()
{
    m_progress.SetPos(0);
    m_progress.ShowWindow(SW_SHOW);
}

void CMainDlg::EndProgress()
{
    m_progress.ShowWindow(SW_HIDE);
}

int CMainDlg::ShowMessage(const CString &strText, UINT nType)
{
    return MessageBox(strText, LoadText(IDS_APP_TITLE), nType);
}

CItemList *CMainDlg::GetSelectedItems(CPtrArray &items)
{
    CItemList *pList = GetList();
    if (pList)
        pList->GetSelectedItems(items);
    return pList;
}

QWidget *CMainDlg::GetWidget() const
{
    return reinterpret_cast<QWidget *>(m_hWnd);
}
