// What ends a build of the database before it has changed anything: a source
// that cannot be read, an output that cannot be written, or the user's wish.
#pragma once

#include <stdexcept>

// The text names the file and the reason.
struct BuildError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct BuildCancelled : BuildError {
  BuildCancelled() : BuildError("cancelled") {}
};
