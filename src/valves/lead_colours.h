#pragma once

#include <span>
#include <string_view>

namespace eterlab::valves {

/// A lead of a transformer or loudspeaker and its colour, or its colour and that of its tracer.
struct Lead {
  std::string_view name;     ///< in Italian
  std::string_view colour;   ///< in Italian
  std::string_view english;  ///< the same as the standard has it
};

/// A kind of part with coloured leads.
struct LeadColours {
  std::string_view name;        ///< as lists show it, in Italian
  std::span<const Lead> leads;  ///< those of a winding follow each other
};

/// The American standard colour code, by RMA, later RETMA and EIA. Source: The Radio Amateur's
/// Handbook (ARRL); Radio Handbook.
std::span<const LeadColours> lead_colours();

}  // namespace eterlab::valves
