// User menus: tab-separated UTF-16 text files, one keyword and up to two arguments per line, popups
// nested by POPUP and END. Here are the keyword vocabulary, the parser that turns a file into a popup
// menu (through a builder, so that the menus themselves belong to the caller), and the writer that
// rebuilds the indentation from the rows of the editor.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/ResourceLibrary.h"

class CommandCatalog;
class UserDirectories;

// What an argument of a keyword holds, and so which help the command dialog offers for it.
enum MenuArgumentKind : uint32_t {
    kMenuArgumentUnused = 0,
    kMenuArgumentCommands = 1,  // plain text first; command identifiers second, with the picker
    kMenuArgumentDirectory = 2,
    kMenuArgumentFile = 3,
    kMenuArgumentText = 4,
    kMenuArgumentPosition = 5,
    kMenuArgumentOnOff = 6,
};

struct MenuKeywordRow {
    const wchar_t* keyword;
    uint32_t firstKind;
    uint32_t secondKind;
    const wchar_t* explanation;
    const wchar_t* firstLabel;
    const wchar_t* secondLabel;
};

inline constexpr int kMenuKeywordCount = 24;
// Row 0 is the pseudo keyword of any line that is not a keyword ("<Comment>").
extern const MenuKeywordRow MenuKeywordTable[kMenuKeywordCount];
inline constexpr int kMenuKeywordMenuItem = 1;
inline constexpr int kMenuKeywordMultiple = 2;
inline constexpr int kMenuKeywordNotepad = 14;
inline constexpr int kMenuKeywordWildcard = 16;

// The row of the command dialog's box text: rows 1 to 23 compared without regard to case; 0 when
// none matches.
int FindMenuKeywordRow(const std::wstring& command);

// Identifier of the first item whose command is kept in the MenuCommandList.
inline constexpr uint32_t kFirstMenuListCommand = 62300;
inline constexpr size_t kMenuCommandLimit = 700;

// Where the parsed menu asks to open.
enum class MenuPosition { Desktop, Mouse, Main, Parent };

// Makes the menus the parser describes. Menus are the builder's own handles; the root is the caller's.
class MenuBuilder {
public:
    using Menu = uintptr_t;
    MenuBuilder() = default;
    MenuBuilder(const MenuBuilder&) = delete;
    MenuBuilder& operator=(const MenuBuilder&) = delete;
    virtual ~MenuBuilder() = default;

    virtual Menu CreatePopup() = 0;
    virtual void AppendItem(Menu menu, const std::wstring& text, uint32_t id) = 0;
    virtual void AppendSeparator(Menu menu) = 0;
    // popup becomes a submenu of menu, owned by it from now on.
    virtual void AppendPopup(Menu menu, Menu popup, const std::wstring& text) = 0;
};

// Fills root from the file. position, when not null, receives where the menu asks to open
// ("PARENT" counts only with hasParent). menuCommands is the MenuCommandList: emptied first, then
// entry n holds the encoded command of item kFirstMenuListCommand + n. An unopenable or empty file
// is told by "Cannot open %s" and gives false.
bool ParseMenuFile(const std::wstring& path, MenuBuilder& builder, MenuBuilder::Menu root, MenuPosition* position,
                   bool hasParent, UserDirectories& directories, std::vector<std::wstring>& menuCommands);

// One line of the editor: command, menu text, target (with any further fields), and the result of
// the last check, which is never saved. Texts left out of a brace list are empty.
struct MenuLine {
    std::wstring command{};
    std::wstring text{};
    std::wstring target{};
    std::wstring check{};
    bool operator==(const MenuLine&) const = default;
};

// A line of the file as the editor shows it: U+FEFF deleted, trimmed, cut at the first two tabs.
MenuLine SplitMenuLine(const std::wstring& line);
// Every line of the file, empty ones too; nothing when it cannot be read.
std::vector<MenuLine> ReadMenuLines(const std::wstring& path);
// The bytes the editor's Save writes: FF FE, one line per row indented by the popups open, CR LF.
std::vector<uint8_t> MenuFileBytes(const std::vector<MenuLine>& lines);
// Writes them through the one safe writer; false when the file could not be written.
bool WriteMenuFile(const std::wstring& path, const std::vector<MenuLine>& lines);

// The editor's list: the only store of the document. Rows count from 0; -1 is no row.
class MenuRows {
public:
    MenuRows() = default;
    MenuRows(const MenuRows&) = delete;
    MenuRows& operator=(const MenuRows&) = delete;
    virtual ~MenuRows() = default;

    virtual int Count() const = 0;
    virtual MenuLine Line(int row) const = 0;
    virtual void SetLine(int row, const MenuLine& line) = 0;
    virtual void Insert(int row, const MenuLine& line) = 0;
    virtual void Delete(int row) = 0;
    virtual int Selected() const = 0;
    // Selects the row alone and scrolls it into view; -1 selects nothing.
    virtual void Select(int row) = 0;
};

// The editor's row actions.
bool SaveMenuRows(const MenuRows& rows, const std::wstring& path);
// A new row behind the selected one, or at the top without a selection; selected.
void InsertMenuRow(MenuRows& rows, const MenuLine& line);
// Deletes the selected row and selects the one now at its place, or the last.
void DeleteMenuRow(MenuRows& rows);
// Swaps the selected row with its neighbour above (-1) or below (+1), the selection following.
void MoveMenuRow(MenuRows& rows, int direction);
// The first three columns of the selected row into the clipboard; false without a selection.
bool CopyMenuRow(const MenuRows& rows, MenuLine& clipboard);
// Inserts the clipboard as a new row; nothing when all three texts are empty.
void PasteMenuRow(MenuRows& rows, const MenuLine& clipboard);

// What the check shows for one line ("Exist:...", "Syntax error(ON/OFF)", a command's name, or
// nothing). The caller reloads the command lists first.
std::wstring CheckMenuLine(const MenuLine& line, const CommandCatalog& commands,
                           const platform::ResourceLibrary* library, UserDirectories& directories);
// The load test refuses a file with a line of the refused keyword (the table's row 16).
bool MenuTestRefused(const MenuRows& rows);
