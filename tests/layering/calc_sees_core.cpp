// The calculation sees the layers below it.
#include "calc/mdlCulcurate.h"
#include "core/PatarnRows.h"
#include "core/Tables.h"
#include "units/UnitTable.h"
