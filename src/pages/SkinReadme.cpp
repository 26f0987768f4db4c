#include "pages/SkinReadme.h"

#include <algorithm>
#include <memory>

#include "platform/Platform.h"
#include "services/LongPath.h"

namespace {

constexpr uint8_t kEscape = 27;
// A line reader's piece: the buffer holds this many units and its terminator.
constexpr size_t kPieceUnits = 32766;

bool StartsWith(std::span<const uint8_t> bytes, std::initializer_list<uint8_t> mark) {
    return bytes.size() >= mark.size() && std::equal(mark.begin(), mark.end(), bytes.begin());
}

uint32_t ByteOrderMark(std::span<const uint8_t> bytes) {
    if (StartsWith(bytes, {0xFE, 0xFF})) return kCodePageUtf16BigEndian;
    if (StartsWith(bytes, {0xFF, 0xFE})) {
        return bytes.size() >= 4 && bytes[2] == 0 && bytes[3] == 0 ? kCodePageUtf32 : kCodePageUtf16;
    }
    if (StartsWith(bytes, {0xEF, 0xBB, 0xBF})) return kCodePageUtf8;
    if (StartsWith(bytes, {0x00, 0x00, 0xFE, 0xFF})) return kCodePageUtf32BigEndian;
    return kCodePageUndecided;
}

// Control bytes and 7F/FF do not occur in any of the encodings told apart here.
bool HasForeignBytes(std::span<const uint8_t> bytes) {
    return std::any_of(bytes.begin(), bytes.end(), [](uint8_t b) { return b < 7 || b == 127 || b == 255; });
}

bool HasEightBitOrEscape(std::span<const uint8_t> bytes) {
    return std::any_of(bytes.begin(), bytes.end(), [](uint8_t b) { return b >= 128 || b == kEscape; });
}

bool HasIso2022Escape(std::span<const uint8_t> bytes) {
    const size_t n = bytes.size();
    for (size_t i = 0; i + 2 < n; ++i) {
        if (bytes[i] != kEscape) continue;
        const uint8_t a = bytes[i + 1];
        const uint8_t b = bytes[i + 2];
        if (a == '$' && (b == '@' || b == 'B')) return true;
        if (a == '(' && (b == 'B' || b == 'I' || b == 'J')) return true;
        if (i + 3 < n && a == '$' && b == '(' && bytes[i + 3] == 'D') return true;
        if (i + 5 < n && a == '&' && b == '@' && bytes[i + 3] == kEscape && bytes[i + 4] == '$' &&
            bytes[i + 5] == 'B') {
            return true;
        }
    }
    return false;
}

bool In(uint8_t b, uint8_t low, uint8_t high) {
    return b >= low && b <= high;
}

int ShiftJisScore(std::span<const uint8_t> bytes) {
    int score = 0;
    for (size_t i = 0; i + 1 < bytes.size();) {
        const uint8_t lead = bytes[i];
        const uint8_t trail = bytes[i + 1];
        if ((In(lead, 0x81, 0x9F) || In(lead, 0xE0, 0xFC)) && (In(trail, 0x40, 0x7E) || In(trail, 0x80, 0xFC))) {
            score += 2;
            i += 2;
        } else {
            ++i;
        }
    }
    return score;
}

int EucScore(std::span<const uint8_t> bytes) {
    const size_t n = bytes.size();
    int score = 0;
    for (size_t i = 0; i + 1 < n;) {
        const uint8_t b = bytes[i];
        if (In(b, 0xA1, 0xFE) && In(bytes[i + 1], 0xA1, 0xFE)) {
            score += 2;
            i += 2;
        } else if (b == 0x8E && In(bytes[i + 1], 0xA1, 0xDF)) {
            score += 2;
            i += 2;
        } else if (b == 0x8F && i + 2 < n && In(bytes[i + 1], 0xA1, 0xFE) && In(bytes[i + 2], 0xA1, 0xFE)) {
            score += 3;
            i += 3;
        } else {
            ++i;
        }
    }
    return score;
}

int Utf8Score(std::span<const uint8_t> bytes) {
    const size_t n = bytes.size();
    int score = 0;
    for (size_t i = 0; i + 1 < n;) {
        const uint8_t b = bytes[i];
        if (In(b, 0xC0, 0xDF) && In(bytes[i + 1], 0x80, 0xBF)) {
            score += 2;
            i += 2;
        } else if (In(b, 0xE0, 0xEF) && i + 2 < n && In(bytes[i + 1], 0x80, 0xBF) && In(bytes[i + 2], 0x80, 0xBF)) {
            score += 3;
            i += 3;
        } else {
            ++i;
        }
    }
    return score;
}

std::vector<uint8_t> BytesOf(const std::wstring& units) {
    std::vector<uint8_t> bytes;
    bytes.reserve(units.size() * 2);
    for (wchar_t unit : units) {
        bytes.push_back(static_cast<uint8_t>(unit & 0xFF));
        bytes.push_back(static_cast<uint8_t>((unit >> 8) & 0xFF));
    }
    return bytes;
}

}  // namespace

uint32_t DetectCodePage(std::span<const uint8_t> bytes) {
    if (uint32_t marked = ByteOrderMark(bytes); marked != kCodePageUndecided) return marked;
    if (HasForeignBytes(bytes) || !HasEightBitOrEscape(bytes)) return kCodePageUndecided;
    if (HasIso2022Escape(bytes)) return kCodePageIso2022Jp;
    const int shiftJis = ShiftJisScore(bytes);
    const int euc = EucScore(bytes);
    const int utf8 = Utf8Score(bytes);
    if (euc > shiftJis && euc > utf8) return kCodePageEucJp;
    if (shiftJis > euc && shiftJis > utf8) return kCodePageShiftJis;
    if (utf8 > euc && utf8 > shiftJis) return kCodePageUtf8;
    return kCodePageUndecided;
}

std::wstring RawUnits(std::span<const uint8_t> fileBytes) {
    std::wstring text;
    std::wstring piece;
    auto flush = [&] {
        text += piece.substr(0, piece.find(L'\0'));
        piece.clear();
    };
    for (size_t i = 0; i + 1 < fileBytes.size(); i += 2) {
        const wchar_t unit = static_cast<wchar_t>(fileBytes[i] | (fileBytes[i + 1] << 8));
        piece.push_back(unit);
        if (unit == L'\n' || piece.size() == kPieceUnits) flush();
    }
    flush();
    return text;
}

std::wstring DecodeReadme(const std::wstring& raw, platform::CodePages& codePages) {
    if (raw.empty()) return raw;
    const std::vector<uint8_t> bytes = BytesOf(raw);
    uint32_t codePage = DetectCodePage(bytes);
    if (codePage == kCodePageUndecided) {
        std::optional<uint32_t> guess = codePages.DetectInputCodepage(bytes);
        if (!guess) return raw;
        codePage = *guess;
    }
    if (codePage == kCodePageUtf16) return raw;
    std::optional<std::wstring> text = codePages.ConvertToUnicode(codePage, bytes, bytes.size() * 4);
    return text ? *text : raw;
}

std::wstring ReadSkinReadme(const std::wstring& folder) {
    platform::Platform& system = platform::Current();
    std::unique_ptr<platform::File> file =
        system.files.Open(ToLongPathForm(folder + L"Readme.txt"), platform::FileAccess::Read, false);
    if (!file) return {};
    std::vector<uint8_t> bytes;
    uint8_t buffer[65536];
    while (size_t got = file->Read(buffer, sizeof(buffer))) bytes.insert(bytes.end(), buffer, buffer + got);
    return DecodeReadme(RawUnits(bytes), system.codePages);
}
