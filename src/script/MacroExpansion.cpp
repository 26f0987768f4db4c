#include "script/MacroExpansion.h"

#include <cstddef>
#include <iterator>

#include "platform/Platform.h"
#include "services/CRuntime.h"
#include "settings/PathRoots.h"

namespace {

struct DateRow {
    const wchar_t* macro;
    const wchar_t* format;
};

// Time with hyphens, so that "?Date?_?Time?" makes a file name.
constexpr DateRow kDateRows[] = {
    {L"?Date?", L"%Y-%m-%d"}, {L"?Time?", L"%H-%M-%S"}, {L"?Year?", L"%Y"},      {L"?Month?", L"%m"},
    {L"?Day?", L"%d"},        {L"?Hour?", L"%H"},       {L"?Minute?", L"%M"},    {L"?Second?", L"%S"},
    {L"?Week?", L"%a"},       {L"?WEEK?", L"%A"},       {L"?ShellTime?", L"%c"},
};
constexpr size_t kDateBufferChars = 128;

constexpr const wchar_t* kPlaceMacros[] = {L"?Drive?",  L"?Dir?",       L"?NowDir?",
                                           L"?nowdir?", L"?TargetDir?", L"?TargetDrive?"};

enum class ItemPart { Path, FileName, Name, Extension, Directory, Parent };

struct ItemRow {
    const wchar_t* macro;
    ItemPart part;
    bool quoted;
};

// Of the selected file the capitalised macro is quoted, of all the others the lower-case one.
constexpr ItemRow kItemRows[] = {
    {L"?SelFile?", ItemPart::Path, true},       {L"?selfile?", ItemPart::Path, false},
    {L"?FileName?", ItemPart::FileName, false}, {L"?Name?", ItemPart::Name, false},
    {L"?Ext?", ItemPart::Extension, false},     {L"?filename?", ItemPart::FileName, true},
    {L"?name?", ItemPart::Name, true},          {L"?ext?", ItemPart::Extension, true},
    {L"?selpath?", ItemPart::Directory, true},  {L"?SelPath?", ItemPart::Directory, false},
    {L"?SelParent?", ItemPart::Parent, false},
};

// Paths this long go to programs in their 8.3 form, when they have one.
constexpr size_t kShortFormFrom = 260;

bool IsLetter(wchar_t c) {
    return (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
}

std::wstring PathForPrograms(const std::wstring& path) {
    std::wstring shortPath;
    if (path.size() >= kShortFormFrom && platform::Current().files.ShortPathName(path, shortPath)) return shortPath;
    return path;
}

std::wstring ItemValue(const std::wstring& item, const PathParts& parts, ItemPart part) {
    switch (part) {
        case ItemPart::Path:
            return PathForPrograms(item);
        case ItemPart::FileName:
            return parts.name + parts.extension;
        case ItemPart::Name:
            return parts.name;
        case ItemPart::Extension:
            return parts.extension;
        case ItemPart::Directory:
            return parts.drive + parts.directory;
        case ItemPart::Parent:
            return StripSeparator(parts.drive + parts.directory);
    }
    return std::wstring();
}

}  // namespace

void ExpandScriptText(std::wstring& text, const VariableTable& variables, const std::wstring& nowDirectory,
                      const std::wstring& targetPath, const SelectionList& selection, int32_t itemIndex, bool trim,
                      UserDirectories& directories) {
    ExpandVariables(variables, text);
    if (itemIndex != -1) {
        if (itemIndex < 0 || static_cast<size_t>(itemIndex) >= selection.size()) throw ScriptInvalidArgument();
        text = ExpandDirectoryMacros(text, directories);
        ExpandDateMacros(text);
        ExpandPlaceMacros(nowDirectory, targetPath, text);
        ExpandItemMacros(selection[static_cast<size_t>(itemIndex)], text);
    } else {
        ExpandCommonMacros(nowDirectory, targetPath, text, directories);
    }
    if (trim) text = crt::Trim(text);
}

void ExpandCommonMacros(const std::wstring& nowDirectory, const std::wstring& targetPath, std::wstring& text,
                        UserDirectories& directories) {
    text = ExpandDirectoryMacros(text, directories);
    ExpandDateMacros(text);
    ExpandPlaceMacros(nowDirectory, targetPath, text);
}

void ExpandDateMacros(std::wstring& text) {
    if (text.find(L'?') == std::wstring::npos) return;
    platform::Environment& environment = platform::Current().environment;
    const int64_t now = environment.CurrentTime();
    for (const DateRow& row : kDateRows) {
        if (text.find(row.macro) == std::wstring::npos) continue;
        crt::Replace(text, row.macro, environment.FormatLocalTime(now, row.format, kDateBufferChars));
    }
}

void ExpandPlaceMacros(const std::wstring& nowDirectory, const std::wstring& targetPath, std::wstring& text) {
    // Every macro here is written between question marks.
    if (text.find(L'?') == std::wstring::npos) return;
    if (!nowDirectory.empty()) {
        const PathParts target = SplitItemPath(targetPath);
        crt::Replace(text, L"?Drive?", target.drive);
        crt::Replace(text, L"?Dir?", target.directory);
        const std::wstring now = StripSeparatorRootSafe(nowDirectory);
        crt::Replace(text, L"?NowDir?", L"\"" + now + L"\"");
        crt::Replace(text, L"?nowdir?", now);
    }
    for (const wchar_t* macro : kPlaceMacros) crt::Replace(text, macro, L"");
}

void ExpandItemMacros(const std::wstring& item, std::wstring& text) {
    if (text.find(L'?') == std::wstring::npos) return;
    const PathParts parts = SplitItemPath(item);
    for (const ItemRow& row : kItemRows) {
        if (text.find(row.macro) == std::wstring::npos) continue;
        const std::wstring value = ItemValue(item, parts, row.part);
        crt::Replace(text, row.macro, row.quoted ? L"\"" + value + L"\"" : value);
    }
}

void ExpandJoinedItemMacros(const SelectionList& items, std::wstring& text) {
    std::wstring totals[std::size(kItemRows)];
    for (const std::wstring& item : items) {
        const PathParts parts = SplitItemPath(item);
        for (size_t i = 0; i < std::size(kItemRows); ++i) {
            const std::wstring value = ItemValue(item, parts, kItemRows[i].part);
            totals[i] += (kItemRows[i].quoted ? L"\"" + value + L"\"" : value) + L" ";
        }
    }
    for (size_t i = 0; i < std::size(kItemRows); ++i) crt::Replace(text, kItemRows[i].macro, totals[i]);
}

void RemoveItemMacros(std::wstring& text) {
    for (const ItemRow& row : kItemRows) crt::Replace(text, row.macro, L"");
}

bool ContainsItemMacro(const std::wstring& text) {
    for (const ItemRow& row : kItemRows)
        if (text.find(row.macro) != std::wstring::npos) return true;
    return false;
}

PathParts SplitItemPath(const std::wstring& path) {
    PathParts parts;
    const size_t slash = path.rfind(L'\\');
    const std::wstring directoryPart = slash == std::wstring::npos ? std::wstring() : path.substr(0, slash + 1);
    const std::wstring filePart = slash == std::wstring::npos ? path : path.substr(slash + 1);
    if (!directoryPart.empty() && IsLetter(path[0])) {
        parts.drive = directoryPart.substr(0, 2);
        parts.directory = directoryPart.substr(2);
    } else {
        parts.directory = directoryPart;
    }
    const size_t point = filePart.rfind(L'.');
    parts.name = filePart.substr(0, point);
    if (point != std::wstring::npos) parts.extension = filePart.substr(point);
    return parts;
}
