// The line dialog of the menu editor: which controls a keyword's arguments open, and what OK makes
// of the three fields.
#pragma once

#include <string>

// The controls of the line dialog a keyword row enables.
struct MenuCommandControls {
    bool text = false;
    bool target = false;
    bool pickText = false;
    bool pickTarget = false;
    bool macroText = false;
    bool macroTarget = false;
    bool operator==(const MenuCommandControls&) const = default;
};

MenuCommandControls ControlsForKeyword(int row);

// OK of the line dialog: tabs deleted from all three fields and each trimmed, an argument the
// keyword does not use emptied. The text the user is told when a required argument is missing
// ("Menu text has not been entered."), or empty when the line may close the dialog.
std::wstring FinishMenuCommand(std::wstring& command, std::wstring& text, std::wstring& target);
