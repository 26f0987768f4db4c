#include "pages/COptionUserBarSetting.h"

#include "app/AppServices.h"
#include "pages/UserBars.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr uint32_t kNarrowest = 1;
constexpr uint32_t kWidest = 500;

}  // namespace

COptionUserBarSetting::COptionUserBarSetting(AppServices& app) : ui::Dialog(IDD_USER_BAR_SETTING), app_(app) {}

bool COptionUserBarSetting::OnInitDialog() {
    const bool focusFirst = ui::Dialog::OnInitDialog();
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    return focusFirst;
}

void COptionUserBarSetting::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Text(exchange, IDC_USER_BAR_SETTING_NAME, name);
    DDX_Text(exchange, IDC_USER_BAR_SETTING_DIR, dir);
    DDX_Text(exchange, IDC_USER_BAR_SETTING_WIDTH, width);
    DDV_MinMaxUInt(exchange, width, kNarrowest, kWidest);
}

// The width's range comes first, with the framework's words; then the slot's own checks.
void COptionUserBarSetting::OnOK() {
    if (!UpdateData(true)) return;
    platform::Platform& os = platform::Current();
    if (const uint16_t refusal = SlotRefusal(os.files, app_.directories.UserDirectory(), name, dir)) {
        os.prompts.ShowMessage(app_.messages.Get(refusal), platform::kStyleOk);
        return;
    }
    EndDialog(IDOK);
}
