#include "KxVolumes.h"

// Lists a volume when it is loaded.
static const bool listed = (volumeList.append(new CKdUiNTFSVolumeDescriptor(L"M:")), true);
