// The small pages as a user works them in the dialog: what they show of the stored settings, what
// their buttons do, and what Apply stores and tells the host.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <vector>

#include "unit/Utf16.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

constexpr const wchar_t* kAppInfo = L"Software\\Tarnwick\\QOR\\Main001\\AppInfo";
constexpr const wchar_t* kSettings = L"Software\\Tarnwick\\QOR\\Main001\\Settings";
constexpr platform::WindowRef kHost = 0x1234;
constexpr int kApply = 1301;

class OptionPagesTest : public OptionDialogFixture {
protected:
    void SetUp() override {
        OptionDialogFixture::SetUp();
        fake_.windows().AddHostWindow(kHost);
    }

    // The dialog opened on the page, and the page's window.
    HWND Open(COptionDlg& dialog, int page) {
        SetStart(page);
        if (!dialog.Create(nullptr)) return nullptr;
        return dialog.Page(page) ? dialog.Page(page)->hwnd() : nullptr;
    }

    // What the host heard, without the brackets of each series.
    std::vector<uint16_t> Codes() {
        std::vector<uint16_t> codes;
        for (const platform::fake::SentCommand& sent : fake_.windows().commands()) {
            if (sent.id != 48999 && sent.id != 49099) codes.push_back(sent.id);
        }
        return codes;
    }

    std::vector<std::wstring> Messages() {
        std::vector<std::wstring> texts;
        for (const platform::fake::ShownMessage& shown : fake_.prompts().shown()) texts.push_back(shown.text);
        return texts;
    }

    std::wstring Field(HWND page, int id) const { return TextOf(GetDlgItem(page, id)); }
    void Type(HWND page, int id, const wchar_t* text) const { SetWindowTextW(GetDlgItem(page, id), text); }
    std::vector<bool> Enabled(HWND page, std::initializer_list<int> ids) const {
        std::vector<bool> enabled;
        for (int id : ids) enabled.push_back(IsWindowEnabled(GetDlgItem(page, id)) != FALSE);
        return enabled;
    }
    // The stored numbers, -1 for one that is missing.
    std::vector<int> Stored(const wchar_t* section, std::initializer_list<const wchar_t*> names) const {
        std::vector<int> values;
        for (const wchar_t* name : names) values.push_back(DirectReadInt(section, name, -1));
        return values;
    }
    // As the user's click arrives: the check changes, then the page hears of it.
    void Click(HWND page, int id) const { SendMessageW(GetDlgItem(page, id), BM_CLICK, 0, 0); }
    void Apply(COptionDlg& dialog) const { SendMessageW(dialog.hwnd(), WM_COMMAND, MAKEWPARAM(kApply, BN_CLICKED), 0); }
};

// Each page opens from the tree with the words that translators and the manual go by, a few of each.
// Page 0 is the dialog itself; a control id of -1 is an unnamed static somewhere on the page.
TEST_F(OptionPagesTest, DialogAndPagesShowTheirOwnWords) {
    struct Case {
        int page;
        int control;
        const wchar_t* text;
    };
    const Case cases[] = {
        {0, 1301, L"適用"},
        {0, -1, L"F1:Help"},
        {20, 1256, L"ドラッグヘルパーを表示する"},
        {24, 1251, L"ファイルのドロップを許可する"},
        {30, -1, L"リトライ回数:"},
        {34, 1301, L"Reset"},
        {37, 1201, L"Qor - [Folder]"},
        {5, 1203, L"任意のフォルダー"},
        {39, 1402, L"Event/Message"},
    };
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

// A field out of range refuses Apply with the framework's words: nothing is stored and the host is
// told nothing, although the value showed as it was stored.
TEST_F(OptionPagesTest, OutOfRangeFieldsRefuseApply) {
    struct Case {
        const char* what;
        int page;
        const wchar_t* section;
        const wchar_t* name;
        int32_t stored;
        int field;
        const wchar_t* message;
    };
    const Case cases[] = {
        {"sort threshold", 20, kAppInfo, L"ChgSortAlg", 10001, 1003, L"Please enter an integer between 0 and 10000."},
        {"network time-out", 30, kAppInfo, L"NetworkTimeout", 9, 1001,
         L"Please enter an integer between 10 and 5000000."},
        {"network retries", 30, kAppInfo, L"NetworkRetry", 101, 1002, L"Please enter an integer between 1 and 100."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        // Every other field valid, and the network fields enabled: a refused field takes the focus.
        for (auto [name, value] : std::initializer_list<std::pair<const wchar_t*, int>>{
                 {L"ChgSortAlg", 10}, {L"UsePing", 1}, {L"NetworkTimeout", 500}, {L"NetworkRetry", 3}})
            DirectWriteInt(kAppInfo, name, value);
        DirectWriteInt(c.section, c.name, c.stored);
        COptionDlg dialog(app_);
        HWND page = Open(dialog, c.page);
        ASSERT_NE(nullptr, page);
        EXPECT_EQ(std::to_wstring(c.stored), Field(page, c.field));
        const size_t shownBefore = fake_.prompts().shown().size();
        Apply(dialog);
        ASSERT_EQ(shownBefore + 1, fake_.prompts().shown().size());
        EXPECT_EQ(c.message, Messages().back());
        EXPECT_EQ(GetDlgItem(page, c.field), GetFocus());
        EXPECT_EQ(c.stored, DirectReadInt(c.section, c.name, -1));
        EXPECT_TRUE(fake_.windows().commands().empty());
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

// The time-out and retries follow the ping check, as loaded and as clicked.
TEST_F(OptionPagesTest, NetworkFieldsFollowThePingCheck) {
    DirectWriteInt(kAppInfo, L"UsePing", 1);
    DirectWriteInt(kAppInfo, L"NoNetwork", 1);
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 30);
    ASSERT_NE(nullptr, page);
    EXPECT_EQ((std::vector<bool>{true, true}), Enabled(page, {1001, 1002}));
    Click(page, 1251);
    EXPECT_EQ((std::vector<bool>{false, false}), Enabled(page, {1001, 1002}));

    Type(page, 1002, L"100");
    Apply(dialog);
    EXPECT_EQ((std::vector<int>{0, 500, 100, 1}),
              Stored(kAppInfo, {L"UsePing", L"NetworkTimeout", L"NetworkRetry", L"NoNetwork"}))
        << "the host's NoNetwork left alone";
    EXPECT_EQ(std::vector<uint16_t>{49021}, Codes());
}

// The last check shows as a date of the user's locale; the reset stores its date at once, and Apply
// stores the interval and the beta flag only.
TEST_F(OptionPagesTest, VersionCheckShowsResetsAndStoresTheInterval) {
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

    DirectWriteString(kAppInfo, L"VersionCheckTime", L"stamped by the host");
    Type(page, 1004, L"0");
    Click(page, 1253);
    Apply(dialog);
    EXPECT_EQ((std::vector<int>{0, 1}), Stored(kAppInfo, {L"VersionCheckDay", L"VersionCheckBeta"}));
    EXPECT_EQ(L"stamped by the host", DirectReadString(kAppInfo, L"VersionCheckTime", L""));
    EXPECT_EQ(std::vector<uint16_t>{49017}, Codes());
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

void LoadDropCommands(platform::fake::FakePlatform& fake, AppServices& app) {
    fake.files().AddFile(L"C:\\User\\ExternalUserCommand.txt",
                         Utf16Bytes(L"42001\t\t-\tzip.exe\tPack\r\n42600\t\t-\tmail.exe\tMail\r\n", true));
    app.commands.LoadCommandLists(L"C:\\User\\");
}

// The drop combos offer the shell's operations of the template, then the user's external commands;
// taking and showing the values again changes neither list. A stored command that is gone shows, and
// is stored, as the waiting shell operation. Without drops the combos are off.
TEST_F(OptionPagesTest, CommonOperationOffersTheUsersCommandsForDrops) {
    LoadDropCommands(fake_, app_);
    DirectWriteInt(kAppInfo, L"DropExCommand0", 42600);
    DirectWriteInt(kAppInfo, L"DropExCommand1", 42999);
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 24);
    ASSERT_NE(nullptr, page);
    const std::vector<std::wstring> copy = {kCopyInBackground, kCopyWaiting, L"Pack", L"Mail"};
    const std::vector<std::wstring> move = {kMoveInBackground, kMoveWaiting, L"Pack", L"Mail"};
    for (int exchange = 0; exchange < 3; ++exchange) {
        SCOPED_TRACE(exchange);
        EXPECT_EQ(copy, ComboItems(page, 1151));
        EXPECT_EQ(move, ComboItems(page, 1152));
        EXPECT_EQ(3, ComboSelection(page, 1151));
        EXPECT_EQ(1, ComboSelection(page, 1152));
        EXPECT_TRUE(dialog.Page(24)->UpdateData(true));
        EXPECT_TRUE(dialog.Page(24)->UpdateData(false));
    }
    EXPECT_EQ((std::vector<bool>{true, true}), Enabled(page, {1151, 1152}));

    Click(page, 1251);
    EXPECT_EQ((std::vector<bool>{false, false}), Enabled(page, {1151, 1152}));
    SendMessageW(GetDlgItem(page, 1151), CB_SETCURSEL, 2, 0);
    Apply(dialog);
    EXPECT_EQ((std::vector<int>{0, 42001, 1}), Stored(kAppInfo, {L"DropFolder", L"DropExCommand0", L"DropExCommand1"}));
    EXPECT_EQ(std::vector<uint16_t>{49020}, Codes());
}

// In another language the shell's operations are the dialog text file's, and still stand for the
// shell; the user's commands come behind them and never go into the file written for translators.
TEST_F(OptionPagesTest, CommonOperationTranslatesOnlyTheShellOperations) {
    struct Case {
        const char* what;
        const wchar_t* file;  // null: none yet, so one is written
        std::vector<std::wstring> copy;
    };
    const Case cases[] = {
        {"no file yet", nullptr, {kCopyInBackground, kCopyWaiting, L"Pack", L"Mail"}},
        {"a file replaces the copy items",
         L"Common\r\n1151\tComboBoxStart\r\n1151\tComboBox\tShell copy\r\n1151\tComboBox\tShell copy, waiting\r\n",
         {L"Shell copy", L"Shell copy, waiting", L"Pack", L"Mail"}},
    };
    DirectWriteString(kSettings, L"NLS", L".en-US");
    LoadDropCommands(fake_, app_);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        if (c.file) fake_.files().AddFile(kCommonOperationText, Utf16Bytes(c.file, true));
        DirectWriteInt(kAppInfo, L"DropExCommand0", 1);
        COptionDlg dialog(app_);
        HWND page = Open(dialog, 24);
        ASSERT_NE(nullptr, page);
        EXPECT_EQ(c.copy, ComboItems(page, 1151));
        EXPECT_EQ((std::vector<std::wstring>{kMoveInBackground, kMoveWaiting, L"Pack", L"Mail"}),
                  ComboItems(page, 1152));
        EXPECT_EQ(1, ComboSelection(page, 1151));
        SendMessageW(GetDlgItem(page, 1151), CB_SETCURSEL, 0, 0);
        Apply(dialog);
        EXPECT_EQ(0, DirectReadInt(kAppInfo, L"DropExCommand0", -1));
        if (c.file) continue;
        const std::string text = fake_.files().FileText(kCommonOperationText);
        auto written = [&](const std::wstring& part) {
            const std::vector<uint8_t> bytes = Utf16Bytes(part);
            return text.find(std::string(bytes.begin(), bytes.end())) != std::string::npos;
        };
        EXPECT_TRUE(written(std::wstring(L"1151\tComboBoxStart\r\n1151\tComboBox\t") + kCopyInBackground +
                            L"\r\n1151\tComboBox\t" + kCopyWaiting + L"\r\n"));
        EXPECT_TRUE(written(std::wstring(L"1152\tComboBoxStart\r\n1152\tComboBox\t") + kMoveInBackground +
                            L"\r\n1152\tComboBox\t" + kMoveWaiting + L"\r\n"));
        EXPECT_FALSE(written(L"Pack") || written(L"Mail")) << "a user's commands stay out";
    }
}

// The chosen folder is typed or browsed only in its own mode; the open button shows the user
// directory in force; a script limit out of range showed as stored and refuses Apply.
TEST_F(OptionPagesTest, OtherPageChoosesTheUserDirectoryAndLimitsScripts) {
    DirectWriteString(kSettings, L"UserDir", L"D:\\Mine");
    DirectWriteInt(kSettings, L"MaxScript", 99);
    DirectWriteInt(kSettings, L"EveryFront", 3);
    COptionDlg dialog(app_);
    HWND page = Open(dialog, 5);
    ASSERT_NE(nullptr, page);
    EXPECT_EQ(BST_CHECKED, IsDlgButtonChecked(page, 1201));
    EXPECT_EQ(std::vector<bool>{false}, Enabled(page, {1051}));
    EXPECT_EQ(L"99", Field(page, 1001));
    int lower = 0, upper = 0;
    SendMessageW(GetDlgItem(page, 1351), UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower),
                 reinterpret_cast<LPARAM>(&upper));
    EXPECT_EQ(std::make_pair(1, 50), std::make_pair(lower, upper));

    Click(page, 1203);
    EXPECT_EQ(std::vector<bool>{true}, Enabled(page, {1051}));
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

    Apply(dialog);
    EXPECT_EQ(L"Please enter an integer between 1 and 50.", Messages().back());
    EXPECT_EQ(0, DirectReadInt(kSettings, L"UserDirMode", 0)) << "nothing stored";
    Type(page, 1001, L"50");
    Apply(dialog);
    EXPECT_EQ((std::vector<int>{2, 50, 3}), Stored(kSettings, {L"UserDirMode", L"MaxScript", L"EveryFront"}))
        << "EveryFront written back as it was";
    EXPECT_EQ(L"E:\\Chosen", DirectReadString(kSettings, L"UserDir", L""));
    EXPECT_EQ(L"<absent>", DirectReadString(kSettings, L"NLS", L"<absent>"));
    EXPECT_EQ(std::vector<uint16_t>{49011}, Codes());
}

}  // namespace
