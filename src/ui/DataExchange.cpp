#include "ui/DataExchange.h"

#include <commctrl.h>

#include <stdexcept>

#include "platform/Platform.h"
#include "services/FieldText.h"
#include "ui/Control.h"

namespace ui {

namespace {

// Loading a text that is already there would reset the caret and raise EN_CHANGE for nothing.
void ShowText(HWND control, const std::wstring& text) {
    Control field(control);
    if (field.Text() != text) field.SetText(text);
}

// Takes a field's text as a number by parse, or refuses it with the message.
template <typename T, typename Parse>
void TakeNumber(DataExchange& dx, HWND control, T& value, Parse parse, const std::wstring& refusal) {
    auto parsed = parse(Control(control).Text());
    if (!parsed) dx.Fail(refusal);
    T before = value;
    value = *parsed;
    dx.KeepUndo([&value, before] { value = before; });
}

}  // namespace

HWND DataExchange::PrepareControl(int id) {
    HWND control = GetDlgItem(dialog_, id);
    if (!control) throw std::logic_error("data exchange with control " + std::to_string(id) + " that is not there");
    last_ = control;
    undo_ = nullptr;
    return control;
}

void DataExchange::Fail(const std::wstring& message) {
    platform::Current().prompts.ShowMessage(message, platform::kStyleOk);
    if (undo_) undo_();
    if (last_) {
        Control control(last_);
        if (control.IsClass(WC_EDITW))
            SendMessageW(last_, EM_SETSEL, 0, -1);
        else if (control.IsClass(WC_COMBOBOXW))
            SendMessageW(last_, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
        SetFocus(last_);
    }
    throw Refused{};
}

void DDX_Check(DataExchange& dx, int id, int32_t& value) {
    HWND control = dx.PrepareControl(id);
    if (dx.saving())
        value = static_cast<int32_t>(SendMessageW(control, BM_GETCHECK, 0, 0));
    else
        SendMessageW(control, BM_SETCHECK, value >= 0 && value <= 2 ? value : BST_UNCHECKED, 0);
}

void DDX_Radio(DataExchange& dx, int id, int32_t& value) {
    HWND control = dx.PrepareControl(id);
    if (dx.saving()) value = -1;
    int32_t index = 0;
    // Controls of the group that are not radio buttons are passed over and not counted.
    do {
        if (SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) {
            if (!dx.saving())
                SendMessageW(control, BM_SETCHECK, index == value ? BST_CHECKED : BST_UNCHECKED, 0);
            else if (value == -1 && SendMessageW(control, BM_GETCHECK, 0, 0) != BST_UNCHECKED)
                value = index;
            ++index;
        }
        control = GetWindow(control, GW_HWNDNEXT);
    } while (control && !(GetWindowLongPtrW(control, GWL_STYLE) & WS_GROUP));
}

void DDX_Text(DataExchange& dx, int id, std::wstring& value) {
    HWND control = dx.PrepareControl(id);
    if (!dx.saving()) return ShowText(control, value);
    std::wstring before = std::move(value);
    value = Control(control).Text();
    dx.KeepUndo([&value, before] { value = before; });
}

void DDX_Text(DataExchange& dx, int id, int32_t& value) {
    HWND control = dx.PrepareControl(id);
    if (!dx.saving()) return ShowText(control, fieldtext::ShowInt(value));
    TakeNumber(dx, control, value, fieldtext::ParseInt, fieldtext::IntegerExpected());
}

void DDX_Text(DataExchange& dx, int id, uint32_t& value) {
    HWND control = dx.PrepareControl(id);
    if (!dx.saving()) return ShowText(control, fieldtext::ShowUInt(value));
    TakeNumber(dx, control, value, fieldtext::ParseUInt, fieldtext::PositiveIntegerExpected());
}

void DDX_CBIndex(DataExchange& dx, int id, int32_t& index) {
    HWND control = dx.PrepareControl(id);
    if (dx.saving())
        index = static_cast<int32_t>(SendMessageW(control, CB_GETCURSEL, 0, 0));
    else
        SendMessageW(control, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

void DDV_MinMaxInt(DataExchange& dx, int32_t value, int32_t min, int32_t max) {
    if (dx.saving() && (value < min || value > max)) dx.Fail(fieldtext::IntegerBetween(min, max));
}

void DDV_MaxChars(DataExchange& dx, const std::wstring& value, int count) {
    if (dx.saving()) {
        if (value.size() > static_cast<size_t>(count)) dx.Fail(fieldtext::NoMoreCharacters(count));
        return;
    }
    Control control(dx.lastControl());
    control.Send(control.IsClass(WC_COMBOBOXW) ? CB_LIMITTEXT : EM_LIMITTEXT, static_cast<WPARAM>(count));
}

void DDV_MinMaxUInt(DataExchange& dx, uint32_t value, uint32_t min, uint32_t max) {
    if (dx.saving() && (value < min || value > max)) dx.Fail(fieldtext::UnsignedBetween(min, max));
}

}  // namespace ui
