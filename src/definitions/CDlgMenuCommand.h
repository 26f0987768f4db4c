// One line of a menu file: a keyword from the box, its arguments with the help each kind of argument
// wants (the command picker, the folder and file boxes, the macro helper).
#pragma once

#include <cstdint>
#include <string>

#include "ui/Dialog.h"

struct AppServices;

class CDlgMenuCommand : public ui::Dialog {
public:
    explicit CDlgMenuCommand(AppServices& app);

    // In and out: the line's three texts.
    std::wstring command;
    std::wstring text;
    std::wstring target;
    // "Expand and conversion to macro.": paths are expanded for the pickers and made macros again.
    int32_t expandMacros = 1;

protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    void OnOK() override;

private:
    int KeywordRow() const;
    void ShowKeyword();
    void Pick(uint32_t kind, std::wstring& field);
    void PickCommands();
    std::wstring PickPath(uint32_t kind, const std::wstring& start);
    void InsertMacro(int editId);

    AppServices& app_;
};
