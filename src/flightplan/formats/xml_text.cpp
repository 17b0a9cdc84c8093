#include "flightplan/formats/xml_text.h"

#include <sstream>
#include <string_view>

std::string XmlText(const pugi::xml_document& document) {
  std::ostringstream text;
  document.save(text, "  ", pugi::format_indent | pugi::format_no_declaration, pugi::encoding_utf8);
  return text.str();
}

pugi::xml_node AddText(pugi::xml_node parent, const char* name, std::string_view text) {
  std::string clean;
  for (const char c : text)
    if (static_cast<unsigned char>(c) >= ' ' || c == '\t' || c == '\n') clean += c;
  pugi::xml_node node = parent.append_child(name);
  node.text().set(clean.c_str());
  return node;
}
