// Where each window opens: its last position, kept in the per-user settings
// store under section "Settings" in twips, unless that lies off the screen.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// The per-user key-value store. The window program keeps it in its
// platform's settings; the tests keep it in memory.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    // The value of a key of a section, or nothing when the key is missing.
    virtual std::optional<std::string> Get(std::string_view section, std::string_view key) const = 0;
    virtual void Set(std::string_view section, std::string_view key, std::string_view value) = 0;
};

// The keys of one window and the position it takes while none is stored.
struct WindowKeys {
    std::string_view left;
    std::string_view top;
    double fallback;
};

inline constexpr std::string_view kSettingsSection = "Settings";
inline constexpr WindowKeys kMainWindowKeys{"MainLeft", "MainTop", 100};
inline constexpr WindowKeys kItemWindowKeys{"ItemLeft", "ItemTop", 1000};
inline constexpr WindowKeys kInfoboxWindowKeys{"InfoboxLeft", "InfoboxTop", 1000};
inline constexpr WindowKeys kListWindowKeys{"ListLeft", "ListTop", 1000};  // both wizard pages
inline constexpr WindowKeys kUnitWindowKeys{"UnitLeft", "UnitTop", 1000};

struct WindowPos {
    double left = 0;
    double top = 0;
};

// The stored position, or left 100, top 100 when the stored left is at least
// the screen's width or the stored top at least its height (a store written
// on a larger screen). A stored value that is no number throws RuntimeError.
WindowPos Window_Load(const SettingsStore& store, const WindowKeys& keys, double screenWidth, double screenHeight);

// Stores the position as the text of a single-precision number, unless the
// window is minimised, which keeps the stored one.
void Window_Store(SettingsStore& store, const WindowKeys& keys, WindowPos pos, bool minimised);
