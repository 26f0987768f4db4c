// The preview bar's page: which files it tries to show as images, the font of its text view, and the
// plug-ins that show other files. The list of plug-ins is the page's document until Apply.
#pragma once

#include "app/OptionPage.h"
#include "ui/ListView.h"

class CPvPluginInfo;

class COptionPreviewDlg : public OptionPage {
public:
    explicit COptionPreviewDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;

private:
    CPvPluginInfo& Plugins();
    void EnableExtensions() const;
    void ChooseFont();
    void AddPlugin();
    void EditPlugin();
    void DeletePlugin();
    void MoveSelected(int step);
    // The row naming the DLL, in any letter case; -1 when none does.
    int FindRow(const std::wstring& dllName) const;
    void ShowMessage(uint16_t id) const;

    ui::ListView list_;
};
