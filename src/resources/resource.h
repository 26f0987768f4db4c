// Resource identifiers of Option.exe.
#pragma once

#define IDR_MANIFEST 1
