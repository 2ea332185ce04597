// Identifiers of the dialogs and of their controls.
#pragma once

#define IDD_GALLERY 100
#define IDD_EDIT_PAGE 101
#define IDD_LISTBOX_PAGE 102
#define IDD_LIST_PAGE 103
#define IDD_TREE_PAGE 104
#define IDD_COMMON_PAGE 105

#define IDC_PAGES 1000
#define IDC_RESULTS 1001 // on every page

#define IDC_NAME 1101
#define IDC_NOTES 1102
#define IDC_EGGS 1103
#define IDC_CAPTION 1104
#define IDC_SEEN 1105
#define IDC_MALE 1106
#define IDC_FEMALE 1107
#define IDC_PLAY 1108

#define IDC_TREES 1201
#define IDC_BIRDS 1202

#define IDC_LIST 1301
#define IDC_TABLE 1302
#define IDC_VIEW 1303

#define IDC_TREE 1401

#define IDC_TABS 1501
#define IDC_SLIDER 1502
#define IDC_SCROLLBAR 1503
#define IDC_SPIN 1504
