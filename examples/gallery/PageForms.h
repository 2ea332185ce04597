#pragma once

class CCommonPage;
class CEditPage;
class CListBoxPage;
class CListPage;
class CTreePage;
class QWidget;

/// Makes the window of a page: its Qt Designer form, its control identifiers and its connections.
/// @return the window, owned by the caller; the page must outlive it.
/// @{
QWidget *makePageForm(CEditPage &page);
QWidget *makePageForm(CListBoxPage &page);
QWidget *makePageForm(CListPage &page);
QWidget *makePageForm(CTreePage &page);
QWidget *makePageForm(CCommonPage &page);
/// @}
