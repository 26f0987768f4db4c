// The groups of the bars around the file list: sections "TreeInfo", "TabStyle", "UBar", "Bar",
// "PreView", "Recent", "FolderInfo", "FolderInfoEx", and the skin values of "Settings".
#include <cstdint>

#include "services/Format.h"
#include "settings/SettingRows.h"
#include "settings/SkinPictures.h"

namespace {

using S = SettingsStore;
using TI = TreeInfoValues;
using TS = TabStyleValues;
using UB = UBarValues;
using PV = PreViewValues;
using RV = RecentValues;

// clang-format off

const SettingRow kTreeRows[] = {
    IntRow(L"NoLine", &S::NoLine, 1),
    IntRow(L"LineSel", &S::LineSel, 0),
    IntRow(L"TreeAutoScroll", &S::TreeAutoScroll, 1),
    IntRow(L"CursorOpen", &S::CursorOpen, 1),
    IntRow(L"DelayTime", &S::DelayTime, 500).Range(50, 3000),
    IntRow(L"HiddenItem", &TI::HiddenItem, 1),
    IntRow(L"TreeSync", &S::TreeSync, 1),
    IntRow(L"TreeNetSync", &S::TreeNetSync, 0),
    IntRow(L"TreeVirSync", &S::TreeVirSync, 1),
    IntRow(L"TreeTabSync", &S::TreeTabSync, 0),
    IntRow(L"SingleOpen", &S::SingleOpen, 0),
    IntRow(L"FadeBtn", &S::FadeBtn, 1),
    IntRow(L"LineSpace", &S::LineSpace, 6).Range(0, 100),
    IntRow(L"ClassicStyle", &S::ClassicStyle, 0),
    IntRow(L"En", &TI::En, 1), IntRow(L"EnC", &TI::EnC, 2), IntRow(L"EnS", &TI::EnS, 3), IntRow(L"EnCS", &TI::EnCS, 0),
    IntRow(L"L", &TI::L, 1),   IntRow(L"LC", &TI::LC, 2),   IntRow(L"LS", &TI::LS, 3),   IntRow(L"LCS", &TI::LCS, 0),
    IntRow(L"M", &TI::M, 2),   IntRow(L"MC", &TI::MC, 2),   IntRow(L"MS", &TI::MS, 3),   IntRow(L"MCS", &TI::MCS, 0),
    IntRow(L"Caption", &TI::Caption, 1, Saved::No),
    IntRow(L"ToolBar", &TI::ToolBar, 1, Saved::No),
    // At most 30 roots are read; Save writes up to index 30, then the end mark.
    ListRow(L"TopNode%d", &S::TopNode, kDefaultTreeRoot).Limits(30, 31),
};

const SettingRow kTabBarRows[] = {
    IntRow(L"WindowTabWidth", &S::WindowTabWidth, 120).Range(0, 999),
    IntRow(L"WindowTabHeight", &S::WindowTabHeight, 0).Range(0, 480),
    IntRow(L"MultiLine", &S::MultiLine, 1),
    IntRow(L"ActiveBold", &S::ActiveBold, 1),
    IntRow(L"ActiveFlash", &S::ActiveFlash, 1),
    IntRow(L"TabIcon", &S::TabIcon, 1),
    IntRow(L"TabCloseButton", &S::TabCloseButton, 1),
    IntRow(L"InsertPos", &S::InsertPos, 1),
    IntRow(L"InsertParentPos", &S::InsertParentPos, 1),
    IntRow(L"LastActiveTab", &S::LastActiveTab, 1),
    IntRow(L"Caption", &TS::Caption, 0, Saved::No),  // 0 here, 1 in the other bars
    IntRow(L"ToolBar", &TS::ToolBar, 1, Saved::No),
};

// Command ids of tab clicks are 16-bit, on read and on write.
constexpr uint32_t kCommandId = 0xFFFF;

const SettingRow kTabCommonRows[] = {
    IntRow(L"SamePathIsChange", &S::SamePathIsChange, 0),
    IntRow(L"SamePathIsClose", &S::SamePathIsClose, 0),
    IntRow(L"LastTab", &S::LastTab, 1),
    IntRow(L"LastTabNet", &S::LastTabNet, 1),
    IntRow(L"LastTabVir", &S::LastTabVir, 1),
    IntRow(L"RestoreScriptHistoryLT", &S::RestoreScriptHistoryLT, 0),
    IntRow(L"DragChange", &S::DragChange, 1),
    IntRow(L"Flat", &S::Flat, 1),
    IntRow(L"ActiveStrong", &S::ActiveStrong, 0),
    IntRow(L"TabBarClkD", &S::TabBarClkD, 35112).Keep(kCommandId),
    IntRow(L"TabBarClkDC", &S::TabBarClkDC, 35053).Keep(kCommandId),
    IntRow(L"TabBarClkDS", &S::TabBarClkDS, 0).Keep(kCommandId),
    IntRow(L"TabBarClkDSC", &S::TabBarClkDSC, 0).Keep(kCommandId),
    IntRow(L"TabBarClkR", &S::TabBarClkR, 35860).Keep(kCommandId),
    IntRow(L"TabBarClkRC", &S::TabBarClkRC, 0).Keep(kCommandId),
    IntRow(L"TabBarClkRS", &S::TabBarClkRS, 0).Keep(kCommandId),
    IntRow(L"TabBarClkRSC", &S::TabBarClkRSC, 0).Keep(kCommandId),
    IntRow(L"TabBarClkM", &S::TabBarClkM, 35850).Keep(kCommandId),
    IntRow(L"TabBarClkMC", &S::TabBarClkMC, 0).Keep(kCommandId),
    IntRow(L"TabBarClkMS", &S::TabBarClkMS, 0).Keep(kCommandId),
    IntRow(L"TabBarClkMSC", &S::TabBarClkMSC, 0).Keep(kCommandId),
};

const SettingRow kUBarRows[] = {
    IntRow(L"SingleClick", &UB::SingleClick, 0),
    IntRow(L"AddLinkTarget", &S::AddLinkTarget, 0),
    IntRow(L"AddCommandType", &S::AddCommandType, 0),
    IntRow(L"LostFocus", &S::LostFocus, 0),
    IntRow(L"SortMode", &UB::SortMode, 0),
    IntRow(L"LostFocusHist", &S::LostFocusHist, 2),
    IntRow(L"SingleHist", &S::SingleHist, 1),
    IntRow(L"DefaultHist", &S::DefaultHist, 1),
    IntRow(L"En", &UB::En, 8), IntRow(L"EnC", &UB::EnC, 8), IntRow(L"EnS", &UB::EnS, 6), IntRow(L"EnCS", &UB::EnCS, 6),
    IntRow(L"L", &UB::L, 8),   IntRow(L"LC", &UB::LC, 2),   IntRow(L"LS", &UB::LS, 6),   IntRow(L"LCS", &UB::LCS, 6),
    IntRow(L"M", &UB::M, 2),   IntRow(L"MC", &UB::MC, 2),   IntRow(L"MS", &UB::MS, 6),   IntRow(L"MCS", &UB::MCS, 6),
    IntRow(L"RestoreScriptHistoryUB", &S::RestoreScriptHistoryUB, 0),
};

const SettingRow kBarRows[] = {
    IntRow(L"Style", &S::Style, 7),
};

const SettingRow kPreViewRows[] = {
    FontRow(&S::PreViewFont, Saved::Yes),
    IntRow(L"TestShellImage", &S::TestShellImage, 1),
    IntRow(L"PreviewHandler", &S::PreviewHandler, 0),
    TextRow(L"Ext", &PV::Ext, L"bmp,gif,giff,wmf,jpg,jpe,jpeg,jfif,emf,dib,ico,png"),
    IntRow(L"Caption", &PV::Caption, 1, Saved::No),
    IntRow(L"ToolBar", &PV::ToolBar, 1, Saved::No),
    IntRow(L"EventType", &S::EventType, 0, Saved::No),
};

const SettingRow kRecentRows[] = {
    IntRow(L"WindowHistory", &S::WindowHistory, 30).Range(0, 10000),
    IntRow(L"FullPath", &S::FullPath, 1),
    IntRow(L"Icon", &S::Icon, 1),
    IntRow(L"Caption", &RV::Caption, 1, Saved::No),
    IntRow(L"ToolBar", &RV::ToolBar, 1, Saved::No),
    IntRow(L"RestoreScriptHistoryHB", &S::RestoreScriptHistoryHB, 0),
};

// The folder page adds 20 and 10 at most, but a rule the host asks for goes in past that and is
// written like the others; the host then reads the first 20 and 10.
const SettingRow kFolderInfoExRows[] = {
    PairListRow(L"wp%03d", L"ws%03d", &S::WildPaths, 20).Limits(20, UINT32_MAX),
    PairListRow(L"rp%03d", L"rs%03d", &S::RegexPaths, 10).Limits(10, UINT32_MAX),
};

const SettingRow kSkinRows[] = {
    TextRow(L"SkinName", &S::SkinName, L"Default"),
    TextRow(L"BkImgName", &S::BkImgName, L"").Trimmed(),
    IntRow(L"BkMode", &S::BkMode, 4),
    IntRow(L"BkPosX", &S::BkPosX, 200),
    IntRow(L"BkPosY", &S::BkPosY, 200),
    IntRow(L"BkAlpha", &S::BkAlpha, 128).Range(0, 255),
    TextRow(L"PrgSkin", &S::PrgSkin, L"Default"),
    IntRow(L"PrgDrawMode", &S::PrgDrawMode, 1),
};

const SettingRow kStatusAnimeRows[] = {
    TextRow(L"StatusAnimeSkin", &S::StatusAnimeSkin, L"Default"),
    IntRow(L"StatusAnimeStartTimer", &S::StatusAnimeStartTimer, 0).Range(0, 1440000),
    IntRow(L"StatusAnimenCount", &S::StatusAnimenCount, 3).Range(1, 255),
    IntRow(L"StatusAnimenDrawPos", &S::StatusAnimenDrawPos, 0),
};

// clang-format on

// The nine bars of section "Bar", each a name, a folder and a width.
void LoadBars(SettingsStore& store) {
    store.SelectSection(L"Bar");
    for (int n = 0; n < kUserBars; ++n) {
        UserBar& bar = store.Bars[n];
        bar.Name = store.ReadString(crt::Format(L"Name_%02d", n), L"");
        bar.Dir = store.ReadString(crt::Format(L"Dir_%02d", n), L"");
        bar.Width = store.ReadInt(crt::Format(L"Width_%02d", n), 100);
    }
}

void SaveBars(SettingsStore& store) {
    store.SelectSection(L"Bar");
    for (int n = 0; n < kUserBars; ++n) {
        const UserBar& bar = store.Bars[n];
        store.WriteString(crt::Format(L"Name_%02d", n), bar.Name);
        store.WriteString(crt::Format(L"Dir_%02d", n), bar.Dir);
        if (bar.Width) store.WriteInt(crt::Format(L"Width_%02d", n), *bar.Width);
    }
}

// "FolderInfo" has no fixed names: every value is one folder. Save deletes the key first, so a folder
// removed from the list leaves nothing behind.
void LoadFolderInfo(SettingsStore& store) {
    store.SelectSection(L"FolderInfo");
    store.FolderInfo = store.ReadAllStrings();
}

void SaveFolderInfo(SettingsStore& store) {
    store.SelectSection(L"FolderInfo");
    store.DeleteSection();
    for (const PathState& folder : store.FolderInfo) store.WriteString(folder.path, folder.state);
}

const SectionRows kTreeParts[] = {{L"TreeInfo", kTreeRows}};
const SectionRows kTabBarParts[] = {{L"TabStyle", kTabBarRows}};
const SectionRows kTabCommonParts[] = {{L"TabStyle", kTabCommonRows}};
const SectionRows kUserBarParts[] = {{L"UBar", kUBarRows}, {L"Bar", kBarRows}};
const SectionRows kPreViewParts[] = {{L"PreView", kPreViewRows}};
const SectionRows kRecentParts[] = {{L"Recent", kRecentRows}};
const SectionRows kFolderInfoExParts[] = {{L"FolderInfoEx", kFolderInfoExRows}};
const SectionRows kSkinParts[] = {{L"Settings", kSkinRows}};
const SectionRows kStatusAnimeParts[] = {{L"Settings", kStatusAnimeRows}};

const GroupRows kGroups[] = {
    {SettingsGroup::Tree, kTreeParts},
    {SettingsGroup::TabBar, kTabBarParts},
    {SettingsGroup::TabCommon, kTabCommonParts},
    {SettingsGroup::UserBar, kUserBarParts, LoadBars, SaveBars},
    {SettingsGroup::PreView, kPreViewParts},
    {SettingsGroup::Recent, kRecentParts},
    {SettingsGroup::FolderInfo, {}, LoadFolderInfo, SaveFolderInfo},
    {SettingsGroup::FolderInfoEx, kFolderInfoExParts},
    {SettingsGroup::Skin, kSkinParts, LoadSkinPictures},
    {SettingsGroup::StatusAnime, kStatusAnimeParts, LoadStatusAnimePictures},
};

}  // namespace

std::span<const GroupRows> BarGroupRows() {
    return kGroups;
}
