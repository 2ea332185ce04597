#include "afxres.h"
