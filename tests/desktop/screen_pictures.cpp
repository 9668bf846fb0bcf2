// Leaves pictures of the screens, in each of their states, and of the dialogs in a folder:
//   korvantes_screen_pictures FOLDER
// They are for the eye: nothing compares them.
#include <filesystem>
#include <iostream>
#include <string>

#include "component/KORVAN.h"
#include "desktop/application.h"
#include "desktop/robot.h"
#include "host/sample_data.h"
#include "settlement/frmNewLiquidAgentes.h"
#include "tests/desktop/sample_form.h"
#include "tests/support/temporary_database.h"

namespace korvantes {

namespace {

class Photographer {
 public:
  Photographer(std::filesystem::path folder, desktop::QtDesktop& desktop)
      : folder_(std::move(folder)), desktop_(desktop) {}
  void take(const std::string& name) {
    if (desktop_.capture((folder_ / (name + ".png")).string())) std::cout << name << ".png\n";
  }

 private:
  std::filesystem::path folder_;
  desktop::QtDesktop& desktop_;
};

template <class Control>
Control& find(screen::Form& form, const std::string& identity) {
  return dynamic_cast<Control&>(*form.findControl(identity));
}

void enterSettlement(desktop::Robot& robot, screen::Form& form, Photographer& photographer) {
  const auto key = [&](const char* name) { robot.stroke(*screen::keyNamed(name)); };
  auto& list = find<screen::ListView>(form, "ListView1");
  photographer.take("01-agente");
  key("F1");
  photographer.take("03-agente-elegido");
  robot.moveFocus(find<screen::TextBox>(form, "Text1(4)"));
  robot.type("30");
  photographer.take("04-fecha-con-foco");
  robot.clearText();
  robot.moveFocus(find<screen::TextBox>(form, "Text1(0)"));
  robot.click(find<screen::PictureButton>(form, "cmbBuscarFacturas"));
  photographer.take("05-albaranes");
  robot.tick(list, 0, true);
  robot.tick(list, 2, true);
  robot.clickColumn(list, 3);
  photographer.take("06-marcados-y-ordenados");
  robot.click(find<screen::PictureButton>(form, "cmdGrabar"));
  robot.moveFocus(find<screen::TextBox>(form, "Text1(2)"));
  robot.type("30062026");
  robot.moveFocus(find<screen::TextBox>(form, "Text1(7)"));
  robot.type("Comisiones del segundo trimestre, según lo hablado");
  photographer.take("08-datos-completos");
  robot.click(find<screen::PictureButton>(form, "cmdCancelar"));
  photographer.take("09-cancelada");
  robot.close();
}

void photographAll(const std::filesystem::path& folder) {
  const desktop::Application application;
  desktop::QtDesktop desktop;
  desktop.regional(screen::Regional::named("es-ES"));
  desktop.clock = ado::Moment{{2026, 7, 1}, 43200};
  screen::Desktop::makeCurrent(&desktop);
  const support::TemporaryDatabase database;
  database.connection()->BeginTrans();
  host::loadSampleData(*database.connection());
  database.connection()->CommitTrans();
  const auto component = KORVAN::Create();
  component->MyBd(std::make_shared<plindor::BaseDatos>(database.connection()));

  Photographer photographer(folder, desktop);
  desktop::Robot robot(desktop);
  int messages = 0;
  desktop.onMessage = [&](const screen::MessageBox& box) {
    photographer.take("mensaje-" + std::to_string(++messages));
    return desktop::QtDesktop::Reply<screen::Answer>{box.defaultAnswer()};
  };
  desktop.onList = [&](const screen::ListDialog&) {
    photographer.take("02-lista");
    return desktop::QtDesktop::Reply<std::optional<std::size_t>>{0};
  };
  desktop.whileShown = [&](screen::Form& form) { enterSettlement(robot, form, photographer); };
  component->jShowNewLiqui();
  desktop.whileShown = [&](screen::Form&) {
    photographer.take("10-liquidacion-guardada");
    robot.close();
  };
  frmNewLiquidAgentes stored;
  stored.nLiqui = 1;
  stored.Show();

  desktop::SampleForm sample;
  desktop.whileShown = [&](screen::Form&) {
    robot.tick(sample.list, 3, true);
    robot.moveFocus(sample.openList);
    photographer.take("11-todos-los-controles");
    robot.close();
  };
  sample.Show();
  for (const int style : {screen::style::Question | screen::style::YesNo,
                          int{screen::style::Information}, int{screen::style::Plain}})
    desktop.messageBox(
        {"¿Seguro que desea borrar esta liquidación?\nNo se puede deshacer, y sus "
         "albaranes vuelven a quedar pendientes de liquidar al agente.",
         style, "Liquidación de comisiones a agentes"});
  component->MyBd(nullptr);
  screen::Desktop::makeCurrent(nullptr);
}

}  // namespace

}  // namespace korvantes

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Uso: " << argv[0] << " CARPETA\n";
    return 1;
  }
  std::filesystem::create_directories(argv[1]);
  korvantes::photographAll(argv[1]);
  return 0;
}
