// Translation of a live dialog: what a real dialog shows goes into its file, and comes back from it.
#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "services/DialogLanguage.h"
#include "settings/SettingsStore.h"
#include "ui/LocaliseDialog.h"
#include "win32/resources/LocaliseDialogTestRes.h"
#include "win32/ui/ScriptedDialog.h"

namespace {

using testing_support::TextOf;

// What a dialog's own code does in OnInitDialog before it asks for its translation.
struct InitDialog {
    std::function<void(HWND)> setUp;
    DialogLanguage* language;
};

INT_PTR CALLBACK TestDialogProc(HWND dialog, UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_INITDIALOG) return FALSE;
    auto* init = reinterpret_cast<InitDialog*>(lParam);
    if (init->setUp) init->setUp(dialog);
    ui::LocaliseDialog(dialog, IDD_LOCALISE_TEST, *init->language);
    return TRUE;
}

std::vector<std::wstring> ComboEntries(HWND combo) {
    std::vector<std::wstring> entries;
    LRESULT count = SendMessageW(combo, CB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        std::vector<wchar_t> entry(SendMessageW(combo, CB_GETLBTEXTLEN, i, 0) + 1, 0);
        SendMessageW(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(entry.data()));
        entries.emplace_back(entry.data());
    }
    return entries;
}

// Real windows; the registry, the files and the program's place are the fakes', so that the user's
// language settings stay untouched and each test starts without dialog text files.
class LocaliseDialogTest : public testing::Test {
protected:
    static constexpr const wchar_t* kProgramDirectory = L"C:\\Scratch\\";

    void SetUp() override { fake_.environment().SetModuleFileName(std::wstring(kProgramDirectory) + L"Option.exe"); }

    void SetLanguage(const wchar_t* tag, int32_t langOut) {
        DirectWriteString(kDirectSettingsPath, L"NLS", tag);
        DirectWriteInt(kDirectSettingsPath, L"LangOut", langOut);
    }

    // Opens the test dialog as a dialog of the program would be, and hands it over open.
    HWND Open(std::function<void(HWND)> setUp) {
        InitDialog init{std::move(setUp), &language_};
        HWND dialog = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_LOCALISE_TEST), nullptr,
                                         TestDialogProc, reinterpret_cast<LPARAM>(&init));
        EXPECT_NE(nullptr, dialog);
        return dialog;
    }

    // The file as UTF-16 text, byte order mark included.
    std::wstring FileText(const std::wstring& tag) {
        std::vector<uint8_t> bytes;
        if (!fake_.files().ReadFile(
                std::wstring(kProgramDirectory) + tag + L"\\Option\\" + std::to_wstring(IDD_LOCALISE_TEST) + L".txt",
                bytes))
            return L"<missing>";
        std::wstring text;
        for (size_t i = 0; i + 1 < bytes.size(); i += 2)
            text.push_back(static_cast<wchar_t>(bytes[i] | bytes[i + 1] << 8));
        return text;
    }

    platform::fake::FakePlatform fake_;
    DialogLanguage language_;
};

TEST_F(LocaliseDialogTest, FirstOpeningWritesWhatTheDialogShowsAndTheNextReadsItBack) {
    SetLanguage(L".ja-JP", 1);
    HWND first = Open([](HWND dialog) {
        SetWindowTextW(dialog, L"Réglages 設定");
        SetDlgItemTextW(dialog, IDC_LOCALISE_NAME, L"Nom :\tgauche");
        SendDlgItemMessageW(dialog, IDC_LOCALISE_MODE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Grand\tG"));
        SendDlgItemMessageW(dialog, IDC_LOCALISE_MODE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Petit"));
        SetDlgItemTextW(dialog, IDC_LOCALISE_PATH, L"C:\\typed");
        SetDlgItemTextW(dialog, IDC_LOCALISE_LABEL, L"Général/Vue/Couleurs");
    });
    DestroyWindow(first);
    EXPECT_EQ(
        L"\uFEFF"
        L"Réglages 設定\r\n"
        L"1001\tStatic\tNom :\\tgauche\r\n"
        L"1002\tButton\tBrowse...\r\n"
        L"1003\tComboBoxStart\r\n"
        L"1003\tComboBox\tGrand\tG\r\n"
        L"1003\tComboBox\tPetit\r\n"
        L"1005\tStatic\tGénéral/Vue/Couleurs\r\n"
        L"-1\tStatic\tFixed\r\n",
        FileText(L".ja-JP"));

    HWND second = Open([](HWND dialog) {
        SendDlgItemMessageW(dialog, IDC_LOCALISE_MODE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"filled by code"));
        SetDlgItemTextW(dialog, IDC_LOCALISE_PATH, L"C:\\second");
    });
    EXPECT_EQ(L"Réglages 設定", TextOf(second));
    EXPECT_EQ(L"Nom :\tgauche", TextOf(GetDlgItem(second, IDC_LOCALISE_NAME)));
    EXPECT_EQ(L"Browse...", TextOf(GetDlgItem(second, IDC_LOCALISE_BROWSE)));
    // An entry with a tab splits into four fields and is lost; the rest replaces what code put there.
    EXPECT_EQ(std::vector<std::wstring>{L"Petit"}, ComboEntries(GetDlgItem(second, IDC_LOCALISE_MODE)));
    EXPECT_EQ(L"C:\\second", TextOf(GetDlgItem(second, IDC_LOCALISE_PATH)));
    EXPECT_EQ(L"Général/Vue/Couleurs", TextOf(GetDlgItem(second, IDC_LOCALISE_LABEL)));
    EXPECT_FALSE(IsWindowVisible(GetDlgItem(second, IDC_LOCALISE_LABEL)));
    DestroyWindow(second);
}

TEST_F(LocaliseDialogTest, TheTemplatesLanguageWithoutLangOutTouchesNothing) {
    SetLanguage(L".ja-JP", 0);
    fake_.files().AddFile(L"C:\\Scratch\\.ja-JP\\Option\\9001.txt", std::string_view("\xFF\xFEX\0", 4));

    HWND dialog = Open(nullptr);
    EXPECT_EQ(L"Template title", TextOf(dialog)) << "the file is not read";
    DestroyWindow(dialog);
    EXPECT_EQ(L"\uFEFFX", FileText(L".ja-JP")) << "nor written";
}

}  // namespace
