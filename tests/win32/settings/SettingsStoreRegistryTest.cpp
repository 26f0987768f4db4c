// Every group over the real registry keeps what the host stored through a page's Load and Apply.
#include <gtest/gtest.h>

#include "platform/win32/Win32Platform.h"
#include "unit/settings/GroupRoundTrip.h"

TEST(SettingsStoreRegistryTest, EveryGroupWritesBackWhatTheHostStored) {
    platform::win32::Win32Platform system;
    ExpectEveryGroupWritesBackWhatTheHostStored();
    ClearSections();
}
