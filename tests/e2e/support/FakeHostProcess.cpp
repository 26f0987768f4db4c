#include "FakeHostProcess.h"

#include "Files.h"
#include "OptionWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>

namespace e2e {
namespace {

constexpr DWORD kStartTimeoutMs = 15000;
constexpr char kReady[] = "ready";

std::wstring NewLogPath() {
    static std::atomic<unsigned> counter{0};
    wchar_t temp[MAX_PATH + 1];
    DWORD length = GetTempPathW(MAX_PATH + 1, temp);
    return std::wstring(temp, length) + L"FakeHost-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
           std::to_wstring(++counter) + L".log";
}

}  // namespace

std::vector<std::string> ReadLogLines(const std::wstring& path) {
    const std::string content = ReadFileBytes(path);
    std::vector<std::string> lines;
    size_t start = 0;
    // A line without its line end is still being written and is left for the next read.
    for (size_t end; (end = content.find('\n', start)) != std::string::npos; start = end + 1) {
        std::string line = content.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(std::move(line));
    }
    return lines;
}

FakeHost::FakeHost(FakeHostOptions options, std::source_location where) : logPath_(NewLogPath()) {
    std::vector<std::wstring> args = {L"--log", logPath_, L"--title", options.title};
    if (options.hidden) args.push_back(L"--hidden");
    process_ = Process::Start(TestDirectory() + L"\\FakeHost.exe", args, {}, where);
    if (!process_) return;

    ULONGLONG deadline = GetTickCount64() + kStartTimeoutMs;
    for (std::vector<std::string> lines; GetTickCount64() < deadline && process_.Running(); Sleep(20)) {
        lines = ReadLogLines(logPath_);
        if (std::find(lines.begin(), lines.end(), kReady) == lines.end()) continue;
        auto isHost = [](HWND window) {
            wchar_t name[64] = {};
            return GetClassNameW(window, name, 64) && std::wstring(name) == kHostClassName;
        };
        window_ = FindWindowOf(process_.Id(), isHost, 0);
        break;
    }
    if (!window_) ADD_FAILURE_AT(where.file_name(), where.line()) << "FakeHost.exe did not come up";
}

FakeHost::~FakeHost() {
    if (process_.Running()) {
        PostMessageW(window_, WM_CLOSE, 0, 0);
        process_.Wait(5000);
    }
    process_.Kill();
    DeleteFileW(logPath_.c_str());
}

std::vector<std::string> FakeHost::Lines() const {
    std::vector<std::string> lines = ReadLogLines(logPath_);
    auto ready = std::find(lines.begin(), lines.end(), kReady);
    if (ready != lines.end()) lines.erase(lines.begin(), ready + 1);
    return lines;
}

std::vector<std::string> FakeHost::TakeLines() {
    std::vector<std::string> lines = Lines();
    std::vector<std::string> fresh(lines.begin() + std::min(taken_, lines.size()), lines.end());
    taken_ = lines.size();
    return fresh;
}

std::vector<unsigned> FakeHost::Commands() const {
    std::vector<unsigned> commands;
    for (const std::string& line : Lines()) {
        if (line.rfind("command ", 0) == 0) commands.push_back(static_cast<unsigned>(std::stoul(line.substr(8))));
    }
    return commands;
}

}  // namespace e2e
