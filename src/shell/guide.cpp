#include "shell/guide.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <algorithm>
#include <cstddef>
#include <memory>
#include <utility>

#include "shell/guide_page.h"
#include "shell/words.h"
#include "ui/registry.h"
#include "ui/text.h"
#include "ui/window.h"
#include "ui/window_picture.h"

namespace eterlab::shell {

namespace {

const QString folder = QStringLiteral(":/guida/");
const QString ending = QStringLiteral(".md");

QString file_of(std::string_view page) { return folder + ui::to_qt(file_name(page)); }

/// A text that Markdown takes as it is.
QString escaped(const QString& text) {
  static const QRegularExpression marks{R"(([\\`*_{}\[\]<>()#|$&]))"};
  return text.simplified().replace(marks, QStringLiteral("\\\\1"));
}

QString row_of(const ExampleStep& step, const QWidget& window) {
  const auto* control = window.findChild<QWidget*>(ui::to_qt(step.control));
  if (control == nullptr) {
    return {};
  }
  const QString told = escaped(ui::to_qt(step.text));
  switch (step.kind) {
    case ExampleStep::Kind::fill_in:
      return QStringLiteral("| %1 | %2 |\n").arg(escaped(control->accessibleName()), told);
    case ExampleStep::Kind::click:
      return QStringLiteral("| %1 | clic |\n").arg(escaped(control->property("text").toString()));
    case ExampleStep::Kind::read:
      return QStringLiteral("| %1 | **%2** |\n")
          .arg(escaped(control->accessibleDescription()), told);
  }
  return {};
}

std::string table_of(const std::string& block, const QWidget& window) {
  QString table = QStringLiteral("\n| Casella o pulsante | Dato o **risultato** |\n|---|---|\n");
  for (const ExampleStep& step : parse_example(block)) {
    table += row_of(step, window);
  }
  return ui::from_qt(table + '\n');
}

/// What a page is looked for in: words with a blank before each.
struct Searched {
  std::string name;
  std::string words;
  std::string title;
};

std::string joined(std::string_view text) { return ui::from_qt(' ' + words_of(text).join(' ')); }

std::vector<Searched> all_pages() {
  std::vector<Searched> all;
  for (const QString& file : QDir{folder}.entryList({'*' + ending})) {
    const std::string name = ui::from_qt(file.chopped(ending.size()));
    const std::string source = page_source(name);
    all.push_back({name, joined(source), joined(parse_page(source).title)});
  }
  return all;
}

}  // namespace

std::string file_name(std::string_view page) {
  QString name = ui::to_qt(page).normalized(QString::NormalizationForm_KD);
  name.removeIf([](QChar letter) { return letter.isMark(); });
  return ui::from_qt(name + ending);
}

std::string page_in(std::string_view file) {
  for (const std::string& window : ui::registry::names()) {
    if (file_name(window) == file) {
      return window;
    }
  }
  return ui::from_qt(ui::to_qt(file).chopped(ending.size()));
}

bool has_page(std::string_view page) { return QFile::exists(file_of(page)); }

std::string page_source(std::string_view page) {
  QFile file{file_of(page)};
  return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string{};
}

std::string page_to_read(std::string_view page) {
  std::string markdown;
  for (const PageBlock& block : blocks_of(page_source(page))) {
    if (block.fence == "esempio") {
      const auto window = ui::window_with_example(page, QApplication::palette());
      markdown += table_of(block.content, *window);
    } else if (block.fence.empty()) {
      markdown += block.content;
    } else {
      markdown += "```" + block.fence + '\n' + block.content + "```\n";
    }
  }
  return markdown;
}

std::vector<std::string> find_pages(std::string_view text) {
  static const std::vector<Searched> all = all_pages();
  std::vector<std::string> wanted;
  for (const QString& word : words_of(text)) {
    wanted.push_back(ui::from_qt(' ' + word));
  }
  if (wanted.empty()) {
    return {};
  }
  std::vector<std::pair<std::ptrdiff_t, std::string>> found;
  for (const Searched& page : all) {
    const auto is_in = [](const std::string& words) {
      return [&words](const std::string& word) { return words.find(word) != std::string::npos; };
    };
    if (std::ranges::all_of(wanted, is_in(page.words))) {
      found.emplace_back(-std::ranges::count_if(wanted, is_in(page.title)), page.name);
    }
  }
  std::ranges::stable_sort(found, {}, &std::pair<std::ptrdiff_t, std::string>::first);
  std::vector<std::string> pages;
  pages.reserve(found.size());
  for (auto& [rank, page] : found) {
    pages.push_back(std::move(page));
  }
  return pages;
}

std::string page_of_found(std::string_view text) {
  const std::vector<std::string> pages = find_pages(text);
  const std::string wanted = "«" + ui::from_qt(escaped(ui::to_qt(text))) + "»";
  if (pages.empty()) {
    return "# Nessuna pagina con " + wanted + "\n";
  }
  std::string list = "# Pagine con " + wanted + "\n\n";
  for (const std::string& page : pages) {
    list += "- [" + parse_page(page_source(page)).title + "](" + page + ".md)\n";
  }
  return list;
}

}  // namespace eterlab::shell
