#include <KxMFCWrapper.h>
#include <KxPlatformServices.h>

#include <cstdio>

namespace {

// A pedal that stands for the Shift key.
class PedalKeyboard final : public KxKeyboardService
{
public:
    explicit PedalKeyboard(KxKeyboardService &keyboard)
        : m_keyboard(keyboard)
    {
    }
    int keyState(int virtualKey) override
    {
        return virtualKey == VK_SHIFT && m_pressed ? 0x8000 : m_keyboard.keyState(virtualKey);
    }
    void setPressed(bool pressed) { m_pressed = pressed; }

private:
    KxKeyboardService &m_keyboard;
    bool m_pressed = false;
};

// The services that were there, apart from the keyboard.
class PedalServices final : public KxPlatformServices
{
public:
    explicit PedalServices(KxPlatformServices &services)
        : m_services(services)
    {
    }
    PedalKeyboard &keyboard() override { return m_keyboard; }
    KxImageService &image() override { return m_services.image(); }
    KxGdiObjectService &gdiObjects() override { return m_services.gdiObjects(); }
    KxPathCorrectionService &pathCorrection() override { return m_services.pathCorrection(); }

private:
    KxPlatformServices &m_services;
    PedalKeyboard m_keyboard{m_services.keyboard()};
};

void showShift()
{
    std::printf("Shift: %s\n", GetKeyState(VK_SHIFT) < 0 ? "down" : "up");
}

} // namespace

int main()
{
    PedalServices services(platformServices());
    setPlatformServices(&services);
    services.keyboard().setPressed(true);
    showShift();
    services.keyboard().setPressed(false);
    showShift();

    CBitmap picture;
    picture.CreateCompatibleBitmap(nullptr, 24, 16);
    std::printf("bitmap: %s\n", picture.DeleteObject() ? "made and deleted" : "none");

    services.keyboard().setPressed(true);
    setPlatformServices(nullptr);
    showShift();
}
