#include "pages/CPvPluginInfo.h"

#include "services/Format.h"
#include "services/SystemError.h"
#include "services/Tokenizer.h"
#include "settings/SettingsStore.h"

namespace {

constexpr const wchar_t* kSection = L"PvPlugin";

// The seven exports every plug-in has, by their exact names, in the order of the record's fields.
constexpr uintptr_t PvPlugin::*kEntryPoints[] = {
    &PvPlugin::CreateCtrl, &PvPlugin::DestroyCtrl,  &PvPlugin::LoadFile,         &PvPlugin::SendCommand,
    &PvPlugin::ShowCtrl,   &PvPlugin::ResizeWindow, &PvPlugin::GetDefaultFilter,
};
constexpr const char* kEntryNames[] = {"CreateCtrl", "DestroyCtrl",  "LoadFile",        "SendCommand",
                                       "ShowCtrl",   "ResizeWindow", "GetDefaultFilter"};

bool IsDrive(const std::wstring& segment) {
    return segment.size() == 2 && segment[1] == L':';
}

}  // namespace

std::wstring CanonicalPath(const std::wstring& path) {
    std::vector<std::wstring> segments;
    size_t fixed = 0;  // segments ".." may not take away: a drive, or the empty ones of "\\server"
    size_t start = 0;
    for (;;) {
        const size_t end = path.find(L'\\', start);
        std::wstring segment = path.substr(start, end == std::wstring::npos ? std::wstring::npos : end - start);
        const bool last = end == std::wstring::npos;
        if (segment == L"..") {
            if (segments.size() > fixed) segments.pop_back();
        } else if (segment != L".") {
            segments.push_back(segment);
            if (segments.size() == fixed + 1 && (IsDrive(segment) || (segment.empty() && !last))) ++fixed;
        }
        if (last) break;
        start = end + 1;
    }
    // A segment taken away at the end leaves its separator, as in "C:\a\.." giving "C:\".
    const bool trailing =
        !path.empty() && (path.ends_with(L"\\.") || path.ends_with(L"\\..") || path == L"." || path.ends_with(L"\\"));
    std::wstring result;
    for (size_t i = 0; i < segments.size(); ++i) {
        if (i) result += L'\\';
        result += segments[i];
    }
    if (trailing && !result.empty() && !result.ends_with(L'\\')) result += L'\\';
    return result;
}

std::wstring PvPlugin::DefaultFilter(size_t units) const {
    return module && GetDefaultFilter ? module->CallFillingText(GetDefaultFilter, units) : std::wstring();
}

void PvPlugin::SetExtensions(const std::wstring& text) {
    extensions = text;
    extensionList.clear();
    Tokenize(extensionList, extensions, L',', false, true);
}

CPvPluginInfo::CPvPluginInfo(platform::System& system, const std::wstring& programDirectory)
    : system_(system), folder_(CanonicalPath(programDirectory + L"..\\PvPlugIn\\")) {}

CPvPluginInfo::~CPvPluginInfo() {
    UnloadAll();
}

std::wstring CPvPluginInfo::PathOf(const std::wstring& name) const {
    return CanonicalPath(folder_ + name);
}

int CPvPluginInfo::Add(const std::wstring& dllName) {
    platform::LoadedLibrary loaded = system_.LoadCodeLibrary(PathOf(dllName));
    if (!loaded.library) {
        ShowSystemError(loaded.error);
        return -1;
    }
    auto plugin = std::make_unique<PvPlugin>();
    for (size_t i = 0; i < std::size(kEntryPoints); ++i) {
        // Dropping the record frees the library.
        if (!((*plugin).*kEntryPoints[i] = loaded.library->ExportAddress(kEntryNames[i]))) return -1;
    }
    plugin->module = std::move(loaded.library);
    plugin->dllName = dllName;
    plugins_.push_back(std::move(plugin));
    return static_cast<int>(plugins_.size() - 1);
}

void CPvPluginInfo::LoadFromRegistry(SettingsStore& store) {
    store.SelectSection(kSection);
    for (int i = 0;; ++i) {
        const std::wstring name = store.ReadString(crt::Format(L"Dll%d", i), L"");
        if (name.empty()) break;
        const int index = Add(name);
        // Adding showed a message; reading the values goes on in the section, whatever that selected.
        store.SelectSection(kSection);
        if (index < 0) continue;
        PvPlugin& plugin = *plugins_[index];
        std::wstring extensions = store.ReadString(crt::Format(L"Ext%d", i), L"");
        if (extensions.empty()) extensions = plugin.DefaultFilter(kFilterUnits);
        plugin.SetExtensions(extensions);
    }
    loaded_ = 1;
}

void CPvPluginInfo::SaveToRegistry(SettingsStore& store) {
    store.SelectSection(kSection);
    int i = 0;
    for (const auto& plugin : plugins_) {
        store.WriteString(crt::Format(L"Dll%d", i), plugin->dllName);
        if (plugin->extensions.empty()) plugin->SetExtensions(plugin->DefaultFilter(kFilterUnits));
        store.WriteString(crt::Format(L"Ext%d", i), plugin->extensions);
        ++i;
    }
    store.WriteString(crt::Format(L"Dll%d", i), L"");
    store.WriteString(crt::Format(L"Ext%d", i), L"");
}

void CPvPluginInfo::UnloadAll() {
    current_ = -1;
    for (auto& plugin : plugins_) {
        if (plugin->control) {
            plugin->module->CallWithValue(plugin->DestroyCtrl, plugin->control);
            plugin->control = 0;
        }
        plugin.reset();
    }
    plugins_.clear();
    system_.FreeUnusedLibraries();
    loaded_ = 0;
}
