// Lines of text on paper: black on white, in pages.
#pragma once

#include <QPagedPaintDevice>
#include <string>
#include <vector>

class QWidget;

// Draws the lines (UTF-8) one below the other, on as many pages as they need;
// an empty line is a gap. False if nothing can be drawn on the paper.
bool PrintLines(QPagedPaintDevice& paper, const std::vector<std::string>& lines);

// Asks the pilot for a printer first; true also when he gives up.
bool PrintLinesOnPrinter(QWidget* parent, const std::vector<std::string>& lines);
