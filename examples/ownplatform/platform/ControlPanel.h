#pragma once

#include <KxPlatformExport.h>

/// Presses or releases a key of the machine's control panel, which has no keyboard.
KX_PLATFORM_EXPORT void setPanelKey(int virtualKey, bool down);
