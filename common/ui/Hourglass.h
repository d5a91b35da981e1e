// The mouse pointer as an hourglass for as long as the object lives, over
// every window of the program.
#pragma once

#include <QApplication>

class Hourglass {
public:
    Hourglass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Hourglass() { QApplication::restoreOverrideCursor(); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};
