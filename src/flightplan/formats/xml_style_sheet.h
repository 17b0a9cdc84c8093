// The style sheet that shows an XML plan in a browser, from assets/vlm.xsl. It
// has to lie beside the plan under the name that the plan gives.
#pragma once

#include <string_view>

inline constexpr std::string_view xmlStyleSheetName = "vlm.xsl";

// UTF-8.
std::string_view XmlStyleSheet();
