#include "common/ui/SelectionLook.h"

#include <QLabel>
#include <QString>

void SelectionLook_Set(QWidget* frame, QLabel* caption, bool selected, bool idleFrame) {
    const QString border = selected ? "palette(highlight)" : idleFrame ? "palette(window-text)" : "transparent";
    frame->setStyleSheet(QString("#%1 { border: 2px solid %2; }").arg(frame->objectName(), border));
    caption->setStyleSheet(selected ? "QLabel { background: palette(highlighted-text); color: palette(window-text); }"
                                    : "QLabel { background: palette(window-text); color: palette(highlighted-text); }");
}
