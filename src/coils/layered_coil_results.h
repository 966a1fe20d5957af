#pragma once

#include <string_view>

#include "coils/layered_coil.h"
#include "ui/ui.h"

// What the windows of coils in layers tell alike.

namespace eterlab::coils {

/// Turns, inductance, layers, size, wire and resistance. In a layout they are a column.
class LayeredCoilResults {
 public:
  explicit LayeredCoilResults(ui::Parent parent);
  operator ui::Item();

  /// The size as the window tells it.
  void show(const LayeredCoil& coil, int turns_per_layer, std::string_view size);

 private:
  ui::Result lblspire;
  ui::Result lblinduttanza;
  ui::Result lblstrati;
  ui::Result lblesterno;
  ui::Result lblfilo;
  ui::Result lblresistenza;
};

}  // namespace eterlab::coils
