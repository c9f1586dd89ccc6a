#include "PrintDocument.h"
