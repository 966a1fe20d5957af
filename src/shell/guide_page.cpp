#include "shell/guide_page.h"

#include <cstddef>

namespace eterlab::shell {

namespace {

constexpr std::string_view fence_mark = "```";

std::vector<std::string_view> lines_of(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.push_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \r");
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(" \r") - first + 1);
}

/// The first word, which is taken away.
std::string_view take_word(std::string_view& text) {
  text = trimmed(text);
  const std::string_view word = text.substr(0, text.find(' '));
  text.remove_prefix(word.size());
  text = trimmed(text);
  return word;
}

/// A symbol as the formulas have it: R_{1T} is R_1T, Z' is Z′.
std::string key_of(std::string_view symbol) {
  std::string key;
  for (const char c : symbol) {
    if (c == '\'') {
      key += "′";
    } else if (c != '{' && c != '}') {
      key += c;
    }
  }
  return key;
}

ExampleStep step_of(std::string_view line) {
  ExampleStep step;
  std::string_view word = take_word(line);
  const bool is_control = line.empty() || word.ends_with(':') || line.starts_with("=");
  if (!is_control) {
    step.symbol = key_of(word);
    word = take_word(line);
    if (word.starts_with('[') && word.ends_with(']')) {
      step.unit = word.substr(1, word.size() - 2);
      word = take_word(line);
    }
  }
  if (word.ends_with(':')) {
    step.kind = ExampleStep::Kind::fill_in;
    word.remove_suffix(1);
    step.text = line;
  } else if (line.starts_with("=")) {
    step.kind = ExampleStep::Kind::read;
    line.remove_prefix(1);
    step.text = trimmed(line);
  }
  step.control = word;
  return step;
}

void read_links(std::string_view text, std::vector<std::string>& links) {
  constexpr std::string_view opening = "](";
  for (std::size_t at = text.find(opening); at != std::string_view::npos;
       at = text.find(opening, at + 1)) {
    const std::size_t begin = at + opening.size();
    const std::size_t end = text.find(')', begin);
    if (end != std::string_view::npos) {
      links.emplace_back(text.substr(begin, end - begin));
    }
  }
}

void read_text(std::string_view text, GuidePage& page) {
  for (const std::string_view line : lines_of(text)) {
    if (page.title.empty() && line.starts_with("# ")) {
      page.title = trimmed(line.substr(2));
    } else if (page.menus.empty() && line.size() > 2 && line.starts_with('*') &&
               !line.starts_with("**") && line.ends_with('*')) {
      page.menus = line.substr(1, line.size() - 2);
    }
  }
  read_links(text, page.links);
}

}  // namespace

std::vector<PageBlock> blocks_of(std::string_view markdown) {
  std::vector<PageBlock> blocks(1);
  for (const std::string_view line : lines_of(markdown)) {
    if (!line.starts_with(fence_mark)) {
      blocks.back().content += std::string{line} + '\n';
    } else {
      // A fence without a word ends a block, or begins one that is fenced as nothing in particular.
      const std::string_view fence = trimmed(line.substr(fence_mark.size()));
      const bool is_within = !blocks.back().fence.empty();
      blocks.push_back({is_within ? "" : std::string{fence.empty() ? "testo" : fence}, {}});
    }
  }
  return blocks;
}

std::vector<ExampleStep> parse_example(std::string_view block) {
  std::vector<ExampleStep> steps;
  for (const std::string_view line : lines_of(block)) {
    if (!trimmed(line).empty()) {
      steps.push_back(step_of(line));
    }
  }
  return steps;
}

GuidePage parse_page(std::string_view markdown) {
  GuidePage page;
  for (const PageBlock& block : blocks_of(markdown)) {
    if (block.fence.empty()) {
      read_text(block.content, page);
    } else if (block.fence == "formula") {
      for (const std::string_view line : lines_of(block.content)) {
        if (!trimmed(line).empty()) {
          page.formulas.emplace_back(trimmed(line));
        }
      }
    } else if (block.fence == "esempio") {
      for (ExampleStep& step : parse_example(block.content)) {
        page.example.push_back(std::move(step));
      }
    }
  }
  return page;
}

}  // namespace eterlab::shell
