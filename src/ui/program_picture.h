#pragma once

#include <QLabel>
#include <string_view>

#include "ui/control.h"

namespace eterlab::ui {

/// The program's icon, large, as a picture on a window.
class ProgramPicture final : public QLabel {
 public:
  ProgramPicture(Parent parent, std::string_view name);
  ~ProgramPicture() override;
};

}  // namespace eterlab::ui
