#include "LookupRequest.h"
