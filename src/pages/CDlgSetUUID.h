// Adds one root to the folder tree: a real folder typed or browsed, or one of the system's known
// folders picked by name.
#pragma once

#include <cstdint>
#include <string>

#include "ui/BrowseEdit.h"
#include "ui/Dialog.h"

struct AppServices;
class KnownFolderCatalog;

class CDlgSetUUID : public ui::Dialog {
public:
    CDlgSetUUID(AppServices& app, const KnownFolderCatalog& catalog);

    // 0 a real folder (path), 1 a known folder (index into the catalogue, -1 when none was picked).
    int32_t kind = 0;
    std::wstring path;
    int index = -1;

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    void OnOK() override;

private:
    void EnableForKind() const;

    AppServices& app_;
    const KnownFolderCatalog& catalog_;
    ui::BrowseEdit browse_;
};
