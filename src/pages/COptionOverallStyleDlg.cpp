#include "pages/COptionOverallStyleDlg.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

COptionOverallStyleDlg::COptionOverallStyleDlg(AppServices& app) : OptionPage(IDD_OPTION_OVERALL_STYLE, app) {}

bool COptionOverallStyleDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::TitleBar);
    return true;
}

void COptionOverallStyleDlg::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Radio(exchange, IDC_TITLE_BAR_FIRST, app().store.TitleBarType);
}

// Escape closes the whole dialog like on every page, and this page also ends itself as a dialog would.
void COptionOverallStyleDlg::OnCancel() {
    OptionPage::OnCancel();
    EndDialog(IDCANCEL);
}

bool COptionOverallStyleDlg::Apply(PendingChanges&) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::TitleBar);
    return true;
}
