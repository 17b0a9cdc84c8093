// XML as text: documents are built and read with pugixml; this is how they look.
#pragma once

#include <pugixml.hpp>
#include <string>
#include <string_view>

// The document as UTF-8 with two blanks a level and lines ended by LF, the way
// its nodes say it: a declaration is written if it has one.
std::string XmlText(const pugi::xml_document& document);

// A child element with text; UTF-8. Characters that XML does not know are left out.
pugi::xml_node AddText(pugi::xml_node parent, const char* name, std::string_view text);

// <?xml version="1.0" encoding="UTF-8"?> as the document's first line.
void AddXmlDeclaration(pugi::xml_document& document);
