#include <gtest/gtest.h>

#include "platform/fake/FakePlatform.h"
#include "settings/PathRoots.h"
#include "settings/SettingsStore.h"
#include "settings/UserDirectories.h"

namespace {

using platform::fake::FakePlatform;

// The program in its place below the application folder, and a local application data folder.
void InstallProgram(FakePlatform& fake) {
    fake.environment().SetModuleFileName(L"C:\\Qor\\command\\Option\\Option.exe");
    fake.files().AddDirectory(L"C:\\Qor\\command\\Option");
    fake.files().AddDirectory(L"C:\\Users\\tester\\AppData\\Local");
}

class UserDirectoriesTest : public testing::Test {
protected:
    UserDirectoriesTest() { InstallProgram(fake); }

    void SetMode(int32_t mode) { DirectWriteInt(kDirectSettingsPath, L"UserDirMode", mode); }

    FakePlatform fake;
    UserDirectories directories;
};

TEST_F(UserDirectoriesTest, UserDirectoryByMode) {
    struct Case {
        const char* label;
        int32_t mode;  // -1: no value stored
        std::wstring userDir;
        std::wstring appData;
        std::wstring userName;
        std::wstring expected;
        std::wstring created;  // a directory that must exist afterwards
    };
    const Case cases[] = {
        {"default is local app data", -1, L"", L"C:\\Users\\tester\\AppData\\Local", L"tester",
         L"C:\\Users\\tester\\AppData\\Local\\Qor\\", L"C:\\Users\\tester\\AppData\\Local\\Qor"},
        {"no app data folder", 0, L"", L"", L"tester", L"C:\\Qor\\", L""},
        {"application folder per user", 1, L"", L"", L"tester", L"C:\\Qor\\Ubar\\tester\\", L"C:\\Qor\\Ubar\\tester"},
        {"unknown mode acts as 1", 3, L"", L"", L"tester", L"C:\\Qor\\Ubar\\tester\\", L"C:\\Qor\\Ubar\\tester"},
        {"no user name", 1, L"", L"", L"", L"C:\\Qor\\Ubar\\", L""},
        {"chosen folder", 2, L"D:\\Mine\\", L"", L"tester", L"D:\\Mine\\", L""},
        {"chosen folder with slash", 2, L"D:\\Mine/", L"", L"tester", L"D:\\Mine\\", L""},
        {"chosen folder without separator", 2, L"D:\\Mine", L"", L"tester", L"D:\\Mine\\", L""},
        {"empty chosen folder", 2, L"", L"", L"tester", L"\\", L""},
    };
    for (const auto& c : cases) {
        FakePlatform local;
        InstallProgram(local);
        local.environment().SetLocalAppDataFolder(c.appData);
        local.environment().SetUserName(c.userName);
        if (c.mode >= 0) DirectWriteInt(kDirectSettingsPath, L"UserDirMode", c.mode);
        DirectWriteString(kDirectSettingsPath, L"UserDir", c.userDir);
        UserDirectories fresh;
        EXPECT_EQ(c.expected, fresh.UserDirectory()) << c.label;
        if (!c.created.empty()) {
            EXPECT_NE(platform::kInvalidAttributes, local.files().GetAttributes(c.created)) << c.label;
        }
    }
}

TEST_F(UserDirectoriesTest, TheFirstAnswerHoldsForTheProcess) {
    EXPECT_EQ(L"C:\\Qor\\command\\Option\\", directories.ProgramDirectory());
    EXPECT_EQ(L"C:\\Qor\\", directories.ApplicationRoot());
    SetMode(1);
    EXPECT_EQ(L"C:\\Qor\\Ubar\\tester\\", directories.UserDirectory());
    SetMode(2);
    EXPECT_EQ(L"C:\\Qor\\Ubar\\tester\\", directories.UserDirectory());
}

// Environment variables after the tokens; a path compresses to the first token that fits, in any case.
TEST_F(UserDirectoriesTest, TokensExpandAndPathsCompress) {
    SetMode(1);
    fake.environment().SetVariable(L"DATA", L"%User_dir%x");
    enum Way { Both, Expands, Compresses };
    // clang-format off
    struct Case { const wchar_t* tokens; const wchar_t* path; Way way; };
    const Case cases[] = {
        {L"%Script_dir%Editor.txt", L"C:\\Qor\\Ubar\\tester\\Script\\Editor.txt", Both},
        {L"%User_dir%CommandMode.key", L"C:\\Qor\\Ubar\\tester\\CommandMode.key", Both},
        {L"%User_dir%x.key", L"c:\\qor\\ubar\\TESTER\\x.key", Compresses},
        {L"%Menu_dir%m.txt", L"C:\\Qor\\Ubar\\tester\\Menu\\m.txt", Expands},
        {L"%User_dir%Menu\\m.txt", L"C:\\Qor\\Ubar\\tester\\Menu\\m.txt", Both},
        {L"%App_Dir%Qor.exe", L"C:\\Qor\\Qor.exe", Both},
        {L"%App_Dir%command\\User\\tool.exe", L"C:\\Qor\\command\\User\\tool.exe", Both},
        {L"%CMD_Dir%a", L"C:\\Qor\\command\\Default\\a", Expands},
        {L"%CmdPlugin_Dir%a", L"C:\\Qor\\command\\CmdPlugin\\a", Expands},
        {L"%Viewer_Dir%a", L"C:\\Qor\\command\\Viewer\\a", Expands},
        {L"%UserCmd_Dir%a", L"C:\\Qor\\command\\User\\a", Expands},
        {L"%user_dir%a", L"%user_dir%a", Expands},
        {L"\"%App_Dir%a\" \"%App_Dir%b\"", L"\"C:\\Qor\\a\" \"C:\\Qor\\b\"", Expands},
        {L"\"%App_Dir%a\" \"%App_Dir%b\" \"c:\\qor\\c\"", L"\"C:\\Qor\\a\" \"C:\\Qor\\b\" \"c:\\qor\\c\"", Compresses},
        {L"%DATA%", L"C:\\Qor\\Ubar\\tester\\x", Expands},
        {L"D:\\elsewhere\\x", L"D:\\elsewhere\\x", Both},
    };
    // clang-format on
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(c.tokens)));
        if (c.way != Compresses) {
            EXPECT_EQ(c.path, ExpandDirectoryMacros(c.tokens, directories));
        }
        if (c.way != Expands) {
            EXPECT_EQ(c.tokens, TextToMacroPath(c.path, directories));
        }
    }
}

TEST(PathRoots, EnvironmentCompressionLongestValueFirstAndGuarded) {
    FakePlatform fake;
    fake.environment().SetVariable(L"USERPROFILE", L"C:\\Users\\tester");
    fake.environment().SetVariable(L"APPDATA", L"C:\\Users\\tester\\AppData\\Roaming");
    fake.environment().SetVariable(L"SystemRoot", L"C:\\Windows");
    fake.environment().SetVariable(L"windir", L"C:\\Windows");
    fake.environment().SetVariable(L"OS", L"");
    fake.environment().SetVariable(L"USERNAME", L"tester");
    fake.environment().SetVariable(L"USERDOMAIN", L"user");
    struct Case {
        const wchar_t* path;
        const wchar_t* expected;
    };
    const Case cases[] = {
        {L"C:\\Users\\tester\\AppData\\Roaming\\x", L"%APPDATA%\\x"},
        {L"c:\\users\\TESTER\\Documents", L"%USERPROFILE%\\Documents"},
        {L"C:\\Windows\\notepad.exe", L"%SystemRoot%\\notepad.exe"},
        {L"%TMP%\\and %TEMP%", L"%TMP%\\and %TEMP%"},
        {L"a %ComSpec% b", L"a %ComSpec% b"},
        {L"D:\\other", L"D:\\other"},
        // A value found inside a name already put in leaves it alone.
        {L"C:\\Users\\User1", L"C:\\%USERDOMAIN%s\\%USERDOMAIN%1"},
        {L"D:\\tester\\Users", L"D:\\%username%\\%USERDOMAIN%s"},
        {L"", L""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.expected, TextToEnvironmentPath(c.path)) << testing::PrintToString(std::wstring(c.path));
    }
}

}  // namespace
