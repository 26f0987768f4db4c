// Resource identifiers every template file shares.
#pragma once

#define IDR_MANIFEST 1

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

// Labels, group boxes and other fixed texts are IDC_LABEL + 1, + 2, ... numbered within their
// dialog, so that a dialog text file can reach each of them; no other control uses this range.
#define IDC_LABEL 2000

// The resource type of a template's initial data (strings put into its combo boxes before the
// dialog is set up); the windows headers of the cross compiler do not name it.
#define RT_DIALOG_INIT 240
