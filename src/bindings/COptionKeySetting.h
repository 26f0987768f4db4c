// The command picker: every command in one tree, the identifier typed or chosen, its text shown. One
// instance serves the whole process (the key page, the mouse pages, the gesture dialog and the menu
// editor); each caller sets the identifier and whether bar commands are wanted, then runs DoModal.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "definitions/CommandTree.h"
#include "ui/Dialog.h"
#include "ui/TreeView.h"

struct AppServices;

class COptionKeySetting : public ui::Dialog {
public:
    explicit COptionKeySetting(AppServices& app);
    ~COptionKeySetting() override;

    // The process's one picker, made at first use; freed in the exit sequence.
    static COptionKeySetting& Shared(AppServices& app);
    static void ReleaseShared();

    // In and out: the identifier in edit 1001.
    uint32_t currentId = 0;
    // The text of the item chosen at OK.
    std::wstring resultText;
    // Adds the branch of commands only the bars' menu files offer.
    bool barCommandsWanted = false;

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;
    void OnOK() override;

private:
    void FillTree();
    void InsertNodes(const std::vector<CommandNode>& nodes, HTREEITEM parent);
    void ShowSelection();
    void Search();

    AppServices& app_;
    ui::TreeView tree_;
    HIMAGELIST images_ = nullptr;
    // The tree item of each identifier; where one occurs twice, the last item.
    std::map<uint16_t, HTREEITEM> items_;
    std::wstring dumpPath_;
};
