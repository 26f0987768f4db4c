// Scripts the host runs when the wheel turns: the file name says which buttons and keys were held
// and which way the wheel went, so the user makes one script per combination.
#pragma once

#include <cstdint>
#include <string>

struct AppServices;

// The page's nine boxes, in the order of the letters in the name.
enum WheelBox : uint32_t {
    kWheelLeft = 1u << 0,
    kWheelRight = 1u << 1,
    kWheelMiddle = 1u << 2,
    kWheelBack = 1u << 3,
    kWheelForward = 1u << 4,
    kWheelAlt = 1u << 5,
    kWheelCtrl = 1u << 6,
    kWheelShift = 1u << 7,
    kWheelUp = 1u << 8,
};
constexpr int kWheelBoxes = 9;

// "_ListWheel" + one character per box + ".txt": a letter for each button or key held, "-" for one
// not held, and "U" or "D" for the direction. The host composes the same name.
std::wstring WheelScriptName(uint32_t boxes);

// A script can be tried only while the scripts are in use and a button or key is held: the direction
// alone names no combination.
bool WheelScriptTestable(int32_t useWheelCmd, uint32_t boxes);

// Opens the named script of the user's Script folder with the editor script. A missing one is made
// first, empty, if the user agrees; an existing one is never touched.
void OpenWheelScript(AppServices& app, const std::wstring& name);
