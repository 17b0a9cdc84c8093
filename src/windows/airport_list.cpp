#include "windows/airport_list.h"

#include <QHeaderView>
#include <QKeyEvent>

#include "navdata/airport_search.h"
#include "windows/code_page_text.h"

namespace {

constexpr int lineHeight = 25;

}  // namespace

AirportListModel::AirportListModel(const NavDatabase& database, QObject* parent)
    : QAbstractTableModel(parent), database(database) {}

void AirportListModel::Show(std::vector<std::int32_t> airports) {
  beginResetModel();
  rows = std::move(airports);
  endResetModel();
}

std::int32_t AirportListModel::AirportRow(int row) const {
  return row >= 0 && row < rowCount() ? rows[static_cast<std::size_t>(row)] : -1;
}

bool AirportListModel::AnyCity() const {
  return std::any_of(rows.begin(), rows.end(), [this](std::int32_t row) {
    return !database.airports[static_cast<std::size_t>(row)].strCity.Empty();
  });
}

int AirportListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int AirportListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns;
}

QString AirportListModel::Text(const AirportRec& airport, int column) const {
  switch (column) {
    case code:
      return FromCodePage(airport.strCode.View());
    case name:
      return FromCodePage(airport.strName.View());
    case city:
      return FromCodePage(airport.strCity.View());
    case country:
      return FromCodePage(airport.strCountry.View());
    case runway: {
      const std::int32_t feet = LongestRunwayFeet(database, airport);
      return feet > 0 ? tr("%L1 ft").arg(feet) : QString();
    }
    default:
      return {};
  }
}

QVariant AirportListModel::data(const QModelIndex& index, int role) const {
  const std::int32_t row = index.isValid() ? AirportRow(index.row()) : -1;
  if (row < 0) return {};
  if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
    return Text(database.airports[static_cast<std::size_t>(row)], index.column());
  if (role == Qt::TextAlignmentRole && index.column() == runway)
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  return {};
}

QVariant AirportListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole)
    return QVariant((section == runway ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  if (role != Qt::DisplayRole) return {};
  const QStringList headings = {tr("Code"), tr("Name"), tr("City"), tr("Country"), tr("Longest runway")};
  return headings.value(section);
}

AirportList::AirportList(const NavDatabase& database, QWidget* parent) : QTableView(parent) {
  found = new AirportListModel(database, this);
  setModel(found);
  setAccessibleName(tr("Airports found"));
  setShowGrid(false);
  setAlternatingRowColors(true);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(lineHeight);
  QHeaderView* header = horizontalHeader();
  header->setHighlightSections(false);
  header->setSectionsClickable(false);
  header->setSectionResizeMode(AirportListModel::name, QHeaderView::Stretch);
  setColumnWidth(AirportListModel::code, 76);
  setColumnWidth(AirportListModel::city, 180);
  setColumnWidth(AirportListModel::country, 170);
  setColumnWidth(AirportListModel::runway, 130);
  connect(this, &QTableView::clicked, this,
          [this](const QModelIndex& index) { Q_EMIT Picked(found->AirportRow(index.row())); });
}

void AirportList::Show(std::vector<std::int32_t> airports) {
  found->Show(std::move(airports));
  setColumnHidden(AirportListModel::city, !found->AnyCity());
  scrollToTop();
  if (Count() > 0) selectRow(0);
}

std::int32_t AirportList::Selected() const {
  return found->AirportRow(currentIndex().row());
}

void AirportList::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && Selected() >= 0) {
    Q_EMIT Picked(Selected());
  } else if (event->key() == Qt::Key_Escape) {
    event->ignore();
  } else {
    QTableView::keyPressEvent(event);
  }
}
