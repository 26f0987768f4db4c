// Entry point of Option.exe: the whole life of the process is the application's start-up routine.
#include <windows.h>

#include "app/COptionApp.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    COptionApp app;
    return app.InitInstance();
}
