// libFuzzer target: arbitrary bytes as the host's hand-over. The units up to the first zero are the
// switch string in QOR_ExCommand; the rest is the shared block it names, left under that name as a
// host leaves it. Start-up then runs as the program's own, with a command line that asks for no
// dialog ("/T"), so that it reads the switches and the block and hands back to the host.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "app/Startup.h"
#include "platform/fake/FakePlatform.h"
#include "services/ShareBlock.h"

namespace {

class NoTargets : public StartupTargets {
    void OpenOptionDialog() override {}
    void OpenEditor(int, const std::wstring&) override {}
    void WriteKeyLists() override {}
    void RunEditorScript(const std::wstring&) override {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::vector<uint16_t> units(size / 2);
    for (size_t i = 0; i < units.size(); ++i) units[i] = static_cast<uint16_t>(data[2 * i] | (data[2 * i + 1] << 8));
    size_t end = 0;
    while (end < units.size() && units[end] != 0) ++end;
    const std::wstring switches(units.begin(), units.begin() + end);
    std::vector<uint16_t> block(units.begin() + std::min(end + 1, units.size()), units.end());

    platform::fake::FakePlatform fake;
    fake.environment().SetModuleFileName(L"C:\\Qor\\command\\Option\\Option.exe");
    fake.environment().SetVariable(L"QOR_ExCommand", switches);
    // The block goes under the name the switches give, so that no fresh block of the announced size
    // is made: a host that names a block has made it.
    const HostSwitches parsed = ParseHostSwitches(switches);
    fake.sharedMemory().AddBlock(ShareBlockName(parsed.blockFirst, parsed.blockSecond), std::move(block));

    AppServices app(96);
    NoTargets targets;
    RunStartup(app, targets, {L"/T", L"x"});
    return 0;
}
