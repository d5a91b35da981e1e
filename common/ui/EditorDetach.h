// A window that closes while one of its grids has a cell open would have the
// cell stored from inside its own destructor, after the window's members are
// gone. Detaching the grid's editor first drops such a late edit.
#pragma once

class QAbstractItemView;

void Editor_Detach(QAbstractItemView* grid);
