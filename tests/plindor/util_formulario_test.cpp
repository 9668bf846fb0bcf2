#include "outside/plindor/util_formulario.h"

#include <cmath>
#include <gmock/gmock.h>

#include "tests/support/current_desktop.h"
#include "tests/support/recording_connection.h"

namespace korvantes::plindor {
namespace {

using Texts = std::pair<const char*, const char*>;

struct OneBox : screen::Form {
  OneBox() : Form("frmPrueba") { other.TabIndex = 1; }
  screen::TextBox box{*this, "Text1", 0};
  screen::TextBox other{*this, "Text1", 1};
};

struct UtilFormularioTest : testing::Test {
  std::string masked(const char* text, const char* mask) {
    form.box.Text = text;
    util.AlPerderFoco(form.box, mask);
    return form.box.Text();
  }
  /// What the filter makes of each key typed into the box, one after the other.
  std::string typed(const char* keys, bool flag) {
    form.box.Text = "";
    for (const char* key = keys; *key != 0; ++key) {
      int code = static_cast<unsigned char>(*key);
      util.FiltraTecla(form.box, code, flag);
      if (code != 0) form.box.Text = form.box.Text() + static_cast<char>(code);
    }
    return form.box.Text();
  }

  support::CurrentDesktop desktop;
  OneBox form;
  UtilFormulario util;
};

TEST_F(UtilFormularioTest, RoundsTheDecimalThatIsMeantHalfAwayFromZero) {
  const struct {
    double value;
    long places;
    double rounded;
  } cases[] = {{1.005, 2, 1.01},
               {-2.675, 2, -2.68},
               {0.64 + 1.29, 2, 1.93},
               {99999999999999.9, 9, 99999999999999.9},
               {1234567890123457.0, 2, 1234567890123457.0}};
  for (const auto& [value, places, rounded] : cases)
    EXPECT_EQ(util.Redondea(value, places), rounded) << value << " at " << places;
  EXPECT_FALSE(std::signbit(util.Redondea(-0.004, 2)));
  for (const double bad : {std::nan(""), HUGE_VAL})
    EXPECT_THROW(util.Redondea(bad, 2), ado::ConversionError);
  EXPECT_THROW(util.Redondea(1, -1), ado::ConversionError);
}

TEST_F(UtilFormularioTest, GivesTheOfficialLetterOfATaxNumber) {
  const Texts cases[] = {{"00000023", "T"}, {"1", "R"}, {"x1234567L", "L"}, {"Y1234567", "X"},
                         {"Z1234567", "R"}, {"", ""},   {"X", ""}};
  for (const auto& [number, letter] : cases) EXPECT_EQ(util.LetraNif(number, ""), letter) << number;
}

TEST_F(UtilFormularioTest, WritesWhatFitsTheMaskAndLeavesTheRestAsTyped) {
  const Texts dates[] = {
      {"24112026", "24/11/2026"}, {"010129", "01/01/2029"},   {"010130", "01/01/1930"},
      {"1/2/26", "01/02/2026"},   {"1-2-2026", "01/02/2026"}, {"01.02.2026", "01/02/2026"},
      {" 241126 ", "24/11/2026"}, {"29022024", "29/02/2024"}, {"31022026", "31022026"},
      {"2411202", "2411202"},     {"24/11", "24/11"},         {"", ""}};
  for (const auto& [text, shown] : dates) EXPECT_EQ(masked(text, "dd/mm/yyyy"), shown) << text;
  const Texts numbers[] = {{"7,5", "7,500"}, {"99,9995", "100,000"}, {"siete", "siete"}, {"", ""}};
  for (const auto& [text, shown] : numbers) EXPECT_EQ(masked(text, "0.000"), shown) << text;
  EXPECT_EQ(masked("7,5", ""), "7,5");
  desktop.regional(screen::Regional::named("en-US"));
  EXPECT_EQ(masked("7.5", "0.000"), "7.500");
}

TEST_F(UtilFormularioTest, ColoursTheFieldByItsFocus) {
  util.ColorFoco = 255;
  util.ColorNormal = 65280;
  util.AlRecibirFoco(form.box, "");
  EXPECT_EQ(form.box.BackColor(), 255U);
  util.AlPerderFoco(form.box, "");
  EXPECT_EQ(form.box.BackColor(), 65280U);
}

TEST_F(UtilFormularioTest, LetsThroughTheKeysThatAFieldTakes) {
  EXPECT_EQ(typed("a1'2;-3 /4.5,6", true), "123/456");
  EXPECT_EQ(typed("a1'2;-3 /4.5,6", false), "1234,56");
  const auto filtered = [&](int key) {
    util.FiltraTecla(form.box, key, false);
    return key;
  };
  for (int key : {8, 9, 13, 27, 3, 22}) EXPECT_EQ(filtered(key), key);
  // A second separator may only replace the first.
  form.box.Text = "ñ1,5";
  form.box.SelStart = 2;
  form.box.SelLength = 1;
  EXPECT_EQ(filtered('.'), ',');
  form.box.SelStart = 3;
  EXPECT_EQ(filtered('.'), 0);
  desktop.regional(screen::Regional::named("en-US"));
  EXPECT_EQ(typed("1,2.5.6", false), "12.56");
}

TEST_F(UtilFormularioTest, CleansTheFieldBeingEditedAndNoStoredValue) {
  ado::Variant state = 5;
  form.box.Text = "D-10115";
  util.AlCambiarTexto(form.box, state, true, "");
  EXPECT_EQ(form.box.Text(), "D-10115");

  desktop.whileShown = [&](screen::Form& shown) {
    form.box.SetFocus();
    for (const auto& [text, left] : {Texts{"D-10115", "10115"}, {"12,5", "125"}, {"", ""}}) {
      form.box.Text = text;
      util.AlCambiarTexto(form.box, state, true, "");
      EXPECT_EQ(form.box.Text(), left);
    }
    form.box.Text = "x12.5,3";
    util.AlCambiarTexto(form.box, state, false, "");
    EXPECT_EQ(form.box.Text(), "12,53");
    shown.Unload();
  };
  form.Show();
  EXPECT_EQ(state, ado::Variant(5));
}

TEST_F(UtilFormularioTest, OffersTheRowsInOrderAndGivesTheChosenOne) {
  const auto connection = std::make_shared<support::RecordingConnection>();
  util.Conexion(connection);
  std::string shown;
  std::optional<std::size_t> choice;
  desktop.onList = [&](const screen::ListDialog& list) {
    shown = list.title + " " + list.codeTitle + " " + std::to_string(list.codeWidth) + " " +
            list.nameTitle + " " + std::to_string(list.nameWidth) + ":";
    for (const auto& row : list.rows) shown += " " + row.code + "=" + row.name;
    return scripts::Reply<std::optional<std::size_t>>{choice};
  };
  const auto search = [&] {
    connection->answer(support::resultOf(
        {"k", "AGE_ID", "AGE_NOM"}, {0, 12, "Ana Ruiz", 0, 7, ado::Variant(), 0, 3, "Zoe Peña"}));
    return util.BuscaEnLista("Select (0) as k ,AGE_ID,AGE_NOM FROM AGE", "AGE_NOM", "Codigo",
                             "Nombre", "Buscar", 800, 6000, 0);
  };
  EXPECT_EQ(search(), "");
  choice = 2;
  EXPECT_EQ(search(), "0\0013\001Zoe Peña");
  EXPECT_EQ(shown, "Buscar Codigo 800 Nombre 6000: 12=Ana Ruiz 7= 3=Zoe Peña");
  EXPECT_EQ(connection->calls.at(1), "Select (0) as k ,AGE_ID,AGE_NOM FROM AGE ORDER BY AGE_NOM");
}

TEST_F(UtilFormularioTest, SaysWhyASearchCannotRun) {
  const auto search = [&] { util.BuscaEnLista("Select 1", "1", "", "", "", 0, 0, 0); };
  EXPECT_THROW(search(), ado::Error);
  const auto connection = std::make_shared<support::RecordingConnection>();
  connection->answer(ado::Error(208, "No existe la tabla Age"));
  connection->answer(support::resultOf({"k", "c"}, {0, 1}));
  util.Conexion(connection);
  EXPECT_THAT(search, testing::ThrowsMessage<ado::Error>("No existe la tabla Age"));
  EXPECT_THAT(search,
              testing::ThrowsMessage<ado::Error>(testing::HasSubstr("un código y un nombre")));
}

}  // namespace
}  // namespace korvantes::plindor
