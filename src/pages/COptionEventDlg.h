// Scripts the host runs on its events, each a file of the user's script folder.
#pragma once

#include "pages/COptionEventFileDlg.h"
#include "resources/pages/PageIds.h"

class COptionEventDlg : public COptionEventFileDlg {
public:
    explicit COptionEventDlg(AppServices& app) : COptionEventFileDlg(IDD_OPTION_EVENT, app, kEventRows) {}
};
