// The item clip bar's page: a placeholder whose template only says that it is still to come. No tree
// item leads to it, and it has nothing to exchange or store.
#pragma once

#include "app/OptionPage.h"
#include "resources/pages/PageIds.h"

class COptionItemClip : public OptionPage {
public:
    explicit COptionItemClip(AppServices& app) : OptionPage(IDD_OPTION_ITEM_CLIP, app) {}
};
