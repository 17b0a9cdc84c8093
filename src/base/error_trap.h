// The one trap around an event or a step. What fails inside it is reported
// under the procedure's head text and the program goes on.
#pragma once

#include <functional>
#include <string>
#include <string_view>

// Runs body. True if it ended normally. An exception is turned into the text
// head + what the exception says + ")" (head ends in " (", as in
// "Check frmRunway DrawMarker ("), handed to report, and the result is false.
bool RunTrapped(std::string_view head, const std::function<void()>& body,
                const std::function<void(const std::string&)>& report);
