#include "ui/WindowCentre.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

TEST(WindowCentre, TheMiddleOfTheClientAreaOnTheScreen) {
    HWND frame = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_BORDER, 100, 200, 302, 102, nullptr, nullptr,
                                 GetModuleHandleW(nullptr), nullptr);
    HWND child = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 10, 20, 41, 60, frame, nullptr, GetModuleHandleW(nullptr),
                                 nullptr);
    const struct {
        HWND window;
        POINT centre;
    } cases[] = {
        {frame, {101 + 150, 201 + 50}},           // the border is no part of the client area
        {child, {101 + 10 + 20, 201 + 20 + 30}},  // halves are rounded down
    };
    for (const auto& c : cases) {
        POINT centre = ui::WindowCentre(c.window);
        EXPECT_EQ(c.centre.x, centre.x);
        EXPECT_EQ(c.centre.y, centre.y);
    }
    DestroyWindow(frame);
}

}  // namespace
