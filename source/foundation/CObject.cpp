#include "KxWinTypes.h"

CObject::~CObject() = default;
