#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace eterlab::ui {

class Window;

/// Every window that exists, by its name. A window enters itself, with one line in its own file:
///
///     const ui::Registration<frmros> registration{"frmros"};
namespace registry {

using Factory = std::unique_ptr<Window> (*)();

void add(std::string_view name, Factory factory);
/// Creates a window in its design-time state; nothing when there is none of that name.
std::unique_ptr<Window> create(std::string_view name);
bool contains(std::string_view name);
/// In alphabetical order.
std::vector<std::string> names();

}  // namespace registry

template <class W>
class Registration {
 public:
  explicit Registration(std::string_view name) {
    registry::add(name, []() -> std::unique_ptr<Window> { return std::make_unique<W>(); });
  }
};

}  // namespace eterlab::ui
