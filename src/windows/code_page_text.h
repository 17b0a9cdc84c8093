// The database's texts, in its 8-bit code page, as Qt has texts.
#pragma once

#include <QString>
#include <string_view>

#include "base/code_page.h"

inline QString FromCodePage(std::string_view text) {
  return QString::fromStdString(CodePageToUtf8(text));
}
