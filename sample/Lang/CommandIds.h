// Numbers of the host's built-in commands that the sample language libraries name. Both languages
// include this file, so neither can name a command the other lacks. Every command here has a string
// "text\ntip" in each library and an item in menu 130 or 501.
#ifndef QOR_SAMPLE_COMMAND_IDS_H
#define QOR_SAMPLE_COMMAND_IDS_H

#define IDR_MAIN_MENU 130
#define IDR_MORE_COMMANDS 501

// File
#define CMD_OPEN 35900
#define CMD_OPEN_FOLDER 35690
#define CMD_EDIT_FILE 35701
#define CMD_RENAME 35209
#define CMD_DELETE 35207
#define CMD_COMPRESS 35703
#define CMD_SAVE_SELECTION 35706
#define CMD_PROPERTIES 35692
#define CMD_EXIT 35000

// Edit
#define CMD_UNDO 57643
#define CMD_REDO 57644
#define CMD_CUT 57635
#define CMD_COPY 57634
#define CMD_PASTE 57637
#define CMD_COPY_PATH 36190
#define CMD_COPY_NAME 36191
#define CMD_SELECT_ALL 57642
#define CMD_CLEAR_SELECTION 33300
#define CMD_INVERT_SELECTION 36240
#define CMD_SELECT_PATTERN 35705

// View
#define CMD_VIEW_LARGE_ICONS 400
#define CMD_VIEW_SMALL_ICONS 401
#define CMD_VIEW_LIST 402
#define CMD_VIEW_DETAILS 403
#define CMD_VIEW_THUMBNAILS 407
#define CMD_VIEW_TILES 410
#define CMD_SORT 36230
#define CMD_FILTER 35505
#define CMD_REFRESH 33301
#define CMD_REFRESH_ALL 33320

// Go
#define CMD_BACK 36203
#define CMD_FORWARD 36202
#define CMD_UP 36200
#define CMD_ROOT 36201
#define CMD_PREV_SIBLING 36901
#define CMD_NEXT_SIBLING 36902
#define CMD_ADDRESS_BAR 36210
#define CMD_HISTORY 35508
#define CMD_FIND 35512
#define CMD_ADD_FAVOURITE 35702
#define CMD_FAVOURITE_1 35840
#define CMD_FAVOURITE_2 35841
#define CMD_FAVOURITE_3 35842
#define CMD_FAVOURITE_4 35843
#define CMD_FAVOURITE_5 35844
#define CMD_FAVOURITE_6 35845
#define CMD_FAVOURITE_7 35846
#define CMD_FAVOURITE_8 35847
#define CMD_FAVOURITE_9 35848
#define CMD_FAVOURITE_10 35849

// Tabs
#define CMD_TAB_NEW 57600
#define CMD_TAB_FROM_HERE 35053
#define CMD_TAB_BACKGROUND 35054
#define CMD_TAB_FROM_HERE_BACKGROUND 35055
#define CMD_TAB_NEXT 35800
#define CMD_TAB_PREVIOUS 35801
#define CMD_TAB_MENU 35860
#define CMD_NAVIGATION_LOCK 35850
#define CMD_TAB_CLOSE 35112
#define CMD_TAB_CLOSE_RIGHT 35106
#define CMD_TAB_CLOSE_LEFT 35107
#define CMD_TAB_CLOSE_OTHERS 35108
#define CMD_TAB_CLOSE_ALL 35111
#define CMD_TAB_CLOSE_GROUP 35105

// Window
#define CMD_OTHER_PANE 35808
#define CMD_FOCUS_TREE 35809

// Tools and help
#define CMD_OPTIONS 35502
#define CMD_KEY_SETTINGS 35503
#define CMD_HELP 35515
#define CMD_ABOUT 57664

// Keyboard commands outside the main menu
#define CMD_CURSOR_FIRST 36911
#define CMD_CURSOR_LAST 36907
#define CMD_PREVIOUS_SELECTED 36909
#define CMD_NEXT_SELECTED 36905
#define CMD_MARK_AND_NEXT 35606
#define CMD_SELECT_TO_CURSOR 35607
#define CMD_MARK 35608

// In the main menu without a string: the command picker leaves this item out.
#define CMD_VIEW_TOOLBAR 59392

#endif
