#include "pages/COptionColorGridDlg.h"

#include "app/AppServices.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/ControlText.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kColoursChanged = 49001;
constexpr DWORD kGridStyle = WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP;
// Screen fonts of the user's scripts, upright ones only, without the script box.
constexpr unsigned kFontChooserFlags = 0x1800401;
constexpr int kGridGap = 10;

// The buttons for colour-blind palettes are not on the page yet; their handler asks for help.
constexpr const wchar_t* kVisionText =
    L"P型（強・弱）/"
    L"D型（強・弱）4つのボタンを用意していますが、作者は色弱ではありませんので適切な配色が分かりません。\n"
    L"いずれか一つだけでも構わないので、こういう配色にしたら見やすいよ！という配色ないし、パターンがありましたらご連絡"
    L"ください。\nVer.6.5.0頃までこのメッセージを掲示予定ですが、ご協力が得られない場合は取り組みを終了します。";
constexpr const wchar_t* kVisionCaption = L"開発協力者を求めています。";

}  // namespace

COptionColorGridDlg::COptionColorGridDlg(AppServices& app) : OptionPage(IDD_OPTION_COLOR_GRID, app) {}

bool COptionColorGridDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::Colors);
    LoadGroup(app().store, SettingsGroup::ViewFont);
    const int lists[] = {IDC_COLOR_ATTRIBUTE_LABELS, IDC_COLOR_LIST_LABELS, IDC_COLOR_DOCKING_LABELS,
                         IDC_COLOR_EXTENSION_LABELS, IDC_COLOR_TOP_LABELS};
    for (size_t i = 0; i < labels_.lists.size(); ++i) ui::SplitControlText(Item(lists[i]), labels_.lists[i]);
    if (!CreateGrid() || !Rebuild()) return false;
    skinRadio_ = SkinRadioOfLook(app().store.ApplicationLook);
    return true;
}

// Left of the palette buttons, from the first one's top to the bottom of the page, first in the tab order.
bool COptionColorGridDlg::CreateGrid() {
    HWND first = Item(IDC_COLOR_DEFAULT);
    RECT button{}, page{};
    GetWindowRect(first, &button);
    MapWindowPoints(nullptr, hwnd(), reinterpret_cast<POINT*>(&button), 2);
    GetClientRect(hwnd(), &page);
    const RECT place{0, button.top, button.left - kGridGap, page.bottom};
    if (!grid_.Create(hwnd(), IDC_COLOR_GRID, place, kGridStyle)) return false;
    grid_.SetFontChooserFlags(kFontChooserFlags);
    grid_.MarkModifiedProperties(true);
    grid_.SetGroupNameFullWidth(false);
    SetWindowPos(grid_.hwnd(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    SetWindowPos(first, grid_.hwnd(), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return true;
}

bool COptionColorGridDlg::Rebuild() {
    try {
        BuildColorGrid(grid_.model(), labels_, app().store);
    } catch (const LabelListTooShort& failure) {
        grid_.model().Clear();
        grid_.Refresh();
        const std::string what = failure.what();
        platform::Current().prompts.ShowMessage(std::wstring(what.begin(), what.end()), platform::kStyleOk);
        return false;
    }
    grid_.Refresh();
    return true;
}

void COptionColorGridDlg::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Radio(exchange, IDC_COLOR_SKIN_FIRST, skinRadio_);
}

// The palettes change the draft only; the grid shows it anew and loses what was edited in it.
void COptionColorGridDlg::UsePalette(ColorPalette palette) {
    if (!UpdateData(true)) return;
    ApplyColorPalette(app().store, palette);
    Rebuild();
    UpdateData(false);
}

bool COptionColorGridDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    if (id >= IDC_COLOR_DEFAULT && id <= IDC_COLOR_FILMTN) {
        UsePalette(static_cast<ColorPalette>(id - IDC_COLOR_DEFAULT));
        return true;
    }
    if (id >= IDC_COLOR_VISION_FIRST && id <= IDC_COLOR_VISION_LAST) {
        platform::Current().prompts.Ask(kVisionText, kVisionCaption, platform::kStyleOk);
        return true;
    }
    return false;
}

// Escape closes the whole dialog like on every page, and this page also ends itself as a dialog would.
void COptionColorGridDlg::OnCancel() {
    OptionPage::OnCancel();
    EndDialog(IDCANCEL);
}

bool COptionColorGridDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    grid_.CommitEdit();
    SettingsStore& store = app().store;
    ReadColorGrid(grid_.model(), store);
    store.ApplicationLook = LookOfSkinRadio(skinRadio_);
    SaveGroup(store, SettingsGroup::Colors);
    SaveGroup(store, SettingsGroup::ViewFont);
    changes.Record(kColoursChanged);
    return true;
}
