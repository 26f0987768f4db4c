// The language dialogs are shown in, and whether their text files are used at all. Read once from
// the registry and kept for the life of the process, beside the other process-wide services.
#pragma once

#include <cstdint>
#include <string>

class DialogLanguage {
public:
    // The dialog templates are written in this language.
    static constexpr const wchar_t* kResourceTag = L".ja-JP";

    DialogLanguage() = default;
    DialogLanguage(const DialogLanguage&) = delete;
    DialogLanguage& operator=(const DialogLanguage&) = delete;

    // Reads NLS and LangOut unless a tag is known already; an empty NLS is thus read again next time.
    void Load();
    // False for the templates' own language, unless LangOut asks for files in it as well.
    bool UsesTextFiles();

    const std::wstring& tag() const { return tag_; }
    int32_t langOut() const { return langOut_; }

private:
    std::wstring tag_;
    int32_t langOut_ = 0;
};
