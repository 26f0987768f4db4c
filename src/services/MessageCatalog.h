// Numbered texts for message boxes, from the language's message file. A lookup never fails.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

class MessageCatalog {
public:
    static constexpr const wchar_t* kMissingText = L"No message text.Please update message file.";

    MessageCatalog() = default;
    MessageCatalog(const MessageCatalog&) = delete;
    MessageCatalog& operator=(const MessageCatalog&) = delete;

    // Reads the file anew; 1 when at least one entry was read. A missing file is told to the user.
    int Load();
    // The text of an id. While nothing is loaded every lookup tries the file again.
    std::wstring Get(uint16_t id);
    // A yes/no confirmation, asked only while its bit of the "Message" setting is on: -1 when it is
    // off, else the answer. Caption: the text of id; body: the text of id + 1 and the closing text.
    int Confirm(int32_t messageSetting, uint16_t id);

    // Names the file; it is not opened until the first lookup.
    void SetPath(std::wstring path) { path_ = std::move(path); }
    const std::wstring& path() const { return path_; }

private:
    std::wstring path_;
    std::unordered_map<uint16_t, std::wstring> texts_;
};

// "..\..\Lang\Msg" + tag + ".txt" beside the program, the tag glued on as it stands.
std::wstring MessageFilePath(const std::wstring& programDirectory, const std::wstring& languageTag);
