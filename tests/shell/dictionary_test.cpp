#include "shell/dictionary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <string>
#include <string_view>

namespace eterlab::shell {
namespace {

// Three entries have none.
TEST(Dictionary, EntriesKeepTheirSeparators) {
  const std::regex between_words{"[^ =]( *= *)[^ =]"};
  std::map<std::string, int> separators;
  for (const std::string_view entry : dictionary()) {
    std::match_results<std::string_view::const_iterator> found;
    std::regex_search(entry.begin(), entry.end(), found, between_words);
    ++separators[found[1].str()];
  }
  EXPECT_EQ(separators,
            (std::map<std::string, int>{{" = ", 70}, {"  = ", 67}, {"  =  ", 3}, {"", 3}}));
}

TEST(Dictionary, KeepsTheSpellingsOfTheDesign) {
  for (const char* quoted :
       {"AC  =  corrente alternata", "ACORN TUBE = valvola a ghianda ",
        "AERIAL TUNIG COIL = bobina d'antenna", "AFC comando automatico di frequenza",
        "AFSK manipolazione a spostam. di frequenza", "AIR CONDENSE  = condensatore ad aria ",
        "ALC comando automatico di carico o di livello", "GND / GROUND  = massa, terra, ",
        "HEART  = presa di terra, terra ", "VXO = osc. a cristallo a frequeza variabile",
        "XTAL  = cristallo di quarzo "}) {
    EXPECT_EQ(std::count(dictionary().begin(), dictionary().end(), quoted), 1) << quoted;
  }
}

}  // namespace
}  // namespace eterlab::shell
