// One plug-in of the preview page: its DLL, which must load from the plug-in folder and export what a
// plug-in exports, and the extensions it is to show (its own ones when left empty).
#pragma once

#include <string>

#include "ui/Dialog.h"

struct AppServices;

class COptionPreviewPlugin : public ui::Dialog {
public:
    explicit COptionPreviewPlugin(AppServices& app);

    // In and out: the DLL's name without folder, and the extensions.
    std::wstring dllName;
    std::wstring extensions;
    // In: where the file box starts, the plug-in folder (with "*" to show all of it).
    std::wstring directory;

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    void OnOK() override;

private:
    void BrowseForDll();

    AppServices& app_;
};
