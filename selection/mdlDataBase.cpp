#include "selection/mdlDataBase.h"

#include "base/MsgBox.h"
#include "base/Numeric.h"
#include "base/RuntimeError.h"
#include "core/Tables.h"

namespace {

void Store(std::array<int16_t, kListSlots>& slots, int position, const FieldValue& value) {
    if (position >= kListSlots) throw RuntimeError("Subscript out of range");
    slots[position] = CInt(value.Num());
}

}  // namespace

void Series_Connect() {
    const std::string path = AppPath + "/" + std::string(kSeriesFile);
    if (SeriesConnection.Open(path) == kErrFileNotFound)
        MsgBox(std::string(kSeriesFile) + " File was not found.", std::string(kTitleMotorSelection),
               MsgIcon::Exclamation);
}

int16_t Recordset_Open(std::string_view query, Recordset& recordset) {
    return SeriesConnection.Execute(query, recordset) ? 0 : -1;
}

void Recordset_Failed() {
    // The message has no blank before "File", as it always had.
    MsgBox(std::string(kSeriesFile) + "File was not found.", std::string(kTitleMotorSelection), MsgIcon::Exclamation);
}

void List_Fill(Recordset& recordset, std::vector<std::string>& list, int16_t kind) {
    list.clear();
    for (int position = 0; !recordset.IsEOF(); ++position, recordset.MoveNext()) {
        if (kind == 0) {
            list.push_back(recordset.Field("SeriesName").Text());
            Store(SeriesFlgList, position, recordset.Field("SeriesFlg"));
            Store(SeriesIDList, position, recordset.Field("ID"));
        } else {
            list.push_back(recordset.Field("ModelName").Text());
            Store(ModelFlgList, position, recordset.Field("ModelFlg"));
        }
    }
}
