#include "ui/registry.h"

#include <map>

#include "ui/window.h"

namespace eterlab::ui::registry {

namespace {

std::map<std::string, Factory, std::less<>>& factories() {
  static std::map<std::string, Factory, std::less<>> map;
  return map;
}

}  // namespace

void add(std::string_view name, Factory factory) { factories().emplace(name, factory); }

std::unique_ptr<Window> create(std::string_view name) {
  const auto found = factories().find(name);
  return found == factories().end() ? nullptr : found->second();
}

bool contains(std::string_view name) { return factories().contains(name); }

std::vector<std::string> names() {
  std::vector<std::string> all;
  for (const auto& [name, factory] : factories()) {
    all.push_back(name);
  }
  return all;
}

}  // namespace eterlab::ui::registry
