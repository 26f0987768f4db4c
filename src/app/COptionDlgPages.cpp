// Which class serves which page of the option dialog. A page class takes its place by a row here;
// every page without a row is a generic page with its own (empty) template.
#include <memory>
#include <vector>

#include "app/COptionDlg.h"
#include "bindings/COptionKeySetDlg.h"
#include "definitions/COptionCmdDefDlg.h"
#include "definitions/COptionExCmdDlg.h"
#include "definitions/COptionExToolDlg.h"
#include "definitions/COptionMenuDlg.h"
#include "pages/COptionAppInfoDlg.h"
#include "pages/COptionCommonUIDlg.h"
#include "pages/COptionEventDlg.h"
#include "pages/COptionMessageDlg.h"
#include "pages/COptionNetworkDlg.h"
#include "pages/COptionOtherDlg.h"
#include "pages/COptionOverallStyleDlg.h"
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

std::unique_ptr<OptionPage> MakeGeneric(const OptionPageInfo& page, AppServices& app) {
    return std::make_unique<OptionPage>(page.templateId, app);
}

const std::vector<PageClass>& PageClasses() {
    // clang-format off
    static const std::vector<PageClass> classes = {
        {2, &Make<COptionKeySetDlg>},
        {5, &Make<COptionOtherDlg>},
        {12, &Make<COptionSkinDlg>},
        {18, &Make<COptionEventDlg>},
        {19, &Make<COptionSoundDlg>},
        {20, &Make<COptionAppInfoDlg>},
        {21, &Make<COptionExToolDlg>},
        {22, &Make<COptionMenuDlg>},
        {23, &Make<COptionCmdDefDlg>},
        {24, &Make<COptionCommonUIDlg>},
        {25, &Make<COptionExCmdDlg>},
        {30, &Make<COptionNetworkDlg>},
        {34, &Make<COptionVersionCheckDlg>},
        {37, &Make<COptionOverallStyleDlg>},
        {39, &Make<COptionMessageDlg>},
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
    return MakeGeneric(page, app);
}
