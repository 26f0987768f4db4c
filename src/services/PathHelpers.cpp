#include "services/PathHelpers.h"

#include "platform/Platform.h"

namespace {

constexpr wchar_t kOddSeparator = 0x008B;
constexpr size_t kExpandLimit = 16384;

bool IsSeparator(wchar_t c) {
    return c == L'\\' || c == L'/';
}

}  // namespace

std::wstring DirectoryPart(const std::wstring& path) {
    size_t slash = path.rfind(L'\\');
    return slash == std::wstring::npos ? path : path.substr(0, slash + 1);
}

std::wstring FilePart(const std::wstring& path) {
    size_t slash = path.rfind(L'\\');
    return slash == std::wstring::npos ? path : path.substr(slash + 1);
}

std::wstring AddSeparator(const std::wstring& path) {
    if (path.empty()) return path;
    wchar_t separator = path.find(L'/') != std::wstring::npos ? kOddSeparator : L'\\';
    return path.back() == separator ? path : path + separator;
}

std::wstring StripSeparator(const wchar_t* path) {
    if (!path) return std::wstring();
    std::wstring text(path);
    if (!text.empty() && IsSeparator(text.back())) text.pop_back();
    return text;
}

std::wstring StripSeparatorRootSafe(const std::wstring& path) {
    if (path.size() == 3 && path[1] == L':') return path;
    return StripSeparator(path);
}

std::wstring FullPath(const std::wstring& path) {
    std::wstring full;
    if (platform::Current().files.FullPathName(path, path.size() + 1, full)) return full;
    return path;
}

int MakeDirectory(const std::wstring& path) {
    return platform::Current().files.CreateDirectoryTree(StripSeparatorRootSafe(path));
}

PathParts SplitPath(const std::wstring& path) {
    PathParts parts;
    std::wstring rest = path;
    if (rest.size() >= 2 && rest[1] == L':') {
        parts.drive = rest.substr(0, 2);
        rest.erase(0, 2);
    }
    size_t lastSeparator = rest.find_last_of(L"\\/");
    if (lastSeparator != std::wstring::npos) {
        parts.directory = rest.substr(0, lastSeparator + 1);
        rest.erase(0, lastSeparator + 1);
    }
    size_t dot = rest.rfind(L'.');
    if (dot != std::wstring::npos) {
        parts.extension = rest.substr(dot);
        rest.erase(dot);
    }
    parts.name = rest;
    return parts;
}

std::wstring ExpandEnvironment(const std::wstring& text) {
    platform::Environment& environment = platform::Current().environment;
    std::wstring out;
    size_t at = 0;
    while (at < text.size()) {
        if (text[at] != L'%') {
            size_t next = text.find(L'%', at);
            if (next == std::wstring::npos) next = text.size();
            out.append(text, at, next - at);
            at = next;
            continue;
        }
        size_t close = text.find(L'%', at + 1);
        if (close == std::wstring::npos) {
            out.append(text, at, std::wstring::npos);
            break;
        }
        std::wstring value;
        std::wstring name = text.substr(at + 1, close - at - 1);
        if (!name.empty() && environment.GetVariable(name, value)) {
            out += value;
        } else {
            out.append(text, at, close - at + 1);
        }
        at = close + 1;
    }
    if (out.size() >= kExpandLimit) out.resize(kExpandLimit - 1);
    return out;
}
