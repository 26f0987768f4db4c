#include "script/RunLine.h"

#include "platform/Platform.h"
#include "script/HostText.h"
#include "script/LaunchRun.h"
#include "services/CRuntime.h"
#include "services/PathHelpers.h"
#include "services/ProcessLaunch.h"
#include "settings/PathRoots.h"

namespace {

enum OpenMode : int32_t {
    kDecideByFirstTarget = 0,
    kStartProgram = 1,
    kHostFolderFirst = 2,  // 2, 3 and 4 hand the folder to the host with codes 100, 200 and 300
    kHostFolderLast = 4,
    kIgnoreFirst = 5,
    kIgnoreLast = 6,
};

constexpr uint32_t kFirstHostFolderCode = 100;

bool IsDirectory(uint32_t attributes) {
    return (attributes & platform::kAttributeDirectory) != 0;
}

}  // namespace

void RunTargetLine(RunWord word, const std::wstring& value, RunOptions& options, const RunLineContext& context) {
    platform::Platform& os = platform::Current();
    std::wstring text = ExpandDirectoryMacros(crt::Trim(value), context.directories);
    if (word == RunWord::Shell) text = context.expandScript(text);
    text = crt::Trim(text);
    if (text.empty()) return;

    std::wstring target = text;
    // A path that cannot be looked at has every bit set, and so counts as a directory.
    uint32_t attributes = os.files.GetAttributes(text);
    if (options.openMode == kDecideByFirstTarget) {
        if (text.find(L"::") != std::wstring::npos)
            attributes = os.files.IsShellFolder(text) ? uint32_t{platform::kAttributeDirectory} : 0u;
        options.openMode = IsDirectory(attributes) ? 3 : kStartProgram;
    }
    if (options.openMode >= kHostFolderFirst && options.openMode <= kHostFolderLast) {
        if (!IsDirectory(attributes)) target = StripSeparator(DirectoryPart(target));
        if (target.empty()) return;
        SendHostText(context.hostWindow, kFirstHostFolderCode * (options.openMode - 1), target);
        return;
    }
    if (options.openMode >= kIgnoreFirst && options.openMode <= kIgnoreLast) return;

    std::wstring directory;
    if (options.bootDir.empty())
        directory = context.nowDirectory;
    else if (options.bootDir == kProgramsOwnDirectory)
        directory = DirectoryPart(StripSeparator(target));
    else
        directory = options.bootDir;
    if (options.sendInfoMode != 0 && !context.selection.empty()) {
        DropLaunch(target, context.selection, context.messages);
        if (options.runWait != 0) os.processes.Sleep(static_cast<uint32_t>(options.runWait));
        return;
    }
    LaunchRun(target, context.selection, directory, options.shiftSilentMode, options.commandLineOption,
              options.multiCommandMode,
              {options.bootMode, static_cast<uint32_t>(options.showWindow), static_cast<uint32_t>(options.timeout),
               static_cast<uint32_t>(options.runWait)});
}
