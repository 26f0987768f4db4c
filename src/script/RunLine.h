// The "run" and "shell" lines: the target is opened by the host as a folder or started as a
// program, as the open mode says; the first target of a script decides the mode when the script
// left it at 0.
#pragma once

#include <functional>
#include <string>

#include "platform/HostWindows.h"
#include "script/RunOptions.h"
#include "script/SelectionList.h"

class MessageCatalog;
class UserDirectories;

enum class RunWord { Run, Shell };

struct RunLineContext {
    UserDirectories& directories;
    MessageCatalog& messages;
    const SelectionList& selection;
    std::wstring nowDirectory;
    platform::WindowRef hostWindow = 0;
    // The frame's ExpandScriptText with trimming: shell lines see variables, run lines do not.
    std::function<std::wstring(const std::wstring&)> expandScript;
};

// value is the text right of the line's first equals sign. The open mode chosen for the first
// target stays in options.
void RunTargetLine(RunWord word, const std::wstring& value, RunOptions& options, const RunLineContext& context);
