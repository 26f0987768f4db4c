#include "pages/COptionPreviewPlugin.h"

#include "app/AppServices.h"
#include "pages/CPvPluginInfo.h"
#include "platform/Platform.h"
#include "resources/pages/PageIds.h"
#include "services/PathHelpers.h"
#include "ui/DataExchange.h"
#include "ui/LocaliseDialog.h"

namespace {

constexpr int kDllNameLimit = 255;

}  // namespace

COptionPreviewPlugin::COptionPreviewPlugin(AppServices& app) : ui::Dialog(IDD_OPTION_PREVIEW_PLUGIN), app_(app) {}

bool COptionPreviewPlugin::OnInitDialog() {
    const bool focusFirst = ui::Dialog::OnInitDialog();
    ui::LocaliseDialog(hwnd(), templateId(), app_.dialogLanguage);
    return focusFirst;
}

void COptionPreviewPlugin::DoDataExchange(ui::DataExchange& exchange) {
    DDX_Text(exchange, IDC_PLUGIN_DLL, dllName);
    DDV_MaxChars(exchange, dllName, kDllNameLimit);
    DDX_Text(exchange, IDC_PLUGIN_EXTENSIONS, extensions);
}

// Only the file's name is kept: a plug-in lives in the plug-in folder, and one picked elsewhere is
// looked for there all the same.
void COptionPreviewPlugin::BrowseForDll() {
    if (!UpdateData(true)) return;
    const platform::FolderChoice choice =
        platform::Current().prompts.ChooseFileToOpen(L"", L"*.dll|*.dll|", CanonicalPath(directory + dllName));
    if (!choice.confirmed) return;
    dllName = FilePart(choice.path);
    UpdateData(false);
}

bool COptionPreviewPlugin::OnCommand(int id, int code) {
    if (id != IDC_PLUGIN_BROWSE || code != BN_CLICKED) return false;
    BrowseForDll();
    return true;
}

// The DLL is loaded once to see that it is a plug-in, and let go again with the local list.
void COptionPreviewPlugin::OnOK() {
    if (!UpdateData(true)) return;
    CPvPluginInfo check(platform::Current().system, app_.directories.ProgramDirectory());
    const int index = check.Add(dllName);
    if (index < 0) {
        platform::Current().prompts.ShowMessage(L"Not plugin file...", platform::kStyleOk);
        return;
    }
    if (extensions.empty()) {
        extensions = check[index].DefaultFilter(CPvPluginInfo::kCheckFilterUnits);
        UpdateData(false);
    }
    EndDialog(IDOK);
}
