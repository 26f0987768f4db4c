// The members of the sections that shape the file list and its look: "ListInit", "ListDraw",
// "ListAction", "ListNoUpdate", "ListMouse", "Color", "ViewFont", "Thumb" and "Detail". Each is named
// exactly as its registry value (misspellings and the member prefix of m_nAutoUpdateNT included); the
// groups in ListGroups.cpp give their defaults and say which ones are written. Names several sections
// share are reached through their section, as store.ListMouseValues::En.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/LogFont.h"

// Numbered values "0", "1", ... or "TopNode%d", read up to the first absent or empty one.
using TextList = std::vector<std::wstring>;

// A folder or pattern and the encoded state of the folders it matches.
struct PathState {
    std::wstring path;
    std::wstring state;
    bool operator==(const PathState&) const = default;
};
using PathStateList = std::vector<PathState>;

struct ListInitValues {
    // Initial state of a new list.
    int32_t ViewMode = 0;
    int32_t SortMode = 0;  // -1: unsorted
    int32_t OrderMode = 0;
    int32_t IconSize = 0;
    int32_t AdvancedFoler = 0;
    std::wstring InitPath;
    // Column and tile widths, in pixels.
    int32_t ListTextWidth = 0;
    int32_t ExListTextWidth = 0;
    int32_t ListExtWidth = 0;
    int32_t ListSizeWidth = 0;
    int32_t ListDateWidth = 0;
    int32_t ListAttWidth = 0;
    int32_t TileTextWidth = 0;
    int32_t SlowTileItem = 0;
    int32_t TileType = 0;
    int32_t TileSize = 0;
    int32_t IconMinWidth = 0;
    int32_t IconLine = 0;
    int32_t DetailTypeIsExt = 0;
};

// Flag of ListViewOtherStyle that makes the list single-selection, the only one a page knows.
constexpr uint32_t kSingleSelectionStyle = 4;

struct ListDrawValues {
    // Base group: sizes, dates, what is listed.
    int32_t SizeUnit = 0;
    int32_t UseKBOnly = 0;
    int32_t UsePtSize = 0;
    std::wstring TimeFmt;
    int32_t FastOnly = 0;
    int32_t HiddenItem = 0;  // no control, written back as read
    int32_t HideDotItem = 0;
    int32_t HideLocalCache = 0;
    int32_t DetailSlowItem = 0;
    int32_t ListViewOtherStyle = 0;
    int32_t MaxListItem = 0;
    int32_t ListDrawFixed = 0;  // set by the Load to 500, with no registry value behind it
    // Icon retrieval.
    int32_t ListIconMode = 0;
    int32_t OverlayAttr = 0;
    int32_t OverLayMode = 0;
    int32_t IconTimeOut = 0;
    int32_t UseCache_IconIdx = 0;
    std::wstring EasyIconEx;
    // List drawing.
    int32_t Ext = 0;
    int32_t FullRowSel = 0;
    int32_t Glid = 0;
    int32_t AutoArray = 0;
    int32_t DrawRealName = 0;
    // Status area: bits 0 to 2 of ListCtrls are its three checks.
    int32_t ListCtrls = 0;
    std::wstring StDiskInfo;
    std::wstring StSelect;
    std::wstring StNoSel;
    int32_t NetworkDiskSize = 0;
    // Address bar and custom sort.
    int32_t AddressBarDblClk = 0;
    int32_t AddressBarAddFile = 0;
    int32_t CustomSortFlag = 0;
};

struct ListActionValues {
    // Behaviour.
    int32_t LinkAction = 0;
    int32_t NaviLockOpenMode = 0;
    int32_t LockOpen = 0;
    int32_t TipTextType = 0;
    int32_t SelectionHist = 0;
    int32_t InitSel = 0;
    int32_t KeepAfterSort = 0;
    int32_t LocalEnumErr = 0;
    int32_t ExecBackGround = 0;
    int32_t InitSerchActive = 0;
    // Automatic update, and the folders it leaves alone (section "ListNoUpdate").
    int32_t UpdateSort = 0;
    int32_t m_nAutoUpdateNT = 0;
    int32_t AutoUpdateLimit = 0;
    int32_t UpdateDelay = 0;
    int32_t AutoUpdateLocal = 0;  // the host's; read and never written
    TextList ListNoUpdate;
    // Filter and search bar.
    int32_t FilterSpeed = 0;
    int32_t SpcIsOR = 0;
    int32_t ExcludedFolder = 0;
    int32_t ExPathMatch = 0;
    // Split view.
    int32_t DivWndH = 0;
    int32_t DivRefleshBoth = 0;
    int32_t DivSyncMove = 0;
    int32_t DivCompare = 0;
    int32_t DivSyncFocus = 0;
};

// Click actions of a list, the tree and the user bars: a button (En double-click, L left, M middle)
// and a modifier (none, C Ctrl, S Shift, CS both), each an index into the action list of its page.
// The sections spell them alike, so each struct has its own twelve (one shared base would make the
// names ambiguous in the store).
struct ListMouseValues {
    int32_t SingleClick = 0;
    int32_t En = 0, EnC = 0, EnS = 0, EnCS = 0;
    int32_t L = 0, LC = 0, LS = 0, LCS = 0;
    int32_t M = 0, MC = 0, MS = 0, MCS = 0;
    // Read here; the wheel page writes them into whatever section is selected.
    int32_t AltWheel = 0;
    int32_t UseWheelCmd = 0;
    int32_t DropCreateDir = 0;  // the host's; read and never written
    // Scripts run on the blank area of the list.
    std::wstring SpaceDblClk;
    std::wstring SpaceClk;
    std::wstring SpaceMDblClk;
    std::wstring SpaceMClk;
};

// Bits of Color: a set bit 0 to 3 switches colouring of one kind of file off, bits 4 and 5 switch
// their feature on.
enum ColorSwitch : uint32_t {
    kNoFakeColour = 1u << 0,
    kNoNewColour = 1u << 1,
    kNoEncryptedColour = 1u << 2,
    kNoCompressedColour = 1u << 3,
    kGradient = 1u << 4,
    kActiveBackground = 1u << 5,
};

// Colours as COLORREF, each named by its registry value ("1" is Color1); 14 and 23 do not exist.
struct ColorValues {
    int32_t ApplicationLook = 0;
    int32_t Color = 0;
    int32_t Color1 = 0, Color2 = 0, Color3 = 0, Color4 = 0, Color5 = 0, Color6 = 0, Color7 = 0;
    int32_t Color8 = 0, Color9 = 0, Color10 = 0, Color11 = 0, Color12 = 0, Color13 = 0, Color15 = 0;
    int32_t Color16 = 0, Color17 = 0, Color18 = 0, Color19 = 0, Color20 = 0, Color21 = 0, Color22 = 0;
    int32_t Color24 = 0, Color25 = 0, Color26 = 0, Color27 = 0;
    // The host's; read and never written.
    int32_t s00 = 0, s01 = 0, s02 = 0, s03 = 0, s04 = 0;
    // Comma-separated extensions of the groups coloured by Color17 to Color22.
    std::wstring Ex1, Ex2, Ex3, Ex4, Ex5, Ex6;
    // Section "ViewFont", and the two fonts the list draws with: the stored height scaled by the
    // display factor, and bold at the unscaled height plus 2.
    LogFont ViewFont;
    LogFont ViewFontScaled;
    LogFont ViewFontBold;
};

// Bits of Thumb, the only two it keeps.
enum ThumbDrawing : uint32_t { kThumbText = 1u << 1, kThumbShellImage = 1u << 2 };

struct ThumbValues {
    int32_t Thumb = 0;
    std::wstring Txt;
    int32_t FolderThumb = 0;
    int32_t UseCatalog = 0;
    // Sizes in pixels; a page offers them as (index + 1) * 16.
    int32_t ImgSize0 = 0;
    int32_t ImgSize1 = 0;
    int32_t ImgSize2 = 0;
    int32_t ImgSizeBase = 0;
    LogFont ThumbFont;
};

// One column of the details view, as the desktop folder offers it.
struct DetailColumn {
    int32_t Col = 0;  // shown
    int32_t Width = 0;
    int32_t Index = 0;  // position
    bool operator==(const DetailColumn&) const = default;
};

struct DetailValues {
    std::vector<DetailColumn> Detail;
};
