#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "common/regional_settings.h"
#include "support/window_test.h"

namespace eterlab::test {

using Boxes = std::vector<Box>;
using Texts = std::vector<std::string>;

/// What is typed into the boxes under these settings, and the results that Enter gives.
struct Computed {
  RegionalSettings settings;
  Texts typed;
  Texts results;
};

/// What is typed into the boxes, and how Enter is answered.
struct Refused {
  Texts typed;
  Box box;
  std::string focus;
};

/// A window of input boxes, a button that computes, and results.
class FormTest : public WindowTest {
 protected:
  FormTest(std::string_view menu_entry, Texts inputs, Texts outputs);

  void compute(const Texts& typed);
  /// The texts of the outputs; none of what is hidden.
  [[nodiscard]] Texts results() const;

  void expect_computed(std::initializer_list<Computed> table);
  void expect_refused(std::initializer_list<Refused> table);
  /// That an edit of any box replaces the results of these inputs.
  void expect_edits_leave(const Texts& at_rest, const Texts& typed);

  Driven window;

 private:
  Texts inputs_;
  Texts outputs_;
};

}  // namespace eterlab::test
