#include "signals/decibel_microvolt.h"

#include "common/number_text.h"

namespace eterlab::signals {

Single level_dbuv(Real voltage_uv) { return Single{rounded(20 * ln(voltage_uv) / ln(10), 2)}; }

Single voltage_uv(Real level_dbuv) { return Single{rounded(pow(10, level_dbuv / 20), 2)}; }

}  // namespace eterlab::signals
