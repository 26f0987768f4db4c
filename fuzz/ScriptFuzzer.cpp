// libFuzzer target: arbitrary bytes as a script file, through the first pass, the cutting of lines
// and every macro group, with each line also as an item path and as patterns for the matchers; then
// the whole script is run, for a selection of two items. The fuzz build ends a run after a fixed
// number of lines, so loops and a script including itself stop, and ends it (ScriptTextLimitReached,
// caught here) before a line or value grows past a fixed length.
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "script/MacroExpansion.h"
#include "script/ScriptFirstPass.h"
#include "script/ScriptLine.h"
#include "script/ScriptMatchers.h"
#include "script/ScriptRunner.h"
#include "services/MessageCatalog.h"

namespace {

constexpr const wchar_t* kScript = L"C:\\Users\\tester\\AppData\\Local\\Qor\\Script\\fuzz.txt";

void ExpandLine(ScriptFrame& frame, const ScriptLine& line) {
    for (int32_t index : {-1, 0}) {
        frame.ItemIndex = index;
        frame.Expand(line.raw, index == 0);
    }
    frame.ItemIndex = -1;
    std::wstring places = line.statement;
    ExpandPlaceMacros(line.value, line.word, places);
    std::wstring item = line.spaced;
    ExpandItemMacros(line.statement, item);
    ContainsItemMacro(line.raw);
    MatchPatternList(line.word, line.value);
    MatchWildcard(line.value, line.statement);
    MatchExtensionList(line.value, line.statement);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    platform::fake::FakePlatform fake;
    fake.environment().SetModuleFileName(L"C:\\Qor\\command\\Option\\Option.exe");
    fake.environment().SetVariable(L"TEMP", L"C:\\Temp");
    fake.files().AddDirectory(L"C:\\Qor\\command\\Option");
    fake.files().AddFile(kScript, std::vector<uint8_t>(data, data + size));
    fake.windows().SetTitledWindow(L"Script trace Qor", 0x51);

    UserDirectories directories;
    MessageCatalog messages;
    ScriptRunner runner(directories, messages);
    SelectionList selection;
    VariableTable variables;
    variables.Set(L"i", L"2");
    variables.Set(L"a[2]", L"?SelFile?|?Date?");
    variables.Set(L"loop", L"loop");
    ScriptArguments arguments;
    arguments.scriptPath = kScript;
    arguments.selection = &selection;
    arguments.variables = &variables;
    ScriptFrame frame(runner, arguments);
    if (!frame.reader.Open(kScript) || !RunFirstPass(frame)) return 0;

    frame.reader.ReadPosition = 0;
    try {
        while (frame.ReadLine()) {
            const ScriptLine line = MakeScriptLine(frame, frame.line());
            // The line itself is the item, so item macros see every kind of path.
            selection.assign(1, line.statement);
            ExpandLine(frame, line);
        }
    } catch (const ScriptTextLimitReached&) {
        // A line grew too long; the run below starts afresh.
    }

    VariableTable shared;
    selection = {L"C:\\dir\\one.txt", L"two"};
    try {
        runner.Run(kScript, L"C:\\dir\\", L"C:\\dir\\one.txt", selection, static_cast<uint32_t>(-1), 1, 0, 0, 1,
                   &shared, nullptr);
    } catch (const ScriptTextLimitReached&) {
        // Ended like a run that reaches the line limit.
    }
    return 0;
}
