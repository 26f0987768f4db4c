// The editor of one run definition: the program a script command starts and how. The file is read
// when the dialog opens and written whole at OK; Cancel leaves it as it was.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>

#include "definitions/RunDefinition.h"
#include "ui/BrowseEdit.h"
#include "definitions/CDlgDefinitionEditor.h"

struct AppServices;

class CDlgRunSet : public CDlgDefinitionEditor {
public:
    explicit CDlgRunSet(AppServices& app);

protected:
    bool OnInitDialog() override;
    void DoDataExchange(ui::DataExchange& exchange) override;
    bool OnCommand(int id, int code) override;
    void OnOK() override;

private:
    RunDefinition definition_;
    ui::BrowseEdit bootDir_;
    ui::BrowseEdit program_;
};

// What both definition editors share.
namespace runset {

// The macro helper on the tab given, the tabs allowed; a chosen macro replaces the selection of the
// edit, so that Undo takes it back.
void InsertMacro(AppServices& app, HWND dialog, int editId, int32_t tab, std::initializer_list<int32_t> tabs);
// The edit's text with the user's directories put back as their path root tokens.
void ReplaceWithMacroPath(AppServices& app, HWND dialog, int editId);
// A definition that names no program: the user says whether to go on editing it.
bool KeepEditingWithout(AppServices& app, const wchar_t* word);
// The user's confirmation of saving, when it is asked at all, then the file; false keeps the dialog open.
bool ConfirmAndSave(AppServices& app, uint16_t confirmation, const std::wstring& path,
                    const std::function<bool()>& write);
void TellCannotOpen(const std::wstring& path);
// What the browse buttons of the path edits ask: a folder, or an existing file.
ui::BrowseEdit::Browse FolderChooser(AppServices& app);
ui::BrowseEdit::Browse FileChooser();

}  // namespace runset
