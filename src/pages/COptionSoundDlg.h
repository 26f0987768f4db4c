// Sounds the host plays on its events, each a .wav file of the installation's sound folder.
#pragma once

#include "pages/COptionEventFileDlg.h"
#include "resources/pages/PageIds.h"

class COptionSoundDlg : public COptionEventFileDlg {
public:
    explicit COptionSoundDlg(AppServices& app) : COptionEventFileDlg(IDD_OPTION_SOUND, app, kSoundRows) {}
};
