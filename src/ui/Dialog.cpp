#include "ui/Dialog.h"

#include <exception>
#include <string>

#include "platform/Platform.h"
#include "ui/DataExchange.h"
#include "ui/DialogInitData.h"

namespace ui {

namespace {

// Messages whose answer a dialog procedure returns itself instead of through DWLP_MSGRESULT.
bool AnswersDirectly(UINT message) {
    return message == WM_INITDIALOG || message == WM_COMPAREITEM || message == WM_VKEYTOITEM ||
           message == WM_CHARTOITEM || message == WM_QUERYDRAGICON ||
           (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC);
}

// The innermost page (a child dialog of ours) that holds the window.
HWND PageOf(HWND window) {
    for (HWND w = window; w && (GetWindowLongPtrW(w, GWL_STYLE) & WS_CHILD); w = GetParent(w)) {
        if (Dialog::FromHandle(w)) return w;
    }
    return nullptr;
}

// Enter and Escape inside a page belong to the page, as IDOK and IDCANCEL (or a click on the focused
// push button), even though the page is a DS_CONTROL part of the dialog around it. A control that
// wants the key (a multi-line edit, a dropped-down list) keeps it.
bool RouteKeyToPage(MSG& msg) {
    if (msg.message != WM_KEYDOWN || (msg.wParam != VK_RETURN && msg.wParam != VK_ESCAPE)) return false;
    HWND page = PageOf(msg.hwnd);
    if (!page) return false;
    LRESULT code = SendMessageW(msg.hwnd, WM_GETDLGCODE, msg.wParam, reinterpret_cast<LPARAM>(&msg));
    if (code & (DLGC_WANTMESSAGE | DLGC_WANTALLKEYS)) return false;
    int id = msg.wParam == VK_RETURN ? IDOK : IDCANCEL;
    HWND from = GetDlgItem(page, id);
    if (msg.wParam == VK_RETURN && (code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) &&
        GetParent(msg.hwnd) == page) {
        id = GetDlgCtrlID(msg.hwnd);
        from = msg.hwnd;
    }
    SendMessageW(page, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(from));
    return true;
}

// Nothing may unwind through the system's code; the user learns that the action stopped.
void ReportUnexpected(const char* what) {
    try {
        std::wstring text = L"An unexpected error stopped this action.";
        if (what && *what) {
            text += L"\n";
            for (const char* p = what; *p; ++p) text += static_cast<wchar_t>(static_cast<unsigned char>(*p));
        }
        platform::Current().prompts.ShowMessage(text, platform::kStyleOk);
    } catch (...) {
    }
}

}  // namespace

Dialog* Dialog::FromHandle(HWND window) {
    if (!window || GetWindowLongPtrW(window, DWLP_DLGPROC) != reinterpret_cast<LONG_PTR>(&Thunk)) return nullptr;
    return reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, DWLP_USER));
}

Dialog::~Dialog() {
    DestroyWindow();
}

INT_PTR Dialog::DoModal(HWND parent) {
    if (window_) return -1;
    HWND owner = parent ? GetAncestor(parent, GA_ROOT) : nullptr;
    modal_ = true;
    ended_ = false;
    result_ = -1;
    HWND window = CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId_), owner, Thunk,
                                     reinterpret_cast<LPARAM>(this));
    if (!window) {
        modal_ = false;
        return -1;
    }
    bool disabledOwner = owner && !EnableWindow(owner, FALSE);
    if (!ended_ && window_) {
        if (!IsWindowVisible(window)) ShowWindow(window, SW_SHOW);
        RunModalLoop();
    }
    // Hidden before the owner comes back, so that activation returns to the owner and not elsewhere.
    if (window_)
        SetWindowPos(window, nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (disabledOwner) EnableWindow(owner, TRUE);
    if (owner && GetActiveWindow() == window) SetActiveWindow(owner);
    DestroyWindow();
    modal_ = false;
    return result_;
}

// Our own loop rather than the system's, so that a page sees its Enter and Escape first.
void Dialog::RunModalLoop() {
    HWND window = window_;
    MSG msg;
    while (!ended_ && window_ == window) {
        BOOL got = GetMessageW(&msg, nullptr, 0, 0);
        if (got == -1) break;
        if (!got) {
            PostQuitMessage(static_cast<int>(msg.wParam));
            break;
        }
        if (RouteKeyToPage(msg) || IsDialogMessageW(window, &msg)) continue;
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
}

bool Dialog::Create(HWND parent) {
    if (window_) return false;
    modal_ = false;
    ended_ = false;
    return CreateDialogParamW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(templateId_), parent, Thunk,
                              reinterpret_cast<LPARAM>(this)) != nullptr;
}

void Dialog::DestroyWindow() {
    if (window_) ::DestroyWindow(window_);
}

void Dialog::EndDialog(INT_PTR result) {
    if (!window_) return;
    result_ = result;
    ended_ = true;
    if (modal_)
        PostMessageW(window_, WM_NULL, 0, 0);  // wakes the loop should it be waiting
    else
        ::EndDialog(window_, result);
}

bool Dialog::UpdateData(bool saveAndValidate) {
    DataExchange exchange(window_, saveAndValidate);
    try {
        DoDataExchange(exchange);
    } catch (const DataExchange::Refused&) {
        return false;
    }
    return true;
}

bool Dialog::OnInitDialog() {
    RunDialogInitData(window_, templateId_);
    UpdateData(false);
    return true;
}

void Dialog::OnOK() {
    if (UpdateData(true)) EndDialog(IDOK);
}

void Dialog::OnCancel() {
    EndDialog(IDCANCEL);
}

std::optional<LRESULT> Dialog::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            return OnInitDialog() ? TRUE : FALSE;
        case WM_COMMAND:
            return OnCommandMessage(LOWORD(wParam), HIWORD(wParam));
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<const NMHDR*>(lParam));
        case WM_TIMER:
            OnTimer(wParam);
            return 0;
        default:
            return std::nullopt;
    }
}

std::optional<LRESULT> Dialog::OnCommandMessage(int id, int code) {
    if (OnCommand(id, code)) return 0;
    if (code != BN_CLICKED) return std::nullopt;
    if (id == IDOK) {
        OnOK();
        return 0;
    }
    if (id == IDCANCEL) {
        OnCancel();
        return 0;
    }
    return std::nullopt;
}

INT_PTR CALLBACK Dialog::Thunk(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        reinterpret_cast<Dialog*>(lParam)->window_ = window;
    }
    auto* self = reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, DWLP_USER));
    if (!self) return FALSE;
    INT_PTR answer = FALSE;
    try {
        answer = self->Dispatch(window, message, wParam, lParam);
    } catch (const std::exception& e) {
        ReportUnexpected(e.what());
    } catch (...) {
        ReportUnexpected(nullptr);
    }
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, DWLP_USER, 0);
        self->window_ = nullptr;
    }
    return answer;
}

INT_PTR Dialog::Dispatch(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    std::optional<LRESULT> answer = OnMessage(message, wParam, lParam);
    if (!answer) return FALSE;
    if (AnswersDirectly(message)) return static_cast<INT_PTR>(*answer);
    SetWindowLongPtrW(window, DWLP_MSGRESULT, *answer);
    return TRUE;
}

}  // namespace ui
