// Resource identifiers of the definition files: the pages of menus, scripts and commands, their
// editors, and the macro helper.
#pragma once

// The menu page: the files of the user's menu folder.
#define IDD_OPTION_MENU 163
#define IDC_MENU_PAGE_MODE 1151
#define IDC_MENU_PAGE_EDIT 1301
#define IDC_MENU_PAGE_OPEN_FOLDER 1302
#define IDC_MENU_PAGE_COMMAND_LIST 1303
#define IDC_MENU_PAGE_LIST 1601

// The menu editor: one file, line by line.
#define IDD_MENU_EDIT 180
#define IDC_MENU_EDIT_ADD 1301
#define IDC_MENU_EDIT_EDIT 1302
#define IDC_MENU_EDIT_DELETE 1303
#define IDC_MENU_EDIT_SAVE 1304
#define IDC_MENU_EDIT_SAVE_AS 1305
#define IDC_MENU_EDIT_UP 1306
#define IDC_MENU_EDIT_DOWN 1307
#define IDC_MENU_EDIT_BY_EDITOR 1308
#define IDC_MENU_EDIT_RELOAD 1309
#define IDC_MENU_EDIT_CHECK 1310
#define IDC_MENU_EDIT_TEST 1311
#define IDC_MENU_EDIT_COPY 1313
#define IDC_MENU_EDIT_PASTE 1314
#define IDC_MENU_EDIT_LIST 1601

// One line of a menu file.
#define IDD_MENU_COMMAND 181
#define IDC_MENU_COMMAND_TEXT 1001
#define IDC_MENU_COMMAND_TARGET 1002
#define IDC_MENU_COMMAND_KEYWORD 1151
#define IDC_MENU_COMMAND_MACRO_FLAG 1251
#define IDC_MENU_COMMAND_PICK_TEXT 1301
#define IDC_MENU_COMMAND_PICK_TARGET 1302
#define IDC_MENU_COMMAND_MACRO_TEXT 1303
#define IDC_MENU_COMMAND_MACRO_TARGET 1304
#define IDC_MENU_COMMAND_FIRST_LABEL 1401
#define IDC_MENU_COMMAND_SECOND_LABEL 1402
#define IDC_MENU_COMMAND_EXPLANATION 1403

// The macro helper.
#define IDD_MACRO_HELPER 212
// Its six tabs, radio buttons drawn as push buttons, in the order of MacroHelperMode.
#define IDC_MACRO_HELPER_FIRST_TAB 1201
#define IDC_MACRO_HELPER_QOR_PATHS 1201
#define IDC_MACRO_HELPER_REPLACE_MACROS 1202
#define IDC_MACRO_HELPER_ENVIRONMENT 1203
#define IDC_MACRO_HELPER_ON_OFF 1204
#define IDC_MACRO_HELPER_MOUSE_POSITION 1205
#define IDC_MACRO_HELPER_STATUS_AREA 1206
#define IDC_MACRO_HELPER_LAST_TAB 1206
#define IDC_MACRO_HELPER_LIST 1601

// The script page and the run definition editors.
#define IDD_OPTION_EX_TOOL 162
#define IDD_RUN_SET 190
#define IDD_EX_RUN_SET 191

// The command definition page, its editor, and the page of the external commands' common behaviour.
#define IDD_OPTION_CMD_DEF 164
#define IDD_DEF_CMD_SET 192
#define IDD_OPTION_EX_CMD 197
