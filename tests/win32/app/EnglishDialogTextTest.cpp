#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "definitions/CDlgMenuCommand.h"
#include "e2e/support/Files.h"
#include "ui/ComboBox.h"
#include "ui/ListBox.h"
#include "ui/ListView.h"
#include "ui/LocaliseDialog.h"
#include "unit/Utf16.h"
#include "win32/support/OptionDialogFixture.h"

namespace {

using namespace optiontest;

// Where the build writes the English files, and where the program looks for a language's files.
const std::wstring kBuiltEnglish = OPTION_BINARY_DIR L"/sample/Lang/dialogs/.en-US/Option/";
const std::wstring kProgramFolder = L"C:\\Qor\\command\\Option\\";

bool IsJapanese(wchar_t c) {
    return (c >= 0x3000 && c <= 0x30FF) || (c >= 0x3400 && c <= 0x9FFF) || (c >= 0xF900 && c <= 0xFAFF) ||
           (c >= 0xFF00 && c <= 0xFFEF);
}
bool HasJapanese(const std::wstring& text) {
    return std::any_of(text.begin(), text.end(), IsJapanese);
}

std::vector<uint8_t> RealFile(const std::wstring& path) {
    const std::string bytes = e2e::ReadFileBytes(path);
    return {bytes.begin(), bytes.end()};
}

// The lines of a dialog text file split at tabs; the first is the title. Empty when there is no file.
std::vector<std::vector<std::wstring>> Lines(const std::vector<uint8_t>& bytes) {
    std::vector<std::vector<std::wstring>> lines;
    std::wstring text = Utf16Text(bytes);
    if (!text.empty() && text[0] == 0xFEFF) text.erase(0, 1);
    for (size_t at = 0; at < text.size();) {
        size_t end = text.find(L"\r\n", at);
        if (end == std::wstring::npos) end = text.size();
        std::vector<std::wstring> fields;
        for (size_t from = at;;) {
            size_t tab = text.find(L'\t', from);
            if (tab == std::wstring::npos || tab > end) {
                fields.push_back(text.substr(from, end - from));
                break;
            }
            fields.push_back(text.substr(from, tab - from));
            from = tab + 1;
        }
        lines.push_back(std::move(fields));
        at = end + 2;
    }
    return lines;
}

// The templates of the program itself, not those the tests add.
std::vector<int> DialogTemplates() {
    std::vector<int> ids;
    HMODULE program = LoadLibraryExW(OPTION_BINARY_DIR L"/src/Option.exe", nullptr, LOAD_LIBRARY_AS_DATAFILE);
    EnumResourceNamesW(
        program, RT_DIALOG,
        [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR list) -> BOOL {
            if (IS_INTRESOURCE(name)) reinterpret_cast<std::vector<int>*>(list)->push_back(LOWORD(name));
            return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&ids));
    FreeLibrary(program);
    return ids;
}

// The template, its initial list data and the translation step, as every dialog of the program begins.
class BareDialog : public ui::Dialog {
public:
    BareDialog(int id, DialogLanguage& language) : ui::Dialog(id), language_(language) {}
    ~BareDialog() override { DestroyWindow(); }

protected:
    bool OnInitDialog() override {
        const bool focus = ui::Dialog::OnInitDialog();
        ui::LocaliseDialog(hwnd(), templateId(), language_);
        return focus;
    }

private:
    DialogLanguage& language_;
};

std::vector<HTREEITEM> AllItems(const ui::TreeView& tree, HTREEITEM first) {
    std::vector<HTREEITEM> items;
    for (HTREEITEM item = first; item; item = tree.GetNextSiblingItem(item)) {
        items.push_back(item);
        for (HTREEITEM child : AllItems(tree, tree.GetChildItem(item))) items.push_back(child);
    }
    return items;
}

class EnglishDialogText : public OptionDialogFixture {
protected:
    void UseLanguage(const wchar_t* tag) { DirectWriteString(kDirectSettingsPath, L"NLS", tag); }

    // Opens every page and group of the option dialog from its tree.
    static void VisitEveryItem(const COptionDlg& dialog, const std::function<void(const std::wstring&)>& visit) {
        ui::TreeView tree(Tree(dialog));
        for (HTREEITEM item : AllItems(tree, tree.GetRootItem())) {
            tree.SelectItem(item);
            visit(tree.GetItemText(item));
        }
    }
};

// The English file has the same number of entries for every Japanese list a template fills, and no Japanese.
// Every template other than the pages and the command editor (a new one too) is made bare. The rows the
// English files miss are printed in the form of sample/Lang/dialogs.tsv.
TEST_F(EnglishDialogText, EveryTemplateTextHasItsEnglishLine) {
    UseLanguage(L".xx-XX");
    COptionDlg dialog(app_);
    SetStart(1000);
    ASSERT_TRUE(dialog.Create(nullptr));
    VisitEveryItem(dialog, [](const std::wstring&) {});
    CDlgMenuCommand menuCommand(app_);
    ASSERT_TRUE(menuCommand.Create(dialog.hwnd()));
    const std::wstring exported = kProgramFolder + L".xx-XX\\Option\\";
    std::vector<std::unique_ptr<BareDialog>> bare;
    const std::vector<int> templates = DialogTemplates();
    ASSERT_GT(templates.size(), 50u);
    for (int id : templates) {
        if (!fake_.files().FileText(exported + std::to_wstring(id) + L".txt").empty()) continue;
        bare.push_back(std::make_unique<BareDialog>(id, app_.dialogLanguage));
        ASSERT_TRUE(bare.back()->Create(dialog.hwnd())) << id;
    }

    std::ostringstream missing;
    for (int id : templates) {
        std::vector<uint8_t> bytes;
        ASSERT_TRUE(fake_.files().ReadFile(exported + std::to_wstring(id) + L".txt", bytes)) << id;
        const auto shown = Lines(bytes);
        const auto english = Lines(RealFile(kBuiltEnglish + std::to_wstring(id) + L".txt"));
        EXPECT_FALSE(english.empty()) << "no English file for " << id;
        std::map<std::wstring, std::wstring> texts;  // by control id
        std::map<std::wstring, int> entries;         // by combo id, -1 without a start line
        std::set<std::wstring> named;
        for (size_t i = 0; i < english.size(); ++i) {
            const auto& line = english[i];
            for (const std::wstring& field : line) EXPECT_FALSE(HasJapanese(field)) << id << ": " << e2e::Utf8(field);
            if (i == 0 || line.size() < 2) continue;
            named.insert(line[0]);
            if (line[1] == L"ComboBoxStart")
                entries[line[0]] = 0;
            else if (line.size() == 3 && line[1] == L"ComboBox")
                ++entries.try_emplace(line[0], -1).first->second;
            else if (line.size() == 3)
                texts[line[0]] = line[2];
        }
        auto row = [&](const std::wstring& control, const std::wstring& kind, const std::wstring& text) {
            missing << id << '\t' << e2e::Utf8(control) << '\t' << e2e::Utf8(kind) << '\t' << e2e::Utf8(text) << "\t\n";
        };
        if (!shown.empty() && !shown[0][0].empty() && (english.empty() || english[0][0].empty()))
            row(L"", L"Title", shown[0][0]);
        std::set<std::wstring> controls;
        for (size_t i = 1; i < shown.size(); ++i) {
            const auto& line = shown[i];
            if (line.size() < 2) continue;
            controls.insert(line[0]);
            if (line.size() == 3 && line[1] != L"ComboBox" && !texts.count(line[0])) row(line[0], line[1], line[2]);
            if (line[1] != L"ComboBoxStart") continue;
            std::vector<std::wstring> list;
            for (size_t j = i + 1; j < shown.size() && shown[j].size() == 3 && shown[j][1] == L"ComboBox"; ++j)
                list.push_back(shown[j][2]);
            // A list without Japanese holds data (keywords, date formats) and stays as it was filled.
            if (std::none_of(list.begin(), list.end(), HasJapanese) ||
                (entries.count(line[0]) && entries[line[0]] == static_cast<int>(list.size())))
                continue;
            row(line[0], L"ComboBoxStart", L"");
            for (const std::wstring& entry : list) row(line[0], L"ComboBox", entry);
        }
        for (const std::wstring& control : named)
            EXPECT_TRUE(controls.count(control)) << "the English file of " << id << " names control "
                                                 << e2e::Utf8(control) << ", which has no text in the dialog";
    }
    if (!missing.str().empty()) ADD_FAILURE() << "without English:\n" << missing.str();
}

// Every text a window shows to the user: its own, and the items of a list, header, tab or tree. An edit field holds the
// user's value (the status bar templates default to Japanese ones), not the program's words.
std::vector<std::wstring> ShownTexts(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    const std::wstring kind = name;
    if (kind == L"Edit") return {};
    std::vector<std::wstring> texts{TextOf(window)};
    wchar_t buffer[1024];
    // Each item's text, read into the buffer by get.
    const auto items = [&](int count, auto get) {
        for (int i = 0; i < count; ++i) {
            buffer[0] = 0;
            get(i);
            texts.push_back(buffer);
        }
    };
    if (kind == L"ComboBox") {
        const ui::ComboBox combo(window);
        for (int i = 0; i < combo.GetCount(); ++i) texts.push_back(combo.GetText(i));
    } else if (kind == L"ListBox") {
        const ui::ListBox list(window);
        for (int i = 0; i < list.GetCount(); ++i) texts.push_back(list.GetText(i));
    } else if (kind == WC_HEADERW) {
        items(Header_GetItemCount(window), [&](int i) {
            HDITEMW item{};
            item.mask = HDI_TEXT, item.pszText = buffer, item.cchTextMax = 1024;
            Header_GetItem(window, i, &item);
        });
    } else if (kind == WC_LISTVIEWW) {
        const ui::ListView list(window);
        for (int row = 0; row < list.GetItemCount(); ++row)
            for (int column = 0; column < std::max(list.GetColumnCount(), 1); ++column)
                texts.push_back(list.GetItemText(row, column));
    } else if (kind == WC_TABCONTROLW) {
        items(TabCtrl_GetItemCount(window), [&](int i) {
            TCITEMW item{};
            item.mask = TCIF_TEXT, item.pszText = buffer, item.cchTextMax = 1024;
            TabCtrl_GetItem(window, i, &item);
        });
    } else if (kind == WC_TREEVIEWW) {
        ui::TreeView tree(window);
        for (HTREEITEM item : AllItems(tree, tree.GetRootItem())) texts.push_back(tree.GetItemText(item));
    }
    return texts;
}

// Hidden labels, list items, headers, combo entries, tabs and trees too, the pages opened before included. No
// page refuses a translated label list, which it would say in a message box.
TEST_F(EnglishDialogText, NoPageShowsJapaneseInEnglish) {
    UseLanguage(L".en-US");
    for (int id : DialogTemplates()) {
        const std::vector<uint8_t> bytes = RealFile(kBuiltEnglish + std::to_wstring(id) + L".txt");
        ASSERT_FALSE(bytes.empty()) << id;
        fake_.files().AddFile(kProgramFolder + L".en-US\\Option\\" + std::to_wstring(id) + L".txt", bytes);
    }
    // The confirmation page lists the texts of the message file.
    fake_.files().AddFile(L"C:\\Qor\\Lang\\Msg.en-US.txt", RealFile(OPTION_SOURCE_DIR L"/sample/Lang/Msg.en-US.txt"));
    app_.messages.SetPath(L"C:\\Qor\\Lang\\Msg.en-US.txt");
    COptionDlg dialog(app_);
    SetStart(1000);
    ASSERT_TRUE(dialog.Create(nullptr));
    std::set<std::string> japanese;
    VisitEveryItem(dialog, [&](const std::wstring& label) {
        std::vector<HWND> windows{dialog.hwnd()};
        EnumChildWindows(
            dialog.hwnd(),
            [](HWND child, LPARAM list) {
                reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&windows));
        for (HWND window : windows)
            for (const std::wstring& text : ShownTexts(window))
                if (HasJapanese(text))
                    japanese.insert(e2e::Utf8(label) + ", " + std::to_string(GetDlgCtrlID(window)) + ": " +
                                    e2e::Utf8(text));
    });
    std::string found;
    for (const std::string& line : japanese) found += line + "\n";
    EXPECT_EQ("", found);
    EXPECT_EQ(std::vector<std::wstring>{}, Messages());
}

}  // namespace
