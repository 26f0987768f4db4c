#include "definitions/CDlgMacroHelperEx.h"

#include "app/AppServices.h"
#include "definitions/MacroHelperData.h"
#include "platform/Platform.h"
#include "resources/definitions/DefinitionIds.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr int kMacroColumnWidth = 150;
constexpr int kInformationColumnWidth = 350;

static_assert(IDC_MACRO_HELPER_LAST_TAB - IDC_MACRO_HELPER_FIRST_TAB + 1 == kMacroHelperModeCount);

}  // namespace

CDlgMacroHelperEx::CDlgMacroHelperEx(AppServices& app) : ui::Dialog(IDD_MACRO_HELPER), app_(app) {}

bool CDlgMacroHelperEx::OnInitDialog() {
    bool focusFirst = ui::Dialog::OnInitDialog();
    result.clear();
    list_ = ui::ListView(Item(IDC_MACRO_HELPER_LIST));
    list_.SetExtendedStyle(LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    list_.InsertColumn(0, L"Macro", kMacroColumnWidth);
    list_.InsertColumn(1, L"Information", kInformationColumnWidth);
    FillList();
    for (int32_t tab = 0; tab < kMacroHelperModeCount; ++tab)
        EnableWindow(Item(IDC_MACRO_HELPER_FIRST_TAB + tab), enabled[static_cast<size_t>(tab)]);
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    return focusFirst;
}

void CDlgMacroHelperEx::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Radio(exchange, IDC_MACRO_HELPER_FIRST_TAB, mode);
}

// The list of the tab in force, anew. A broken entry is reported once; the rows before it stay.
void CDlgMacroHelperEx::FillList() {
    UpdateData(true);
    list_.DeleteAllItems();
    app_.dialogLanguage.Load();
    MacroHelperOffer offer = LoadMacroHelperOffer(app_.directories.ProgramDirectory(), app_.dialogLanguage.tag(), mode);
    int row = 0;
    for (const MacroHelperRow& entry : offer.rows) {
        int inserted = list_.InsertItem(row, entry.macro);
        if (inserted < 0) break;
        list_.SetItemText(inserted, 1, entry.information);
        ++row;
    }
    if (offer.malformed) platform::Current().prompts.ShowMessage(kMacroHelperFormatError, platform::kStyleOk);
}

bool CDlgMacroHelperEx::OnCommand(int id, int code) {
    if (code != BN_CLICKED || id < IDC_MACRO_HELPER_FIRST_TAB || id > IDC_MACRO_HELPER_LAST_TAB) return false;
    FillList();
    return true;
}

std::optional<LRESULT> CDlgMacroHelperEx::OnNotify(const NMHDR& header) {
    if (header.idFrom != IDC_MACRO_HELPER_LIST || header.code != NM_DBLCLK) return std::nullopt;
    OnOK();
    return 0;
}

void CDlgMacroHelperEx::OnOK() {
    UpdateData(true);
    int row = list_.GetSelectedRow();
    result = row < 0 ? std::wstring() : list_.GetItemText(row, 0);
    EndDialog(IDOK);
}
