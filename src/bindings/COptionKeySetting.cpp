#include "bindings/COptionKeySetting.h"

#include "app/AppServices.h"
#include "app/HelpPage.h"
#include "definitions/CommandDump.h"
#include "platform/Platform.h"
#include "resources/bindings/BindingIds.h"
#include "services/MessageIds.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr int kImageSize = 16;
constexpr COLORREF kTransparent = RGB(255, 0, 255);
constexpr int kVirtualKeyControl = 0x11;  // VK_CONTROL
constexpr int kVirtualKeyAlt = 0x12;      // VK_MENU
constexpr const wchar_t* kBarMenuFolder = L"..\\..\\InitTemp\\Menu\\";
constexpr const wchar_t* kFunctionHelp = L"5.Function/00.html";

std::unique_ptr<COptionKeySetting>& SharedPicker() {
    static std::unique_ptr<COptionKeySetting> picker;
    return picker;
}

}  // namespace

COptionKeySetting& COptionKeySetting::Shared(AppServices& app) {
    std::unique_ptr<COptionKeySetting>& picker = SharedPicker();
    if (!picker) picker = std::make_unique<COptionKeySetting>(app);
    return *picker;
}

void COptionKeySetting::ReleaseShared() {
    SharedPicker().reset();
}

COptionKeySetting::COptionKeySetting(AppServices& app) : ui::Dialog(IDD_KEY_SETTING), app_(app) {}

COptionKeySetting::~COptionKeySetting() {
    if (images_) ImageList_Destroy(images_);
}

bool COptionKeySetting::OnInitDialog() {
    bool focusFirst = ui::Dialog::OnInitDialog();
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    tree_ = ui::TreeView(Item(IDC_KEY_SETTING_TREE));
    resultText.clear();
    if (!images_)
        images_ = ImageList_LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDB_COMMAND_TREE), kImageSize, 0,
                                       kTransparent, IMAGE_BITMAP, LR_CREATEDIBSECTION);
    tree_.SetImageList(images_);
    FillTree();
    auto found = items_.find(static_cast<uint16_t>(currentId));
    if (found != items_.end()) tree_.SelectItem(found->second);
    ShowSelection();
    return focusFirst;
}

// The tree is built anew for every opening, as the window is; with Ctrl or Alt held the commands are
// dumped to AllCommand.txt or AllCommand.html as it fills.
void COptionKeySetting::FillTree() {
    platform::Platform& os = platform::Current();
    const std::wstring& programDirectory = app_.directories.ProgramDirectory();
    std::optional<CommandDumpForm> dumpForm;
    if (os.windows.IsKeyDown(kVirtualKeyControl)) dumpForm = CommandDumpForm::Text;
    if (os.windows.IsKeyDown(kVirtualKeyAlt)) dumpForm = CommandDumpForm::Html;
    dumpPath_ = dumpForm ? CommandDumpPath(programDirectory, *dumpForm) : L"";
    CommandTreeDump dump{[&os] { return os.windows.IsKeyDown(kVirtualKeyAlt); },
                         [&os](const std::wstring& message) { os.prompts.ShowMessage(message, platform::kStyleOk); }};

    if (!app_.resourceModule) os.prompts.ShowMessage(app_.messages.Get(kMsgLanguageLibraryMissing), platform::kStyleOk);
    CommandTreeSources sources{
        app_.commands,
        app_.resourceModule.get(),
        {ui::ControlText(Item(IDC_KEY_SETTING_MAIN_MENU)), ui::ControlText(Item(IDC_KEY_SETTING_USER_BARS)),
         ui::ControlText(Item(IDC_KEY_SETTING_EXTERNAL)), ui::ControlText(Item(IDC_KEY_SETTING_BAR_MENUS))},
        barCommandsWanted ? programDirectory + kBarMenuFolder : L""};
    items_.clear();
    tree_.DeleteAllItems();
    InsertNodes(BuildCommandTree(sources, dumpForm ? &dump : nullptr), TVI_ROOT);
    if (dumpForm) SaveCommandDump(dumpPath_, dump.text);
}

void COptionKeySetting::InsertNodes(const std::vector<CommandNode>& nodes, HTREEITEM parent) {
    for (const CommandNode& node : nodes) {
        HTREEITEM item = tree_.InsertItem(node.text, node.id, static_cast<int>(node.image), parent);
        if (node.id) items_[node.id] = item;
        InsertNodes(node.children, item);
    }
}

void COptionKeySetting::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Text(exchange, IDC_KEY_SETTING_ID, currentId);
}

// The identifier and text of the selected item; a group has identifier 0.
void COptionKeySetting::ShowSelection() {
    HTREEITEM item = tree_.GetSelectedItem();
    currentId = item ? static_cast<uint32_t>(tree_.GetItemData(item)) : currentId;
    const auto id = static_cast<uint16_t>(currentId);
    SetDlgItemTextW(hwnd(), IDC_KEY_SETTING_TEXT,
                    app_.commands.GetCommandString(id, app_.resourceModule.get()).c_str());
    UpdateData(false);
}

void COptionKeySetting::Search() {
    if (!UpdateData(true)) return;
    auto found = items_.find(static_cast<uint16_t>(currentId));
    if (found == items_.end()) return;
    tree_.SelectItem(found->second);
    tree_.EnsureVisible(found->second);
}

bool COptionKeySetting::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    if (id == IDC_KEY_SETTING_SEARCH) {
        Search();
        return true;
    }
    if (id == IDC_KEY_SETTING_HELP) {
        OpenHelpPage(app_.directories.ApplicationRoot(), kFunctionHelp);
        return true;
    }
    return false;
}

std::optional<LRESULT> COptionKeySetting::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_KEY_SETTING_TREE) return std::nullopt;
    if (header.code == TVN_SELCHANGEDW) {
        ShowSelection();
        return 0;
    }
    if (header.code == TVN_ITEMEXPANDEDW) {
        const auto& change = reinterpret_cast<const NMTREEVIEWW&>(header);
        if (change.itemNew.lParam == 0)
            tree_.SetItemImage(
                change.itemNew.hItem,
                static_cast<int>(change.action == TVE_EXPAND ? CommandImage::OpenGroup : CommandImage::ClosedGroup));
        return 0;
    }
    if (header.code == NM_DBLCLK) {
        HTREEITEM item = tree_.GetSelectedItem();
        if (!item || tree_.GetItemData(item)) OnOK();
        return 0;
    }
    return std::nullopt;
}

// A typed identifier that differs from the selected item passes: the text is the item's, the number
// the edit's.
void COptionKeySetting::OnOK() {
    if (!UpdateData(true)) return;
    HTREEITEM item = tree_.GetSelectedItem();
    if (!item || currentId == 0) {
        platform::Current().prompts.ShowMessage(app_.messages.Get(kMsgNothingSelected), platform::kStyleOk);
        return;
    }
    resultText = tree_.GetItemText(item);
    EndDialog(IDOK);
}
