#include "shell/dictionary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace eterlab::shell {
namespace {

constexpr const char* keys[] = {
    "AC",
    "ACORN TUBE",
    "A/D",
    "ADJUST",
    "AERIAL",
    "AERIAL TUNIG COIL",
    "AF",
    "AFC",
    "AFSK",
    "AGC",
    "AIR CONDENSE",
    "AIR INSULATED",
    "AIR MAGNETIC CIRCUIT",
    "ALC",
    "ALL GLASS",
    "ANL",
    "ANODE CIRCUIT",
    "ANODE CURRENT",
    "ANODE DISSIPATION",
    "ANODE FOLLOWER",
    "ARRL",
    "ATV",
    "AVC",
    "AVERAGE CURRENT",
    "AVERAGE VOLTAGE",
    "BALUN",
    "BASE",
    "BOOSTER",
    "BRASS",
    "CARRIER",
    "CHECK LIST",
    "COAXIAL LINE",
    "CHOKE",
    "COIL",
    "COLLECTOR",
    "COPPER",
    "CU",
    "CRT",
    "D/A",
    "DATA SHEET",
    "DC",
    "DRAIN",
    "EAR PHONE",
    "EDP",
    "EHT",
    "EME",
    "EMF",
    "EMITTER",
    "ENAMEL",
    "FE",
    "FET",
    "FF",
    "FM",
    "FOLLOWER",
    "FORWARD",
    "FRONTEND",
    "FSK",
    "FULL RATING",
    "GAIN",
    "GATE",
    "GDO",
    "GND / GROUND",
    "H",
    "HEART",
    "HF",
    "HT o HV",
    "IARU",
    "IC",
    "ID",
    "IF",
    "IN",
    "IN o INPUT",
    "INSULATOR",
    "IRC",
    "IRON",
    "JFET",
    "JUNCTION",
    "K",
    "KEY",
    "LED",
    "LO",
    "LSB",
    "LSI",
    "M",
    "MIKE",
    "MIX",
    "MOSFET",
    "MOX",
    "MSG",
    "MSI",
    "NBFM",
    "n.c.",
    "NC",
    "NO",
    "NOISE",
    "OPERATING",
    "OSC",
    "OUTPUT",
    "PA",
    "pb",
    "PEAK",
    "PEP",
    "PEV",
    "PIN",
    "PLL",
    "PLUG",
    "POWER SUPPLY",
    "PPM",
    "PTT",
    "RANGE",
    "RF",
    "R.M.S",
    "RTTY",
    "SCR",
    "SET",
    "SHIFT",
    "SI",
    "SINE",
    "SN",
    "SOURCE",
    "SPEAKER",
    "SQUARE",
    "SQUELCH",
    "SSTV",
    "TP",
    "TRANSFORMER",
    "TUBE",
    "TUNING",
    "TURN",
    "TVI",
    "UJT",
    "UHF",
    "USB",
    "VCO",
    "VCXO",
    "VHF",
    "VOX",
    "VSWR",
    "VXO",
    "WAVE",
    "WIRE",
    "WPM",
    "XTAL",
};

/// The blanks and the "=" that follow a key; one blank where there is no "=".
std::string_view separator_after(std::string_view key, std::string_view entry) {
  const std::string_view rest = entry.substr(key.size());
  return rest.substr(0, rest.find_first_not_of(" ="));
}

TEST(Dictionary, EveryEntryIsKeySeparatorAndMeaning) {
  ASSERT_EQ(dictionary().size(), std::size(keys));
  std::map<std::string_view, int> separators;
  for (std::size_t i = 0; i < std::size(keys); ++i) {
    const std::string_view key = keys[i];
    const std::string_view entry = dictionary()[i];
    SCOPED_TRACE(entry);
    ASSERT_TRUE(entry.starts_with(key));
    const std::string_view separator = separator_after(key, entry);
    ++separators[separator];
    EXPECT_GT(entry.size(), key.size() + separator.size());
  }
  EXPECT_EQ(separators,
            (std::map<std::string_view, int>{{" = ", 70}, {"  = ", 67}, {"  =  ", 3}, {" ", 3}}));
}

TEST(Dictionary, KeepsTheSpellingsOfTheDesign) {
  for (const std::string_view quoted : {
           "AC  =  corrente alternata",
           "ACORN TUBE = valvola a ghianda ",
           "A/D = convertitore da analogico a digitale",
           "AERIAL TUNIG COIL = bobina d'antenna",
           "AFC comando automatico di frequenza",
           "AFSK manipolazione a spostam. di frequenza",
           "AIR CONDENSE  = condensatore ad aria ",
           "ALC comando automatico di carico o di livello",
           "ARRL = Associazione dei Radioamatori Americani",
           "GDO = grid-dip oscillator",
           "GND / GROUND  = massa, terra, ",
           "H = Henry",
           "HEART  = presa di terra, terra ",
           "IARU = Associazione Int. dei Radioamatori",
           "IRC = coupon per risposta internazionale",
           "SN = stagno",
           "VXO = osc. a cristallo a frequeza variabile",
           "XTAL  = cristallo di quarzo ",
       }) {
    EXPECT_EQ(std::count(dictionary().begin(), dictionary().end(), quoted), 1) << quoted;
  }
}

}  // namespace
}  // namespace eterlab::shell
