#include "selection/SelectionStore.h"

#include <array>
#include <string_view>

#include "core/Catalogue.h"
#include "core/Tables.h"
#include "units/UnitTable.h"

namespace {

enum class From { Motor, Driver };

// Where a rating of ResultValues(1, ..) comes from.
struct Rating {
    ResultValue value;
    From from;
    std::string_view field;
};

constexpr std::array<Rating, 7> kRatings = {{
    {EffectiveTorque, From::Motor, "RatedTorque"},
    {MaxTorque, From::Motor, "MaximumTorque"},
    {MaxRotationalSpeed, From::Motor, "RotationalSpeed"},
    {Inertia, From::Motor, "Inertia"},
    {Regeneration1, From::Driver, "Regeneration1"},
    {Regeneration2, From::Driver, "Regeneration2"},
    {StoppingTorque, From::Motor, "RatedTorque"},
}};

// An item row of the motor; the text is the field as it stands, or
// Num_Format of the value in the row's unit.
struct ItemSource {
    From from;
    std::string_view field;
    bool asText;
    int16_t keep, whole;
};

constexpr std::array<ItemSource, 10> kItems = {{
    {From::Motor, "Capacity", true, 0, 0},
    {From::Motor, "RotationalSpeed", false, 0, 1},
    {From::Motor, "Inertia", false, 1, 0},
    {From::Motor, "RatedTorque", false, 0, 1},
    {From::Motor, "MaximumTorque", false, 0, 1},
    {From::Motor, "MaxInertia", true, 0, 0},
    {From::Motor, "BrakeInertia", false, 1, 0},
    {From::Motor, "mass", false, 0, 1},
    {From::Driver, "Regeneration1", false, 1, 1},
    {From::Driver, "Regeneration2", false, 1, 1},
}};

}  // namespace

void Selection_Store(const Recordset& motor, const Recordset& driver) {
    const auto source = [&](From from) -> const Recordset& { return from == From::Motor ? motor : driver; };
    for (const Rating& r : kRatings) {
        const FieldValue& field = source(r.from).Field(r.field);
        if (!field.Blank()) ResultValues[Rate][r.value] = field.Num();
    }
    for (std::size_t row = 0; row < kItems.size(); ++row) {
        const ItemSource& s = kItems[row];
        const FieldValue& field = source(s.from).Field(s.field);
        if (field.Blank()) continue;
        ElementItem& item = Element[0].Item[row];
        item.Value = field.Num();
        item.ItemText.SetUtf8(s.asText ? field.Text()
                                       : Num_Format(FromS(item.UnitKind, item.UnitIndex, item.Value), s.keep, s.whole));
    }
}
