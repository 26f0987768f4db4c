#include <gtest/gtest.h>

#include "definitions/CommunicationCode.h"
#include "definitions/ConditionCode.h"

namespace {

using Mode = CommunicationCode::Mode;

TEST(CommunicationCode, ReadAndWrite) {
    // clang-format off
    struct Case { const wchar_t* text; CommunicationCode code; const wchar_t* written; };
    const Case cases[] = {
        {L"", {}, L""}, {L"C", {Mode::DragAndDrop, true, false, false}, L"C"},
        {L"TSC", {Mode::DragAndDrop, true, true, true}, L"CST"}, {L"ST", {Mode::DragAndDrop, false, true, true}, L"ST"},
        {L"X", {Mode::CopyData}, L"X"}, {L"M", {Mode::SharedMemory}, L"M"}, {L"CSX", {Mode::CopyData}, L"X"},
        {L"MC", {Mode::DragAndDrop, true, false, false}, L"C"}, {L"XM", {Mode::SharedMemory}, L"M"}, {L"c?Z", {}, L""},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(c.code, CommunicationCode::Read(c.text)) << testing::PrintToString(std::wstring(c.text));
        EXPECT_EQ(c.written, c.code.Write()) << testing::PrintToString(std::wstring(c.text));
    }
}

TEST(ConditionCode, ReadAndWrite) {
    // clang-format off
    // The code's fields: folder condition, selection rule, virtual rule, file, folder.
    struct Case { const wchar_t* text; ConditionCode code; const wchar_t* written; };
    const Case cases[] = {
        {L"", {1, 0, 0, false, false}, L"---"}, {L"N--", {0, 0, 0, false, false}, L"N--"},
        {L"NF-", {0, 0, 0, true, false}, L"NF-"}, {L"N-D", {0, 0, 0, false, true}, L"N-D"},
        {L"-FD", {1, 0, 0, true, true}, L"-FD"}, {L"X-D", {1, 0, 1, false, true}, L"X-D"},
        {L"A--", {1, 1, 0, false, false}, L"A--"}, {L"BFD", {1, 1, 1, false, false}, L"B--"},
        // Later letters: "N" and "X" set the folder condition only.
        {L"-N", {0, 0, 0, false, false}, L"N--"}, {L"XN", {0, 0, 1, false, false}, L"N--"},
        {L"NX", {1, 0, 0, false, false}, L"---"},
        // A later "A" or "B" keeps the selection conditions and clears the flags.
        {L"NFA", {1, 0, 0, false, false}, L"---"}, {L"-FDB", {1, 0, 1, false, false}, L"X--"},
        {L"XF-BD", {1, 0, 1, false, false}, L"X--"},
        // An unknown first letter leaves folder condition 0.
        {L"?F", {0, 0, 0, true, false}, L"NF-"},
    };
    // clang-format on
    for (const Case& c : cases) {
        EXPECT_EQ(c.code, ConditionCode::Read(c.text)) << testing::PrintToString(std::wstring(c.text));
        EXPECT_EQ(c.written, c.code.Write()) << testing::PrintToString(std::wstring(c.text));
    }
}

}  // namespace
