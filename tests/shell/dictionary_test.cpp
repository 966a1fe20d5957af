#include "shell/dictionary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string_view>

namespace eterlab::shell {
namespace {

TEST(Dictionary, EntriesKeepTheirSeparators) {
  std::map<std::string_view, int> separators;
  int without = 0;
  for (const std::string_view entry : dictionary()) {
    const std::size_t sign = entry.find('=');
    if (sign == std::string_view::npos) {
      ++without;
      continue;
    }
    const std::size_t begin = entry.find_last_not_of(" =", sign) + 1;
    const std::size_t end = entry.find_first_not_of(" =", sign);
    ++separators[entry.substr(begin, end - begin)];
  }
  EXPECT_EQ(separators, (std::map<std::string_view, int>{{" = ", 70}, {"  = ", 67}, {"  =  ", 3}}));
  EXPECT_EQ(without, 3);
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
