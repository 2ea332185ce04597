/// @file KxControls.h
/// @brief The standard and common controls, as thin views of Qt widgets.
///
/// No control creates or owns a widget. Each is bound to one that exists (CWnd::SubclassDlgItem(),
/// DDX_Control(), CWnd::Attach()), looks it up on every call, checks its Qt class and acts on it. None sends
/// notifications: connect the widget's signals.
///
/// | Header             | Control                 | Widget                                         |
/// | ------------------ | ----------------------- | ---------------------------------------------- |
/// | KxEditControls.h   | CEdit, CRichEditCtrl    | QLineEdit, QTextEdit, QSpinBox, QDoubleSpinBox |
/// |                    | CStatic                 | QLabel                                         |
/// | KxButtons.h        | CButton                 | QAbstractButton                                |
/// | KxListBoxes.h      | CComboBox               | QComboBox                                      |
/// |                    | CListBox                | QListWidget                                    |
/// | KxListControl.h    | CListCtrl               | QListWidget, QTableWidget, QTableView          |
/// |                    | CHeaderCtrl             | QHeaderView                                    |
/// | KxTreeControl.h    | CTreeCtrl               | QTreeWidget                                    |
/// | KxCommonControls.h | CTabCtrl                | QTabWidget                                     |
/// |                    | CSliderCtrl, CScrollBar | QAbstractSlider                                |
///
/// CBitmapButton, CSpinButtonCtrl, CToolTipCtrl and CImageList have no widget of their own: they let ported
/// code compile and give fixed results.
#pragma once

#include "KxButtons.h"
#include "KxCommonControls.h"
#include "KxEditControls.h"
#include "KxListBoxes.h"
#include "KxListControl.h"
#include "KxTreeControl.h"
