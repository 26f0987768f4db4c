// Resource identifiers of the dialogs that the dialog framework's tests open.
#pragma once

#define IDD_FRAMEWORK_FIELDS 9101
#define IDD_FRAMEWORK_MISSING 9199

#define IDC_FW_CHECK 2001
#define IDC_FW_RADIO_FIRST 2002
#define IDC_FW_RADIO_SECOND 2003
#define IDC_FW_RADIO_THIRD 2004
#define IDC_FW_AFTER_RADIOS 2005
#define IDC_FW_INT 2006
#define IDC_FW_UINT 2007
#define IDC_FW_TEXT 2008
#define IDC_FW_DOUBLE 2009
#define IDC_FW_COMBO 2010
#define IDC_FW_COMBO_TEXT 2011
#define IDC_FW_LIST 2012
#define IDC_FW_LABEL 2013
#define IDC_FW_TREE 2014
#define IDC_FW_SPIN 2015
