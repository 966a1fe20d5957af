#include "lines/matching/usual_sections.h"

#include "lines/standing_wave.h"

namespace eterlab::lines {

namespace {

MatchedLoad quarter_waves(int quarters, Real load_ohm, Real line_ohm, Real section_ohm) {
  return {load_ohm, line_ohm, {{section_ohm, quarters * quarter_wave}}};
}

MatchedLoad twelfth_waves(Real load_ohm, Real line_ohm) {
  const Real angle = twelfth_wave_angle(line_ohm, load_ohm);
  return {load_ohm, line_ohm, {{line_ohm, angle}, {load_ohm, angle}}};
}

}  // namespace

Real UsualSection::input_impedance_ohm() const {
  return matched.input_impedance_ohm().real() / branches;
}

Real UsualSection::swr() const {
  return standing_wave_ratio(input_impedance_ohm(), matched.line_ohm);
}

const std::vector<UsualSection>& usual_sections() {
  static const std::vector<UsualSection> sections{
      {"QUAD O DELTA LOOP 112 Ohm, CAVO 50 Ohm", "1/4 D'ONDA DI CAVO 75 Ohm",
       quarter_waves(1, 112, 50, 75), 1},
      {"YAGI 28 Ohm, CAVO 50 Ohm", "1/4 D'ONDA DI 2 x 75 Ohm IN PARALLELO",
       quarter_waves(1, 28, 50, 37.5), 1},
      {"YAGI 18 Ohm, CAVO 50 Ohm", "1/4 D'ONDA DI 50 E 75 Ohm IN PARALLELO",
       quarter_waves(1, 18, 50, 30), 1},
      {"YAGI 12,5 Ohm, CAVO 50 Ohm", "1/4 D'ONDA DI 2 x 50 Ohm IN PARALLELO",
       quarter_waves(1, 12.5, 50, 25), 1},
      {"GROUND PLANE 36 Ohm, CAVO 50 Ohm", "DALL'ANTENNA 50 Ohm POI 75 Ohm",
       series_section_match(Complex{36}, 50, 75).value(), 1},
      {"CAVO 75 Ohm, CAVO 50 Ohm", "DAL CAVO 75: TRATTO 50 Ohm POI TRATTO 75 Ohm",
       twelfth_waves(75, 50), 1},
      {"DIPOLO RIPIEGATO 300 Ohm, LINEA 75 Ohm", "1/4 D'ONDA DI 2 x 75 Ohm IN SERIE",
       quarter_waves(1, 300, 75, 150), 1},
      {"CARICO 200 Ohm, LINEA 50 Ohm", "1/4 D'ONDA DI 2 x 50 Ohm IN SERIE",
       quarter_waves(1, 200, 50, 100), 1},
      {"2 ANTENNE DA 50 Ohm, CAVO 50 Ohm", "3/4 D'ONDA DI CAVO 75 Ohm PER ANTENNA",
       quarter_waves(3, 50, 50, 75), 2},
      {"4 ANTENNE DA 50 Ohm, CAVO 50 Ohm", "COPPIE A 25 Ohm, POI 1/4 D'ONDA DI 50 Ohm PER COPPIA",
       quarter_waves(1, 25, 50, 50), 2},
  };
  return sections;
}

}  // namespace eterlab::lines
