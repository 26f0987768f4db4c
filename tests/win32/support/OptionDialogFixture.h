// The option dialog in the test's own process with its real templates; everything else is the fakes', so
// each test starts clean and sees every message box, launch and host message.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/AppServices.h"
#include "app/COptionDlg.h"
#include "app/OptionPageTable.h"
#include "app/Startup.h"
#include "platform/fake/FakePlatform.h"
#include "resources/app/AppIds.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsStore.h"
#include "ui/ListView.h"
#include "ui/TreeView.h"
#include "unit/Utf16.h"
#include "win32/ui/ScriptedDialog.h"

namespace optiontest {

inline constexpr const wchar_t* kProgram = L"C:\\Qor\\command\\Option\\Option.exe";

using testing_support::TextOf;

inline HWND Tree(const COptionDlg& dialog) {
    return dialog.Item(IDC_OPTION_TREE);
}

// The tree item whose data is id, searched depth first; null when there is none.
inline HTREEITEM FindItem(const ui::TreeView& tree, HTREEITEM first, int id) {
    for (HTREEITEM item = first; item; item = tree.GetNextSiblingItem(item)) {
        if (tree.GetItemData(item) == id) return item;
        if (HTREEITEM found = FindItem(tree, tree.GetChildItem(item), id)) return found;
    }
    return nullptr;
}

inline void Select(const COptionDlg& dialog, int id) {
    ui::TreeView tree(Tree(dialog));
    HTREEITEM item = FindItem(tree, tree.GetRootItem(), id);
    ASSERT_NE(nullptr, item) << "no item " << id;
    tree.SelectItem(item);
}

inline std::wstring SelectedLabel(const COptionDlg& dialog) {
    ui::TreeView tree(Tree(dialog));
    HTREEITEM item = tree.GetSelectedItem();
    return item ? tree.GetItemText(item) : L"<none>";
}

inline std::vector<int> OpenedPages(const COptionDlg& dialog) {
    std::vector<int> ids;
    auto pages = OptionPages();
    for (size_t i = 0; i < pages.size(); ++i) {
        if (dialog.Pages()[i]->opened) ids.push_back(pages[i].id);
    }
    return ids;
}

// The texts of one column of a list view, row by row.
inline std::vector<std::wstring> Column(HWND list, int column) {
    const ui::ListView view(list);
    std::vector<std::wstring> texts;
    for (int row = 0; row < view.GetItemCount(); ++row) texts.push_back(view.GetItemText(row, column));
    return texts;
}

// Whether each control of a dialog takes input.
inline std::vector<bool> Enabled(HWND dialog, std::initializer_list<int> ids) {
    std::vector<bool> enabled;
    for (int id : ids) enabled.push_back(IsWindowEnabled(GetDlgItem(dialog, id)) != FALSE);
    return enabled;
}

inline RECT ScreenRect(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
}

// Presses a button of a dialog as the user would: a radio or check box changes its state too.
inline void Click(HWND dialog, int id) {
    SendDlgItemMessageW(dialog, id, BM_CLICK, 0, 0);
}

// Acts on the next dialog titled so once it shows: a modal window the test has no other hold on. One that has not come
// in five seconds fails the test, and the active window is cancelled so that its modal loop ends.
inline void WhenShown(const wchar_t* title, std::function<void(HWND)> act) {
    static std::wstring wanted;
    static std::function<void(HWND)> action;
    static int ticks;
    wanted = title, action = std::move(act), ticks = 0;
    SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR id, DWORD) {
        HWND window = FindWindowW(L"#32770", wanted.c_str());
        if (!window && ++ticks < 100) return;
        KillTimer(nullptr, id);
        if (window) return action(window);
        ADD_FAILURE() << "no window came titled " << testing::PrintToString(wanted);
        PostMessageW(GetActiveWindow(), WM_COMMAND, IDCANCEL, 0);
    });
}

// Runs the dialog modally; once the modal loop runs, each step gets the dialog's window in turn,
// the next one after what the one before posted has been handled.
inline INT_PTR RunModal(ui::Dialog& dialog, std::vector<std::function<void(HWND)>> steps) {
    static ui::Dialog* running;
    static std::vector<std::function<void(HWND)>>* pending;
    static size_t next;
    running = &dialog;
    pending = &steps;
    next = 0;
    UINT_PTR timer = SetTimer(nullptr, 0, 50, [](HWND, UINT, UINT_PTR id, DWORD) {
        if (next >= pending->size()) return;
        (*pending)[next++](running->hwnd());
    });
    INT_PTR result = dialog.DoModal(nullptr);
    KillTimer(nullptr, timer);
    return result;
}

class OptionDialogFixture : public testing::Test {
protected:
    void SetUp() override {
        INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_WIN95_CLASSES};
        InitCommonControlsEx(&controls);
        fake_.environment().SetModuleFileName(kProgram);
        app_.commandOptionRoot = CommandOptionRootPath();
    }

    std::wstring PageKey() const { return app_.commandOptionRoot + L"\\OptionPage"; }

    void SetStart(std::optional<int> start) {
        fake_.registry().DeleteKey(PageKey());
        if (start) DirectWriteInt(PageKey(), L"Start", *start);
    }

    // The dialog opened on the page, and the page's window; null when the page did not open.
    HWND Open(COptionDlg& dialog, int page) {
        SetStart(page);
        if (!dialog.Create(nullptr)) return nullptr;
        return dialog.Page(page) && dialog.Page(page)->opened ? dialog.Page(page)->hwnd() : nullptr;
    }
    static void Apply(const COptionDlg& dialog) {
        SendMessageW(dialog.hwnd(), WM_COMMAND, MAKEWPARAM(IDC_OPTION_APPLY, BN_CLICKED), 0);
    }

    // What the host heard from the given point on, without the brackets of each series.
    std::vector<uint16_t> Codes(size_t from = 0) {
        std::vector<uint16_t> codes;
        const auto& sent = fake_.windows().commands();
        for (size_t i = from; i < sent.size(); ++i)
            if (sent[i].id != 48999 && sent[i].id != 49099) codes.push_back(sent[i].id);
        return codes;
    }
    // The texts of the message boxes shown from the given point on.
    std::vector<std::wstring> Messages(size_t from = 0) {
        std::vector<std::wstring> texts;
        const auto& shown = fake_.prompts().shown();
        for (size_t i = from; i < shown.size(); ++i) texts.push_back(shown[i].text);
        return texts;
    }

    // A dialog text file, the option dialog's own unless another is named, in a language other than the templates' own.
    void Translate(const std::wstring& text, const std::wstring& file = L"159") {
        DirectWriteString(kDirectSettingsPath, L"NLS", L".en-US");
        fake_.files().AddFile(L"C:\\Qor\\command\\Option\\.en-US\\Option\\" + file + L".txt", Utf16Bytes(text, true));
    }

    platform::fake::FakePlatform fake_;
    AppServices app_{96};
};

}  // namespace optiontest
