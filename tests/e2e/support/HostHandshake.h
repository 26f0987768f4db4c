// What a host prepares before it starts the tool: the switch string and the shared block it names.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "Handles.h"
#include "Process.h"

namespace e2e {

// Ten colon-separated fields: mode, reactivate, the two numbers of the block name, the block size,
// three unused ones, the word that says a block exists, one more unused.
std::wstring SwitchString(int windowMode, int reactivate, int first, int second, DWORD sizeBytes,
                          const std::wstring& word = L"Share");
// The environment change that hands a switch string to Option.exe.
EnvVar HostSwitch(const std::wstring& switchString);

// Block text: the two list counts, current directory, option text, both lists; every field ends in a tab.
std::wstring ShareBlockText(const std::wstring& currentDir, const std::wstring& option,
                            const std::vector<std::wstring>& firstList, const std::vector<std::wstring>& secondList);

// The named mapping "ShareMem_<first>_<second>" and its mutex, held for as long as the object lives.
class ShareBlock {
public:
    ShareBlock(int first, int second, DWORD sizeBytes, const std::wstring& text);
    ShareBlock(const ShareBlock&) = delete;
    ShareBlock& operator=(const ShareBlock&) = delete;

    bool Valid() const { return static_cast<bool>(view_); }
    HANDLE Mutex() const { return mutex_.get(); }
    // The whole block as 16-bit units, zeros included: a reader may have changed it.
    std::wstring Contents() const;

private:
    DWORD size_;
    UniqueHandle mapping_;
    UniqueHandle mutex_;
    UniqueView view_;
};

}  // namespace e2e
