#include "settings/PathRoots.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "services/CRuntime.h"
#include "services/PathHelpers.h"

namespace {

using Row = std::pair<std::wstring, std::wstring>;  // token or variable, and what it stands for

// In the order of expansion and of the search when compressing.
std::vector<Row> TokenRows(UserDirectories& directories) {
    const std::wstring user = directories.UserDirectory();
    const std::wstring root = directories.ApplicationRoot();
    return {
        {L"%Script_dir%", user + L"Script\\"},
        {L"%User_dir%", user},
        {L"%Menu_dir%", user + L"Menu\\"},
        {L"%App_Dir%", root},
        {L"%CMD_Dir%", root + L"command\\Default\\"},
        {L"%CmdPlugin_Dir%", root + L"command\\CmdPlugin\\"},
        {L"%Viewer_Dir%", root + L"command\\Viewer\\"},
        {L"%UserCmd_Dir%", root + L"command\\User\\"},
    };
}

// "%USERPROFILE%" stands twice, as it always has.
constexpr const wchar_t* kEnvironmentNames[] = {
    L"%COMPUTERNAME%",
    L"%ComSpec%",
    L"%HOMEDRIVE%",
    L"%HOMEPATH%",
    L"%USERPROFILE%",
    L"%OS%",
    L"%SystemDrive%",
    L"%SystemRoot%",
    L"%TMP%",
    L"%TEMP%",
    L"%windir%",
    L"%ALLUSERSPROFILE%",
    L"%APPDATA%",
    L"%LOGONSERVER%",
    L"%PSModulePath%",
    L"%PUBLIC%",
    L"%SESSIONNAME%",
    L"%USERDOMAIN%",
    L"%username%",
    L"%USERPROFILE%",
    L"%CommonProgramFiles%",
    L"%CommonProgramFiles(x86)%",
    L"%ProgramFiles%",
    L"%ProgramFiles(x86)%",
};

}  // namespace

std::wstring ExpandDirectoryMacros(const std::wstring& text, UserDirectories& directories) {
    // Every token and every variable is written between percent signs; scripts expand most lines.
    if (text.find(L'%') == std::wstring::npos) return text;
    std::wstring expanded = ExpandEnvironment(text);
    for (const Row& row : TokenRows(directories)) crt::Replace(expanded, row.first, row.second);
    return expanded;
}

std::wstring TextToMacroPath(const std::wstring& text, UserDirectories& directories) {
    std::wstring result = text;
    const std::wstring lowered = crt::MakeLower(text);
    for (const Row& row : TokenRows(directories)) {
        size_t at = lowered.find(crt::MakeLower(row.second));
        if (at == std::wstring::npos) continue;
        crt::Replace(result, text.substr(at, row.second.size()), row.first);
        break;
    }
    return TextToEnvironmentPath(result);
}

std::wstring TextToEnvironmentPath(const std::wstring& text) {
    std::vector<Row> rows;
    for (const wchar_t* name : kEnvironmentNames) rows.emplace_back(name, crt::MakeLower(ExpandEnvironment(name)));
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Row& a, const Row& b) { return a.second.size() > b.second.size(); });
    // The text in pieces: what was written, and the names already put in. A later row leaves those
    // names alone, or a value found inside one ("user" in "%USERPROFILE%") would grow the text for ever.
    struct Piece {
        std::wstring text;
        bool name;
    };
    std::vector<Piece> pieces{{text, false}};
    for (const Row& row : rows) {
        if (row.second.empty()) continue;
        std::vector<Piece> next;
        for (Piece& piece : pieces) {
            if (piece.name) {
                next.push_back(std::move(piece));
                continue;
            }
            const std::wstring lowered = crt::MakeLower(piece.text);
            size_t from = 0;
            for (size_t at; (at = lowered.find(row.second, from)) != std::wstring::npos;
                 from = at + row.second.size()) {
                next.push_back({piece.text.substr(from, at - from), false});
                next.push_back({row.first, true});
            }
            next.push_back({piece.text.substr(from), false});
        }
        pieces = std::move(next);
    }
    std::wstring result;
    for (const Piece& piece : pieces) result += piece.text;
    return result;
}
