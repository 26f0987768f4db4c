#include "services/HostHandshake.h"

#include <gtest/gtest.h>

namespace {

// The rest of the handshake is tried with real windows; here, the edges of the work area.
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

}  // namespace
