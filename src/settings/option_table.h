// The parts of the list of options, each in a file of its own.
#pragma once

#include <span>

#include "settings/option_list.h"

std::span<const Option> GeneralOptions();
std::span<const Option> ExchangeOptions();
std::span<const Option> ColorOptions();
