#include <filesystem>
#include <functional>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include "component/mdoKORVANTES.h"
#include "component/private_folder.h"
#include "tests/support/full_disk.h"
#include "tests/support/screen_world.h"
#include "tests/support/sweep.h"

namespace korvantes {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

constexpr std::int32_t kAgent = 7, kNobody = 99;

/// A picture file that begins so, 320 x 240, filled up to a size.
screen::Picture picture(std::string_view beginning, std::size_t bytes = 400) {
  ado::Bytes file;
  for (const char c : beginning) file.push_back(static_cast<std::byte>(c));
  file.resize(std::max(bytes, file.size()), std::byte{0x5A});
  return {file, 320, 240};
}
const screen::Picture kOld = picture({"GIF89a\x40\1\xF0\0", 10});
const screen::Picture kFresh =
    picture({"BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x40\1\0\0\xF0\0\0\0", 26}, 300'000);

/// A desktop whose picture files can fail.
struct Stage : support::CurrentDesktop {
  std::function<void(const std::string&)> beforeSave, beforeLoad;
  bool loadsNothing = false;

  void savePicture(const screen::Picture& shown, const std::string& path) override {
    if (beforeSave) beforeSave(path);
    HeadlessDesktop::savePicture(shown, path);
  }
  screen::Picture loadPicture(const std::string& path) override {
    if (beforeLoad) beforeLoad(path);
    return loadsNothing ? screen::Picture() : HeadlessDesktop::loadPicture(path);
  }
};

/// Sets a variable of the environment until the end of a test.
struct Environment {
  Environment(const char* name, const std::string& value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    ::setenv(name, value.c_str(), 1);
  }
  ~Environment() { before_ ? ::setenv(name_, before_->c_str(), 1) : ::unsetenv(name_); }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

 private:
  const char* name_;
  std::optional<std::string> before_;
};

/// An agent without a picture, and an image control to show one.
struct World {
  World() {
    desktop.onMessage = [this](const screen::MessageBox& box) {
      messages.push_back("[" + std::to_string(box.style) + "] " + box.title + " | " + box.text);
      EXPECT_TRUE(std::filesystem::is_empty(place.file(""))) << "while the box is on screen";
      return box.defaultAnswer();
    };
    component->MyBd(std::make_shared<plindor::BaseDatos>(connection));
    sql("INSERT INTO AGE (AGE_ID,AGE_NOM) VALUES (7,'Ana')");
  }
  ~World() { EXPECT_TRUE(std::filesystem::is_empty(place.file(""))) << "a file is left"; }

  ado::Recordset sql(std::string_view text) { return database.connection()->Execute(text); }
  void store(std::int32_t agent, const screen::Picture& shown) {
    image.Picture = shown;
    mdoKORVANTES::msGuardaImagen(agent, image);
  }
  /// Lets another user act between fetching a row and changing it.
  void meanwhile(const std::function<void()>& other) {
    connection->onCall = [other](std::string_view call) {
      if (call == "Update") other();
    };
  }
  /// What the control shows for the agent, after another picture.
  ado::Bytes shown(std::int32_t agent = kAgent) {
    image.Picture = picture("GIF87a", 450);
    mdoKORVANTES::msCargaImagen(agent, image);
    return image.Picture().empty() ? ado::Bytes() : image.Picture().file();
  }

  Stage desktop;
  support::TemporaryFolder place;
  Environment runtime{"XDG_RUNTIME_DIR", place.file("")};
  support::TemporaryDatabase database;
  std::shared_ptr<support::FaultyConnection> connection =
      std::make_shared<support::FaultyConnection>(database.connection());
  std::shared_ptr<KORVAN> component = KORVAN::Create();
  screen::Form form{"frmPrueba"};
  screen::Image image{form, "imgAgente"};
  std::vector<std::string> messages;
};

struct AgentPictures : testing::Test, World {};

TEST_F(AgentPictures, ComeBackAsTheyWereStored) {
  int files = 0;
  desktop.beforeLoad = [&](const std::string&) { ++files; };
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_THAT(shown(kNobody), IsEmpty());
  EXPECT_EQ(files, 0);
  store(kAgent, kOld);
  EXPECT_THAT(connection->calls(), ElementsAre("select AGE_IMG from AGE where AGE_ID= 7",
                                               "select AGE_IMG from AGE where AGE_ID= 99",
                                               "select * from AGE where AGE_ID= 7", "Update"));
  EXPECT_EQ(shown(), kOld.file());
  meanwhile([this] { sql("UPDATE AGE SET AGE_NOM='Eva' WHERE AGE_ID=7"); });
  store(kAgent, kFresh);
  EXPECT_EQ(shown(), kFresh.file());
  EXPECT_EQ(sql("SELECT AGE_NOM FROM AGE").cell(0, 0).text(), "Eva");
  EXPECT_THAT(messages, IsEmpty());
}

TEST_F(AgentPictures, PassThroughFilesThatNobodyElseSees) {
  std::vector<std::string> folders;
  desktop.beforeLoad = [&](const std::string& path) {
    struct stat state {};
    ASSERT_EQ(::lstat(path.c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 07777U, 0600U);
    folders.push_back(std::filesystem::path(path).parent_path().string());
    ASSERT_EQ(::lstat(folders.back().c_str(), &state), 0);
    EXPECT_EQ(state.st_mode, S_IFDIR | 0700U);
  };
  store(kAgent, kFresh);
  shown();
  ASSERT_EQ(folders.size(), 2U);
  EXPECT_NE(folders[0], folders[1]);
  EXPECT_THAT(folders, testing::Each(StartsWith(place.file(""))));

  // Folders where others could replace files, and paths that are not folders, are not used.
  const support::TemporaryFolder open;
  std::filesystem::permissions(open.file(""), std::filesystem::perms::all);
  for (const std::string& bad : {open.file(""), open.file("no hay"), std::string("aqui")}) {
    const Environment first("XDG_RUNTIME_DIR", bad);
    const Environment second("TMPDIR", place.file(""));
    EXPECT_THAT(makePrivateFolder().file("x"), StartsWith(place.file(""))) << bad;
    const Environment third("TMPDIR", bad);
    EXPECT_THAT(makePrivateFolder().file("x"), StartsWith("/tmp/korvantes-")) << bad;
  }
}

TEST_F(AgentPictures, ThatCannotBeStoredLeaveTheOldOne) {
  store(kAgent, kOld);
  std::optional<support::FullDisk> disk;
  const struct {
    std::function<void()> arrange;
    std::int32_t agent;
    screen::Picture shown;
    const char* message;
  } cases[] = {
      {[&] { desktop.beforeLoad = [](auto& path) { std::filesystem::resize_file(path, 5); }; },
       kAgent, kFresh,
       "[0] KORVANTES | Error : \r\nEl fichero de la imagen no es una imagen bmp, jpg, gif o tif"},
      {[&] { desktop.beforeSave = [&](auto&) { disk.emplace(100'000); }; }, kAgent, kFresh,
       "No se puede escribir el fichero de la imagen: el fichero es demasiado grande"},
      {[&] { desktop.loadsNothing = true; }, kAgent, kFresh, "[0] VRAL | El fichero no es valido"},
      {[] {}, kAgent, {}, "[0] KORVANTES | Error : \r\nNo hay ninguna imagen que guardar"},
      {[] {}, kNobody, kFresh, "[0] KORVANTES | Error : \r\nNo hay ningún agente con el código 99"},
      {[&] { meanwhile([this] { sql("DELETE FROM AGE WHERE AGE_ID=8"); }); }, 8, kFresh,
       "[0] KORVANTES | Error : \r\nEl registro ya no existe: otro usuario lo ha borrado"},
  };
  sql("INSERT INTO AGE (AGE_ID) VALUES (8)");
  for (const auto& each : cases) {
    messages.clear();
    each.arrange();
    store(each.agent, each.shown);
    disk.reset();
    desktop.beforeSave = desktop.beforeLoad = nullptr;
    desktop.loadsNothing = false;
    EXPECT_THAT(messages, ElementsAre(EndsWith(each.message)));
    EXPECT_EQ(shown(), kOld.file()) << each.message;
  }
}

TEST(AgentPictureFailures, WhateverCallFailsThePictureIsStoredByTheNextTry) {
  support::sweep<World>(2, [](World& world, support::Fault& fault) {
    world.store(kAgent, kOld);
    fault.during(*world.connection, [&] { world.store(kAgent, kFresh); });
    if (fault.met()) {
      EXPECT_THAT(world.messages, ElementsAre(std::string("[0] KORVANTES | Error : \r\n") +
                                              support::Fault::kWords));
      EXPECT_EQ(world.shown(), (fault.afterwards("Update") ? kFresh : kOld).file());
      world.store(kAgent, kFresh);
    }
    EXPECT_EQ(world.shown(), kFresh.file());
  });
}

TEST_F(AgentPictures, ThatCannotBeShownLeaveTheControlEmpty) {
  sql("UPDATE AGE SET AGE_IMG=0x WHERE AGE_ID=7");
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_THAT(messages, IsEmpty());
  sql("UPDATE AGE SET AGE_IMG=0x00000000 WHERE AGE_ID=7");
  EXPECT_THAT(shown(), IsEmpty());
  connection->failAt(1, ado::Error(64, "se ha cortado la conexión"));
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_THAT(messages, ElementsAre("[0] KORVANTES | El fichero de la imagen no es una imagen bmp, "
                                    "jpg, gif o tif",
                                    "[0] KORVANTES | se ha cortado la conexión"));
}

}  // namespace
}  // namespace korvantes
