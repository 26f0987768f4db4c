#include "ui/LocaliseDialog.h"

#include <string>
#include <vector>

#include "services/DialogText.h"
#include "ui/ComboBox.h"

namespace ui {

namespace {

// The text buffer holds 32,768 units, of which GetWindowTextW is offered one less than that: at
// most 32,766 characters come back.
constexpr int kTextBufferChars = 32768;
constexpr int kTextLimit = kTextBufferChars - 1;
constexpr int kClassNameChars = 256;

std::wstring WindowText(HWND window, std::vector<wchar_t>& buffer) {
    buffer[0] = 0;
    GetWindowTextW(window, buffer.data(), kTextLimit);
    return buffer.data();
}

std::wstring ClassName(HWND window) {
    wchar_t name[kClassNameChars] = {};
    GetClassNameW(window, name, kClassNameChars);
    return name;
}

std::vector<std::wstring> ComboEntries(HWND window) {
    const ComboBox combo(window);
    std::vector<std::wstring> entries;
    for (int index = 0; index < combo.GetCount(); ++index) entries.push_back(combo.GetText(index));
    return entries;
}

// The texts a live dialog shows, and the file's changes made to it.
class LiveDialogText : public LocalisableDialog {
public:
    explicit LiveDialogText(HWND dialog) : dialog_(dialog) {}

    void SetTitle(const std::wstring& text) override { SetWindowTextW(dialog_, text.c_str()); }
    void ResetCombo(int32_t id) override { SendDlgItemMessageW(dialog_, id, CB_RESETCONTENT, 0, 0); }
    void AddComboEntry(int32_t id, const std::wstring& text) override {
        SendDlgItemMessageW(dialog_, id, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
    void SetControlText(int32_t id, const std::wstring& text) override { SetDlgItemTextW(dialog_, id, text.c_str()); }
    DialogContent Content() override;

private:
    HWND dialog_;
};

}  // namespace

void LocaliseDialog(HWND dialog, int dialogId, DialogLanguage& language) {
    LiveDialogText live(dialog);
    LocaliseDialogText(language, dialogId, live);
}

DialogContent LiveDialogText::Content() {
    std::vector<wchar_t> buffer(kTextBufferChars, 0);
    DialogContent content;
    content.title = WindowText(dialog_, buffer);
    for (HWND child = nullptr; (child = FindWindowExW(dialog_, child, nullptr, nullptr)) != nullptr;) {
        DialogControl control{GetDlgCtrlID(child), ClassName(child), WindowText(child, buffer), {}};
        if (control.className == L"ComboBox") control.comboEntries = ComboEntries(child);
        content.controls.push_back(std::move(control));
    }
    return content;
}

}  // namespace ui
