#include "EditorScript.h"

#include <windows.h>

#include "Files.h"

namespace e2e {

namespace {

std::wstring ScriptDirectory() {
    wchar_t value[MAX_PATH] = {};
    GetEnvironmentVariableW(L"LOCALAPPDATA", value, MAX_PATH);
    return std::wstring(value) + L"\\Qor\\Script";
}

}  // namespace

EditorScript::EditorScript(const std::wstring& text)
    : path_(ScriptDirectory() + L"\\Editor.txt"), saved_(ReadFileBytes(path_)) {
    CreateDirectoryW(ScriptDirectory().c_str(), nullptr);
    WriteUtf16File(path_, L"\uFEFF" + text);
}

EditorScript::~EditorScript() {
    if (saved_.empty())
        DeleteFileW(path_.c_str());
    else
        WriteFileBytes(path_, saved_);
}

}  // namespace e2e
