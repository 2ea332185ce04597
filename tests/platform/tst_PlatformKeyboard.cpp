#include "KeyboardFixture.h"

#include <QShortcut>

class tst_PlatformKeyboard : public QObject
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

    void unknownKeys_data();
    void unknownKeys();
    void valueIsAWin32Short();
    void severalKeys();
    void symbolChangesWhileDown();
    void bothShiftKeys();
    void repeatedReleasesAreIgnored();
    void shortcutKeyIsDown();
    void modifiersOfMouseEvents();
    void modifiersEndWithTheNextEvent();
    void mouseButtons_data();
    void mouseButtons();
    void deactivationReleasesKeys();
    void toggles_data();
    void toggles();
    void togglesWithTheKeyItself();

private:
    std::unique_ptr<KeyboardFixture> m_keyboard;
};

void tst_PlatformKeyboard::unknownKeys_data()
{
    QTest::addColumn<int>("virtualKey");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("past a byte") << 256 + 'A';
    QTest::newRow("largest int") << std::numeric_limits<int>::max();
    QTest::newRow("smallest int") << std::numeric_limits<int>::min();
    QTest::newRow("small letter") << int('a');
}

void tst_PlatformKeyboard::unknownKeys()
{
    QFETCH(int, virtualKey);
    QTest::keyPress(m_keyboard->widget(), Qt::Key_A);
    NativeKey{Qt::Key_unknown}.press();
    QCOMPARE(keyState(virtualKey), 0);
    QCOMPARE(keysDown(), QVector<int>{'A'});
}

void tst_PlatformKeyboard::valueIsAWin32Short()
{
    QTest::keyPress(m_keyboard->widget(), Qt::Key_A);
    QCOMPARE(keyState('A'), 0x8000);
    QVERIFY(short(keyState('A')) < 0);
    QCOMPARE(keyState('B'), 0);
}

void tst_PlatformKeyboard::severalKeys()
{
    QTest::keyPress(m_keyboard->widget(), Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(keysDown(), (QVector<int>{VK_SHIFT, VK_CONTROL, 'A', VK_LSHIFT, VK_LCONTROL}));
    QTest::keyPress(m_keyboard->widget(), Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyRelease(m_keyboard->widget(), Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(keysDown(), (QVector<int>{VK_LEFT}));
}

void tst_PlatformKeyboard::symbolChangesWhileDown()
{
    NativeKey{Qt::Key_Plus, 21, 0, Qt::ShiftModifier}.press();
    QVERIFY(keysDown().contains(0xBB));
    // Released under the name of another key, since Shift was released before.
    NativeKey{Qt::Key_QuoteDbl, 21}.release();
    QCOMPARE(keysDown(), QVector<int>());
}

void tst_PlatformKeyboard::bothShiftKeys()
{
    const NativeKey left{Qt::Key_Shift, 50, 0xFFE1};
    const NativeKey right{Qt::Key_Shift, 62, 0xFFE2, Qt::ShiftModifier};
    left.press();
    right.press();
    QCOMPARE(keysDown(), (QVector<int>{VK_SHIFT, VK_LSHIFT, VK_RSHIFT}));
    left.release();
    QCOMPARE(keysDown(), (QVector<int>{VK_SHIFT, VK_RSHIFT}));
    right.release();
    QCOMPARE(keysDown(), QVector<int>());
}

void tst_PlatformKeyboard::repeatedReleasesAreIgnored()
{
    NativeKey key{Qt::Key_A, 38};
    key.press();
    key.repeats = true;
    key.release();
    QCOMPARE(keysDown(), QVector<int>{'A'});
    key.press();
    key.repeats = false;
    key.release();
    QCOMPARE(keysDown(), QVector<int>());
}

void tst_PlatformKeyboard::shortcutKeyIsDown()
{
    QShortcut shortcut(QKeySequence(Qt::Key_F5), m_keyboard->widget());
    QVector<int> keysWhenActivated;
    connect(&shortcut, &QShortcut::activated, this, [&] { keysWhenActivated = keysDown(); });
    QApplication::setActiveWindow(m_keyboard->widget());
    QVERIFY(QTest::qWaitForWindowActive(m_keyboard->widget()));

    QTest::keyPress(m_keyboard->widget(), Qt::Key_F5);
    QCOMPARE(keysWhenActivated, QVector<int>{VK_F1 + 4});
    QTest::keyRelease(m_keyboard->widget(), Qt::Key_F5);
    QCOMPARE(keysDown(), QVector<int>());
}

void tst_PlatformKeyboard::modifiersOfMouseEvents()
{
    const auto modifiers = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    QTest::mousePress(m_keyboard->widget(), Qt::LeftButton, modifiers);
    QCOMPARE(keysDown(), (QVector<int>{VK_LBUTTON, VK_SHIFT, VK_CONTROL, VK_MENU}));
    QTest::mouseRelease(m_keyboard->widget(), Qt::LeftButton);
    QCOMPARE(keysDown(), QVector<int>());
}

void tst_PlatformKeyboard::modifiersEndWithTheNextEvent()
{
    QTest::mouseClick(m_keyboard->widget(), Qt::LeftButton, Qt::ShiftModifier);
    QVERIFY(keyState(VK_SHIFT) & keyDown);
    QTest::keyClick(m_keyboard->widget(), Qt::Key_A);
    QCOMPARE(keysDown(), QVector<int>());
    // A test that releases a modifier key without saying that it was down means a release all the same.
    QTest::keyPress(m_keyboard->widget(), Qt::Key_Shift);
    QTest::keyRelease(m_keyboard->widget(), Qt::Key_Shift);
    QCOMPARE(keysDown(), QVector<int>());
}

void tst_PlatformKeyboard::mouseButtons_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("virtualKey");
    QTest::newRow("left") << int(Qt::LeftButton) << 1;
    QTest::newRow("right") << int(Qt::RightButton) << 2;
    QTest::newRow("middle") << int(Qt::MiddleButton) << 4;
    QTest::newRow("first extra") << int(Qt::XButton1) << 5;
    QTest::newRow("second extra") << int(Qt::XButton2) << 6;
}

void tst_PlatformKeyboard::mouseButtons()
{
    QFETCH(int, button);
    QFETCH(int, virtualKey);
    QTest::mousePress(m_keyboard->widget(), Qt::MouseButton(button));
    QCOMPARE(keysDown(), QVector<int>{virtualKey});
    QTest::mouseRelease(m_keyboard->widget(), Qt::MouseButton(button));
    QCOMPARE(keysDown(), QVector<int>());
}

void tst_PlatformKeyboard::deactivationReleasesKeys()
{
    QTest::keyPress(m_keyboard->widget(), Qt::Key_A, Qt::AltModifier);
    QVERIFY(keyState('A') & keyDown);
    QVERIFY(keyState(VK_MENU) & keyDown);
    QEvent deactivation(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(qApp, &deactivation);
    QCOMPARE(keysDown(), QVector<int>());
}

void tst_PlatformKeyboard::toggles_data()
{
    QTest::addColumn<uint>("nativeModifiers");
    QTest::addColumn<int>("capsLock");
    QTest::addColumn<int>("numLock");
    QTest::newRow("neither") << 0U << 0 << 0;
    QTest::newRow("Caps Lock") << 0x02U << 1 << 0;
    QTest::newRow("Num Lock") << 0x10U << 0 << 1;
    QTest::newRow("both") << 0x12U << 1 << 1;
    QTest::newRow("other modifiers") << 0xEDU << 0 << 0;
}

void tst_PlatformKeyboard::toggles()
{
    QFETCH(uint, nativeModifiers);
    QFETCH(int, capsLock);
    QFETCH(int, numLock);

    // Only X tells of the locks in this form.
    const int told = QGuiApplication::platformName() == QLatin1String("xcb") ? 1 : 0;
    const NativeKey key{Qt::Key_A, 38, 0, Qt::NoModifier, nativeModifiers};
    key.press();
    QCOMPARE(keyState(VK_CAPITAL), capsLock * told);
    QCOMPARE(keyState(VK_NUMLOCK), numLock * told);
    QCOMPARE(keyState(VK_SCROLL), 0);
    NativeKey{Qt::Key_A, 38}.release();
    QCOMPARE(keyState(VK_CAPITAL), 0);
    QCOMPARE(keyState(VK_NUMLOCK), 0);
}

void tst_PlatformKeyboard::togglesWithTheKeyItself()
{
    const int told = QGuiApplication::platformName() == QLatin1String("xcb") ? 1 : 0;
    NativeKey key{Qt::Key_CapsLock, 66};
    key.press();
    QCOMPARE(keyState(VK_CAPITAL), keyDown + told);
    key.nativeModifiers = 0x02;
    key.repeats = true;
    key.press();
    QCOMPARE(keyState(VK_CAPITAL), keyDown + told);
    key.repeats = false;
    key.release();
    QCOMPARE(keyState(VK_CAPITAL), told);
    // X ends the lock with the second release, Win32 with the second press.
    key.press();
    QCOMPARE(keyState(VK_CAPITAL), keyDown);
    key.release();
    QCOMPARE(keyState(VK_CAPITAL), 0);
}

QTEST_MAIN(tst_PlatformKeyboard)
#include "tst_PlatformKeyboard.moc"
