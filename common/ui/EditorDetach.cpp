#include "common/ui/EditorDetach.h"

#include <QAbstractItemView>

void Editor_Detach(QAbstractItemView* grid) {
    if (QAbstractItemDelegate* editor = grid->itemDelegate()) editor->disconnect(grid);
}
