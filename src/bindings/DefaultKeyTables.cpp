#include "bindings/DefaultKeyTables.h"

#include <span>

namespace {

struct KeyBinding {
    const wchar_t* key;
    uint16_t command;
};

// Keys not named here have no command. Modes 2 to 8 are alike.
constexpr KeyBinding kCommandModeNone[] = {
    {L"A", 42004},  {L"B", 40002},  {L"C", 42014},   {L"D", 42013},   {L"E", 40001},  {L"F", 35512},   {L"G", 35801},
    {L"H", 35800},  {L"I", 42005},  {L"J", 33011},   {L"K", 42017},   {L"L", 42023},  {L"M", 42015},   {L"N", 57600},
    {L"P", 42007},  {L"Q", 33010},  {L"R", 42012},   {L"S", 36230},   {L"T", 42003},  {L"U", 42008},   {L"V", 40003},
    {L"W", 36240},  {L"X", 42022},  {L"Z", 35703},   {L"1", 400},     {L"2", 403},    {L"3", 401},     {L"4", 407},
    {L"5", 402},    {L"6", 410},    {L"N1", 35840},  {L"N2", 35841},  {L"N3", 35842}, {L"N4", 35843},  {L"N5", 35844},
    {L"N6", 35845}, {L"N7", 35846}, {L"N8", 35847},  {L"N9", 35848},  {L"N0", 35849}, {L"F1", 35515},  {L"F2", 35209},
    {L"F3", 35512}, {L"F4", 35701}, {L"F5", 33301},  {L"F6", 35808},  {L"F7", 57642}, {L"F12", 35503}, {L"Del", 35207},
    {L"BS", 36200}, {L",", 36909},  {L".", 36905},   {L"+", 35705},   {L"-", 33300},  {L"@", 42150},   {L"[", 36901},
    {L"\\", 36201}, {L"]", 36902},  {L"Spc", 35606}, {L"Tab", 35808}, {L"Ent", 35900}};
constexpr KeyBinding kCommandModeShift[] = {{L"F5", 33301},  {L"Del", 35207}, {L"Ins", 57637},
                                            {L"Spc", 35607}, {L"Tab", 35809}, {L"Ent", 40503}};
constexpr KeyBinding kCommandModeCtrl[] = {
    {L"A", 57642}, {L"C", 57634}, {L"D", 35702},   {L"F", 35505},   {L"H", 35508},  {L"I", 35692},   {L"J", 36191},
    {L"K", 36190}, {L"L", 36210}, {L"N", 35053},   {L"O", 35690},   {L"S", 35706},  {L"V", 57637},   {L"W", 35112},
    {L"X", 57635}, {L"Y", 57644}, {L"Z", 57643},   {L"F4", 35112},  {L"F5", 33320}, {L"Del", 57635}, {L"Ins", 57634},
    {L",", 36911}, {L".", 36907}, {L"Spc", 35608}, {L"Tab", 35800}, {L"Ent", 40501}};
constexpr KeyBinding kCommandModeCtrlShift[] = {{L"C", 42026},   {L"M", 42027},   {L"P", 42024},  {L"U", 42025},
                                                {L"Spc", 35607}, {L"Tab", 35801}, {L"Ent", 35900}};
constexpr KeyBinding kSearchModeNone[] = {
    {L"N1", 35840},  {L"N2", 35841}, {L"N3", 35842}, {L"N4", 35843},  {L"N5", 35844},  {L"N6", 35845},
    {L"N7", 35846},  {L"N8", 35847}, {L"N9", 35848}, {L"N0", 35849},  {L"F1", 35515},  {L"F2", 35209},
    {L"F3", 35512},  {L"F4", 35701}, {L"F5", 33301}, {L"F6", 35808},  {L"F7", 57642},  {L"F12", 35502},
    {L"Del", 35207}, {L"BS", 36200}, {L"\\", 36201}, {L"Spc", 35606}, {L"Tab", 35808}, {L"Ent", 35900}};
constexpr KeyBinding kSearchModeShift[] = {{L"F5", 33301},  {L"Del", 35207}, {L"Ins", 57637},
                                           {L"Spc", 35607}, {L"Tab", 35809}, {L"Ent", 35900}};
constexpr KeyBinding kSearchModeCtrl[] = {
    {L"A", 57642},   {L"C", 57634},   {L"D", 35702},   {L"F", 35505},   {L"H", 35508},  {L"I", 35692},
    {L"J", 36191},   {L"K", 36190},   {L"N", 35053},   {L"O", 35690},   {L"S", 35706},  {L"V", 57637},
    {L"W", 35112},   {L"X", 57635},   {L"Y", 57644},   {L"Z", 57643},   {L"F4", 35112}, {L"F5", 33320},
    {L"Del", 57635}, {L"Ins", 57634}, {L"Spc", 35608}, {L"Tab", 35800}, {L"Ent", 35900}};
constexpr KeyBinding kSearchModeCtrlShift[] = {{L"Spc", 35607}, {L"Tab", 35801}, {L"Ent", 35900}};
constexpr KeyBinding kOtherModesNone[] = {{L"F1", 35515},  {L"F2", 35209}, {L"F3", 35512}, {L"F4", 35701},
                                          {L"F5", 33301},  {L"F6", 35808}, {L"F7", 57642}, {L"F12", 35502},
                                          {L"Del", 35207}, {L"BS", 36200}, {L"\\", 36201}, {L"Spc", 35606},
                                          {L"Tab", 35808}, {L"Ent", 35900}};
constexpr KeyBinding kOtherModesShift[] = {{L"F5", 33301},  {L"Del", 35207}, {L"Ins", 57637},
                                           {L"Spc", 35607}, {L"Tab", 35809}, {L"Ent", 35900}};
constexpr KeyBinding kOtherModesCtrl[] = {
    {L"A", 57642},  {L"C", 57634},   {L"D", 35702},   {L"F", 35505},   {L"H", 35508},   {L"J", 36191},  {L"K", 36190},
    {L"N", 35053},  {L"S", 35706},   {L"V", 57637},   {L"W", 35112},   {L"X", 57635},   {L"Y", 57644},  {L"Z", 57643},
    {L"F4", 35112}, {L"Del", 57635}, {L"Ins", 57634}, {L"Spc", 35608}, {L"Tab", 35800}, {L"Ent", 35900}};
constexpr KeyBinding kOtherModesCtrlShift[] = {{L"Spc", 35607}, {L"Tab", 35801}, {L"Ent", 35900}};

struct DefaultBlock {
    int firstMode;
    int lastMode;
    KeyModifier modifier;
    std::span<const KeyBinding> bindings;
};

constexpr DefaultBlock kDefaultBlocks[] = {
    {0, 0, kModifierNone, kCommandModeNone}, {0, 0, kModifierShift, kCommandModeShift},
    {0, 0, kModifierCtrl, kCommandModeCtrl}, {0, 0, kModifierCtrlShift, kCommandModeCtrlShift},
    {1, 1, kModifierNone, kSearchModeNone},  {1, 1, kModifierShift, kSearchModeShift},
    {1, 1, kModifierCtrl, kSearchModeCtrl},  {1, 1, kModifierCtrlShift, kSearchModeCtrlShift},
    {2, 8, kModifierNone, kOtherModesNone},  {2, 8, kModifierShift, kOtherModesShift},
    {2, 8, kModifierCtrl, kOtherModesCtrl},  {2, 8, kModifierCtrlShift, kOtherModesCtrlShift},
};

constexpr KeyTableSet BuildDefaults() {
    KeyTableSet set;
    for (const DefaultBlock& block : kDefaultBlocks) {
        for (int mode = block.firstMode; mode <= block.lastMode; ++mode) {
            for (const KeyBinding& binding : block.bindings) {
                int key = KeyIndex(binding.key);
                // A misspelt key name stops the build here.
                if (key < 0) throw "no such key";
                set.Word(mode, block.modifier, key) = binding.command;
            }
        }
    }
    return set;
}

constexpr KeyTableSet kDefaults = BuildDefaults();

}  // namespace

const KeyTableSet& DefaultKeyTables() {
    return kDefaults;
}
