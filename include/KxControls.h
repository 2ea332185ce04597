/// @file KxControls.h
/// @brief The standard and common controls, as thin views of Qt widgets.
///
/// No control creates or owns a widget. Each is bound to one that exists (CWnd::SubclassDlgItem(), DDX_Control(),
/// CWnd::Attach()), looks it up on every call, checks its Qt class and acts on it. None sends notifications:
/// connect the widget's signals.
#pragma once

#include "KxButtons.h"
#include "KxCommonControls.h"
#include "KxEditControls.h"
#include "KxListBoxes.h"
#include "KxListControl.h"
#include "KxTreeControl.h"
