#include "shell/dictionary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string_view>

namespace eterlab::shell {
namespace {

constexpr std::string_view keys =
    "AC|ACORN TUBE|A/D|ADJUST|AERIAL|AERIAL TUNIG COIL|AF|AFC|AFSK|AGC|AIR CONDENSE|"
    "AIR INSULATED|AIR MAGNETIC CIRCUIT|ALC|ALL GLASS|ANL|ANODE CIRCUIT|ANODE CURRENT|"
    "ANODE DISSIPATION|ANODE FOLLOWER|ARRL|ATV|AVC|AVERAGE CURRENT|AVERAGE VOLTAGE|BALUN|BASE|"
    "BOOSTER|BRASS|CARRIER|CHECK LIST|COAXIAL LINE|CHOKE|COIL|COLLECTOR|COPPER|CU|CRT|D/A|"
    "DATA SHEET|DC|DRAIN|EAR PHONE|EDP|EHT|EME|EMF|EMITTER|ENAMEL|FE|FET|FF|FM|FOLLOWER|"
    "FORWARD|FRONTEND|FSK|FULL RATING|GAIN|GATE|GDO|GND / GROUND|H|HEART|HF|HT o HV|IARU|IC|ID|"
    "IF|IN|IN o INPUT|INSULATOR|IRC|IRON|JFET|JUNCTION|K|KEY|LED|LO|LSB|LSI|M|MIKE|MIX|MOSFET|"
    "MOX|MSG|MSI|NBFM|n.c.|NC|NO|NOISE|OPERATING|OSC|OUTPUT|PA|pb|PEAK|PEP|PEV|PIN|PLL|PLUG|"
    "POWER SUPPLY|PPM|PTT|RANGE|RF|R.M.S|RTTY|SCR|SET|SHIFT|SI|SINE|SN|SOURCE|SPEAKER|SQUARE|"
    "SQUELCH|SSTV|TP|TRANSFORMER|TUBE|TUNING|TURN|TVI|UJT|UHF|USB|VCO|VCXO|VHF|VOX|VSWR|VXO|"
    "WAVE|WIRE|WPM|XTAL";

// A key is followed by blanks and "=", or by one blank where there is no "=".
TEST(Dictionary, EveryEntryIsKeySeparatorAndMeaning) {
  std::map<std::string_view, int> separators;
  std::string_view left = keys;
  for (const std::string_view entry : dictionary()) {
    const std::string_view key = left.substr(0, left.find('|'));
    left.remove_prefix(std::min(left.size(), key.size() + 1));
    ASSERT_TRUE(!key.empty() && entry.starts_with(key)) << entry << " is not of " << key;
    const std::string_view rest = entry.substr(key.size());
    ASSERT_NE(rest.find_first_not_of(" ="), std::string_view::npos) << entry;
    ++separators[rest.substr(0, rest.find_first_not_of(" ="))];
  }
  EXPECT_EQ(left, "");
  EXPECT_EQ(separators,
            (std::map<std::string_view, int>{{" = ", 70}, {"  = ", 67}, {"  =  ", 3}, {" ", 3}}));
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
