#include "low/low.h"
#include <low/low.h>
#include "middle/button.h"
#include "top/top.h"
