#include "pages/COptionOtherDlg.h"

#include "app/AppServices.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/ProcessLaunch.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"
#include "ui/Spin.h"

namespace {

constexpr uint16_t kStartUpControlChanged = 49011;
// The third mode takes the folder typed or chosen on the page.
constexpr int kChosenFolderMode = IDC_OTHER_USER_DIR_MODE + 2;

}  // namespace

COptionOtherDlg::COptionOtherDlg(AppServices& app) : OptionPage(IDD_OPTION_OTHER, app) {}

bool COptionOtherDlg::OnInitDialog() {
    bool focusFirst = OptionPage::OnInitDialog();
    const SettingRange scripts = RangeOf(&SettingsStore::MaxScript);
    ui::Spin(Item(IDC_OTHER_MAX_SCRIPT_SPIN)).SetRange(scripts.low, scripts.high);
    return focusFirst;
}

bool COptionOtherDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::Other);
    return true;
}

void COptionOtherDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Radio(exchange, IDC_OTHER_USER_DIR_MODE, store.UserDirMode);
    DDX_Text(exchange, IDC_OTHER_USER_DIR, store.UserDir);
    DDX_Check(exchange, IDC_OTHER_DUP_MUTEX, store.DupMutex);
    DDX_Check(exchange, IDC_OTHER_RESIDENT, store.Resident);
    ExchangeSetting(exchange, IDC_OTHER_MAX_SCRIPT, &SettingsStore::MaxScript);
    if (!exchange.saving()) EnableChosenFolder();
}

void COptionOtherDlg::EnableChosenFolder() const {
    const bool chosen = ui::Button(Item(kChosenFolderMode)).IsChecked();
    EnableWindow(Item(IDC_OTHER_USER_DIR), chosen);
    EnableWindow(Item(IDC_OTHER_BROWSE_USER_DIR), chosen);
}

// The folder browser starts on what the field holds and puts back what the user picked; a folder
// outside the file system has no path to put there.
void COptionOtherDlg::BrowseUserDirectory() const {
    HWND field = Item(IDC_OTHER_USER_DIR);
    const platform::FolderChoice choice =
        platform::Current().prompts.BrowseForFolder(ui::ControlText(Item(kChosenFolderMode)), ui::ControlText(field));
    if (choice.confirmed && !choice.path.empty()) SetWindowTextW(field, choice.path.c_str());
}

bool COptionOtherDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_OTHER_USER_DIR_MODE:
        case IDC_OTHER_USER_DIR_MODE + 1:
        case kChosenFolderMode:
            EnableChosenFolder();
            return true;
        case IDC_OTHER_BROWSE_USER_DIR:
            BrowseUserDirectory();
            return true;
        case IDC_OTHER_OPEN_USER_DIR:
            // The folder in force now; a changed mode takes effect at the next start.
            ShellLaunch(app().directories.UserDirectory(), L"", L"", false, SW_SHOWNORMAL);
            return true;
        default:
            return false;
    }
}

bool COptionOtherDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::Other);
    changes.Record(kStartUpControlChanged);
    return true;
}
