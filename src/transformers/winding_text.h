#pragma once

#include <string>

#include "transformers/laminated_core.h"
#include "transformers/winding_wire.h"

// How the windows write cores and wires.

namespace eterlab::transformers {

/// A core to buy.
std::string core_text(const LaminatedCore& core);
/// Its section as the user types it back.
std::string typed_section(const LaminatedCore& core);
/// Thickness of the spacer that makes a gap: the flux passes it twice.
Real spacer_mm(Real gap_m);
/// Whether it is so thin that the sheets are just laid together.
bool has_no_spacer(Real gap_m);
/// The spacer to put in.
std::string spacer_text(Real gap_m);
/// A wire by its diameter.
std::string wire_text(const WindingWire& wire);

}  // namespace eterlab::transformers
