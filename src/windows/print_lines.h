// Lines of text on paper: black on white, in pages.
#pragma once

#include <QPagedPaintDevice>
#include <string>
#include <vector>

class QWidget;

// Lays the lines (UTF-8) out as printed_pages.h does, on as many pages as they
// need: those with a colon as label and text, a first one without as heading,
// an empty line as a gap. False if nothing can be drawn on the paper.
bool PrintLines(QPagedPaintDevice& paper, const std::vector<std::string>& lines);

// Asks the pilot for a printer first; true also when he gives up.
bool PrintLinesOnPrinter(QWidget* parent, const std::vector<std::string>& lines);
