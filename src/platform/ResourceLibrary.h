// A language library loaded as data: numbered strings and menus of the host's commands.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

// One item of a menu resource, as the system reads it back.
struct MenuItem {
    uint32_t id = 0;
    std::wstring text;
    bool separator = false;
    bool popup = false;
    std::vector<MenuItem> children;  // the submenu of a popup item, in menu order

    bool operator==(const MenuItem&) const = default;
};

using Menu = std::vector<MenuItem>;

// The names avoid LoadString and LoadMenu: <windows.h> turns those into macros.
class ResourceLibrary {
public:
    ResourceLibrary() = default;
    ResourceLibrary(const ResourceLibrary&) = delete;
    ResourceLibrary& operator=(const ResourceLibrary&) = delete;
    virtual ~ResourceLibrary() = default;

    // The whole string of that number; empty when the library has none.
    virtual std::wstring LoadStringResource(uint32_t id) const = 0;
    // The menu of that number with all its submenus; nothing when the library has none.
    virtual std::optional<Menu> LoadMenuResource(uint32_t id) const = 0;
};

}  // namespace platform
