#pragma once

#include "platform/Prompts.h"

namespace platform::win32 {

class Win32Prompts : public Prompts {
public:
    int ShowMessage(const std::wstring& text, unsigned style) override;
    int Ask(const std::wstring& text, const std::wstring& caption, unsigned style) override;
    int ShowOwnedMessage(uintptr_t owner, const std::wstring& text, const std::wstring& caption,
                         unsigned flags) override;
    FolderChoice BrowseForFolder(const std::wstring& title, const std::wstring& start) override;
    FolderChoice BrowseForFolderName(const std::wstring& title, const std::wstring& start) override;
    FolderChoice ChooseFileToOpen(const std::wstring& title, const std::wstring& filter,
                                  const std::wstring& start) override;
    bool PickFont(LogFont& font, uint32_t flags) override;
    int ChooseOne(const ChoiceRequest& request) override;
};

}  // namespace platform::win32
