#pragma once

#include <KxPlatformServices.h>
#include <memory>

std::unique_ptr<KxKeyboardService> makeKeyboardService();
std::unique_ptr<KxGdiObjectService> makeGdiObjectService();
/// @param gdiObjects  holds the images; it must outlive the service.
std::unique_ptr<KxImageService> makeImageService(KxGdiObjectService &gdiObjects);
std::unique_ptr<KxPathCorrectionService> makePathCorrectionService();
