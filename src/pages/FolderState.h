// The state string of one folder rule, which the host reads as well: fixed columns of decimal
// numbers, a TAB, then the folder path, wildcard pattern or regular expression.
//
//   "0 F D VV II 0 KKKKKKKK 00000000 00000000 00 00\tpath"
//
// F folders first, D sort direction, VV the host's view number, II icon size, KKKKKKKK the sort key
// plus 100 (so that the built-in keys below zero fit). The zero fields are the host's own.
#pragma once

#include <cstdint>
#include <string>

struct FolderState {
    int32_t foldersFirst = 0;
    int32_t direction = 0;  // 0 ascending, 1 descending
    int32_t viewNumber = 0;
    int32_t iconSize = 0;
    int32_t sortKey = 0;
    int32_t reservedNumber = 0;  // read and never written back
    bool reservedFlag = false;   // likewise
    std::wstring path;
    bool operator==(const FolderState&) const = default;
};

// Shorter than this, a state string is not read at all.
constexpr size_t kShortestFolderState = 47;

// Reads the columns over state; false, with state untouched, when the text is too short. The path is
// what follows the first TAB (empty when there is none).
bool ParseFolderState(const std::wstring& text, FolderState& state);
// The string of an edited rule: every field the host owns is zero.
std::wstring BuildFolderState(const FolderState& state);

// The view radios of the rule editor and the list's initial-state page order the host's view
// numbers differently. Unknown numbers show as the list view; 3 and 8 are older names of 1 and 5.
int ViewRadioOfNumber(int32_t viewNumber);
// The number an index of the radio group stands for; a reserved radio (or none) keeps the old number.
int32_t ViewNumberOfRadio(int radio, int32_t previousNumber);
