#include "Process.h"

#include "Files.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace e2e {
namespace {

std::wstring StripFileName(const std::wstring& path) {
    size_t slash = path.find_last_of(L"\\/");
    return slash == std::wstring::npos ? std::wstring() : path.substr(0, slash);
}

// A Unix path as Wine's Z: drive shows it.
std::wstring WinePath(const std::string& unixPath) {
    int size = MultiByteToWideChar(CP_UTF8, 0, unixPath.c_str(), -1, nullptr, 0);
    std::wstring wide(size > 0 ? size - 1 : 0, L'\0');
    if (size > 1) MultiByteToWideChar(CP_UTF8, 0, unixPath.c_str(), -1, wide.data(), size);
    std::replace(wide.begin(), wide.end(), L'/', L'\\');
    while (wide.size() > 1 && wide.back() == L'\\') wide.pop_back();
    return L"Z:" + wide;
}

// The command line CommandLineToArgvW and the C runtime split back into these arguments, none of
// which holds a quote or ends in a backslash.
std::wstring QuoteArgument(const std::wstring& argument) {
    if (!argument.empty() && argument.find_first_of(L" \t") == std::wstring::npos) return argument;
    return L"\"" + argument + L"\"";
}

}  // namespace

std::wstring TestDirectory() {
    wchar_t path[4096] = {};
    GetModuleFileNameW(nullptr, path, 4096);
    return StripFileName(path);
}

std::wstring StageRoot() {
    wchar_t value[4096];
    DWORD length = GetEnvironmentVariableW(L"OPTION_STAGE", value, 4096);
    if (length > 0 && length < 4096) {
        std::wstring root(value, length);
        // Set by the Unix side, so normally a Unix path; a Windows path is taken as it stands.
        return root.front() == L'/' ? WinePath(Utf8(root)) : root;
    }
    // build/win64/tests/e2e/e2e_tests.exe -> build/stage
    return StripFileName(StripFileName(StripFileName(TestDirectory()))) + L"\\stage";
}

std::wstring OptionExePath() {
    return StageRoot() + L"\\command\\Option\\Option.exe";
}

Process::~Process() {
    Kill();
}

Process Process::Start(const std::wstring& program, const std::vector<std::wstring>& args, const EnvChanges& env,
                       std::source_location where) {
    std::wstring commandLine = QuoteArgument(program);
    for (const std::wstring& arg : args) commandLine += L" " + QuoteArgument(arg);
    // The variables are the test process's own only while the child starts, which inherits them.
    for (const EnvVar& change : env) SetEnvironmentVariableW(change.name.c_str(), change.value.c_str());
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION info{};
    Process process;
    const BOOL started = CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                        nullptr, &startup, &info);
    const DWORD error = GetLastError();
    for (const EnvVar& change : env) SetEnvironmentVariableW(change.name.c_str(), nullptr);
    if (!started) {
        ADD_FAILURE_AT(where.file_name(), where.line())
            << "cannot start " << Utf8(commandLine) << " (error " << error << ")";
        return process;
    }
    CloseHandle(info.hThread);
    process.process_.reset(info.hProcess);
    process.id_ = info.dwProcessId;
    return process;
}

bool Process::Running() const {
    return process_ && WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> Process::Wait(DWORD timeoutMs) const {
    if (!process_ || WaitForSingleObject(process_.get(), timeoutMs) != WAIT_OBJECT_0) return std::nullopt;
    DWORD code = 0;
    GetExitCodeProcess(process_.get(), &code);
    return code;
}

DWORD Process::WaitOrKill(DWORD timeoutMs, std::source_location where) {
    if (!process_) {
        ADD_FAILURE_AT(where.file_name(), where.line()) << "no process to wait for";
        return kKilledExitCode;
    }
    if (std::optional<DWORD> code = Wait(timeoutMs)) return *code;
    ADD_FAILURE_AT(where.file_name(), where.line())
        << "process " << id_ << " still ran after " << timeoutMs << " ms and was killed";
    Kill();
    return kKilledExitCode;
}

DWORD Process::CloseDialog(HWND dialog, int button, std::source_location where) {
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(button, BN_CLICKED), 0);
    return WaitOrKill(kDefaultTimeoutMs, where);
}

void Process::Kill() {
    if (!Running()) return;
    TerminateProcess(process_.get(), kKilledExitCode);
    WaitForSingleObject(process_.get(), 5000);
}

Process StartOption(const std::vector<std::wstring>& args, const EnvChanges& env, std::source_location where) {
    return Process::Start(OptionExePath(), args, env, where);
}

DWORD RunOption(const std::vector<std::wstring>& args, const EnvChanges& env, DWORD timeoutMs,
                std::source_location where) {
    Process option = StartOption(args, env, where);
    if (!option) return kKilledExitCode;
    return option.WaitOrKill(timeoutMs, where);
}

}  // namespace e2e
