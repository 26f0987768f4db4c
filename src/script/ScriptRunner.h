// The interpreter's entry: runs one script file for a selection of items.
#pragma once

#include <cstdint>
#include <string>

#include "platform/HostWindows.h"
#include "script/RunOptions.h"
#include "script/ScriptFrame.h"
#include "script/SelectionList.h"
#include "script/VariableTable.h"
#include "settings/UserDirectories.h"

class MessageCatalog;

class ScriptRunner {
public:
    // The messages serve the launches that tell the user why a program did not take a drop.
    ScriptRunner(UserDirectories& directories, MessageCatalog& messages)
        : directories_(directories), messages_(messages) {}
    ScriptRunner(const ScriptRunner&) = delete;
    ScriptRunner& operator=(const ScriptRunner&) = delete;

    // Runs scriptPath. The selection is read and may be changed by the script. forcedOpenMode -1 lets
    // the script choose its open mode; allowCommandLine 0 ignores its command-line options;
    // hostWindow 0 has the host's window found; selectionCommandLine not 0 makes every command-line
    // option "?SelFile?"; reserved is handed on to included scripts. Null tables are made for the run.
    // -1 when the script ended with "exitall", 0 for every other ending, errors included.
    int32_t Run(std::wstring scriptPath, std::wstring nowDirectory, std::wstring targetPath, SelectionList& selection,
                uint32_t forcedOpenMode, int allowCommandLine, platform::WindowRef hostWindow, int selectionCommandLine,
                int reserved, VariableTable* variables, RunOptionTable* options);

    // One frame, for Run and for every script a script includes.
    int32_t RunFrame(const ScriptArguments& arguments);

    UserDirectories& directories() const { return directories_; }
    MessageCatalog& messages() const { return messages_; }

#ifdef OPTION_SCRIPT_STEP_LIMIT
    // Lines read in this run, included scripts too.
    uint64_t steps = 0;
#endif

private:
    UserDirectories& directories_;
    MessageCatalog& messages_;
};
