/// @file KxPathNames.h
/// @brief Path names, and the volumes that they lie on.
///
/// CKdUiPathname (KxUiPathname.h) is a file-system path that is parsed from text, split, edited, shortened
/// for a caption and looked up. It takes paths that were written with backslashes or in another case.
/// CKdUiVolumeDescriptor (KxVolumes.h) tells what a volume accepts as a file name; an application that knows
/// its volumes puts descriptors into ::volumeList.
#pragma once

#include "KxUiPathname.h"
#include "KxVolumes.h"
