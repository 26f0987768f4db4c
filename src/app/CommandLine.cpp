#include "app/CommandLine.h"

#include "services/CRuntime.h"

namespace {

// In the order the arguments are compared with them.
constexpr const wchar_t* kSwitches[] = {L"/E", L"/R", L"/D", L"/A", L"/G", L"/M", L"/T", L"/KEYLIST"};

int SwitchNumber(const std::wstring& argument) {
    std::wstring upper = crt::MakeUpper(argument);
    for (int i = 0; i < static_cast<int>(std::size(kSwitches)); ++i) {
        if (upper == kSwitches[i]) return i + 1;
    }
    return kSwitchNone;
}

}  // namespace

CommandLine ParseCommandLine(const std::vector<std::wstring>& arguments) {
    CommandLine line;
    for (const std::wstring& argument : arguments) {
        int number = SwitchNumber(argument);
        if (number == kSwitchNone) {
            line.file = argument;
            continue;
        }
        line.switchNumber = number;
        if (number == kSwitchKeyList) line.file = L"none";
    }
    return line;
}

int EffectiveSwitch(const CommandLine& line) {
    return line.file.empty() ? kSwitchNone : line.switchNumber;
}
