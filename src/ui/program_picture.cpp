#include "ui/program_picture.h"

#include <QPixmap>

#include "ui/icons.h"

namespace eterlab::ui {

ProgramPicture::ProgramPicture(Parent parent, std::string_view name) : QLabel{parent.widget()} {
  set_up(*this, name, {});
  const int side = 2 * icon_size();
  const double scale = devicePixelRatioF();
  QPixmap picture = QPixmap{":/pictures/eterlab-128.png"}.scaled(
      QSize{side, side} * scale, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  picture.setDevicePixelRatio(scale);
  setPixmap(picture);
}

ProgramPicture::~ProgramPicture() = default;

}  // namespace eterlab::ui
