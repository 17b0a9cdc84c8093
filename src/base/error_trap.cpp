#include "base/error_trap.h"

#include <exception>

bool RunTrapped(std::string_view head, const std::function<void()>& body,
                const std::function<void(const std::string&)>& report) {
  try {
    body();
    return true;
  } catch (const std::exception& error) {
    report(std::string(head) + error.what() + ")");
  } catch (...) {
    report(std::string(head) + "unknown error)");
  }
  return false;
}
