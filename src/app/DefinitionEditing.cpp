#include "app/DefinitionEditing.h"

#include "app/AppServices.h"
#include "script/ScriptRunner.h"
#include "services/ProcessLaunch.h"

namespace {

constexpr int kShowNormal = 1;

}  // namespace

void RunEditorScript(AppServices& app, const std::wstring& file) {
    ScriptRunner runner(app.directories, app.messages);
    SelectionList selection{file};
    runner.Run(app.directories.UserDirectory() + L"Script\\Editor.txt", L"", L"", selection, static_cast<uint32_t>(-1),
               1, 0, 0, 1, nullptr, nullptr);
}

void OpenDefinitionFile(AppServices& app, int32_t mode, const std::wstring& file,
                        const std::function<void()>& ownEditor) {
    switch (mode) {
        case kEditWithShell:
            ShellLaunch(file, L"", L"", false, kShowNormal);
            break;
        case kEditWithEditorScript:
            RunEditorScript(app, file);
            break;
        case kEditWithOwnEditor:
            ownEditor();
            break;
        default:
            break;
    }
}
