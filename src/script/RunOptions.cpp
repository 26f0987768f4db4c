#include "script/RunOptions.h"

#include <variant>

#include "services/CRuntime.h"
#include "services/Format.h"

namespace {

struct OptionRow {
    const wchar_t* key;
    const wchar_t* defaultText;
    std::variant<std::wstring RunOptions::*, int32_t RunOptions::*, bool RunOptions::*> member;
};

const OptionRow kOptionRows[] = {
    {L"commandlineoption", L"", &RunOptions::commandLineOption},
    {L"bootdir", L"", &RunOptions::bootDir},
    {L"bootmode", L"0", &RunOptions::bootMode},
    {L"showwindow", L"1", &RunOptions::showWindow},
    {L"timeout", L"-1", &RunOptions::timeout},
    {L"runwait", L"0", &RunOptions::runWait},
    {L"sendinfomode", L"0", &RunOptions::sendInfoMode},
    {L"multicommandmode", L"0", &RunOptions::multiCommandMode},
    {L"shiftsilentmode", L"1", &RunOptions::shiftSilentMode},
    {L"filter", L"", &RunOptions::filter},
    {L"exitloopcount", L"5", &RunOptions::exitLoopCount},
    {L"checkgrammar", L"0", &RunOptions::checkGrammar},
    {L"openmode", L"0", &RunOptions::openMode},
};

struct Reader {
    RunOptions& options;
    const std::wstring& text;
    void operator()(std::wstring RunOptions::*member) const { options.*member = text; }
    void operator()(int32_t RunOptions::*member) const { options.*member = crt::Wtoi(text); }
    void operator()(bool RunOptions::*member) const { options.*member = crt::Wtoi(text) == 1; }
};

// The text the table keeps for a value read from text.
struct Normaliser {
    const std::wstring& text;
    std::wstring operator()(std::wstring RunOptions::*) const { return text; }
    std::wstring operator()(int32_t RunOptions::*) const { return crt::Format(L"%d", crt::Wtoi(text)); }
    std::wstring operator()(bool RunOptions::*) const { return crt::Wtoi(text) == 1 ? L"1" : L"0"; }
};

}  // namespace

void FillRunOptionDefaults(RunOptionTable& table) {
    for (const OptionRow& row : kOptionRows) table.Set(row.key, row.defaultText);
}

RunOptions ReadRunOptions(const RunOptionTable& table) {
    RunOptions options;
    for (const OptionRow& row : kOptionRows) {
        const std::wstring* text = table.Find(row.key);
        std::visit(Reader{options, text ? *text : std::wstring()}, row.member);
    }
    return options;
}

bool SetRunOption(RunOptionTable& table, RunOptions& options, const std::wstring& key, const std::wstring& text) {
    for (const OptionRow& row : kOptionRows) {
        if (key != row.key) continue;
        const std::wstring kept = std::visit(Normaliser{text}, row.member);
        table.Set(row.key, kept);
        std::visit(Reader{options, kept}, row.member);
        return true;
    }
    return false;
}
