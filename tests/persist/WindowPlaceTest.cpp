// Where the windows open (persist/WindowPlace): stored positions, the defaults and positions off the screen.
#include <gtest/gtest.h>

#include <map>

#include "base/RuntimeError.h"
#include "persist/WindowPlace.h"

namespace {

class MemoryStore : public SettingsStore {
public:
    std::optional<std::string> Get(std::string_view section, std::string_view key) const override {
        const auto it = values.find(std::string(section) + "/" + std::string(key));
        if (it == values.end()) return std::nullopt;
        return it->second;
    }
    void Set(std::string_view section, std::string_view key, std::string_view value) override {
        values[std::string(section) + "/" + std::string(key)] = std::string(value);
    }
    std::map<std::string, std::string> values;
};

constexpr double kWidth = 19200, kHeight = 10800;

}  // namespace

TEST(WindowPlaceTest, MissingKeysGiveTheWindowsDefaults) {
    const MemoryStore store;
    const WindowPos main = Window_Load(store, kMainWindowKeys, kWidth, kHeight);
    EXPECT_EQ(main.left, 100);
    EXPECT_EQ(main.top, 100);
    for (const WindowKeys& k : {kItemWindowKeys, kInfoboxWindowKeys, kListWindowKeys, kUnitWindowKeys}) {
        const WindowPos p = Window_Load(store, k, kWidth, kHeight);
        EXPECT_EQ(p.left, 1000);
        EXPECT_EQ(p.top, 1000);
    }
}

TEST(WindowPlaceTest, StoredPositionOnTheScreenIsTaken) {
    MemoryStore store;
    store.Set("Settings", "ItemLeft", "2400");
    store.Set("Settings", "ItemTop", "1515.5");
    const WindowPos p = Window_Load(store, kItemWindowKeys, kWidth, kHeight);
    EXPECT_EQ(p.left, 2400);
    EXPECT_EQ(p.top, 1515.5);
}

TEST(WindowPlaceTest, StoredLeftBeyondTheScreenGives100And100) {
    MemoryStore store;
    store.Set("Settings", "MainLeft", "30000");
    store.Set("Settings", "MainTop", "500");
    const WindowPos p = Window_Load(store, kMainWindowKeys, kWidth, kHeight);
    EXPECT_EQ(p.left, 100);
    EXPECT_EQ(p.top, 100);
}

TEST(WindowPlaceTest, StoredTopAtTheScreenHeightGives100And100) {
    MemoryStore store;
    store.Set("Settings", "UnitLeft", "500");
    store.Set("Settings", "UnitTop", "10800");
    const WindowPos p = Window_Load(store, kUnitWindowKeys, kWidth, kHeight);
    EXPECT_EQ(p.left, 100);
    EXPECT_EQ(p.top, 100);
}

TEST(WindowPlaceTest, SettingThatIsNoNumberIsARunTimeError) {
    MemoryStore store;
    store.Set("Settings", "ListLeft", "left");
    EXPECT_THROW(Window_Load(store, kListWindowKeys, kWidth, kHeight), RuntimeError);
}

TEST(WindowPlaceTest, UnloadStoresThePositionAsASingleNumber) {
    MemoryStore store;
    Window_Store(store, kInfoboxWindowKeys, {1234.5, 0.1}, false);
    EXPECT_EQ(store.values["Settings/InfoboxLeft"], "1234.5");
    EXPECT_EQ(store.values["Settings/InfoboxTop"], "0.1");
    const WindowPos p = Window_Load(store, kInfoboxWindowKeys, kWidth, kHeight);
    EXPECT_EQ(p.left, 1234.5);
}

TEST(WindowPlaceTest, MinimisedMainWindowDoesNotOverwriteItsStoredPosition) {
    MemoryStore store;
    Window_Store(store, kMainWindowKeys, {300, 400}, false);
    Window_Store(store, kMainWindowKeys, {-32000, -32000}, true);
    EXPECT_EQ(store.values["Settings/MainLeft"], "300");
    EXPECT_EQ(store.values["Settings/MainTop"], "400");
}
