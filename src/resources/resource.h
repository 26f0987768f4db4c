// Resource identifiers every template file shares.
#pragma once

#define IDR_MANIFEST 1

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

// The resource type of a template's initial data (strings put into its combo boxes before the
// dialog is set up); the windows headers of the cross compiler do not name it.
#define RT_DIALOG_INIT 240
