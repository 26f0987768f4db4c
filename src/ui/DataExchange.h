// One pass of a dialog's DoDataExchange: the DDX_ functions move a value between a control and a
// member in the direction of the pass, and the DDV_ function after each checks what was taken.
// A refused field ends the pass: the user is told, the field gets the focus (its text selected),
// its member keeps the value it had, and UpdateData returns false.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>

namespace ui {

class DataExchange {
public:
    // Thrown by Fail and caught by UpdateData; nothing else sees it.
    struct Refused {};

    DataExchange(HWND dialog, bool saveAndValidate) : dialog_(dialog), saving_(saveAndValidate) {}
    DataExchange(const DataExchange&) = delete;
    DataExchange& operator=(const DataExchange&) = delete;

    // True while controls go into members (UpdateData(true)), false the other way.
    bool saving() const { return saving_; }
    HWND dialog() const { return dialog_; }
    // The control the last DDX_ function worked on.
    HWND lastControl() const { return last_; }

    // The control a DDX_ function works on, remembered as the one a refusal goes back to.
    // A control missing from the template is a programming error (std::logic_error).
    HWND PrepareControl(int id);
    // Remembers how to give the member of the control just taken its earlier value back.
    void KeepUndo(std::function<void()> undo) { undo_ = std::move(undo); }

    // Shows the message, puts the last control's member back, focuses and selects the control,
    // and ends the pass.
    [[noreturn]] void Fail(const std::wstring& message);

private:
    HWND dialog_;
    bool saving_;
    HWND last_ = nullptr;
    std::function<void()> undo_;
};

// A check box: 0 clear, 1 checked, 2 indeterminate. Other values show as clear.
void DDX_Check(DataExchange& dx, int id, int32_t& value);
// Check boxes that each stand for one bit of a value (rows with a control id and a bit): loading
// ticks those whose bit is set; saving makes the value anew from the ticked ones alone.
template <class Rows>
void DDX_CheckBits(DataExchange& dx, const Rows& checks, int32_t& value) {
    uint32_t bits = 0;
    for (const auto& check : checks) {
        int32_t ticked = (static_cast<uint32_t>(value) & check.bit) ? 1 : 0;
        DDX_Check(dx, check.control, ticked);
        if (ticked == 1) bits |= check.bit;
    }
    if (dx.saving()) value = static_cast<int32_t>(bits);
}
// A group of radio buttons that starts with control id and runs to the next WS_GROUP: the index
// of the checked one among them, -1 when none is.
void DDX_Radio(DataExchange& dx, int id, int32_t& value);
// A control's text, as it stands or as a number.
void DDX_Text(DataExchange& dx, int id, std::wstring& value);
void DDX_Text(DataExchange& dx, int id, int32_t& value);
void DDX_Text(DataExchange& dx, int id, uint32_t& value);

// The selected index of a combo box, -1 for none.
void DDX_CBIndex(DataExchange& dx, int id, int32_t& index);

// Range checks of the value the DDX_ before took; they check only while saving.
void DDV_MinMaxInt(DataExchange& dx, int32_t value, int32_t min, int32_t max);
void DDV_MinMaxUInt(DataExchange& dx, uint32_t value, uint32_t min, uint32_t max);
// A text of at most count units: the edit takes no more while loading, and a longer one is refused.
void DDV_MaxChars(DataExchange& dx, const std::wstring& value, int count);

}  // namespace ui
