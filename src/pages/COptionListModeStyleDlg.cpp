#include "pages/COptionListModeStyleDlg.h"

#include "app/AppServices.h"
#include "pages/ListViewChoices.h"
#include "resources/pages/PageIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kModeStyleChanged = 49029;

struct WidthField {
    int control;
    int32_t SettingsStore::*member;
};
constexpr WidthField kWidthFields[] = {
    {IDC_MODE_STYLE_LIST_NAME_WIDTH, &SettingsStore::ListTextWidth},
    {IDC_MODE_STYLE_DETAIL_NAME_WIDTH, &SettingsStore::ExListTextWidth},
    {IDC_MODE_STYLE_EXT_WIDTH, &SettingsStore::ListExtWidth},
    {IDC_MODE_STYLE_SIZE_WIDTH, &SettingsStore::ListSizeWidth},
    {IDC_MODE_STYLE_DATE_WIDTH, &SettingsStore::ListDateWidth},
    {IDC_MODE_STYLE_ATTR_WIDTH, &SettingsStore::ListAttWidth},
    {IDC_MODE_STYLE_TILE_WIDTH, &SettingsStore::TileTextWidth},
    {IDC_MODE_STYLE_ICON_MIN_WIDTH, &SettingsStore::IconMinWidth},
    {IDC_MODE_STYLE_ICON_LINES, &SettingsStore::IconLine},
};

}  // namespace

COptionListModeStyleDlg::COptionListModeStyleDlg(AppServices& app) : OptionPage(IDD_OPTION_LIST_MODE_STYLE, app) {}

bool COptionListModeStyleDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::ListDrawing);
    LoadGroup(app().store, SettingsGroup::ListWidths);
    return true;
}

void COptionListModeStyleDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    DDX_Check(exchange, IDC_MODE_STYLE_EXT, store.ListDrawValues::Ext);
    DDX_Check(exchange, IDC_MODE_STYLE_FULL_ROW, store.FullRowSel);
    DDX_Check(exchange, IDC_MODE_STYLE_GRID, store.Glid);
    DDX_Check(exchange, IDC_MODE_STYLE_AUTO_ARRAY, store.AutoArray);
    DDX_CheckBits(exchange, kRealNameChecks, store.DrawRealName);
    for (const WidthField& field : kWidthFields) ExchangeUnsignedSetting(exchange, field.control, field.member);
    DDX_Check(exchange, IDC_MODE_STYLE_SLOW_TILE_ITEM, store.SlowTileItem);
    DDX_Check(exchange, IDC_MODE_STYLE_TILE_TYPE, store.TileType);
    DDX_Check(exchange, IDC_MODE_STYLE_TILE_SIZE, store.TileSize);
    DDX_Check(exchange, IDC_MODE_STYLE_TYPE_IS_EXT, store.DetailTypeIsExt);
}

bool COptionListModeStyleDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::ListDrawing);
    SaveGroup(app().store, SettingsGroup::ListWidths);
    changes.Record(kModeStyleChanged);
    return true;
}
