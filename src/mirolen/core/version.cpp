#include "mirolen/core/version.h"

namespace mirolen {

// The build tells the numbers of the project.
Version version() { return {MIROLEN_VERSION_MAJOR, MIROLEN_VERSION_MINOR, MIROLEN_VERSION_PATCH}; }

}  // namespace mirolen
