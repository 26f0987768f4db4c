// The editor's check of one line against the keyword table, and the load test's refusal.
#include <algorithm>

#include "definitions/CommandCatalog.h"
#include "definitions/MenuDefinition.h"
#include "platform/Platform.h"
#include "services/CRuntime.h"
#include "services/CaseCompare.h"
#include "services/Tokenizer.h"
#include "settings/PathRoots.h"

namespace {

constexpr size_t kCheckTextLimit = 250;

bool IsPathKind(uint32_t kind) {
    return kind == kMenuArgumentDirectory || kind == kMenuArgumentFile;
}

std::wstring CheckPath(const std::wstring& stored, const wchar_t* virtualText, UserDirectories& directories) {
    const std::wstring path = ExpandDirectoryMacros(stored, directories);
    if (path.starts_with(L"::")) return virtualText;
    const bool exists = platform::Current().files.GetAttributes(path) != platform::kInvalidAttributes;
    return (exists ? L"Exist:" : L"Not found:") + path;
}

bool IsOneOf(const std::wstring& word, std::initializer_list<const wchar_t*> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](const wchar_t* w) { return crt::EqualCollatingNoCase(word, w); });
}

uint16_t CommandId(const std::wstring& text) {
    return static_cast<uint16_t>(crt::Wtoi(text));
}

std::wstring CommandNames(const std::wstring& ids, const CommandCatalog& commands,
                          const platform::ResourceLibrary* library) {
    std::vector<std::wstring> parts;
    Tokenize(parts, ids, L',', false, true);
    std::wstring names;
    for (const std::wstring& part : parts) {
        const std::wstring name = commands.GetCommandString(CommandId(part), library);
        if (name.empty()) continue;
        if (!names.empty()) names += L',';
        names += name;
    }
    return names.substr(0, std::min(names.size(), kCheckTextLimit));
}

}  // namespace

std::wstring CheckMenuLine(const MenuLine& line, const CommandCatalog& commands,
                           const platform::ResourceLibrary* library, UserDirectories& directories) {
    for (int row = 0; row < kMenuKeywordCount; ++row) {
        const MenuKeywordRow& keyword = MenuKeywordTable[row];
        if (!crt::EqualCollatingNoCase(line.command, keyword.keyword)) continue;
        if (IsPathKind(keyword.firstKind)) return CheckPath(line.text, L"Virtual item", directories);
        if (IsPathKind(keyword.secondKind)) return CheckPath(line.target, L"Virtual folder", directories);
        if (keyword.firstKind == kMenuArgumentPosition) {
            if (IsOneOf(line.text, {L"DESKTOP", L"PAERNT", L"MOUSE", L"MAIN"})) continue;
            return L"Syntax error(DESKTOP/PAERNT/MOUSE/MAIN)";
        }
        if (keyword.firstKind == kMenuArgumentOnOff) {
            if (line.text == L"ON" || line.text == L"OFF") continue;
            return L"Syntax error(ON/OFF)";
        }
        if (row == kMenuKeywordMenuItem) {
            return line.target.empty() ? L"" : commands.GetCommandString(CommandId(line.target), library);
        }
        if (row == kMenuKeywordMultiple) return CommandNames(line.target, commands, library);
    }
    return L"";
}

bool MenuTestRefused(const MenuRows& rows) {
    for (int row = 0; row < rows.Count(); ++row) {
        if (crt::EqualCollatingNoCase(rows.Line(row).command, MenuKeywordTable[kMenuKeywordWildcard].keyword)) {
            return true;
        }
    }
    return false;
}
