#pragma once

#include <memory>

#include "component/KORVAN.h"
#include "host/database.h"

namespace korvantes::host {

/// The component at work on a database. The module keeps its object for good; the database is taken
/// from it again when this ends, so that the connection can close.
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
