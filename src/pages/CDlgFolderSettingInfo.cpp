#include "pages/CDlgFolderSettingInfo.h"

#include <string>
#include <vector>

#include "app/AppServices.h"
#include "pages/CDetailData.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/CheckLabelCount.h"
#include "services/MessageIds.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr int kSortColumnWidth = 200;
constexpr int kPathLimit = 255;

}  // namespace

CDlgFolderSettingInfo::CDlgFolderSettingInfo(AppServices& app) : ui::Dialog(IDD_FOLDER_SETTING_INFO), app_(app) {}

bool CDlgFolderSettingInfo::OnInitDialog() {
    viewRadio_ = ViewRadioOfNumber(rule.viewNumber);
    const bool focusFirst = ui::Dialog::OnInitDialog();
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    const ui::ListView list(Item(IDC_FOLDER_RULE_SORT_LIST));
    if (!ShowSortList(app_, list, Item(IDC_FOLDER_RULE_SORT_LABELS), rule.sortKey)) return focusFirst;
    sortList_ = list;
    if (locked) {
        for (int id = IDC_FOLDER_RULE_KIND; id < IDC_FOLDER_RULE_KIND + 3; ++id) EnableWindow(Item(id), FALSE);
    }
    return focusFirst;
}

bool CDlgFolderSettingInfo::ShowSortList(AppServices& app, const ui::ListView& list, HWND labels, int32_t key) {
    std::vector<std::wstring> parts;
    ui::SplitControlText(labels, parts);
    if (!CheckLabelCount(kBuiltInSortKeys, parts, GetDlgCtrlID(labels))) return false;
    CDetailData details;
    details.Load(app.store);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    list.InsertColumn(0, L"Sort", kSortColumnWidth);
    int selected = -1;
    {
        const ui::RedrawPaused paused(list);
        for (SortGroup group : {SortGroup::System, SortGroup::Visible, SortGroup::Hide})
            list.InsertGroup(static_cast<int>(group), CDetailData::GroupTitle(group));
        list.EnableGroupView(true);
        int row = 0;
        for (const SortChoice& choice : details.SortChoices(parts)) {
            if (choice.key == key && selected < 0) selected = row;
            list.InsertGroupedItem(row++, choice.label, choice.key, static_cast<int>(choice.group));
        }
    }
    if (selected >= 0) {
        list.SelectRow(selected);
        list.EnsureVisible(selected);
    }
    return true;
}

void CDlgFolderSettingInfo::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Radio(exchange, IDC_FOLDER_RULE_KIND, kind);
    DDX_Text(exchange, IDC_FOLDER_RULE_PATH, rule.path);
    DDV_MaxChars(exchange, rule.path, kPathLimit);
    DDX_Check(exchange, IDC_FOLDER_RULE_FOLDERS_FIRST, rule.foldersFirst);
    DDX_Radio(exchange, IDC_FOLDER_RULE_DIRECTION, rule.direction);
    DDX_Radio(exchange, IDC_FOLDER_RULE_VIEW, viewRadio_);
    DDX_Radio(exchange, IDC_FOLDER_RULE_ICON_SIZE, rule.iconSize);
}

// The folder browser answers with the parsing name, so that a virtual folder comes back as "::{...}".
void CDlgFolderSettingInfo::Browse() {
    HWND field = Item(IDC_FOLDER_RULE_PATH);
    const platform::FolderChoice choice = platform::Current().prompts.BrowseForFolderName(
        app_.messages.Get(kMsgFolderBrowserTitle), ui::ControlText(field));
    if (choice.confirmed && !choice.path.empty()) SetWindowTextW(field, choice.path.c_str());
}

bool CDlgFolderSettingInfo::OnCommand(int id, int code) {
    if (id != IDC_FOLDER_RULE_BROWSE || code != BN_CLICKED) return false;
    Browse();
    return true;
}

void CDlgFolderSettingInfo::OnOK() {
    if (!UpdateData(true)) return;
    if (rule.path.empty()) {
        platform::Current().prompts.ShowMessage(app_.messages.Get(kMsgEmptyPath), platform::kStyleOk);
        return;
    }
    rule.viewNumber = ViewNumberOfRadio(viewRadio_, rule.viewNumber);
    const int row = sortList_.hwnd() ? sortList_.GetSelectedRow() : -1;
    rule.sortKey = row >= 0 ? static_cast<int32_t>(sortList_.GetItemData(row)) : 0;
    EndDialog(IDOK);
}
