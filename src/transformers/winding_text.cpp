#include "transformers/winding_text.h"

#include "common/number_text.h"

namespace eterlab::transformers {

std::string core_text(const LaminatedCore& core) {
  const std::string tongue = fixed(core.tongue_to_buy_mm(), 0);
  return "NUCLEO: SEZIONE LORDA " + fixed(core.gross_section_cm2, 1) + " cmq, COLONNA " + tongue +
         " x " + tongue + " mm";
}

std::string typed_section(const LaminatedCore& core) {
  const std::string text = as_typed(rounded(core.gross_section_cm2, 1));
  return text.find('.') == std::string::npos ? text + ".0" : text;
}

Real spacer_mm(Real gap_m) { return 1000 * gap_m / 2; }

bool has_no_spacer(Real gap_m) { return spacer_mm(gap_m) < 0.005; }

std::string spacer_text(Real gap_m) {
  return has_no_spacer(gap_m) ? "LAMIERINI ACCOSTATI SENZA CARTONCINO"
                              : "TRAFERRO: CARTONCINO DA " + fixed(spacer_mm(gap_m), 2) + " mm";
}

std::string wire_text(const WindingWire& wire) { return fixed(wire.diameter_mm, 3) + " mm"; }

}  // namespace eterlab::transformers
