#include "platform/Platform.h"

#include <cstdlib>

namespace platform {

namespace {
Platform* current = nullptr;
}

Platform& Current() {
    if (!current) std::abort();
    return *current;
}

Installed::Installed(Platform& platform) : previous_(current) {
    current = &platform;
}

Installed::~Installed() {
    current = previous_;
}

}  // namespace platform
