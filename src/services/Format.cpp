#include "services/Format.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>

namespace crt {

uint64_t FormatArg::Bits() const {
    switch (kind_) {
        case Kind::Integer:
            return bits_;
        case Kind::Double:
            return std::bit_cast<uint64_t>(double_);
        case Kind::String:
            return text_ ? 1 : 0;
    }
    return 0;
}

double FormatArg::AsDouble() const {
    return kind_ == Kind::Double ? double_ : std::bit_cast<double>(Bits());
}

namespace {

// Width and precision beyond this are taken as this; nobody prints a megabyte on purpose.
constexpr int kMaxField = 1 << 20;

enum class Size { Default, Char, Short, Long, Wide64, Pointer };

struct Spec {
    bool left = false, plus = false, space = false, zero = false, alternate = false;
    int width = 0;
    int precision = -1;
    Size size = Size::Default;
    wchar_t conversion = 0;
};

std::wstring Widen(std::string_view text) {
    return std::wstring(text.begin(), text.end());
}

void Uppercase(std::wstring& text) {
    for (wchar_t& c : text)
        if (c >= L'a' && c <= L'z') c = static_cast<wchar_t>(c - 32);
}

class Formatter {
public:
    explicit Formatter(std::span<const FormatArg> args) : args_(args) {}

    std::wstring Run(const wchar_t* format) {
        for (const wchar_t* p = format; p && *p;) {
            if (*p != L'%') {
                out_ += *p++;
                continue;
            }
            if (p[1] == L'%') {
                out_ += L'%';
                p += 2;
                continue;
            }
            Spec spec;
            p = ParseSpec(p + 1, spec);
            if (!spec.conversion) break;
            Convert(spec);
        }
        return std::move(out_);
    }

private:
    FormatArg Next() { return next_ < args_.size() ? args_[next_++] : FormatArg(0); }

    int NextInt() { return static_cast<int32_t>(static_cast<uint32_t>(Next().Bits())); }

    const wchar_t* ParseSpec(const wchar_t* p, Spec& spec) {
        for (;; ++p) {
            if (*p == L'-')
                spec.left = true;
            else if (*p == L'+')
                spec.plus = true;
            else if (*p == L' ')
                spec.space = true;
            else if (*p == L'#')
                spec.alternate = true;
            else if (*p == L'0')
                spec.zero = true;
            else
                break;
        }
        if (*p == L'*') {
            ++p;
            int width = NextInt();
            if (width < 0) {
                spec.left = true;
                width = width == INT32_MIN ? kMaxField : -width;
            }
            spec.width = std::min(width, kMaxField);
        } else {
            for (; *p >= L'0' && *p <= L'9'; ++p) spec.width = std::min(spec.width * 10 + (*p - L'0'), kMaxField);
        }
        if (*p == L'.') {
            ++p;
            spec.precision = 0;
            if (*p == L'*') {
                ++p;
                int precision = NextInt();
                spec.precision = precision < 0 ? -1 : std::min(precision, kMaxField);
            } else {
                for (; *p >= L'0' && *p <= L'9'; ++p)
                    spec.precision = std::min(spec.precision * 10 + (*p - L'0'), kMaxField);
            }
        }
        p = ParseSize(p, spec);
        spec.conversion = *p;
        return *p ? p + 1 : p;
    }

    static const wchar_t* ParseSize(const wchar_t* p, Spec& spec) {
        switch (*p) {
            case L'h':
                if (p[1] == L'h') {
                    spec.size = Size::Char;
                    return p + 2;
                }
                spec.size = Size::Short;
                return p + 1;
            case L'l':
                if (p[1] == L'l') {
                    spec.size = Size::Wide64;
                    return p + 2;
                }
                spec.size = Size::Long;
                return p + 1;
            case L'I':
                if (p[1] == L'6' && p[2] == L'4') {
                    spec.size = Size::Wide64;
                    return p + 3;
                }
                if (p[1] == L'3' && p[2] == L'2') {
                    spec.size = Size::Long;
                    return p + 3;
                }
                spec.size = Size::Pointer;
                return p + 1;
            case L'j':
            case L'z':
            case L't':
                spec.size = Size::Pointer;
                return p + 1;
            case L'w':
                spec.size = Size::Long;
                return p + 1;
            case L'L':
                return p + 1;
            default:
                return p;
        }
    }

    void Convert(const Spec& spec) {
        switch (spec.conversion) {
            case L'd':
            case L'i':
            case L'u':
            case L'o':
            case L'x':
            case L'X':
                Integer(spec);
                break;
            case L'p': {
                Spec pointer = spec;
                pointer.precision = 16;
                pointer.size = Size::Wide64;
                pointer.conversion = L'X';
                pointer.alternate = false;
                Integer(pointer);
                break;
            }
            case L'c':
            case L'C':
                Character(spec);
                break;
            case L's':
            case L'S':
            case L'Z':
                String(spec);
                break;
            case L'f':
            case L'F':
            case L'e':
            case L'E':
            case L'g':
            case L'G':
            case L'a':
            case L'A':
                Floating(spec);
                break;
            case L'n':
            case L'%':
                break;
            default:
                out_ += spec.conversion;
                break;
        }
    }

    // Writes prefix and body into the field; zeros go between them when asked and allowed.
    void Emit(const Spec& spec, std::wstring_view prefix, std::wstring_view body, bool zeroPad) {
        size_t length = prefix.size() + body.size();
        size_t pad = static_cast<size_t>(spec.width) > length ? spec.width - length : 0;
        bool zeros = zeroPad && spec.zero && !spec.left;
        if (!spec.left && !zeros) out_.append(pad, L' ');
        out_ += prefix;
        if (zeros) out_.append(pad, L'0');
        out_ += body;
        if (spec.left) out_.append(pad, L' ');
    }

    void Integer(const Spec& spec) {
        uint64_t bits = Next().Bits();
        int width = spec.size == Size::Char                                   ? 8
                    : spec.size == Size::Short                                ? 16
                    : spec.size == Size::Wide64 || spec.size == Size::Pointer ? 64
                                                                              : 32;
        if (width < 64) bits &= (uint64_t(1) << width) - 1;
        bool isSigned = spec.conversion == L'd' || spec.conversion == L'i';
        bool negative = isSigned && (bits >> (width - 1)) & 1;
        uint64_t magnitude = negative ? (width < 64 ? (uint64_t(1) << width) - bits : 0 - bits) : bits;

        int base = spec.conversion == L'o' ? 8 : spec.conversion == L'x' || spec.conversion == L'X' ? 16 : 10;
        const char* digitChars = spec.conversion == L'X' ? "0123456789ABCDEF" : "0123456789abcdef";
        std::wstring digits;
        for (uint64_t v = magnitude; v; v /= base) digits.insert(digits.begin(), digitChars[v % base]);
        size_t precision = spec.precision < 0 ? 1 : static_cast<size_t>(spec.precision);
        if (digits.size() < precision) digits.insert(0, precision - digits.size(), L'0');

        std::wstring prefix;
        if (isSigned) {
            if (negative)
                prefix = L"-";
            else if (spec.plus)
                prefix = L"+";
            else if (spec.space)
                prefix = L" ";
        } else if (spec.alternate && magnitude != 0) {
            if (base == 16)
                prefix = spec.conversion == L'X' ? L"0X" : L"0x";
            else if (base == 8 && digits[0] != L'0')
                digits.insert(digits.begin(), L'0');
        }
        Emit(spec, prefix, digits, true);
    }

    void Character(const Spec& spec) {
        uint64_t bits = Next().Bits();
        bool narrow = spec.conversion == L'C' ? spec.size != Size::Long : spec.size == Size::Short;
        wchar_t c = static_cast<wchar_t>(narrow ? bits & 0xFF : bits & 0xFFFF);
        // A precision of 0 cuts the character like a one-character string.
        Emit(spec, {}, std::wstring_view(&c, spec.precision == 0 ? 0 : 1), true);
    }

    void String(const Spec& spec) {
        const wchar_t* text = Next().AsText();
        std::wstring_view view = text ? std::wstring_view(text) : std::wstring_view(L"(null)");
        if (spec.precision >= 0 && view.size() > static_cast<size_t>(spec.precision))
            view = view.substr(0, spec.precision);
        Emit(spec, {}, view, true);
    }

    void Floating(const Spec& spec) {
        double value = Next().AsDouble();
        wchar_t conversion = spec.conversion;
        bool upper = conversion == L'F' || conversion == L'E' || conversion == L'G' || conversion == L'A';
        std::wstring prefix = std::signbit(value) ? L"-" : spec.plus ? L"+" : spec.space ? L" " : L"";
        std::wstring body;
        if (!std::isfinite(value)) {
            body = NonFinite(value);
            if (upper) Uppercase(body);
            Emit(spec, prefix, body, false);
            return;
        }
        value = std::fabs(value);
        switch (conversion) {
            case L'f':
            case L'F':
                body = Fixed(value, spec.precision < 0 ? 6 : spec.precision, spec.alternate);
                break;
            case L'e':
            case L'E':
                body = Scientific(value, spec.precision < 0 ? 6 : spec.precision, spec.alternate);
                break;
            case L'g':
            case L'G':
                body = General(value, spec.precision, spec.alternate);
                break;
            default:
                prefix += L"0x";
                body = Hexadecimal(value, spec.precision, spec.alternate);
                break;
        }
        if (upper) {
            Uppercase(prefix);
            Uppercase(body);
        }
        Emit(spec, prefix, body, true);
    }

    static std::wstring NonFinite(double value) {
        if (std::isinf(value)) return L"inf";
        uint64_t bits = std::bit_cast<uint64_t>(value);
        uint64_t mantissa = bits & ((uint64_t(1) << 52) - 1);
        if (std::signbit(value) && mantissa == uint64_t(1) << 51) return L"nan(ind)";
        if (!(mantissa & (uint64_t(1) << 51))) return L"nan(snan)";
        return L"nan";
    }

    static std::string ToChars(double value, std::chars_format format, int precision) {
        std::string buffer(static_cast<size_t>(precision) + 400, '\0');
        auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
        buffer.resize(result.ptr - buffer.data());
        return buffer;
    }

    static std::wstring Fixed(double value, int precision, bool alternate) {
        std::wstring text = Widen(ToChars(value, std::chars_format::fixed, precision));
        if (alternate && precision == 0) text += L'.';
        return text;
    }

    static std::wstring Scientific(double value, int precision, bool alternate) {
        std::wstring text = Widen(ToChars(value, std::chars_format::scientific, precision));
        if (alternate && precision == 0) text.insert(text.find(L'e'), 1, L'.');
        return text;
    }

    static std::wstring General(double value, int precision, bool alternate) {
        int significant = precision < 0 ? 6 : precision == 0 ? 1 : precision;
        std::string probe = ToChars(value, std::chars_format::scientific, significant - 1);
        int exponent = std::stoi(probe.substr(probe.find('e') + 1));
        std::wstring text = significant > exponent && exponent >= -4 ? Fixed(value, significant - 1 - exponent, false)
                                                                     : Scientific(value, significant - 1, false);
        size_t e = text.find(L'e');
        std::wstring tail = e == std::wstring::npos ? L"" : text.substr(e);
        std::wstring head = text.substr(0, text.size() - tail.size());
        if (alternate) {
            if (head.find(L'.') == std::wstring::npos) head += L'.';
        } else if (head.find(L'.') != std::wstring::npos) {
            head.erase(head.find_last_not_of(L'0') + 1);
            if (head.back() == L'.') head.pop_back();
        }
        return head + tail;
    }

    // The digits after "0x": one leading digit, the fraction rounded to the precision (ties to
    // even), "p" and the binary exponent. A carry shows as a leading 2, the way the runtime has it.
    static std::wstring Hexadecimal(double value, int precision, bool alternate) {
        uint64_t bits = std::bit_cast<uint64_t>(value);
        int biased = static_cast<int>((bits >> 52) & 0x7FF);
        uint64_t fraction = bits & ((uint64_t(1) << 52) - 1);
        uint64_t lead = biased ? 1 : 0;
        int exponent = biased ? biased - 1023 : fraction ? -1022 : 0;
        int digits = precision < 0 ? 13 : precision;
        if (digits < 13) {
            int shift = (13 - digits) * 4;
            uint64_t rest = fraction & ((uint64_t(1) << shift) - 1), half = uint64_t(1) << (shift - 1);
            fraction >>= shift;
            uint64_t kept = digits ? fraction : lead;
            if (rest > half || (rest == half && (kept & 1))) ++fraction;
            if (digits == 0 || fraction >> (digits * 4)) {
                lead += digits == 0 ? fraction : 1;
                fraction = 0;
            }
        }
        std::wstring text(1, static_cast<wchar_t>(L'0' + lead));
        if (digits > 0 || alternate) text += L'.';
        static const char hex[] = "0123456789abcdef";
        for (int i = 0; i < digits; ++i) {
            int shift = (std::min(digits, 13) - 1 - i) * 4;
            text += i < 13 ? static_cast<wchar_t>(hex[(fraction >> shift) & 0xF]) : L'0';
        }
        text += exponent < 0 ? L"p-" : L"p+";
        text += std::to_wstring(std::abs(exponent));
        return text;
    }

    std::span<const FormatArg> args_;
    size_t next_ = 0;
    std::wstring out_;
};

}  // namespace

std::wstring FormatV(const wchar_t* format, std::span<const FormatArg> args) {
    return Formatter(args).Run(format);
}

}  // namespace crt
