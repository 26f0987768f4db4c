#include "bindings/CDlgMouseSet.h"

#include "app/AppServices.h"
#include "pages/ClickTable.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/MessageIds.h"
#include "ui/ComboBox.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

CDlgMouseSet::CDlgMouseSet(AppServices& app, const std::vector<std::wstring>& actions)
    : ui::Dialog(IDD_MOUSE_SET), app_(app), actions_(actions) {}

bool CDlgMouseSet::OnInitDialog() {
    const ui::ComboBox box(Item(IDC_MOUSE_SET_ACTION));
    for (const std::wstring& text : actions_) box.AddString(text);
    const bool focusFirst = ui::Dialog::OnInitDialog();
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    return focusFirst;
}

void CDlgMouseSet::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Text(exchange, IDC_MOUSE_SET_ROW, rowText);
    DDX_CBIndex(exchange, IDC_MOUSE_SET_ACTION, action);
}

bool ChooseRowAction(AppServices& app, HWND owner, ClickTable& table, int row) {
    if (row < 0) {
        platform::Current().prompts.ShowMessage(app.messages.Get(kMsgNothingSelected), platform::kStyleOk);
        return false;
    }
    CDlgMouseSet chooser(app, table.actions());
    chooser.rowText = table.Label(static_cast<size_t>(row));
    chooser.action = table.Value(static_cast<size_t>(row));
    if (chooser.DoModal(owner) != IDOK || chooser.action < 0) return false;
    table.Set(static_cast<size_t>(row), chooser.action);
    return true;
}
