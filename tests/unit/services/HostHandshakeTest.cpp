#include "services/HostHandshake.h"

#include <gtest/gtest.h>

#include "platform/fake/FakePlatform.h"

namespace {

using platform::fake::FakePlatform;
using platform::fake::SentCopyData;

TEST(HostHandshake, WindowModeDecidesParentCentringStyleAndComingForward) {
    // clang-format off
    struct Case { int32_t mode; HostPlacement expected; };
    const Case cases[] = {
        {0, {false, true, false, ComingForward::Deferred}}, {1, {false, true, false, ComingForward::TopmostThenForced}},
        {2, {false, true, true, ComingForward::TopmostThenForced}}, {3, {true, false, false, ComingForward::Nothing}},
        {4, {false, true, true, ComingForward::Deferred}}, {5, {false, true, false, ComingForward::Deferred}},
        {-1, {false, true, false, ComingForward::Deferred}},
    };
    // clang-format on
    for (const Case& c : cases) EXPECT_EQ(c.expected, PlacementForMode(c.mode)) << "mode " << c.mode;
}

TEST(HostHandshake, OnlyModeThreeMakesTheFirstHostTheParent) {
    FakePlatform fake;
    EXPECT_EQ(0u, HostParent(3)) << "no host runs";
    fake.windows().AddHostWindow(0x10);
    fake.windows().AddHostWindow(0x20);
    EXPECT_EQ(0x10u, HostParent(3));
    EXPECT_EQ(0u, HostParent(0));
    EXPECT_EQ(0u, HostParent(2));
}

TEST(HostHandshake, CentresOnTheHostInsideTheWorkArea) {
    const ScreenRect work{0, 0, 1280, 1000};
    // clang-format off
    struct Case { const char* what; ScreenRect host; ScreenRect dialog; ScreenRect expected; };
    const Case cases[] = {
        {"in the middle", {100, 100, 740, 580}, {0, 0, 300, 200}, {270, 240, 570, 440}},
        {"odd halves truncate toward zero", {0, 0, 101, 101}, {5, 5, 105, 105}, {0, 0, 100, 100}},
        {"a larger dialog truncates toward zero too", {100, 100, 200, 200}, {0, 0, 103, 103}, {99, 99, 202, 202}},
        {"pushed left and up off the far edges", {1000, 900, 1280, 1000}, {0, 0, 400, 300}, {880, 700, 1280, 1000}},
        {"pushed right and down off the near edges", {-200, -100, 0, 0}, {0, 0, 300, 200}, {0, 0, 300, 200}},
        {"larger than the work area keeps left and top", {0, 0, 100, 100}, {0, 0, 1400, 1100}, {0, 0, 1400, 1100}},
    };
    // clang-format on
    for (const Case& c : cases) EXPECT_EQ(c.expected, CentredOnHost(c.host, c.dialog, work)) << c.what;
    EXPECT_EQ((ScreenRect{1330, 30, 1430, 130}),
              CentredOnHost({1280, 0, 1480, 140}, {0, 0, 100, 100}, {1280, 30, 2560, 1024}))
        << "a second monitor";
}

TEST(HostHandshake, CopyDataAnnouncesFourTimesTheTextAndComesFromTheMainWindow) {
    FakePlatform fake;
    fake.windows().SetMainWindow(0x77);
    CopyDataToWindow(0x10, L"abc", 7);
    CopyDataToWindow(0x10, L"", 8);
    CopyNumberedTextToWindow(0x20, L"C:\\a b", -3, 9);
    CopyNumberedTextToWindow(0, L"nobody", 1, 9);
    EXPECT_EQ((std::vector<SentCopyData>{
                  {0x10, 0x77, 7, L"abc", 32}, {0x10, 0x77, 8, L"", 8}, {0x20, 0x77, 9, L"-3/C:\\a b", 80}}),
              fake.windows().copies());
}

}  // namespace
