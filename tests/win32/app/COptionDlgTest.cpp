// The option dialog itself: its tree, its pages made on demand, closing, help.
#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <typeinfo>
#include <vector>

#include "bindings/KeyTableFiles.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

class COptionDlgTest : public OptionDialogFixture {};

// An edit put into a page, as a page of its own would have one.
HWND AddEdit(HWND page, DWORD style = 0) {
    return CreateWindowExW(0, L"Edit", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 0, 0, 100, 20, page,
                           reinterpret_cast<HMENU>(100), GetModuleHandleW(nullptr), nullptr);
}

// The tree keeps the roots before the faulty list, and a page stays out of the dialog and of Apply.
TEST_F(COptionDlgTest, ATranslationWithAWrongLabelCountIsToldAndKeepsItsPartOut) {
    // clang-format off
    struct Case { int page; const wchar_t* file; const wchar_t* text; const wchar_t* told; };
    const Case cases[] = {
        {2, L"105", L"Keys\r\n1403\tStatic\tCommand/Search\r\n", L"String of 2 is required ID:1403, but it has become 9"},
        {31, L"127", L"Tabs\r\n1401\tStatic\tClose/Open\r\n", L"String of 2 is required ID:1401, but it has become 16"},
        {26, L"198", L"\r\n1404\tStatic\tExtension colours/Group/Colour\r\n", L"Encountered an improper argument."},
        {36, L"159", L"Options\r\n1403\tStatic\tBars/Tab bar\r\n", L"String of 2 is required ID:1403, but it has become 9"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.page);
        fake_.prompts().Clear();
        Translate(c.text, c.file);
        AppServices app{96};  // a process of its own, which reads the language anew
        app.commandOptionRoot = app_.commandOptionRoot;
        COptionDlg dialog(app);
        EXPECT_EQ(nullptr, Open(dialog, c.page));
        Apply(dialog);
        EXPECT_EQ(std::vector<std::wstring>{c.told}, Messages());
        std::vector<uint8_t> keys;
        EXPECT_FALSE(fake_.files().ReadFile(KeyFilePath(app.directories.UserDirectory(), 0), keys)) << "no key file";
        if (c.page != 36) continue;
        EXPECT_EQ(L"Options", TextOf(dialog.hwnd()));
        int before = 0;
        for (const OptionTreeRow& row : OptionTreeRows()) before += row.labelList < IDC_OPTION_LABELS_BAR;
        EXPECT_EQ(before, ui::TreeView(Tree(dialog)).GetCount()) << "the roots before the faulty list";
        EXPECT_EQ(L"<none>", SelectedLabel(dialog));
        EXPECT_EQ(nullptr, dialog.CurrentPage());
        EXPECT_EQ(std::vector<int>{}, OpenedPages(dialog));
    }
}

// A multi-line edit keeps its Enter, and a focused button takes it as a click (the reset stores at once).
TEST_F(COptionDlgTest, EnterAndEscapeAnywhereCloseTheWholeDialog) {
    // clang-format off
    struct Case { const char* what; std::function<void(COptionDlg&, HWND)> act; INT_PTR result; bool reset = false; };
    // clang-format on
    auto keyInPageEdit = [](WPARAM key, DWORD style = 0) {
        return [key, style](COptionDlg& dialog, HWND) {
            Select(dialog, 24);
            PostMessageW(AddEdit(dialog.Page(24)->hwnd(), style), WM_KEYDOWN, key, 0);
        };
    };
    auto enterOnReset = [](COptionDlg& dialog, HWND) {
        Select(dialog, 34);
        PostMessageW(GetDlgItem(dialog.Page(34)->hwnd(), 1301), WM_KEYDOWN, VK_RETURN, 0);
    };
    const Case cases[] = {
        {"a page posts OK", [](COptionDlg&, HWND w) { PostMessageW(w, kPageOkMessage, 0, 0); }, IDOK},
        {"a page posts Cancel", [](COptionDlg&, HWND w) { PostMessageW(w, kPageCancelMessage, 0, 0); }, IDCANCEL},
        {"Enter in an edit of a page", keyInPageEdit(VK_RETURN), IDOK},
        {"Escape in an edit of a page", keyInPageEdit(VK_ESCAPE), IDCANCEL},
        {"Enter in a multi-line edit", keyInPageEdit(VK_RETURN, ES_MULTILINE | ES_WANTRETURN), IDCANCEL},
        {"Enter on a focused button", enterOnReset, IDCANCEL, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        SetStart(std::nullopt);
        COptionDlg dialog(app_);
        EXPECT_EQ(c.result, RunModal(dialog, {[&](HWND window) { c.act(dialog, window); },
                                              [](HWND window) { PostMessageW(window, WM_COMMAND, IDCANCEL, 0); }}));
        EXPECT_EQ(c.reset,
                  DirectReadString(L"Software\\Tarnwick\\QOR\\Main001\\AppInfo", L"VersionCheckTime", L"") != L"");
    }
}

// By F1 as the keyboard gives it with the focus in the tree, by WM_HELP, or by the help command.
TEST_F(COptionDlgTest, HelpOpensTheManualPageOfTheSelection) {
    enum How { Keyboard, HelpMessage, Command };
    // clang-format off
    struct Case { int select; How how; const wchar_t* file; };
    const Case cases[] = {
        {28, Keyboard, L"C:\\Qor\\Manual\\7.Option\\2.List\\06.html"},
        {36, HelpMessage, L"C:\\Qor\\Manual\\7.Option\\2.List\\10.html"},
        {23, Command, L"C:\\Qor\\Manual\\7.Option\\4.Interface\\03_2.html"},
        {1001, HelpMessage, L"C:\\Qor\\Manual\\7.Option\\00.html"},
    };
    // clang-format on
    auto press = [](DWORD flags) {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = VK_F1;
        input.ki.dwFlags = flags;
        SendInput(1, &input, sizeof(input));
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.select);
        SetStart(c.select);
        COptionDlg dialog(app_);
        const size_t before = fake_.processes().shellRequests().size();
        HWND shown = nullptr;
        RunModal(dialog, {[&](HWND window) {
                              SetForegroundWindow(window);
                              SetFocus(Tree(dialog));
                          },
                          [&](HWND window) {
                              shown = window;
                              if (c.how == Keyboard) return press(0), press(KEYEVENTF_KEYUP);
                              if (c.how == Command) return void(SendMessageW(window, WM_COMMAND, ID_HELP, 0));
                              HELPINFO info{sizeof(info), HELPINFO_WINDOW, 0, Tree(dialog), 0, {0, 0}};
                              SendMessageW(window, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
                          },
                          [](HWND) {}, [](HWND window) { PostMessageW(window, WM_COMMAND, IDCANCEL, 0); }});
        ASSERT_EQ(before + 1, fake_.processes().shellRequests().size());
        EXPECT_EQ((platform::ShellRequest{512, reinterpret_cast<platform::WindowRef>(shown), c.file, L"", L"", 5}),
                  fake_.processes().shellRequests().back());
    }
}

}  // namespace
