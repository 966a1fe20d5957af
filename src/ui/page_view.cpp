#include "ui/page_view.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QPrinter>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextObjectInterface>
#include <QTextTable>
#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "ui/desktop.h"
#include "ui/formula_picture.h"
#include "ui/printing.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

namespace {

constexpr int formula_object = QTextFormat::UserObject + 1;
constexpr int formula_source = QTextFormat::UserProperty + 1;

/// Formulas wait as such letters, which no text has, for the Markdown around them to be read.
constexpr char16_t first_stand_in = 0xE000;
const QRegularExpression& stand_ins() {
  static const QRegularExpression letters{QStringLiteral("[\\x{E000}-\\x{F8FF}]")};
  return letters;
}

/// Draws formulas within a text.
class FormulaObject final : public QObject, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  using QObject::QObject;

  QSizeF intrinsicSize(QTextDocument* /*document*/, int /*position*/,
                       const QTextFormat& format) override {
    const FormulaPicture& picture = picture_of(format);
    if (!is_within_text(format)) {
      return {picture.width(), picture.ascent() + picture.descent()};
    }
    const double shift = shift_of(format);
    return {picture.width(), std::max(2 * picture.ascent() - shift, 2 * picture.descent() + shift)};
  }

  void drawObject(QPainter* painter, const QRectF& place, QTextDocument* /*document*/,
                  int /*position*/, const QTextFormat& format) override {
    const FormulaPicture& picture = picture_of(format);
    const double baseline =
        is_within_text(format) ? (place.height() + shift_of(format)) / 2 : picture.ascent();
    picture.draw(*painter, place.topLeft() + QPointF{0, baseline});
  }

 private:
  static bool is_within_text(const QTextFormat& format) {
    return format.toCharFormat().verticalAlignment() == QTextCharFormat::AlignMiddle;
  }

  /// An object that is aligned in the middle reaches so much higher above the line on which letters
  /// stand than below it.
  static double shift_of(const QTextFormat& format) {
    return QFontMetrics{format.toCharFormat().font()}.xHeight() / 2.0;
  }

  /// Each is asked for with every layout and every painting.
  const FormulaPicture& picture_of(const QTextFormat& format) {
    const QString source = format.stringProperty(formula_source);
    const QFont font = format.toCharFormat().font();
    const auto key = std::pair{source, font.key()};
    auto found = pictures_.find(key);
    if (found == pictures_.end()) {
      found = pictures_.emplace(key, FormulaPicture{parse_formula(from_qt(source)), font}).first;
    }
    return found->second;
  }

  std::map<std::pair<QString, QString>, FormulaPicture> pictures_;
};

struct Prepared {
  QString markdown;
  QStringList formulas;
};

/// Takes the formulas out of a page and leaves a letter for each that stands in for it.
Prepared prepare(std::string_view markdown) {
  static const QRegularExpression in_text{R"(\$([^$\n]+)\$)"};
  Prepared page;
  const auto stand_in = [&page](const QString& formula) {
    page.formulas += formula.trimmed();
    return QChar{static_cast<char16_t>(first_stand_in + page.formulas.size() - 1)};
  };
  bool is_formula = false;
  bool is_code = false;
  // Where a text has one after all, as what is searched for may, it goes.
  for (QString line : to_qt(markdown).remove(stand_ins()).split('\n')) {
    const bool is_fence = line.startsWith(QStringLiteral("```"));
    if (is_fence && !is_code && (is_formula || line == QStringLiteral("```formula"))) {
      is_formula = !is_formula;
      page.markdown += '\n';
      continue;
    }
    if (is_formula) {
      if (!line.trimmed().isEmpty()) {
        page.markdown += stand_in(line) + QStringLiteral("\n\n");
      }
      continue;
    }
    is_code = is_code != is_fence;
    for (auto found = in_text.match(line); found.hasMatch() && !is_code;
         found = in_text.match(line)) {
      line.replace(found.capturedStart(), found.capturedLength(), stand_in(found.captured(1)));
    }
    page.markdown += line + '\n';
  }
  return page;
}

void insert_formula(QTextCursor& at, const QString& source, bool stands_alone) {
  try {
    (void)parse_formula(from_qt(source));
  } catch (const FormulaError&) {
    at.insertText(source);
    return;
  }
  QTextCharFormat format = at.charFormat();
  format.setObjectType(formula_object);
  format.setProperty(formula_source, source);
  if (!stands_alone) {
    format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
  }
  at.insertText(QString{QChar::ObjectReplacementCharacter}, format);
}

void insert_formulas(QTextDocument& page, const QStringList& formulas) {
  for (QTextCursor at = page.find(stand_ins()); !at.isNull(); at = page.find(stand_ins(), at)) {
    const QString& source = formulas[at.selectedText().at(0).unicode() - first_stand_in];
    const bool stands_alone = at.block().text().size() == 1 && at.currentTable() == nullptr;
    insert_formula(at, source, stands_alone);
    if (stands_alone) {
      QTextBlockFormat indented;
      indented.setLeftMargin(2 * theme::margin());
      indented.setTopMargin(theme::spacing() / 2.0);
      indented.setBottomMargin(theme::spacing() / 2.0);
      at.mergeBlockFormat(indented);
    }
  }
}

/// Desktops with a dark ground do not always give links a colour of their own.
void colour_links(QTextDocument& page, const QPalette& palette) {
  const QColor link = palette.color(QPalette::Link);
  const Colour legible =
      theme::legible({link.red(), link.green(), link.blue()}, palette.color(QPalette::Base));
  QTextCharFormat format;
  format.setForeground(QColor{legible.red, legible.green, legible.blue});
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    std::vector<std::pair<int, int>> links;
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      if (piece.fragment().charFormat().isAnchor()) {
        links.emplace_back(piece.fragment().position(), piece.fragment().length());
      }
    }
    for (const auto& [begin, length] : links) {
      QTextCursor over{&page};
      over.setPosition(begin);
      over.setPosition(begin + length, QTextCursor::KeepAnchor);
      over.mergeCharFormat(format);
    }
  }
}

void dress_tables(QTextDocument& page, const QPalette& palette) {
  for (QTextFrame* frame : page.rootFrame()->childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(frame); table != nullptr) {
      QTextTableFormat format = table->format();
      format.setBorderCollapse(true);
      format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
      format.setBorder(1);
      format.setBorderBrush(palette.brush(QPalette::Mid));
      format.setCellPadding(theme::spacing() / 3.0);
      format.setLeftMargin(2 * theme::margin());
      format.setTopMargin(theme::spacing());
      format.setBottomMargin(theme::spacing());
      table->setFormat(format);
    }
  }
}

}  // namespace

PageView::PageView(Parent parent, std::string_view name, std::string_view accessible_name,
                   Pictures pictures)
    : QTextBrowser{parent.widget()}, pictures_{std::move(pictures)} {
  set_up(*this, name, {});
  setAccessibleName(to_qt(accessible_name));
  setOpenLinks(false);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // pages are set for the width beside it
}

void PageView::set_size(int width_in_characters, int lines) {
  const QSize wanted{theme::characters(width_in_characters), lines * fontMetrics().lineSpacing()};
  constexpr double share_of_screen = 0.75;
  size_ = wanted.boundedTo(screen()->availableSize() * share_of_screen);
}

QSize PageView::minimumSizeHint() const { return size_ / 2; }

void PageView::place_pictures(QTextDocument& page, const Look& look) const {
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      QTextImageFormat format = piece.fragment().charFormat().toImageFormat();
      if (!format.isValid()) {
        continue;
      }
      const QImage picture = pictures_(from_qt(format.name()), look.palette, look.dots_per_pixel);
      page.addResource(QTextDocument::ImageResource, QUrl{format.name()}, picture);
      const QSizeF size = picture.deviceIndependentSize();
      const double scale = size.isEmpty() ? 1 : std::min(1.0, look.width / size.width());
      format.setWidth(size.width() * scale);
      format.setHeight(size.height() * scale);
      QTextCursor over{&page};
      over.setPosition(piece.fragment().position());
      over.setPosition(piece.fragment().position() + piece.fragment().length(),
                       QTextCursor::KeepAnchor);
      over.setCharFormat(format);
      break;  // the pieces of the block are others now
    }
  }
}

void PageView::fill(QTextDocument& page, const Look& look) const {
  const Prepared prepared = prepare(markdown_);
  page.documentLayout()->registerHandler(formula_object, new FormulaObject{&page});
  page.setMarkdown(prepared.markdown);
  QTextCursor edit{&page};
  edit.beginEditBlock();  // laid out once, not after each of the changes
  insert_formulas(page, prepared.formulas);
  dress_tables(page, look.palette);
  colour_links(page, look.palette);
  place_pictures(page, look);
  edit.endEditBlock();
}

void PageView::show_page(std::string_view markdown) {
  markdown_ = markdown;
  setExtraSelections({});
  auto* page = new QTextDocument{this};
  page->setDefaultFont(font());
  page->setDocumentMargin(theme::margin());
  // Before the view is laid out, the width that it asks for.
  const int width =
      isVisible() ? viewport()->width() : size_.width() - verticalScrollBar()->sizeHint().width();
  fill(*page, {palette(), devicePixelRatioF(), width - 2 * theme::margin()});
  const QPointer<QTextDocument> last = document();
  setDocument(page);
  if (last != nullptr) {  // the view itself destroys only the one that it was made with
    last->deleteLater();
  }
  scroll_to(0);
}

void PageView::on_link(std::function<void(const std::string& target)> handler) {
  connect(this, &QTextBrowser::anchorClicked, this,
          [handler = std::move(handler)](const QUrl& link) {
            Desktop::instance().run([&] { handler(from_qt(link.toString())); });
          });
}

void PageView::on_back(const Handler& handler) {
  auto* keys = new QShortcut{Qt::ALT | Qt::Key_Left, this};
  connect(keys, &QShortcut::activated, this, [handler] { Desktop::instance().run(handler); });
}

int PageView::mark(std::string_view text) {
  QList<ExtraSelection> marks;
  if (!text.empty()) {
    const QString wanted = to_qt(text);
    QTextCharFormat marked;
    marked.setBackground(palette().brush(QPalette::Highlight));
    marked.setForeground(palette().brush(QPalette::HighlightedText));
    for (QTextCursor at = document()->find(wanted); !at.isNull();
         at = document()->find(wanted, at)) {
      marks.push_back({at, marked});
    }
  }
  setExtraSelections(marks);
  return static_cast<int>(marks.size());
}

void PageView::go_to_next_mark() {
  const QList<ExtraSelection> marks = extraSelections();
  if (marks.isEmpty()) {
    return;
  }
  const int here = textCursor().position();
  auto next = std::ranges::find_if(
      marks, [here](const ExtraSelection& mark) { return mark.cursor.position() > here; });
  QTextCursor at = (next == marks.end() ? marks.begin() : next)->cursor;
  at.clearSelection();
  setTextCursor(at);
  ensureCursorVisible();
}

int PageView::scrolled() const { return verticalScrollBar()->value(); }

void PageView::scroll_to(int pixels) { verticalScrollBar()->setValue(pixels); }

bool PageView::print_page(QPrinter& printer, std::string_view title) {
  printer.setDocName(to_qt(title));
  QPainter painter;
  if (!painter.begin(&printer)) {
    return false;
  }
  const QSizeF paper = printer.pageRect(QPrinter::DevicePixel).size();
  const double heading = print_heading(painter, paper.width(), to_qt(title));
  // Set in the measures of the screen and drawn larger, so that all is where it is on the screen.
  const double scale = printer.logicalDpiX() / static_cast<double>(logicalDpiX());
  const QSizeF room{paper.width() / scale, (paper.height() - heading) / scale};
  QTextDocument page;
  page.setDefaultFont(font());
  page.setDocumentMargin(0);
  page.setUseDesignMetrics(true);
  constexpr double fine = 3;
  fill(page, {theme::paper_palette(), fine, static_cast<int>(room.width())});
  page.setPageSize(room);
  for (int number = 0; number < page.pageCount(); ++number) {
    if (number > 0) {
      printer.newPage();
      print_heading(painter, paper.width(), to_qt(title));
    }
    painter.save();
    painter.translate(0, heading);
    painter.scale(scale, scale);
    painter.translate(0, -number * room.height());
    const QRectF seen{0, number * room.height(), room.width(), room.height()};
    painter.setClipRect(seen);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = seen;
    context.palette = theme::paper_palette();
    page.documentLayout()->draw(&painter, context);
    painter.restore();
  }
  return painter.end() && printer.printerState() != QPrinter::Error;
}

QVariant PageView::loadResource(int /*type*/, const QUrl& /*name*/) {
  return {};  // pages bring their pictures along; nothing is read from elsewhere
}

QMimeData* PageView::createMimeDataFromSelection() const {
  QString text;
  const QTextCursor selected = textCursor();
  QTextCursor at{document()};
  for (int place = selected.selectionStart(); place < selected.selectionEnd(); ++place) {
    at.setPosition(place + 1);
    const QString source = at.charFormat().stringProperty(formula_source);
    const QChar letter = document()->characterAt(place);
    text += letter == QChar::ObjectReplacementCharacter ? source : QString{letter};
  }
  text.replace(QChar::ParagraphSeparator, '\n');
  auto* copied = new QMimeData;
  copied->setText(text);
  return copied;
}

void PageView::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && !markdown_.empty()) {
    const int place = scrolled();
    show_page(std::string{markdown_});
    scroll_to(place);
  }
}

}  // namespace eterlab::ui

#include "page_view.moc"
