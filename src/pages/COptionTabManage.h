// The window management page of the tab bar: a reserved slot. It has a page id and its template but
// no tree item leads to it, and it has nothing to exchange or store.
#pragma once

#include "app/OptionPage.h"
#include "resources/pages/PageIds.h"

class COptionTabManage : public OptionPage {
public:
    explicit COptionTabManage(AppServices& app) : OptionPage(IDD_OPTION_TAB_MANAGE, app) {}
};
