// Resource identifiers of the key bindings: the key page, the command picker and its tree pictures.
#pragma once

// The key page: a list of the 76 keys of the set and modifier chosen.
#define IDD_OPTION_KEYSET 105
#define IDC_KEYSET_SWITCH_TIME 1001
#define IDC_KEYSET_SET 1151
#define IDC_KEYSET_SWITCH_TARGET 1152
#define IDC_KEYSET_MODIFIER_FIRST 1211
#define IDC_KEYSET_EDIT 1301
#define IDC_KEYSET_CLEAR 1302
#define IDC_KEYSET_RESET_KEY 1303
#define IDC_KEYSET_RESET_BLOCK 1304
#define IDC_KEYSET_RESET_ALL 1305
#define IDC_KEYSET_SAVE_LIST 1306
#define IDC_KEYSET_HEADERS 1402
#define IDC_KEYSET_SET_NAMES 1403
#define IDC_KEYSET_SWITCH_NAMES 1404
#define IDC_KEYSET_LIST 1601

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
