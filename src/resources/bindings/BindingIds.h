// Resource identifiers of the key bindings: the command picker and its tree pictures.
#pragma once

// The command picker.
#define IDD_KEY_SETTING 106
#define IDC_KEY_SETTING_ID 1001
#define IDC_KEY_SETTING_SEARCH 1301
#define IDC_KEY_SETTING_HELP 1302
#define IDC_KEY_SETTING_TEXT 1401
#define IDC_KEY_SETTING_TREE 1621
// Hidden labels that head the tree's branches.
#define IDC_KEY_SETTING_MAIN_MENU 1900
#define IDC_KEY_SETTING_USER_BARS 1901
#define IDC_KEY_SETTING_EXTERNAL 1902
#define IDC_KEY_SETTING_BAR_MENUS 1903

// The tree's pictures, 16 pixels each: closed and open group, command, (unused), listed command,
// command that opens a dialog. Magenta is transparent.
#define IDB_COMMAND_TREE 900
