#include "winresrc.h"
