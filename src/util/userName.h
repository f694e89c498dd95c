// Who works at this machine.
#pragma once

#include <QString>

// The name under which the user is logged in.
QString userName();
