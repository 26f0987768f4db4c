#include "Process.h"

#include "Files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <map>

namespace e2e {
namespace {

std::wstring Upper(std::wstring text) {
    std::transform(text.begin(), text.end(), text.begin(), [](wchar_t c) { return std::towupper(c); });
    return text;
}

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

// The command line CommandLineToArgvW and the C runtime split back into exactly these arguments.
std::wstring QuoteArgument(const std::wstring& argument) {
    if (!argument.empty() && argument.find_first_of(L" \t\n\v\"") == std::wstring::npos) return argument;
    std::wstring quoted = L"\"";
    size_t backslashes = 0;
    for (wchar_t c : argument) {
        if (c == L'\\') {
            ++backslashes;
            continue;
        }
        // Backslashes double only where a quote follows them.
        quoted.append(c == L'"' ? backslashes * 2 + 1 : backslashes, L'\\');
        backslashes = 0;
        quoted += c;
    }
    quoted.append(backslashes * 2, L'\\');
    return quoted + L"\"";
}

// This process's environment with the changes applied, as a sorted CREATE_UNICODE_ENVIRONMENT block.
std::wstring EnvironmentBlock(const EnvChanges& changes) {
    // Keyed by the upper-case name: Windows sorts and matches variables without regard to case.
    std::map<std::wstring, std::wstring> variables;
    if (wchar_t* strings = GetEnvironmentStringsW()) {
        for (const wchar_t* entry = strings; *entry; entry += wcslen(entry) + 1) {
            std::wstring text = entry;
            // "=C:=C:\dir" entries have their '=' after a leading one.
            size_t equals = text.find(L'=', 1);
            if (equals == std::wstring::npos) continue;
            variables[Upper(text.substr(0, equals))] = text;
        }
        FreeEnvironmentStringsW(strings);
    }
    for (const EnvVar& change : changes) variables[Upper(change.name)] = change.name + L"=" + change.value;
    std::wstring block;
    for (const auto& [key, entry] : variables) {
        block += entry;
        block += L'\0';
    }
    if (block.empty()) block += L'\0';
    block += L'\0';
    return block;
}

}  // namespace

std::wstring TestDirectory() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return StripFileName(path);
        }
        path.resize(path.size() * 2);
    }
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
    std::wstring environment = EnvironmentBlock(env);
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION info{};
    Process process;
    if (!CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, CREATE_UNICODE_ENVIRONMENT,
                        environment.data(), nullptr, &startup, &info)) {
        DWORD error = GetLastError();
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
