// A script engine on the fake platform: fixed directories, a fixed clock, script files in memory.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "script/ScriptRunner.h"
#include "services/MessageCatalog.h"
#include "settings/UserDirectories.h"
#include "unit/Utf16.h"

// Rows name what they check; what they leave out is expected empty, and the result 0.
struct ScriptCase {
    using Values = std::vector<std::pair<std::wstring, std::wstring>>;

    const char* label;
    std::vector<std::wstring> lines;
    Values values = {};
    std::vector<std::wstring> messages = {};
    int32_t result = 0;
};

class ScriptFixture : public testing::Test {
protected:
    static constexpr const wchar_t* kScriptDirectory = L"C:\\Users\\tester\\AppData\\Local\\Qor\\Script\\";

    ScriptFixture() {
        fake.environment().SetModuleFileName(L"C:\\Qor\\command\\Option\\Option.exe");
        fake.files().AddDirectory(L"C:\\Qor\\command\\Option");
        fake.files().AddDirectory(kScriptDirectory);
    }

    // A script of these lines, each ended by CR LF, behind a byte order mark; returns its path.
    std::wstring AddScript(const std::wstring& name, const std::vector<std::wstring>& lines) {
        std::wstring text;
        for (const std::wstring& line : lines) text += line + L"\r\n";
        const std::wstring path = kScriptDirectory + name;
        fake.files().AddFile(path, Utf16Bytes(text, true));
        return path;
    }

    int32_t Run(const std::wstring& path, VariableTable* variables = nullptr, RunOptionTable* options = nullptr) {
        return runner.Run(path, nowDirectory, L"", selection, static_cast<uint32_t>(-1), 1, 0, 0, 1, variables,
                          options);
    }

    // Fresh variables, kept for the checks; questions get the answers in turn.
    int32_t RunLines(const std::vector<std::wstring>& lines) {
        variables = VariableTable();
        fake.prompts().Clear();
        for (int answer : answers) fake.prompts().Answer(answer);
        return Run(AddScript(L"case.txt", lines), &variables);
    }

    // A variable's value, or "<none>" when it was never declared.
    std::wstring Value(const std::wstring& name) const {
        const std::wstring* value = variables.Find(name);
        return value ? *value : L"<none>";
    }

    // What the user is told of a line whose form is wrong, and asked of a line nobody understands.
    static std::wstring SyntaxError(const std::wstring& line) { return L"Syntax error!\n" + line; }
    static std::wstring NotUnderstood(const std::wstring& numberedLine) {
        return L"This is the line that I do not understand.\nDo you want to continue?\n" + numberedLine;
    }

    std::vector<std::wstring> Messages() {
        std::vector<std::wstring> texts;
        for (const auto& shown : fake.prompts().shown()) texts.push_back(shown.text);
        return texts;
    }

    void Check(const ScriptCase& c) {
        EXPECT_EQ(c.result, RunLines(c.lines)) << c.label;
        for (const auto& [name, value] : c.values)
            EXPECT_EQ(value, Value(name)) << c.label << ": " << testing::PrintToString(name);
        EXPECT_EQ(c.messages, Messages()) << c.label;
    }

    platform::fake::FakePlatform fake;
    UserDirectories directories;
    MessageCatalog messages;
    ScriptRunner runner{directories, messages};
    std::wstring nowDirectory;
    SelectionList selection;
    VariableTable variables;
    std::vector<int> answers;
};
