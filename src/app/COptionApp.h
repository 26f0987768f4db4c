// The application object: prepares the system, runs the start-up with the real platform and hands
// each target to its dialog. The process ends when InitInstance returns.
#pragma once

#include "app/StartupTargets.h"

struct AppServices;

class COptionApp : public StartupTargets {
public:
    // Always 0.
    int InitInstance();

    void OpenOptionDialog() override;
    void OpenEditor(int switchNumber, const std::wstring& file) override;
    void WriteKeyLists() override;
    void RunEditorScript(const std::wstring& file) override;

private:
    // The process's services while InitInstance runs.
    AppServices* app_ = nullptr;
};
