// What the model does without a user, and what its face hears.
#include <stdexcept>

#include "runtime/screen/picture_file.h"
#include "scripts/headless_desktop.h"
#include "tests/screen/on_stage.h"

std::unique_ptr<korvantes::scripts::Stage> korvantes::screen::makeStage() {
  return std::make_unique<scripts::HeadlessDesktop>();
}

namespace korvantes::screen {
namespace {

TEST(Controls, RaiseEventsInsideTheProgramsOwnAssignments) {
  SampleForm form;
  form.text.add(7);  // arrays may have gaps
  EXPECT_THROW(form.text(3), std::out_of_range);
  EXPECT_EQ(form.findControl("T(7)"), &form.text(7));
  ComboBox& combo = form.fixedList;
  form.text(0).Text = "x";
  form.text(0).Text = "x";
  form.check.Value = 1;
  form.first.Value = true;
  form.second.Value = true;
  EXPECT_FALSE(form.first.Value());
  combo.ListIndex = 1;
  EXPECT_THROW(combo.ListIndex = 9, std::out_of_range);
  EXPECT_THROW(combo.Text = "Francia", std::invalid_argument);
  EXPECT_EQ(combo.Text(), "España");
  combo.Text = "Alemania";
  EXPECT_EQ(combo.ListIndex(), 0);
  EXPECT_EQ(form.taken(),
            "t(0) = x, check Click, first Click, second Click, fixed Click, fixed Click");
  combo.Clear();
  EXPECT_EQ(combo.Text() + std::to_string(combo.ListIndex()) + form.taken(), "-1");
}

TEST(TabOrder, RunsThroughTheWholeFormAndSkipsWhatCannotTakeTheFocus) {
  SampleForm form;
  const auto order = [&](bool backward = false) {
    std::string seen;
    const Control* const first = form.nextTabStop(nullptr, backward);
    const Control* stop = first;
    do {
      seen += stop->identity() + " ";
      stop = form.nextTabStop(stop, backward);
    } while (stop != first);
    return seen;
  };
  form.save.TabIndex = -1;
  EXPECT_EQ(order(), "save t(0) t(1) t(2) check first second fixed open leave list grid ");
  EXPECT_EQ(order(true), "grid list leave open fixed second first check t(2) t(1) t(0) save ");
  form.inner.Visible = false;
  form.leave.TabStop = false;
  form.box.Enabled = false;
  EXPECT_EQ(order(), "save fixed open list grid ");
  EXPECT_EQ(form.nextTabStop(&form.leave), &form.list) << "from one that is no stop itself";
  EXPECT_TRUE(form.text(0).shown() && !form.text(0).usable());
  form.Enabled = false;
  EXPECT_EQ(form.nextTabStop(nullptr), nullptr);
}

/// Writes down what it hears.
struct Face : FormObserver {
  void propertyChanged(Control* control, const PropertyBase& property) override {
    heard += (control != nullptr ? control->identity() : "form") + "." +
             std::string(property.name()) + " ";
  }
  void rowsChanged(Control& control) override { heard += control.identity() + " rows "; }
  void activeControlChanged() override { heard += "active "; }
  void unloaded() override { heard += "unloaded "; }
  std::string heard;
};

using Faces = OnStage;

TEST_F(Faces, HearOfRealChangesAlone) {
  Face face;
  form.observe(&face);
  form.Caption = "Muestra";
  form.Caption = "Otra";
  form.save.Enabled = true;
  form.fixedList.AddItem("x");
  form.leave.Click = [rows = form.grid.DataSource()]() mutable { rows.MoveLast(); };
  play([&] {
    face.heard += "| ";
    user.click(form.leave);
  });
  EXPECT_EQ(face.heard,
            "form.Caption fixed.ListCount fixed rows active | active grid rows unloaded ");
}

TEST(HeadlessDesktop, TakesDefaultsWhereNobodyAnswers) {
  scripts::HeadlessDesktop desktop;
  EXPECT_EQ(desktop.messageBox({"¿Seguro?", style::YesNo, ""}), Answer::Yes);
  EXPECT_EQ(desktop.messageBox({"", style::YesNo + style::DefaultSecond, ""}), Answer::No);
  EXPECT_EQ(desktop.messageBox({"Hecho", style::Information, ""}), Answer::Ok);
  EXPECT_FALSE(desktop.chooseFromList({}) || desktop.chooseFile({}));
  desktop.onList = [](const ListDialog&) { return std::optional<std::size_t>(2); };
  EXPECT_THROW(desktop.chooseFromList({}), std::out_of_range);
}

TEST(KeyNames, OfUnknownKeysAreRefused) {
  for (const char* name : {"", "F0", "F13", "F1x", "Entrar", "Foo+A", "Alt+", "ab"})
    EXPECT_FALSE(scripts::keyNamed(name)) << name;
  EXPECT_EQ(scripts::keyNamed("Control++").value().code, 231);
}

TEST(Pictures, TellTheirSizeByTheirFirstBytes) {
  using namespace std::string_view_literals;
  for (const std::string_view file :
       {"BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x40\1\0\0\x10\xFF\xFF\xFF"sv,
        "GIF89a\x40\1\xF0\0"sv, "\xFF\xD8\xFF\xE0\0\4ab\xFF\xFF\xC0\0\x11\x08\0\xF0\1\x40"sv,
        "II*\0\x08\0\0\0\2\0\0\1\3\0\1\0\0\0\x40\1\0\0\1\1\4\0\1\0\0\0\xF0\0\0\0"sv}) {
    ado::Bytes bytes;
    for (const char byte : file) {
      EXPECT_FALSE(pictureSize(bytes)) << file << " " << bytes.size();
      bytes.push_back(static_cast<std::byte>(byte));
    }
    const auto size = pictureSize(bytes);
    ASSERT_TRUE(size) << file;
    EXPECT_TRUE(size->width == 320 && size->height == 240) << file;
  }
  EXPECT_FALSE(pictureSize(ado::Bytes(100, std::byte{'%'})));
}

}  // namespace
}  // namespace korvantes::screen
