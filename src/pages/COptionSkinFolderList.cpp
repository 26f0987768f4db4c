#include "pages/COptionSkinFolderList.h"

#include "pages/SkinFolders.h"
#include "pages/SkinReadme.h"

void FillSkinList(const ui::ListBox& list, const std::wstring& root, const std::wstring& current, HWND readme) {
    list.ResetContent();
    for (const std::wstring& name : ListSkinFolders(root)) list.AddString(name);
    list.SelectString(-1, current);
    ShowSkinReadme(list, root, readme);
}

void ShowSkinReadme(const ui::ListBox& list, const std::wstring& root, HWND readme) {
    const std::wstring name = list.SelectedText();
    const std::wstring text = name.empty() ? std::wstring() : ReadSkinReadme(root + name + L"\\");
    SetWindowTextW(readme, text.c_str());
}
