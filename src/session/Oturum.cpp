#include "Oturum.h"
