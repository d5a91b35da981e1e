#include "selection/DriverJudge.h"

#include "base/Numeric.h"
#include "base/RuntimeError.h"
#include "core/Tables.h"
#include "selection/Grid.h"
#include "selection/Queries.h"
#include "selection/mdlDataBase.h"

namespace {

bool Passes(double limit, double value) { return limit >= value || limit == 0 || Same_Single(limit, value); }

const DriverTypeRec& Find(const std::vector<DriverTypeRec>& types, int16_t driverType) {
    for (const DriverTypeRec& rec : types)
        if (rec.DriverType == driverType) return rec;
    throw RuntimeError("Subscript out of range");
}

}  // namespace

void Comment_Judge_Set() { DriverTypes = DriverTypes_Read(); }

std::vector<DriverTypeRec> DriverTypes_Read() {
    Recordset rows;
    Recordset_Open(Query_DriverTypes(), rows);
    std::vector<DriverTypeRec> types;
    for (; !rows.IsEOF(); rows.MoveNext())
        types.push_back({CInt(rows.Field("DriverType").Num()), rows.Field("OKComment").Text(),
                         CInt(rows.Field("OKJudgeFlg").Num()), rows.Field("NGComment").Text(),
                         CInt(rows.Field("NGJudgeFlg").Num())});
    return types;
}

double Regeneration_Limit(const FieldValue& field) { return field.Blank() ? kNoLimit : field.Num(); }

int16_t Regeneration_Judge(double limit1, double limit2, double value1, double value2) {
    if (limit1 == kNoLimit && limit2 == kNoLimit) return 0;
    const bool pass1 = Passes(limit1, value1);
    const bool pass2 = Passes(limit2, value2);
    return pass1 ? (pass2 ? 0 : 1) : (pass2 ? 2 : 3);
}

bool Limit_Exceeded(double limit, double value) {
    return !Same_Single(limit, 0) && !Same_Single(limit, value) && limit < value;
}

std::string_view Driver_Judge(int16_t driverType, int16_t code, std::string_view& color) {
    const std::string_view text = Driver_Verdict(DriverTypes, driverType, code);
    color = JudgeColor(text);
    return text;
}

std::string_view Driver_Verdict(const std::vector<DriverTypeRec>& types, int16_t driverType, int16_t code) {
    const DriverTypeRec& rec = Find(types, driverType);
    return PatternRowCount == 0 ? "NA" : JudgeString(code != 0 ? rec.NGJudgeFlg : rec.OKJudgeFlg);
}

const std::string& Driver_Comment(int16_t driverType, int16_t code) {
    const DriverTypeRec& rec = Find(DriverTypes, driverType);
    return code != 0 ? rec.NGComment : rec.OKComment;
}

std::string_view JudgeString(int16_t flag) {
    switch (flag) {
        case 0: return "OK";
        case 1: return "FAIR";
        case 2: return "NG";
        default: return "NA";
    }
}

std::string_view JudgeColor(std::string_view text) {
    if (text == "FAIR") return kColorOrange;
    if (text == "NG") return kColorRed;
    return kColorWindowText;
}
