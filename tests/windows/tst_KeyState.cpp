#include "KxPlatformServices.h"
#include "KxUser32.h"

#include <QtTest>
#include <QtWidgets>

namespace {
class ScriptedKeyboard : public KxKeyboardService
{
public:
    int keyState(int virtualKey) override
    {
        m_asked = virtualKey;
        return m_answer;
    }

    int m_answer = 0;
    int m_asked = 0;
};

// Installed for its own life; every service but the keyboard is the one that was installed before.
class ScriptedServices : public KxPlatformServices
{
public:
    ScriptedServices() { setPlatformServices(this); }
    ~ScriptedServices() override { setPlatformServices(nullptr); }

    KxKeyboardService &keyboard() override { return m_keyboard; }
    KxImageService &image() override { return m_former.image(); }
    KxGdiObjectService &gdiObjects() override { return m_former.gdiObjects(); }
    KxPathCorrectionService &pathCorrection() override { return m_former.pathCorrection(); }

    ScriptedKeyboard m_keyboard;

private:
    KxPlatformServices &m_former = platformServices();
};

using KeyFunction = SHORT (*)(int);
} // namespace

Q_DECLARE_METATYPE(KeyFunction)

/// The three key-state functions, over a scripted keyboard and over Qt's own.
class tst_KeyState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(QApplication::topLevelWidgets().isEmpty()); }

    void answer_data();
    void answer();
    void askedKey_data();
    void askedKey();
    void pressedKey_data() { addFunctions(); }
    void pressedKey();
    void pressedModifier_data() { addFunctions(); }
    void pressedModifier();
    void pressedMouseButton_data() { addFunctions(); }
    void pressedMouseButton();
    void unknownKeys_data();
    void unknownKeys();

private:
    static void addFunctions();
};

static const KeyFunction keyFunctions[] = {&GetKeyState, &GetAsyncKeyState, &KxUser32::GetKeyState};

void tst_KeyState::addFunctions()
{
    QTest::addColumn<KeyFunction>("function");

    QTest::newRow("GetKeyState") << KeyFunction(&GetKeyState);
    QTest::newRow("GetAsyncKeyState") << KeyFunction(&GetAsyncKeyState);
    QTest::newRow("KxUser32::GetKeyState") << KeyFunction(&KxUser32::GetKeyState);
}

void tst_KeyState::answer_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<int>("state");

    QTest::newRow("up") << 0 << 0;
    QTest::newRow("toggled") << 1 << 1;
    QTest::newRow("largest positive") << 0x7FFF << 32767;
    QTest::newRow("down") << 0x8000 << -32768;
    QTest::newRow("down and toggled") << 0x8001 << -32767;
    QTest::newRow("all low bits") << 0xFFFF << -1;
    QTest::newRow("high bits only") << 0x10000 << 0;
    QTest::newRow("high bits dropped, down") << 0x18000 << -32768;
    QTest::newRow("high bits dropped, up") << 0x7FFF0001 << 1;
    QTest::newRow("all bits") << -1 << -1;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << 0;
}

void tst_KeyState::answer()
{
    QFETCH(int, answer);
    QFETCH(int, state);

    ScriptedServices services;
    services.m_keyboard.m_answer = answer;
    for (KeyFunction function : keyFunctions)
        QCOMPARE(int(function(VK_SHIFT)), state);
}

void tst_KeyState::askedKey_data()
{
    QTest::addColumn<int>("key");

    QTest::newRow("letter") << int('A');
    QTest::newRow("shift") << VK_SHIFT;
    QTest::newRow("0") << 0;
    QTest::newRow("beyond a byte") << 0x1FF;
    QTest::newRow("negative") << -1;
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void tst_KeyState::askedKey()
{
    QFETCH(int, key);

    ScriptedServices services;
    for (KeyFunction function : keyFunctions) {
        services.m_keyboard.m_asked = ~key;
        function(key);
        QCOMPARE(services.m_keyboard.m_asked, key);
    }
}

void tst_KeyState::pressedKey()
{
    QFETCH(KeyFunction, function);

    QLineEdit edit;
    edit.show();
    edit.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    QTRY_VERIFY(edit.hasFocus());

    QVERIFY(function('A') >= 0);
    QTest::keyPress(&edit, Qt::Key_A);
    QVERIFY(function('A') < 0);
    QVERIFY(function('B') >= 0);
    QTest::keyRelease(&edit, Qt::Key_A);
    QVERIFY(function('A') >= 0);
}

void tst_KeyState::pressedModifier()
{
    QFETCH(KeyFunction, function);

    QLineEdit edit;
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));

    QTest::keyPress(&edit, Qt::Key_Shift);
    QVERIFY(function(VK_SHIFT) < 0);
    QVERIFY(function(VK_CONTROL) >= 0);
    QTest::keyRelease(&edit, Qt::Key_Shift);
    QVERIFY(function(VK_SHIFT) >= 0);
}

void tst_KeyState::pressedMouseButton()
{
    QFETCH(KeyFunction, function);

    QWidget widget;
    widget.resize(100, 100);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    const QPoint center = widget.rect().center();

    QTest::mousePress(widget.windowHandle(), Qt::RightButton, Qt::NoModifier, center);
    QVERIFY(function(VK_RBUTTON) < 0);
    QVERIFY(function(VK_LBUTTON) >= 0);
    QTest::mouseRelease(widget.windowHandle(), Qt::RightButton, Qt::NoModifier, center);
    QVERIFY(function(VK_RBUTTON) >= 0);
}

void tst_KeyState::unknownKeys_data()
{
    QTest::addColumn<int>("key");

    for (int key : {0, -1, 0x07, 0xFF, 0x100, 0x10041})
        QTest::addRow("%d", key) << key;
    QTest::newRow("smallest") << std::numeric_limits<int>::min();
    QTest::newRow("largest") << std::numeric_limits<int>::max();
}

void tst_KeyState::unknownKeys()
{
    QFETCH(int, key);
    for (KeyFunction function : keyFunctions)
        QCOMPARE(int(function(key)), 0);
}

QTEST_MAIN(tst_KeyState)
#include "tst_KeyState.moc"
