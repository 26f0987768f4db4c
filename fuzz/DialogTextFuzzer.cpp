// libFuzzer target: arbitrary bytes as a dialog's text file in a language other than the templates',
// applied to a dialog of a few controls the way every dialog applies it once it is set up. When the
// bytes do not count as a file, the dialog writes its template instead, as it would.
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "services/DialogLanguage.h"
#include "services/DialogText.h"
#include "settings/SettingsStore.h"

namespace {

constexpr int32_t kDialogId = 159;
constexpr const wchar_t* kProgram = L"C:\\Qor\\command\\Option\\Option.exe";

// A dialog as the window system keeps it: changes to an id no control has go nowhere.
class FuzzDialog : public LocalisableDialog {
public:
    FuzzDialog() {
        content_.title = L"Options";
        content_.controls = {
            {1001, L"Static", L"Name", {}},
            {1002, L"Button", L"&OK", {}},
            {1003, L"ComboBox", L"", {L"one", L"two"}},
            {1004, L"Edit", L"user data", {}},
        };
    }
    void SetTitle(const std::wstring& text) override { content_.title = text; }
    void ResetCombo(int32_t id) override {
        if (DialogControl* control = Find(id)) control->comboEntries.clear();
    }
    void AddComboEntry(int32_t id, const std::wstring& text) override {
        if (DialogControl* control = Find(id)) control->comboEntries.push_back(text);
    }
    void SetControlText(int32_t id, const std::wstring& text) override {
        if (DialogControl* control = Find(id)) control->text = text;
    }
    DialogContent Content() override { return content_; }

private:
    DialogControl* Find(int32_t id) {
        for (DialogControl& control : content_.controls) {
            if (control.id == id) return &control;
        }
        return nullptr;
    }
    DialogContent content_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    platform::fake::FakePlatform fake;
    fake.environment().SetModuleFileName(kProgram);
    DirectWriteString(kDirectSettingsPath, L"NLS", L".en-US");
    const DialogTextLocation location = LocateDialogText(kProgram, L".en-US", kDialogId);
    fake.files().AddFile(location.path, std::vector<uint8_t>(data, data + size));

    DialogLanguage language;
    FuzzDialog dialog;
    LocaliseDialogText(language, kDialogId, dialog);
    return 0;
}
