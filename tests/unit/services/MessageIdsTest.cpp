// The code names messages only through the one list, so a missing text is found here and not by a user.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "platform/fake/FakePlatform.h"
#include "services/MessageCatalog.h"
#include "services/MessageIds.h"

namespace {

const std::filesystem::path kSourceDir = OPTION_SOURCE_DIR;

// A whole number of five digits from 62301 to 63999 somewhere in the line.
bool HasMessageNumber(const std::string& line) {
    for (size_t at = 0; (at = line.find_first_of("0123456789", at)) != std::string::npos;) {
        const size_t end = std::min(line.find_first_not_of("0123456789", at), line.size());
        const int value = end - at == 5 ? std::stoi(line.substr(at, 5)) : 0;
        if (value >= 62301 && value <= 63999) return true;
        at = end;
    }
    return false;
}

TEST(MessageIds, EverySampleLanguageHasEveryText) {
    std::vector<uint16_t> ids(std::begin(kAllMessageIds), std::end(kAllMessageIds));
    for (int i = 0; i < 2 * kConfirmationCount; ++i) ids.push_back(static_cast<uint16_t>(kFirstConfirmation + i));
    for (const char* file : {"Msg.ja-JP.txt", "Msg.en-US.txt"}) {
        std::ifstream stream(kSourceDir / "sample" / "Lang" / file, std::ios::binary);
        const std::vector<uint8_t> bytes(std::istreambuf_iterator<char>(stream), {});
        ASSERT_FALSE(bytes.empty()) << file;
        platform::fake::FakePlatform fake;
        fake.files().AddFile(L"C:\\Lang\\Msg.txt", bytes);
        MessageCatalog messages;
        messages.SetPath(L"C:\\Lang\\Msg.txt");
        for (uint16_t id : ids) EXPECT_NE(MessageCatalog::kMissingText, messages.Get(id)) << file << " lacks " << id;
        EXPECT_TRUE(fake.prompts().shown().empty());
    }
}

TEST(MessageIds, CodeNamesMessagesThroughTheList) {
    // Numbers in the message range written anywhere else would bypass the check above.
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(kSourceDir / "src")) {
        const std::filesystem::path& path = entry.path();
        std::string name = path.filename().string();
        if (name == "MessageIds.h" || name == "CollationRanks.cpp") continue;
        if (path.extension() != ".cpp" && path.extension() != ".h") continue;
        std::ifstream file(path);
        std::string line;
        for (int lineNumber = 1; std::getline(file, line); ++lineNumber) {
            if (HasMessageNumber(line)) found.push_back(name + ":" + std::to_string(lineNumber) + ": " + line);
        }
    }
    EXPECT_TRUE(found.empty()) << testing::PrintToString(found);
}

}  // namespace
