// Identifiers of the dialog and of its controls, and the size of the paper.
#pragma once

#define IDD_SKETCH 102

#define IDC_TOOL_LINE 1101
#define IDC_TOOL_FREEHAND 1102
#define IDC_TOOL_BOX 1103
#define IDC_TOOL_FILL 1104
#define IDC_COLOR 1105
#define IDC_STYLE 1106
#define IDC_WIDTH 1107
#define IDC_WIDTH_TEXT 1108
#define IDC_CANVAS 1109
#define IDC_UNDO 1110
#define IDC_CLEAR 1111
#define IDC_FILE 1112
#define IDC_PRINT 1113
#define IDC_STATUS 1114

#define PAPER_WIDTH 576
#define PAPER_HEIGHT 432
