#include "windows/print_lines.h"

#include <QPrintDialog>
#include <QPrinter>

#include "windows/printed_pages.h"

namespace {

// What stands before the first colon of a line is a label; a first line without
// one heads the page, an empty line ends a block.
PrintedPlan DocumentOf(const std::vector<std::string>& lines) {
  PrintedPlan document;
  PrintedSection& section = document.sections.emplace_back();
  section.blocks.emplace_back();
  for (const std::string& line : lines) {
    const std::size_t colon = line.find(": ");
    if (&line == &lines.front() && colon == std::string::npos)
      section.heading = line;
    else if (line.empty())
      section.blocks.emplace_back();
    else if (colon == std::string::npos)
      section.blocks.back().lines.push_back({"", line});
    else
      section.blocks.back().lines.push_back({line.substr(0, colon + 1), line.substr(colon + 2)});
  }
  return document;
}

}  // namespace

bool PrintLines(QPagedPaintDevice& paper, const std::vector<std::string>& lines) {
  return PrintPages(paper, DocumentOf(lines), {});
}

bool PrintLinesOnPrinter(QWidget* parent, const std::vector<std::string>& lines) {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, parent);
  return dialog.exec() != QDialog::Accepted || PrintLines(printer, lines);
}
