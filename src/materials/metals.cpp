#include "materials/metals.h"

#include <algorithm>
#include <array>

namespace eterlab::materials {

namespace {

constexpr std::array catalogue{
    Metal{"ARGENTO", 0.01587, 0.00380},    copper,
    Metal{"ORO", 0.02214, 0.00340},        Metal{"ALLUMINIO", 0.02826, 0.00403},
    Metal{"OTTONE", 0.065, 0.00150},       Metal{"ZINCO", 0.059, 0.00370},
    Metal{"FERRO", 0.0971, 0.00500, true}, Metal{"ACCIAIO INOX", 0.72, 0.00100},
    Metal{"STAGNO", 0.115, 0.00420},       constantan,
    Metal{"NICHELCROMO", 1.1, 0.00017},
};

constexpr bool is_magnetic(const Metal& metal) { return metal.is_magnetic; }

constexpr auto without_magnetic = [] {
  std::array<Metal, catalogue.size() - std::ranges::count_if(catalogue, is_magnetic)> rest{};
  std::ranges::remove_copy_if(catalogue, rest.begin(), is_magnetic);
  return rest;
}();

}  // namespace

std::span<const Metal> metals() { return catalogue; }

std::span<const Metal> non_magnetic_metals() { return without_magnetic; }

}  // namespace eterlab::materials
