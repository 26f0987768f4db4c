#include "pages/COptionMessageDlg.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "services/CheckLabelCount.h"
#include "services/MessageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kConfirmationsChanged = 49036;
constexpr int kEventColumnWidth = 300;
constexpr int kMessageColumnWidth = 800;

}  // namespace

COptionMessageDlg::COptionMessageDlg(AppServices& app) : OptionPage(IDD_OPTION_MESSAGE, app) {}

bool COptionMessageDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::Message);
    list_ = ui::ListView(Item(IDC_MESSAGE_LIST));
    list_.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT, LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    std::vector<std::wstring> headers;
    ui::SplitControlText(Item(IDC_MESSAGE_HEADERS), headers);
    if (!CheckLabelCount(2, headers, IDC_MESSAGE_HEADERS)) return false;
    list_.InsertColumn(0, headers[0], kEventColumnWidth);
    list_.InsertColumn(1, headers[1], kMessageColumnWidth);
    for (int row = 0; row < kConfirmationCount; ++row) {
        uint16_t caption = static_cast<uint16_t>(kFirstConfirmation + 2 * row);
        list_.InsertItem(row, app().messages.Get(caption));
        list_.SetItemText(row, 1, app().messages.Get(static_cast<uint16_t>(caption + 1)));
    }
    return true;
}

void COptionMessageDlg::ShowChecks(const ConfirmationChecks& checks) const {
    for (int row = 0; row < list_.GetItemCount() && row < kConfirmationCount; ++row) list_.SetCheck(row, checks[row]);
}

void COptionMessageDlg::DoDataExchange(ui::DataExchange& exchange) {
    if (!exchange.saving()) {
        ShowChecks(ChecksOfMessage(app().store.Message));
        return;
    }
    ConfirmationChecks checks = ChecksOfMessage(app().store.Message);
    for (int row = 0; row < list_.GetItemCount() && row < kConfirmationCount; ++row) checks[row] = list_.GetCheck(row);
    app().store.Message = MessageWithChecks(app().store.Message, checks);
}

bool COptionMessageDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_MESSAGE_CLEAR_ALL:
            ShowChecks(ConfirmationChecks{});
            return true;
        case IDC_MESSAGE_SET_ALL:
            ShowChecks(ChecksOfMessage(-1));
            return true;
        case IDC_MESSAGE_ADVANCED:
            ShowChecks(AdvancedConfirmationChecks());
            return true;
        default:
            return false;
    }
}

bool COptionMessageDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::Message);
    changes.Record(kConfirmationsChanged);
    return true;
}
