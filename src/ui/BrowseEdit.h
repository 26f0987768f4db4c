// An edit of a dialog template with a browse button at its right end, inside its border. A click on
// the button, Alt+Down or F4 asks the owner for a path, which replaces the text as one undoable
// change. The edit stays the template's own control, so data exchange, its notifications and the
// macro helper's insertions work on it as on any edit.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

namespace ui {

class BrowseEdit {
public:
    // Given the text as it stands; nullopt when the user chose nothing.
    using Browse = std::function<std::optional<std::wstring>(const std::wstring& current)>;

    BrowseEdit() = default;
    ~BrowseEdit();
    BrowseEdit(const BrowseEdit&) = delete;
    BrowseEdit& operator=(const BrowseEdit&) = delete;

    // Takes over the dialog's edit with this id for the life of the edit or of this object,
    // whichever ends first. False when there is no such control.
    bool Attach(HWND dialog, int id, Browse browse);
    // What the button does.
    void BrowseNow();

private:
    static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR self);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    // The button in screen coordinates: the height of the text area, a little wider than high.
    RECT ButtonRect() const;
    void PaintButton() const;
    void Detach();

    HWND edit_ = nullptr;
    Browse browse_;
};

}  // namespace ui
