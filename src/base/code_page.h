// The 8-bit code page of all text files and records (Windows-1252) and UTF-8,
// which the screen, the command line and JSON speak.
#pragma once

#include <string>
#include <string_view>

// Every byte has a character: the five codes that Windows-1252 leaves open
// become the control characters U+0081 and so on, as on that system.
std::string CodePageToUtf8(std::string_view text);

// Characters outside the code page become the nearest letters that it has
// (nearest_letters.h), bytes that are no UTF-8 "?".
std::string Utf8ToCodePage(std::string_view text);

// True if the bytes are well-formed UTF-8 (RFC 3629: no overlong forms, no
// surrogates, at most U+10FFFF).
bool IsValidUtf8(std::string_view text);
