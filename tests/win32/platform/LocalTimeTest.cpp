// Times as the C runtime writes them: the real environment against wcsftime itself, and the fake
// clock's "C" locale formats against the runtime on the same instants.
#include <gtest/gtest.h>

#include <ctime>

#include "platform/fake/CLocaleTime.h"
#include "platform/win32/Win32Environment.h"
#include "win32/services/Differential.h"

namespace {

using differential::Generator;
using differential::Mismatches;
using differential::Narrow;

constexpr const wchar_t* kFormats[] = {L"%Y-%m-%d", L"%H-%M-%S", L"%a",
                                       L"%A",       L"%c",       L"%b %B %d %I %j %p %w %x %X %y %%"};

std::wstring RuntimeFormat(const struct tm& time, const wchar_t* format) {
    std::vector<wchar_t> buffer(128, 0);
    size_t length = wcsftime(buffer.data(), buffer.size(), format, &time);
    return std::wstring(buffer.data(), length);
}

TEST(LocalTime, TheCLocaleFormatsMatchTheRuntime) {
    std::vector<int64_t> instants = {0,          86399,      951782400,  951868799,  978307199,
                                     1709647629, 4107542400, 4102444799, 32503679999};
    Generator g(20241122);
    for (int i = 0; i < 3000; ++i) instants.push_back(static_cast<int64_t>(g.engine()() % 32503680000ull));
    Mismatches mismatches;
    for (int64_t instant : instants) {
        const __time64_t value = instant;
        struct tm utc = {};
        ASSERT_EQ(0, _gmtime64_s(&utc, &value)) << instant;
        for (const wchar_t* format : kFormats) {
            const std::wstring expected = RuntimeFormat(utc, format);
            const std::wstring ours = platform::fake::FormatCLocaleTime(instant, format, 128);
            if (expected != ours)
                mismatches.Add(std::to_string(instant) + " " + Narrow(format) + ": runtime \"" + Narrow(expected) +
                               "\" ours \"" + Narrow(ours) + "\"");
        }
    }
    EXPECT_EQ(0u, mismatches.count()) << mismatches.Report();
}

TEST(LocalTime, TheRealEnvironmentIsTheRuntimesLocalTime) {
    platform::win32::Win32Environment environment;
    for (int attempt = 0; attempt < 3; ++attempt) {
        const __time64_t before = _time64(nullptr);
        const int64_t now = environment.CurrentTime();
        if (now != before) continue;
        struct tm local = {};
        ASSERT_EQ(0, _localtime64_s(&local, &before));
        for (const wchar_t* format : kFormats)
            EXPECT_EQ(RuntimeFormat(local, format), environment.FormatLocalTime(now, format, 128)) << Narrow(format);
        EXPECT_EQ(L"", environment.FormatLocalTime(now, L"", 128));
        return;
    }
    FAIL() << "the clock never stood still for a moment";
}

}  // namespace
