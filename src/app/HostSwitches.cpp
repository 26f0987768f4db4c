#include "app/HostSwitches.h"

#include <vector>

#include "services/CRuntime.h"
#include "services/Tokenizer.h"

HostSwitches ParseHostSwitches(const std::wstring& text) {
    HostSwitches switches;
    std::vector<std::wstring> fields;
    if (Tokenize(fields, text, L':', false, true) != 10) return switches;
    switches.valid = true;
    switches.windowMode = crt::Wtoi(fields[0]);
    switches.reactivate = crt::Wtoi(fields[1]);
    switches.blockFirst = crt::Wtoi(fields[2]);
    switches.blockSecond = crt::Wtoi(fields[3]);
    switches.blockSize = crt::Wtoi(fields[4]);
    switches.share = fields[8] == L"Share";
    return switches;
}
