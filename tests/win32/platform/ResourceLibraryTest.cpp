// A language library read through the real system: strings whole, menus with their submenus.
#include <gtest/gtest.h>
#include <windows.h>

#include "../../../sample/Lang/CommandIds.h"
#include "platform/win32/Win32System.h"

namespace {

using platform::Menu;

// The sample libraries are built beside the tests: <build>\tests\win32_tests.exe and
// <build>\sample\Lang\Qor.<tag>.dll.
std::wstring SampleLibraryPath(const std::wstring& tag) {
    std::wstring module(MAX_PATH, L'\0');
    module.resize(GetModuleFileNameW(nullptr, module.data(), static_cast<DWORD>(module.size())));
    std::wstring relative = module.substr(0, module.rfind(L'\\') + 1) + L"..\\sample\\Lang\\Qor." + tag + L".dll";
    std::wstring full(MAX_PATH, L'\0');
    full.resize(GetFullPathNameW(relative.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full;
}

// Ids and texts of a menu: "&File(...),-,57634 Copy\tCtrl+C,".
std::wstring Shape(const Menu& menu) {
    std::wstring shape;
    for (const platform::MenuItem& item : menu) {
        if (item.separator)
            shape += L"-" + item.text + L",";
        else if (item.popup)
            shape += std::to_wstring(item.id) + L" " + item.text + L"(" + Shape(item.children) + L"),";
        else
            shape += std::to_wstring(item.id) + L" " + item.text + L",";
    }
    return shape;
}

TEST(ResourceLibrary, StringsArriveWholeAndMenusWithTheirSubmenus) {
    platform::win32::Win32System system;
    EXPECT_EQ(nullptr, system.LoadDataLibrary(SampleLibraryPath(L"xx-XX")));
    const std::wstring path = SampleLibraryPath(L"en-US");
    auto library = system.LoadDataLibrary(path);
    ASSERT_TRUE(library);

    // Text and tip stay together across the line feed; a missing string is empty.
    EXPECT_EQ(L"Copy\nCopy the selected items to the clipboard", library->LoadStringResource(CMD_COPY));
    EXPECT_EQ(L"", library->LoadStringResource(1));
    // A string longer than any fixed buffer, against what the system copies into a roomy one.
    HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_TRUE(module);
    std::wstring roomy(2048, L'\0');
    roomy.resize(LoadStringW(module, CMD_HELP, roomy.data(), static_cast<int>(roomy.size())));
    FreeLibrary(module);
    EXPECT_GT(roomy.size(), 256u);
    EXPECT_EQ(roomy, library->LoadStringResource(CMD_HELP));

    // Popups of a plain template have no id; separators have no text.
    std::optional<Menu> main = library->LoadMenuResource(IDR_MAIN_MENU);
    ASSERT_TRUE(main);
    EXPECT_TRUE(Shape(*main).starts_with(L"0 &File(")) << Shape(*main);
    std::optional<Menu> more = library->LoadMenuResource(IDR_MORE_COMMANDS);
    ASSERT_TRUE(more);
    EXPECT_TRUE(Shape(*more).ends_with(L"(-,),")) << Shape(*more);
    EXPECT_EQ(std::nullopt, library->LoadMenuResource(999));
}

}  // namespace
