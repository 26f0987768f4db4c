#include "pages/COptionFolderSettingDlg.h"

#include <string>
#include <vector>

#include "app/AppServices.h"
#include "pages/CDlgFolderSettingInfo.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/MessageIds.h"
#include "settings/SettingsGroups.h"

namespace {

constexpr uint16_t kFolderSettingsChanged = 49033;

enum class Action { Add, Change, Delete, Up, Down };

struct Button {
    int id;
    RuleKind kind;
    Action action;
};

// clang-format off
constexpr Button kButtons[] = {
    {IDC_FOLDER_EXACT_ADD, RuleKind::Exact, Action::Add},
    {IDC_FOLDER_EXACT_CHANGE, RuleKind::Exact, Action::Change},
    {IDC_FOLDER_EXACT_DELETE, RuleKind::Exact, Action::Delete},
    {IDC_FOLDER_WILD_ADD, RuleKind::Wildcard, Action::Add},
    {IDC_FOLDER_WILD_CHANGE, RuleKind::Wildcard, Action::Change},
    {IDC_FOLDER_WILD_DELETE, RuleKind::Wildcard, Action::Delete},
    {IDC_FOLDER_WILD_UP, RuleKind::Wildcard, Action::Up},
    {IDC_FOLDER_WILD_DOWN, RuleKind::Wildcard, Action::Down},
    {IDC_FOLDER_REGEX_ADD, RuleKind::Regex, Action::Add},
    {IDC_FOLDER_REGEX_CHANGE, RuleKind::Regex, Action::Change},
    {IDC_FOLDER_REGEX_DELETE, RuleKind::Regex, Action::Delete},
    {IDC_FOLDER_REGEX_UP, RuleKind::Regex, Action::Up},
    {IDC_FOLDER_REGEX_DOWN, RuleKind::Regex, Action::Down},
};
// clang-format on

constexpr int kListIds[kRuleKinds] = {IDC_FOLDER_EXACT_LIST, IDC_FOLDER_WILD_LIST, IDC_FOLDER_REGEX_LIST};

struct Column {
    const wchar_t* heading;
    int width;
};
const std::vector<Column> kColumns[kRuleKinds] = {
    {{L"Display name", 150}, {L"Full path", 160}, {L"State string", 160}},
    {{L"Wildcard path", 150}, {L"State string", 160}},
    {{L"Regular expression", 150}, {L"State string", 160}},
};

int32_t ShowMessage(AppServices& app, MessageId id) {
    return platform::Current().prompts.ShowMessage(app.messages.Get(id), platform::kStyleOk);
}

}  // namespace

COptionFolderSettingDlg::COptionFolderSettingDlg(AppServices& app) : OptionPage(IDD_OPTION_FOLDER_SETTING, app) {}

ui::ListView COptionFolderSettingDlg::List(RuleKind kind) const {
    return ui::ListView(Item(kListIds[static_cast<int>(kind)]));
}

void COptionFolderSettingDlg::SetUpList(RuleKind kind) const {
    const ui::ListView list = List(kind);
    list.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    int column = 0;
    for (const Column& c : kColumns[static_cast<int>(kind)]) list.InsertColumn(column++, c.heading, c.width);
}

void COptionFolderSettingDlg::ShowRows(RuleKind kind, int select) const {
    const ui::ListView list = List(kind);
    list.Send(WM_SETREDRAW, FALSE);
    list.DeleteAllItems();
    int row = 0;
    for (const RuleRow& rule : rules_.rows(kind)) {
        list.InsertItem(row, rule.shown);
        if (kind == RuleKind::Exact) list.SetItemText(row, 1, rule.path);
        list.SetItemText(row++, kind == RuleKind::Exact ? 2 : 1, rule.state);
    }
    list.Send(WM_SETREDRAW, TRUE);
    if (select < 0) return;
    list.SelectRow(select);
    list.EnsureVisible(select);
}

bool COptionFolderSettingDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::ListInitial);
    rules_.Load(app().store);
    for (RuleKind kind : {RuleKind::Exact, RuleKind::Wildcard, RuleKind::Regex}) {
        SetUpList(kind);
        ShowRows(kind, -1);
    }
    ServeHostRequest();
    return true;
}

// The host asked for a folder to be registered; the user settles the rule and its kind.
void COptionFolderSettingDlg::ServeHostRequest() {
    const std::optional<RuleKind> kind = rules_.ServeHostRequest(
        app().setFolder, [this](RuleKind& k, FolderState& rule) { return EditRule(k, rule, false); });
    if (kind) ShowRows(*kind, static_cast<int>(rules_.rows(*kind).size()) - 1);
}

bool COptionFolderSettingDlg::EditRule(RuleKind& kind, FolderState& rule, bool locked) {
    CDlgFolderSettingInfo editor(app());
    editor.rule = rule;
    editor.kind = static_cast<int32_t>(kind);
    editor.locked = locked ? 1 : 0;
    if (editor.DoModal(hwnd()) != IDOK) return false;
    rule = editor.rule;
    if (editor.kind >= 0 && editor.kind < kRuleKinds) kind = static_cast<RuleKind>(editor.kind);
    return true;
}

void COptionFolderSettingDlg::AddRule(RuleKind kind) {
    if (rules_.Full(kind)) {
        ShowMessage(app(), kMsgListFull);
        return;
    }
    FolderState rule = FolderRules::NewRule(app().store);
    if (!EditRule(kind, rule, true)) return;
    if (kind == RuleKind::Exact) {
        const int match = rules_.FindExact(rule.path);
        if (match >= 0) {
            const std::wstring question =
                app().messages.Get(kMsgAlreadyListed) + L"\n" + app().messages.Get(kMsgReplaceQuestion);
            if (platform::Current().prompts.ShowMessage(question, platform::kStyleYesNo) != platform::kAnswerYes)
                return;
            rules_.Remove(kind, match);
        }
    }
    rules_.Append(kind, rule);
    ShowRows(kind, static_cast<int>(rules_.rows(kind).size()) - 1);
}

void COptionFolderSettingDlg::ChangeRule(RuleKind kind) {
    const int row = List(kind).GetSelectedRow();
    if (row < 0) {
        ShowMessage(app(), kMsgNothingSelected);
        return;
    }
    FolderState rule = rules_.Rule(kind, row);
    if (!EditRule(kind, rule, true)) return;
    if (kind == RuleKind::Exact && rules_.FindExact(rule.path, row) >= 0) {
        ShowMessage(app(), kMsgAlreadyListed);
        return;
    }
    rules_.Update(kind, row, rule);
    ShowRows(kind, row);
}

void COptionFolderSettingDlg::DeleteRule(RuleKind kind) {
    const int row = List(kind).GetNextItem(-1, LVNI_SELECTED | LVNI_FOCUSED);
    if (row < 0) return;
    ShowRows(kind, rules_.Remove(kind, row));
}

void COptionFolderSettingDlg::MoveRule(RuleKind kind, int step) {
    const int to = rules_.Move(kind, List(kind).GetSelectedRow(), step);
    if (to >= 0) ShowRows(kind, to);
}

bool COptionFolderSettingDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    for (const Button& button : kButtons) {
        if (button.id != id) continue;
        switch (button.action) {
            case Action::Add:
                AddRule(button.kind);
                break;
            case Action::Change:
                ChangeRule(button.kind);
                break;
            case Action::Delete:
                DeleteRule(button.kind);
                break;
            case Action::Up:
                MoveRule(button.kind, -1);
                break;
            case Action::Down:
                MoveRule(button.kind, +1);
                break;
        }
        return true;
    }
    return false;
}

std::optional<LRESULT> COptionFolderSettingDlg::OnNotify(const NMHDR& header) {
    if (header.code != NM_DBLCLK) return std::nullopt;
    for (int kind = 0; kind < kRuleKinds; ++kind) {
        if (static_cast<int>(header.idFrom) != kListIds[kind]) continue;
        ChangeRule(static_cast<RuleKind>(kind));
        return 0;
    }
    return std::nullopt;
}

bool COptionFolderSettingDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    rules_.Save(app().store);
    changes.Record(kFolderSettingsChanged);
    return true;
}
