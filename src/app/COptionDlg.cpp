#include "app/COptionDlg.h"

#include <algorithm>
#include <string>

#include "app/AppServices.h"
#include "app/HelpPage.h"
#include "platform/Platform.h"
#include "resources/app/AppIds.h"
#include "services/CheckLabelCount.h"
#include "settings/SettingsStore.h"
#include "ui/ControlText.h"
#include "ui/HostPlacement.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr const wchar_t* kOptionPageKey = L"\\OptionPage";
constexpr const wchar_t* kStartValue = L"Start";
constexpr const wchar_t* kSetFolderValue = L"SetFolder";
constexpr int kLastGroupId = 1010;
// The pages of the frame are numbered from 2 to 45.
constexpr int kFirstPageId = 2;
constexpr int kLastPageId = 45;

bool IsKnownGroup(int id) {
    return id >= kDefaultGroupId && id <= kLastGroupId;
}

platform::WindowRef Ref(HWND window) {
    return reinterpret_cast<platform::WindowRef>(window);
}

}  // namespace

COptionDlg::COptionDlg(AppServices& app) : ui::Dialog(IDD_OPTION), app_(app), none_(app) {
    for (const OptionPageInfo& page : OptionPages()) pages_.push_back(MakeOptionPage(page, app));
}

// The pages' windows are children of ours: they go first, while every handler is still there.
COptionDlg::~COptionDlg() {
    DestroyWindow();
}

OptionPage* COptionDlg::Page(int id) const {
    auto pages = OptionPages();
    for (size_t i = 0; i < pages.size(); ++i) {
        if (pages[i].id == id) return pages_[i].get();
    }
    return nullptr;
}

std::optional<LRESULT> COptionDlg::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case kPageOkMessage:
            OnOK();
            return 1;
        case kPageCancelMessage:
            OnCancel();
            return 1;
        case kHostProbeMessage:
            return 1;
        case WM_HELP:
            ShowHelp();
            return TRUE;
        case WM_DESTROY:
            if (platform::Current().windows.MainWindow() == Ref(hwnd())) platform::Current().windows.SetMainWindow(0);
            break;
        default:
            break;
    }
    return ui::Dialog::OnMessage(message, wParam, lParam);
}

bool COptionDlg::OnInitDialog() {
    ui::Dialog::OnInitDialog();
    platform::Current().windows.SetMainWindow(Ref(hwnd()));
    ui::LocaliseDialog(hwnd(), IDD_OPTION, app_.dialogLanguage);
    tree_ = ui::TreeView(hwnd(), IDC_OPTION_TREE);
    ReadRequests();
    ui::SplitControlText(Item(IDC_OPTION_MOUSE_BUTTONS), app_.mouseButtonNames);
    ui::SplitControlText(Item(IDC_OPTION_MODIFIERS), app_.modifierNames);
    if (!BuildTree()) return false;
    tree_.SelectItem(toSelect_);
    ui::PrepareOptionDialog(hwnd(), app_.host.windowMode);
    tree_.Focus();
    return false;
}

// Start names the tree item to open on; SetFolder asks, once, for a folder in the folder settings.
void COptionDlg::ReadRequests() {
    const std::wstring key = app_.commandOptionRoot + kOptionPageKey;
    start_ = DirectReadInt(key, kStartValue, kDefaultGroupId);
    app_.setFolder = DirectReadString(key, kSetFolderValue, L"");
    if (!app_.setFolder.empty()) DirectWriteString(key, kSetFolderValue, L"");
}

bool COptionDlg::BuildTree() {
    std::vector<OptionTreeItem> items;
    std::vector<HTREEITEM> handles;
    const int32_t start = start_;
    for (int list = kFirstLabelList; list <= kLastLabelList; ++list) {
        std::vector<std::wstring> labels;
        ui::SplitControlText(Item(list), labels);
        if (!CheckLabelCount(RequiredLabelCount(list), labels, list)) return false;
        const size_t first = items.size();
        AddTreeItems(list, labels, items);
        for (size_t i = first; i < items.size(); ++i) {
            const OptionTreeItem& item = items[i];
            HTREEITEM parent = item.parent < 0 ? TVI_ROOT : handles[item.parent];
            handles.push_back(tree_.InsertItem(item.label, item.id, parent));
            if (!toSelect_ || item.id == start) toSelect_ = handles.back();
        }
    }
    return true;
}

std::optional<LRESULT> COptionDlg::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_OPTION_TREE || header.code != TVN_SELCHANGEDW) return std::nullopt;
    SwitchPage();
    return 0;
}

void COptionDlg::SwitchPage() {
    HTREEITEM item = tree_.GetSelectedItem();
    if (!item) return;
    if (current_) ShowWindow(current_->hwnd(), SW_HIDE);
    current_ = nullptr;
    int id = static_cast<int>(tree_.GetItemData(item));
    std::wstring groupText;
    if (id >= kFirstPageId && id <= kLastPageId) {
        if (OptionPage* page = Page(id)) {
            page->ShowPage(*this);
            current_ = page;
        }
    } else {
        if (!IsKnownGroup(id)) id = kDefaultGroupId;
        groupText = ui::ControlText(Item(GroupTextControlOf(id)));
    }
    if (!current_) {
        none_.ShowPage(*this);
        current_ = &none_;
        none_.text = groupText;
        none_.UpdateData(false);
    }
    ShowWindow(current_->hwnd(), SW_SHOW);
    tree_.Focus();
    start_ = id;
}

void COptionDlg::OnTimer(UINT_PTR id) {
    if (id == ui::kBringToFrontTimer) ui::DeferredBringToFront(hwnd());
}

bool COptionDlg::OnCommand(int id, int code) {
    if (id == IDC_OPTION_APPLY && code == BN_CLICKED) {
        Apply();
        return true;
    }
    if (id == ID_HELP) {
        ShowHelp();
        return true;
    }
    return false;
}

// OK closes even when Apply refused: what the pages after the refusing one held is dropped.
void COptionDlg::OnOK() {
    Apply();
    ClosePages();
    EndDialog(IDOK);
}

void COptionDlg::OnCancel() {
    ClosePages();
    EndDialog(IDCANCEL);
}

void COptionDlg::Apply() {
    RunApply(*this, app_.pendingChanges, start_, app_.commandOptionRoot);
}

bool COptionDlg::Opened(int pageId) const {
    OptionPage* page = Page(pageId);
    return page && page->opened;
}

bool COptionDlg::ApplyPage(int pageId, PendingChanges& changes) {
    return Page(pageId)->Apply(changes);
}

void COptionDlg::ClosePages() {
    for (int id = 2; id <= 45; ++id) {
        OptionPage* page = Page(id);
        if (page && page->opened) page->DestroyWindow();
    }
    if (none_.opened) none_.DestroyWindow();
}

void COptionDlg::ShowHelp() {
    HTREEITEM item = tree_.GetSelectedItem();
    int id = item ? static_cast<int>(tree_.GetItemData(item)) : kDefaultGroupId;
    OpenHelpPage(app_.directories.ApplicationRoot(), HelpPathOf(id));
}
