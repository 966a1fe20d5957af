#include "ui/calculator.h"

#include <QApplication>
#include <QLineEdit>

#include "common/number_text.h"
#include "support/form_test.h"
#include "ui/list.h"
#include "ui/option_array.h"
#include "ui/registry.h"
#include "ui/result_table.h"

// Of windows of the regular shape, on two that exist for this test only.

namespace eterlab::test {
namespace {

class Asking final : public ui::Calculator {
  ui::OptionArray Option1{this, "Option1", {"two boxes", "one box"}};
  ui::List cmbkind{this, "cmbkind", "KIND", {"FIRST", "SECOND"}};
  ui::Input txtfirst{this, "txtfirst", "FIRST", {.holds = "50"}};
  ui::Input txtsecond{this, "txtsecond", "SECOND", {.range = ui::Range{0.25, 3000}}};
  ui::Input txtfree{this,
                    "txtfree",
                    "FREE",
                    {.range = ui::Range{0, 5}, .is_optional = true, .negative = "NON NEGATIVO"}};
  ui::Result lblsum{this, "lblsum"};
  ui::ResultTable table{
      this, "table", 2, {{"lblname", "NAME", ui::ResultTable::Kind::text}, {"lblpart", "PART"}}};

 public:
  Asking() : Calculator{"asking", "ASKING"} {
    Option1.preset(0);
    table.at(0, 0) = "one";
    lay_out(ui::column(Option1, ui::form(cmbkind, txtfirst, txtsecond, txtfree), lblsum, table));
    Option1.on_click([this](int index) {
      index == 0 ? txtsecond.show() : txtsecond.hide();
      txtfree.ask_anew(index == 0 ? "FREE" : "FREER", {0, index == 0 ? 5.0 : 50.0});
    });
  }

 private:
  void compute() override {
    const Real first = txtfirst.value();
    require(first < 1000, txtfirst, "TROPPO", "avviso");
    table.at(1, 1) = plain(first);
    table.mark(cmbkind.chosen());
    const Real factor = first == 999 ? pow(10, 999) : 1;  // a fault in the midst
    lblsum = plain(factor * first + txtsecond.value() + txtfree.value());
  }
};

class Live final : public ui::Calculator {
  ui::Input txtbase{this, "txtbase", "BASE"};
  ui::Input txtmore{this, "txtmore", "MORE", {.is_optional = true}};
  ui::Input txtsigned{this, "txtsigned", "SIGNED", {.range = ui::Range{-10, 10}}};
  ui::Result lblinverse{this, "lblinverse"};
  ui::Result lblsigned{this, "lblsigned"};

 public:
  Live() : Calculator{"live", "LIVE", Computes::as_typed} {
    name_exit("cmdchiudi", "CHIUDI");
    lay_out(ui::column(ui::form(txtbase, txtmore, txtsigned), lblinverse, lblsigned));
  }

 private:
  void compute() override {
    if (const auto number = txtsigned.usable(); number) {
      lblsigned = plain(*number);
    }
    if (const auto base = txtbase.usable(); base) {
      lblinverse = plain(1 / (*base - 2 + txtmore.usable().value_or(0)));
    }
  }
};

class Calculators : public FormTest {
 protected:
  Calculators() {
    static const ui::Registration<Asking> asking{"asking"};
    static const ui::Registration<Live> live{"live"};
  }

  void use_window(std::string_view name, std::string_view boxes, std::string_view results) {
    use_opened(Driven{open(name)}, boxes, results);
  }
};

TEST_F(Calculators, CheckWhatIsShownInTabOrderPresenceBeforeRanges) {
  use_window("asking", "Option1 txtfirst txtsecond txtfree", "lblsum lblpart_1");
  EXPECT_EQ(window.text("txtfirst cmbkind"), "50|FIRST");
  const std::string range = "VALORI AMMESSI: DA ";
  expect_refusal("0|0|1|", "txtfirst");
  expect_refusal("0|2e12||-1", "txtsecond");  // absent, before the first is out of its range
  expect_refusal("0|2e12|1|", "txtfirst", range + "1E-12 A 1000000000000");
  expect_refusal("0|1|0.249|9", "txtsecond", range + "0.25 A 3000");
  expect_refusal("0|1|1|9", "txtfree", range + "0 A 5");
  expect_refusal("0|1|1|-1", "txtfree", "NON NEGATIVO");
  expect_refusal("0|1e999|1|", "txtfirst", range + "1E-12 A 1000000000000");
  expect_refusal("0|-1e999|1|", "txtfirst");
  expect_refusal("0|2000|1|", "txtfirst", "TROPPO", "avviso");
  expect("0|1|3000|", "3001|1");
  expect("1|1|9999|5", "10005|1");  // hidden, it is not tested
  EXPECT_EQ(window.shown("txtsecond_prompt"), "");
}

TEST_F(Calculators, AFaultIsARefusalThatLeavesNoResult) {
  use_window("asking", "txtfirst txtsecond txtfree", "lblsum lblpart_1");
  expect_refusal("999|1|", "txtfirst", "DATI NON CONGRUI");
  EXPECT_EQ(results(), "|");
  EXPECT_FALSE(has_ended());
}

TEST_F(Calculators, AnyChangeOfAnInputEmptiesTheResultsOnly) {
  use_window("asking", "txtfirst txtsecond txtfree", "lblsum lblname_0 lblpart_1");
  const char* const changes[][2] = {
      {"txtfree", "2"}, {"Option1", "0"}, {"cmbkind", "SECOND"}, {"txtfirst", "7"}};
  for (const auto& [control, change] : changes) {
    SCOPED_TRACE(control);
    enter("1|2|3");
    EXPECT_EQ(results(), "6|one|1");
    window.type(control, change);
    EXPECT_EQ(results(), "|one|");
  }
}

TEST_F(Calculators, WhatStaysInATableIsNeverDimmed) {
  use_window("asking", "txtfirst", "lblname_0");
  window.type("txtfirst", "7");
  QApplication::processEvents();
  const QWidget& name = window.control("lblname_0");
  EXPECT_EQ(name.palette().color(name.foregroundRole()).alpha(), 255);
}

TEST_F(Calculators, AskingForSomethingElseEmptiesTheBox) {
  use_window("asking", "txtfirst txtsecond txtfree", "txtfree_prompt txtfree");
  enter("1|2|3");
  window.click("Option1_0");
  EXPECT_EQ(results(), "FREE|3");
  window.click("Option1_1");
  EXPECT_EQ(results(), "FREER|");
  expect_refusal("1||51", "txtfree", "VALORI AMMESSI: DA 0 A 50");
}

TEST_F(Calculators, MarkARowToTheEyeAndToTheEar) {
  use_window("asking", "cmbkind txtfirst txtsecond txtfree", "lblsum");
  enter("SECOND|1|2|3");
  const QWidget& marked = window.control("lblpart_1");
  EXPECT_TRUE(marked.font().bold());
  EXPECT_EQ(marked.accessibleDescription(), "PART, riga evidenziata");
  EXPECT_EQ(window.control("lblpart_0").accessibleDescription(), "one PART");
  enter("FIRST|1|2|3");
  EXPECT_FALSE(marked.font().bold());
  EXPECT_EQ(marked.accessibleDescription(), "PART");
}

TEST_F(Calculators, AsTypedComputeWhatTheyCanAndSayNothing) {
  use_window("live", "txtbase txtmore", "lblinverse");
  const char* const table[][2] = {{"4|", "0,5"}, {"4|2", "0,25"}, {"2|", ""},    {"|3", ""},
                                  {"1e13|", ""}, {"4|x", "0,5"},  {"1e999|", ""}};
  for (const auto& [typed, result] : table) {
    expect(typed, result);
  }
  EXPECT_FALSE(has_ended());
}

TEST_F(Calculators, WhereNumbersMayBeNegativeZeroIsANumberAndNothingIsNone) {
  use_window("live", "txtsigned", "lblsigned");
  const char* const table[][2] = {{"-7", "-7"}, {"0", "0"},      {"", ""},       {"-", ""},
                                  {"-11", ""},  {"-.5", "-0,5"}, {"-1e999", ""}, {"1e999", ""}};
  for (const auto& [typed, result] : table) {
    expect(typed, result);
  }
  window.click("cmdchiudi");
  EXPECT_FALSE(is_open("live"));
}

}  // namespace
}  // namespace eterlab::test
