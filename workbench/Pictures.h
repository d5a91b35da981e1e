// The drawings of the component types and of the machines, from the SVG
// files below AppPath, rendered at the size asked for.
#pragma once

#include <QPixmap>
#include <QString>

// Path of the drawing of a type code: the catalogue's file with the
// extension .svg, the motor's and the empty slot's own files.
QString Picture_Path(int16_t type);

// The drawing of a type code, or of machine 1..9 of the templates; an empty
// pixmap when there is none.
QPixmap Picture_Type(int16_t type, QSize size);
QPixmap Picture_Machine(int number, QSize size);
