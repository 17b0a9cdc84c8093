// Letters that the 8-bit code page lacks, written with those it has: marks are
// taken off Latin letters, Cyrillic ones are spelled as they sound.
#pragma once

#include <string_view>

// What a character outside Windows-1252 is written as; empty for one that only
// marks the letter before it, "?" if there is nothing near it. ASCII.
std::string_view NearestLetters(char32_t c);
