// The members of the sections of the bars around the file list: "TreeInfo", "TabStyle", "UBar", "Bar",
// "PreView", "Recent", "FolderInfo", "FolderInfoEx", and the skin values of "Settings". Each is named
// exactly as its registry value; the groups in BarGroups.cpp give their defaults and say which ones
// are written. Names several sections share are reached through their section, as
// store.TreeInfoValues::Caption.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/LogFont.h"

namespace platform {
class Picture;
}
#include "settings/ListValues.h"

// The root the tree shows when none is stored.
constexpr const wchar_t* kDefaultTreeRoot = L"B4BFCC3A-DB2C-424C-B029-7FE99A87C641";

struct TreeInfoValues {
    int32_t NoLine = 0;
    int32_t LineSel = 0;
    int32_t TreeAutoScroll = 0;
    int32_t CursorOpen = 0;
    int32_t DelayTime = 0;
    int32_t HiddenItem = 0;
    int32_t TreeSync = 0;
    int32_t TreeNetSync = 0;
    int32_t TreeVirSync = 0;
    int32_t TreeTabSync = 0;
    int32_t SingleOpen = 0;
    int32_t FadeBtn = 0;
    int32_t LineSpace = 0;
    int32_t ClassicStyle = 0;
    int32_t En = 0, EnC = 0, EnS = 0, EnCS = 0;
    int32_t L = 0, LC = 0, LS = 0, LCS = 0;
    int32_t M = 0, MC = 0, MS = 0, MCS = 0;
    int32_t Caption = 0;  // the host's, as in every bar; read and never written
    int32_t ToolBar = 0;
    TextList TopNode;  // identifiers of the root nodes, at most 30
    // Read with the list's initial state.
    int32_t InsideTreeWidth = 0;  // the host's
    int32_t InitShowInsideTree = 0;
};

struct TabStyleValues {
    // Tab bar.
    int32_t WindowTabWidth = 0;
    int32_t WindowTabHeight = 0;
    int32_t MultiLine = 0;
    int32_t ActiveBold = 0;
    int32_t ActiveFlash = 0;
    int32_t TabIcon = 0;
    int32_t TabCloseButton = 0;
    int32_t InsertPos = 0;
    int32_t InsertParentPos = 0;
    int32_t LastActiveTab = 0;
    int32_t Caption = 0;
    int32_t ToolBar = 0;
    // Common tab values.
    int32_t SamePathIsChange = 0;
    int32_t SamePathIsClose = 0;
    int32_t LastTab = 0;
    int32_t LastTabNet = 0;
    int32_t LastTabVir = 0;
    int32_t RestoreScriptHistoryLT = 0;
    int32_t DragChange = 0;
    int32_t Flat = 0;
    int32_t ActiveStrong = 0;
    // Command ids run on a click of a tab: D double, R right, M middle; C Ctrl, S Shift. 16 bits.
    int32_t TabBarClkD = 0, TabBarClkDC = 0, TabBarClkDS = 0, TabBarClkDSC = 0;
    int32_t TabBarClkR = 0, TabBarClkRC = 0, TabBarClkRS = 0, TabBarClkRSC = 0;
    int32_t TabBarClkM = 0, TabBarClkMC = 0, TabBarClkMS = 0, TabBarClkMSC = 0;
};

struct UBarValues {
    int32_t SingleClick = 0;
    int32_t AddLinkTarget = 0;
    int32_t AddCommandType = 0;
    int32_t LostFocus = 0;
    int32_t SortMode = 0;
    int32_t LostFocusHist = 0;
    int32_t SingleHist = 0;
    int32_t DefaultHist = 0;
    int32_t En = 0, EnC = 0, EnS = 0, EnCS = 0;
    int32_t L = 0, LC = 0, LS = 0, LCS = 0;
    int32_t M = 0, MC = 0, MS = 0, MCS = 0;
    int32_t RestoreScriptHistoryUB = 0;
};

// One user bar of section "Bar": Name_%02d, Dir_%02d and Width_%02d. A bar without a width leaves
// whatever width was stored before it in place.
struct UserBar {
    std::wstring Name;
    std::wstring Dir;
    std::optional<int32_t> Width;
    bool operator==(const UserBar&) const = default;
};

constexpr int kUserBars = 9;

struct BarValues {
    std::array<UserBar, kUserBars> Bars;
    int32_t Style = 0;
};

struct PreViewValues {
    int32_t TestShellImage = 0;
    int32_t PreviewHandler = 0;
    std::wstring Ext;
    int32_t Caption = 0;
    int32_t ToolBar = 0;
    int32_t EventType = 0;
    LogFont PreViewFont;
};

struct RecentValues {
    int32_t WindowHistory = 0;
    int32_t FullPath = 0;
    int32_t Icon = 0;
    int32_t Caption = 0;
    int32_t ToolBar = 0;
    int32_t RestoreScriptHistoryHB = 0;
};

struct FolderInfoValues {
    // Section "FolderInfo": every value, named by a folder's full path, holds that folder's state.
    PathStateList FolderInfo;
    // Section "FolderInfoEx": wild-card paths (wp/ws, at most 20) and regular expressions (rp/rs, 10).
    PathStateList WildPaths;
    PathStateList RegexPaths;
};

// Skins, background image and status animation, in section "Settings".
struct SkinValues {
    std::wstring SkinName;
    std::wstring BkImgName;
    int32_t BkMode = 0;
    int32_t BkPosX = 0;
    int32_t BkPosY = 0;
    int32_t BkAlpha = 128;  // the one member that does not start at zero
    std::wstring PrgSkin;
    int32_t PrgDrawMode = 0;
    std::wstring StatusAnimeSkin;
    int32_t StatusAnimeStartTimer = 0;
    int32_t StatusAnimenCount = 0;
    int32_t StatusAnimenDrawPos = 0;
    // What loading the groups made of them: the background picture (none for modes 0 and 1), the
    // frames of the progress and animation strips, and a position for each animation sprite.
    std::shared_ptr<platform::Picture> BkImage;
    int32_t PrgImageCount = 0;
    int32_t StatusAnimeImageCount = 0;
    std::vector<std::pair<int32_t, int32_t>> StatusAnimeSprites;
};
