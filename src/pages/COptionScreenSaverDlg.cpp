#include "pages/COptionScreenSaverDlg.h"

#include "app/AppServices.h"
#include "pages/COptionSkinFolderList.h"
#include "pages/SkinFolders.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kAnimationChanged = 49051;

}  // namespace

COptionScreenSaverDlg::COptionScreenSaverDlg(AppServices& app) : OptionPage(IDD_OPTION_SCREEN_SAVER, app) {}

bool COptionScreenSaverDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::StatusAnime);
    FillSkinList(ui::ListBox(hwnd(), IDC_ANIME_LIST), app().directories.ProgramDirectory() + kAnimationSkinFolder,
                 app().store.StatusAnimeSkin, Item(IDC_ANIME_README));
    return true;
}

void COptionScreenSaverDlg::DoDataExchange(ui::DataExchange& exchange) {
    ExchangeSetting(exchange, IDC_ANIME_START_TIMER, &SettingsStore::StatusAnimeStartTimer);
    ExchangeSetting(exchange, IDC_ANIME_COUNT, &SettingsStore::StatusAnimenCount);
    DDX_Radio(exchange, IDC_ANIME_DRAW_POS, app().store.StatusAnimenDrawPos);
}

bool COptionScreenSaverDlg::OnCommand(int id, int code) {
    if (id != IDC_ANIME_LIST || code != LBN_SELCHANGE) return false;
    ShowSkinReadme(ui::ListBox(hwnd(), id), app().directories.ProgramDirectory() + kAnimationSkinFolder,
                   Item(IDC_ANIME_README));
    return true;
}

bool COptionScreenSaverDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    const ui::ListBox list(hwnd(), IDC_ANIME_LIST);
    // Without a chosen set the page keeps nothing.
    if (list.GetCurSel() == LB_ERR) return true;
    app().store.StatusAnimeSkin = list.SelectedText();
    SaveGroup(app().store, SettingsGroup::StatusAnime);
    changes.Record(kAnimationChanged);
    return true;
}
