// Preview plug-ins for real and the preview page's list as a user works it.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "pages/CPvPluginInfo.h"
#include "platform/win32/Win32Processes.h"
#include "platform/win32/Win32System.h"
#include "ui/ListView.h"
#include "win32/support/OptionDialogFixture.h"
#include "win32/support/RealHostPlatform.h"

namespace {

using namespace optiontest;
using testing_support::SystemText;

constexpr const wchar_t* kEditorTitle = L"プレビュープラグイン";
constexpr const wchar_t* kPluginSection = L"Software\\Tarnwick\\QOR\\Main001\\PvPlugin";

class PreviewPageTest : public OptionDialogFixture {
protected:
    void SetUp() override {
        OptionDialogFixture::SetUp();
        const std::vector<std::string> all = {"CreateCtrl", "DestroyCtrl",  "LoadFile",        "SendCommand",
                                              "ShowCtrl",   "ResizeWindow", "GetDefaultFilter"};
        fake_.system().AddCodeLibrary(L"C:\\Qor\\command\\PvPlugIn\\Peek.dll", {all, L"txt,log"});
        fake_.system().AddCodeLibrary(L"C:\\Qor\\command\\PvPlugIn\\Half.dll", {{"CreateCtrl"}, L""});
        fake_.files().AddFile(L"C:\\Qor\\Lang\\Msg.txt",
                              Utf16Bytes(L"62307\tAlready listed.\r\n62316\tThe list is full.\r\n", true));
        app_.messages.SetPath(L"C:\\Qor\\Lang\\Msg.txt");
    }

    // A refused plug-in keeps the editor open, and it is cancelled then.
    void Edit(HWND page, int button, const wchar_t* name, const wchar_t* extensions, bool refused) {
        WhenShown(kEditorTitle, [=](HWND editor) {
            SetDlgItemTextW(editor, 1001, name);
            SetDlgItemTextW(editor, 1007, extensions);
            SendMessageW(editor, WM_COMMAND, IDOK, 0);
            if (refused) SendMessageW(editor, WM_COMMAND, IDCANCEL, 0);
        });
        Click(page, button);
    }

    std::vector<std::wstring> Rows(HWND page) const {
        ui::ListView list(GetDlgItem(page, 1601));
        std::vector<std::wstring> rows;
        for (int row = 0; row < list.GetItemCount(); ++row)
            rows.push_back(list.GetItemText(row, 0) + L"=" + list.GetItemText(row, 1));
        return rows;
    }
};

// A name already listed in any letter case is refused, also when editing another row, while a row may keep
// its own name; a DLL that is no plug-in keeps the editor open. The font box opens on the stored font.
TEST_F(PreviewPageTest, TheListIsEditedInMemoryAndRegisteredAtApply) {
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 6);
    ASSERT_NE(nullptr, page);
    // clang-format off
    struct Step { int button; const wchar_t *name, *extensions; std::vector<std::wstring> rows, messages;
                  int select = -1; };
    const wchar_t* const inner = L"..\\PvPlugIn\\Peek.dll";
    const Step steps[] = {
        {1302, L"Peek.dll", L"", {L"Peek.dll=txt,log"}, {}},
        {1302, L"PEEK.dll", L"x", {L"Peek.dll=txt,log"}, {L"Already listed."}},
        {1302, L"Half.dll", L"x", {L"Peek.dll=txt,log"}, {L"Not plugin file..."}},
        {1302, L"Gone.dll", L"x", {L"Peek.dll=txt,log"}, {L"Error 126.\r\n", L"Not plugin file..."}},
        {1302, inner, L"htm", {L"Peek.dll=txt,log", inner + std::wstring(L"=htm")}, {}},
        {1303, L"peek.dll", L"y", {L"Peek.dll=txt,log", inner + std::wstring(L"=htm")}, {L"Already listed."}, 1},
        {1303, inner, L"md", {L"Peek.dll=txt,log", inner + std::wstring(L"=md")}, {}},
        {1305, nullptr, nullptr, {inner + std::wstring(L"=md"), L"Peek.dll=txt,log"}, {}},
        {1306, nullptr, nullptr, {L"Peek.dll=txt,log", inner + std::wstring(L"=md")}, {}},
        {1304, nullptr, nullptr, {L"Peek.dll=txt,log"}, {}},
    };
    // clang-format on
    ui::ListView list(GetDlgItem(page, 1601));
    for (const Step& s : steps) {
        SCOPED_TRACE(testing::Message() << s.button << " "
                                        << testing::PrintToString(std::wstring(s.name ? s.name : L"")));
        if (s.select >= 0) list.SelectRow(s.select);
        const size_t shown = fake_.prompts().shown().size();
        const bool refused = s.messages.size() && s.messages.back() == L"Not plugin file...";
        s.name ? Edit(page, s.button, s.name, s.extensions, refused) : Click(page, s.button);
        EXPECT_EQ(s.rows, Rows(page));
        EXPECT_EQ(s.messages, Messages(shown));
    }
    Click(page, 1301);
    EXPECT_EQ(std::vector<unsigned>{0x1800401}, fake_.prompts().fontOpenings());
    Apply(dialog);
    EXPECT_EQ(L"Peek.dll", DirectReadString(kPluginSection, L"Dll0", L"?"));
    EXPECT_EQ(L"txt,log", DirectReadString(kPluginSection, L"Ext0", L"?"));
    EXPECT_EQ(L"", DirectReadString(kPluginSection, L"Dll1", L"?"));

    // A full list takes one row more, then refuses before the editor opens.
    while (list.GetItemCount() <= 100)
        list.InsertItem(list.GetItemCount(), L"Row" + std::to_wstring(list.GetItemCount()));
    const size_t shown = fake_.prompts().shown().size();
    Click(page, 1302);
    EXPECT_EQ((std::vector<std::wstring>{L"The list is full."}), Messages(shown));
}

}  // namespace
