// libFuzzer target: arbitrary bytes as a run or extension-run definition. The file's kind is told as
// "/A" tells it; both editors read it, and what each saves reads back to the same values and is told
// as the kind it was saved as.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "app/SniffDefinitionFile.h"
#include "definitions/RunDefinition.h"
#include "platform/fake/FakePlatform.h"

namespace {

void Require(bool condition) {
    if (!condition) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    platform::fake::FakePlatform fake;
    const std::wstring path = L"C:\\Qor\\User\\Script\\Fuzz.txt";
    fake.files().AddDirectory(L"C:\\Qor\\User\\Script");
    fake.files().AddFile(path, std::vector<uint8_t>(data, data + size));
    const int kind = SniffDefinitionFile(path);
    Require(kind >= 0 && kind <= 2);

    RunDefinition run;
    Require(ReadRunDefinition(path, run));
    std::vector<ExRunRow> rows;
    Require(ReadExRunDefinition(path, rows));

    Require(WriteRunDefinition(path, run));
    RunDefinition runAgain;
    Require(ReadRunDefinition(path, runAgain) && runAgain == run);
    Require(SniffDefinitionFile(path) == (run.run.empty() ? 0 : 2));

    Require(WriteExRunDefinition(path, rows));
    std::vector<ExRunRow> rowsAgain;
    Require(ReadExRunDefinition(path, rowsAgain) && rowsAgain == rows);
    bool anyCommand = false;
    for (const ExRunRow& row : rows) anyCommand = anyCommand || !row.command.empty();
    Require(SniffDefinitionFile(path) == (anyCommand ? 1 : 0));
    return 0;
}
