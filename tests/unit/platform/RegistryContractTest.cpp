// One set of expectations for the fake registry and, in the Windows build, the real one.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/fake/FakeRegistry.h"

#include "unit/platform/ContractSuite.h"

#ifdef _WIN32
#include <windows.h>

#include "platform/win32/Win32Registry.h"
#endif

namespace {

using platform::Registry;
using platform::RegistryKey;

// A registry and an empty scratch key in it, gone again with the harness.
class RegistryHarness {
public:
    virtual ~RegistryHarness() = default;
    virtual Registry& registry() = 0;
    virtual std::wstring scratch() const = 0;
    // Wine keeps values sorted by name; Windows and the fake keep the order of creation.
    virtual bool valuesInCreationOrder() const = 0;
};

class FakeHarness : public RegistryHarness {
public:
    FakeHarness() {
        std::unique_ptr<RegistryKey> key;
        registry_.CreateKey(scratch(), key);
    }
    Registry& registry() override { return registry_; }
    std::wstring scratch() const override { return L"Software\\Tarnwick\\OptionTests\\fake"; }
    bool valuesInCreationOrder() const override { return true; }

private:
    platform::fake::FakeRegistry registry_;
};

#ifdef _WIN32
bool UnderWine() {
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

class RealHarness : public RegistryHarness {
public:
    RealHarness() {
        static int counter = 0;
        scratch_ = L"Software\\Tarnwick\\OptionTests\\" + std::to_wstring(GetCurrentProcessId()) + L"-" +
                   std::to_wstring(++counter);
        std::unique_ptr<RegistryKey> key;
        registry_.CreateKey(scratch_, key);
    }
    ~RealHarness() override {
        RegDeleteTreeW(HKEY_CURRENT_USER, scratch_.c_str());
        RegDeleteKeyW(HKEY_CURRENT_USER, L"Software\\Tarnwick\\OptionTests");  // when no other run is left
    }
    Registry& registry() override { return registry_; }
    std::wstring scratch() const override { return scratch_; }
    bool valuesInCreationOrder() const override { return !UnderWine(); }

private:
    platform::win32::Win32Registry registry_;
    std::wstring scratch_;
};
#else
using RealHarness = void;  // the native build has only the fake
#endif

using Implementation = contract::Implementation<RegistryHarness>;

std::vector<uint8_t> Bytes(const void* data, size_t size) {
    auto* bytes = static_cast<const uint8_t*>(data);
    return std::vector<uint8_t>(bytes, bytes + size);
}

class RegistryContract : public testing::TestWithParam<Implementation> {
protected:
    void SetUp() override { harness_ = GetParam().make(); }

    Registry& registry() { return harness_->registry(); }
    std::wstring Path(const std::wstring& below) { return harness_->scratch() + L"\\" + below; }

    std::unique_ptr<RegistryKey> Create(const std::wstring& below) {
        std::unique_ptr<RegistryKey> key;
        EXPECT_EQ(0, registry().CreateKey(Path(below), key)) << "creating " << testing::PrintToString(below);
        return key;
    }

    // The value's bytes, or an empty vector with the failure reported.
    std::vector<uint8_t> Read(RegistryKey& key, const std::wstring& name, uint32_t* type = nullptr) {
        uint32_t size = 0;
        if (key.QueryValue(name, type, nullptr, &size) != 0) return {};
        std::vector<uint8_t> data(size + 1, 0xEE);
        EXPECT_EQ(0, key.QueryValue(name, type, data.data(), &size));
        data.resize(size);
        return data;
    }

    // Names by index until the end, which must be reported as no more items.
    static std::vector<std::wstring> Enumerate(const std::function<long(uint32_t, std::wstring&)>& nameAt) {
        std::vector<std::wstring> names;
        std::wstring name;
        uint32_t index = 0;
        while (nameAt(index++, name) == 0) names.push_back(name);
        EXPECT_EQ(259, nameAt(index - 1, name));
        return names;
    }
    static std::vector<std::wstring> ValueNames(RegistryKey& key) {
        return Enumerate([&](uint32_t index, std::wstring& name) { return key.EnumValueName(index, name); });
    }
    static std::vector<std::wstring> SubkeyNames(RegistryKey& key) {
        return Enumerate([&](uint32_t index, std::wstring& name) { return key.EnumKeyName(index, name); });
    }

    std::unique_ptr<RegistryHarness> harness_;
};

// String types count a terminator that follows the data; any other unit behind it is no terminator.
TEST_P(RegistryContract, StringTypesCountATerminatorThatFollowsTheData) {
    // clang-format off
    struct Case { const char16_t* text; uint32_t type; uint32_t size; uint32_t stored; };
    const Case cases[] = {
        {u"abc", platform::kRegSz, 6, 8},        // "abc" counted, its terminator behind it
        {u"abc", platform::kRegExpandSz, 6, 8},  //
        {u"abc", platform::kRegSz, 8, 8},        // terminator counted by the caller
        {u"abcX", platform::kRegSz, 6, 6},       // the X behind the count is no terminator
        {u"abc", platform::kRegSz, 5, 5},        // odd count: the last counted unit is no whole character
        {u"abc", platform::kRegBinary, 6, 6},    // other types are stored as counted
    };
    // clang-format on
    auto key = Create(L"k");
    for (const Case& c : cases) {
        ASSERT_EQ(0, key->SetValue(L"v", c.type, c.text, c.size));
        uint32_t type = 0;
        uint32_t size = 0;
        EXPECT_EQ(0, key->QueryValue(L"v", &type, nullptr, &size));
        EXPECT_EQ(c.type, type);
        EXPECT_EQ(c.stored, size) << "type " << c.type << ", " << c.size << " bytes";
        EXPECT_EQ(Bytes(c.text, c.stored), Read(*key, L"v"));
    }
}

TEST_P(RegistryContract, ReadsFollowTheSizeRules) {
    auto key = Create(L"k");
    std::vector<char16_t> units(16400, u'z');  // no NUL behind the counted part
    std::u16string terminated(16384, u'z');    // 32,768 bytes with the terminator behind them
    uint32_t dword = 7;
    ASSERT_EQ(0, key->SetValue(L"exact", platform::kRegSz, units.data(), 32768));
    ASSERT_EQ(0, key->SetValue(L"over", platform::kRegSz, units.data(), 32770));
    ASSERT_EQ(0, key->SetValue(L"terminated", platform::kRegSz, terminated.c_str(), 32768));
    ASSERT_EQ(0, key->SetValue(L"short", platform::kRegSz, u"abcdef", 12));
    ASSERT_EQ(0, key->SetValue(L"dword", platform::kRegDword, &dword, 4));

    // clang-format off
    struct Case { const wchar_t* name; uint32_t buffer; long result; uint32_t size; };
    const Case cases[] = {
        {L"exact", 32768, 0, 32768},  {L"over", 32768, 234, 32770}, {L"terminated", 32768, 234, 32770},
        {L"short", 4, 234, 14},       {L"dword", 4, 0, 4},          {L"dword", 2, 234, 4},
        {L"absent", 32768, 2, 32768},
    };
    // clang-format on
    std::vector<uint8_t> buffer(32768);
    for (const Case& c : cases) {
        uint32_t size = c.buffer;
        EXPECT_EQ(c.result, key->QueryValue(c.name, nullptr, buffer.data(), &size)) << testing::PrintToString(c.name);
        EXPECT_EQ(c.size, size) << testing::PrintToString(c.name) << " into " << c.buffer;
    }
    uint32_t size = 0;
    const long over = key->QueryValue(L"over", nullptr, nullptr, &size);  // the size alone
    EXPECT_EQ(std::pair(0L, 32770u), std::pair(over, size));
    EXPECT_EQ(87, key->QueryValue(L"dword", nullptr, buffer.data(), nullptr));
}

TEST_P(RegistryContract, NamesIgnoreLetterCase) {
    auto key = Create(L"Mixed\\Case\\Ärger");
    uint32_t one = 1, two = 2;
    ASSERT_EQ(0, key->SetValue(L"Alpha", platform::kRegDword, &one, 4));
    ASSERT_EQ(0, key->SetValue(L"\u03A9mega", platform::kRegDword, &one, 4));  // Greek capital omega
    ASSERT_EQ(0, key->SetValue(L"ALPHA", platform::kRegDword, &two, 4));       // the same value

    EXPECT_EQ(Bytes(&two, 4), Read(*key, L"alpha"));
    EXPECT_EQ(Bytes(&one, 4), Read(*key, L"\u03C9MEGA"));
    EXPECT_EQ((std::vector<std::wstring>{L"Alpha", L"\u03A9mega"}), ValueNames(*key)) << "first spelling stays";

    for (const wchar_t* path : {L"MIXED\\case\\ärger", L"mixed\\CASE\\ÄRGER"}) {
        std::unique_ptr<RegistryKey> other;
        ASSERT_EQ(0, registry().OpenKey(Path(path), other)) << testing::PrintToString(path);
        EXPECT_EQ(Bytes(&two, 4), Read(*other, L"Alpha"));
    }
}

// Values come once each, the default one too; subkeys come in alphabetical order.
TEST_P(RegistryContract, ValuesEnumerateOnceEachAndSubkeysInOrder) {
    auto key = Create(L"k");
    for (const wchar_t* name : {L"zeta", L"Alpha", L"beta", L"a1", L"B2"}) Create(std::wstring(L"k\\") + name);
    EXPECT_EQ((std::vector<std::wstring>{L"a1", L"Alpha", L"B2", L"beta", L"zeta"}), SubkeyNames(*key));
    const std::vector<std::wstring> created = {L"zeta", L"Alpha", L"", L"beta", L"B2"};
    uint32_t data = 1;
    for (const auto& name : created) ASSERT_EQ(0, key->SetValue(name, platform::kRegDword, &data, 4));
    ASSERT_EQ(0, key->DeleteValue(L"BETA"));

    std::vector<std::wstring> names = ValueNames(*key);
    EXPECT_EQ((std::multiset<std::wstring>{L"zeta", L"Alpha", L"", L"B2"}),
              std::multiset<std::wstring>(names.begin(), names.end()));
    if (harness_->valuesInCreationOrder()) {
        EXPECT_EQ((std::vector<std::wstring>{L"zeta", L"Alpha", L"", L"B2"}), names);
    }
    // The default value is the one with the empty name.
    ASSERT_EQ(0, key->SetValue(L"", platform::kRegSz, u"d", 4));
    uint32_t type = 0, size = 0;
    EXPECT_EQ(Bytes(u"d", 4), Read(*key, L"", &type));
    EXPECT_EQ(0, key->DeleteValue(L""));
    EXPECT_EQ(std::pair(uint32_t{platform::kRegSz}, 2L),
              std::pair(type, key->QueryValue(L"", nullptr, nullptr, &size)));
}

// The name comes whenever it fits with its terminator, even when the data does not.
TEST_P(RegistryContract, EnumeratingValuesRespectsTheCallersBuffers) {
    auto key = Create(L"k");
    std::vector<uint8_t> big(2000, 'q');
    ASSERT_EQ(0, key->SetValue(L"LongValueName", platform::kRegBinary, big.data(), 2000));  // 13 characters
    std::vector<uint8_t> data(1024);
    uint32_t type = 0, size = 1024;
    std::wstring tooShort = L"poison", fits, withData;
    EXPECT_EQ((std::vector<long>{234, 0, 234}),
              (std::vector<long>{key->EnumValue(0, 13, tooShort, nullptr, nullptr, nullptr),
                                 key->EnumValue(0, 14, fits, nullptr, nullptr, nullptr),
                                 key->EnumValue(0, 520, withData, &type, data.data(), &size)}));
    EXPECT_EQ((std::vector<std::wstring>{L"poison", L"LongValueName", L"LongValueName"}),
              (std::vector<std::wstring>{tooShort, fits, withData}));
    EXPECT_EQ((std::pair<uint32_t, uint32_t>(2000, platform::kRegBinary)), std::pair(size, type));

    uint32_t dword = 49033, read = 0;
    ASSERT_EQ(0, key->SetValue(L"LongValueName", platform::kRegDword, &dword, 4));
    size = 4;
    EXPECT_EQ(0, key->EnumValue(0, 520, fits, &type, &read, &size));
    EXPECT_EQ(49033u, read);
    EXPECT_EQ(259, key->EnumValue(1, 520, fits, &type, &read, &size));
}

// Creating makes every missing key on the path; deleting takes one key without subkeys, in any
// letter case, and a handle to a deleted key fails even when a new key of its path is made.
TEST_P(RegistryContract, KeysAreCreatedWithTheirPathAndDeletedOneByOne) {
    Create(L"a\\b\\c\\d");
    Create(L"leaf");
    auto held = Create(L"gone");
    ASSERT_EQ(0, registry().DeleteKey(Path(L"gone")));
    auto again = Create(L"gone");
    // A row opens the path, or deletes it when open is false.
    // clang-format off
    struct Case { bool open; const wchar_t* path; long result; };
    const Case cases[] = {
        {true, L"a", 0}, {true, L"a\\b", 0}, {true, L"A\\B\\C", 0}, {true, L"a\\b\\c\\D", 0}, {true, L"a\\b\\x", 2},
        {false, L"a\\b\\c", 5},      // a key with subkeys stays
        {false, L"absent", 2}, {false, L"no\\such", 2},  // a missing key on the way
        {false, L"LEAF", 0}, {false, L"leaf", 2},
        {false, L"a\\b\\c\\d\\", 0},  // a trailing separator is ignored
        {false, L"a\\b\\c", 0}, {true, L"a\\b\\c", 2},
    };
    // clang-format on
    for (const Case& c : cases) {
        std::unique_ptr<RegistryKey> key;
        EXPECT_EQ(c.result, c.open ? registry().OpenKey(Path(c.path), key) : registry().DeleteKey(Path(c.path)))
            << (c.open ? "open " : "delete ") << testing::PrintToString(c.path);
    }
    EXPECT_EQ(2, again->DeleteValue(L"absent"));
    uint32_t data = 1;
    uint32_t size = 4;
    std::wstring name;
    EXPECT_EQ((std::vector<long>{1018, 1018, 1018, 1018, 1018, 0}),
              (std::vector<long>{held->SetValue(L"v", platform::kRegDword, &data, 4),
                                 held->QueryValue(L"v", nullptr, &data, &size), held->DeleteValue(L"v"),
                                 held->EnumValueName(0, name), held->EnumKeyName(0, name),
                                 again->SetValue(L"v", platform::kRegDword, &data, 4)}));
}

TEST_P(RegistryContract, PathSpellingsAsTheRealRegistryTreatsThem) {
    uint32_t data = 5;
    Create(L"t")->SetValue(L"v", platform::kRegDword, &data, 4);
    struct Case {
        std::wstring path;
        long result;
    };
    const Case cases[] = {
        {Path(L"t\\"), 0},         {harness_->scratch() + L"\\\\t", 0}, {Path(L"t\\\\"), 0},
        {L"\\" + Path(L"t"), 161}, {Path(std::wstring(299, L'k')), 87},
    };
    for (const Case& c : cases) {
        std::unique_ptr<RegistryKey> opened;
        EXPECT_EQ(c.result, registry().OpenKey(c.path, opened)) << "open " << testing::PrintToString(c.path);
        if (opened) {
            EXPECT_EQ(Bytes(&data, 4), Read(*opened, L"v"));
        }
        std::unique_ptr<RegistryKey> created;
        EXPECT_EQ(c.result, registry().CreateKey(c.path, created)) << "create " << testing::PrintToString(c.path);
    }
    std::vector<std::wstring> expected = {L"t"};
    EXPECT_EQ(expected, SubkeyNames(*Create(L""))) << "no empty-named key was made";
}

INSTANTIATE_TEST_SUITE_P(Registry, RegistryContract,
                         testing::ValuesIn(contract::Implementations<RegistryHarness, FakeHarness, RealHarness>()),
                         contract::NameOf);

}  // namespace
