#include "common/number_text.h"
#include "signals/decibel_watt.h"
#include "signals/radiated_power.h"
#include "ui/schematic.h"
#include "ui/ui.h"

namespace eterlab::signals {

namespace {

constexpr ui::Input::Traits loss{.is_optional = true,
                                 .negative = "IL VALORE NON PUO' ESSERE NEGATIVO"};

// What a feed line leaves of a transmitter's power, and what the antenna makes of that.
class frmERP final : public ui::Calculator {
  ui::OptionArray Option1{this, "Option1", {"GUADAGNO IN dBd", "GUADAGNO IN dBi"}};
  ui::Input txtwatt{this, "txtwatt", "POTENZA DEL TRASMETTITORE in WATT"};
  ui::Input txtattenuazione{this, "txtattenuazione", "ATTENUAZIONE DEL CAVO in dB PER 100 mt.",
                            loss};
  ui::Input txtlunghezza{this, "txtlunghezza", "LUNGHEZZA DEL CAVO in mt.", loss};
  ui::Input txtaltre{this, "txtaltre", "ALTRE PERDITE (CONNETTORI, FILTRI) in dB", loss};
  ui::Input txtguadagno{this,
                        "txtguadagno",
                        "GUADAGNO DELL'ANTENNA in dB",
                        {.range = ui::Range{-100, 100}, .is_optional = true}};
  ui::Result lblperdita{this, "lblperdita"};
  ui::Result lblantenna{this, "lblantenna"};
  ui::Result lblerp{this, "lblerp"};
  ui::Result lbleirp{this, "lbleirp"};
  ui::Result lbldbm{this, "lbldbm"};
  ui::Schematic drawing{this, "drawing", 42, 22};
  ui::Value lblvaloretx{drawing, "lblvaloretx"};
  ui::Value lblvaloreperdita{drawing, "lblvaloreperdita"};
  ui::Value lblvaloreantenna{drawing, "lblvaloreantenna"};
  ui::Value lblvaloreerp{drawing, "lblvaloreerp"};

 public:
  frmERP() : Calculator{"frmERP", "POTENZA EFFETTIVA IRRADIATA E PERDITA NELLA LINEA"} {
    Option1.preset(0);
    draw();
    lay_out(ui::column(
        ui::row(ui::column(ui::across(Option1),
                           ui::form(txtwatt, txtattenuazione, txtlunghezza, txtaltre, txtguadagno),
                           ui::stretch()),
                drawing),
        lblperdita, lblantenna, lblerp, lbleirp, lbldbm));
  }

  void show_example() override { fill_in({"100", "8.5", "30", "0.5", "7"}); }

 private:
  void draw() {
    using Side = ui::Schematic::Side;
    constexpr double line_y = 17;
    constexpr double transmitter_x = 9;
    constexpr double antenna_x = 30;
    drawing.box({1, line_y - 2}, {transmitter_x, line_y + 2})
        .named(lblvaloretx, Side::below)
        .mark({(1 + transmitter_x) / 2, line_y}, "TX")
        .coaxial_cable({{transmitter_x, line_y}, {antenna_x - 1, line_y}})
        .named(lblvaloreperdita, Side::above)
        .wire({{antenna_x - 1, line_y}, {antenna_x, line_y}, {antenna_x, line_y - 7}})
        .label(lblvaloreantenna, {antenna_x, line_y}, Side::right)
        .antenna({antenna_x, line_y - 7})
        .named_beside("ERP", lblvaloreerp, Side::right);
  }

  void compute() override {
    constexpr double greatest_loss_db = 100;
    const Real loss_db =
        line_loss_db(txtattenuazione.value(), txtlunghezza.value(), txtaltre.value());
    require(loss_db <= greatest_loss_db, txtattenuazione, "PERDITA SUPERIORE A 100 dB");
    const auto reference =
        Option1.selected() == 0 ? GainReference::half_wave_dipole : GainReference::isotropic;
    const Real transmitter_w = txtwatt.value();
    const RadiatedPower power =
        radiated_power(transmitter_w, loss_db, gain_dbi(txtguadagno.value(), reference));
    lblperdita = "PERDITA NELLA LINEA = " + fixed(loss_db, 2) + " dB, " + eng(power.lost_w, "W");
    lblantenna = "ALL'ANTENNA ARRIVANO " + eng(power.at_antenna_w, "W") + " (" +
                 fixed(100 * power.at_antenna_w / transmitter_w, 1) + " %)";
    lblerp = "ERP (RISPETTO AL DIPOLO) = " + eng(power.erp_w, "W");
    lbleirp = "EIRP (RISPETTO ALL'ISOTROPICO) = " + eng(power.eirp_w, "W");
    lbldbm = "EIRP = " + fixed(level_dbw(power.eirp_w) + one_watt_dbm, 1) + " dBm";
    lblvaloretx = eng(transmitter_w, "W");
    lblvaloreperdita = fixed(loss_db, 2) + " dB";
    lblvaloreantenna = eng(power.at_antenna_w, "W");
    lblvaloreerp = eng(power.erp_w, "W");
  }
};

const ui::Registration<frmERP> registration{"frmERP"};

}  // namespace

}  // namespace eterlab::signals
