#pragma once

#include <QPushButton>
#include <string_view>

#include "ui/control.h"

namespace eterlab::ui {

class Button : public QPushButton {
 public:
  Button(Parent parent, std::string_view name, std::string_view caption, Tooltip tip = {});
  ~Button() override;

  void set_caption(std::string_view caption);
  void on_click(const Handler& handler);
};

/// Runs the computation; Enter anywhere in the window presses it.
class ComputeButton final : public Button {
 public:
  ComputeButton(Parent parent, std::string_view name, std::string_view caption = "CALCOLA",
                Tooltip tip = {});
  ~ComputeButton() override;
};

/// Closes its window.
class ExitButton final : public Button {
 public:
  ExitButton(Parent parent, std::string_view name, std::string_view caption = "E S C I",
             Tooltip tip = {});
  ~ExitButton() override;
};

/// Closes its window, with the picture of an open door instead of a caption.
class DoorButton final : public Button {
 public:
  DoorButton(Parent parent, std::string_view name, Tooltip tip);
  ~DoorButton() override;
};

}  // namespace eterlab::ui
