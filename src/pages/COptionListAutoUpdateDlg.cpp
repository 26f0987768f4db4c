#include "pages/COptionListAutoUpdateDlg.h"

#include <vector>

#include "app/AppServices.h"
#include "pages/CDlgInput.h"
#include "pages/ListViewChoices.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/MessageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"
#include "ui/ListBox.h"

namespace {

constexpr uint16_t kAutoUpdateChanged = 49027;
constexpr const wchar_t* kExclusionCaption = L"監視の除外フォルダーの編集";
constexpr const wchar_t* kExclusionPrompt = L"監視をしないフォルダー(仮想フォルダーの指定や、ワイルドカードが使えます)";

void ExchangeChoice(ui::DataExchange& exchange, int id, int32_t& value) {
    int32_t index = value;
    DDX_CBIndex(exchange, id, index);
    if (index >= 0) value = index;
}

// The list box is the list while the page lives; the store gets it at Apply.
void ExchangeExclusions(ui::DataExchange& exchange, TextList& folders) {
    const ui::ListBox list(exchange.PrepareControl(IDC_AUTO_UPDATE_EXCLUSIONS));
    if (exchange.saving()) {
        std::vector<std::wstring> rows;
        for (int row = 0, count = list.GetCount(); row < count; ++row) rows.push_back(list.GetText(row));
        folders = WatchExclusionsToStore(rows);
        return;
    }
    list.ResetContent();
    for (const std::wstring& folder : folders) list.AddString(folder);
}

}  // namespace

COptionListAutoUpdateDlg::COptionListAutoUpdateDlg(AppServices& app) : OptionPage(IDD_OPTION_LIST_AUTO_UPDATE, app) {}

bool COptionListAutoUpdateDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::AutoUpdate);
    return true;
}

void COptionListAutoUpdateDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Check(exchange, IDC_AUTO_UPDATE_SORT, store.UpdateSort);
    ExchangeChoice(exchange, IDC_AUTO_UPDATE_NETWORK, store.m_nAutoUpdateNT);
    ExchangeUnsignedSetting(exchange, IDC_AUTO_UPDATE_LIMIT, &SettingsStore::AutoUpdateLimit);
    ExchangeUnsignedSetting(exchange, IDC_AUTO_UPDATE_DELAY, &SettingsStore::UpdateDelay);
    ExchangeExclusions(exchange, store.ListNoUpdate);
}

bool COptionListAutoUpdateDlg::OnCommand(int id, int code) {
    if (id == IDC_AUTO_UPDATE_EXCLUSIONS && code == LBN_DBLCLK) {
        EditExclusion();
        return true;
    }
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_AUTO_UPDATE_ADD:
            AddExclusion();
            return true;
        case IDC_AUTO_UPDATE_EDIT:
            EditExclusion();
            return true;
        case IDC_AUTO_UPDATE_DELETE:
            DeleteExclusion();
            return true;
        default:
            return false;
    }
}

std::wstring COptionListAutoUpdateDlg::AskFolder(const std::wstring& start) {
    CDlgInput input(app().dialogLanguage);
    input.caption = kExclusionCaption;
    input.prompt = kExclusionPrompt;
    input.text = start;
    if (input.DoModal(hwnd()) != IDOK) return {};
    return WatchExclusionOfTyped(input.text);
}

int COptionListAutoUpdateDlg::SelectedRow() {
    const int row = ui::ListBox(Item(IDC_AUTO_UPDATE_EXCLUSIONS)).GetCurSel();
    if (row < 0) platform::Current().prompts.ShowMessage(app().messages.Get(kMsgNothingSelected), platform::kStyleOk);
    return row;
}

// The list is asked whether it is full only once there is something to add.
void COptionListAutoUpdateDlg::AddExclusion() {
    const std::wstring folder = AskFolder(L"");
    if (folder.empty()) return;
    const ui::ListBox list(Item(IDC_AUTO_UPDATE_EXCLUSIONS));
    if (static_cast<size_t>(list.GetCount()) >= kMaxWatchExclusions) {
        platform::Current().prompts.ShowMessage(app().messages.Get(kMsgListFull), platform::kStyleOk);
        return;
    }
    list.SetCurSel(list.AddString(folder));
}

void COptionListAutoUpdateDlg::EditExclusion() {
    const int row = SelectedRow();
    if (row < 0) return;
    const ui::ListBox list(Item(IDC_AUTO_UPDATE_EXCLUSIONS));
    const std::wstring folder = AskFolder(list.GetText(row));
    if (folder.empty()) return;
    list.DeleteString(row);
    list.SetCurSel(list.InsertString(row, folder));
}

void COptionListAutoUpdateDlg::DeleteExclusion() {
    const int row = SelectedRow();
    if (row >= 0) ui::ListBox(Item(IDC_AUTO_UPDATE_EXCLUSIONS)).DeleteString(row);
}

bool COptionListAutoUpdateDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::AutoUpdate);
    changes.Record(kAutoUpdateChanged);
    return true;
}
