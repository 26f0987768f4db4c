#include "pages/COptionPreviewDlg.h"

#include "app/AppServices.h"
#include "pages/COptionPreviewPlugin.h"
#include "pages/CPvPluginInfo.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/CheckLabelCount.h"
#include "services/MessageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kPreviewChanged = 49003;
constexpr int kExtensionLimit = 10240;
constexpr uint32_t kFontBoxFlags = 0x1800401;
// A full list is one that already has more rows than this, so one row more still fits.
constexpr int kMostRows = 100;
constexpr int kNameColumn = 0;
constexpr int kExtensionColumn = 1;

}  // namespace

COptionPreviewDlg::COptionPreviewDlg(AppServices& app) : OptionPage(IDD_OPTION_PREVIEW, app) {}

CPvPluginInfo& COptionPreviewDlg::Plugins() {
    if (!app().previewPlugins) {
        app().previewPlugins =
            std::make_unique<CPvPluginInfo>(platform::Current().system, app().directories.ProgramDirectory());
    }
    return *app().previewPlugins;
}

// Plug-ins registered before that no longer load get no row, so the next Apply drops them.
bool COptionPreviewDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::PreView);
    std::vector<std::wstring> headers;
    const int count = ui::SplitControlText(Item(IDC_PREVIEW_HEADERS), headers);
    if (!CheckLabelCount(2, headers, IDC_PREVIEW_HEADERS)) return false;
    list_ = ui::ListView(Item(IDC_PREVIEW_PLUGINS));
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    list_.InsertColumn(kNameColumn, headers[0], 200);
    list_.InsertColumn(kExtensionColumn, headers[count - 1], 300);
    CPvPluginInfo& plugins = Plugins();
    if (!plugins.loaded()) plugins.LoadFromRegistry(app().store);
    for (size_t i = 0; i < plugins.size(); ++i) {
        const int row = list_.InsertItem(list_.GetItemCount(), plugins[i].dllName);
        list_.SetItemText(row, kExtensionColumn, plugins[i].extensions);
    }
    return true;
}

void COptionPreviewDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Check(exchange, IDC_PREVIEW_TEST_SHELL_IMAGE, store.TestShellImage);
    DDX_Check(exchange, IDC_PREVIEW_HANDLER, store.PreviewHandler);
    DDX_Text(exchange, IDC_PREVIEW_EXT, store.PreViewValues::Ext);
    DDV_MaxChars(exchange, store.PreViewValues::Ext, kExtensionLimit);
    if (!exchange.saving()) EnableExtensions();
}

// Trying every image makes the list of extensions moot; its text is kept and saved all the same.
void COptionPreviewDlg::EnableExtensions() const {
    EnableWindow(Item(IDC_PREVIEW_EXT), !ui::Button(Item(IDC_PREVIEW_TEST_SHELL_IMAGE)).IsChecked());
}

void COptionPreviewDlg::ChooseFont() {
    if (auto chosen = platform::Current().prompts.ChooseFontFace(app().store.PreViewFont, kFontBoxFlags))
        app().store.PreViewFont = *chosen;
}

void COptionPreviewDlg::ShowMessage(uint16_t id) const {
    platform::Current().prompts.ShowMessage(app().messages.Get(id), platform::kStyleOk);
}

int COptionPreviewDlg::FindRow(const std::wstring& dllName) const {
    LVFINDINFOW find{};
    find.flags = LVFI_STRING;
    find.psz = dllName.c_str();
    return static_cast<int>(
        SendMessageW(list_.hwnd(), LVM_FINDITEMW, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&find)));
}

void COptionPreviewDlg::AddPlugin() {
    if (list_.GetItemCount() > kMostRows) return ShowMessage(kMsgListFull);
    COptionPreviewPlugin editor(app());
    editor.directory = Plugins().folder() + L"*";
    if (editor.DoModal(hwnd()) != IDOK) return;
    if (FindRow(editor.dllName) >= 0) return ShowMessage(kMsgAlreadyListed);
    const int row = list_.InsertItem(list_.GetItemCount(), editor.dllName);
    list_.SetItemText(row, kExtensionColumn, editor.extensions);
}

// The row's own name is blanked while the editor runs, so that keeping the name is no duplicate.
void COptionPreviewDlg::EditPlugin() {
    const int row = list_.GetNextItem(-1, LVNI_FOCUSED);
    if (row < 0) return;
    COptionPreviewPlugin editor(app());
    const std::wstring old = list_.GetItemText(row, kNameColumn);
    editor.dllName = old;
    editor.extensions = list_.GetItemText(row, kExtensionColumn);
    editor.directory = Plugins().folder();
    list_.SetItemText(row, kNameColumn, L"");
    if (editor.DoModal(hwnd()) != IDOK) {
        list_.SetItemText(row, kNameColumn, old);
        return;
    }
    if (FindRow(editor.dllName) >= 0) {
        list_.SetItemText(row, kNameColumn, old);
        return ShowMessage(kMsgAlreadyListed);
    }
    list_.SetItemText(row, kNameColumn, editor.dllName);
    list_.SetItemText(row, kExtensionColumn, editor.extensions);
}

void COptionPreviewDlg::DeletePlugin() {
    const int row = list_.GetNextItem(-1, LVNI_FOCUSED);
    if (row >= 0) list_.DeleteItem(row);
}

// The selected row changes places with its neighbour, column by column, and stays selected.
void COptionPreviewDlg::MoveSelected(int step) {
    const int row = list_.GetSelectedRow();
    const int other = row + step;
    if (row < 0 || other < 0 || other >= list_.GetItemCount()) return;
    for (int column = 0; column < list_.GetColumnCount(); ++column) {
        const std::wstring text = list_.GetItemText(row, column);
        list_.SetItemText(row, column, list_.GetItemText(other, column));
        list_.SetItemText(other, column, text);
    }
    list_.SelectRow(other);
    list_.EnsureVisible(other);
}

bool COptionPreviewDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_PREVIEW_TEST_SHELL_IMAGE:
            EnableExtensions();
            return true;
        case IDC_PREVIEW_FONT:
            ChooseFont();
            return true;
        case IDC_PREVIEW_ADD:
            AddPlugin();
            return true;
        case IDC_PREVIEW_EDIT:
            EditPlugin();
            return true;
        case IDC_PREVIEW_DELETE:
            DeletePlugin();
            return true;
        case IDC_PREVIEW_UP:
        case IDC_PREVIEW_DOWN:
            MoveSelected(id == IDC_PREVIEW_UP ? -1 : 1);
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> COptionPreviewDlg::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_PREVIEW_PLUGINS || header.code != NM_DBLCLK) return std::nullopt;
    EditPlugin();
    return 0;
}

// The plug-ins are loaded afresh from the rows, so that a DLL gone since is dropped, and let go again
// once their registration is written.
bool COptionPreviewDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::PreView);
    CPvPluginInfo& plugins = Plugins();
    plugins.UnloadAll();
    for (int row = 0; row < list_.GetItemCount(); ++row) {
        const std::wstring name = list_.GetItemText(row, kNameColumn);
        if (name.empty()) continue;
        const int index = plugins.Add(name);
        const std::wstring extensions = list_.GetItemText(row, kExtensionColumn);
        if (index >= 0 && !extensions.empty()) plugins[index].SetExtensions(extensions);
    }
    plugins.SaveToRegistry(app().store);
    plugins.UnloadAll();
    changes.Record(kPreviewChanged);
    return true;
}
