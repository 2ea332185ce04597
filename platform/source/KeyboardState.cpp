#include "BuiltInServices.h"
#include "VirtualKeys.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <algorithm>
#include <map>

namespace {
constexpr int keyDown = 0x8000;
constexpr int keyToggled = 1;

// Modifier bits of X events.
constexpr quint32 capsLockMask = 0x02;
constexpr quint32 numLockMask = 0x10;

class KeyTracker;
KeyTracker *g_tracker = nullptr;

// Keeps the keys that are down by watching the application's events.
class KeyTracker final : public QObject
{
public:
    explicit KeyTracker(QCoreApplication *application);
    ~KeyTracker() override { g_tracker = nullptr; }

    bool isDown(int virtualKey) const;
    bool isToggled(int virtualKey) const { return m_toggles.count(virtualKey) && m_toggles.at(virtualKey); }
    Qt::KeyboardModifiers modifiers() const { return m_modifiers; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void press(const QKeyEvent &event);
    void release(const QKeyEvent &event);
    void noteToggles(const QKeyEvent &event);
    void noteToggle(const QKeyEvent &event, int virtualKey, quint32 mask);
    void clear();

    // The virtual keys that are down, by the identity of the key: the symbol on a key may change while it is
    // down.
    std::map<quint64, int> m_keys;
    std::map<int, bool> m_toggles;
    Qt::KeyboardModifiers m_modifiers;
};

quint64 identityOf(const QKeyEvent &event)
{
    constexpr quint64 synthesized = quint64(1) << 32;
    const quint32 scanCode = event.nativeScanCode();
    return scanCode ? scanCode : synthesized + quint64(virtualKeyOf(event));
}

Qt::KeyboardModifier modifierOf(int qtKey)
{
    switch (qtKey) {
    case Qt::Key_Shift:
        return Qt::ShiftModifier;
    case Qt::Key_Control:
        return Qt::ControlModifier;
    case Qt::Key_Alt:
        return Qt::AltModifier;
    default:
        return Qt::NoModifier;
    }
}

KeyTracker::KeyTracker(QCoreApplication *application)
    : QObject(application)
{
    g_tracker = this;
    application->installEventFilter(this);
}

bool KeyTracker::isDown(int virtualKey) const
{
    return std::any_of(m_keys.begin(), m_keys.end(),
                       [virtualKey](const auto &key) { return key.second == virtualKey; });
}

bool KeyTracker::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    // The press of a shortcut comes as an override only.
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        press(static_cast<const QKeyEvent &>(*event));
        break;
    case QEvent::KeyRelease:
        release(static_cast<const QKeyEvent &>(*event));
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
        m_modifiers = static_cast<const QInputEvent *>(event)->modifiers();
        break;
    // Keys are released unseen while another application has the keyboard.
    case QEvent::ApplicationDeactivate:
        clear();
        break;
    default:
        break;
    }
    return false;
}

void KeyTracker::press(const QKeyEvent &event)
{
    m_modifiers = event.modifiers();
    noteToggles(event);
    if (const int virtualKey = virtualKeyOf(event))
        m_keys[identityOf(event)] = virtualKey;
}

void KeyTracker::release(const QKeyEvent &event)
{
    // A key that repeats is released and pressed again and again while it is down.
    if (event.isAutoRepeat())
        return;
    m_modifiers = event.modifiers() & ~Qt::KeyboardModifiers(modifierOf(event.key()));
    noteToggles(event);
    m_keys.erase(identityOf(event));
}

void KeyTracker::noteToggles(const QKeyEvent &event)
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    noteToggle(event, VK_CAPITAL, capsLockMask);
    noteToggle(event, VK_NUMLOCK, numLockMask);
}

void KeyTracker::noteToggle(const QKeyEvent &event, int virtualKey, quint32 mask)
{
    const bool before = event.nativeModifiers() & mask;
    if (virtualKeyOf(event) != virtualKey)
        m_toggles[virtualKey] = before;
    else if (event.type() != QEvent::KeyRelease && !event.isAutoRepeat())
        // The bits are those from before the press, which is what toggles.
        m_toggles[virtualKey] = !before;
}

void KeyTracker::clear()
{
    m_keys.clear();
    m_modifiers = Qt::NoModifier;
}

Qt::MouseButton mouseButtonOf(int virtualKey)
{
    switch (virtualKey) {
    case VK_LBUTTON:
        return Qt::LeftButton;
    case VK_RBUTTON:
        return Qt::RightButton;
    case VK_MBUTTON:
        return Qt::MiddleButton;
    case VK_XBUTTON1:
        return Qt::XButton1;
    case VK_XBUTTON2:
        return Qt::XButton2;
    default:
        return Qt::NoButton;
    }
}

// A modifier key without a side is down when either side is, or when any event told of it.
struct SidedModifier
{
    int virtualKey;
    int left;
    int right;
    Qt::KeyboardModifier modifier;
};

constexpr SidedModifier sidedModifiers[] = {
    {VK_SHIFT, VK_LSHIFT, VK_RSHIFT, Qt::ShiftModifier},
    {VK_CONTROL, VK_LCONTROL, VK_RCONTROL, Qt::ControlModifier},
    {VK_MENU, VK_LMENU, VK_RMENU, Qt::AltModifier},
};

bool isDown(const KeyTracker &tracker, int virtualKey)
{
    if (const Qt::MouseButton button = mouseButtonOf(virtualKey))
        return QGuiApplication::mouseButtons() & button;
    for (const SidedModifier &sided : sidedModifiers) {
        if (sided.virtualKey == virtualKey)
            return tracker.isDown(sided.left) || tracker.isDown(sided.right) ||
                   tracker.modifiers() & sided.modifier;
    }
    return tracker.isDown(virtualKey);
}

class KeyboardState final : public KxKeyboardService
{
public:
    int keyState(int virtualKey) override;
};

int KeyboardState::keyState(int virtualKey)
{
    if (!g_tracker)
        return 0;
    return (isDown(*g_tracker, virtualKey) ? keyDown : 0) |
           (g_tracker->isToggled(virtualKey) ? keyToggled : 0);
}

void trackKeys()
{
    // The application owns the tracker.
    new KeyTracker(QCoreApplication::instance());
}
} // namespace

// Keys that were pressed before the first question are known, too.
Q_COREAPP_STARTUP_FUNCTION(trackKeys)

std::unique_ptr<KxKeyboardService> makeKeyboardService()
{
    return std::make_unique<KeyboardState>();
}
