// The shared block read through the real file mapping and mutex, as a host leaves them.
#include "services/ShareBlock.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "win32/support/RealHostPlatform.h"

namespace {

// Without a host's block a fresh empty one is read; a mapping the system refuses (one of the paging
// file cannot have size 0) is told and skipped.
TEST(ShareBlockOnWindows, WithoutAHostsBlockNothingIsRead) {
    testing_support::RealHostPlatform platform;
    EXPECT_EQ(L"ShareMemMap\nCurrentDir:\nOption:\n\n", ReadShareBlock(GetCurrentProcessId(), 9999, 4096).inspection);
    EXPECT_TRUE(platform.fake().prompts().shown().empty());
    EXPECT_EQ(ShareBlock{}, ReadShareBlock(GetCurrentProcessId(), 9998, 0));
    ASSERT_EQ(1u, platform.fake().prompts().shown().size());
    EXPECT_FALSE(platform.fake().prompts().shown()[0].text.empty());
}

}  // namespace
