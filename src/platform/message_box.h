// The box in which the program speaks to the pilot. Every box bears the
// program's name and version as its title and blocks until it is closed.
#pragma once

#include <optional>
#include <string_view>

constexpr std::string_view productName = "Velmora";
constexpr std::string_view messageTitle = "Velmora 8.6";

enum class MessageIcon { none, information, question, exclamation, critical };

class MessageBox {
 public:
  virtual ~MessageBox() = default;
  // Texts are UTF-8; line breaks are "\n".
  virtual void Show(std::string_view text, MessageIcon icon) = 0;
  // True for yes.
  virtual bool AskYesNo(std::string_view text, MessageIcon icon) = 0;
  // The same for a question that can be given up: nothing is cancel. Where nobody
  // could give it up it is a plain one.
  virtual std::optional<bool> AskYesNoCancel(std::string_view text, MessageIcon icon) {
    return AskYesNo(text, icon);
  }
};
