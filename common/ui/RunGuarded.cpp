#include "common/ui/RunGuarded.h"

#include "base/MsgBox.h"
#include "base/RuntimeError.h"

#include <string>

bool Run_Guarded(std::string_view title, const std::function<void()>& command) {
    try {
        command();
        return true;
    } catch (const RuntimeError& e) {
        MsgBox(e.what(), std::string(title), MsgIcon::Critical);
        return false;
    }
}
