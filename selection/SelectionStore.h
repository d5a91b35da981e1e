// The chosen motor's and driver's catalogue data in the document: the
// ratings of ResultValues and the item rows of the motor Element(0).
#pragma once

#include "selection/Recordset.h"

// Each rating and each item row is left as it was when its field is blank.
void Selection_Store(const Recordset& motor, const Recordset& driver);
