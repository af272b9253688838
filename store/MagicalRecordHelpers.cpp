#include "store/MagicalRecordHelpers.h"

#include "store/NSPersistentStoreCoordinator.h"

void MagicalRecordHelpers::cleanUp()
{
    NSPersistentStoreCoordinator::MR_setDefaultStoreCoordinator(nullptr);
}
