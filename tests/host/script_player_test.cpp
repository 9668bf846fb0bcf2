#include "host/script_player.h"

#include <gtest/gtest.h>
#include <sstream>

#include "host/headless_stage.h"
#include "tests/host/sample_form.h"
#include "tests/support/recording_connection.h"

namespace korvantes::host {
namespace {

/// Plays scripts over the sample form: "abrir prueba", with a number that makes it fail to load.
class ScriptPlayerTest : public testing::Test {
 protected:
  /// The transcript without its first line and without the lines that close the form.
  std::string playOpen(const std::string& script) {
    std::string transcript = play("abrir prueba\n" + script);
    const std::string head = "> abrir prueba\n";
    const std::string tail = "[cerrado] frmPrueba\n";
    EXPECT_TRUE(transcript.starts_with(head) && transcript.ends_with(tail)) << transcript;
    return transcript.substr(head.size(), transcript.size() - head.size() - tail.size());
  }

  std::string play(const std::string& script) {
    std::ostringstream out;
    HeadlessStage stage;
    const Screens screens = {{"prueba", [](std::optional<std::int32_t> number) {
                                SampleForm form;
                                form.failsToLoad = number.has_value();
                                form.Show();
                              }}};
    ScriptPlayer player(stage, connection_, screens, out);
    errors_ = player.play(script);
    return out.str();
  }

  support::RecordingConnection connection_;
  int errors_ = 0;
};

TEST_F(ScriptPlayerTest, RepeatsEachLineAndClosesWhatIsLeftOpen) {
  EXPECT_EQ(play("\xEF\xBB\xBF# Saludo\r\n\r\n  abrir prueba\n\tescribir a b \nver Text1(0)"),
            "> # Saludo\n"
            "> abrir prueba\n"
            "> escribir a b \n"
            "> ver Text1(0)\n"
            "Text1(0) = \"a b \"\n"
            "[cerrado] frmPrueba\n");
  EXPECT_EQ(errors_, 0);
  EXPECT_EQ(play("abrir prueba\ncerrar\nver foco\nabrir prueba\ntecla Escape\ncerrar"),
            "> abrir prueba\n"
            "> cerrar\n"
            "[cerrado] frmPrueba\n"
            "> ver foco\n"
            "[error] no hay ninguna pantalla abierta\n"
            "> abrir prueba\n"
            "> tecla Escape\n"
            "[cerrado] frmPrueba\n"
            "> cerrar\n"
            "[error] no hay ninguna pantalla abierta\n");
  EXPECT_EQ(errors_, 2);
  EXPECT_EQ(play("abrir prueba 3\nabrir otra"),
            "> abrir prueba 3\n"
            "[error] no hay\\nbase\n"
            "> abrir otra\n"
            "[error] no se conoce la pantalla «otra»\n");
}

TEST_F(ScriptPlayerTest, ShowsControlsAndTheirProperties) {
  EXPECT_EQ(playOpen("ver foco\nver text1(10)\nver CHECK1\nver Option1(1)\nver cboFixed\n"
                     "ver cmdAsk\nver cmdHidden.visible\nver Text1(0).maxlength\nver Tag\n"
                     "ver Caption\nver dlgFile\nver cboFixed.ListCount"),
            "> ver foco\nfoco = Text1(0)\n"
            "> ver text1(10)\nText1(10) = \"\"\n"
            "> ver CHECK1\nCheck1 = 0\n"
            "> ver Option1(1)\nOption1(1) = False\n"
            "> ver cboFixed\ncboFixed = \"\"\n"
            "> ver cmdAsk\ncmdAsk = \"&Preguntar\"\n"
            "> ver cmdHidden.visible\ncmdHidden.Visible = False\n"
            "> ver Text1(0).maxlength\nText1(0).MaxLength = 8\n"
            "> ver Tag\nTag = \"\"\n"
            "> ver Caption\nCaption = \"Prueba\"\n"
            "> ver dlgFile\ndlgFile = \"\"\n"
            "> ver cboFixed.ListCount\ncboFixed.ListCount = 2\n");
  EXPECT_EQ(playOpen("marcar ListView1 2\nver ListView1\nver dbgRows"),
            "> marcar ListView1 2\n"
            "> ver ListView1\n"
            "Factura | Cliente\n"
            "[ ] A/000002 | Ñuño\n"
            "[x] A/000001 | \n"
            "> ver dbgRows\n"
            "Lca_Id | Nombre\n"
            "7 | Ana\n"
            "9 | Luis\n");
  EXPECT_EQ(playOpen("ver pantalla"),
            "> ver pantalla\n"
            "pantalla = \"Prueba\"\n"
            "fraOff = \"Apagado\" (deshabilitado)\n"
            "Check1 = 0\n"
            "Option1(0) = False\n"
            "Option1(1) = False\n"
            "cboFixed = \"\"\n"
            "cboFree = \"\"\n"
            "cmdAsk = \"&Preguntar\"\n"
            "lblAnswer = \"\"\n"
            "ListView1 = 2 filas\n"
            "dbgRows = 2 filas\n"
            "dlgFile = \"\"\n"
            "Text1(0) = \"\"\n"
            "Text1(10) = \"\" (deshabilitado)\n");
}

TEST_F(ScriptPlayerTest, ActsAsTheUserWould) {
  EXPECT_EQ(playOpen("escribir demasiado largo\nver Text1(0)\nvaciar\npegar x\nver Text1(0)\n"
                     "tecla Tab\nver foco\nmarcar Check1\nmarcar Check1\nver Check1\n"
                     "desmarcar Check1\nver Check1\nopcion Option1(1)\nver Option1(1)\n"
                     "elegir cboFixed 1\nver cboFixed\nelegir cboFree \"de  aquí\"\nver cboFree\n"
                     "marcar ListView1 1\nver lblAnswer\nver foco\ncolumna ListView1 1\n"
                     "ver ListView1.SortKey\nmarcar ListView1 1\nver lblAnswer\n"
                     "fila dbgRows 2\ncelda dbgRows 0\nver lblAnswer"),
            "> escribir demasiado largo\n> ver Text1(0)\nText1(0) = \"demasiad\"\n"
            "> vaciar\n> pegar x\n> ver Text1(0)\nText1(0) = \"x\"\n"
            "> tecla Tab\n> ver foco\nfoco = Check1\n"
            "> marcar Check1\n> marcar Check1\n> ver Check1\nCheck1 = 1\n"
            "> desmarcar Check1\n> ver Check1\nCheck1 = 0\n"
            "> opcion Option1(1)\n> ver Option1(1)\nOption1(1) = True\n"
            "> elegir cboFixed 1\n> ver cboFixed\ncboFixed = \"dos\"\n"
            "> elegir cboFree \"de  aquí\"\n> ver cboFree\ncboFree = \"de  aquí\"\n"
            "> marcar ListView1 1\n> ver lblAnswer\nlblAnswer = \"A/000002 sí\"\n"
            "> ver foco\nfoco = ListView1\n"
            "> columna ListView1 1\n> ver ListView1.SortKey\nListView1.SortKey = 0\n"
            "> marcar ListView1 1\n> ver lblAnswer\nlblAnswer = \"A/000001 sí\"\n"
            "> fila dbgRows 2\n> celda dbgRows 0\n> ver lblAnswer\nlblAnswer = \"fila 9\"\n");
}

TEST_F(ScriptPlayerTest, TellsHappeningsUnderTheLineThatCausedThem) {
  EXPECT_EQ(playOpen("escribir mal\nir Check1\nver foco\n"
                     "responder Sí\nfichero /tmp/x.bmp\npulsar cmdAsk\nver lblAnswer\n"
                     "responder Aceptar\nresponder No\npulsar cmdAsk\npulsar cmdAsk\n"
                     "ver lblAnswer"),
            "> escribir mal\n"
            "> ir Check1\n"
            "[mensaje 16] KORVANTES | Valor malo\n"
            "> ver foco\nfoco = Check1\n"
            "> responder Sí\n> fichero /tmp/x.bmp\n"
            "> pulsar cmdAsk\n"
            "[mensaje 36] Duda | ¿Sigo?\\nDos\n"
            "[fichero] \n"
            "> ver lblAnswer\nlblAnswer = \"/tmp/x.bmp\"\n"
            "> responder Aceptar\n> responder No\n"
            "> pulsar cmdAsk\n"
            "[mensaje 36] Duda | ¿Sigo?\\nDos\n"
            "[error] el mensaje no tiene el botón Aceptar\n"
            "[fichero] \n"
            "> pulsar cmdAsk\n"
            "[mensaje 36] Duda | ¿Sigo?\\nDos\n"
            "> ver lblAnswer\nlblAnswer = \"no\"\n");
  EXPECT_EQ(errors_, 1);
}

TEST_F(ScriptPlayerTest, TheEnterThatClosesAMessageReachesTheForm) {
  EXPECT_EQ(playOpen("responder Enter\npulsar cmdAsk\nver Tag\nresponder No\npulsar cmdAsk\n"
                     "ver Tag"),
            "> responder Enter\n> pulsar cmdAsk\n"
            "[mensaje 36] Duda | ¿Sigo?\\nDos\n"
            "[fichero] \n"
            "> ver Tag\nTag = \"e\"\n"
            "> responder No\n> pulsar cmdAsk\n"
            "[mensaje 36] Duda | ¿Sigo?\\nDos\n"
            "> ver Tag\nTag = \"e\"\n");
}

TEST_F(ScriptPlayerTest, RunsStatementsOnTheBase) {
  connection_.answer(support::resultOf({"n", "t"}, {1, ado::Variant()}));
  connection_.answer(ado::Error(208, "no hay tabla X", "select 1"));
  EXPECT_EQ(play("sql select 1 as n, null as t\nsql select * from X\nsql delete from Y"),
            "> sql select 1 as n, null as t\nn\tt\n1\tNULL\n"
            "> sql select * from X\n[error] no hay tabla X\n"
            "> sql delete from Y\n1 filas\n");
  EXPECT_EQ(connection_.calls.back(), "delete from Y");
}

TEST_F(ScriptPlayerTest, ALineThatCannotBeDoneIsAnErrorAndTheRunGoesOn) {
  const struct {
    const char* line;
    const char* error;
  } cases[] = {
      {"bailar", "no se conoce la acción «bailar»"},
      {"Ver foco", "no se conoce la acción «Ver»"},
      {"ir", "falta el control"},
      {"ir Text1(5)", "no hay ningún control «Text1(5)»"},
      {"ir Text1(10)", "Text1(10) está deshabilitado"},
      {"ir lblAnswer", "lblAnswer no puede recibir el foco"},
      {"ir Check1 ya", "sobra «ya»"},
      {"pulsar cmdHidden", "cmdHidden no está visible"},
      {"pulsar Check1", "Check1 no es un botón"},
      {"marcar Text1(0)", "Text1(0) no es una casilla"},
      {"marcar ListView1 3", "ListView1 no tiene la fila 3"},
      {"marcar ListView1 0", "la fila: «0» está fuera de los límites, 1 a 2147483647"},
      {"marcar ListView1", "falta la fila"},
      {"elegir cboFixed 2", "cboFixed no tiene la entrada 2"},
      {"elegir cboFixed \"uno\"", "en cboFixed no se puede escribir"},
      {"elegir cboFixed dos", "la entrada: «dos» no es un número entero"},
      {"columna ListView1 2", "ListView1 no muestra la columna 2"},
      {"fila dbgRows 3", "dbgRows no tiene la fila 3"},
      {"celda dbgRows 1", "dbgRows no tiene botón en la columna 1"},
      {"tecla F99", "no se conoce la tecla «F99»"},
      {"escribir", "falta el texto"},
      {"responder Quizás", "no se conoce la respuesta «Quizás»"},
      {"escoger 1 ya", "sobra «ya»"},
      {"escoger nadamás", "la fila: «nadamás» no es un número entero"},
      {"fichero", "falta la ruta"},
      {"ver Text1(0).Peso", "Text1(0) no tiene la propiedad «Peso»"},
      {"ver nada", "no hay ningún control «nada»"},
      {"sql ", "falta la sentencia"},
  };
  for (const auto& each : cases) {
    const std::string line = each.line;
    EXPECT_EQ(playOpen(line + "\nver foco"),
              "> " + line + "\n[error] " + each.error + "\n> ver foco\nfoco = Text1(0)\n");
    EXPECT_EQ(errors_, 1) << line;
  }
}

}  // namespace
}  // namespace korvantes::host
