#include "BuiltInServices.h"

KxKeyboardService::~KxKeyboardService() = default;
KxImageService::~KxImageService() = default;
KxGdiObjectService::~KxGdiObjectService() = default;
KxPathCorrectionService::~KxPathCorrectionService() = default;
KxPlatformServices::~KxPlatformServices() = default;

namespace {
class BuiltInServices final : public KxPlatformServices
{
public:
    KxKeyboardService &keyboard() override { return *m_keyboard; }
    KxImageService &image() override { return *m_image; }
    KxGdiObjectService &gdiObjects() override { return *m_gdiObjects; }
    KxPathCorrectionService &pathCorrection() override { return *m_pathCorrection; }

private:
    std::unique_ptr<KxKeyboardService> m_keyboard = makeKeyboardService();
    std::unique_ptr<KxGdiObjectService> m_gdiObjects = makeGdiObjectService();
    std::unique_ptr<KxImageService> m_image = makeImageService(*m_gdiObjects);
    std::unique_ptr<KxPathCorrectionService> m_pathCorrection = makePathCorrectionService();
};

// Never destroyed: destructors of the program's static objects still release their bitmaps.
KxPlatformServices &builtInServices()
{
    static auto &services = *new BuiltInServices;
    return services;
}

KxPlatformServices *g_installedServices = nullptr;
} // namespace

KxPlatformServices &platformServices()
{
    return g_installedServices ? *g_installedServices : builtInServices();
}

void setPlatformServices(KxPlatformServices *services)
{
    g_installedServices = services;
}
