#include "platform/fake/FakePlatform.h"

namespace platform::fake {

// Members are built in order, so the platform is complete before it is installed, and the
// installation ends before any fake goes away.
FakePlatform::FakePlatform() = default;

FakePlatform::~FakePlatform() = default;

}  // namespace platform::fake
