#include "valves/lead_colours.h"

namespace eterlab::valves {

namespace {

constexpr Lead power[] = {{"PRIMARIO (SENZA PRESE)", "NERO", "BLACK"},
                          {"PRIMARIO CON PRESE: COMUNE", "NERO", "BLACK"},
                          {"PRIMARIO CON PRESE: PRESA", "NERO / GIALLO", "BLACK / YELLOW"},
                          {"PRIMARIO CON PRESE: FINE", "NERO / ROSSO", "BLACK / RED"},
                          {"ALTA TENSIONE", "ROSSO", "RED"},
                          {"ALTA TENSIONE: CENTRO", "ROSSO / GIALLO", "RED / YELLOW"},
                          {"FILAMENTO RADDRIZZATRICE", "GIALLO", "YELLOW"},
                          {"FILAMENTO RADDRIZZATRICE: CENTRO", "GIALLO / BLU", "YELLOW / BLUE"},
                          {"FILAMENTI N. 1", "VERDE", "GREEN"},
                          {"FILAMENTI N. 1: CENTRO", "VERDE / GIALLO", "GREEN / YELLOW"},
                          {"FILAMENTI N. 2", "MARRONE", "BROWN"},
                          {"FILAMENTI N. 2: CENTRO", "MARRONE / GIALLO", "BROWN / YELLOW"},
                          {"FILAMENTI N. 3", "GRIGIO", "SLATE"},
                          {"FILAMENTI N. 3: CENTRO", "GRIGIO / GIALLO", "SLATE / YELLOW"}};

constexpr Lead audio[] = {
    {"PRIMARIO: ANODO (FINE)", "BLU", "BLUE"},
    {"PRIMARIO: +B (ANCHE PRESA CENTRALE)", "ROSSO", "RED"},
    {"PRIMARIO: SECONDO ANODO (INIZIO), PUSH-PULL", "MARRONE", "BROWN"},
    {"SECONDARIO: GRIGLIA (FINE)", "VERDE", "GREEN"},
    {"SECONDARIO: RITORNO DI GRIGLIA (ANCHE PRESA CENTRALE)", "NERO", "BLACK"},
    {"SECONDARIO: SECONDA GRIGLIA (INIZIO), PUSH-PULL", "GIALLO", "YELLOW"},
    {"USCITA: BOBINA MOBILE (FINE)", "VERDE", "GREEN"},
    {"USCITA: BOBINA MOBILE (INIZIO)", "NERO", "BLACK"}};

constexpr Lead intermediate_frequency[] = {
    {"PRIMARIO: ANODO", "BLU", "BLUE"},
    {"PRIMARIO: +B", "ROSSO", "RED"},
    {"SECONDARIO: GRIGLIA O DIODO", "VERDE", "GREEN"},
    {"SECONDARIO: RITORNO (CAV O MASSA)", "NERO", "BLACK"},
    {"SECONDO DIODO, SE IL SECONDARIO HA LA PRESA CENTRALE", "VERDE / NERO", "GREEN / BLACK"}};

constexpr Lead loudspeaker[] = {{"BOBINA MOBILE: FINE", "VERDE", "GREEN"},
                                {"BOBINA MOBILE: INIZIO", "NERO", "BLACK"},
                                {"BOBINA DI CAMPO: INIZIO", "NERO / ROSSO", "BLACK / RED"},
                                {"BOBINA DI CAMPO: FINE", "GIALLO / ROSSO", "YELLOW / RED"},
                                {"BOBINA DI CAMPO: PRESA", "GRIGIO / ROSSO", "SLATE / RED"}};

constexpr LeadColours parts[] = {{"ALIMENTAZIONE", power},
                                 {"BASSA FREQUENZA E USCITA", audio},
                                 {"MEDIA FREQUENZA", intermediate_frequency},
                                 {"ALTOPARLANTE", loudspeaker}};

}  // namespace

std::span<const LeadColours> lead_colours() { return parts; }

}  // namespace eterlab::valves
