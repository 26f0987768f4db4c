// The menu editor's document: lines of the file as rows of three texts, and the rows written back
// with the indentation the popups give them.
#include <algorithm>
#include <memory>

#include "definitions/MenuDefinition.h"
#include "services/CRuntime.h"
#include "services/CaseCompare.h"
#include "services/TextFileReader.h"
#include "services/WholeFileWriter.h"

namespace {

constexpr uint32_t kLineLimit = 32768;

void AppendUnits(std::vector<uint8_t>& bytes, std::wstring_view text) {
    for (wchar_t unit : text) {
        bytes.push_back(static_cast<uint8_t>(unit & 0xFF));
        bytes.push_back(static_cast<uint8_t>((unit >> 8) & 0xFF));
    }
}

}  // namespace

MenuLine SplitMenuLine(const std::wstring& line) {
    std::wstring text = line;
    std::erase(text, L'\uFEFF');
    text = crt::Trim(text);
    MenuLine result;
    size_t tab = text.find(L'\t');
    result.command = text.substr(0, tab);
    if (tab == std::wstring::npos) return result;
    std::wstring rest = text.substr(tab + 1);
    tab = rest.find(L'\t');
    result.text = rest.substr(0, tab);
    if (tab != std::wstring::npos) result.target = rest.substr(tab + 1);
    return result;
}

std::vector<MenuLine> ReadMenuLines(const std::wstring& path) {
    std::vector<MenuLine> lines;
    TextFileReader reader;
    if (!reader.Open(path)) return lines;
    auto buffer = std::make_unique<wchar_t[]>(kLineLimit + 2);
    // Each line starts from a cleared buffer, so the end of the file adds no empty row: a file
    // loaded and saved again keeps its length.
    for (buffer[0] = 0; reader.ReadLine(buffer.get(), kLineLimit); buffer[0] = 0) {
        lines.push_back(SplitMenuLine(buffer.get()));
    }
    return lines;
}

std::vector<uint8_t> MenuFileBytes(const std::vector<MenuLine>& lines) {
    std::vector<uint8_t> bytes{0xFF, 0xFE};
    size_t depth = 0;
    for (const MenuLine& line : lines) {
        std::wstring command = line.command;
        std::erase(command, L'\t');
        if (!command.empty()) {
            if (crt::EqualCollatingNoCase(command, L"end") && depth > 0) --depth;
            std::wstring text(depth, L'\t');
            if (crt::EqualCollatingNoCase(command, L"popup")) ++depth;
            text += command;
            if (!line.text.empty()) text += L'\t' + line.text;
            if (!line.target.empty()) text += L'\t' + line.target;
            AppendUnits(bytes, text);
        }
        AppendUnits(bytes, L"\r\n");
    }
    return bytes;
}

bool WriteMenuFile(const std::wstring& path, const std::vector<MenuLine>& lines) {
    return WriteWholeFile(path, MenuFileBytes(lines));
}

bool SaveMenuRows(const MenuRows& rows, const std::wstring& path) {
    std::vector<MenuLine> lines;
    for (int row = 0; row < rows.Count(); ++row) {
        MenuLine line = rows.Line(row);
        line.check.clear();
        lines.push_back(std::move(line));
    }
    return WriteMenuFile(path, lines);
}

void InsertMenuRow(MenuRows& rows, const MenuLine& line) {
    const int at = rows.Selected() >= 0 ? rows.Selected() + 1 : 0;
    rows.Insert(at, line);
    rows.Select(at);
}

void DeleteMenuRow(MenuRows& rows) {
    const int row = rows.Selected();
    if (row < 0) return;
    rows.Delete(row);
    rows.Select(std::min(row, rows.Count() - 1));
}

void MoveMenuRow(MenuRows& rows, int direction) {
    const int row = rows.Selected();
    const int other = row + direction;
    if (row < 0 || other < 0 || other >= rows.Count()) return;
    const MenuLine moving = rows.Line(row);
    rows.SetLine(row, rows.Line(other));
    rows.SetLine(other, moving);
    rows.Select(other);
}

bool CopyMenuRow(const MenuRows& rows, MenuLine& clipboard) {
    const int row = rows.Selected();
    if (row < 0) return false;
    const MenuLine line = rows.Line(row);
    clipboard = {line.command, line.text, line.target, L""};
    return true;
}

void PasteMenuRow(MenuRows& rows, const MenuLine& clipboard) {
    if (clipboard.command.empty() && clipboard.text.empty() && clipboard.target.empty()) return;
    InsertMenuRow(rows, {clipboard.command, clipboard.text, clipboard.target, L""});
}
