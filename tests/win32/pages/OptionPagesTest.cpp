// The small pages as a user works them in the dialog: what they show of the stored settings, what
// their buttons do, and what Apply stores and tells the host.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <tuple>
#include <vector>

#include "unit/Utf16.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

constexpr const wchar_t* kAppInfo = L"Software\\Tarnwick\\QOR\\Main001\\AppInfo";
constexpr const wchar_t* kSettings = L"Software\\Tarnwick\\QOR\\Main001\\Settings";
constexpr platform::WindowRef kHost = 0x1234;
constexpr int kApply = 1301;
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

    // The dialog opened on the page, and the page's window.
    HWND Open(COptionDlg& dialog, int page) {
        SetStart(page);
        if (!dialog.Create(nullptr)) return nullptr;
        return dialog.Page(page) ? dialog.Page(page)->hwnd() : nullptr;
    }

    // What the host heard from the given point on, without the brackets of each series.
    std::vector<uint16_t> Codes(size_t from = 0) {
        std::vector<uint16_t> codes;
        const auto& sent = fake_.windows().commands();
        for (size_t i = from; i < sent.size(); ++i)
            if (sent[i].id != 48999 && sent[i].id != 49099) codes.push_back(sent[i].id);
        return codes;
    }

    std::vector<std::wstring> Messages(size_t from = 0) {
        std::vector<std::wstring> texts;
        const auto& shown = fake_.prompts().shown();
        for (size_t i = from; i < shown.size(); ++i) texts.push_back(shown[i].text);
        return texts;
    }

    std::wstring Field(HWND page, int id) const { return TextOf(GetDlgItem(page, id)); }
    void Type(HWND page, int id, const wchar_t* text) const { SetWindowTextW(GetDlgItem(page, id), text); }
    // As the user's click arrives: the check changes, then the page hears of it.
    void Click(HWND page, int id) const { SendMessageW(GetDlgItem(page, id), BM_CLICK, 0, 0); }
    void Apply(COptionDlg& dialog) const { SendMessageW(dialog.hwnd(), WM_COMMAND, MAKEWPARAM(kApply, BN_CLICKED), 0); }
};

// Each page opens from the tree with the words that translators and the manual go by, a few of each.
// Page 0 is the dialog itself; a control id of -1 is an unnamed static somewhere on the page.
TEST_F(OptionPagesTest, DialogAndPagesShowTheirOwnWords) {
    // clang-format off
    struct Case { int page, control; const wchar_t* text; };
    const Case cases[] = {
        {0, 1301, L"適用"}, {0, -1, L"F1:Help"}, {20, 1256, L"ドラッグヘルパーを表示する"}, {34, 1301, L"Reset"},
        {24, 1251, L"ファイルのドロップを許可する"}, {30, -1, L"リトライ回数:"}, {37, 1201, L"Qor - [Folder]"},
        {5, 1203, L"任意のフォルダー"}, {39, 1402, L"Event/Message"}, {23, 1304, L"スクリプトコマンド"},
        {25, 1203, L"常に前面に表示・タスクバーに表示しない"},
    };
    // clang-format on
    SetStart(1000);
    COptionDlg dialog(app_);
    ASSERT_TRUE(dialog.Create(nullptr));
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << "page " << c.page << ", control " << c.control);
        if (c.page != 0) Select(dialog, c.page);
        HWND window = c.page == 0 ? dialog.hwnd() : dialog.Page(c.page)->hwnd();
        ASSERT_NE(nullptr, window);
        std::wstring shown = L"<no such control>";
        for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
            if (GetDlgCtrlID(child) != c.control || (c.control == -1 && TextOf(child) != c.text)) continue;
            shown = TextOf(child);
            break;
        }
        EXPECT_EQ(c.text, shown);
    }
}

// Every control that carries a stored value, page by page: it shows what was stored, and what the
// user sets there is what Apply stores, after which the host hears the page's code (none for the title
// bar, which the host takes at its next start). Fields that mean something only with a switch on follow
// it. A field out of range, although it showed as stored, refuses Apply with the framework's words and
// takes the focus with its text selected: nothing is stored, the host hears nothing. So does a field
// typed with what is no number of its kind. New pages add rows here.
TEST_F(OptionPagesTest, ControlsCarryTheirStoredValuesBothWays) {
    enum Kind { Check, Radio, Edit };
    // A check is clicked, the radio button of the value set is clicked, a field is typed (or left when
    // null). "Off" are the fields enabled as loaded that the setting turns off.
    // clang-format off
    struct Case { int page, control; Kind kind; const wchar_t *section, *name, *stored, *set; uint16_t code;
                  std::vector<int> off = {}; const wchar_t* refused = nullptr; };
    const Case cases[] = {
        {37, 1201, Radio, kAppInfo,  L"TitleBarType",     L"0",         L"2",           0},
        {20, 1251, Check, kAppInfo,  L"UseCompFolder",    L"1",         L"0",           49017},
        {20, 1252, Check, kAppInfo,  L"DisableAnimation", L"0",         L"1",           49017},
        {20, 1254, Check, kSettings, L"IME",              L"1",         L"0",           49017},
        {20, 1255, Check, kAppInfo,  L"CasheExCmd",       L"0",         L"1",           49017},
        {20, 1256, Check, kAppInfo,  L"DragHelper",       L"1",         L"0",           49017},
        {20, 1003, Edit,  kAppInfo,  L"ChgSortAlg",       L"10",        L"25",          49017},
        {20, 1003, Edit,  kAppInfo,  L"ChgSortAlg",       L"10001",     nullptr,        0, {}, L"0 and 10000"},
        {20, 1003, Edit,  kAppInfo,  L"ChgSortAlg",       L"10",        L"-1",          0, {}, kNotPositive},
        {24, 1251, Check, kAppInfo,  L"DropFolder",       L"1",         L"0",           49020, {1151, 1152}},
        {24, 1252, Check, kAppInfo,  L"CanDrag",          L"0",         L"1",           49020},
        {24, 1258, Check, kAppInfo,  L"InplaceRename",    L"1",         L"0",           49020},
        {24, 1259, Check, kAppInfo,  L"SmartPaste",       L"0",         L"1",           49020},
        {30, 1251, Check, kAppInfo,  L"UsePing",          L"1",         L"0",           49021, {1001, 1002}},
        {30, 1001, Edit,  kAppInfo,  L"NetworkTimeout",   L"500",       L"5000000",     49021},
        {30, 1001, Edit,  kAppInfo,  L"NetworkTimeout",   L"9",         nullptr,        0, {}, L"10 and 5000000"},
        {30, 1001, Edit,  kAppInfo,  L"NetworkTimeout",   L"500",       L"12a",         0, {}, kNotInteger},
        {30, 1002, Edit,  kAppInfo,  L"NetworkRetry",     L"3",         L"100",         49021},
        {30, 1002, Edit,  kAppInfo,  L"NetworkRetry",     L"101",       nullptr,        0, {}, L"1 and 100"},
        {30, 1002, Edit,  kAppInfo,  L"NetworkRetry",     L"3",         L"2147483648",  0, {}, kNotInteger},
        {34, 1004, Edit,  kAppInfo,  L"VersionCheckDay",  L"7",         L"0",           49017},
        {34, 1253, Check, kAppInfo,  L"VersionCheckBeta", L"0",         L"1",           49017},
        {5,  1201, Radio, kSettings, L"UserDirMode",      L"2",         L"1",           49011, {1051, 1052}},
        {5,  1051, Edit,  kSettings, L"UserDir",          L"D:\\Mine", L"E:\\Typed", 49011},
        {5,  1251, Check, kSettings, L"DupMutex",         L"0",         L"1",           49011},
        {5,  1252, Check, kSettings, L"Resident",         L"1",         L"0",           49011},
        {5,  1001, Edit,  kSettings, L"MaxScript",        L"5",         L"50",          49011},
        {5,  1001, Edit,  kSettings, L"MaxScript",        L"99",        nullptr,        0, {}, L"1 and 50"},
        {25, 1201, Radio, kAppInfo,  L"StyleMode",        L"0",         L"3",           49019},
        {25, 1205, Radio, kAppInfo,  L"ExitAction",       L"1",         L"0",           49019},
        {25, 1251, Check, kAppInfo,  L"DivTarget",        L"1",         L"0",           49019},
        {25, 1252, Check, kAppInfo,  L"AllPaneTarget",    L"0",         L"1",           49019},
        {12, 1003, Edit,  kSettings, L"BkAlpha",          L"128",       L"255",         49013},
        {12, 1003, Edit,  kSettings, L"BkAlpha",          L"256",       nullptr,        0, {}, L"0 and 255"},
        {12, 1201, Radio, kSettings, L"PrgDrawMode",      L"1",         L"0",           49013},
        {45, 1002, Edit,  kSettings, L"StatusAnimeStartTimer", L"0",    L"1440000",     49051},
        {45, 1003, Edit,  kSettings, L"StatusAnimenCount", L"3",        L"255",         49051},
        {45, 1003, Edit,  kSettings, L"StatusAnimenCount", L"0",        nullptr,        0, {}, L"1 and 255"},
        {45, 1201, Radio, kSettings, L"StatusAnimenDrawPos", L"0",      L"2",           49051},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.name) + L"=" + c.stored));
        const bool text = c.control == 1051;
        fake_.registry().DeleteKey(kAppInfo);
        fake_.registry().DeleteKey(kSettings);
        DirectWriteInt(kAppInfo, L"UsePing", 1);  // the network fields enabled, so a refused one takes the focus
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

// The last check shows as a date of the user's locale; the reset stores its date at once and tells
// the host nothing.
TEST_F(OptionPagesTest, VersionCheckShowsAndResetsTheLastCheck) {
    for (auto [stored, shown] : {std::pair{L"45000.5", L"2023"}, std::pair{L"1e300", L"Invalid DateTime"}}) {
        DirectWriteString(kAppInfo, L"VersionCheckTime", stored);
        COptionDlg dialog(app_);
        HWND page = Open(dialog, 34);
        ASSERT_NE(nullptr, page);
        const std::wstring text = Field(page, 1401);
        EXPECT_NE(std::wstring::npos, text.find(shown)) << std::string(text.begin(), text.end());
    }
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 34);
    ASSERT_NE(nullptr, page);
    SendMessageW(page, WM_COMMAND, MAKEWPARAM(1301, BN_CLICKED), 0);
    EXPECT_EQ(L"42005.041667", DirectReadString(kAppInfo, L"VersionCheckTime", L"")) << "stored at once";
    EXPECT_NE(std::wstring::npos, Field(page, 1401).find(L"2015"));
    EXPECT_TRUE(fake_.windows().commands().empty());
}

int ComboSelection(HWND page, int id) {
    return static_cast<int>(SendMessageW(GetDlgItem(page, id), CB_GETCURSEL, 0, 0));
}

std::vector<std::wstring> ComboItems(HWND page, int id) {
    std::vector<std::wstring> items;
    for (LRESULT i = 0, count = SendDlgItemMessageW(page, id, CB_GETCOUNT, 0, 0); i < count; ++i) {
        std::wstring item(SendDlgItemMessageW(page, id, CB_GETLBTEXTLEN, i, 0), L'\0');
        SendDlgItemMessageW(page, id, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(item.data()));
        items.push_back(item);
    }
    return items;
}

constexpr const wchar_t* kCopyInBackground = L"内部コマンド:シェルのファイルコピー(バックグラウンド)";
constexpr const wchar_t* kCopyWaiting = L"内部コマンド:シェルのファイルコピー(同期モード)";
constexpr const wchar_t* kMoveInBackground = L"内部コマンド:シェルのファイル移動(バックグラウンド)";
constexpr const wchar_t* kMoveWaiting = L"内部コマンド:シェルのファイル移動(同期モード)";
constexpr const wchar_t* kCommonOperationText = L"C:\\Qor\\command\\Option\\.en-US\\Option\\196.txt";

// The drop combos offer the shell's operations, then the user's external commands; taking and showing
// the values again changes neither list, and a stored command that is gone shows, and is stored, as the
// waiting shell operation. In another language the shell's operations are the dialog text file's and
// still stand for the shell; the user's commands never go into the file written for translators.
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

// The script limit's spin goes as far as the field may; the browser starts on the field and fills it
// with the folder picked; the open button shows the user directory in force.
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

}  // namespace
