#include "top/top.h"
