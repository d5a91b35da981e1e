#include "common/ui/RunGuarded.h"

#include "base/MsgBox.h"
#include "base/RuntimeError.h"

bool Run_Guarded(const std::string& title, const std::function<void()>& command) {
    try {
        command();
        return true;
    } catch (const RuntimeError& e) {
        MsgBox(e.what(), title, MsgIcon::Critical);
        return false;
    }
}
