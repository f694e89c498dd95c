#include "low/low.h"
#include "middle/middle.h"
#include "top/bare.h"
#include <QString>
