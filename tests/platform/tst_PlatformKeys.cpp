#include "KeyboardFixture.h"

class tst_PlatformKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_keyboard = std::make_unique<KeyboardFixture>();
        QVERIFY(QTest::qWaitForWindowExposed(m_keyboard->widget()));
        QCOMPARE(keysDown(), QVector<int>());
    }
    void cleanup() { m_keyboard.reset(); }

    void keys_data();
    void keys();
    void sides_data();
    void sides();
    void keysByPlace_data();
    void keysByPlace();

private:
    std::unique_ptr<KeyboardFixture> m_keyboard;
};

void tst_PlatformKeys::keys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("keypad");
    QTest::addColumn<int>("virtualKey");

    const auto row = [](const char *name, int key, int virtualKey) {
        QTest::newRow(name) << key << false << virtualKey;
    };
    for (char letter = 'A'; letter <= 'Z'; ++letter)
        QTest::addRow("letter %c", letter) << int(letter) << false << int(letter);
    for (char digit = '0'; digit <= '9'; ++digit) {
        QTest::addRow("digit %c", digit) << int(digit) << false << int(digit);
        QTest::addRow("keypad digit %c", digit) << int(digit) << true << VK_NUMPAD0 + (digit - '0');
    }
    for (int i = 0; i < 24; ++i)
        QTest::addRow("F%d", i + 1) << Qt::Key_F1 + i << false << VK_F1 + i;
    row("Backspace", Qt::Key_Backspace, 0x08);
    row("Tab", Qt::Key_Tab, 0x09);
    row("Shift+Tab", Qt::Key_Backtab, 0x09);
    row("Clear", Qt::Key_Clear, 0x0C);
    row("Return", Qt::Key_Return, 0x0D);
    row("Pause", Qt::Key_Pause, 0x13);
    row("Caps Lock", Qt::Key_CapsLock, 0x14);
    row("Escape", Qt::Key_Escape, 0x1B);
    row("Space", Qt::Key_Space, 0x20);
    row("Page Up", Qt::Key_PageUp, 0x21);
    row("Page Down", Qt::Key_PageDown, 0x22);
    row("End", Qt::Key_End, 0x23);
    row("Home", Qt::Key_Home, 0x24);
    row("Left", Qt::Key_Left, 0x25);
    row("Up", Qt::Key_Up, 0x26);
    row("Right", Qt::Key_Right, 0x27);
    row("Down", Qt::Key_Down, 0x28);
    row("Print", Qt::Key_Print, 0x2C);
    row("System Request", Qt::Key_SysReq, 0x2C);
    row("Insert", Qt::Key_Insert, 0x2D);
    row("Delete", Qt::Key_Delete, 0x2E);
    row("Help", Qt::Key_Help, 0x2F);
    row("left Super", Qt::Key_Super_L, 0x5B);
    row("Meta", Qt::Key_Meta, 0x5B);
    row("right Super", Qt::Key_Super_R, 0x5C);
    row("Menu", Qt::Key_Menu, 0x5D);
    row("Num Lock", Qt::Key_NumLock, 0x90);
    row("Scroll Lock", Qt::Key_ScrollLock, 0x91);
    row("semicolon", Qt::Key_Semicolon, 0xBA);
    row("colon", Qt::Key_Colon, 0xBA);
    row("equal", Qt::Key_Equal, 0xBB);
    row("plus", Qt::Key_Plus, 0xBB);
    row("comma", Qt::Key_Comma, 0xBC);
    row("less", Qt::Key_Less, 0xBC);
    row("minus", Qt::Key_Minus, 0xBD);
    row("underscore", Qt::Key_Underscore, 0xBD);
    row("period", Qt::Key_Period, 0xBE);
    row("greater", Qt::Key_Greater, 0xBE);
    row("slash", Qt::Key_Slash, 0xBF);
    row("question mark", Qt::Key_Question, 0xBF);
    row("grave", Qt::Key_QuoteLeft, 0xC0);
    row("tilde", Qt::Key_AsciiTilde, 0xC0);
    row("left bracket", Qt::Key_BracketLeft, 0xDB);
    row("left brace", Qt::Key_BraceLeft, 0xDB);
    row("backslash", Qt::Key_Backslash, 0xDC);
    row("bar", Qt::Key_Bar, 0xDC);
    row("right bracket", Qt::Key_BracketRight, 0xDD);
    row("right brace", Qt::Key_BraceRight, 0xDD);
    row("apostrophe", Qt::Key_Apostrophe, 0xDE);
    row("quote", Qt::Key_QuoteDbl, 0xDE);

    const auto keypadRow = [](const char *name, int key, int virtualKey) {
        QTest::newRow(name) << key << true << virtualKey;
    };
    keypadRow("keypad multiply", Qt::Key_Asterisk, 0x6A);
    keypadRow("keypad add", Qt::Key_Plus, 0x6B);
    keypadRow("keypad subtract", Qt::Key_Minus, 0x6D);
    keypadRow("keypad decimal", Qt::Key_Period, 0x6E);
    keypadRow("keypad decimal comma", Qt::Key_Comma, 0x6E);
    keypadRow("keypad divide", Qt::Key_Slash, 0x6F);
    keypadRow("keypad Enter", Qt::Key_Enter, 0x0D);
    keypadRow("keypad without Num Lock", Qt::Key_Insert, 0x2D);
    keypadRow("keypad centre", Qt::Key_Clear, 0x0C);
}

void tst_PlatformKeys::keys()
{
    QFETCH(int, key);
    QFETCH(bool, keypad);
    QFETCH(int, virtualKey);

    const Qt::KeyboardModifiers modifiers = keypad ? Qt::KeypadModifier : Qt::NoModifier;
    QTest::keyPress(m_keyboard->widget(), Qt::Key(key), modifiers);
    QCOMPARE(keysDown(), QVector<int>{virtualKey});
    QTest::keyRelease(m_keyboard->widget(), Qt::Key(key), modifiers);
    QCOMPARE(keysDown(), QVector<int>());
}

void tst_PlatformKeys::sides_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<uint>("symbol");
    QTest::addColumn<QVector<int>>("virtualKeys");

    QTest::newRow("Shift, side unknown") << int(Qt::Key_Shift) << 0U << QVector<int>{VK_SHIFT, VK_LSHIFT};
    QTest::newRow("left Shift") << int(Qt::Key_Shift) << 0xFFE1U << QVector<int>{VK_SHIFT, VK_LSHIFT};
    QTest::newRow("right Shift") << int(Qt::Key_Shift) << 0xFFE2U << QVector<int>{VK_SHIFT, VK_RSHIFT};
    QTest::newRow("Control, side unknown")
        << int(Qt::Key_Control) << 0U << QVector<int>{VK_CONTROL, VK_LCONTROL};
    QTest::newRow("left Control") << int(Qt::Key_Control) << 0xFFE3U << QVector<int>{VK_CONTROL, VK_LCONTROL};
    QTest::newRow("right Control") << int(Qt::Key_Control) << 0xFFE4U
                                   << QVector<int>{VK_CONTROL, VK_RCONTROL};
    QTest::newRow("Alt, side unknown") << int(Qt::Key_Alt) << 0U << QVector<int>{VK_MENU, VK_LMENU};
    QTest::newRow("left Alt") << int(Qt::Key_Alt) << 0xFFE9U << QVector<int>{VK_MENU, VK_LMENU};
    QTest::newRow("right Alt") << int(Qt::Key_Alt) << 0xFFEAU << QVector<int>{VK_MENU, VK_RMENU};
    QTest::newRow("Alt Graph") << int(Qt::Key_AltGr) << 0xFE03U << QVector<int>{VK_MENU, VK_RMENU};
    QTest::newRow("left Meta") << int(Qt::Key_Meta) << 0xFFE7U << QVector<int>{VK_LWIN};
    QTest::newRow("right Meta") << int(Qt::Key_Meta) << 0xFFE8U << QVector<int>{VK_RWIN};
    QTest::newRow("right Super") << int(Qt::Key_Super_R) << 0xFFECU << QVector<int>{VK_RWIN};
    QTest::newRow("symbol of another key") << int(Qt::Key_A) << 0xFFE2U << QVector<int>{'A'};
}

void tst_PlatformKeys::sides()
{
    QFETCH(int, key);
    QFETCH(uint, symbol);
    QFETCH(QVector<int>, virtualKeys);

    const NativeKey native{key, 0, symbol};
    native.press();
    QCOMPARE(keysDown(), virtualKeys);
    native.release();
    QCOMPARE(keysDown(), QVector<int>());
}

void tst_PlatformKeys::keysByPlace_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<uint>("scanCode");
    QTest::addColumn<int>("virtualKey");

    QTest::newRow("first digit with Shift") << int(Qt::Key_Exclam) << 10U << int('1');
    QTest::newRow("last digit with Shift") << int(Qt::Key_ParenRight) << 19U << int('0');
    QTest::newRow("Cyrillic, first of the upper row") << 0x0419 << 24U << int('Q');
    QTest::newRow("Cyrillic, last of the upper row") << 0x0417 << 33U << int('P');
    QTest::newRow("Cyrillic, first of the middle row") << 0x0424 << 38U << int('A');
    QTest::newRow("Cyrillic, last of the middle row") << 0x0414 << 46U << int('L');
    QTest::newRow("Cyrillic, first of the lower row") << 0x042F << 52U << int('Z');
    QTest::newRow("Cyrillic, last of the lower row") << 0x042C << 58U << int('M');
    QTest::newRow("the letter before its place") << int(Qt::Key_Q) << 38U << int('Q');
    QTest::newRow("before the digits") << 0x0419 << 9U << 0;
    QTest::newRow("between the rows") << 0x0425 << 34U << 0;
    QTest::newRow("behind the letters") << 0x0411 << 59U << 0;
    QTest::newRow("far behind") << 0x0411 << 0xFFFFFFFFU << 0;
}

void tst_PlatformKeys::keysByPlace()
{
    QFETCH(int, key);
    QFETCH(uint, scanCode);
    QFETCH(int, virtualKey);

    const NativeKey native{key, scanCode};
    native.press();
    QCOMPARE(keysDown(), virtualKey ? QVector<int>{virtualKey} : QVector<int>());
    native.release();
    QCOMPARE(keysDown(), QVector<int>());
}

QTEST_MAIN(tst_PlatformKeys)
#include "tst_PlatformKeys.moc"
