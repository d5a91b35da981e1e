// The tip that a rest of the pointer shows, as the window tests ask for it.
#pragma once

#include <QApplication>
#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

// The tip shown when the pointer rests over a point of an area; empty when
// none shows. A tip still showing from before is put away at once first (it
// would otherwise fade out slowly and still count as shown).
inline QString Tip_At(QWidget* area, QPoint pos) {
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->objectName() == "qtooltip_label") top->hide();
    QHelpEvent help(QEvent::ToolTip, pos, area->mapToGlobal(pos));
    QApplication::sendEvent(area, &help);
    return QToolTip::isVisible() ? QToolTip::text() : QString();
}
