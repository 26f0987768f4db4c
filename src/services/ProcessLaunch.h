// Starting other programs: run and wait, run and hand it files as a drop, run through the shell.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class MessageCatalog;
namespace platform {
class StartedProcess;
}

// NORMAL_PRIORITY_CLASS, the creation flag of the programs started without the shell.
constexpr uint32_t kNormalPriorityClass = 32;

// Runs "program arguments" with the show flag and waits for it up to timeoutMs (0xFFFFFFFF: for
// ever). False when it cannot start, silently; false too when the wait runs out, after the user was
// asked whether to end the program (Yes ends it with exit code 999).
bool WaitedLaunch(const std::wstring& program, const std::wstring& arguments, const std::wstring& directory, int show,
                  uint32_t timeoutMs);

// Asked when a wait for a started program runs out: Yes ends it with exit code 999. True when it
// was ended.
bool AskToEndProgram(platform::StartedProcess& process);

// Runs the program alone, waits until it takes input and until it shows a window, then drops the
// files on that window and brings it forward. Each failure is told by a numbered message.
void DropLaunch(const std::wstring& program, const std::vector<std::wstring>& files, MessageCatalog& messages);

// Opens a file through the shell, in its own directory unless one is given. The wait flag makes the
// shell finish its own work before it returns; nobody waits for the program.
void ShellLaunch(const std::wstring& file, const std::wstring& parameters, const std::wstring& directory, bool wait,
                 int show);

// The bytes of a DROPFILES block: the 20-byte header (files at offset 20, no point, wide text), each
// path with its zero, and one more zero.
std::vector<uint8_t> DropFilesBlock(const std::vector<std::wstring>& paths);
