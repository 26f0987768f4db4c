#include "script/ScriptFunctions.h"

#include "script/ScriptFileFunctions.h"
#include "script/ScriptLaunchWords.h"
#include "script/ScriptMessageBoxes.h"
#include "script/ScriptPathFunctions.h"
#include "script/ScriptSystemFunctions.h"
#include "script/ScriptTextFunctions.h"

namespace {

const ScriptFunction kFunctions[] = {
    {L"messagebox", MessageBoxFunction, true, 3},
    {L"messageboxok", MessageBoxOkFunction, true},
    {L"messageboxyn", MessageBoxYnFunction, true},
    {L"call", CallFunction, true},
    {L"exec", ExecFunction, true},
    {L"random", RandomItem},
    {L"exist", Exist},
    {L"isdirectory", IsDirectory},
    {L"isfile", IsFile},
    {L"getpath", GetPath},
    {L"getname", GetName},
    {L"getext", GetExt},
    {L"removelastseparator", RemoveLastSeparator},
    {L"length", Length},
    {L"substring", SubString},
    {L"find", Find},
    {L"replace", ReplaceText},
    {L"csv", CsvField},
    {L"left", LeftText},
    {L"right", RightText},
    {L"double", Compute},
    {L"fileread", FileReadFunction},
    {L"fileallread", FileAllReadFunction},
    {L"getsystemmetrics", SystemMetricsFunction},
    {L"mainwindowposition", MainWindowPosition},
    // The one function without arguments: its name alone, and nothing behind it, not even a comma.
    {L"getclipboardtext", ClipboardTextFunction, false, 1, 1},
};

}  // namespace

const ScriptFunction* FindScriptFunction(const std::wstring& name) {
    for (const ScriptFunction& function : kFunctions)
        if (name == function.name) return &function;
    return nullptr;
}
