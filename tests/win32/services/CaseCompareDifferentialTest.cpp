// Our case-insensitive equality of paths against the system's StrCmpIW, which the folder rules' duplicate check stands
// for: pairs across the scripts users name folders in, ligatures and units that weigh nothing. Left out: a letter
// followed by a combining mark, which the system takes for its precomposed form and we do not.
#include <gtest/gtest.h>

#include <shlwapi.h>

#include "services/CaseCompare.h"
#include "win32/services/Differential.h"

using differential::Hex;

namespace {

TEST(CaseCompareDifferential, PathsMeetAsStrCmpIWSays) {
    // clang-format off
    const std::pair<std::wstring, std::wstring> pairs[] = {
        {L"C:\\Work", L"c:\\WORK"}, {L"C:\\Work", L"C:\\Works"}, {L"abc", L"abd"}, {L"", L""}, {L"a", L""},
        {L"co-op", L"coop"}, {L"a b", L"ab"}, {L"a~b", L"A~B"},
        {L"\x00C9t\x00E9", L"\x00E9T\x00C9"}, {L"\x00E9", L"e"}, {L"\x00C4", L"\x00E4"}, {L"\x00D8", L"\x00F8"},
        {L"\xFF21\xFF42", L"\xFF41\xFF22"}, {L"\xFF21", L"A"}, {L"\xFF11", L"1"},
        {L"\x03A9\x03A3", L"\x03C9\x03C3"}, {L"\x03C3", L"\x03C2"}, {L"\x0416\x0401", L"\x0436\x0451"},
        {L"\x0416", L"\x0417"},
        {L"\x30A2", L"\x3042"}, {L"\xFF71", L"\x30A2"}, {L"\x30AC", L"\x30AB\x3099"}, {L"\x30D5\x30A9\x30EB\x30C0",
         L"\x30D5\x30A9\x30EB\x30C0"},
        {L"\x00DF", L"ss"}, {L"\x00DF", L"SS"}, {L"\x1E9E", L"\x00DF"}, {L"Stra\x00DF" L"e", L"STRASSE"},
        {L"\x00C6ra", L"aera"}, {L"\xFB01le", L"FILE"}, {L"\x00DF", L"s"}, {L"\x00DF", L"sss"},
        {L"\x0130", L"i"}, {L"\x0130", L"I"}, {L"\x0131", L"I"}, {L"\x0131", L"i"},
        {L"a\x00AD" L"b", L"ab"}, {L"a\x200B" L"b", L"ab"}, {L"a\x200D" L"b", L"a\x200C" L"b"}, {L"\x00AD", L""},
    };
    // clang-format on
    for (const auto& [a, b] : pairs) {
        for (const auto& [left, right] : {std::pair(a, b), std::pair(b, a)}) {
            EXPECT_EQ(StrCmpIW(left.c_str(), right.c_str()) == 0, crt::EqualCollatingNoCase(left, right))
                << Hex(left) << " vs " << Hex(right);
        }
    }
}

}  // namespace
