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

void AddXmlDeclaration(pugi::xml_document& document) {
  pugi::xml_node declaration = document.append_child(pugi::node_declaration);
  declaration.append_attribute("version").set_value("1.0");
  declaration.append_attribute("encoding").set_value("UTF-8");
}
