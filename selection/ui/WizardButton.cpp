#include "selection/ui/WizardButton.h"

#include <QPushButton>

QPushButton* Wizard_Button(QWidget* page, const char* name, const QString& caption) {
    auto* button = new QPushButton(caption, page);
    button->setObjectName(name);
    button->setAutoDefault(true);
    return button;
}
