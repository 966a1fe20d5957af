#pragma once

#include <string>
#include <string_view>

#include "ui/button.h"
#include "ui/twips.h"
#include "ui/window.h"

namespace eterlab::ui {

/// Which window a button opens beside its own, and where both of them go.
struct Companion {
  std::string_view window;
  TwipsPoint caller_corner;
  TwipsPoint corner;
};

/// Opens a companion of its window.
class CompanionButton final : public Button {
 public:
  CompanionButton(Window& window, std::string_view name, std::string_view caption,
                  Companion companion);
  ~CompanionButton() override;
};

}  // namespace eterlab::ui
