// Layers side by side do not see each other: the files not the reports.
#include "reports/mdlFileOutput.h"
