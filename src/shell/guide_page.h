#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace eterlab::shell {

/// One step of the worked example of a page, or one result to be read from it.
struct ExampleStep {
  enum class Kind : std::uint8_t {
    fill_in,  ///< `text` goes into a box, or is chosen from a list
    click,    ///< on a button or option
    read,     ///< a result is `text`
  };

  Kind kind = Kind::click;
  std::string control;  ///< name of the control
  std::string text;
  std::string symbol;  ///< of the quantity in the formulas; may be empty
  std::string unit;    ///< in which the window has it, where the formulas have another
};

/// A page of the handbook, as it is read from its source.
struct GuidePage {
  std::string title;
  std::string menus;                  ///< the line that tells the entries which open the window
  std::vector<std::string> formulas;  ///< those that stand by themselves, in order
  std::vector<ExampleStep> example;
  std::vector<std::string> links;  ///< the files that the page links to
};

/// What a page of Markdown holds. Formulas stand in blocks fenced as "formula", a line each; the
/// example in one fenced as "esempio", a line a step: perhaps a symbol, perhaps its unit in
/// brackets, then `box: text`, `button` or `label = text`.
GuidePage parse_page(std::string_view markdown);

/// The steps that one block tells.
std::vector<ExampleStep> parse_example(std::string_view block);

/// A page is text and fenced blocks.
struct PageBlock {
  std::string fence;  ///< what the block is fenced as; empty: text
  std::string content;
};
std::vector<PageBlock> blocks_of(std::string_view markdown);

}  // namespace eterlab::shell
