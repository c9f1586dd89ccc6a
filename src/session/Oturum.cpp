#include "Oturum.h"

namespace kuyum {

} // namespace kuyum
