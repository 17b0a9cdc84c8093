// The program's own options, taken out of the command line before the letters
// of what is left choose the simulator version.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

struct CommandLine {
  std::optional<std::string> home;
  std::filesystem::path plan;  // the plan file to open, absolute; empty: none
  bool help = false;
  bool version = false;
  std::string error;  // why the options cannot be used; empty if they can
  std::string rest;   // everything else, joined by blanks
};

// arguments without the program's name. --home DIR, --home=DIR, --help, -h, --version. Of the others what
// has a dot or a slash is the plan file.
CommandLine TakeOptions(const std::vector<std::string>& arguments);
