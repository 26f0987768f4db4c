// Resource identifiers of the dialog that the translation tests open.
#pragma once

#define IDD_LOCALISE_TEST 9001
#define IDC_LOCALISE_NAME 1001
#define IDC_LOCALISE_BROWSE 1002
#define IDC_LOCALISE_MODE 1003
#define IDC_LOCALISE_PATH 1004
#define IDC_LOCALISE_LABEL 1005
