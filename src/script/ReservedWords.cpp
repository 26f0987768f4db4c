#include "script/ReservedWords.h"

#include "services/CRuntime.h"

namespace {

// "skip" and "stop" do nothing but are kept back all the same.
constexpr const wchar_t* kReservedWords[] = {L"if",   L"endif", L"var",      L"goto",  L"exit", L"exitall",
                                             L"for",  L"next",  L"continue", L"break", L"skip", L"stop",
                                             L"else", L"while", L"do",       L"debug"};

}  // namespace

bool IsReservedWord(const std::wstring& name) {
    const std::wstring lowered = crt::MakeLower(name);
    for (const wchar_t* word : kReservedWords)
        if (lowered == word) return true;
    return false;
}
