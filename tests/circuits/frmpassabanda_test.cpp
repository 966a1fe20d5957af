#include "support/window_test.h"

namespace eterlab {
namespace {

class frmpassabanda : public test::WindowTest {};

TEST_F(frmpassabanda, LeadsToBothFilters) {
  for (const auto& [button, target] :
       {std::pair{"Command1", "frmpassabasso"}, {"Command2", "frmpassaalto"}}) {
    const test::Driven window = choose("mnufiltripassabanda");
    window.click(button);
    EXPECT_FALSE(is_open("frmpassabanda"));
    EXPECT_TRUE(is_open(target));
    EXPECT_FALSE(driven(target).window().isModal());
  }
}

}  // namespace
}  // namespace eterlab
