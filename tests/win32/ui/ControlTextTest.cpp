// Hidden labels: "/"-separated lists kept in a dialog template, read back as their parts.
#include "ui/ControlText.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "win32/resources/FrameworkTestRes.h"
#include "win32/ui/ScriptedDialog.h"

namespace {

using testing_support::FrameworkTest;
using testing_support::ScriptedDialog;
using Parts = std::vector<std::wstring>;

using ControlTextTest = FrameworkTest;

TEST_F(ControlTextTest, AHiddenLabelSplitsAtEverySlashKeepingEmptyParts) {
    ScriptedDialog dialog(IDD_FRAMEWORK_FIELDS);
    ASSERT_TRUE(dialog.Create(nullptr));
    HWND label = dialog.Item(IDC_FW_LABEL);
    ASSERT_FALSE(IsWindowVisible(label));
    const struct {
        const wchar_t* text;  // null: as the template has it
        Parts parts;
    } cases[] = {
        {nullptr, {L"General", L"", L"View", L""}},
        {L"外観", {L"外観"}},
        {L" a / b ", {L" a ", L" b "}},
        {L"/", {L"", L""}},
        {L"", {}},
    };
    for (const auto& c : cases) {
        if (c.text) SetWindowTextW(label, c.text);
        Parts parts{L"left", L"over"};
        EXPECT_EQ(static_cast<int>(c.parts.size()), ui::SplitControlText(label, parts));
        EXPECT_EQ(c.parts, parts);
    }
    SetWindowTextW(label, std::wstring(3000, L'x').c_str());
    EXPECT_EQ(3000u, ui::ControlText(label).size()) << "no length limit of its own";
}

}  // namespace
