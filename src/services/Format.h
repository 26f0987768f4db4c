// printf-style formatting as the framework's CString::Format does it with the C runtime's wide
// printf: %s in a wide format is a wide string, %c a wide character, and doubles come out exactly
// (the full decimal expansion for %f, ties between two outputs to the even one).
// Arguments are tagged values, so a conversion that does not fit its argument prints something
// harmless instead of reading the wrong thing off the stack.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace crt {

class FormatArg {
public:
    enum class Kind { Integer, Double, String };

    template <typename T>
    requires std::is_integral_v<T> FormatArg(T value)
        : kind_(Kind::Integer), bits_(static_cast<uint64_t>(static_cast<int64_t>(value))) {
        if constexpr (std::is_unsigned_v<T>) bits_ = static_cast<uint64_t>(value);
    }
    template <typename T>
    requires std::is_enum_v<T> FormatArg(T value) : FormatArg(static_cast<std::underlying_type_t<T>>(value)) {}
    FormatArg(double value) : kind_(Kind::Double), double_(value) {}
    FormatArg(float value) : FormatArg(static_cast<double>(value)) {}
    FormatArg(const wchar_t* text) : kind_(Kind::String), text_(text) {}
    FormatArg(wchar_t* text) : FormatArg(static_cast<const wchar_t*>(text)) {}
    FormatArg(std::nullptr_t) : FormatArg(static_cast<const wchar_t*>(nullptr)) {}
    FormatArg(const std::wstring& text) : kind_(Kind::String), text_(text.c_str()) {}

    Kind kind() const { return kind_; }
    // The 64 bits a varargs callee would find: integers sign-extended, doubles as their bit
    // pattern, strings as a non-zero token (zero for a null string).
    uint64_t Bits() const;
    // The value a %f would find: doubles as they are, integers by their bit pattern.
    double AsDouble() const;
    // The text a %s would find; null for anything but a non-null string.
    const wchar_t* AsText() const { return kind_ == Kind::String ? text_ : nullptr; }

private:
    Kind kind_;
    uint64_t bits_ = 0;
    double double_ = 0;
    const wchar_t* text_ = nullptr;
};

std::wstring FormatV(const wchar_t* format, std::span<const FormatArg> args);

template <typename... Args>
std::wstring Format(const wchar_t* format, const Args&... args) {
    const std::array<FormatArg, sizeof...(Args)> list{FormatArg(args)...};
    return FormatV(format, list);
}

}  // namespace crt
