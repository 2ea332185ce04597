#include "VirtualKeys.h"

#include <KxWinTypes.h>
#include <QKeyEvent>
#include <algorithm>
#include <iterator>

namespace {
// The keys around the letters, named after the American keyboard.
constexpr int VK_OEM_1 = 0xBA;
constexpr int VK_OEM_PLUS = 0xBB;
constexpr int VK_OEM_COMMA = 0xBC;
constexpr int VK_OEM_MINUS = 0xBD;
constexpr int VK_OEM_PERIOD = 0xBE;
constexpr int VK_OEM_2 = 0xBF;
constexpr int VK_OEM_3 = 0xC0;
constexpr int VK_OEM_4 = 0xDB;
constexpr int VK_OEM_5 = 0xDC;
constexpr int VK_OEM_6 = 0xDD;
constexpr int VK_OEM_7 = 0xDE;

struct KeyPair
{
    int qtKey;
    int virtualKey;
};

// Letters, digits, function keys and the numeric keypad stand outside of the table.
constexpr KeyPair keyTable[] = {
    {Qt::Key_Backspace, VK_BACK},
    {Qt::Key_Tab, VK_TAB},
    {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Clear, VK_CLEAR},
    {Qt::Key_Return, VK_RETURN},
    {Qt::Key_Enter, VK_RETURN},
    {Qt::Key_Shift, VK_LSHIFT},
    {Qt::Key_Control, VK_LCONTROL},
    {Qt::Key_Alt, VK_LMENU},
    {Qt::Key_AltGr, VK_RMENU},
    {Qt::Key_Pause, VK_PAUSE},
    {Qt::Key_CapsLock, VK_CAPITAL},
    {Qt::Key_Escape, VK_ESCAPE},
    {Qt::Key_Space, VK_SPACE},
    {Qt::Key_PageUp, VK_PRIOR},
    {Qt::Key_PageDown, VK_NEXT},
    {Qt::Key_End, VK_END},
    {Qt::Key_Home, VK_HOME},
    {Qt::Key_Left, VK_LEFT},
    {Qt::Key_Up, VK_UP},
    {Qt::Key_Right, VK_RIGHT},
    {Qt::Key_Down, VK_DOWN},
    {Qt::Key_Print, VK_SNAPSHOT},
    {Qt::Key_SysReq, VK_SNAPSHOT},
    {Qt::Key_Insert, VK_INSERT},
    {Qt::Key_Delete, VK_DELETE},
    {Qt::Key_Help, VK_HELP},
    {Qt::Key_Meta, VK_LWIN},
    {Qt::Key_Super_L, VK_LWIN},
    {Qt::Key_Super_R, VK_RWIN},
    {Qt::Key_Menu, VK_APPS},
    {Qt::Key_NumLock, VK_NUMLOCK},
    {Qt::Key_ScrollLock, VK_SCROLL},
    {Qt::Key_Semicolon, VK_OEM_1},
    {Qt::Key_Colon, VK_OEM_1},
    {Qt::Key_Equal, VK_OEM_PLUS},
    {Qt::Key_Plus, VK_OEM_PLUS},
    {Qt::Key_Comma, VK_OEM_COMMA},
    {Qt::Key_Less, VK_OEM_COMMA},
    {Qt::Key_Minus, VK_OEM_MINUS},
    {Qt::Key_Underscore, VK_OEM_MINUS},
    {Qt::Key_Period, VK_OEM_PERIOD},
    {Qt::Key_Greater, VK_OEM_PERIOD},
    {Qt::Key_Slash, VK_OEM_2},
    {Qt::Key_Question, VK_OEM_2},
    {Qt::Key_QuoteLeft, VK_OEM_3},
    {Qt::Key_AsciiTilde, VK_OEM_3},
    {Qt::Key_BracketLeft, VK_OEM_4},
    {Qt::Key_BraceLeft, VK_OEM_4},
    {Qt::Key_Backslash, VK_OEM_5},
    {Qt::Key_Bar, VK_OEM_5},
    {Qt::Key_BracketRight, VK_OEM_6},
    {Qt::Key_BraceRight, VK_OEM_6},
    {Qt::Key_Apostrophe, VK_OEM_7},
    {Qt::Key_QuoteDbl, VK_OEM_7},
};

constexpr KeyPair keypadTable[] = {
    {Qt::Key_Asterisk, VK_MULTIPLY}, {Qt::Key_Plus, VK_ADD},      {Qt::Key_Minus, VK_SUBTRACT},
    {Qt::Key_Period, VK_DECIMAL},    {Qt::Key_Comma, VK_DECIMAL}, {Qt::Key_Slash, VK_DIVIDE},
};

// Right-hand modifier keys, which have the Qt keys of the left-hand ones, by their X key symbols.
constexpr struct
{
    quint32 symbol;
    int virtualKey;
} rightHandTable[] = {
    {0xFFE2, VK_RSHIFT}, {0xFFE4, VK_RCONTROL}, {0xFFEA, VK_RMENU}, {0xFFE8, VK_RWIN}, {0xFFEC, VK_RWIN},
};

template <class Table> int lookUp(const Table &table, int qtKey)
{
    const auto *found = std::find_if(std::begin(table), std::end(table),
                                     [qtKey](const KeyPair &pair) { return pair.qtKey == qtKey; });
    return found == std::end(table) ? 0 : found->virtualKey;
}

bool isBetween(int value, int first, int last)
{
    return value >= first && value <= last;
}

bool isModifierKey(int qtKey)
{
    return isBetween(qtKey, Qt::Key_Shift, Qt::Key_Alt) || isBetween(qtKey, Qt::Key_Super_L, Qt::Key_Super_R);
}

int rightHandKey(quint32 symbol)
{
    for (const auto &row : rightHandTable) {
        if (row.symbol == symbol)
            return row.virtualKey;
    }
    return 0;
}

int keypadKey(int qtKey)
{
    if (isBetween(qtKey, Qt::Key_0, Qt::Key_9))
        return VK_NUMPAD0 + qtKey - Qt::Key_0;
    return lookUp(keypadTable, qtKey);
}

int plainKey(int qtKey)
{
    if (isBetween(qtKey, Qt::Key_0, Qt::Key_9) || isBetween(qtKey, Qt::Key_A, Qt::Key_Z))
        return qtKey;
    if (isBetween(qtKey, Qt::Key_F1, Qt::Key_F24))
        return VK_F1 + qtKey - Qt::Key_F1;
    return lookUp(keyTable, qtKey);
}

// Digit keys with a symbol on them and letter keys of other scripts, by their place on the keyboard.
int keyAtPlace(quint32 scanCode)
{
    constexpr char rows[] = "1234567890\0\0\0\0QWERTYUIOP\0\0\0\0ASDFGHJKL\0\0\0\0\0ZXCVBNM";
    constexpr quint32 firstScanCode = 10;
    const quint32 place = scanCode - firstScanCode;
    return place < sizeof rows ? rows[place] : 0;
}
} // namespace

int virtualKeyOf(const QKeyEvent &event)
{
    const int right = isModifierKey(event.key()) ? rightHandKey(event.nativeVirtualKey()) : 0;
    if (right)
        return right;
    const int onKeypad = event.modifiers() & Qt::KeypadModifier ? keypadKey(event.key()) : 0;
    if (onKeypad)
        return onKeypad;
    const int plain = plainKey(event.key());
    return plain ? plain : keyAtPlace(event.nativeScanCode());
}
