// The sample language libraries read through the real system: texts, tips and menus of both languages.
#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <set>

#include "../../../sample/Lang/CommandIds.h"
#include "platform/win32/Win32System.h"

namespace {

using platform::Menu;
using platform::MenuItem;

// Items the command picker leaves out, with all that hangs under them.
bool LeftOutByThePicker(uint32_t id) {
    return (id >= 32771 && id <= 32779) || id == 59392;
}

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

std::string Narrow(const std::wstring& text) {
    std::string out(WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, nullptr, 0, nullptr, nullptr), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, out.data(), static_cast<int>(out.size()), nullptr, nullptr);
    out.pop_back();
    return out;
}

void ForEachItem(const Menu& menu, const std::function<void(const MenuItem&)>& visit) {
    for (const MenuItem& item : menu) {
        visit(item);
        ForEachItem(item.children, visit);
    }
}

// The ids of the menu with the texts left out: both languages must give the same.
std::wstring Shape(const Menu& menu) {
    std::wstring shape;
    for (const MenuItem& item : menu) {
        if (item.separator) {
            shape += L"-,";
        } else if (item.popup) {
            shape += L"(" + Shape(item.children) + L"),";
        } else {
            shape += std::to_wstring(item.id) + L",";
        }
    }
    return shape;
}

// Each language's library as the sample installation has it, with the texts it must arrive with.
struct Language {
    const wchar_t* tag;
    std::wstring copy;
    std::wstring firstMenu;
};
const Language kLanguages[] = {
    {L"ja-JP", L"コピー\n選択した項目をクリップボードにコピーします", L"ファイル(&F)"},
    {L"en-US", L"Copy\nCopy the selected items to the clipboard", L"&File"},
};

TEST(ResourceLibrary, EveryListedCommandHasATextAndATipReadWhole) {
    platform::win32::Win32System system;
    EXPECT_EQ(nullptr, system.LoadDataLibrary(SampleLibraryPath(L"xx-XX"))) << "a missing file does not load";
    for (const Language& language : kLanguages) {
        SCOPED_TRACE(Narrow(language.tag));
        const std::wstring path = SampleLibraryPath(language.tag);
        auto library = system.LoadDataLibrary(path);
        ASSERT_TRUE(library) << Narrow(path);
        EXPECT_EQ(language.copy, library->LoadStringResource(CMD_COPY));
        for (unsigned id : kSampleCommandIds) {
            std::wstring string = library->LoadStringResource(id);
            size_t feed = string.find(L'\n');
            ASSERT_NE(std::wstring::npos, feed) << id << " " << Narrow(string);
            EXPECT_GT(feed, 0u) << id;
            EXPECT_LT(feed + 1, string.size()) << id;
        }
        for (unsigned id : {50551, 50552, 50553, 50554, 50555, 50556, 50560, 50561, 50562, 50563, 50564, 50571, 50572,
                            50573, 50574}) {
            std::wstring text = library->LoadStringResource(id);
            EXPECT_NE(std::wstring::npos, text.substr(0, text.find(L'\n')).find(L"%d")) << id;
        }
        EXPECT_EQ(L"", library->LoadStringResource(1));
        EXPECT_EQ(L"", library->LoadStringResource(50557));

        // A long string against what the system copies into a buffer roomy enough for it.
        std::wstring help = library->LoadStringResource(CMD_HELP);
        ASSERT_GT(help.size(), 256u);
        HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
        ASSERT_TRUE(module);
        std::wstring roomy(2048, L'\0');
        roomy.resize(LoadStringW(module, CMD_HELP, roomy.data(), static_cast<int>(roomy.size())));
        FreeLibrary(module);
        EXPECT_EQ(roomy, help);
    }
}

TEST(ResourceLibrary, BothLanguagesMenusNameEveryListedCommand) {
    platform::win32::Win32System system;
    std::wstring shapes[2];
    for (const Language& language : kLanguages) {
        SCOPED_TRACE(Narrow(language.tag));
        auto library = system.LoadDataLibrary(SampleLibraryPath(language.tag));
        ASSERT_TRUE(library);
        std::optional<Menu> main = library->LoadMenuResource(IDR_MAIN_MENU);
        std::optional<Menu> more = library->LoadMenuResource(IDR_MORE_COMMANDS);
        ASSERT_TRUE(main && more);
        EXPECT_EQ(std::nullopt, library->LoadMenuResource(999));
        ASSERT_EQ(8u, main->size());
        EXPECT_EQ(language.firstMenu, main->front().text);
        // Popups of a plain menu template have no id.
        for (const MenuItem& item : *main) EXPECT_EQ(0u, item.id) << Narrow(item.text);
        shapes[&language - kLanguages] = Shape(*main) + L"|" + Shape(*more);

        std::set<unsigned> listed(std::begin(kSampleCommandIds), std::end(kSampleCommandIds));
        std::multiset<unsigned> inMenus;
        int dialogs = 0, mnemonics = 0;
        for (const Menu* menu : {&*main, &*more}) {
            ForEachItem(*menu, [&](const MenuItem& item) {
                if (item.separator) {
                    EXPECT_EQ(L"", item.text);
                    return;
                }
                EXPECT_NE(L"", item.text) << item.id;
                if (menu == &*main) {
                    dialogs += item.text.ends_with(L"...");
                    mnemonics += item.text.find(L'&') != std::wstring::npos;
                }
                if (item.popup) return;
                inMenus.insert(item.id);
                EXPECT_TRUE(listed.count(item.id) || LeftOutByThePicker(item.id))
                    << item.id << " " << Narrow(item.text);
            });
        }
        for (unsigned id : listed) EXPECT_EQ(1u, inMenus.count(id)) << id;
        EXPECT_GT(dialogs, 5) << "texts keep their marks";
        EXPECT_GT(mnemonics, 50);

        // The picker hangs the bar and external command groups under the last node it inserts from
        // menu 501: a popup of its own, whose one separator the picker does not show.
        const MenuItem& last = more->back();
        EXPECT_TRUE(last.popup);
        ASSERT_EQ(1u, last.children.size());
        EXPECT_TRUE(last.children[0].separator);
    }
    EXPECT_EQ(shapes[0], shapes[1]) << "both languages have the same menus";
}

}  // namespace
