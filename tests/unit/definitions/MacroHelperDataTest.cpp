#include <gtest/gtest.h>

#include <optional>

#include "definitions/MacroHelperData.h"
#include "platform/fake/FakePlatform.h"
#include "unit/Utf16.h"

namespace {

constexpr const wchar_t* kProgramDirectory = L"C:\\Qor\\command\\Option\\";

// What one tab offers for the bytes of its file, found where the language's folder puts it.
TEST(MacroHelperDataTest, FileToRows) {
    const std::wstring longInformation(32763, L'x');
    // clang-format off
    struct Case { const char* what; int32_t mode; std::optional<std::vector<uint8_t>> bytes;
                  std::vector<MacroHelperRow> rows; bool malformed; };
    const Case cases[] = {
        {"entries in order, the last keeps its line end, a second tab stays in the information", 1,
         Utf16Bytes(L"?SelFile?\tquoted/?Name?\tname\tbare\r\n", true),
         {{L"?SelFile?", L"\tquoted"}, {L"?Name?", L"\tname\tbare\r\n"}}, false},
        {"only the first line counts", 3, Utf16Bytes(L"ON\tyes\r\nOFF\tno\r\n", true), {{L"ON", L"\tyes\r\n"}}, false},
        {"a trailing slash reports after the rows before it", 4, Utf16Bytes(L"MOUSE\tpointer/", true),
         {{L"MOUSE", L"\tpointer"}}, true},
        {"an empty entry in the middle ends the list", 0, Utf16Bytes(L"%A%\ta//%B%\tb\r\n", true), {{L"%A%", L"\ta"}},
         true},
        {"an empty first line in a file that exists", 5, Utf16Bytes(L"\r\n%Type%\ttype\r\n", true), {}, true},
        {"a byte order mark alone: nothing, silently", 5, Utf16Bytes(L"", true), {}, false},
        {"an empty file", 5, std::vector<uint8_t>{}, {}, false},
        {"a missing file", 5, std::nullopt, {}, false},
        {"byte order marks are deleted wherever they stand", 1, Utf16Bytes(L"?Da\uFEFFte?\t\uFEFFday", false),
         {{L"?Date?", L"\tday"}}, false},
        {"a line is read up to 32766 units, its byte order mark among them", 1, Utf16Bytes(L"A\t" + longInformation + L"yz\r\nB\tb", true),
         {{L"A", L"\t" + longInformation}}, false},
        {"environment names: trimmed, empties dropped, an unknown one is its own value", 2,
         Utf16Bytes(L" %Temp% / /%NO_SUCH%\r\n", true),
         {{L"%Temp%", L"\tC:\\Users\\tester\\Temp"}, {L"%NO_SUCH%", L"\t%NO_SUCH%"}}, false},
        {"a value holding a slash is cut there", 2, Utf16Bytes(L"%Odd%", true), {{L"%Odd%", L"\ta"}}, true},
        {"an environment file without names", 2, Utf16Bytes(L" / \r\n", true), {}, false},
    };
    // clang-format on
    for (const Case& c : cases) {
        platform::fake::FakePlatform fake;
        fake.environment().SetVariable(L"TEMP", L"C:\\Users\\tester\\Temp");
        fake.environment().SetVariable(L"ODD", L"a/b");
        const std::wstring path = MacroHelperFilePath(kProgramDirectory, L".en-US", c.mode);
        if (c.bytes) fake.files().AddFile(path, *c.bytes);
        EXPECT_EQ((MacroHelperOffer{c.rows, c.malformed}), LoadMacroHelperOffer(kProgramDirectory, L".en-US", c.mode))
            << c.what;
    }
    EXPECT_EQ(L"C:\\Qor\\command\\Option\\.ja-JP\\Option\\MacroHelper\\status_area.txt",
              MacroHelperFilePath(kProgramDirectory, L".ja-JP", kMacroHelperStatusArea));
}

}  // namespace
