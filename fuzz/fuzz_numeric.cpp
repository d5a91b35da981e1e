// Text typed where a number belongs: the readers and the formatters must take
// any bytes without failing in any way but a RuntimeError.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/NumberFormat.h"
#include "base/Numeric.h"
#include "base/RuntimeError.h"
#include "core/Catalogue.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const bool numeric = IsNumeric(text);
    const double v = Val(text);
    try {
        CInt(text);
    } catch (const RuntimeError&) {
    }
    if (numeric && std::isfinite(v)) {
        for (const auto mask : {kMask3, kMask1, kMask2, kMaskOpt1, kMaskOpt2, kMaskWhole, kMaskSci4, kMaskSci5})
            if (Format_Mask(v, mask).empty()) std::abort();
        if (Num_Format(v, 0, 1).empty() || NumberText(v).empty()) std::abort();
    }
    return 0;
}
