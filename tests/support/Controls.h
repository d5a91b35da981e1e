// The controls of a window found by their names, as the window tests reach
// them: a window keeps its widgets to itself.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <stdexcept>

// The window a control stands in: the nearest window above it. A menu or a
// dialog is a window of its own, so the controls of one window are never
// mistaken for those of another that it owns.
inline const QObject* Ctl_Window(const QObject* control) {
    for (const QObject* p = control->parent(); p != nullptr; p = p->parent())
        if (const auto* w = qobject_cast<const QWidget*>(p); w != nullptr && w->isWindow()) return w;
    return nullptr;
}

// The one control of the type and the name in the window; a test that asks
// for a control the window does not have (or has twice) fails at once.
template <class T>
T* Ctl(const QObject* window, const QString& name) {
    T* found = nullptr;
    int count = 0;
    for (T* c : window->findChildren<T*>(name))
        if (Ctl_Window(c) == window) {
            found = c;
            ++count;
        }
    if (count != 1)
        throw std::logic_error(QString("%1 controls named %2 of the type asked in %3")
                                   .arg(count)
                                   .arg(name, window->objectName())
                                   .toStdString());
    return found;
}

// A control of an array, named by its index: Ctl<QLabel>(w, "lblTime", 1) is lblTime1.
template <class T>
T* Ctl(const QObject* window, const QString& name, int index) {
    return Ctl<T>(window, name + QString::number(index));
}
