// Dialogs made from the program's resource templates. One window procedure finds the object and
// hands every message to OnMessage, which decodes the common ones into the virtual handlers below;
// a class that needs another message overrides OnMessage, answers that one and passes the rest on.
#pragma once

#include <windows.h>

#include <optional>

namespace ui {

class DataExchange;

class Dialog {
public:
    // No window yet: it is made by DoModal or Create, so that no virtual call meets a half-built object.
    explicit Dialog(int templateId) : templateId_(templateId) {}
    // Destroys a window that is still there. A class that handles WM_DESTROY destroys it itself
    // first, as its own handlers are gone by the time this runs.
    virtual ~Dialog();
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    // Shows the dialog owned by the top-level window of parent, which is disabled meanwhile, and
    // returns the code given to EndDialog; -1 when the window could not be made.
    INT_PTR DoModal(HWND parent);
    // Makes the window modeless, a child of parent when the template says WS_CHILD (a page);
    // false when it could not be made. The window lives until DestroyWindow or the object's end.
    bool Create(HWND parent);
    void DestroyWindow();
    // Ends a modal dialog with this code; a modeless one is hidden.
    void EndDialog(INT_PTR result);

    // Moves the members into the controls (false) or the controls into the members (true). False
    // when a field was refused: the user has been told and the focus is on that field.
    bool UpdateData(bool saveAndValidate = true);

    HWND hwnd() const { return window_; }
    int templateId() const { return templateId_; }
    HWND Item(int id) const { return GetDlgItem(window_, id); }
    // The object behind a window of ours; null for any other window.
    static Dialog* FromHandle(HWND window);

protected:
    // Every message after WM_INITDIALOG's arrival. nullopt leaves the message to the system; a value
    // is the answer the sender gets.
    virtual std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

    // Puts the template's initial data into its lists, then fills the controls by UpdateData(false). True lets the
    // system put the focus on the first control.
    virtual bool OnInitDialog();
    // IDOK: take the controls' values and, if all were accepted, end with IDOK.
    virtual void OnOK();
    // IDCANCEL (Escape, the close box): end with IDCANCEL.
    virtual void OnCancel();
    // WM_COMMAND; true when handled. IDOK and IDCANCEL clicks that come back false go to OnOK and OnCancel.
    virtual bool OnCommand(int id, int code) { return false; }
    // WM_NOTIFY; the value is the notification's result.
    virtual std::optional<LRESULT> OnNotify(const NMHDR& header) { return std::nullopt; }
    virtual void OnTimer(UINT_PTR id) {}
    // The dialog's DDX_/DDV_ pairs.
    virtual void DoDataExchange(DataExchange& exchange) {}

private:
    static INT_PTR CALLBACK Thunk(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnCommandMessage(int id, int code);
    void RunModalLoop();

    const int templateId_;
    HWND window_ = nullptr;
    bool modal_ = false;
    bool ended_ = false;
    INT_PTR result_ = -1;
};

}  // namespace ui
