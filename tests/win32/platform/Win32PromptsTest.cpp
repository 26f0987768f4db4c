// The real folder browser and file open box, run on a thread of their own and worked from the test's thread.
#include <gtest/gtest.h>
#include <windows.h>
#include <commctrl.h>
#include <commdlg.h>
#include <objbase.h>
#include <shlobj.h>

#include <cstdio>
#include <filesystem>
#include <functional>
#include <optional>
#include <future>
#include <string>

#include "platform/win32/Win32Prompts.h"

namespace {

using platform::FolderChoice;

// The first visible window of the thread that fits, once it shows.
HWND ShownWindow(DWORD thread, bool (*fits)(HWND)) {
    struct Search {
        bool (*fits)(HWND);
        HWND found = nullptr;
    } search{fits};
    for (int tries = 0; tries < 200 && !search.found; ++tries) {
        EnumThreadWindows(
            thread,
            [](HWND window, LPARAM data) -> BOOL {
                auto& search = *reinterpret_cast<Search*>(data);
                if (!IsWindowVisible(window) || !search.fits(window)) return TRUE;
                search.found = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&search));
        if (!search.found) Sleep(50);
    }
    return search.found;
}

bool AnyWindow(HWND) {
    return true;
}

// The folder browser: a dialog holding a tree.
bool HoldsATree(HWND window) {
    return FindWindowExW(window, nullptr, WC_TREEVIEWW, nullptr) != nullptr;
}

// Asks on a thread of its own with COM, as the program does, lets work act on the window the question
// shows, and gives the answer.
template <typename Ask>
auto OnItsOwnThread(Ask ask, const std::function<void(HWND)>& work, bool (*fits)(HWND) = AnyWindow) {
    std::promise<DWORD> thread;
    auto answer = std::async(std::launch::async, [&] {
        CoInitialize(nullptr);
        thread.set_value(GetCurrentThreadId());
        platform::win32::Win32Prompts prompts;
        auto result = ask(prompts);
        CoUninitialize();
        return result;
    });
    HWND window = ShownWindow(thread.get_future().get(), fits);
    EXPECT_NE(nullptr, window);
    if (window) work(window);
    return answer.get();
}

std::wstring SelectedName(HWND browser) {
    HWND tree = FindWindowExW(browser, nullptr, WC_TREEVIEWW, nullptr);
    wchar_t text[MAX_PATH] = {};
    TVITEMW item = {};
    item.mask = TVIF_TEXT;
    item.hItem = TreeView_GetSelection(tree);
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    TreeView_GetItem(tree, &item);
    return text;
}

bool HasText(HWND dialog, const std::wstring& wanted) {
    for (HWND child = FindWindowExW(dialog, nullptr, L"Static", nullptr); child;
         child = FindWindowExW(dialog, child, L"Static", nullptr)) {
        wchar_t text[256] = {};
        GetWindowTextW(child, text, 256);
        if (wanted == text) return true;
    }
    return false;
}

FolderChoice Browse(const std::wstring& start, const std::function<void(HWND)>& work) {
    return OnItsOwnThread([&](platform::Prompts& prompts) { return prompts.BrowseForFolder(L"Where to?", start); },
                          work, HoldsATree);
}

TEST(Win32Prompts, FolderBrowser) {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / L"PromptsTestFolder";
    std::filesystem::create_directories(folder);
    const std::wstring path = folder.wstring();

    FolderChoice chosen = Browse(path, [&](HWND browser) {
        EXPECT_TRUE(HasText(browser, L"Where to?"));
        // The browser may show itself before it has walked its tree down to the start folder, and
        // on a busy machine Wine's browser now and then drops the selection made while it starts;
        // then it is made again from here, as a user would click it, and the run says so.
        for (int tries = 0; tries < 60 && SelectedName(browser) != L"PromptsTestFolder"; ++tries) Sleep(50);
        if (SelectedName(browser) != L"PromptsTestFolder") {
            std::printf("[ NOTE     ] the browser dropped its start selection; selected again\n");
            SendMessageW(browser, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(path.c_str()));
        }
        EXPECT_EQ(L"PromptsTestFolder", SelectedName(browser));
        PostMessageW(browser, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ((FolderChoice{true, path}), chosen);

    EXPECT_EQ(FolderChoice{}, Browse(path, [](HWND browser) { PostMessageW(browser, WM_COMMAND, IDCANCEL, 0); }));

    // "My Computer" has no path of its own.
    const auto pickMyComputer = [](HWND browser) {
        PIDLIST_ABSOLUTE drives = nullptr;
        ASSERT_EQ(S_OK, SHGetSpecialFolderLocation(nullptr, CSIDL_DRIVES, &drives));
        SendMessageW(browser, BFFM_SETSELECTIONW, FALSE, reinterpret_cast<LPARAM>(drives));
        CoTaskMemFree(drives);
        PostMessageW(browser, WM_COMMAND, IDOK, 0);
    };
    EXPECT_EQ((FolderChoice{true, L""}), Browse(L"", pickMyComputer));

    // Asked for its name, the same folder gives the shell's parsing name: "::{...}" for a virtual one.
    FolderChoice named =
        OnItsOwnThread([&](platform::Prompts& prompts) { return prompts.BrowseForFolderName(L"Where to?", L""); },
                       pickMyComputer, HoldsATree);
    EXPECT_TRUE(named.confirmed);
    EXPECT_EQ(0, _wcsicmp(L"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}", named.path.c_str()))
        << testing::PrintToString(named.path);
    std::filesystem::remove_all(folder);
}

// The file open box takes an existing file typed into it; Cancel gives nothing.
TEST(Win32Prompts, FileOpenBox) {
    constexpr int kFileName = 0x47C;  // the box's file name combo
    const std::filesystem::path file = std::filesystem::temp_directory_path() / L"PromptsTestFile.txt";
    {
        std::FILE* out = _wfopen(file.c_str(), L"wb");
        if (out) std::fclose(out);
    }
    const auto open = [&](const std::function<void(HWND)>& work) {
        return OnItsOwnThread(
            [&](platform::Prompts& prompts) {
                return prompts.ChooseFileToOpen(L"File open", L"All files(*.*)|*.*|", L"");
            },
            work, [](HWND window) { return GetDlgItem(window, kFileName) != nullptr; });
    };
    EXPECT_EQ((FolderChoice{true, file.wstring()}), open([&](HWND box) {
                  SetDlgItemTextW(box, kFileName, file.c_str());
                  PostMessageW(box, WM_COMMAND, IDOK, 0);
              }));
    EXPECT_EQ(FolderChoice{}, open([](HWND box) { PostMessageW(box, WM_COMMAND, IDCANCEL, 0); }));
    std::filesystem::remove(file);
}

// Command links count from 201; the message box shows the icon the framework's would (a warning for OK, a
// question mark for Yes/No, the caller's own); the font chooser gives the face where the system has it.
TEST(Win32Prompts, EachQuestionGivesTheAnswerOfTheButtonPressed) {
    using Ask = std::function<std::wstring(platform::Prompts&)>;
    const Ask choice = [](platform::Prompts& prompts) {
        return std::to_wstring(prompts.ChooseOne({L"Please select an application.", L"Report.txt", {L"a", L"b"}}));
    };
    auto message = [](unsigned style) -> Ask {
        return [style](platform::Prompts& prompts) {
            return std::to_wstring(prompts.ShowMessage(L"Text of the box", style));
        };
    };
    const Ask colour = [](platform::Prompts& prompts) {
        const std::optional<uint32_t> chosen = prompts.ChooseColour(0x336699);
        return chosen ? std::to_wstring(*chosen) : L"none";
    };
    const Ask font = [](platform::Prompts& prompts) {
        LogFont face{};
        face.lfHeight = -16;
        face.lfWeight = FW_NORMAL;
        wcscpy(face.lfFaceName, L"Tahoma");
        const std::optional<LogFont> chosen = prompts.ChooseFontFace(face, CF_SCREENFONTS);
        return chosen && chosen->lfFaceName[0] ? L"a face" : L"none";
    };
    const HICON none = nullptr;
    // clang-format off
    struct Case { const char* what; Ask ask; WPARAM pressed; std::wstring answer; std::optional<HICON> icon = {}; };
    const Case cases[] = {
        {"the second link", choice, 202, L"1"}, {"no alternative", choice, IDCANCEL, L"-1"},
        {"OK", message(MB_OK), IDOK, L"1", LoadIconW(nullptr, IDI_EXCLAMATION)},
        {"Yes/No", message(MB_YESNO), IDNO, L"7", LoadIconW(nullptr, IDI_QUESTION)},
        {"an icon of the caller's", message(MB_OK | MB_ICONINFORMATION), IDOK, L"1", LoadIconW(nullptr, IDI_INFORMATION)},
        {"no icon", message(MB_RETRYCANCEL), IDCANCEL, L"2", none},
        {"a colour", colour, IDOK, std::to_wstring(0x336699)}, {"no colour", colour, IDCANCEL, L"none"},
        {"a font", font, IDOK, L"a face"}, {"no font", font, IDCANCEL, L"none"},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        HICON shown = nullptr;
        EXPECT_EQ(c.answer, OnItsOwnThread(c.ask, [&](HWND box) {
                      for (HWND child = FindWindowExW(box, nullptr, L"Static", nullptr); c.icon && child && !shown;
                           child = FindWindowExW(box, child, L"Static", nullptr))
                          shown = reinterpret_cast<HICON>(SendMessageW(child, STM_GETICON, 0, 0));
                      PostMessageW(box, WM_COMMAND, c.pressed, 0);
                  }));
        if (c.icon) {
            EXPECT_EQ(*c.icon, shown);
        }
    }
}

}  // namespace
