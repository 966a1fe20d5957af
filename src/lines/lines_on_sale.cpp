#include "lines/lines_on_sale.h"

#include <array>

namespace eterlab::lines {

namespace {

constexpr std::array<LineOnSale, 12> catalogue{{
    {25, "2 x 50 Ohm IN PARALLELO"},
    {30, "50 E 75 Ohm IN PARALLELO"},
    {37.5, "2 x 75 Ohm IN PARALLELO"},
    {46.5, "2 x 93 Ohm IN PARALLELO"},
    {50, "50 Ohm"},
    {75, "75 Ohm"},
    {93, "93 Ohm"},
    {100, "2 x 50 Ohm IN SERIE"},
    {150, "2 x 75 Ohm IN SERIE"},
    {186, "2 x 93 Ohm IN SERIE"},
    {300, "PIATTINA 300 Ohm"},
    {450, "PIATTINA 450 Ohm"},
}};

}  // namespace

std::span<const LineOnSale> lines_on_sale() { return catalogue; }

std::span<const LineOnSale> single_cables() {
  constexpr int first = 4;
  constexpr int count = 3;
  return lines_on_sale().subspan(first, count);
}

const LineOnSale& nearest_line(std::span<const LineOnSale> lines, Real impedance_ohm) {
  constexpr double noise = 1e-9;
  const auto distance = [impedance_ohm](const LineOnSale& line) {
    return abs(ln(impedance_ohm / line.impedance_ohm));
  };
  const LineOnSale* nearest = &lines.front();
  for (const LineOnSale& line : lines) {
    if (distance(line) < distance(*nearest) - noise) {
      nearest = &line;
    }
  }
  return *nearest;
}

}  // namespace eterlab::lines
