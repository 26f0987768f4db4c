// The user's "Script\Editor.txt", which "/A" runs, replaced for a test and put back after it.
#pragma once

#include <string>

namespace e2e {

class EditorScript {
public:
    // text without its byte order mark, lines ended by CR LF.
    explicit EditorScript(const std::wstring& text);
    ~EditorScript();
    EditorScript(const EditorScript&) = delete;
    EditorScript& operator=(const EditorScript&) = delete;

private:
    std::wstring path_;
    std::string saved_;
};

}  // namespace e2e
