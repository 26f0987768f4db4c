#include "app/COptionNoneDlg.h"

#include "resources/app/AppIds.h"
#include "ui/DataExchange.h"

COptionNoneDlg::COptionNoneDlg(AppServices& app) : OptionPage(IDD_OPTION_NONE, app) {}

void COptionNoneDlg::DoDataExchange(ui::DataExchange& dx) {
    ui::DDX_Text(dx, IDC_OPTION_NONE_TEXT, text);
}
