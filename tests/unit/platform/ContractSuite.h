// One body against every implementation: the fake always, the real one in the Windows build.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace contract {

template <typename Harness>
struct Implementation {
    const char* name;
    std::function<std::unique_ptr<Harness>()> make;
};

template <typename Harness, typename FakeHarness, typename RealHarness = void>
std::vector<Implementation<Harness>> Implementations() {
    std::vector<Implementation<Harness>> all = {{"Fake", [] { return std::make_unique<FakeHarness>(); }}};
    if constexpr (!std::is_void_v<RealHarness>) all.push_back({"Real", [] { return std::make_unique<RealHarness>(); }});
    return all;
}

// Names each instantiation after its implementation.
inline constexpr auto NameOf = [](const auto& info) { return std::string(info.param.name); };

}  // namespace contract
