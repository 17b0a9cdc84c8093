#include "cli/cli_output.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iostream>

#include "base/code_page.h"
#include "base/fixed_text.h"

void CliMessages::Show(std::string_view text, MessageIcon) {
  texts.emplace_back(text);
  std::cerr << text << '\n';
}

bool CliMessages::AskYesNo(std::string_view text, MessageIcon icon) {
  Show(text, icon);
  return false;
}

Json CliMessages::ToJson() const {
  return Json(texts);
}

std::optional<WorldLoad> OpenWorld(const CliOptions& options) {
  WorldLoad world = LoadWorld(options.home, options.blnFSX);
  if (!world.error.empty()) {
    Fail(world.error);
    return std::nullopt;
  }
  if (!world.complete) std::cerr << "velmora-cli: a database file is cut off; what could be read is used\n";
  return world;
}

int Fail(std::string_view reason) {
  std::cerr << "velmora-cli: " << reason << '\n';
  return exitNotDone;
}

void PrintJson(const Json& document) {
  std::cout << document.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}

Json JsonNumber(float value) {
  if (!std::isfinite(value)) return nullptr;
  std::array<char, 64> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value);
  double shortest = 0;
  std::from_chars(digits.data(), written.ptr, shortest);
  if (shortest == std::floor(shortest) && std::fabs(shortest) < 1e15)
    return static_cast<std::int64_t>(shortest);
  return shortest;
}

std::string Utf8(std::string_view codePageText) {
  return CodePageToUtf8(Trimmed(codePageText));
}
