#include "definitions/CDlgDefinitionEditor.h"

#include "app/AppServices.h"
#include "app/HelpPage.h"
#include "platform/Platform.h"

// Its WM_DESTROY handler is ours: the window goes while it is still there.
CDlgDefinitionEditor::~CDlgDefinitionEditor() {
    DestroyWindow();
}

std::optional<LRESULT> CDlgDefinitionEditor::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_HELP) {
        OpenHelpPage(app_.directories.ApplicationRoot(), helpPage_);
        return TRUE;
    }
    if (message == WM_DESTROY && mainWindow_) {
        platform::Current().windows.SetMainWindow(0);
        mainWindow_ = false;
    }
    return ui::Dialog::OnMessage(message, wParam, lParam);
}

bool CDlgDefinitionEditor::OnInitDialog() {
    const bool focusFirst = ui::Dialog::OnInitDialog();
    platform::HostWindows& windows = platform::Current().windows;
    if (!windows.MainWindow()) {
        windows.SetMainWindow(reinterpret_cast<platform::WindowRef>(hwnd()));
        mainWindow_ = true;
    }
    return focusFirst;
}
