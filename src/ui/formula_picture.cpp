#include "ui/formula_picture.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <array>
#include <utility>

#include "ui/text.h"
#include "ui/theme.h"

namespace eterlab::ui {

namespace {

using Kind = Formula::Kind;

/// Figures, so that exponents and denominators keep their size beside letters with tails.
const QString usual_letters = QStringLiteral("0x");

constexpr std::array upright_names{
    "exp",  "ln",   "log",  "sin",    "cos",       "tan",    "cot",    "arcsin", "arccos", "arctan",
    "sinh", "cosh", "tanh", "coth",   "min",       "max",    "mod",    "Re",     "Im",     "arg",
    "conj", "su",   "giù",  "intero", "arrotonda", "arcosh", "arsinh", "artanh"};

/// One letter is a quantity; several are an abbreviation or a function.
bool is_slanted(const std::string& name) {
  const QString letters = to_qt(name).remove(QChar{0x2032});  // primes
  return letters.size() == 1 && letters[0].isLetter() &&
         std::ranges::find(upright_names, name) == upright_names.end();
}

const Formula& without_parentheses(const Formula& formula) {
  return formula.kind == Kind::group ? formula.parts.front() : formula;
}

}  // namespace

class Typesetter {
 public:
  using Box = FormulaPicture::Box;

  explicit Typesetter(const QFont& font) : font_{font} {
    // Books set formulas in such letters, and they have true italics.
    font_.setFamily(theme::installed_family("Times New Roman"));
    constexpr double larger = 1.2;
    set_size(QFontInfo{font}.pixelSize() * larger);
  }

  [[nodiscard]] double line_width() const { return line_width_; }

  Box set(const Formula& formula) {
    switch (formula.kind) {
      case Kind::number:
        return number(to_qt(formula.text));
      case Kind::symbol:
        return name(formula);
      case Kind::words:
        return row({space(em_), letters(to_qt(formula.text), false), space(em_)});
      case Kind::line:
        return in_a_row(formula.parts);
      case Kind::relation:
        return operated(formula, em_ * relation_gap);
      case Kind::sum:
        return operated(formula, em_ * sum_gap);
      case Kind::product:
        return operated(formula, em_ * product_gap);
      case Kind::sign:
        return row({letters(to_qt(formula.text), false), set(formula.parts[0])});
      case Kind::quotient:
        return quotient(formula.parts[0], formula.parts[1]);
      case Kind::power:
        return power(formula.parts[0], formula.parts[1]);
      case Kind::postfix:
        return row({set(formula.parts[0]), letters(to_qt(formula.text), false)});
      case Kind::root:
        return root(formula);
      case Kind::absolute:
        return enclosed(set(formula.parts[0]), Fence::bars);
      case Kind::group:
        return enclosed(set(formula.parts[0]), Fence::parentheses);
      case Kind::call:
        return row({name(formula), arguments(formula.parts)});
      case Kind::big:
        return big(formula);
    }
    return {};
  }

 private:
  enum class Fence { parentheses, bars };

  static constexpr double relation_gap = 0.3;
  static constexpr double sum_gap = 0.22;
  static constexpr double product_gap = 0.1;
  static constexpr double script_size = 0.72;

  /// In pixels, which are the same for the fonts of every screen and printer.
  void set_size(double pixels) {
    size_ = pixels;
    font_.setPixelSize(qRound(pixels));
    const QFontMetricsF metrics{font_};
    em_ = metrics.height() / 1.2;
    axis_ = metrics.xHeight() * 0.55;
    line_width_ = std::max(1.0, em_ / 16);
  }

  /// What `set_parts` sets comes out in the size of an index.
  template <class Set>
  Box small(Set set_parts) {
    const double usual = size_;
    const bool is_smallest = is_script_;
    is_script_ = true;
    if (!is_smallest) {
      set_size(usual * script_size);
    }
    Box box = set_parts();
    if (!is_smallest) {
      set_size(usual);
      is_script_ = false;
    }
    return box;
  }

  [[nodiscard]] Box letters(const QString& text, bool slanted) const {
    QFont font = font_;
    font.setItalic(slanted);
    const QFontMetricsF metrics{font};
    const QRectF ink = metrics.tightBoundingRect(text + usual_letters);
    Box box;
    box.width = metrics.horizontalAdvance(text) + (slanted ? em_ * 0.06 : 0);
    box.ascent = -ink.top();
    box.descent = std::max(0.0, ink.bottom());
    box.letters.push_back({{0, 0}, text, font});
    return box;
  }

  static Box space(double width) {
    Box box;
    box.width = width;
    return box;
  }

  /// One box into another, which grows around it.
  static void put(Box& into, const Box& box, double right, double down) {
    for (FormulaPicture::Letters moved : box.letters) {
      moved.left += QPointF{right, down};
      into.letters.push_back(std::move(moved));
    }
    into.filled.addPath(box.filled.translated(right, down));
    into.drawn.addPath(box.drawn.translated(right, down));
    into.width = std::max(into.width, right + box.width);
    into.ascent = std::max(into.ascent, box.ascent - down);
    into.descent = std::max(into.descent, box.descent + down);
  }

  static Box row(const std::vector<Box>& boxes) {
    Box all;
    for (const Box& box : boxes) {
      put(all, box, all.width, 0);
    }
    return all;
  }

  Box in_a_row(const std::vector<Formula>& parts) {
    std::vector<Box> boxes;
    boxes.reserve(parts.size());
    for (const Formula& part : parts) {
      boxes.push_back(set(part));
    }
    return row(boxes);
  }

  Box operated(const Formula& formula, double gap) {
    std::vector<Box> boxes{set(formula.parts[0])};
    for (std::size_t i = 0; i < formula.operators.size(); ++i) {
      boxes.push_back(space(gap));
      boxes.push_back(letters(to_qt(formula.operators[i]), false));
      boxes.push_back(space(gap));
      boxes.push_back(set(formula.parts[i + 1]));
    }
    return row(boxes);
  }

  /// 1,7E-8 as a number times a power of ten.
  Box number(const QString& text) {
    const QStringList parts = text.split('E');
    if (parts.size() == 1) {
      return letters(text, false);
    }
    QString exponent = parts[1];
    exponent.replace('-', QChar{0x2212}).remove('+');
    const QString factor = parts[0] == "1" ? "" : parts[0] + QChar{0x00B7};
    return power(letters(factor + "10", false), small([&] { return letters(exponent, false); }));
  }

  Box name(const Formula& symbol) {
    Box box = letters(to_qt(symbol.text), is_slanted(symbol.text));
    if (!symbol.subscript.empty()) {
      const Box index = small([&] { return letters(to_qt(symbol.subscript), false); });
      put(box, index, box.width, em_ * 0.22);
    }
    return box;
  }

  Box quotient(const Formula& above, const Formula& below) {
    const Box top = set(without_parentheses(above));
    const Box bottom = set(without_parentheses(below));
    const double gap = em_ * 0.16;
    const double side = em_ * 0.1;
    Box all;
    all.width = std::max(top.width, bottom.width) + 4 * side;
    const double width = all.width;
    put(all, top, (width - top.width) / 2, -axis_ - gap - top.descent);
    put(all, bottom, (width - bottom.width) / 2, -axis_ + gap + bottom.ascent);
    all.filled.addRect(side, -axis_ - line_width_ / 2, width - 2 * side, line_width_);
    return all;
  }

  Box power(const Formula& base, const Formula& exponent) {
    return power(set(base), small([&] { return set(without_parentheses(exponent)); }));
  }

  [[nodiscard]] Box power(Box all, const Box& raised) const {
    const double least = em_ * 0.38;
    const double up = std::max(least, all.ascent - em_ * 0.3) + raised.descent;
    put(all, raised, all.width + em_ * 0.03, -up);
    return all;
  }

  Box root(const Formula& formula) {
    const Box inner = set(without_parentheses(formula.parts[0]));
    const double gap = em_ * 0.12;
    const double sign = em_ * 0.55;
    const double top = inner.ascent + gap;
    const double height = top + inner.descent;
    Box all;
    double left = 0;
    if (!formula.text.empty()) {
      const Box degree = small([&] { return letters(to_qt(formula.text), false); });
      put(all, degree, 0, inner.descent - height * 0.55);
      left = std::max(0.0, degree.width - sign * 0.4);
    }
    put(all, inner, left + sign + gap, 0);
    all.width += gap;
    all.ascent = std::max(all.ascent, top + line_width_);
    QPainterPath& path = all.drawn;
    path.moveTo(left, inner.descent - height * 0.42);
    path.lineTo(left + sign * 0.25, inner.descent - height * 0.5);
    path.lineTo(left + sign * 0.6, inner.descent);
    path.lineTo(left + sign, -top);
    path.lineTo(all.width, -top);
    return all;
  }

  /// Parentheses as high as what they hold.
  Box enclosed(const Box& inner, Fence fence) {
    const bool is_low = inner.ascent + inner.descent < em_ * 1.15;
    if (is_low && fence == Fence::parentheses) {
      return row({letters("(", false), inner, letters(")", false)});
    }
    const double above = inner.ascent + em_ * 0.06;
    const double below = inner.descent + em_ * 0.06;
    const double width = fence == Fence::bars ? em_ * 0.2 : em_ * 0.32;
    Box all;
    put(all, inner, width, 0);
    all.width = inner.width + 2 * width;
    all.ascent = above;
    all.descent = below;
    const double right = all.width;
    if (fence == Fence::bars) {
      all.filled.addRect(width / 2, -above, line_width_, above + below);
      all.filled.addRect(right - width / 2 - line_width_, -above, line_width_, above + below);
      return all;
    }
    const double middle = (below - above) / 2;
    const double edge = width * 0.25;
    const double bow = width * 1.3;
    all.drawn.moveTo(width - edge, -above);
    all.drawn.quadTo(width - edge - bow, middle, width - edge, below);
    all.drawn.moveTo(right - width + edge, -above);
    all.drawn.quadTo(right - width + edge + bow, middle, right - width + edge, below);
    return all;
  }

  Box arguments(const std::vector<Formula>& parts) {
    std::vector<Box> boxes;
    for (const Formula& part : parts) {
      if (!boxes.empty()) {
        boxes.push_back(letters(";", false));
        boxes.push_back(space(em_ * 0.25));
      }
      boxes.push_back(set(part));
    }
    return enclosed(row(boxes), Fence::parentheses);
  }

  /// A sum or integral with its limits over and under it.
  Box big(const Formula& formula) {
    const double usual = size_;
    set_size(usual * 1.6);
    Box sign = letters(to_qt(formula.text), false);
    set_size(usual);
    if (formula.parts.size() == 3) {
      const Box lower = small([&] { return set(formula.parts[0]); });
      const Box upper = small([&] { return set(formula.parts[1]); });
      const double width = std::max({sign.width, lower.width, upper.width});
      const double gap = em_ * 0.08;
      Box all;
      put(all, sign, (width - sign.width) / 2, em_ * 0.2);
      const double top = all.ascent;
      const double bottom = all.descent;
      put(all, upper, (width - upper.width) / 2, -top - gap - upper.descent);
      put(all, lower, (width - lower.width) / 2, bottom + gap + lower.ascent);
      all.width = width;
      sign = std::move(all);
    }
    return row({sign, space(em_ * 0.15), set(formula.parts.back())});
  }

  QFont font_;
  double size_ = 1;
  double em_ = 1;
  double axis_ = 0;  ///< where the line of a quotient stands
  double line_width_ = 1;
  bool is_script_ = false;
};

FormulaPicture::FormulaPicture(const Formula& formula, const QFont& font) {
  Typesetter typesetter{font};
  box_ = typesetter.set(formula);
  line_width_ = typesetter.line_width();
}

void FormulaPicture::draw(QPainter& painter, QPointF left) const {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Letters& letters : box_.letters) {
    painter.setFont(letters.font);
    painter.drawText(left + letters.left, letters.text);
  }
  painter.translate(left);
  painter.fillPath(box_.filled, painter.pen().color());
  QPen pen{painter.pen().color(), line_width_};
  pen.setJoinStyle(Qt::MiterJoin);
  painter.strokePath(box_.drawn, pen);
  painter.restore();
}

}  // namespace eterlab::ui
