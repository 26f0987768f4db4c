#include <gtest/gtest.h>

#include <string>

#include "definitions/CommandListEditing.h"
#include "platform/fake/FakePlatform.h"
#include "unit/Utf16.h"

namespace {

class CommandListEditingTest : public testing::Test {
protected:
    CommandListDocument Open(const std::wstring& name, const std::wstring& text) {
        const std::wstring path = L"C:\\User\\" + name;
        fake.files().AddFile(path, Utf16Bytes(text, true));
        CommandListDocument document(CommandListRange(path));
        EXPECT_TRUE(document.Load(path));
        return document;
    }

    platform::fake::FakePlatform fake;
};

TEST_F(CommandListEditingTest, TheNameOfTheFileGivesItsRange) {
    struct Case {
        const wchar_t* path;
        CommandIdRange range;
        const wchar_t* label;
    };
    const Case cases[] = {
        {L"C:\\User\\ScriptCommand.txt", {40004, 40500}, L"(40004 - 40500)"},
        {L"C:\\User\\scriptcommand.TXT", {40004, 40500}, L"(40004 - 40500)"},
        {L"D:/x/ExternalUserCommand.txt", {42501, 43000}, L"(42501 - 43000)"},
        {L"C:\\PlugInCommand.txt", {41501, 41600}, L"(41501 - 41600)"},
        {L"C:\\User\\MyCommands.txt", {0, 0}, L"(0 - 0)"},
        {L"C:\\ScriptCommand.txt\\x", {0, 0}, L"(0 - 0)"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.range, CommandListRange(c.path)) << testing::PrintToString(std::wstring(c.path));
        EXPECT_EQ(c.label, CommandRangeLabel(c.range));
    }
}

// The smallest identifier no row shows as a plain number, or the first of the range when all are taken.
TEST_F(CommandListEditingTest, AddingTakesTheSmallestFreeIdentifier) {
    std::wstring full;
    for (int id = 41501; id <= 41600; ++id) full += std::to_wstring(id) + L"\t\tN--\tx\ty\r\n";
    struct Case {
        const wchar_t* name;
        std::wstring text;
        const wchar_t* added;
    };
    const Case cases[] = {
        {L"ScriptCommand.txt", L"", L"40004"},
        {L"ScriptCommand.txt", L"40004\t\tN--\ta\tb\r\n40006\t\tN--\ta\tb\r\n", L"40005"},
        {L"ScriptCommand.txt", L"040004\t\tN--\ta\tb\r\n", L"40004"},
        {L"PlugInCommand.txt", full, L"41501"},
        {L"Mine.txt", L"0\t\tN--\ta\tb\r\n", L"0"},
    };
    for (const Case& c : cases) {
        CommandListDocument document = Open(c.name, c.text);
        const int row = document.Add();
        EXPECT_EQ(document.Count() - 1, row);
        EXPECT_EQ((CommandListLine{c.added, L"", L"---", L"New command", L"Comment"}), document.rows()[row]) << c.name;
        EXPECT_EQ(std::nullopt, document.FirstError()) << c.name;
    }
}

// Flags of other modes and rules of the other folder condition stay in the controls, not in the codes.
TEST_F(CommandListEditingTest, TheDetailsWriteOnlyTheCodesTheirModeHas) {
    struct Case {
        const wchar_t *communication, *condition;
        int32_t mode, folderCondition, selectionRule;
        const wchar_t *written, *writtenCondition;
        CommandDetailStates enabled;
    };
    // clang-format off
    const Case cases[] = {
        {L"CST", L"NFD", 1, 0, 0, L"CST", L"NFD", {true,  true,  false}},
        {L"CST", L"NFD", 2, 0, 0, L"X",   L"NFD", {false, true,  false}},
        {L"CS",  L"XF-", 3, 1, 0, L"M",   L"XF-", {false, true,  true}},
        {L"",    L"XFD", 0, 1, 1, L"",    L"B--", {false, false, true}},
        {L"T",   L"A--", 1, 0, 1, L"T",   L"N--", {true,  false, false}},
        {L"M",   L"",    1, 1, 0, L"",    L"---", {true,  true,  true}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.communication) + L"|" + c.condition));
        CommandListDocument document = Open(L"ScriptCommand.txt", std::wstring(L"40004\t") + c.communication + L"\t" +
                                                                      c.condition + L"\tcmd\tname\r\n");
        CommandDetails details = ReadCommandDetails(document.rows()[0]);
        details.communicationMode = c.mode;
        details.folderCondition = c.folderCondition;
        details.selectionRule = c.selectionRule;
        EXPECT_EQ(c.enabled, EnabledDetails(details));
        document.SetCommunication(0, details);
        document.SetCondition(0, details);
        EXPECT_EQ((CommandListLine{L"40004", c.written, c.writtenCondition, L"cmd", L"name"}), document.rows()[0]);
    }
}

// OK checks the rows from the top, each in this order: identifier in range, command line, comment.
TEST_F(CommandListEditingTest, OkRefusesTheFirstRowThatCannotBeSaved) {
    struct Case {
        const wchar_t* name;
        const wchar_t* text;
        std::optional<CommandRowError> error;
        bool commentCleared = false;  // in the first row's edit: no file line has an empty comment
    };
    const Case cases[] = {
        {L"ScriptCommand.txt", L"40003\t\tN--\tcmd\tname\r\n", CommandRowError{0, L"Error of ID range!\n40004-40500"}},
        {L"ScriptCommand.txt", L"40004\t\tN--\tcmd\tname\r\n40501\t\tN--\t\tname\r\n",
         CommandRowError{1, L"Error of ID range!\n40004-40500"}},
        {L"ScriptCommand.txt", L"40004\tN--\t \tname\r\n40005\t\tN--\t\tname\r\n",
         CommandRowError{1, L"Command string is required."}},
        {L"ScriptCommand.txt", L"40004\t\tN--\tcmd\tname\r\n", CommandRowError{0, L"Commment is required."}, true},
        {L"ScriptCommand.txt", L"40004\t\tN--\tcmd\tname\r\n40004\t\tN--\tcmd\tname\r\n", std::nullopt},
        {L"Mine.txt", L"0\t\tN--\tcmd\tname\r\n1\t\tN--\tcmd\tname\r\n",
         CommandRowError{1, L"Error of ID range!\n0-0"}},
    };
    for (const Case& c : cases) {
        CommandListDocument document = Open(c.name, c.text);
        if (c.commentCleared) document.SetComment(0, L"");
        EXPECT_EQ(c.error, document.FirstError()) << testing::PrintToString(std::wstring(c.text));
    }
}

}  // namespace
