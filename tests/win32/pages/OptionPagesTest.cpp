#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "definitions/MacroHelperData.h"
#include "ui/ComboBox.h"
#include "ui/ListBox.h"
#include "ui/ListView.h"
#include "pages/ListViewChoices.h"
#include "unit/Utf16.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

constexpr const wchar_t* kAppInfo = L"Software\\Tarnwick\\QOR\\Main001\\AppInfo";
constexpr const wchar_t* kSettings = L"Software\\Tarnwick\\QOR\\Main001\\Settings";
constexpr const wchar_t* kListDraw = L"Software\\Tarnwick\\QOR\\Main001\\ListDraw";
constexpr const wchar_t* kListAction = L"Software\\Tarnwick\\QOR\\Main001\\ListAction";
constexpr const wchar_t* kMouse = L"Software\\Tarnwick\\QOR\\Main001\\Mouse";
constexpr const wchar_t* kListMouse = L"Software\\Tarnwick\\QOR\\Main001\\ListMouse";
constexpr const wchar_t* kListInit = L"Software\\Tarnwick\\QOR\\Main001\\ListInit";
constexpr const wchar_t* kThumb = L"Software\\Tarnwick\\QOR\\Main001\\Thumb";
constexpr const wchar_t* kTreeInfo = L"Software\\Tarnwick\\QOR\\Main001\\TreeInfo";
constexpr const wchar_t* kRecent = L"Software\\Tarnwick\\QOR\\Main001\\Recent";
constexpr const wchar_t* kNoUpdate = L"Software\\Tarnwick\\QOR\\Main001\\ListNoUpdate";
constexpr const wchar_t* kPreView = L"Software\\Tarnwick\\QOR\\Main001\\PreView";
constexpr const wchar_t* kTabStyle = L"Software\\Tarnwick\\QOR\\Main001\\TabStyle";
constexpr const wchar_t* kUBar = L"Software\\Tarnwick\\QOR\\Main001\\UBar";
constexpr platform::WindowRef kHost = 0x1234;
constexpr const wchar_t* kNotInteger = L"Please enter an integer.";
constexpr const wchar_t* kNotPositive = L"Please enter a positive integer.";

class OptionPagesTest : public OptionDialogFixture {
protected:
    void SetUp() override {
        OptionDialogFixture::SetUp();
        fake_.windows().AddHostWindow(kHost);
        // The skin pages keep their values only with an installed skin chosen.
        for (const wchar_t* folder :
             {L"C:\\Qor\\img\\Default", L"C:\\Qor\\StatusImg\\Default", L"C:\\Qor\\StatusAnime\\Default"})
            fake_.files().AddDirectory(folder);
    }

    std::wstring Field(HWND page, int id) const { return TextOf(GetDlgItem(page, id)); }
    void Type(HWND page, int id, const wchar_t* text) const { SetWindowTextW(GetDlgItem(page, id), text); }
};

// The host hears the page's code (none for the title bar); fields that mean something only with a switch on
// follow it. A refused field takes the focus with its text selected, and nothing is stored or heard.
TEST_F(OptionPagesTest, ControlsCarryTheirStoredValuesBothWays) {
    enum Kind { Check, Radio, Edit, Combo };
    // A null "set" leaves the field as loaded; "off" are the fields enabled as loaded that the setting turns off.
    // clang-format off
    struct Case { int page, control; Kind kind; const wchar_t *section, *name, *stored, *set; uint16_t code;
                  std::vector<int> off = {}; const wchar_t* refused = nullptr; };
    const Case cases[] = {
        {37, 1201, Radio, kAppInfo,  L"TitleBarType",     L"0",         L"2",           0},
        {20, 1251, Check, kAppInfo,  L"UseCompFolder",    L"1",         L"0",           49017},
        {20, 1003, Edit,  kAppInfo,  L"ChgSortAlg",       L"10",        L"25",          49017},
        {20, 1003, Edit,  kAppInfo,  L"ChgSortAlg",       L"10001",     nullptr,        0, {}, L"0 and 10000"},
        {20, 1003, Edit,  kAppInfo,  L"ChgSortAlg",       L"10",        L"-1",          0, {}, kNotPositive},
        {24, 1251, Check, kAppInfo,  L"DropFolder",       L"1",         L"0",           49020, {1151, 1152}},
        {30, 1251, Check, kAppInfo,  L"UsePing",          L"1",         L"0",           49021, {1001, 1002}},
        {30, 1001, Edit,  kAppInfo,  L"NetworkTimeout",   L"500",       L"5000000",     49021},
        {30, 1001, Edit,  kAppInfo,  L"NetworkTimeout",   L"9",         nullptr,        0, {}, L"10 and 5000000"},
        {30, 1001, Edit,  kAppInfo,  L"NetworkTimeout",   L"500",       L"12a",         0, {}, kNotInteger},
        {30, 1002, Edit,  kAppInfo,  L"NetworkRetry",     L"3",         L"2147483648",  0, {}, kNotInteger},
        {34, 1004, Edit,  kAppInfo,  L"VersionCheckDay",  L"7",         L"0",           49017},
        {34, 1253, Check, kAppInfo,  L"VersionCheckBeta", L"0",         L"1",           49017},
        {5,  1201, Radio, kSettings, L"UserDirMode",      L"2",         L"1",           49011, {1051, 1052}},
        {5,  1051, Edit,  kSettings, L"UserDir",          L"D:\\Mine", L"E:\\Typed", 49011},
        {5,  1251, Check, kSettings, L"DupMutex",         L"0",         L"1",           49011},
        {5,  1001, Edit,  kSettings, L"MaxScript",        L"5",         L"50",          49011},
        {5,  1001, Edit,  kSettings, L"MaxScript",        L"99",        nullptr,        0, {}, L"1 and 50"},
        {25, 1201, Radio, kAppInfo,  L"StyleMode",        L"0",         L"3",           49019},
        {25, 1251, Check, kAppInfo,  L"DivTarget",        L"1",         L"0",           49019},
        // The status area, incremental search, filter bar, split list and address bar pages.
        {28, 1259, Check, kListDraw, L"ListCtrls",        L"1",         L"0",           49028},
        {28, 1002, Edit,  kListDraw, L"StSelect",         L"%SelCount%", L"選択 %SelSize%", 49028},
        {32, 1001, Edit,  kAppInfo,  L"IncliMentTime",    L"1000",      L"100",         49032},
        {32, 1001, Edit,  kAppInfo,  L"IncliMentTime",    L"1000",      L"99",          0, {}, L"100 and 10000"},
        {32, 1251, Check, kAppInfo,  L"UseMigemo",        L"1",         L"0",           49032, {1051, 1052, 1002}},
        {32, 1052, Edit,  kAppInfo,  L"MigemoDic",        L"D:\\Dict", L"E:\\Migemo\\dict", 49032},
        {38, 1001, Edit,  kListAction, L"FilterSpeed",    L"800",       L"0",           49035},
        {38, 1001, Edit,  kListAction, L"FilterSpeed",    L"10001",     nullptr,        0, {}, L"0 and 10000"},
        {38, 1251, Check, kListAction, L"SpcIsOR",        L"1",         L"0",           49035},
        {41, 1251, Check, kListAction, L"DivWndH",        L"1",         L"0",           49038},
        {44, 1201, Radio, kListDraw, L"AddressBarDblClk", L"4",         L"0",           49034},
        {44, 1251, Check, kListDraw, L"AddressBarAddFile", L"0",        L"1",           49034},
        // The mouse pages.
        {4,  1254, Check, kListMouse, L"SingleClick",     L"0",         L"1",           49012},
        {14, 1201, Radio, kMouse,    L"Gesture",          L"2",         L"0",           49016,
         {1301, 1302, 1303, 1304, 1601, 1001, 1101}},
        {14, 1001, Edit,  kMouse,    L"GestureSensitivity", L"5",       L"100",         49016},
        {14, 1001, Edit,  kMouse,    L"GestureSensitivity", L"2",       nullptr,        0, {}, L"3 and 100"},
        {42, 1001, Edit,  kListMouse, L"SpaceClk",        L"",          L"a.txt",       49039},
        {43, 1201, Radio, kListMouse, L"UseWheelCmd",     L"0",         L"1",           49040, {1251}},
        {43, 1251, Check, kListMouse, L"AltWheel",        L"0",         L"1",           49040},
        // The list pages: common look, behaviour, thumbnails, recent folders, automatic update, views.
        {3,  1252, Check, kListDraw,   L"SizeUnit",        L"1",      L"0",         49000, {1253, 1254}},
        {3,  1152, Edit,  kListDraw,   L"TimeFmt",         L"yy-M-d", L"d.M. H:mm h", 49000},
        {3,  1001, Edit,  kListDraw,   L"MaxListItem",     L"500000", L"0",         49000},
        {3,  1001, Edit,  kListDraw,   L"MaxListItem",     L"1",      L"500001",    0, {}, L"0 and 500000"},
        {13, 1154, Combo, kListAction, L"LinkAction",      L"1",      L"0",         49000},
        {13, 1258, Check, kListAction, L"LockOpen",        L"1",      L"0",         49000},
        {13, 1201, Radio, kListAction, L"ExecBackGround",  L"0",      L"1",         49000},
        {9,  1254, Check, kThumb,      L"FolderThumb",     L"1",      L"0",         49002},
        {9,  1002, Edit,  kThumb,      L"Txt",             L"txt",    L"log,md",    49002},
        {7,  1001, Edit,  kRecent,     L"WindowHistory",   L"30",     L"10000",     49004},
        {7,  1001, Edit,  kRecent,     L"WindowHistory",   L"30",     L"-1",        0, {}, L"0 and 10000"},
        {7,  1251, Check, kRecent,     L"Icon",            L"1",      L"0",         49004},
        {27, 1253, Check, kListAction, L"UpdateSort",      L"0",      L"1",         49027},
        {27, 1157, Combo, kListAction, L"m_nAutoUpdateNT", L"1",      L"2",         49027},
        {27, 1005, Edit,  kListAction, L"AutoUpdateLimit", L"200000", L"0",         49027},
        {27, 1005, Edit,  kListAction, L"AutoUpdateLimit", L"500001", nullptr,      0, {}, L"0 and 500000"},
        {29, 1258, Check, kListDraw,   L"Ext",             L"0",      L"1",         49029},
        {29, 1006, Edit,  kListInit,   L"ListTextWidth",   L"200",    L"1000",      49029},
        {29, 1005, Edit,  kListInit,   L"ListAttWidth",    L"40",     L"1001",      0, {}, L"0 and 1000"},
        {35, 1203, Radio, kListInit,   L"IconSize",        L"0",      L"5",         49022},
        {35, 1251, Check, kListInit,   L"AdvancedFoler",   L"1",      L"0",         49022},
        {35, 1051, Edit,  kListInit,   L"InitPath",        L"C:\\Start", L"D:\\Typed", 49022},
        {6,  1251, Check, kPreView,  L"TestShellImage",   L"0",         L"1",           49003, {1001}},
        {6,  1252, Check, kPreView,  L"PreviewHandler",   L"0",         L"1",           49003},
        {6,  1001, Edit,  kPreView,  L"Ext",              L"png,jpg",   L"webp",        49003},
        {17, 1201, Radio, kListDraw, L"ListIconMode",     L"0",         L"3",           49034},
        {17, 1001, Edit,  kListDraw, L"EasyIconEx",       L"exe,lnk",   L"",            49034},
        {17, 1255, Check, kListDraw, L"OverlayAttr",      L"0",         L"1",           49034},
        {17, 1002, Edit,  kListDraw, L"IconTimeOut",      L"5000",      L"0",           49034},
        {17, 1002, Edit,  kListDraw, L"IconTimeOut",      L"60001",     nullptr,        0, {}, L"0 and 60000"},
        {12, 1003, Edit,  kSettings, L"BkAlpha",          L"128",       L"255",         49013},
        {12, 1003, Edit,  kSettings, L"BkAlpha",          L"256",       nullptr,        0, {}, L"0 and 255"},
        {12, 1201, Radio, kSettings, L"PrgDrawMode",      L"1",         L"0",           49013},
        {45, 1002, Edit,  kSettings, L"StatusAnimeStartTimer", L"0",    L"1440000",     49051},
        {45, 1003, Edit,  kSettings, L"StatusAnimenCount", L"0",        nullptr,        0, {}, L"1 and 255"},
        {45, 1201, Radio, kSettings, L"StatusAnimenDrawPos", L"0",      L"2",           49051},
        // The tab pages: the tab bar's look, and what the tab bars share.
        {8,  1001, Edit,  kTabStyle,   L"WindowTabWidth",  L"120",    L"999",       49008},
        {8,  1001, Edit,  kTabStyle,   L"WindowTabWidth",  L"1000",   nullptr,      0, {}, L"0 and 999"},
        {8,  1251, Check, kTabStyle,   L"ActiveBold",      L"1",      L"0",         49008},
        {8,  1201, Radio, kTabStyle,   L"TabIcon",         L"1",      L"2",         49008},
        {8,  1151, Combo, kTabStyle,   L"InsertPos",       L"1",      L"3",         49008},
        {31, 1255, Check, kTabStyle,   L"SamePathIsChange", L"0",     L"1",         49031},
        {31, 1256, Check, kTabStyle,   L"LastTab",         L"1",      L"0",         49031, {1260, 1261, 1262}},
        // The folder tree page.
        {10, 1254, Check, kTreeInfo,   L"TreeAutoScroll",  L"1",      L"0",         49007},
        {10, 1251, Check, kTreeInfo,   L"NoLine",          L"1",      L"0",         49007, {1252}},
        {10, 1002, Edit,  kTreeInfo,   L"LineSpace",       L"6",      L"100",       49007},
        {10, 1002, Edit,  kTreeInfo,   L"LineSpace",       L"6",      L"101",       0, {}, L"0 and 100"},
        {10, 1258, Check, kTreeInfo,   L"CursorOpen",      L"1",      L"0",         49007, {1001}},
        {10, 1261, Check, kTreeInfo,   L"TreeSync",        L"1",      L"0",         49007, {1262, 1263, 1264}},
        // The user bars.
        {11, 1151, Combo, kUBar,       L"SortMode",        L"1",      L"3",         49006},
        {11, 1251, Check, kUBar,       L"RestoreScriptHistoryUB", L"0", L"1",       49006},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.name) + L"=" + c.stored));
        const bool text =
            c.page == 42 || std::wstring(c.stored).find_first_not_of(L"-0123456789") != std::wstring::npos;
        fake_.registry().DeleteKey(kAppInfo);
        fake_.registry().DeleteKey(kSettings);
        fake_.registry().DeleteKey(c.section);
        // The network, C/Migemo and gesture fields enabled, so that a refused one takes the focus.
        DirectWriteInt(kAppInfo, L"UsePing", 1);
        DirectWriteInt(kAppInfo, L"UseMigemo", 1);
        DirectWriteInt(kMouse, L"Gesture", 1);
        text ? DirectWriteString(c.section, c.name, c.stored) : DirectWriteInt(c.section, c.name, std::stoi(c.stored));
        AppServices app{96};  // a process of its own: the draft holds what its pages loaded
        app.commandOptionRoot = app_.commandOptionRoot;
        COptionDlg dialog(app);
        HWND page = Open(dialog, c.page);
        ASSERT_NE(nullptr, page);
        auto enabled = [&] {
            std::vector<bool> result;
            for (int id : c.off) result.push_back(IsWindowEnabled(GetDlgItem(page, id)) != FALSE);
            return result;
        };
        EXPECT_EQ(std::vector<bool>(c.off.size(), true), enabled());
        if (c.kind == Edit) {
            EXPECT_EQ(c.stored, Field(page, c.control));
            if (c.set) Type(page, c.control, c.set);
        } else if (c.kind == Combo) {
            EXPECT_EQ(std::stoi(c.stored), SendDlgItemMessageW(page, c.control, CB_GETCURSEL, 0, 0));
            SendDlgItemMessageW(page, c.control, CB_SETCURSEL, std::stoi(c.set), 0);
        } else {
            const int button = c.kind == Check ? c.control : c.control + std::stoi(c.stored);
            EXPECT_EQ(c.kind == Check ? std::stoi(c.stored) : BST_CHECKED, IsDlgButtonChecked(page, button));
            Click(page, c.kind == Check ? c.control : c.control + std::stoi(c.set));
        }
        EXPECT_EQ(std::vector<bool>(c.off.size(), false), enabled());
        const size_t shown = fake_.prompts().shown().size(), heard = fake_.windows().commands().size();
        Apply(dialog);
        EXPECT_EQ(c.set && !c.refused ? c.set : c.stored, text ? DirectReadString(c.section, c.name, L"")
                                                               : std::to_wstring(DirectReadInt(c.section, c.name, -1)));
        EXPECT_EQ(c.code ? std::vector<uint16_t>{c.code} : std::vector<uint16_t>{}, Codes(heard));
        if (!c.refused) {
            EXPECT_EQ(std::vector<std::wstring>{}, Messages(shown));
            continue;
        }
        const std::wstring refusal = c.refused;
        EXPECT_EQ((std::vector{refusal.starts_with(L"Please") ? refusal
                                                              : L"Please enter an integer between " + refusal + L"."}),
                  Messages(shown));
        EXPECT_EQ(GetDlgItem(page, c.control), GetFocus());
        DWORD start = 1, end = 0;
        SendDlgItemMessageW(page, c.control, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                            reinterpret_cast<LPARAM>(&end));
        EXPECT_EQ(std::pair(0ul, wcslen(c.set ? c.set : c.stored)), std::pair(start, static_cast<size_t>(end)));
    }
}

// The benchmark reports in a message box and shows the threshold it found; only Apply stores it.
TEST_F(OptionPagesTest, BenchmarkShowsItsReportAndTheThresholdItFound) {
    DirectWriteInt(kAppInfo, L"ChgSortAlg", 777);
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 20);
    ASSERT_NE(nullptr, page);
    SendMessageW(page, WM_COMMAND, MAKEWPARAM(1301, BN_CLICKED), 0);
    ASSERT_EQ(1u, fake_.prompts().shown().size());
    EXPECT_EQ(0u, Messages()[0].rfind(L"Results up to 100-line display.\nValue - time\n000 - ", 0));
    EXPECT_EQ(std::to_wstring(app_.store.ChgSortAlg), Field(page, 1003));
    EXPECT_LT(app_.store.ChgSortAlg, 1000);
    EXPECT_EQ(777, DirectReadInt(kAppInfo, L"ChgSortAlg", -1)) << "nothing stored before Apply";
}

int ComboSelection(HWND page, int id) {
    return static_cast<int>(SendMessageW(GetDlgItem(page, id), CB_GETCURSEL, 0, 0));
}

std::vector<std::wstring> ComboItems(HWND page, int id) {
    const ui::ComboBox combo(GetDlgItem(page, id));
    std::vector<std::wstring> items;
    for (int i = 0; i < combo.GetCount(); ++i) items.push_back(combo.GetText(i));
    return items;
}

constexpr const wchar_t* kCopyInBackground = L"内部コマンド:シェルのファイルコピー(バックグラウンド)";
constexpr const wchar_t* kCopyWaiting = L"内部コマンド:シェルのファイルコピー(同期モード)";
constexpr const wchar_t* kMoveInBackground = L"内部コマンド:シェルのファイル移動(バックグラウンド)";
constexpr const wchar_t* kMoveWaiting = L"内部コマンド:シェルのファイル移動(同期モード)";
constexpr const wchar_t* kCommonOperationText = L"C:\\Qor\\command\\Option\\.en-US\\Option\\196.txt";

// A stored command that is gone shows, and is stored, as the waiting shell operation. In another language the
// shell's operations are the text file's; the user's commands never go into the file for translators.
TEST_F(OptionPagesTest, CommonOperationOffersTheShellOperationsAndTheUsersCommandsForDrops) {
    // clang-format off
    struct Case { const char* what; const wchar_t* nls; const wchar_t* file; std::vector<std::wstring> copy; };
    const Case cases[] = {
        {"the template's words", L".ja-JP", nullptr, {kCopyInBackground, kCopyWaiting, L"Pack", L"Mail"}},
        {"another language, no file yet: one is written", L".en-US", nullptr,
         {kCopyInBackground, kCopyWaiting, L"Pack", L"Mail"}},
        {"a file replaces the copy items", L".en-US",
         L"Common\r\n1151\tComboBoxStart\r\n1151\tComboBox\tShell copy\r\n1151\tComboBox\tShell copy, waiting\r\n",
         {L"Shell copy", L"Shell copy, waiting", L"Pack", L"Mail"}},
    };
    // clang-format on
    fake_.files().AddFile(L"C:\\User\\ExternalUserCommand.txt",
                          Utf16Bytes(L"42001\t\t-\tzip.exe\tPack\r\n42600\t\t-\tmail.exe\tMail\r\n", true));
    const std::vector<std::wstring> move = {kMoveInBackground, kMoveWaiting, L"Pack", L"Mail"};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        DirectWriteString(kSettings, L"NLS", c.nls);
        if (c.file) fake_.files().AddFile(kCommonOperationText, Utf16Bytes(c.file, true));
        DirectWriteInt(kAppInfo, L"DropExCommand0", 42600);
        DirectWriteInt(kAppInfo, L"DropExCommand1", 42999);
        AppServices app{96};  // a process of its own, which reads its language once
        app.commandOptionRoot = app_.commandOptionRoot;
        app.commands.LoadCommandLists(L"C:\\User\\");
        COptionDlg dialog(app);
        HWND page = Open(dialog, 24);
        ASSERT_NE(nullptr, page);
        for (int exchange = 0; exchange < 3; ++exchange) {
            EXPECT_EQ(std::tuple(c.copy, move, 3, 1),
                      std::tuple(ComboItems(page, 1151), ComboItems(page, 1152), ComboSelection(page, 1151),
                                 ComboSelection(page, 1152)));
            EXPECT_TRUE(dialog.Page(24)->UpdateData(true) && dialog.Page(24)->UpdateData(false));
        }
        SendMessageW(GetDlgItem(page, 1151), CB_SETCURSEL, 2, 0);
        Apply(dialog);
        EXPECT_EQ(std::pair(42001, 1), std::pair(DirectReadInt(kAppInfo, L"DropExCommand0", -1),
                                                 DirectReadInt(kAppInfo, L"DropExCommand1", -1)));
        if (c.file || std::wstring(c.nls) == L".ja-JP") continue;
        const std::string text = fake_.files().FileText(kCommonOperationText);
        auto written = [&](const std::wstring& part) {
            const std::vector<uint8_t> bytes = Utf16Bytes(part);
            return text.find(std::string(bytes.begin(), bytes.end())) != std::string::npos;
        };
        for (const auto& [id, shell] : {std::pair(L"1151", c.copy), std::pair(L"1152", move)})
            EXPECT_TRUE(written(id + std::wstring(L"\tComboBoxStart\r\n") + id + L"\tComboBox\t" + shell[0] + L"\r\n" +
                                id + L"\tComboBox\t" + shell[1] + L"\r\n"));
        EXPECT_FALSE(written(L"Pack") || written(L"Mail")) << "a user's commands stay out";
    }
}

// The spin goes as far as the field may; the browser starts on the field; "open" shows the directory in force.
TEST_F(OptionPagesTest, OtherPageBrowsesAndOpensTheUserDirectory) {
    DirectWriteString(kSettings, L"UserDir", L"D:\\Mine");
    DirectWriteInt(kSettings, L"UserDirMode", 2);
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 5);
    ASSERT_NE(nullptr, page);
    int lower = 0, upper = 0;
    SendMessageW(GetDlgItem(page, 1351), UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower),
                 reinterpret_cast<LPARAM>(&upper));
    EXPECT_EQ(std::make_pair(1, 50), std::make_pair(lower, upper));

    fake_.prompts().ChooseFolder({true, L"E:\\Chosen"});
    fake_.prompts().ChooseFolder({true, L""});  // a virtual folder: nothing to put in the field
    Click(page, 1052);
    EXPECT_EQ(L"E:\\Chosen", Field(page, 1051));
    Click(page, 1052);
    EXPECT_EQ(L"E:\\Chosen", Field(page, 1051));
    std::vector<std::wstring> starts;
    for (const auto& browsed : fake_.prompts().browsed()) starts.push_back(browsed.start);
    EXPECT_EQ((std::vector<std::wstring>{L"D:\\Mine", L"E:\\Chosen"}), starts);

    Click(page, 1301);
    ASSERT_EQ(1u, fake_.processes().shellRequests().size());
    EXPECT_EQ(app_.directories.UserDirectory(), fake_.processes().shellRequests()[0].file);
}

// A macro from the helper, open on the status area's tab, replaces the selected text; Undo takes it back.
TEST_F(OptionPagesTest, StatusTemplatesComeFromPresetsAndTheMacroHelper) {
    app_.dialogLanguage.Load();
    const std::wstring file = MacroHelperFilePath(app_.directories.ProgramDirectory(), app_.dialogLanguage.tag(), 5);
    fake_.files().CreateDirectoryTree(file.substr(0, file.rfind(L'\\')));
    fake_.files().AddFile(file, Utf16Bytes(L"%Type%\ttype/%DiskSize%\tsize", true));
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 28);
    ASSERT_NE(nullptr, page);
    // clang-format off
    struct Case { int button, control; const wchar_t* text; };
    const Case cases[] = {
        {1306, 1003, L"%AllCount% Objects%AllSize% %DiskInfo%"}, {1304, 1001, L"(%DiskFree%/%DiskSize%)"},
        {1304, 1002, L"%SelCount%%SelSize%/%AllCount%%AllSize% %Type%"}, {1305, 1002, L"%SelCount%個の項目を選択%SelSize%"},
    };
    // clang-format on
    for (const Case& c : cases) {
        Click(page, c.button);
        EXPECT_EQ(c.text, Field(page, c.control)) << c.button;
    }
    std::vector<bool> tabs;
    WhenShown(L"マクロ入力", [&](HWND helper) {
        for (int tab = 0; tab < 6; ++tab) tabs.push_back(IsWindowEnabled(GetDlgItem(helper, 1201 + tab)) != FALSE);
        ui::ListView(GetDlgItem(helper, 1601)).SelectRow(0);
        Click(helper, IDOK);
    });
    SendDlgItemMessageW(page, 1002, EM_SETSEL, 0, 10);
    Click(page, 1302);
    EXPECT_EQ((std::vector{false, false, false, false, false, true}), tabs);
    EXPECT_EQ(L"%Type%個の項目を選択%SelSize%", Field(page, 1002));
    SendDlgItemMessageW(page, 1002, EM_UNDO, 0, 0);
    EXPECT_EQ(L"%SelCount%個の項目を選択%SelSize%", Field(page, 1002));
}

std::span<const BitCheck> BitChecksOf(int page) {
    switch (page) {
        case 3:
            return kOtherStyleChecks;
        case 33:
            return kCustomSortChecks;
        case 29:
            return kRealNameChecks;
        default:
            return kThumbChecks;
    }
}

// Bits no check stands for are gone; digits compared as numbers are dropped on systems that lack them. A
// stored value of -1 here is no value at all.
TEST_F(OptionPagesTest, ListValuesOfBitsShowAsChecksAndAreMadeAnewFromThem) {
    // clang-format off
    struct Case { int page; const wchar_t *section, *name; int64_t stored; std::vector<int> ticked, clicks;
                  int32_t saved; uint16_t code; int32_t version = 1000; std::vector<int> disabled = {}; };
    const Case cases[] = {
        {3,  kListDraw, L"ListViewOtherStyle", 6,  {1256}, {},     4, 49000},
        {3,  kListDraw, L"ListViewOtherStyle", 4,  {1256}, {1256}, 0, 49000},
        {3,  kListDraw, L"ListViewOtherStyle", -1, {},     {1256}, 4, 49000},
        {33, kListDraw, L"CustomSortFlag", -1, {1251, 1252, 1253, 1254, 1255, 1256}, {}, 0x31034, 49000},
        {33, kListDraw, L"CustomSortFlag", 0x31034, {1251, 1252, 1253, 1254, 1255, 1256}, {1257}, 0x3103C, 49000},
        {33, kListDraw, L"CustomSortFlag", 0x31034, {1251, 1252, 1253, 1254, 1255, 1256}, {1257}, 0x31034, 49000, 600},
        {33, kListDraw, L"CustomSortFlag", 0xFFFFFFFF, {1251, 1252, 1253, 1254, 1255, 1256, 1257}, {1251}, 0x3102C, 49000},
        {29, kListDraw, L"DrawRealName", -1, {1270}, {}, 4, 49029},
        {29, kListDraw, L"DrawRealName", 0xFF, {1265, 1266, 1267, 1268, 1269, 1270}, {1265}, 0x67, 49029},
        {29, kListDraw, L"DrawRealName", 0, {}, {1267, 1268}, 0x41, 49029},
        {9,  kThumb, L"Thumb", -1, {1252, 1253}, {}, 6, 49002},
        {9,  kThumb, L"Thumb", 6, {1252, 1253}, {1252}, 4, 49002, 1000, {1002, 1301}},
        {9,  kThumb, L"Thumb", 6, {1252, 1253}, {1253}, 2, 49002, 1000, {1254}},
    };
    // clang-format on
    const std::vector<int> controls = {1251, 1252, 1253, 1254, 1255, 1256, 1257, 1265,
                                       1266, 1267, 1268, 1269, 1270, 1002, 1301};
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.name) + L"=" + std::to_wstring(c.stored)));
        fake_.registry().DeleteKey(c.section);
        if (c.stored != -1) DirectWriteInt(c.section, c.name, static_cast<int32_t>(c.stored));
        fake_.environment().SetSystemVersion(c.version);
        AppServices app{96};
        app.commandOptionRoot = app_.commandOptionRoot;
        COptionDlg dialog(app);
        HWND page = Open(dialog, c.page);
        ASSERT_NE(nullptr, page);
        std::vector<int> ticked;
        for (const BitCheck& check : BitChecksOf(c.page))
            if (IsDlgButtonChecked(page, check.control)) ticked.push_back(check.control);
        std::ranges::sort(ticked);
        EXPECT_EQ(c.ticked, ticked);
        for (int id : c.clicks) Click(page, id);
        std::vector<int> disabled;
        for (int id : controls)
            if (GetDlgItem(page, id) && !IsWindowEnabled(GetDlgItem(page, id))) disabled.push_back(id);
        EXPECT_EQ(c.disabled, disabled);
        const size_t heard = fake_.windows().commands().size();
        Apply(dialog);
        EXPECT_EQ(c.saved, DirectReadInt(c.section, c.name, -1));
        EXPECT_EQ(std::vector<uint16_t>{c.code}, Codes(heard));
    }
}

// The base follows the large size when it has none of its own; the font box shows screen fonts of one script.
TEST_F(OptionPagesTest, ThumbnailSizesShowTheirStepAndTheFontBoxOpensOnScreenFonts) {
    DirectWriteInt(kThumb, L"ImgSize0", 40);
    DirectWriteInt(kThumb, L"ImgSize1", 500);
    DirectWriteInt(kThumb, L"ImgSize2", 96);
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 9);
    ASSERT_NE(nullptr, page);
    auto shown = [&] {
        std::vector<std::wstring> texts;
        for (int id : {1151, 1152, 1153, 1154}) texts.push_back(Field(page, id));
        return texts;
    };
    EXPECT_EQ((std::vector<std::wstring>{L"32", L"", L"96", L"96"}), shown());
    EXPECT_EQ(25, SendDlgItemMessageW(page, 1154, CB_GETCOUNT, 0, 0));
    SendDlgItemMessageW(page, 1154, CB_SETCURSEL, 24, 0);
    Click(page, 1301);
    EXPECT_EQ(std::vector<unsigned>{0x1800401}, fake_.prompts().fontOpenings());
    Apply(dialog);
    std::vector<int32_t> stored;
    for (const wchar_t* name : {L"ImgSize0", L"ImgSize1", L"ImgSize2", L"ImgSizeBase"})
        stored.push_back(DirectReadInt(kThumb, name, -1));
    EXPECT_EQ((std::vector<int32_t>{32, 500, 96, 400}), stored);
}

// A full list takes no more, a button without a selection says so; rows are stored behind an empty end mark.
TEST_F(OptionPagesTest, WatchExclusionsAreEditedInTheInputBoxAndStoredInOrder) {
    fake_.files().AddFile(L"C:\\Msg.txt", Utf16Bytes(L"62301\tNothing selected.\r\n62316\tList full.\r\n", true));
    app_.messages.SetPath(L"C:\\Msg.txt");
    for (int i = 0; i < 20; ++i) DirectWriteString(kNoUpdate, std::to_wstring(i), L"C:\\F" + std::to_wstring(i));
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 27);
    ASSERT_NE(nullptr, page);
    HWND list = GetDlgItem(page, 1601);
    auto rows = [&] {
        std::vector<std::wstring> texts;
        for (int i = 0; i < ui::ListBox(list).GetCount(); ++i) texts.push_back(ui::ListBox(list).GetText(i));
        return texts;
    };
    std::vector<std::wstring> expected;
    for (int i = 0; i < 20; ++i) expected.push_back(L"C:\\F" + std::to_wstring(i));
    EXPECT_EQ(expected, rows());
    // What the box showed when it came (caption, prompt, text), and the text typed into it.
    std::vector<std::wstring> opened;
    auto answer = [&](const wchar_t* typed, int button = IDOK) {
        WhenShown(L"監視の除外フォルダーの編集", [&opened, typed, button](HWND box) {
            opened.push_back(TextOf(GetDlgItem(box, 1401)) + L"|" + TextOf(GetDlgItem(box, 1001)));
            SetDlgItemTextW(box, 1001, typed);
            PostMessageW(box, WM_COMMAND, button, 0);
        });
    };
    const std::wstring prompt = L"監視をしないフォルダー(仮想フォルダーの指定や、ワイルドカードが使えます)|";
    answer(L"D:\\Full\\");
    Click(page, 1301);
    EXPECT_EQ(std::vector{prompt}, opened);
    EXPECT_EQ(std::vector<std::wstring>{L"List full."}, Messages());
    Click(page, 1302);
    Click(page, 1303);
    EXPECT_EQ((std::vector<std::wstring>{L"List full.", L"Nothing selected.", L"Nothing selected."}), Messages());
    SendMessageW(list, LB_SETCURSEL, 0, 0);
    Click(page, 1303);
    answer(L"  D:\\Added\\");
    Click(page, 1301);
    answer(L"\\");
    Click(page, 1301);
    answer(L"X:\\Cancelled", IDCANCEL);
    Click(page, 1301);
    SendMessageW(list, LB_SETCURSEL, 0, 0);
    answer(L"E:\\Edited/");
    SendMessageW(page, WM_COMMAND, MAKEWPARAM(1601, LBN_DBLCLK), reinterpret_cast<LPARAM>(list));
    EXPECT_EQ(prompt + L"C:\\F1", opened.back());
    expected.erase(expected.begin());
    expected[0] = L"E:\\Edited";
    expected.push_back(L"D:\\Added");
    EXPECT_EQ(expected, rows());
    EXPECT_EQ(3u, Messages().size()) << "nothing more said";
    Apply(dialog);
    std::vector<std::wstring> stored;
    for (int i = 0; i <= 20; ++i) stored.push_back(DirectReadString(kNoUpdate, std::to_wstring(i), L"<absent>"));
    expected.push_back(L"");
    EXPECT_EQ(expected, stored);
    EXPECT_EQ(std::vector<uint16_t>{49027}, Codes());
}

}  // namespace
