#include "materials/dielectrics.h"

namespace eterlab::materials {

namespace {

constexpr Dielectric catalogue[] = {
    {"ARIA", 1.0006},
    {"POLIETILENE", 2.25},
    {"TEFLON (PTFE)", 2.1},
    {"POLIPROPILENE", 2.2},
    {"POLISTIROLO", 2.55},
    {"POLIESTERE", 3.3},
    {"POLICARBONATO", 2.9},
    {"PLEXIGLAS", 3.0},
    {"CARTA PARAFFINATA", 2.2},
    {"MICA", 6.0},
    {"VETRO", 7.0},
    {"QUARZO", 3.78},
    {"VETRONITE (FR4)", 4.5},
    {"ALLUMINA", 9.8},
};

}  // namespace

std::span<const Dielectric> dielectrics() { return catalogue; }

}  // namespace eterlab::materials
