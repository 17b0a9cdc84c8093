#include "windows/command_line.h"

#include <string_view>

namespace {

void TakePlan(CommandLine& line, const std::string& argument) {
  if (!line.plan.empty()) {
    line.error = "only one flight plan can be opened";
    return;
  }
  std::error_code error;
  line.plan = std::filesystem::absolute(argument, error);
  if (error) line.plan = argument;
}

}  // namespace

CommandLine TakeOptions(const std::vector<std::string>& arguments) {
  constexpr std::string_view homeIs = "--home=";
  CommandLine line;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--help" || argument == "-h") {
      line.help = true;
    } else if (argument == "--version") {
      line.version = true;
    } else if (argument == "--home" && i + 1 < arguments.size()) {
      line.home = arguments[++i];
    } else if (argument == "--home") {
      line.error = "--home needs a folder";
    } else if (argument.starts_with(homeIs)) {
      line.home = argument.substr(homeIs.size());
    } else if (!argument.starts_with('-') && argument.find_first_of("./") != std::string::npos) {
      TakePlan(line, argument);
    } else {
      if (!line.rest.empty()) line.rest += ' ';
      line.rest += argument;
    }
  }
  if (line.home && line.home->empty()) line.error = "--home needs a folder";
  return line;
}
