// Mouse gestures: which button starts them, the trail's colour and sensitivity, and the table of
// trails and their commands. The list is the table while the page lives; Apply rewrites the host's
// key from it.
#pragma once

#include <cstdint>
#include <string>

#include "app/OptionPage.h"
#include "ui/ColourButton.h"
#include "ui/ListView.h"

class COptionMouseGestureDlg : public OptionPage {
public:
    explicit COptionMouseGestureDlg(AppServices& app);

    bool Apply(PendingChanges& changes) override;

protected:
    bool OnInitDialog() override;
    bool LoadGroups() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    std::optional<LRESULT> OnNotify(const NMHDR& header) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void EnableByTrigger() const;
    int FindTrail(const std::wstring& trail) const;
    void InsertRow(const std::wstring& trail, uint32_t command) const;
    void SetCommand(int row, uint32_t command) const;
    void Tell(uint16_t message) const;
    void AddRow();
    void EditRow();
    void DeleteRow();
    void SetDefaults();

    ui::ListView list_;
    ui::ColourButton colour_;
};
