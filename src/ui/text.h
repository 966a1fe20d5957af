#pragma once

#include <QString>
#include <string>
#include <string_view>

// The one border between the program's UTF-8 texts and the toolkit's.

namespace eterlab::ui {

inline QString to_qt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string from_qt(const QString& text) { return text.toStdString(); }

}  // namespace eterlab::ui
