#include "pages/CDlgInput.h"

#include "resources/pages/PageIds.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

CDlgInput::CDlgInput(DialogLanguage& language) : ui::Dialog(IDD_DLG_INPUT), language_(language) {}

// The caller's caption and texts come after the translation, which would put the template's back.
bool CDlgInput::OnInitDialog() {
    const bool focusFirst = ui::Dialog::OnInitDialog();
    ui::LocaliseDialog(hwnd(), templateId(), language_);
    SetWindowTextW(hwnd(), caption.c_str());
    UpdateData(false);
    return focusFirst;
}

void CDlgInput::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Text(exchange, IDC_DLG_INPUT_TEXT, text);
    DDX_Text(exchange, IDC_DLG_INPUT_PROMPT, prompt);
}
