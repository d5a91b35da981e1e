// The core may not see the calculation above it.
#include "calc/mdlCulcurate.h"
