#include "shell/guide.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QPrinter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

#include "common/formula.h"
#include "common/leading_number.h"
#include "shell/guide_page.h"
#include "shell/menu_catalogue.h"
#include "support/formula_value.h"
#include "support/window_test.h"
#include "ui/formula_picture.h"
#include "ui/printing.h"
#include "ui/text.h"
#include "ui/window_picture.h"
#include "ui/window_text.h"

namespace eterlab::test {
namespace {

using shell::ExampleStep;
using shell::GuidePage;

std::string simplified(std::string_view text) { return ui::from_qt(ui::to_qt(text).simplified()); }

/// "Linee → Balun", as a page tells where its window stands in the menu.
std::string path_of(const shell::MenuEntry& entry) {
  std::string path = simplified(entry.caption);
  std::string_view parent = entry.parent;
  for (const auto all = shell::menu_catalogue(); !parent.empty();) {
    const auto menu = std::ranges::find(all, parent, &shell::MenuEntry::name);
    path.insert(0, simplified(menu->caption) + " → ");
    parent = menu->parent;
  }
  return path;
}

std::string menus_of(std::string_view window) {
  std::string menus;
  for (const shell::MenuEntry& entry : shell::menu_catalogue()) {
    if (entry.window == window) {
      menus += (menus.empty() ? "" : "; ") + path_of(entry);
    }
  }
  return menus;
}

struct Number {
  double value;
  double half_of_last_place;
};

/// The number that a result shows.
Number number_shown(std::string_view text) {
  const std::string number = ui::number_in(text);
  EXPECT_FALSE(number.empty()) << text;
  if (number.empty()) {
    return {};
  }
  const std::size_t exponent = number.find('E');
  const std::string digits = number.substr(0, exponent);
  const std::size_t point = digits.find('.');
  const auto places =
      static_cast<double>(point == std::string::npos ? 0 : digits.size() - point - 1);
  const double power = exponent == std::string::npos ? 0 : std::stod(number.substr(exponent + 1));
  return {std::stod(number), 0.5001 * std::pow(10, power - places)};
}

void fill_in(const Driven& window, const ExampleStep& step) {
  if (const auto* list = qobject_cast<QComboBox*>(&window.control(step.control)); list != nullptr) {
    window.pick(step.control, list->findText(ui::to_qt(step.text)));
  } else {
    window.type(step.control, step.text);
  }
}

// Every page of the handbook beside its window.
class Handbook : public WindowTest {
 protected:
  static void for_each_page(
      const std::function<void(const std::string& name, const GuidePage& page)>& check) {
    for (const std::string& name : windows()) {
      SCOPED_TRACE(name);
      check(name, shell::parse_page(shell::page_source(name)));
    }
  }

  static void carry_out(const Driven& window, const GuidePage& page) {
    for (const ExampleStep& step : page.example) {
      SCOPED_TRACE(step.control);
      if (step.kind == ExampleStep::Kind::fill_in) {
        fill_in(window, step);
      } else if (step.kind == ExampleStep::Kind::click) {
        window.click(step.control);
      }
      settle();
    }
  }
};

TEST_F(Handbook, HasAPageForEveryWindowAndNoOther) {
  QStringList files = QDir{":/guida"}.entryList({"*.md"});
  EXPECT_EQ(files.removeAll("README.md"), 1);
  EXPECT_EQ(std::ssize(files), std::ssize(windows()));
  for_each_page([](const std::string& name, const GuidePage& page) {
    EXPECT_TRUE(shell::has_page(name));
    EXPECT_FALSE(page.title.empty());
    EXPECT_EQ(page.menus, menus_of(name));
  });
}

TEST_F(Handbook, LinksToWhatThereIs) {
  for (const std::string& link : shell::parse_page(shell::page_source("README")).links) {
    EXPECT_TRUE(QFile::exists(":/guida/" + ui::to_qt(link))) << link;
  }
  for_each_page([](const std::string& name, const GuidePage& page) {
    for (const std::string& link : page.links) {
      if (link.starts_with("immagini/")) {
        EXPECT_EQ(link, "immagini/" + name + ".png");
        EXPECT_TRUE(QFile::exists(GUIDE_FOLDER "/" + ui::to_qt(link))) << link;
      } else {
        EXPECT_TRUE(QFile::exists(":/guida/" + ui::to_qt(link))) << link;
      }
    }
  });
}

TEST_F(Handbook, HasFormulasThatAreReadAndFitThePage) {
  static const QRegularExpression within{R"(\$([^$\n]+)\$)"};
  const double page_width = 84 * QFontMetricsF{QApplication::font()}.averageCharWidth();
  for_each_page([&](const std::string& name, const GuidePage& page) {
    std::vector<std::string> formulas = page.formulas;
    for (auto found = within.globalMatch(ui::to_qt(shell::page_source(name))); found.hasNext();) {
      formulas.push_back(ui::from_qt(found.next().captured(1)));
    }
    for (const std::string& formula : formulas) {
      try {
        const ui::FormulaPicture picture{parse_formula(formula), QApplication::font()};
        EXPECT_LT(picture.width(), page_width) << formula;
      } catch (const FormulaError& error) {
        ADD_FAILURE() << formula << "\n" << error.what();
      }
    }
  });
}

TEST_F(Handbook, HasTheExamplesOfTheWindows) {
  for_each_page([this](const std::string& name, const GuidePage& page) {
    if (page.example.empty()) {
      return;
    }
    start_anew();
    const Driven window{open(name)};
    carry_out(window, page);
    for (const ExampleStep& step : page.example) {
      if (step.kind == ExampleStep::Kind::read) {
        EXPECT_EQ(simplified(window.text(step.control)), simplified(step.text)) << step.control;
      }
    }
    EXPECT_EQ(boxes(), Boxes{});
    const auto shown = ui::window_with_example(name, QApplication::palette());
    EXPECT_EQ(ui::window_text(dynamic_cast<ui::Window&>(window.window())), ui::window_text(*shown));
  });
}

TEST_F(Handbook, HasAllEntriesInItsTableOfContents) {
  std::vector<std::string> expected;
  for (const shell::MenuEntry& entry : shell::menu_catalogue()) {
    const std::string name = simplified(entry.caption);
    const char* mark = entry.showing == ui::Showing::modal ? "\\*" : "";
    expected.push_back(entry.is_submenu()
                           ? name
                           : "[" + name + "](" + std::string{shell::file_name(entry.window)} + ")" +
                                 mark);
  }
  std::vector<std::string> listed;
  bool is_menu = false;
  for (const QString& line : ui::to_qt(shell::page_source("FRMETERLAB")).split('\n')) {
    const QString text = line.trimmed();
    is_menu = (is_menu || text == "# Le voci dei menù") && text != "# Altre pagine";
    if (is_menu && (text.startsWith("- ") || text.startsWith("## "))) {
      listed.push_back(ui::from_qt(text.mid(text.indexOf(' ') + 1)));
    }
  }
  EXPECT_EQ(listed, expected);
}

double factor_of(const ExampleStep& step) { return step.unit.empty() ? 1 : base_units(step.unit); }

// What a page's formulas make of the example is what the window shows.
TEST_F(Handbook, HasTheFormulasThatRun) {
  int compared = 0;
  for_each_page([&compared](const std::string& /*name*/, const GuidePage& page) {
    FormulaValues values;
    for (const ExampleStep& step : page.example) {
      const auto number = leading_number_if_any(step.text);
      if (step.kind == ExampleStep::Kind::fill_in && !step.symbol.empty() && number) {
        values.know(step.symbol, number->value() * factor_of(step));
      }
    }
    values.carry_out(page.formulas);
    for (const ExampleStep& step : page.example) {
      if (step.kind == ExampleStep::Kind::read && !step.symbol.empty()) {
        SCOPED_TRACE(step.symbol);
        const auto computed = values.value_of(step.symbol);
        ASSERT_TRUE(computed.has_value()) << "no formula tells it";
        const Number shown = number_shown(step.text);
        EXPECT_NEAR(computed->real() / factor_of(step), shown.value, shown.half_of_last_place);
        EXPECT_NEAR(computed->imag(), 0, 1e-9 * std::abs(*computed));
        ++compared;
      }
    }
  });
  EXPECT_GT(compared, 600);
}

using frmguida = WindowTest;

QTextBrowser& view_of(const Driven& guide) {
  return dynamic_cast<QTextBrowser&>(guide.control("txtguida"));
}

std::string heading_of(const Driven& guide) {
  return ui::from_qt(view_of(guide).document()->firstBlock().text());
}

TEST_F(frmguida, OpensByF1AtThePageOfTheWindow) {
  settle();
  main_window().press(Qt::Key_F1);
  EXPECT_EQ(heading_of(driven("frmguida")), "Indice della guida");
  EXPECT_FALSE(driven("frmguida").window().isModal());

  const Driven resonance = choose("mnurisonanza");
  resonance.press(Qt::Key_F1);
  EXPECT_EQ(heading_of(driven("frmguida")), "Risonanza di una bobina con un condensatore");

  ASSERT_TRUE(QTest::qWaitForWindowActive(&driven("frmguida").window()));
  QTest::keyClick(&view_of(driven("frmguida")), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(heading_of(driven("frmguida")), "Indice della guida");
}

TEST_F(frmguida, OpensOverAModalWindow) {
  const Driven ohm = choose("mnuohm");
  ASSERT_TRUE(ohm.window().isModal());
  ohm.press(Qt::Key_F1);
  EXPECT_TRUE(driven("frmguida").window().isModal());
  EXPECT_EQ(heading_of(driven("frmguida")), "Legge di Ohm e potenza");
}

TEST_F(frmguida, ShowsFormulasPicturesAndExamples) {
  const Driven guide{open("frmguida")};
  dynamic_cast<ui::Window&>(guide.window()).turn_to("frmrisonanza");
  const QTextBrowser& view = view_of(guide);
  const QString text = view.toPlainText();
  EXPECT_FALSE(text.contains('$')) << text.toStdString();
  EXPECT_FALSE(text.contains("```"));
  EXPECT_FALSE(text.contains("txtinduttanza"));
  EXPECT_TRUE(text.contains("Induttanza in microHenry"));
  int pictures = 0;
  int formulas = 0;
  for (const QTextFormat& format : view.document()->allFormats()) {
    pictures += format.isImageFormat() && format.toImageFormat().width() > 300 ? 1 : 0;
    formulas += format.objectType() > QTextFormat::UserObject ? 1 : 0;
  }
  EXPECT_EQ(pictures, 1);
  EXPECT_GE(formulas, 9);
}

TEST_F(frmguida, CopiesFormulasAsTheyAreWritten) {
  const Driven guide{open("frmguida")};
  dynamic_cast<ui::Window&>(guide.window()).turn_to("frmrisonanza");
  view_of(guide).selectAll();
  QTest::keyClick(&view_of(guide), Qt::Key_C, Qt::ControlModifier);
  const QString copied = QApplication::clipboard()->text();
  EXPECT_TRUE(copied.contains("f = 10^6 / (6,283184 · √(L · C))\n")) << copied.toStdString();
}

TEST_F(frmguida, FollowsLinksAndComesBackToTheSamePlace) {
  const Driven guide{open("frmguida")};
  dynamic_cast<ui::Window&>(guide.window()).turn_to("frmrisonanza");
  QTextBrowser& view = view_of(guide);
  QScrollBar& bar = *view.verticalScrollBar();
  bar.setValue(bar.maximum());
  const int place = bar.value();
  ASSERT_GT(place, 0);
  view.setFocus();
  QTest::keyClick(&view, Qt::Key_Tab);  // to the first link
  QTest::keyClick(&view, Qt::Key_Return);
  EXPECT_EQ(heading_of(guide), "Sintonia di un circuito L C");
  EXPECT_EQ(bar.value(), 0);

  guide.click("cmdindietro");
  EXPECT_EQ(heading_of(guide), "Risonanza di una bobina con un condensatore");

  guide.click("cmdapri");
  EXPECT_TRUE(is_open("frmrisonanza"));
}

TEST_F(frmguida, FollowsLinksToAWindowWithAnAccent) {
  const Driven guide{open("frmguida")};
  Q_EMIT view_of(guide).anchorClicked(QUrl{"frmresistivita.md"});
  EXPECT_EQ(heading_of(guide), "Resistività dei metalli");
  guide.click("cmdapri");
  EXPECT_TRUE(is_open("frmresistività"));
  Q_EMIT view_of(guide).anchorClicked(QUrl{"README.md"});
  EXPECT_EQ(heading_of(guide), "ETERLAB - Guida");
}

TEST_F(frmguida, SearchesThePageAndThenAllOfThem) {
  const Driven guide{open("frmguida")};
  dynamic_cast<ui::Window&>(guide.window()).turn_to("frmrisonanza");
  guide.type("txtcerca", "thomson");
  EXPECT_EQ(guide.text("lbltrovate"), "1 VOLTA IN QUESTA PAGINA");
  guide.press(Qt::Key_Return);
  EXPECT_GT(view_of(guide).verticalScrollBar()->value(), 0);

  guide.type("txtcerca", "TOROIDE permeabilita");
  EXPECT_EQ(guide.text("lbltrovate"), "0 VOLTE IN QUESTA PAGINA");
  guide.press(Qt::Key_Return);
  EXPECT_EQ(heading_of(guide), "Pagine con «TOROIDE permeabilita»");
  EXPECT_TRUE(view_of(guide).toPlainText().contains("su ferrite"));

  // Nothing that is searched for is taken for a part of the page.
  for (const char* text : {"\xee\x80\x85", "$a$", "```formula", "| a | b |", "<b>", "\\"}) {
    dynamic_cast<QLineEdit&>(guide.control("txtcerca")).setText(text);
    guide.click("cmdtutte");
    EXPECT_NE(heading_of(guide).find(" con «"), std::string::npos) << heading_of(guide);
  }

  guide.type("txtcerca", "xyzzy");
  guide.click("cmdtutte");
  EXPECT_EQ(heading_of(guide), "Nessuna pagina con «xyzzy»");
  guide.click("cmdindice");
  EXPECT_EQ(heading_of(guide), "Indice della guida");
}

TEST_F(frmguida, IsNotHeldUpByItsScrollBar) {
  const Driven guide{open("frmguida")};
  QScrollBar& bar = *view_of(guide).verticalScrollBar();
  QContextMenuEvent asked{QContextMenuEvent::Mouse, bar.rect().center(),
                          bar.mapToGlobal(bar.rect().center())};
  QCoreApplication::sendEvent(&bar, &asked);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(frmguida, FindsPagesByWhatTheyTell) {
  const std::pair<const char*, const char*> table[] = {{"wheeler", "frmbobine"},
                                                       {"effetto pelle", "frmpenetrazione"},
                                                       {"butterworth", "frmpassabandakcostante"},
                                                       {"medhurst", "frmautorisonanza"}};
  for (const auto& [text, page] : table) {
    const std::vector<std::string> found = shell::find_pages(text);
    EXPECT_NE(std::ranges::find(found, page), found.end()) << text;
    EXPECT_LT(found.size(), 60U) << text;
  }
  EXPECT_EQ(shell::find_pages("").size(), 0U);
}

TEST_F(frmguida, PrintsThePageUnderItsHeading) {
  const QTemporaryDir folder;
  const QString file = folder.filePath("pagina.pdf");
  ui::set_printer_source([&file] {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFileName(file);
    return printer;
  });
  const Driven guide{open("frmguida")};
  dynamic_cast<ui::Window&>(guide.window()).turn_to("frmrisonanza");
  guide.click("cmdstampa");
  EXPECT_EQ(boxes(), Boxes{});
  QFile written{file};
  ASSERT_TRUE(written.open(QIODevice::ReadOnly));
  const QByteArray pdf = written.readAll();
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  EXPECT_GE(pdf.count("/Type /Page\n"), 1);
}

}  // namespace
}  // namespace eterlab::test
