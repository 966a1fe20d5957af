#include "materials/galvanic_series.h"

#include <array>

namespace eterlab::materials {

namespace {

constexpr std::array series{
    GalvanicMetal{"MAGNESIO", 1.75},
    GalvanicMetal{"ZINCO", 1.25},
    GalvanicMetal{"ACCIAIO ZINCATO", 1.20},
    GalvanicMetal{"CADMIO", 0.95},
    GalvanicMetal{"ALLUMINIO 6060", 0.90},
    GalvanicMetal{"FERRO E ACCIAIO", 0.85},
    GalvanicMetal{"DURALLUMINIO", 0.75},
    GalvanicMetal{"PIOMBO", 0.70},
    GalvanicMetal{"STAGNO E SALDATURA", 0.65},
    GalvanicMetal{"CROMO", 0.60},
    GalvanicMetal{"ACCIAIO INOX", 0.50},
    GalvanicMetal{"OTTONE", 0.40},
    GalvanicMetal{"BRONZO", 0.40},
    GalvanicMetal{"RAME", 0.35},
    GalvanicMetal{"NICHEL", 0.30},
    GalvanicMetal{"ARGENTO", 0.15},
    GalvanicMetal{"ORO", 0.00},
};

}  // namespace

std::span<const GalvanicMetal> galvanic_series() { return series; }

Real contact_voltage_v(const GalvanicMetal& a, const GalvanicMetal& b) {
  return abs(Real{a.anodic_index_v} - b.anodic_index_v);
}

Contact contact_at(Real voltage_v) {
  constexpr double margin_v = 1e-9;
  if (voltage_v <= 0.15 + margin_v) {
    return Contact::outdoors;
  }
  if (voltage_v <= 0.25 + margin_v) {
    return Contact::indoors;
  }
  return voltage_v <= 0.50 + margin_v ? Contact::dry : Contact::nowhere;
}

}  // namespace eterlab::materials
