#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pages/CPvPluginInfo.h"
#include "platform/fake/FakePlatform.h"
#include "settings/SettingsStore.h"

namespace {

constexpr const wchar_t* kSection = L"Software\\Tarnwick\\QOR\\Main001\\PvPlugin";
constexpr const wchar_t* kFolder = L"C:\\Qor\\command\\PvPlugIn\\";
const std::vector<std::string> kAllExports = {"CreateCtrl", "DestroyCtrl",  "LoadFile",        "SendCommand",
                                              "ShowCtrl",   "ResizeWindow", "GetDefaultFilter"};

class PvPluginInfoTest : public testing::Test {
protected:
    void SetUp() override {
        // A complete plug-in, one without ResizeWindow, and Gone.dll, which is not there at all.
        fake_.system().AddCodeLibrary(std::wstring(kFolder) + L"Peek.dll", {kAllExports, L"txt,log"});
        std::vector<std::string> half = kAllExports;
        half.erase(half.begin() + 5);
        fake_.system().AddCodeLibrary(std::wstring(kFolder) + L"Half.dll", {half, L"bmp"});
    }

    // "Dll%d=Ext%d" of the section, up to and with the first empty name.
    std::vector<std::wstring> Stored() {
        std::vector<std::wstring> pairs;
        for (int i = 0; i < 10; ++i) {
            const std::wstring dll = DirectReadString(kSection, L"Dll" + std::to_wstring(i), L"?");
            pairs.push_back(dll + L"=" + DirectReadString(kSection, L"Ext" + std::to_wstring(i), L"?"));
            if (dll.empty() || dll == L"?") break;
        }
        return pairs;
    }

    platform::fake::FakePlatform fake_;
    SettingsStore store_;
};

// Gone plug-ins are dropped, one without extensions is asked for its own, and an empty pair closes the
// list whatever stood behind it.
TEST_F(PvPluginInfoTest, RegistrationKeepsOnlyPluginsThatStillLoad) {
    // clang-format off
    struct Case { std::vector<std::wstring> registered, loaded, messages, saved; };
    const Case cases[] = {
        {{}, {}, {}, {L"="}},
        {{L"Peek.dll=html"}, {L"Peek.dll:html"}, {}, {L"Peek.dll=html", L"="}},
        {{L"peek.DLL="}, {L"peek.DLL:txt,log"}, {}, {L"peek.DLL=txt,log", L"="}},
        {{L"Gone.dll=x", L"Half.dll=y", L"Peek.dll=z", L"Peek.dll="},
         {L"Peek.dll:z", L"Peek.dll:txt,log"}, {L"Error 126.\r\n"}, {L"Peek.dll=z", L"Peek.dll=txt,log", L"="}},
        {{L"=x", L"Peek.dll=z"}, {}, {}, {L"="}},  // the list ends at the first empty name
        {{L"..\\PvPlugIn\\.\\Peek.dll=a"}, {L"..\\PvPlugIn\\.\\Peek.dll:a"}, {}, {L"..\\PvPlugIn\\.\\Peek.dll=a", L"="}},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.registered));
        fake_.registry().DeleteKey(kSection);
        fake_.prompts().Clear();
        for (int i = 0; i < 3; ++i) DirectWriteString(kSection, L"Dll" + std::to_wstring(i), L"Stale.dll");
        for (size_t i = 0; i < c.registered.size(); ++i) {
            const size_t equals = c.registered[i].find(L'=');
            DirectWriteString(kSection, L"Dll" + std::to_wstring(i), c.registered[i].substr(0, equals));
            DirectWriteString(kSection, L"Ext" + std::to_wstring(i), c.registered[i].substr(equals + 1));
        }
        DirectWriteString(kSection, L"Dll" + std::to_wstring(c.registered.size()), L"");
        SettingsStore store;  // a key of its own: the test has just deleted the one before
        CPvPluginInfo plugins(fake_.system(), L"C:\\Qor\\command\\Option\\");
        plugins.LoadFromRegistry(store);
        std::vector<std::wstring> loaded, messages;
        for (size_t i = 0; i < plugins.size(); ++i) loaded.push_back(plugins[i].dllName + L":" + plugins[i].extensions);
        for (const auto& shown : fake_.prompts().shown()) messages.push_back(shown.text);
        EXPECT_EQ(c.loaded, loaded);
        EXPECT_EQ(c.messages, messages);
        EXPECT_TRUE(plugins.loaded());
        plugins.SaveToRegistry(store);
        EXPECT_EQ(c.saved, Stored());
    }
}

// Extensions are asked for with room for 520 characters; the sweep of unused libraries comes last.
TEST_F(PvPluginInfoTest, UnloadingClosesControlsBeforeFreeingLibraries) {
    CPvPluginInfo plugins(fake_.system(), L"C:\\Qor\\command\\Option\\");
    EXPECT_EQ(-1, plugins.Add(L"Half.dll"));
    ASSERT_EQ(0, plugins.Add(L"Peek.dll"));
    plugins[0].control = 77;
    plugins.SaveToRegistry(store_);
    plugins.UnloadAll();
    const std::wstring peek = std::wstring(kFolder) + L"Peek.dll", half = std::wstring(kFolder) + L"Half.dll";
    EXPECT_EQ((std::vector<std::wstring>{L"load " + half, L"free " + half, L"load " + peek, L"GetDefaultFilter 520",
                                         L"DestroyCtrl 77", L"free " + peek}),
              fake_.system().codeEvents());
    EXPECT_EQ(1, fake_.system().unusedFrees());
    EXPECT_EQ(0u, plugins.size());
    EXPECT_FALSE(plugins.loaded());
    EXPECT_TRUE(fake_.prompts().shown().empty());
}

}  // namespace
