#include "shell/words.h"

#include "ui/text.h"

namespace eterlab::shell {

QStringList words_of(std::string_view text) {
  QString folded;
  for (const QChar letter : ui::to_qt(text).normalized(QString::NormalizationForm_KD).toLower()) {
    if (!letter.isMark()) {
      folded += letter.isLetterOrNumber() || letter == ':' || letter == '/' || letter == '.'
                    ? letter
                    : QChar{' '};
    }
  }
  QStringList words;
  for (QString word : folded.split(' ', Qt::SkipEmptyParts)) {
    while (word.endsWith('.') || word.endsWith(':')) {
      word.chop(1);
    }
    if (!word.isEmpty()) {
      words += word;
    }
  }
  return words;
}

}  // namespace eterlab::shell
