// The look of a picked picture with its caption, as the strip and the machine
// question show it: unselected, the caption is highlight text on window text;
// selected, the two colours swap and the frame around the picture shows.
#pragma once

class QLabel;
class QWidget;

// idleFrame: the frame shows a plain line while unselected instead of none.
void SelectionLook_Set(QWidget* frame, QLabel* caption, bool selected, bool idleFrame = false);
