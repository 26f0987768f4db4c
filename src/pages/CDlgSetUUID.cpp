#include "pages/CDlgSetUUID.h"

#include "app/AppServices.h"
#include "definitions/CDlgRunSet.h"
#include "pages/FolderTree.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "ui/Button.h"
#include "ui/ComboBox.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

CDlgSetUUID::CDlgSetUUID(AppServices& app, const KnownFolderCatalog& catalog)
    : ui::Dialog(IDD_SET_UUID), app_(app), catalog_(catalog) {}

bool CDlgSetUUID::OnInitDialog() {
    const bool focusFirst = ui::Dialog::OnInitDialog();
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    browse_.Attach(hwnd(), IDC_SET_UUID_PATH, runset::FolderChooser(app_));
    // The box sorts by name; each item remembers its place in the catalogue.
    const ui::ComboBox box(Item(IDC_SET_UUID_KNOWN));
    for (size_t i = 0; i < catalog_.names().size(); ++i)
        box.SetItemData(box.AddString(catalog_.names()[i]), static_cast<LPARAM>(i));
    EnableForKind();
    return focusFirst;
}

void CDlgSetUUID::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Radio(exchange, IDC_SET_UUID_KIND, kind);
    DDX_Text(exchange, IDC_SET_UUID_PATH, path);
}

void CDlgSetUUID::EnableForKind() const {
    const bool real = ui::Button(Item(IDC_SET_UUID_KIND)).IsChecked();
    EnableWindow(Item(IDC_SET_UUID_PATH), real);
    EnableWindow(Item(IDC_SET_UUID_KNOWN), !real);
}

bool CDlgSetUUID::OnCommand(int id, int code) {
    if (code != BN_CLICKED || (id != IDC_SET_UUID_KIND && id != IDC_SET_UUID_KIND + 1)) return false;
    EnableForKind();
    return true;
}

void CDlgSetUUID::OnOK() {
    if (!UpdateData(true)) return;
    if (kind == 0) {
        platform::FindData found;
        if (!platform::Current().files.FindFirst(path, platform::FindStyle::Plain, found)) {
            platform::Current().prompts.ShowMessage(L"Not found " + path, platform::kStyleOk);
            return;
        }
    } else {
        const ui::ComboBox box(Item(IDC_SET_UUID_KNOWN));
        const int chosen = box.GetCurSel();
        index = chosen < 0 ? -1 : static_cast<int>(box.GetItemData(chosen));
    }
    EndDialog(IDOK);
}
