#include "definitions/MenuDefinition.h"

#include "services/CaseCompare.h"

// The keyword of row 23 keeps its trailing blank and row 17 its spelling: files in use were written
// against them, and the check still tells them apart.
const MenuKeywordRow MenuKeywordTable[kMenuKeywordCount] = {
    {L"<Comment>", 4, 4, L"This is not a valid command.", L"Comment", L"Comment"},
    {L"MENUITEM", 1, 1, L"Execute command id.", L"Menu text", L"Command ID"},
    {L"MULTIPLE", 1, 1, L"Execute multiple commands in a row.", L"Menu text", L"Command IDs"},
    {L"SEPARATOR", 0, 0, L"Separator.", L"", L""},
    {L"POPUP", 1, 0, L"Create popup menu.", L"Menu text", L""},
    {L"END", 0, 0, L"End of popup.", L"", L""},
    {L"SCRIPT", 1, 3, L"Execute the script file.", L"Menu text", L"File Name"},
    {L"DROPOPEN", 1, 3, L"Drop open.", L"Menu text", L"File Name"},
    {L"OPEN", 1, 3, L"Open a shell.", L"Menu text", L"File Name"},
    {L"NEW", 1, 2, L"New create window.", L"Menu text", L"Directory"},
    {L"JUMP", 1, 2, L"Jump directory.", L"Menu text", L"Directory"},
    {L"EDIT", 1, 0, L"Edit Qor's editor.", L"Menu text", L""},
    {L"DROPTABLIST", 0, 0, L"Send to the list of tabs.", L"", L""},
    {L"MOVETABLIST", 0, 0, L"Move to the list of tabs.", L"", L""},
    {L"NOTEPAD", 1, 0, L"Edit notepad.\nIt is recommended that you do not use.", L"Menu text", L""},
    {L"MENUEDIT", 1, 0, L"Edit this menu editor.", L"Menu text", L""},
    {L"WILDCARD", 1, 4, L"Filter area text.\n(ex.)exe;txt", L"Menu text", L"Filter text"},
    {L"POSITION", 5, 0, L"Menu position(DESKTOP/PAERNT/MOUSE/MAIN)", L"Position", L""},
    {L"DIRECTORY", 2, 0, L"Change to the DIRECTORY mode.", L"Start directory", L""},
    {L"DIR_SCRIPT", 3, 0, L"The selected directory, and run the script.(DIRECTORY mode)", L"File Name", L""},
    {L"DIR_FILE", 6, 0, L"Display the files.(DIRECTORY mode)", L"Text(ON/OFF)", L""},
    {L"DIR_FOLDER", 6, 0, L"Display the 'Select Folder'.(DIRECTORY mode)", L"Text(ON/OFF)", L""},
    {L"DIR_UP", 6, 0, L"Display the '..'(DIRECTORY mode)", L"Text(ON/OFF)", L""},
    {L"HIDDEN_ITEM ", 6, 0, L"Display the hidden items.(DIRECTORY mode)", L"Text(ON/OFF)", L""},
};

int FindMenuKeywordRow(const std::wstring& command) {
    for (int row = 1; row < kMenuKeywordCount; ++row) {
        if (crt::EqualNoCase(command, MenuKeywordTable[row].keyword)) return row;
    }
    return 0;
}
