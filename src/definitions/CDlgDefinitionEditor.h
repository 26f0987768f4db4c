// What every editor of one definition file is: a modal dialog on a file named before DoModal, with
// its page of the manual on F1. Opened by a start-up switch it is the program's one window, and so
// its main window while it lives.
#pragma once

#include <string>

#include "ui/Dialog.h"

struct AppServices;

class CDlgDefinitionEditor : public ui::Dialog {
public:
    CDlgDefinitionEditor(int templateId, AppServices& app, const wchar_t* helpPage)
        : ui::Dialog(templateId), app_(app), helpPage_(helpPage) {}
    ~CDlgDefinitionEditor() override;

    // The file edited; set before DoModal.
    std::wstring filePath;

protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool OnInitDialog() override;

    AppServices& app_;

private:
    const wchar_t* helpPage_;
    bool mainWindow_ = false;
};
