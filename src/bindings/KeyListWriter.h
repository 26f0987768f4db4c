// "/KEYLIST": the key lists of the command mode and the search mode, four modifiers each, written as
// csv files into a folder the user picks. No dialog of the program opens.
#pragma once

#include <string>
#include <utility>

#include "bindings/KeyTableSet.h"
#include "definitions/CommandCatalog.h"
#include "platform/ResourceLibrary.h"
#include "services/MessageCatalog.h"

class KeyListWriter {
public:
    static constexpr const wchar_t* kVirtualFolderText = L"It can not be output to this directory.";
    static constexpr const wchar_t* kOverwriteQuestion = L"Do you want to overwrite it?\n";

    KeyListWriter(std::wstring userDirectory, MessageCatalog& messages, const CommandCatalog& catalog,
                  const platform::ResourceLibrary* library)
        : userDirectory_(std::move(userDirectory)), messages_(messages), catalog_(catalog), library_(library) {}

    // Asks for the folder until the user picks one with a path or cancels, then writes "Command mode.csv",
    // "Command mode Shift.csv", ... "Search mode Ctrl+Shift.csv", asking before it replaces a file.
    void Run();

private:
    // The chosen folder; empty when the user cancelled.
    std::wstring ChooseFolder();

    std::wstring userDirectory_;
    MessageCatalog& messages_;
    const CommandCatalog& catalog_;
    const platform::ResourceLibrary* library_;
};
