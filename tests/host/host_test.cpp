#include "host/host.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <sstream>

#include "host/windows.h"
#include "runtime/ado/temporary_folder.h"

namespace korvantes::host {
namespace {

namespace fs = std::filesystem;
using testing::AllOf, testing::HasSubstr, testing::Not, testing::StartsWith;

struct Outcome {
  int status;
  std::string out, err;
};

/// Runs the program in this process, with a data folder of its own.
class HostTest : public testing::Test {
 protected:
  HostTest() {
    ::setenv("XDG_DATA_HOME", (folder_.path() / "datos").c_str(), 1);
    // On a display it would open its window and wait.
    for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY"}) ::unsetenv(display);
  }
  ~HostTest() override { ::unsetenv("XDG_DATA_HOME"); }

  Outcome run(const std::vector<std::string>& arguments, const std::string& input = "") {
    std::istringstream in(input);
    std::ostringstream out, err;
    const int status = runHost(arguments, {in, out, err});
    return {status, out.str(), err.str()};
  }

  std::string path(const char* name) const { return folder_.file(name); }
  std::string url(const char* name = "base.db") const { return "sqlite:" + path(name); }

  /// One Spanish line behind the program's name, and nothing else.
  void expectFailure(const std::vector<std::string>& arguments, const std::string& words) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 1) << words;
    EXPECT_EQ(outcome.out, "") << words;
    EXPECT_THAT(outcome.err, AllOf(StartsWith("korvantes-host: "), HasSubstr(words)));
    EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << outcome.err;
  }

  ado::TemporaryFolder folder_;
};

TEST_F(HostTest, RefusesWhatItCannotDoInOneLine) {
  std::ofstream(path("texto.db")) << std::string(5000, 'x');
  std::ofstream(path("vacio.db")).close();
  fs::create_directory(path("carpeta"));
  ASSERT_EQ(run({"--base", url(), "demo"}).status, 0);
  const std::string base = url();
  const std::pair<std::vector<std::string>, const char*> cases[] = {
      {{"bailar"}, "no se conoce la orden «bailar»"},
      {{""}, "la orden está vacía"},
      {{"--base", base}, "hace falta una orden"},
      {{"--base", base, "crear"}, "ya tiene tablas"},
      {{"--base", base, "demo"}, "ya tiene tablas"},
      {{"--base", base, "demo", "x"}, "demo: sobra «x»"},
      {{"--base", url("no.db"), "sql"}, "no existe"},
      {{"--base", url("vacio.db"), "sql"}, "está vacío (0 bytes)"},
      {{"--base", url("carpeta"), "crear"}, "no es un fichero"},
      {{"--base", url("texto.db"), "sql"}, "no es una base de datos"},
      {{"--base", url("no/hay.db"), "crear"}, "no existe la carpeta"},
      {{"--base", "sqlite:", "crear"}, "se espera sqlite:RUTA"},
      {{"--base", base, "sql", "/no/hay.sql"}, "no se puede leer «/no/hay.sql»: no existe"},
      {{"--base", base, "sql", path("carpeta")}, "es una carpeta"},
      {{"--base", base, "guion"}, "guion: se espera un FICHERO"},
      {{"--base", base, "comision", "3", "1"}, "se esperan tres números"},
      {{"--base", base, "comision", "5", "1", "0"}, "«5» no es 2 (pedido) ni 3 (albarán)"},
      {{"--base", base, "comision", "3", "1", "2147483648"}, "IDLI: «2147483648» está fuera"},
  };
  for (const auto& [arguments, words] : cases) expectFailure(arguments, words);
}

TEST_F(HostTest, NeverEchoesAConnectionStringAndNamesItsVersion) {
  for (const char* base : {"odbc:Driver=X;UID=ana;PWD=secreto", "Driver=X;UID=ana;PWD=secreto"}) {
    const Outcome outcome = run({"--base", base, "sql"}, "select 1;");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.err, Not(HasSubstr("secreto")));
  }
  EXPECT_EQ(run({"--version"}).out, "korvantes-host " KORVANTES_EXPECTED_VERSION "\n");
  EXPECT_THAT(run({"--ayuda"}).out, HasSubstr("comision ORIGEN ID IDLI"));
  std::istringstream in;
  std::ofstream out("/dev/full");
  std::ostringstream err;
  EXPECT_EQ(runHost({"--version"}, {in, out, err}), 1);
  EXPECT_EQ(err.str(), "korvantes-host: no se ha podido escribir la salida\n");
}

TEST_F(HostTest, KeepsTheSampleDatabaseInAPrivateFolderOfTheUser) {
  EXPECT_EQ(run({"comision", "3", "1", "0"}).out, "1,93\n");
  EXPECT_EQ(run({"--regional", "en-US", "comision", "3", "0", "1"}).out, "0.64\n");
  EXPECT_EQ(fs::status(path("datos/korvantes")).permissions(), fs::perms::owner_all);
  EXPECT_EQ(run({"sql"}, "update Lav set Lav_Comi = 0 where Lav_IdCav = 1\nGO\n").status, 0);
  EXPECT_EQ(run({"comision", "3", "1", "0"}).out, "0\n");
  EXPECT_EQ(run({"guion", "-"}, "\uFEFFsql select 1 as n\r\n").status, 0);
  EXPECT_EQ(run({"guion", "-"}, "abrir nada\n").err,
            "korvantes-host: el guion ha dado errores: 1 línea marcada con [error]\n");
}

TEST_F(HostTest, PrintsTheResultsOfStatementsUntilOneFails) {
  std::ofstream(path("sentencias.sql"))
      << "-- comentario\ncreate table T (a int not null primary key,\n b money null);\n"
         "insert into T (a, b) values (1, 1234.56)\nGO\ninsert into T (a) values (2);\n"
         "select a, B from T order by a;\nselect A from T where a = 7;\nselect * from NoHay;\n"
         "delete from T;\n";
  ASSERT_EQ(run({"--base", url(), "crear"}).status, 0);
  const Outcome printed = run({"--base", url(), "sql", path("sentencias.sql")});
  EXPECT_EQ(printed.out, "0 filas\n1 filas\n1 filas\na\tB\n1\t1234.5600\n2\tNULL\nA\n");
  EXPECT_EQ(printed.status, 1);
  EXPECT_THAT(printed.err, AllOf(HasSubstr("sentencia 6: "), HasSubstr("NoHay")));
  EXPECT_EQ(run({"--base", url(), "sql"}, "select count(*) as n from T;").out, "n\n2\n");
  run({"--base", url(), "sql"}, "drop table Vespara.dbo.PAIS;");
  EXPECT_EQ(run({"--base", url(), "crear"}).out,
            "Completada la base de datos compartida; la de la empresa no se ha cambiado.\n");
}

TEST_F(HostTest, PlaysTheSampleSettlementAgainAndAgainOnABaseOfItsOwn) {
  const Outcome first = run({"--salida", path("out")});
  EXPECT_EQ(first.status, 0) << first.err;
  EXPECT_THAT(first.out, HasSubstr("concluido satisfactoriamente"));
  EXPECT_EQ(fs::exists(path("out/Liquidación 14.pdf")), hasWindows());
  EXPECT_EQ(run({"--salida", path("out")}).out, first.out);
  EXPECT_FALSE(fs::exists(path("datos")));
  // A display that does not answer is none.
  ::setenv("DISPLAY", ":4711", 1);
  ::unsetenv("QT_QPA_PLATFORM");
  expectFailure({"--escritorio"}, "--escritorio: ");
  EXPECT_EQ(run({"--salida", path("out")}).out, first.out);
}

}  // namespace
}  // namespace korvantes::host
