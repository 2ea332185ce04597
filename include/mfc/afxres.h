/// @file afxres.h
/// @brief Identifiers that every program shares, with their published values.
#pragma once

/// The identifier of controls that the program never looks up. Resource headers define it, too.
#ifndef IDC_STATIC
constexpr int IDC_STATIC = -1;
#endif

/// @name Commands
/// Identifiers of menu items and actions, for ported code that names them. The library sends no commands.
/// @{
constexpr int ID_FILE_NEW = 0xE100;
constexpr int ID_FILE_OPEN = 0xE101;
constexpr int ID_FILE_CLOSE = 0xE102;
constexpr int ID_FILE_SAVE = 0xE103;
constexpr int ID_FILE_SAVE_AS = 0xE104;
constexpr int ID_FILE_PAGE_SETUP = 0xE105;
constexpr int ID_FILE_PRINT_SETUP = 0xE106;
constexpr int ID_FILE_PRINT = 0xE107;
constexpr int ID_FILE_PRINT_DIRECT = 0xE108;
constexpr int ID_FILE_PRINT_PREVIEW = 0xE109;
constexpr int ID_FILE_MRU_FILE1 = 0xE110;
constexpr int ID_EDIT_CLEAR = 0xE120;
constexpr int ID_EDIT_CLEAR_ALL = 0xE121;
constexpr int ID_EDIT_COPY = 0xE122;
constexpr int ID_EDIT_CUT = 0xE123;
constexpr int ID_EDIT_FIND = 0xE124;
constexpr int ID_EDIT_PASTE = 0xE125;
constexpr int ID_EDIT_REPEAT = 0xE128;
constexpr int ID_EDIT_REPLACE = 0xE129;
constexpr int ID_EDIT_SELECT_ALL = 0xE12A;
constexpr int ID_EDIT_UNDO = 0xE12B;
constexpr int ID_EDIT_REDO = 0xE12C;
constexpr int ID_WINDOW_NEW = 0xE130;
constexpr int ID_WINDOW_ARRANGE = 0xE131;
constexpr int ID_WINDOW_CASCADE = 0xE132;
constexpr int ID_WINDOW_TILE_HORZ = 0xE133;
constexpr int ID_WINDOW_TILE_VERT = 0xE134;
constexpr int ID_APP_ABOUT = 0xE140;
constexpr int ID_APP_EXIT = 0xE141;
constexpr int ID_HELP_INDEX = 0xE142;
constexpr int ID_HELP_FINDER = 0xE143;
constexpr int ID_HELP_USING = 0xE144;
constexpr int ID_CONTEXT_HELP = 0xE145;
constexpr int ID_HELP = 0xE146;
constexpr int ID_VIEW_TOOLBAR = 0xE800;
constexpr int ID_VIEW_STATUS_BAR = 0xE801;
constexpr int ID_SEPARATOR = 0x0;
/// @}
