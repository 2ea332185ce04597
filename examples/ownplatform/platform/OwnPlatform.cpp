#include "ControlPanel.h"
#include "OwnServices.h"

// What KxPlatformServices.h asks for in place of Kx::PlatformServices.
KxKeyboardService::~KxKeyboardService() = default;
KxImageService::~KxImageService() = default;
KxGdiObjectService::~KxGdiObjectService() = default;
KxPathCorrectionService::~KxPathCorrectionService() = default;
KxPlatformServices::~KxPlatformServices() = default;

static KxPlatformServices *installedServices = nullptr;

KxPlatformServices &platformServices()
{
    return installedServices ? *installedServices : ownServices();
}

void setPlatformServices(KxPlatformServices *services)
{
    installedServices = services;
}

// Never destroyed: destructors of the program's static objects still release their bitmaps.
OwnServices &ownServices()
{
    static auto &services = *new OwnServices;
    return services;
}

void setPanelKey(int virtualKey, bool down)
{
    ownServices().keyboard().setKey(virtualKey, down);
}
