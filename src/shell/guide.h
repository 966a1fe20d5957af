#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace eterlab::shell {

// The pages of the handbook: one for each window, by its name, and what stands around them. None is
// read before it is asked for.

/// The page that holds the table of contents.
constexpr std::string_view contents_page = "FRMETERLAB";

/// The file of a window's page: its name without accents, frmresistivita.md.
std::string file_name(std::string_view page);

/// The page that a file holds: the window's name with its accents, of the introduction README.
std::string page_in(std::string_view file);

bool has_page(std::string_view page);

/// The page's source; empty when there is none.
std::string page_source(std::string_view page);

/// The same with the worked example as its reader sees it: prompts and captions instead of names.
std::string page_to_read(std::string_view page);

/// The names of the pages that have all words of a text, those with most of them in their titles
/// first.
std::vector<std::string> find_pages(std::string_view text);

/// A page with links to those.
std::string page_of_found(std::string_view text);

}  // namespace eterlab::shell
