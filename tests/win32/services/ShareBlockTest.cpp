// The shared block read through the real file mapping and mutex, as a host leaves them.
#include "services/ShareBlock.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <string>
#include <thread>

#include "e2e/support/HostHandshake.h"
#include "win32/support/RealHostPlatform.h"

namespace {

using Strings = std::vector<std::wstring>;

// A host's block: the mapping, its view and its mutex, held while the object lives.
using HostBlock = e2e::ShareBlock;

TEST(ShareBlockOnWindows, ReadsTheHostsBlockAndLeavesZerosWhereItsTabsWere) {
    struct Case {
        const char* what;
        std::wstring text;
        DWORD sizeBytes;  // as the switch string tells it; the host's mapping has 256
        Strings firstList;
        Strings secondList;
        std::wstring after;
    };
    using namespace std::string_literals;
    // clang-format off
    const Case cases[] = {
        {"c1 0 and c2 2", L"0\t2\tC:\\w\topt\ta\tb\t", 256, {}, {L"a", L"b"}, L"0\0" L"2\0C:\\w\0opt\0a\0b\0"s},
        {"no final tab", L"1\t0\tC:\\w\topt\ta", 256, {}, {}, L"1\0" L"0\0C:\\w\0opt\0a"s},
        {"a size in bytes read as characters", L"2\t0\tC:\\w\to\tx\tyyyyy\tz\t", 20, {L"x", L"yyyyy"}, {},
         L"2\0" L"0\0C:\\w\0o\0x\0yyyyy\0z\t"s},
    };
    // clang-format on
    int second = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        testing_support::RealHostPlatform platform;
        HostBlock host(GetCurrentProcessId(), ++second, 256, c.text);
        ASSERT_TRUE(host.Valid());
        ShareBlock block = ReadShareBlock(GetCurrentProcessId(), second, c.sizeBytes);
        EXPECT_EQ(L"C:\\w", block.currentDir);
        EXPECT_EQ(c.firstList, block.firstList);
        EXPECT_EQ(c.secondList, block.secondList);
        EXPECT_EQ(c.after, host.Contents().substr(0, c.after.size()));
        EXPECT_TRUE(platform.fake().prompts().shown().empty());
    }
}

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

TEST(ShareBlockOnWindows, WaitsForTheHostToLetGoOfTheMutex) {
    testing_support::RealHostPlatform platform;
    HostBlock host(GetCurrentProcessId(), 777, 256, L"0\t0\tC:\\w\t\t");
    ASSERT_TRUE(host.Valid());
    ASSERT_EQ(WAIT_OBJECT_0, WaitForSingleObject(host.Mutex(), 0));
    std::atomic<bool> done = false;
    std::thread reader([&] {
        ReadShareBlock(GetCurrentProcessId(), 777, 256);
        done = true;
    });
    Sleep(200);
    EXPECT_FALSE(done) << "read while the host held the mutex";
    EXPECT_EQ(L"0\t0\t", host.Contents().substr(0, 4));
    ReleaseMutex(host.Mutex());
    reader.join();
    EXPECT_TRUE(done);
    EXPECT_EQ((std::wstring{L'0', 0, L'0', 0}), host.Contents().substr(0, 4));
}

}  // namespace
