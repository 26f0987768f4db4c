// The key modes a user never saved: built into the program.
#pragma once

#include "bindings/KeyTableSet.h"

const KeyTableSet& DefaultKeyTables();
