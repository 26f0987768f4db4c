// Runs a script file for a selection and prints what it left behind: the result, the variables, and
// on the fake platform the messages it showed and what the trace window heard. With --bench it
// also counts the statements of one run and times further runs of the script. Not shipped.
//
//   script_run [--real] [--bench N] script [item ...]
//
// On the fake platform the script is read from this machine and placed at C:\Scripts\<name>; every
// question gets its default answer. --real (Windows only) runs on the real platform, path as given.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "script/ScriptRunner.h"
#include "services/MessageCatalog.h"
#ifdef _WIN32
#include "platform/win32/Win32Platform.h"
#endif

namespace {

struct Options {
    bool real = false;
    int benchRuns = 0;
    std::string script;
    std::vector<std::wstring> items;
};

// The tool's own output is UTF-8 whatever the platform's wide character is.
std::string Utf8(const std::wstring& text) {
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        uint32_t c = static_cast<uint16_t>(text[i]);
        if (c >= 0xD800 && c < 0xDC00 && i + 1 < text.size()) {
            const uint32_t low = static_cast<uint16_t>(text[i + 1]);
            if (low >= 0xDC00 && low < 0xE000) {
                c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                ++i;
            }
        }
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xF0 | (c >> 18));
            out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

// Arguments are taken as Latin-1 or ASCII: enough for paths of test files.
std::wstring Widen(const std::string& text) {
    return std::wstring(text.begin(), text.end());
}

std::optional<Options> ParseArguments(int argc, char** argv) {
    Options options;
    int i = 1;
    for (; i < argc && argv[i][0] == '-'; ++i) {
        if (std::strcmp(argv[i], "--real") == 0)
            options.real = true;
        else if (std::strcmp(argv[i], "--bench") == 0 && i + 1 < argc)
            options.benchRuns = std::atoi(argv[++i]);
        else
            return std::nullopt;
    }
    if (i >= argc) return std::nullopt;
    options.script = argv[i++];
    for (; i < argc; ++i) options.items.push_back(Widen(argv[i]));
    return options;
}

int32_t RunOnce(const std::wstring& path, const std::vector<std::wstring>& items, VariableTable& variables) {
    UserDirectories directories;
    MessageCatalog messages;
    ScriptRunner runner(directories, messages);
    SelectionList selection = items;
    return runner.Run(path, L"", L"", selection, static_cast<uint32_t>(-1), 1, 0, 0, 1, &variables, nullptr);
}

void PrintVariables(int32_t result, const VariableTable& variables) {
    std::printf("result\t%d\n", result);
    variables.ForEach([](const std::wstring& name, const std::wstring& value) {
        std::printf("variable\t%s\t%s\n", Utf8(name).c_str(), Utf8(value).c_str());
    });
}

int RunFake(const Options& options) {
    std::ifstream file(options.script, std::ios::binary);
    if (!file) {
        std::fprintf(stderr, "cannot read %s\n", options.script.c_str());
        return 2;
    }
    const std::vector<uint8_t> bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const size_t slash = options.script.find_last_of("/\\");
    const std::wstring path = L"C:\\Scripts\\" + Widen(options.script.substr(slash + 1));

    platform::fake::FakePlatform fake;
    fake.environment().SetModuleFileName(L"C:\\Qor\\command\\Option\\Option.exe");
    fake.files().AddDirectory(L"C:\\Qor\\command\\Option");
    fake.files().AddDirectory(L"C:\\Scripts");
    fake.files().AddFile(path, bytes);
    fake.windows().SetTitledWindow(L"Script trace Qor", 0x51);

    VariableTable variables;
    const int32_t result = RunOnce(path, options.items, variables);
    PrintVariables(result, variables);
    for (const auto& shown : fake.prompts().shown()) std::printf("message\t%s\n", Utf8(shown.text).c_str());
    size_t statements = 0;
    for (const auto& copy : fake.windows().copies()) {
        std::printf("trace\t%u\t%s\n", copy.code, Utf8(copy.text).c_str());
        if (copy.code == 2) ++statements;
    }
    if (options.benchRuns <= 0) return 0;

    // Timed without the trace window, which a script finds only at its start.
    fake.windows().SetTitledWindow(L"Script trace Qor", 0);
    const auto start = std::chrono::steady_clock::now();
    for (int run = 0; run < options.benchRuns; ++run) {
        VariableTable fresh;
        RunOnce(path, options.items, fresh);
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
    const double perRun = took.count() / options.benchRuns;
    std::printf("bench\t%zu statements per run\t%.3f s per run\t%.0f statements per second\n", statements, perRun,
                static_cast<double>(statements) / perRun);
    return 0;
}

#ifdef _WIN32
int RunReal(const Options& options) {
    platform::win32::Win32Platform real;
    VariableTable variables;
    PrintVariables(RunOnce(Widen(options.script), options.items, variables), variables);
    return 0;
}
#endif

}  // namespace

int main(int argc, char** argv) {
    const std::optional<Options> options = ParseArguments(argc, argv);
    if (!options) {
        std::fprintf(stderr, "usage: script_run [--real] [--bench N] script [item ...]\n");
        return 2;
    }
#ifdef _WIN32
    if (options->real) return RunReal(*options);
#else
    if (options->real) {
        std::fprintf(stderr, "--real needs the Windows build\n");
        return 2;
    }
#endif
    return RunFake(*options);
}
