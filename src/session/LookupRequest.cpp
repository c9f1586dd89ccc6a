#include "LookupRequest.h"

namespace kuyum {

} // namespace kuyum
