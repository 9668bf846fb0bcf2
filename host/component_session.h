#pragma once

#include <memory>

#include "component/KORVAN.h"
#include "host/database.h"

namespace korvantes::host {

/// The component working on a database. The module keeps its object forever, so the destructor
/// detaches the database to let the connection close.
class ComponentSession {
 public:
  explicit ComponentSession(const Database& database) : component_(KORVAN::Create()) {
    component_->MyBd(std::make_shared<plindor::BaseDatos>(database.connection));
  }
  ~ComponentSession() { component_->MyBd(nullptr); }
  ComponentSession(const ComponentSession&) = delete;
  ComponentSession& operator=(const ComponentSession&) = delete;

  KORVAN& component() const { return *component_; }

 private:
  std::shared_ptr<KORVAN> component_;
};

}  // namespace korvantes::host
