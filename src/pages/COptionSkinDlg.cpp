#include "pages/COptionSkinDlg.h"

#include "app/AppServices.h"
#include "pages/CDlgBkImage.h"
#include "pages/COptionSkinFolderList.h"
#include "pages/SkinFolders.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"
#include "ui/ListBox.h"

namespace {

constexpr uint16_t kSkinChanged = 49013;

}  // namespace

COptionSkinDlg::COptionSkinDlg(AppServices& app) : OptionPage(IDD_OPTION_SKIN, app) {}

bool COptionSkinDlg::LoadGroups() {
    SettingsStore& store = app().store;
    LoadGroup(store, SettingsGroup::Skin);
    const std::wstring& program = app().directories.ProgramDirectory();
    FillSkinList(ui::ListBox(hwnd(), IDC_SKIN_LIST), program + kIconSkinFolder, store.SkinName, Item(IDC_SKIN_README));
    FillSkinList(ui::ListBox(hwnd(), IDC_SKIN_PROGRESS_LIST), program + kProgressSkinFolder, store.PrgSkin,
                 Item(IDC_SKIN_PROGRESS_README));
    return true;
}

void COptionSkinDlg::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Radio(exchange, IDC_SKIN_PROGRESS_MODE, app().store.PrgDrawMode);
    ExchangeSetting(exchange, IDC_SKIN_ALPHA, &SettingsStore::BkAlpha);
}

void COptionSkinDlg::ChooseBackground() {
    SettingsStore& store = app().store;
    CDlgBkImage background(app());
    background.mode = store.BkMode;
    background.x = static_cast<uint32_t>(store.BkPosX);
    background.y = static_cast<uint32_t>(store.BkPosY);
    background.file = store.BkImgName;
    if (background.DoModal(hwnd()) != IDOK) return;
    store.BkMode = background.mode;
    store.BkPosX = static_cast<int32_t>(background.x);
    store.BkPosY = static_cast<int32_t>(background.y);
    store.BkImgName = background.file;
}

bool COptionSkinDlg::OnCommand(int id, int code) {
    const std::wstring& program = app().directories.ProgramDirectory();
    if (id == IDC_SKIN_LIST && code == LBN_SELCHANGE) {
        ShowSkinReadme(ui::ListBox(hwnd(), id), program + kIconSkinFolder, Item(IDC_SKIN_README));
        return true;
    }
    if (id == IDC_SKIN_PROGRESS_LIST && code == LBN_SELCHANGE) {
        ShowSkinReadme(ui::ListBox(hwnd(), id), program + kProgressSkinFolder, Item(IDC_SKIN_PROGRESS_README));
        return true;
    }
    if (id == IDC_SKIN_BACKGROUND && code == BN_CLICKED) {
        ChooseBackground();
        return true;
    }
    return false;
}

bool COptionSkinDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    const ui::ListBox skins(hwnd(), IDC_SKIN_LIST);
    const ui::ListBox progress(hwnd(), IDC_SKIN_PROGRESS_LIST);
    // Without a choice in both lists nothing of the page is kept, the transparency included.
    if (skins.GetCurSel() == LB_ERR || progress.GetCurSel() == LB_ERR) return true;
    SettingsStore& store = app().store;
    store.SkinName = skins.SelectedText();
    store.PrgSkin = progress.SelectedText();
    SaveGroup(store, SettingsGroup::Skin);
    changes.Record(kSkinChanged);
    // The host draws its icon caches from the skin; dropped on every apply, it makes them anew.
    const std::wstring& user = app().directories.UserDirectory();
    for (const wchar_t* cache : kIconCaches) platform::Current().files.Delete(user + cache);
    return true;
}
