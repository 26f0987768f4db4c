#include "app/OptionPage.h"

#include "app/AppServices.h"
#include "platform/Platform.h"
#include "resources/app/AppIds.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

// The option dialog is the main window of the thread, whichever page is asking.
void PostToMainWindow(UINT message) {
    HWND main = reinterpret_cast<HWND>(platform::Current().windows.MainWindow());
    if (main) PostMessageW(main, message, 0, 0);
}

}  // namespace

void OptionPage::ShowPage(ui::Dialog& owner) {
    if (opened) return;
    if (!Create(owner.hwnd())) return;
    RECT frame{};
    GetWindowRect(owner.Item(IDC_OPTION_FRAME), &frame);
    POINT corners[2] = {{frame.left, frame.top}, {frame.right, frame.bottom}};
    ScreenToClient(owner.hwnd(), &corners[0]);
    ScreenToClient(owner.hwnd(), &corners[1]);
    MoveWindow(hwnd(), corners[0].x, corners[0].y, corners[1].x - corners[0].x, corners[1].y - corners[0].y, TRUE);
    if (!LoadGroups()) {
        DestroyWindow();
        return;
    }
    UpdateData(false);
    opened = 1;
}

bool OptionPage::OnInitDialog() {
    bool focusFirst = ui::Dialog::OnInitDialog();
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    return focusFirst;
}

void OptionPage::OnOK() {
    PostToMainWindow(kPageOkMessage);
}

void OptionPage::OnCancel() {
    PostToMainWindow(kPageCancelMessage);
}

void OptionPage::ExchangeSetting(ui::DataExchange& exchange, int id, int32_t SettingsStore::*member) const {
    int32_t& value = app().store.*member;
    const SettingRange range = RangeOf(member);
    DDX_Text(exchange, id, value);
    DDV_MinMaxInt(exchange, value, range.low, range.high);
}

void OptionPage::ExchangeUnsignedSetting(ui::DataExchange& exchange, int id, int32_t SettingsStore::*member) const {
    auto value = static_cast<uint32_t>(app().store.*member);
    const SettingRange range = RangeOf(member);
    DDX_Text(exchange, id, value);
    DDV_MinMaxUInt(exchange, value, static_cast<uint32_t>(range.low), static_cast<uint32_t>(range.high));
    app().store.*member = static_cast<int32_t>(value);
}
