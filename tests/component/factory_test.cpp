#include "library/factory.h"

#include <dlfcn.h>
#include <gmock/gmock.h>

#include "component/KORVAN.h"
#include "tests/support/recording_connection.h"

namespace korvantes {
namespace {

template <class Function>
Function* symbol(void* library, const char* name) {
  return reinterpret_cast<Function*>(dlsym(library, name));
}

TEST(Factory, GivesALoadingHostAnObjectThatOutlivesItsReference) {
  void* library = dlopen(KORVANTES_LIBRARY, RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(library, nullptr) << dlerror();
  auto* version = symbol<decltype(korvantes_version)>(library, "korvantes_version");
  auto* create = symbol<decltype(korvantes_create)>(library, "korvantes_create");
  auto* release = symbol<decltype(korvantes_release)>(library, "korvantes_release");
  ASSERT_TRUE(version && create && release);
  EXPECT_STREQ(version(), KORVANTES_VERSION);

  auto* handle = static_cast<std::shared_ptr<KORVAN>*>(create());
  ASSERT_NE(handle, nullptr);
  EXPECT_EQ((*handle)->MyBd(), nullptr);
  (*handle)->MyBd(
      std::make_shared<plindor::BaseDatos>(std::make_shared<support::RecordingConnection>()));
  EXPECT_NE((*handle)->MyBd(), nullptr);

  const std::weak_ptr<KORVAN> first = *handle;
  release(handle);
  EXPECT_FALSE(first.expired());
  // A second object replaces the first one, which then has no owner.
  release(create());
  EXPECT_TRUE(first.expired());
  release(nullptr);
}

}  // namespace
}  // namespace korvantes
