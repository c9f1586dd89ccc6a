#include "ClosedPipes.h"

#include <csignal>

namespace kuyum {

void surviveClosedPipes()
{
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

} // namespace kuyum
