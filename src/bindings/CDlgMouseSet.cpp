#include "bindings/CDlgMouseSet.h"

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
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
