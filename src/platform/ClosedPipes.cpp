#include "ClosedPipes.h"

#include <csignal>

void surviveClosedPipes()
{
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif
}
