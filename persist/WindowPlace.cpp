#include "persist/WindowPlace.h"

#include <charconv>

#include "base/Numeric.h"
#include "base/RuntimeError.h"

namespace {

constexpr double kOffScreenPlace = 100;

double Setting(const SettingsStore& store, std::string_view key, double fallback) {
    const std::optional<std::string> text = store.Get(kSettingsSection, key);
    if (!text) return fallback;
    if (!IsNumeric(*text)) throw RuntimeError("Type mismatch");
    return Val(*text);
}

std::string Single_Text(double value) {
    char buf[32];
    const auto res = std::to_chars(buf, buf + sizeof buf, static_cast<float>(value));
    return std::string(buf, res.ptr);
}

}  // namespace

WindowPos Window_Load(const SettingsStore& store, const WindowKeys& keys, double screenWidth, double screenHeight) {
    const WindowPos pos{Setting(store, keys.left, keys.fallback), Setting(store, keys.top, keys.fallback)};
    if (pos.left >= screenWidth || pos.top >= screenHeight) return {kOffScreenPlace, kOffScreenPlace};
    return pos;
}

void Window_Store(SettingsStore& store, const WindowKeys& keys, WindowPos pos, bool minimised) {
    if (minimised) return;
    store.Set(kSettingsSection, keys.left, Single_Text(pos.left));
    store.Set(kSettingsSection, keys.top, Single_Text(pos.top));
}
