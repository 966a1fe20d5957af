#pragma once

#include <QImage>
#include <QTextBrowser>
#include <functional>
#include <string>
#include <string_view>

#include "ui/control.h"

class QPrinter;

namespace eterlab::ui {

/// Shows pages of Markdown with formulas in them, as parse_formula() reads them: between $ signs in
/// a text, a line each in a block that is fenced as "formula". What is no formula is shown as it is
/// written.
class PageView final : public QTextBrowser {
 public:
  /// Gives the picture that a page names, in these colours and so fine.
  using Pictures =
      std::function<QImage(std::string_view name, const QPalette& palette, double dots_per_pixel)>;

  PageView(Parent parent, std::string_view name, std::string_view accessible_name,
           Pictures pictures);

  /// As large as so many characters in so many lines want it, or as the screen has room for.
  void set_size(int width_in_characters, int lines);

  void show_page(std::string_view markdown);

  /// What happens with a link that is clicked on, or reached by Tab and entered.
  void on_link(std::function<void(const std::string& target)> handler);

  /// What Alt+Left does anywhere in the window, as in all that shows pages.
  void on_back(const Handler& handler);

  /// Marks a text wherever it stands on the page and tells how often that is.
  int mark(std::string_view text);
  /// Scrolls to where the marked text stands next, behind the last place the first one.
  void go_to_next_mark();

  /// From the top, in pixels.
  [[nodiscard]] int scrolled() const;
  void scroll_to(int pixels);

  /// The page on paper, with its pictures in the colours of paper.
  bool print_page(QPrinter& printer, std::string_view title);

  [[nodiscard]] QSize sizeHint() const override { return size_; }
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
  void changeEvent(QEvent* event) override;

 private:
  struct Look {
    QPalette palette;
    double dots_per_pixel;
    int width;  ///< that there is for pictures
  };
  void fill(QTextDocument& page, const Look& look) const;
  void place_pictures(QTextDocument& page, const Look& look) const;

  Pictures pictures_;
  std::string markdown_;
  QSize size_;
};

}  // namespace eterlab::ui
