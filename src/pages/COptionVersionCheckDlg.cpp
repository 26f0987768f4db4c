#include "pages/COptionVersionCheckDlg.h"

#include <oleauto.h>

#include <optional>

#include "app/AppServices.h"
#include "resources/pages/PageIds.h"
#include "services/CRuntime.h"
#include "services/Format.h"
#include "services/ProcessLaunch.h"
#include "settings/SettingsGroups.h"
#include "ui/DataExchange.h"

namespace {

constexpr uint16_t kAppInfoChanged = 49017;
constexpr wchar_t kLastCheckValue[] = L"VersionCheckTime";

// The stored date of the last check as the user's locale writes a date and time.
std::wstring LastCheckText(const std::wstring& stored) {
    const DATE date = crt::Wcstod(stored.c_str(), nullptr);
    BSTR text = nullptr;
    if (FAILED(VarBstrFromDate(date, LOCALE_USER_DEFAULT, 0, &text))) return L"Invalid DateTime";
    std::wstring result(text, SysStringLen(text));
    SysFreeString(text);
    return result;
}

// The date a reset goes back to, long before any check this program could have made. Empty when the
// system does not give back what it was handed.
std::optional<DATE> ResetDate() {
    SYSTEMTIME time{2015, 1, 0, 1, 1, 0, 0, 0};  // 2015-01-01 01:00:00
    DATE date = 0;
    if (!SystemTimeToVariantTime(&time, &date)) return std::nullopt;
    SYSTEMTIME back{};
    if (!VariantTimeToSystemTime(date, &back)) return std::nullopt;
    if (back.wYear != time.wYear || back.wMonth != time.wMonth || back.wDay != time.wDay ||
        back.wHour != time.wHour || back.wMinute != time.wMinute || back.wSecond != time.wSecond) {
        return std::nullopt;
    }
    return date;
}

}  // namespace

COptionVersionCheckDlg::COptionVersionCheckDlg(AppServices& app) : OptionPage(IDD_OPTION_VERSION_CHECK, app) {}

bool COptionVersionCheckDlg::LoadGroups() {
    LoadGroup(app().store, SettingsGroup::VersionCheck);
    return true;
}

void COptionVersionCheckDlg::DoDataExchange(ui::DataExchange& exchange) {
    SettingsStore& store = app().store;
    uint32_t days = static_cast<uint32_t>(store.VersionCheckDay);
    DDX_Text(exchange, IDC_VERSION_CHECK_DAYS, days);
    store.VersionCheckDay = static_cast<int32_t>(days);
    DDX_Check(exchange, IDC_VERSION_CHECK_BETA, store.VersionCheckBeta);
    if (!exchange.saving()) ShowLastCheck();
}

void COptionVersionCheckDlg::ShowLastCheck() const {
    SetDlgItemTextW(hwnd(), IDC_VERSION_CHECK_LAST, LastCheckText(app().store.VersionCheckTime).c_str());
}

// Stored at once, not by Apply: the host checks again at its next start.
void COptionVersionCheckDlg::ResetLastCheck() {
    const std::optional<DATE> date = ResetDate();
    if (!date) return;
    SettingsStore& store = app().store;
    store.VersionCheckTime = crt::Format(L"%lf", *date);
    store.SelectSection(L"AppInfo");
    store.WriteString(kLastCheckValue, store.VersionCheckTime);
    ShowLastCheck();
}

bool COptionVersionCheckDlg::OnCommand(int id, int code) {
    if (code != BN_CLICKED) return false;
    switch (id) {
        case IDC_VERSION_CHECK_RESET:
            ResetLastCheck();
            return true;
        case IDC_VERSION_CHECK_NOW:
            // A missing checker is the shell's to report.
            ShellLaunch(app().directories.ProgramDirectory() + L"VersionCheck.exe", L"/b", L"", false, SW_SHOWNORMAL);
            return true;
        default:
            return false;
    }
}

bool COptionVersionCheckDlg::Apply(PendingChanges& changes) {
    if (!UpdateData(true)) return false;
    SaveGroup(app().store, SettingsGroup::VersionCheck);
    changes.Record(kAppInfoChanged);
    return true;
}
