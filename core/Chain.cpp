#include "core/Chain.h"

#include <string>

#include "base/MsgBox.h"
#include "core/Catalogue.h"

namespace {

bool In(int16_t code, int lo, int hi) { return code >= lo && code <= hi; }

bool RotatingOutput(int16_t code) { return In(code, 1, 10) || In(code, 21, 30) || code == kTypeMotor; }

bool LinearOutput(int16_t code) { return In(code, 11, 20) || In(code, 31, 40); }

bool AskOk(const char* question) {
    return MsgBox(question, "", MsgIcon::Question, MsgButtons::OKCancel) == MsgAnswer::OK;
}

// The steps of the check, numbered as the rule reads.
class PlaceCheck {
public:
    explicit PlaceCheck(int16_t slot)
        : d_(DragType),
          ec_(ElementCount),
          p_(Element[slot - 1].ElementType),
          c_(Element[slot].ElementType),
          n_(slot == 19 ? kTypeEmpty : Element[slot + 1].ElementType) {}

    int16_t Run() {
        if (p_ == kTypeEmpty) return -1;
        if (In(c_, 41, 49)) return Special();
        const bool keepsMotion = (In(d_, 1, 10) && RotatingOutput(p_)) || (In(d_, 31, 40) && LinearOutput(p_));
        if (!keepsMotion) return Special();
        if (In(d_, 1, 10) && In(c_, 1, 10)) return Choose();
        if (In(c_, 31, 40)) return Choose();
        if (n_ != kTypeEmpty) return Insert();
        return Choose();
    }

private:
    // Step 7.
    int16_t Choose() {
        if (ec_ == kMaxElements) return Overwrite();
        if (c_ == kTypeEmpty) return n_ == kTypeEmpty ? Overwrite() : -1;
        switch (MsgBox("Insert?  Overwrite?", "", MsgIcon::Question, MsgButtons::InsertOverwriteCancel)) {
            case MsgAnswer::Insert: InsertAnswer = 1; return Insert();
            case MsgAnswer::Overwrite: InsertAnswer = 2; return Overwrite();
            default: InsertAnswer = -1; return -2;
        }
    }

    // Step 8.
    int16_t Insert() {
        if (ec_ >= kMaxElements) return -1;
        if (c_ != kTypeEmpty && InsertAnswer == 0 && !AskOk("Insert?")) return -2;
        ++ElementCount;
        return 0;
    }

    // Steps 9 to 11.
    int16_t Special() {
        if (In(d_, 41, 49)) return (p_ == kTypeMotor && n_ == kTypeEmpty) ? Overwrite() : -1;
        if (n_ == kTypeEmpty) {
            if (In(p_, 41, 49)) return -1;
            const bool fits = RotatingOutput(p_) ? In(d_, 1, 20) : In(d_, 21, 40);
            return fits ? Overwrite() : -1;
        }
        bool fits = false;
        if (c_ < 1) fits = false;
        else if (In(c_, 1, 10)) fits = In(d_, 1, 10);
        else if (In(c_, 11, 20)) fits = In(d_, 11, 20);
        else if (In(c_, 21, 30)) fits = In(d_, 21, 30);
        else fits = In(d_, 31, 40);
        return fits ? Overwrite() : -1;
    }

    // Step 12.
    int16_t Overwrite() {
        if (c_ == kTypeEmpty) {
            ++ElementCount;
            return 1;
        }
        if (InsertAnswer == 0 && !AskOk("Overwrite?")) return -2;
        return 1;
    }

    int16_t d_, ec_, p_, c_, n_;
};

// First digit of the code as two-digit text: 5 gives "05", so 0.
int FirstDigit(int16_t code) { return (code / 10) % 10; }

void ClearElement(ElementRecord& e) {
    e.ElementType = kTypeEmpty;
    e.InputMode = 0;
    e.DirectValue = 0;
}

}  // namespace

int16_t Chain_PlaceCheck(int16_t slot) {
    int16_t result = -1;
    if (slot > 0 && slot < kMaxElements) result = PlaceCheck(slot).Run();
    InsertAnswer = 0;
    return result;
}

void Chain_OpenSlot(int16_t slot) {
    for (int k = 18; k >= slot; --k) Element[k + 1] = Element[k];
}

void Chain_SetSlot(int16_t slot) {
    ElementRecord& e = Element[slot];
    e.ElementType = DragType;
    e.InputMode = 0;
    Item_Defaults(DragType, e.Item);
    SelectedElement = slot;
}

int16_t Chain_DeleteCheck(int16_t slot) {
    if (slot <= 0 || slot > 19) return -1;
    if (slot != ElementCount - 1) {
        const int16_t prev = Element[slot - 1].ElementType;
        const int16_t next = Element[slot + 1].ElementType;
        const int p = FirstDigit(prev), n = FirstDigit(next);
        if (p != 4 && n != 4) {
            if (p == 0 || p == 2 || prev == kTypeMotor) {
                if (n != 0 && n != 1) return -1;
            } else if ((p != 3 && p != 1) || (n != 3 && n != 2)) {
                return -1;
            }
        }
    }
    return AskOk("Delete?") ? 0 : -2;
}

void Chain_CloseSlot() {
    const int16_t selected = SelectedElement;
    if (selected <= 0 || selected >= ElementCount) return;  // no component there: the motor stays
    ClearElement(Element[selected]);
    for (int k = selected; k <= 18; ++k) Element[k] = Element[k + 1];
    if (ElementCount - 1 >= 0) ClearElement(Element[ElementCount - 1]);
    if (selected == ElementCount - 1) SelectedElement = static_cast<int16_t>(selected - 1);
    if (selected == 1) FirstVisible = 0;
    if (ElementCount > 1) --ElementCount;
}

int16_t Load_Motion(const std::array<ElementRecord, kElementSlots>& elements) {
    const int16_t last = elements[ElementCount > 0 ? ElementCount - 1 : 0].ElementType;
    if (last <= 10) return 1;
    if (last <= 20) return 0;
    if (last <= 30) return 1;
    return 0;
}
