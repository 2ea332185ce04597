#include <KxWinTypes.h>

#if __has_include(<windows.h>)
#error "only Kx::PortedHeaders leads to headers that are named like those of a system"
#endif
