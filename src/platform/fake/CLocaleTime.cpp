#include "platform/fake/CLocaleTime.h"

#include <cstdio>

namespace platform::fake {

namespace {

struct CivilTime {
    int64_t year;
    int month;  // 1-12
    int day;    // 1-31
    int hour, minute, second;
    int weekday;  // 0 Sunday
    int yearDay;  // 0-365
};

constexpr const wchar_t* kDays[] = {L"Sunday",   L"Monday", L"Tuesday", L"Wednesday",
                                    L"Thursday", L"Friday", L"Saturday"};
constexpr const wchar_t* kMonths[] = {L"January", L"February", L"March",     L"April",   L"May",      L"June",
                                      L"July",    L"August",   L"September", L"October", L"November", L"December"};

int64_t FloorDiv(int64_t a, int64_t b) {
    return a / b - ((a % b != 0) && ((a < 0) != (b < 0)));
}

bool IsLeap(int64_t year) {
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

// Seconds since 1970-01-01 to a proleptic Gregorian date and time.
CivilTime ToCivil(int64_t seconds) {
    CivilTime t{};
    int64_t days = FloorDiv(seconds, 86400);
    int64_t rest = seconds - days * 86400;
    t.hour = static_cast<int>(rest / 3600);
    t.minute = static_cast<int>(rest / 60 % 60);
    t.second = static_cast<int>(rest % 60);
    t.weekday = static_cast<int>(((days + 4) % 7 + 7) % 7);  // 1970-01-01 was a Thursday
    int64_t z = days + 719468;
    int64_t era = FloorDiv(z, 146097);
    int64_t dayOfEra = z - era * 146097;
    int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    int64_t mp = (5 * dayOfYear + 2) / 153;
    t.day = static_cast<int>(dayOfYear - (153 * mp + 2) / 5 + 1);
    t.month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    t.year = yearOfEra + era * 400 + (t.month <= 2);
    static const int before[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    t.yearDay = before[t.month - 1] + t.day - 1 + (t.month > 2 && IsLeap(t.year));
    return t;
}

std::wstring Number(int64_t value, int width) {
    wchar_t buffer[32];
    std::swprintf(buffer, 32, L"%0*lld", width, static_cast<long long>(value));
    return buffer;
}

bool Convert(wchar_t conversion, const CivilTime& t, std::wstring& out) {
    switch (conversion) {
        case L'a':
            out += std::wstring(kDays[t.weekday], 3);
            return true;
        case L'A':
            out += kDays[t.weekday];
            return true;
        case L'b':
            out += std::wstring(kMonths[t.month - 1], 3);
            return true;
        case L'B':
            out += kMonths[t.month - 1];
            return true;
        case L'c':
            Convert(L'x', t, out);
            out += L' ';
            return Convert(L'X', t, out);
        case L'd':
            out += Number(t.day, 2);
            return true;
        case L'H':
            out += Number(t.hour, 2);
            return true;
        case L'I':
            out += Number(t.hour % 12 == 0 ? 12 : t.hour % 12, 2);
            return true;
        case L'j':
            out += Number(t.yearDay + 1, 3);
            return true;
        case L'm':
            out += Number(t.month, 2);
            return true;
        case L'M':
            out += Number(t.minute, 2);
            return true;
        case L'p':
            out += t.hour < 12 ? L"AM" : L"PM";
            return true;
        case L'S':
            out += Number(t.second, 2);
            return true;
        case L'w':
            out += Number(t.weekday, 1);
            return true;
        case L'x':
            out += Number(t.month, 2) + L'/' + Number(t.day, 2) + L'/' + Number(t.year % 100, 2);
            return true;
        case L'X':
            out += Number(t.hour, 2) + L':' + Number(t.minute, 2) + L':' + Number(t.second, 2);
            return true;
        case L'y':
            out += Number(t.year % 100, 2);
            return true;
        case L'Y':
            out += Number(t.year, 1);
            return true;
        case L'%':
            out += L'%';
            return true;
        default:
            return false;
    }
}

}  // namespace

std::wstring FormatCLocaleTime(int64_t localSeconds, const std::wstring& format, size_t bufferChars) {
    const CivilTime t = ToCivil(localSeconds);
    std::wstring out;
    for (size_t i = 0; i < format.size(); ++i) {
        if (format[i] != L'%') {
            out += format[i];
            continue;
        }
        if (++i == format.size() || !Convert(format[i], t, out)) return std::wstring();
    }
    return out.size() < bufferChars ? out : std::wstring();
}

}  // namespace platform::fake
