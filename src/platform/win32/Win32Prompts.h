#pragma once

#include "platform/Prompts.h"

namespace platform::win32 {

class Win32Prompts : public Prompts {
public:
    int ShowMessage(const std::wstring& text, unsigned style) override;
};

} // namespace platform::win32
