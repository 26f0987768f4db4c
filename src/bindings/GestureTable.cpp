#include "bindings/GestureTable.h"

#include <cstring>
#include <memory>

#include "platform/Platform.h"
#include "settings/SettingsStore.h"

namespace {

constexpr wchar_t kSection[] = L"Gesture";
// The host's own buffers: a name of up to 519 characters, a 32-bit number.
constexpr uint32_t kNameChars = 520;

struct ArrowLetter {
    wchar_t arrow;
    wchar_t letter;
};
constexpr ArrowLetter kArrowLetters[] = {{kArrowUp, L'U'}, {kArrowDown, L'D'}, {kArrowRight, L'R'}, {kArrowLeft, L'L'}};

}  // namespace

bool AppendDirection(std::wstring& trail, wchar_t arrow) {
    if (trail.size() >= kMaxTrailDirections) return false;
    if (!trail.empty() && trail.back() == arrow) return false;
    trail.push_back(arrow);
    return true;
}

void RemoveLastDirection(std::wstring& trail) {
    if (!trail.empty()) trail.pop_back();
}

std::wstring TrailOfRegistryName(const std::wstring& name) {
    std::wstring trail = name;
    for (wchar_t& c : trail) {
        for (const ArrowLetter& pair : kArrowLetters) {
            if (c == pair.letter) {
                c = pair.arrow;
                break;
            }
        }
    }
    return trail;
}

std::wstring RegistryNameOfTrail(const std::wstring& trail) {
    std::wstring name = trail;
    for (wchar_t& c : name) {
        for (const ArrowLetter& pair : kArrowLetters) {
            if (c == pair.arrow) {
                c = pair.letter;
                break;
            }
        }
    }
    return name;
}

std::vector<GestureBinding> ReadGestureTable() {
    std::vector<GestureBinding> bindings;
    std::unique_ptr<platform::RegistryKey> key;
    if (platform::Current().registry.OpenKey(SettingsStore::kSectionRoot + std::wstring(kSection), key) !=
        platform::kRegistryOk)
        return bindings;
    for (uint32_t index = 0;; ++index) {
        std::wstring name;
        uint8_t data[4] = {};
        uint32_t size = sizeof data;
        const long result = key->EnumValue(index, kNameChars, name, nullptr, data, &size);
        if (result == platform::kRegistryMoreData) continue;  // a name or value the host cannot have made
        if (result != platform::kRegistryOk) break;
        uint32_t command = 0;
        std::memcpy(&command, data, sizeof command);
        bindings.push_back({TrailOfRegistryName(name), command});
    }
    return bindings;
}

void WriteGestureTable(SettingsStore& store, const std::vector<GestureBinding>& bindings) {
    store.SelectSection(kSection);
    store.DeleteSection();
    store.OpenKey();
    for (const GestureBinding& row : bindings)
        store.WriteInt(RegistryNameOfTrail(row.trail), static_cast<int32_t>(row.command));
}

const std::vector<GestureBinding>& DefaultGestureTable() {
    static const std::vector<GestureBinding> table = {
        {{kArrowLeft}, 36203},
        {{kArrowRight}, 36202},
        {{kArrowUp}, 36200},
        {{kArrowUp, kArrowDown}, 33301},
        {{kArrowDown, kArrowUp}, 35850},
        {{kArrowUp, kArrowRight}, 33000},
        {{kArrowDown, kArrowLeft}, 33001},
        {{kArrowUp, kArrowLeft}, 35053},
        {{kArrowDown, kArrowRight}, 35112},
        {{kArrowDown, kArrowRight, kArrowUp, kArrowLeft, kArrowDown, kArrowRight, kArrowUp, kArrowLeft}, 35000},
    };
    return table;
}
