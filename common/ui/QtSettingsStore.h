// The per-user settings store of the window program, and the placing of a
// window by its stored position.
#pragma once

#include "persist/WindowPlace.h"

class QWidget;

class QtSettingsStore : public SettingsStore {
public:
    std::optional<std::string> Get(std::string_view section, std::string_view key) const override;
    void Set(std::string_view section, std::string_view key, std::string_view value) override;
};

// The two verbs of the window places, for a window: moves it to its stored
// place (in twips) at load, and stores its place at unload unless it is
// minimised.
void Window_Load(QWidget* window, const WindowKeys& keys);
void Window_Store(const QWidget* window, const WindowKeys& keys);
