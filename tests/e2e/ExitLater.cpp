// A program that only waits, for tests of waiting for programs.
//
//   ExitLater.exe <milliseconds> <exit code>
//
// Sleeps, then ends with the exit code. It has no window.
#include <windows.h>

#include <cwchar>

int wmain(int argc, wchar_t** argv) {
    if (argc != 3) return 2;
    Sleep(static_cast<DWORD>(wcstoul(argv[1], nullptr, 10)));
    return static_cast<int>(wcstol(argv[2], nullptr, 10));
}
