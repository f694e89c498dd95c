#include "middle/button.h"
