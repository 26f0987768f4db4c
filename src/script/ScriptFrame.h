// The state of one run of a script file. An included script has a frame of its own and shares only
// the tables and the selection its parent hands on.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/FileSystem.h"
#include "platform/HostWindows.h"
#include "script/RunOptions.h"
#include "script/SelectionList.h"
#include "script/VariableTable.h"
#include "services/TextFileReader.h"

class ScriptRunner;

// A longer line is taken for the end of the file.
constexpr uint32_t kScriptLineLimit = 32767;

// What the caller gives a run. The runner fills in what it was left to find or make.
struct ScriptArguments {
    std::wstring scriptPath;
    std::wstring nowDirectory;
    std::wstring targetPath;
    SelectionList* selection = nullptr;
    // -1: the script chooses its open mode; anything else overrides it.
    uint32_t forcedOpenMode = static_cast<uint32_t>(-1);
    int allowCommandLine = 0;
    platform::WindowRef hostWindow = 0;
    int selectionCommandLine = 0;
    int reserved = 0;
    VariableTable* variables = nullptr;
    RunOptionTable* options = nullptr;
};

// The states of an open "if": which branch the lines are in and whether they run.
enum IfState : uint32_t {
    kIfElseOfFalse = 0,    // runs
    kIfThenOfTrue = 1,     // runs
    kIfThenOfFalse = 2,    // skipped
    kIfElseOfTrue = 3,     // skipped, and so is every "if" inside
    kIfInsideSkipped = 4,  // an "if" inside a skipped then branch: skipped
};

enum LoopKind : int32_t { kLoopFor = 1, kLoopDo = 2 };

// One "exrun" line: what it starts, for which items, and how.
struct ExRunEntry {
    std::wstring programs;  // one program, or alternatives separated by "|"
    std::wstring filter;
    std::wstring argumentText;
    std::wstring directory;
    int32_t launchMode = 0;
};

// Label text, with its case, to the offset of its line.
using LabelTable = std::unordered_map<std::wstring, uint32_t>;

class ScriptFrame {
public:
    // Keeps the arguments, finds the host window when none was given, makes the tables the caller
    // left out, reads the run options and takes the selection's count.
    ScriptFrame(ScriptRunner& runner, const ScriptArguments& arguments);
    ScriptFrame(const ScriptFrame&) = delete;
    ScriptFrame& operator=(const ScriptFrame&) = delete;

    // The next line into the line buffer; false at the end of the file or at an overlong line.
    bool ReadLine();
    const wchar_t* line() const { return lineBuffer_.data(); }
    // ExpandScriptText with this frame's tables, directories, selection and item.
    std::wstring Expand(std::wstring text, bool trim) const;
    // The record of run options as the shared table holds them now.
    void ReadRunOptions() { runOptions = ::ReadRunOptions(*arguments.options); }

    ScriptRunner& runner;
    // With the host window looked up and the tables in use, owned or not: an include hands them on.
    ScriptArguments arguments;
    TextFileReader reader;
    LabelTable labels;
    RunOptions runOptions;
    // "?SelectedCount?" stays the count at the start, whatever the script does to the list.
    std::wstring selectedCountText;
    int64_t selectedCountAtStart = 0;
    // The item of the running "for" loop; -1 outside. Nested loops share it and its return point.
    int32_t ItemIndex = -1;
    uint32_t ForReturnOffset = 0;
    // Lines are read on and passed over up to the "next" or the "while" that ends the loop.
    bool SkipToNext = false;
    bool SkipToWhile = false;
    // Backward gotos of the whole run, held against the exitloopcount option.
    int32_t BackJumpCount = 0;
    // One state per open "if", see IfState.
    std::vector<uint32_t> IfStack;
    // kLoopFor or kLoopDo per open loop, and where each "do" goes back to.
    std::vector<int32_t> LoopKindStack;
    std::vector<uint32_t> DoReturnStack;
    platform::WindowRef TraceWindow = 0;
    // The file "fileopen" opened, closed at the latest with the frame. The next open empties the file
    // when truncateNextOpen is set; the next "filewritew" puts a byte order mark first when
    // writeByteOrderMark is.
    std::unique_ptr<platform::File> outputFile;
    bool truncateNextOpen = false;
    bool writeByteOrderMark = false;
    // The file "fileread" and "fileallread" read; another path reopens it at its top.
    TextFileReader dataReader;
    // The "exrun" lines, started for each item once the script has ended.
    std::vector<ExRunEntry> exRuns;

private:
    std::unique_ptr<VariableTable> ownVariables_;
    std::unique_ptr<RunOptionTable> ownOptions_;
    std::vector<wchar_t> lineBuffer_;
};
