// host: the sample host application of the component. It opens a database, creates the component,
// hands the database to it, and serves its command line. Only this folder knows all the others and
// puts them together.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace korvantes::host {

struct Streams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
};

/// Runs the program on its arguments (without the program's name). Returns the exit status: 0, or 1
/// with one line on `err`.
int runHost(const std::vector<std::string>& arguments, Streams streams);

}  // namespace korvantes::host
