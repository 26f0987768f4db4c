// Which class serves which page of the option dialog: one row each.
#include <memory>
#include <vector>

#include "app/COptionDlg.h"
#include "bindings/COptionKeySetDlg.h"
#include "bindings/COptionMouseAction2Dlg.h"
#include "bindings/COptionMouseAction3Dlg.h"
#include "bindings/COptionMouseActionDlg.h"
#include "bindings/COptionMouseGestureDlg.h"
#include "definitions/COptionCmdDefDlg.h"
#include "definitions/COptionExCmdDlg.h"
#include "definitions/COptionExToolDlg.h"
#include "definitions/COptionMenuDlg.h"
#include "pages/COptionAppInfoDlg.h"
#include "pages/COptionColorGridDlg.h"
#include "pages/COptionCommonUIDlg.h"
#include "pages/COptionContextMenuDlg.h"
#include "pages/COptionCustomSort.h"
#include "pages/COptionDivListDlg.h"
#include "pages/COptionInclimentalSerchDlg.h"
#include "pages/COptionItemClip.h"
#include "pages/COptionListActionDlg.h"
#include "pages/COptionListAddressbarDlg.h"
#include "pages/COptionListAutoUpdateDlg.h"
#include "pages/COptionListBarDlg.h"
#include "pages/COptionListInitDlg.h"
#include "pages/COptionListModeStyleDlg.h"
#include "pages/COptionListStateDlg.h"
#include "pages/COptionListStyleDlg.h"
#include "pages/COptionFolderSettingDlg.h"
#include "pages/COptionIcon.h"
#include "pages/COptionEventDlg.h"
#include "pages/COptionMessageDlg.h"
#include "pages/COptionNetworkDlg.h"
#include "pages/COptionOtherDlg.h"
#include "pages/COptionOverallStyleDlg.h"
#include "pages/COptionRecentDlg.h"
#include "pages/COptionTabCommonDlg.h"
#include "pages/COptionTabManage.h"
#include "pages/COptionTabStyleDlg.h"
#include "pages/COptionThumbDlg.h"
#include "pages/COptionTreeInfoDlg.h"
#include "pages/COptionUserBarDlg.h"
#include "pages/COptionPreviewDlg.h"
#include "pages/COptionScreenSaverDlg.h"
#include "pages/COptionSkinDlg.h"
#include "pages/COptionSoundDlg.h"
#include "pages/COptionVersionCheckDlg.h"

namespace {

using PageMaker = std::unique_ptr<OptionPage> (*)(AppServices& app);

struct PageClass {
    int id;
    PageMaker make;
};

template <class Page>
std::unique_ptr<OptionPage> Make(AppServices& app) {
    return std::make_unique<Page>(app);
}

const std::vector<PageClass>& PageClasses() {
    // clang-format off
    static const std::vector<PageClass> classes = {
        {2, &Make<COptionKeySetDlg>},
        {3, &Make<COptionListStyleDlg>},
        {4, &Make<COptionMouseActionDlg>},
        {5, &Make<COptionOtherDlg>},
        {6, &Make<COptionPreviewDlg>},
        {7, &Make<COptionRecentDlg>},
        {8, &Make<COptionTabStyleDlg>},
        {9, &Make<COptionThumbDlg>},
        {10, &Make<COptionTreeInfoDlg>},
        {11, &Make<COptionUserBarDlg>},
        {12, &Make<COptionSkinDlg>},
        {13, &Make<COptionListActionDlg>},
        {14, &Make<COptionMouseGestureDlg>},
        {15, &Make<COptionTabManage>},
        {16, &Make<COptionItemClip>},
        {17, &Make<COptionIcon>},
        {18, &Make<COptionEventDlg>},
        {19, &Make<COptionSoundDlg>},
        {20, &Make<COptionAppInfoDlg>},
        {21, &Make<COptionExToolDlg>},
        {22, &Make<COptionMenuDlg>},
        {23, &Make<COptionCmdDefDlg>},
        {24, &Make<COptionCommonUIDlg>},
        {25, &Make<COptionExCmdDlg>},
        {26, &Make<COptionColorGridDlg>},
        {27, &Make<COptionListAutoUpdateDlg>},
        {28, &Make<COptionListStateDlg>},
        {29, &Make<COptionListModeStyleDlg>},
        {30, &Make<COptionNetworkDlg>},
        {31, &Make<COptionTabCommonDlg>},
        {32, &Make<COptionInclimentalSerchDlg>},
        {33, &Make<COptionCustomSort>},
        {34, &Make<COptionVersionCheckDlg>},
        {35, &Make<COptionListInitDlg>},
        {36, &Make<COptionFolderSettingDlg>},
        {37, &Make<COptionOverallStyleDlg>},
        {38, &Make<COptionListBarDlg>},
        {39, &Make<COptionMessageDlg>},
        {40, &Make<COptionContextMenuDlg>},
        {41, &Make<COptionDivListDlg>},
        {42, &Make<COptionMouseAction2Dlg>},
        {43, &Make<COptionMouseAction3Dlg>},
        {44, &Make<COptionListAddressbarDlg>},
        {45, &Make<COptionScreenSaverDlg>},
    };
    // clang-format on
    return classes;
}

}  // namespace

std::unique_ptr<OptionPage> MakeOptionPage(const OptionPageInfo& page, AppServices& app) {
    for (const PageClass& row : PageClasses()) {
        if (row.id == page.id) return row.make(app);
    }
    return nullptr;
}
