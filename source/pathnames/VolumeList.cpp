#include "KxVolumes.h"

#include <QtAlgorithms>

// The second is destroyed first, while the list is still there to be emptied.
QList<CKdUiVolumeDescriptor *> volumeList;
CDelVolumeList volumelistdel;

CDelVolumeList::~CDelVolumeList()
{
    qDeleteAll(volumeList);
    volumeList.clear();
}
