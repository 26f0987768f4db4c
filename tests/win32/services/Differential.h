// Shared by the differential tests: the reference functions of the system's C runtime, a fixed
// random source, and a collector that reports the first mismatches with their inputs in hex.
#pragma once

#include <windows.h>

#include <cstdio>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace differential {

// The universal C runtime, loaded once for the process.
inline HMODULE Ucrt() {
    static HMODULE module = LoadLibraryW(L"ucrtbase.dll");
    return module;
}

template <typename Function>
Function Reference(const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(Ucrt(), name)));
}

// A wrong argument makes the runtime call its invalid-parameter handler, which by default ends
// the process; the tests want the return value instead.
inline void QuietInvalidParameters() {
    using Handler = void(__cdecl*)(const wchar_t*, const wchar_t*, const wchar_t*, unsigned, uintptr_t);
    using Setter = Handler(__cdecl*)(Handler);
    static bool done = false;
    if (done) return;
    done = true;
    if (auto set = Reference<Setter>("_set_invalid_parameter_handler"))
        set([](const wchar_t*, const wchar_t*, const wchar_t*, unsigned, uintptr_t) {});
}

inline std::string Hex(std::wstring_view text) {
    std::ostringstream out;
    out << '[';
    for (size_t i = 0; i < text.size(); ++i) {
        char unit[8];
        snprintf(unit, sizeof unit, "%s%04X", i ? " " : "", static_cast<unsigned>(text[i]) & 0xFFFF);
        out << unit;
    }
    out << ']';
    return out.str();
}

inline std::string Narrow(std::wstring_view text) {
    std::string result;
    for (wchar_t c : text) result += c >= 0x20 && c < 0x7F ? static_cast<char>(c) : '?';
    return result;
}

// Counts mismatches and keeps the first few descriptions.
class Mismatches {
public:
    void Add(const std::string& description) {
        if (count_++ < 12) first_.push_back(description);
    }
    size_t count() const { return count_; }
    std::string Report() const {
        std::string text;
        for (const auto& line : first_) text += "  " + line + "\n";
        return text;
    }

private:
    size_t count_ = 0;
    std::vector<std::string> first_;
};

class Generator {
public:
    explicit Generator(uint32_t seed) : random_(seed) {}
    uint32_t Below(uint32_t n) { return static_cast<uint32_t>(random_() % n); }
    bool Chance(uint32_t percent) { return Below(100) < percent; }
    template <typename T, size_t N>
    const T& Pick(const T (&items)[N]) {
        return items[Below(N)];
    }
    std::mt19937& engine() { return random_; }

private:
    std::mt19937 random_;
};

}  // namespace differential
