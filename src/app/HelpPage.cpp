#include "app/HelpPage.h"

#include <algorithm>

#include "platform/Platform.h"

namespace {

constexpr const wchar_t* kManualFolder = L"Manual\\";
constexpr uint32_t kShellMaskNoUi = 512;  // SEE_MASK_FLAG_NO_UI
constexpr int kShowNormal = 5;            // SW_SHOW

}  // namespace

void OpenHelpPage(const std::wstring& applicationRoot, std::wstring page) {
    std::replace(page.begin(), page.end(), L'/', L'\\');
    platform::Platform& os = platform::Current();
    os.processes.ExecuteShell(
        {kShellMaskNoUi, os.windows.MainWindow(), applicationRoot + kManualFolder + page, L"", L"", kShowNormal});
}
