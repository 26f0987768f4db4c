// The entries of a directory, or of a wildcard pattern, as item paths.
#pragma once

#include <cstdint>
#include <string>

#include "script/SelectionList.h"

// Most entries a listing brings the list up to: it stops once the list holds this many.
constexpr size_t kListedItemsLimit = 1001;

// Appends the entries of the pattern's listing, "." and ".." left out, each behind the pattern's text
// up to its last backslash. A pattern without "*" or "?" lists the directory it names, but its
// entries still go behind that prefix: "C:\Pics" gives "C:\a.jpg" for "C:\Pics\a.jpg", and
// scripts write "C:\Pics\". The result is the count of the list, or 0 when the listing found
// nothing at all.
size_t ListDirectoryItems(const std::wstring& pattern, SelectionList& list);
