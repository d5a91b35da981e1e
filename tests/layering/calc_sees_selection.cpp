// The calculation may not see the selection above it.
#include "selection/mdlDataBase.h"
