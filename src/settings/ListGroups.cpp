// The groups of the file list and its look: sections "ListInit", "ListDraw", "ListAction",
// "ListNoUpdate", "ListMouse", "Color", "ViewFont" and "Thumb".
#include "settings/SettingRows.h"

namespace {

using S = SettingsStore;
using LI = ListInitValues;
using LD = ListDrawValues;
using LM = ListMouseValues;

// clang-format off

// Section "ListInit".

const SettingRow kListInitialRows[] = {
    IntRow(L"ViewMode", &S::ViewMode, 4),
    IntRow(L"SortMode", &LI::SortMode, -1),
    IntRow(L"OrderMode", &S::OrderMode, 0),
    IntRow(L"IconSize", &S::IconSize, 0),
    IntRow(L"AdvancedFoler", &S::AdvancedFoler, 1),
    TextRow(L"InitPath", &S::InitPath, L""),
};

const SettingRow kInsideTreeRows[] = {
    IntRow(L"InsideTreeWidth", &S::InsideTreeWidth, 200, Saved::No),
    IntRow(L"InitShowInsideTree", &S::InitShowInsideTree, 0),
};

const SettingRow kListWidthsRows[] = {
    IntRow(L"ListTextWidth", &S::ListTextWidth, 200).Range(0, 1000),
    IntRow(L"ExListTextWidth", &S::ExListTextWidth, 200).Range(0, 1000),
    IntRow(L"ListExtWidth", &S::ListExtWidth, 40).Range(0, 1000),
    IntRow(L"ListSizeWidth", &S::ListSizeWidth, 65).Range(0, 1000),
    IntRow(L"ListDateWidth", &S::ListDateWidth, 135).Range(0, 1000),
    IntRow(L"ListAttWidth", &S::ListAttWidth, 40).Range(0, 1000),
    IntRow(L"TileTextWidth", &S::TileTextWidth, 200).Range(0, 1000),
    IntRow(L"SlowTileItem", &S::SlowTileItem, 1),
    IntRow(L"TileType", &S::TileType, 1),
    IntRow(L"TileSize", &S::TileSize, 1),
    IntRow(L"IconMinWidth", &S::IconMinWidth, 48).Range(32, 255),
    IntRow(L"IconLine", &S::IconLine, 2).Range(1, 20),
    IntRow(L"DetailTypeIsExt", &S::DetailTypeIsExt, 0),
};

// Section "ListDraw".

const SettingRow kListStyleRows[] = {
    IntRow(L"SizeUnit", &S::SizeUnit, 1),
    IntRow(L"UseKBOnly", &S::UseKBOnly, 0),
    IntRow(L"UsePtSize", &S::UsePtSize, 1),
    TextRow(L"TimeFmt", &S::TimeFmt, L"yyyy/MM/dd HH:mm"),
    IntRow(L"FastOnly", &S::FastOnly, 0),
    IntRow(L"HiddenItem", &LD::HiddenItem, 1),
    IntRow(L"HideDotItem", &S::HideDotItem, 1),
    IntRow(L"HideLocalCache", &S::HideLocalCache, 1),
    IntRow(L"DetailSlowItem", &S::DetailSlowItem, 2),
    // Apply writes the one flag the page knows, and drops the others.
    IntRow(L"ListViewOtherStyle", &S::ListViewOtherStyle, 0).Writes(kSingleSelectionStyle),
    IntRow(L"MaxListItem", &S::MaxListItem, 500000).Range(0, 500000),
    ForcedRow(&S::ListDrawFixed, 500),
};

const SettingRow kListIconRows[] = {
    IntRow(L"ListIconMode", &S::ListIconMode, 0),
    IntRow(L"OverlayAttr", &S::OverlayAttr, 0),
    IntRow(L"OverLayMode", &S::OverLayMode, 0),
    IntRow(L"IconTimeOut", &S::IconTimeOut, 5000).Range(0, 60000),
    IntRow(L"UseCache_IconIdx", &S::UseCache_IconIdx, 0),
    TextRow(L"EasyIconEx", &S::EasyIconEx, L""),
};

const SettingRow kListDrawingRows[] = {
    IntRow(L"Ext", &LD::Ext, 0),
    IntRow(L"FullRowSel", &S::FullRowSel, 1),
    IntRow(L"Glid", &S::Glid, 1),
    IntRow(L"AutoArray", &S::AutoArray, 0),
    IntRow(L"DrawRealName", &S::DrawRealName, 4),
};

const SettingRow kListStatusRows[] = {
    // Load keeps the whole value; Save forms it anew from the three checks.
    IntRow(L"ListCtrls", &S::ListCtrls, -1).Writes(7),
    TextRow(L"StDiskInfo", &S::StDiskInfo, L"(空きディスク領域:%DiskFree%)"),
    TextRow(L"StSelect", &S::StSelect, L"%SelCount%個の項目を選択%SelSize%"),
    TextRow(L"StNoSel", &S::StNoSel, L"%AllCount%個%AllSize%の項目%DiskInfo%"),
    IntRow(L"NetworkDiskSize", &S::NetworkDiskSize, 0),
};

const SettingRow kAddressBarRows[] = {
    IntRow(L"AddressBarDblClk", &S::AddressBarDblClk, 4),
    IntRow(L"AddressBarAddFile", &S::AddressBarAddFile, 0),
};

const SettingRow kCustomSortRows[] = {
    IntRow(L"CustomSortFlag", &S::CustomSortFlag, 0x31034),
};

// Section "ListAction".

const SettingRow kListActionRows[] = {
    IntRow(L"LinkAction", &S::LinkAction, 1),
    IntRow(L"NaviLockOpenMode", &S::NaviLockOpenMode, 2),
    IntRow(L"LockOpen", &S::LockOpen, 1),
    IntRow(L"TipTextType", &S::TipTextType, 1),
    IntRow(L"SelectionHist", &S::SelectionHist, 1),
    IntRow(L"InitSel", &S::InitSel, 0),
    IntRow(L"KeepAfterSort", &S::KeepAfterSort, 1),
    IntRow(L"LocalEnumErr", &S::LocalEnumErr, 1),
    IntRow(L"ExecBackGround", &S::ExecBackGround, 0),
    IntRow(L"InitSerchActive", &S::InitSerchActive, 1),
};

const SettingRow kAutoUpdateRows[] = {
    IntRow(L"UpdateSort", &S::UpdateSort, 0),
    IntRow(L"m_nAutoUpdateNT", &S::m_nAutoUpdateNT, 1),
    IntRow(L"AutoUpdateLimit", &S::AutoUpdateLimit, 200000).Range(0, 500000),
    IntRow(L"UpdateDelay", &S::UpdateDelay, 500).Range(0, 10000),
    IntRow(L"AutoUpdateLocal", &S::AutoUpdateLocal, 1, Saved::No),
};

const SettingRow kNoUpdateRows[] = {
    ListRow(L"%d", &S::ListNoUpdate),
};

const SettingRow kFilterBarRows[] = {
    IntRow(L"FilterSpeed", &S::FilterSpeed, 800).Range(0, 10000),
    IntRow(L"SpcIsOR", &S::SpcIsOR, 1),
    IntRow(L"ExcludedFolder", &S::ExcludedFolder, 0),
    IntRow(L"ExPathMatch", &S::ExPathMatch, 0),
};

const SettingRow kSplitViewRows[] = {
    IntRow(L"DivWndH", &S::DivWndH, 1),
    IntRow(L"DivRefleshBoth", &S::DivRefleshBoth, 0),
    IntRow(L"DivSyncMove", &S::DivSyncMove, 0),
    IntRow(L"DivCompare", &S::DivCompare, 0),
    IntRow(L"DivSyncFocus", &S::DivSyncFocus, 0),
};

// Section "ListMouse".

const SettingRow kListClicksRows[] = {
    IntRow(L"SingleClick", &LM::SingleClick, 0),
    IntRow(L"En", &LM::En, 1), IntRow(L"EnC", &LM::EnC, 2), IntRow(L"EnS", &LM::EnS, 1), IntRow(L"EnCS", &LM::EnCS, 2),
    IntRow(L"L", &LM::L, 4),   IntRow(L"LC", &LM::LC, 4),   IntRow(L"LS", &LM::LS, 4),   IntRow(L"LCS", &LM::LCS, 4),
    IntRow(L"M", &LM::M, 2),   IntRow(L"MC", &LM::MC, 3),   IntRow(L"MS", &LM::MS, 2),   IntRow(L"MCS", &LM::MCS, 3),
    IntRow(L"AltWheel", &S::AltWheel, 0, Saved::No),
    IntRow(L"UseWheelCmd", &S::UseWheelCmd, 0, Saved::No),
    IntRow(L"DropCreateDir", &S::DropCreateDir, 0, Saved::No),
};

const SettingRow kBlankAreaRows[] = {
    TextRow(L"SpaceDblClk", &S::SpaceDblClk, L"_ListNoSelDblClk.txt"),
    TextRow(L"SpaceClk", &S::SpaceClk, L""),
    TextRow(L"SpaceMDblClk", &S::SpaceMDblClk, L""),
    TextRow(L"SpaceMClk", &S::SpaceMClk, L""),
};

// Section "Color": colours as COLORREF, some of them the system's.

const SettingRow kColorRows[] = {
    IntRow(L"ApplicationLook", &S::ApplicationLook, 33204),
    IntRow(L"Color", &S::Color, kNoFakeColour | kGradient | kActiveBackground),
    IntRow(L"1", &S::Color1, 0),            IntRow(L"2", &S::Color2, 0x8000),
    IntRow(L"3", &S::Color3, 0x800000),     IntRow(L"4", &S::Color4, 0x800080),
    IntRow(L"5", &S::Color5, 0x808000),     IntRow(L"6", &S::Color6, 0xff0000),
    IntRow(L"7", &S::Color7, 0).SystemColour(5),
    IntRow(L"8", &S::Color8, 0).SystemColour(14),
    IntRow(L"9", &S::Color9, 0).SystemColour(13),
    IntRow(L"10", &S::Color10, 0x7f7f7f),   IntRow(L"11", &S::Color11, 0xFF),
    IntRow(L"12", &S::Color12, 0x7FFF),     IntRow(L"13", &S::Color13, 0x1f1fff),
    IntRow(L"15", &S::Color15, 0).SystemColour(5),
    IntRow(L"16", &S::Color16, 0xf0f0f0),
    IntRow(L"17", &S::Color17, 0x7F3F00),   IntRow(L"18", &S::Color18, 0x3f7f00),
    IntRow(L"19", &S::Color19, 0x7F7F),     IntRow(L"20", &S::Color20, 0x3f1f00),
    IntRow(L"21", &S::Color21, 0x1f3f00),   IntRow(L"22", &S::Color22, 0x3F3F),
    IntRow(L"24", &S::Color24, 0).SystemColour(22),
    IntRow(L"25", &S::Color25, 0).SystemColour(8),
    IntRow(L"26", &S::Color26, 0).SystemColour(18),
    IntRow(L"27", &S::Color27, 0).SystemColour(15),
    IntRow(L"s00", &S::s00, 0xFFC8C8, Saved::No),
    IntRow(L"s01", &S::s01, 0xC8FFC8, Saved::No),
    IntRow(L"s02", &S::s02, 0xa0ffff, Saved::No),
    IntRow(L"s03", &S::s03, 0xa0a0ff, Saved::No),
    IntRow(L"s04", &S::s04, 0xa0a0a0, Saved::No),
    TextRow(L"Ex1", &S::Ex1, L"exe,com,bat,scr,pif,vbs"),
    TextRow(L"Ex2", &S::Ex2, L""), TextRow(L"Ex3", &S::Ex3, L""), TextRow(L"Ex4", &S::Ex4, L""),
    TextRow(L"Ex5", &S::Ex5, L""), TextRow(L"Ex6", &S::Ex6, L""),
};

const SettingRow kViewFontRows[] = {
    FontRow(&S::ViewFont, Saved::Yes),
};

// Section "Thumb".

const SettingRow kThumbRows[] = {
    IntRow(L"Thumb", &S::Thumb, 65534).Keep(kThumbText | kThumbShellImage),
    TextRow(L"Txt", &S::Txt, L"txt,ini,inf,c,cpp,h,pl,cgi,sql,bat,sql,log,csv,tsv,php,pm,java,def,js,css"),
    IntRow(L"FolderThumb", &S::FolderThumb, 1),
    IntRow(L"UseCatalog", &S::UseCatalog, 0),
    IntRow(L"ImgSize0", &S::ImgSize0, 32),
    IntRow(L"ImgSize1", &S::ImgSize1, 64),
    IntRow(L"ImgSize2", &S::ImgSize2, 128),
    IntRow(L"ImgSizeBase", &S::ImgSizeBase, 0).DefaultFrom(&S::ImgSize2),
    FontRow(&S::ThumbFont, Saved::No),
};

// clang-format on

// The list draws with the stored font scaled to the screen, and with a bold one at the stored height
// plus 2.
void BuildViewFonts(SettingsStore& store) {
    store.ViewFontScaled = store.ViewFont;
    store.ViewFontScaled.lfHeight = static_cast<int32_t>(store.ViewFont.lfHeight * store.DisplayFactor);
    store.ViewFontBold = store.ViewFont;
    store.ViewFontBold.lfWeight = 700;
    store.ViewFontBold.lfHeight = store.ViewFont.lfHeight + 2;
}

const SectionRows kListInitialParts[] = {{L"ListInit", kListInitialRows}, {L"TreeInfo", kInsideTreeRows}};
const SectionRows kListWidthsParts[] = {{L"ListInit", kListWidthsRows}};
const SectionRows kListStyleParts[] = {{L"ListDraw", kListStyleRows}};
const SectionRows kListIconParts[] = {{L"ListDraw", kListIconRows}};
const SectionRows kListDrawingParts[] = {{L"ListDraw", kListDrawingRows}};
const SectionRows kListStatusParts[] = {{L"ListDraw", kListStatusRows}};
const SectionRows kAddressBarParts[] = {{L"ListDraw", kAddressBarRows}};
const SectionRows kCustomSortParts[] = {{L"ListDraw", kCustomSortRows}};
const SectionRows kListActionParts[] = {{L"ListAction", kListActionRows}};
const SectionRows kAutoUpdateParts[] = {{L"ListAction", kAutoUpdateRows}, {L"ListNoUpdate", kNoUpdateRows}};
const SectionRows kFilterBarParts[] = {{L"ListAction", kFilterBarRows}};
const SectionRows kSplitViewParts[] = {{L"ListAction", kSplitViewRows}};
const SectionRows kListClicksParts[] = {{L"ListMouse", kListClicksRows}};
const SectionRows kBlankAreaParts[] = {{L"ListMouse", kBlankAreaRows}};
const SectionRows kColorParts[] = {{L"Color", kColorRows}};
const SectionRows kViewFontParts[] = {{L"ViewFont", kViewFontRows}};
const SectionRows kThumbParts[] = {{L"Thumb", kThumbRows}};

const GroupRows kGroups[] = {
    {SettingsGroup::ListInitial, kListInitialParts},
    {SettingsGroup::ListWidths, kListWidthsParts},
    {SettingsGroup::ListStyle, kListStyleParts},
    {SettingsGroup::ListIcon, kListIconParts},
    {SettingsGroup::ListDrawing, kListDrawingParts},
    {SettingsGroup::ListStatus, kListStatusParts},
    {SettingsGroup::AddressBar, kAddressBarParts},
    {SettingsGroup::CustomSort, kCustomSortParts},
    {SettingsGroup::ListAction, kListActionParts},
    {SettingsGroup::AutoUpdate, kAutoUpdateParts},
    {SettingsGroup::FilterBar, kFilterBarParts},
    {SettingsGroup::SplitView, kSplitViewParts},
    {SettingsGroup::ListClicks, kListClicksParts},
    {SettingsGroup::BlankArea, kBlankAreaParts},
    {SettingsGroup::Colors, kColorParts},
    {SettingsGroup::ViewFont, kViewFontParts, BuildViewFonts},
    {SettingsGroup::Thumb, kThumbParts},
};

}  // namespace

std::span<const GroupRows> ListGroupRows() {
    return kGroups;
}
