#include "script/ScriptPathFunctions.h"

#include "platform/Platform.h"
#include "script/DirectoryItems.h"
#include "services/CRuntime.h"
#include "services/PathHelpers.h"

namespace {

// A path that cannot be looked at has every bit set, and so counts as a directory.
bool HasDirectoryBit(const std::wstring& path) {
    return (platform::Current().files.GetAttributes(path) & platform::kAttributeDirectory) != 0;
}

FunctionResult Flag(bool value) {
    return {value ? L"1" : L"0"};
}

}  // namespace

// One of the pattern's entries, picked anew on every call; an empty listing makes the variable empty.
FunctionResult RandomItem(ScriptFrame&, const std::wstring& arguments) {
    SelectionList items;
    if (ListDirectoryItems(arguments, items) == 0 || items.empty()) {
        FunctionResult empty;
        empty.untraced = true;
        return empty;
    }
    const auto seed = static_cast<uint32_t>(platform::Current().processes.Ticks());
    return {items[static_cast<size_t>(crt::RandAfterSeed(seed)) % items.size()]};
}

FunctionResult Exist(ScriptFrame&, const std::wstring& arguments) {
    return Flag(platform::Current().files.GetAttributes(arguments) != platform::kInvalidAttributes);
}

FunctionResult IsDirectory(ScriptFrame&, const std::wstring& arguments) {
    return Flag(HasDirectoryBit(arguments));
}

FunctionResult IsFile(ScriptFrame&, const std::wstring& arguments) {
    return Flag(!HasDirectoryBit(arguments));
}

FunctionResult GetPath(ScriptFrame&, const std::wstring& arguments) {
    return {DirectoryPart(arguments)};
}

// An empty name leaves the argument to be stored.
FunctionResult GetName(ScriptFrame&, const std::wstring& arguments) {
    return {SplitPath(StripSeparator(arguments)).name};
}

FunctionResult GetExt(ScriptFrame&, const std::wstring& arguments) {
    return {SplitPath(arguments).extension};
}

FunctionResult RemoveLastSeparator(ScriptFrame&, const std::wstring& arguments) {
    return {StripSeparator(arguments)};
}
