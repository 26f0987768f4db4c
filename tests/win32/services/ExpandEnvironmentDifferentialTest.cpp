// Our expansion of "%NAME%" against ExpandEnvironmentStringsW, on the same environment.
#include <gtest/gtest.h>

#include <windows.h>

#include <vector>

#include "platform/win32/Win32Platform.h"
#include "services/PathHelpers.h"
#include "win32/services/Differential.h"

using differential::Generator;
using differential::Hex;
using differential::Mismatches;

namespace {

std::wstring SystemExpansion(const std::wstring& text) {
    std::vector<wchar_t> buffer(16384, L'\0');
    ExpandEnvironmentStringsW(text.c_str(), buffer.data(), static_cast<DWORD>(buffer.size()));
    return buffer.data();
}

// Texts with defined and undefined names in any case, stray and doubled percent signs, empty names.
std::wstring Text(Generator& g) {
    static const wchar_t* const pieces[] = {L"%",         L"%%",         L"OPT_A",   L"opt_a",        L"OPT_EMPTY",
                                            L"OPT_NONE",  L"%OPT_A%",    L"%opt_b%", L"%OPT_NONE%",   L"%OPT_EMPTY%",
                                            L"C:\\dir\\", L" ",          L"x",       L"\x65E5\x672C", L"%OPT_A",
                                            L"OPT_B%",    L"%OPT_LONG%", L"%=C:%",   L"%PATHEXT%",    L"%Opt_B%%"};
    std::wstring text;
    for (size_t n = g.Below(7); n > 0; --n) text += g.Pick(pieces);
    return text;
}

TEST(ExpandEnvironmentDifferential, MatchesTheSystemOnGeneratedTexts) {
    platform::win32::Win32Platform system;
    SetEnvironmentVariableW(L"OPT_A", L"alpha");
    SetEnvironmentVariableW(L"OPT_B", L"%OPT_A%");
    SetEnvironmentVariableW(L"OPT_EMPTY", L"");
    SetEnvironmentVariableW(L"OPT_NONE", nullptr);
    SetEnvironmentVariableW(L"OPT_LONG", std::wstring(300, L'L').c_str());
    Generator g(2718);
    Mismatches mismatches;
    for (int i = 0; i < 5000; ++i) {
        std::wstring text = Text(g);
        std::wstring expected = SystemExpansion(text);
        std::wstring found = ExpandEnvironment(text);
        if (found != expected) mismatches.Add(Hex(text) + " -> " + Hex(found) + " expected " + Hex(expected));
    }
    EXPECT_EQ(0u, mismatches.count()) << mismatches.Report();
}

}  // namespace
