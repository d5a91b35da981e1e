#include "common/ui/QtSettingsStore.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>

#include "base/MsgBox.h"
#include "base/RuntimeError.h"

namespace {

constexpr double kTwipsPerPixel = 15.0;

QString Key(std::string_view section, std::string_view key) {
    return QString::fromUtf8(section.data(), static_cast<int>(section.size())) + "/" +
           QString::fromUtf8(key.data(), static_cast<int>(key.size()));
}

}  // namespace

std::optional<std::string> QtSettingsStore::Get(std::string_view section, std::string_view key) const {
    const QSettings settings;
    const QVariant v = settings.value(Key(section, key));
    if (!v.isValid()) return std::nullopt;
    return v.toString().toStdString();
}

void QtSettingsStore::Set(std::string_view section, std::string_view key, std::string_view value) {
    QSettings settings;
    settings.setValue(Key(section, key), QString::fromUtf8(value.data(), static_cast<int>(value.size())));
}

void Window_Load(QWidget* window, const WindowKeys& keys) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize size = screen ? screen->size() : QSize(1024, 768);
    try {
        const WindowPos pos = Window_Load(QtSettingsStore(), keys, size.width() * kTwipsPerPixel,
                                          size.height() * kTwipsPerPixel);
        window->move(static_cast<int>(pos.left / kTwipsPerPixel), static_cast<int>(pos.top / kTwipsPerPixel));
    } catch (const RuntimeError& e) {
        MsgBox(std::string("The stored window position could not be read (") + e.what() + ").", "Torvane",
               MsgIcon::Exclamation);
    }
}

void Window_Store(const QWidget* window, const WindowKeys& keys) {
    QtSettingsStore store;
    Window_Store(store, keys, {window->x() * kTwipsPerPixel, window->y() * kTwipsPerPixel}, window->isMinimized());
}
