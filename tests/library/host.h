// What both hosts share: a desktop of their own, a database, a use of the component. They are built
// as a stranger would, so that there is no test framework here.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include "component/KORVAN.h"
#include "engines/sqlite/sqlite_connection.h"
#include "runtime/ado/error.h"
#include "runtime/screen/desktop.h"
#include "runtime/screen/user_input.h"

namespace host {

using namespace korvantes;

inline void require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "This does not hold: %s\n", what);
  std::exit(1);
}

/// Shows a form to one user and chooses the first row of every list.
class Desktop : public screen::Desktop {
 public:
  std::function<void(screen::Form&)> user;

  void showModal(screen::Form& form) override {
    screen::UserInput(form).shown();
    user(form);
    form.Unload();
  }
  screen::Answer messageBox(const screen::MessageBox& box) override { return box.defaultAnswer(); }
  std::optional<std::size_t> chooseFromList(const screen::ListDialog&) override { return 0; }
  std::optional<std::string> chooseFile(const screen::FileDialog&) override { return {}; }
  void sendKeys(std::string_view) override {}
  void processEvents() override {}
  screen::Picture loadPicture(const std::string&) override { return {}; }
  void savePicture(const screen::Picture&, const std::string&) override {}
};

/// A service on a new database of one agent and one delivery note.
inline std::shared_ptr<plindor::BaseDatos> newDatabase(const std::string& file) {
  std::filesystem::remove(file);
  std::filesystem::remove(file + ".vespara");
  auto connection =
      std::make_shared<sqlite::SqliteConnection>(file, sqlite::OpenOptions{.create = true});
  for (const char* statement :
       {"CREATE TABLE Age (AGE_ID int NOT NULL PRIMARY KEY, AGE_NOM varchar(100) NULL)",
        "CREATE TABLE Cav (Cav_Id int NOT NULL PRIMARY KEY, Cav_Dto1 decimal(5,2) NULL, "
        "Cav_DTO2 decimal(5,2) NULL)",
        "CREATE TABLE Lav (Lav_Id int NOT NULL PRIMARY KEY, Lav_IdCav int NOT NULL, "
        "Lav_Importe money NULL, Lav_Comi decimal(6,3) NULL)",
        "INSERT INTO Age (AGE_ID,AGE_NOM) VALUES (7,'Ana Ruiz')",
        "INSERT INTO Cav (Cav_Id,Cav_Dto1,Cav_DTO2) VALUES (1,10,0)",
        "INSERT INTO Lav (Lav_Id,Lav_IdCav,Lav_Importe,Lav_Comi) VALUES (1,1,200,5)"})
    connection->Execute(statement);
  return std::make_shared<plindor::BaseDatos>(std::move(connection));
}

/// A failure, a commission and a screen. The database stays open in the component.
inline void use(KORVAN& component, const std::string& version) {
  try {
    component.msComisionAgente(3, 1, 0);
    require(false, "a component without a database throws");
  } catch (const ado::Error&) {
  }
  component.MyBd(newDatabase("host.db"));
  require(component.msComisionAgente(3, 1, 0) == 9.0, "5 % of 200.00 less 10 % are 9.00");

  Desktop desktop;
  screen::Desktop::makeCurrent(&desktop);
  std::string caption, agent;
  desktop.user = [&](screen::Form& form) {
    caption = form.Caption();
    screen::UserInput(form).keyUp({screen::key::F1, 0, 0});
    auto* name = dynamic_cast<screen::TextBox*>(form.findControl("Text1(1)"));
    require(name != nullptr, "the controls are of the host's classes");
    agent = name->Text();
  };
  component.jShowInfLiqui();
  require(caption.find("(Versión " + version + ")") != std::string::npos, "the version is shown");
  require(agent == "Ana Ruiz", "F1 lists the agents of the host's database");
}

}  // namespace host
