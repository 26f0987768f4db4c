// A dialog of the framework whose reactions each test writes in, and the fixture of the framework's tests: real
// windows, every other facility fake, so that a refused field's message box is recorded instead of waiting for a click.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "ui/Dialog.h"

namespace testing_support {

class ScriptedDialog : public ui::Dialog {
public:
    using ui::Dialog::Dialog;
    ~ScriptedDialog() override { DestroyWindow(); }

    std::function<void()> init;
    std::function<std::optional<LRESULT>(UINT, WPARAM, LPARAM)> message;
    std::function<bool(int id, int code)> command;
    std::function<std::optional<LRESULT>(const NMHDR&)> notify;
    std::function<void(UINT_PTR)> timer;

    // What reached the handlers, in order: "init", "ok", "cancel", "command 2202 0", "timer 5".
    std::vector<std::wstring> seen;

protected:
    std::optional<LRESULT> OnMessage(UINT msg, WPARAM wParam, LPARAM lParam) override {
        if (message) {
            if (auto answer = message(msg, wParam, lParam)) return answer;
        }
        return Dialog::OnMessage(msg, wParam, lParam);
    }
    bool OnInitDialog() override {
        seen.push_back(L"init");
        bool focusFirst = Dialog::OnInitDialog();
        if (init) init();
        return focusFirst;
    }
    void OnOK() override {
        seen.push_back(L"ok");
        Dialog::OnOK();
    }
    void OnCancel() override {
        seen.push_back(L"cancel");
        Dialog::OnCancel();
    }
    bool OnCommand(int id, int code) override {
        if (!command || !command(id, code)) return false;
        seen.push_back(L"command " + std::to_wstring(id) + L" " + std::to_wstring(code));
        return true;
    }
    std::optional<LRESULT> OnNotify(const NMHDR& header) override { return notify ? notify(header) : std::nullopt; }
    void OnTimer(UINT_PTR id) override {
        seen.push_back(L"timer " + std::to_wstring(id));
        if (timer) timer(id);
    }
};

class FrameworkTest : public testing::Test {
protected:
    void SetUp() override {
        INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_WIN95_CLASSES};
        InitCommonControlsEx(&controls);
    }

    const std::vector<platform::fake::ShownMessage>& shown() { return fake_.prompts().shown(); }

    platform::fake::FakePlatform fake_;
};

// The control's text.
inline std::wstring TextOf(HWND control) {
    wchar_t buffer[512] = {};
    GetWindowTextW(control, buffer, 512);
    return buffer;
}

}  // namespace testing_support
