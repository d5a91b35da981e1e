// The window shown while the program starts.
#pragma once

#include <QWidget>

class frmSplash : public QWidget {
    Q_OBJECT
public:
    explicit frmSplash(QWidget* parent = nullptr);
};
