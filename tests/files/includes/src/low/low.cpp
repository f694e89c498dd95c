#include "middle/middle.h"
#include "missing.h"
