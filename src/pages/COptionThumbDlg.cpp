#include "pages/COptionThumbDlg.h"

#include <string>

#include "app/AppServices.h"
#include "pages/ListViewChoices.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/Button.h"
#include "ui/ComboBox.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kThumbChanged = 49002;
constexpr int kExtensionChars = 512;
// Screen fonts of a script, without the script box and without vertical fonts.
constexpr unsigned kFontBoxFlags = 0x1800401;

struct SizeCombo {
    int control;
    int32_t SettingsStore::*member;
};
constexpr SizeCombo kSizeCombos[] = {
    {IDC_THUMB_SIZE_SMALL, &SettingsStore::ImgSize0},
    {IDC_THUMB_SIZE_MIDDLE, &SettingsStore::ImgSize1},
    {IDC_THUMB_SIZE_LARGE, &SettingsStore::ImgSize2},
    {IDC_THUMB_SIZE_BASE, &SettingsStore::ImgSizeBase},
};

// The item of the size shows it rounded down to a step; a size the list lacks shows no item and is
// kept unless the user picks one.
void ExchangeSize(ui::DataExchange& exchange, int id, int32_t& size) {
    const ui::ComboBox combo(exchange.PrepareControl(id));
    if (!exchange.saving()) {
        combo.SetCurSel(ThumbSizeItem(size).value_or(-1));
        return;
    }
    const int item = combo.GetCurSel();
    if (item >= 0) size = ThumbSizeOfItem(item);
}

}  // namespace

COptionThumbDlg::COptionThumbDlg(AppServices& app) : OptionPage(IDD_OPTION_THUMB, app) {}

bool COptionThumbDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::Thumb);
    for (const SizeCombo& size : kSizeCombos) {
        const ui::ComboBox combo(Item(size.control));
        for (int item = 0; item < kThumbSizeCount; ++item) combo.AddString(std::to_wstring(ThumbSizeOfItem(item)));
    }
    return true;
}

void COptionThumbDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_CheckBits(exchange, kThumbChecks, store.Thumb);
    DDX_Check(exchange, IDC_THUMB_FOLDER, store.FolderThumb);
    DDX_Check(exchange, IDC_THUMB_CATALOG, store.UseCatalog);
    DDX_Text(exchange, IDC_THUMB_TEXT_EXTENSIONS, store.Txt);
    DDV_MaxChars(exchange, store.Txt, kExtensionChars);
    for (const SizeCombo& size : kSizeCombos) ExchangeSize(exchange, size.control, store.*size.member);
    if (!exchange.saving()) EnableDrawingFields();
}

// The extensions and the font belong to drawing text, the folders to drawing the shell's images.
void COptionThumbDlg::EnableDrawingFields() const {
    const bool text = ui::Button(Item(IDC_THUMB_TEXT)).IsChecked();
    EnableWindow(Item(IDC_THUMB_TEXT_EXTENSIONS), text);
    EnableWindow(Item(IDC_THUMB_FONT), text);
    EnableWindow(Item(IDC_THUMB_FOLDER), ui::Button(Item(IDC_THUMB_SHELL_IMAGE)).IsChecked());
}

bool COptionThumbDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    if (id == IDC_THUMB_TEXT || id == IDC_THUMB_SHELL_IMAGE) {
        EnableDrawingFields();
        return true;
    }
    if (id != IDC_THUMB_FONT) return false;
    if (auto font = platform::Current().prompts.ChooseFontFace(app().store.ThumbFont, kFontBoxFlags))
        app().store.ThumbFont = *font;
    return true;
}

bool COptionThumbDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::Thumb);
    changes.Record(kThumbChanged);
    return true;
}
