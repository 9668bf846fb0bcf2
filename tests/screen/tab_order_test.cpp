#include <gtest/gtest.h>

#include "tests/screen/sample_form.h"

namespace korvantes::screen {
namespace {

/// Two frames, one in the other, with boxes whose tab order is not the order of their making.
struct FramedForm : Form {
  FramedForm() : Form("frmMarcos") {
    inner.container(&outer);
    const int tabs[] = {3, 0, 2, 1, 4};
    for (int i = 0; i < 5; ++i) {
      box.add(i * 2).TabIndex = tabs[i];  // with gaps
      if (i == 1) box(2).container(&inner);
      if (i == 2) box(4).container(&outer);
    }
  }
  /// The boxes from the first tab stop on, until the first one comes again.
  std::string order(bool backward = false) const {
    std::string seen;
    const Control* first = nextTabStop(nullptr, backward);
    const Control* control = first;
    while (control != nullptr) {
      seen += std::to_string(control->index().value());
      control = nextTabStop(control, backward);
      if (control == first) break;
    }
    return seen;
  }
  Frame outer{*this, "Frame1"}, inner{*this, "Frame2"};
  ControlArray<TextBox> box{*this, "Text1"};
};

TEST(TabOrder, RunsThroughTheWholeFormAndWraps) {
  FramedForm form;
  EXPECT_EQ(form.order(), "26408");
  EXPECT_EQ(form.order(true), "80462");
}

TEST(TabOrder, SkipsWhatCannotTakeTheFocus) {
  FramedForm form;
  form.outer.Enabled = false;
  EXPECT_EQ(form.order(), "608");
  EXPECT_FALSE(form.box(2).usable());
  EXPECT_TRUE(form.box(2).shown());
  form.outer.Enabled = true;
  form.inner.Visible = false;
  EXPECT_EQ(form.order(), "6408");
  form.box(6).TabStop = false;
  form.box(8).Visible = false;
  EXPECT_EQ(form.order(), "40");
  // From a control that is no stop itself, the next one behind it.
  EXPECT_EQ(form.nextTabStop(&form.box(6)), &form.box(4));
  form.Enabled = false;
  EXPECT_EQ(form.nextTabStop(nullptr), nullptr);
}

}  // namespace
}  // namespace korvantes::screen
