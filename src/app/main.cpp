// Entry point of Option.exe: the whole life of the process is the application's start-up routine.
#include <windows.h>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    return 0;
}
