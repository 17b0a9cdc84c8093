#include "windows/leg_table.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <array>

#include "windows/icons.h"
#include "windows/style.h"

namespace {

constexpr int heightOfRow = 26;
constexpr int pictureSize = 14;
constexpr int cellPadding = 5;  // as the style sheet has it, the text margin with it
constexpr int slack = 2;
constexpr int twipsPerPixel = 15;

struct ColumnLook {
  int twips;           // least width
  const char* widest;  // text that must fit, however wide the font is
  bool right;
};
constexpr std::array<ColumnLook, legColumns> columnLooks = {{{400, "", false},
                                                             {850, "MUMMO", false},
                                                             {2000, "MATUG (UN852 245-660)", false},
                                                             {700, "000.000", true},
                                                             {850, "000°/000°", true},
                                                             {750, "0000 NM", true},
                                                             {500, "00:00", true},
                                                             {600, "00:00", true},
                                                             {800, "000 kt", true},
                                                             {1000, "00000 ft", true},
                                                             {1500, "000000 / 100%", true}}};

constexpr const char* widestPosition = "N00°00.0000' W000°00.0000'";

constexpr int Number(LegColumn column) {
  return static_cast<int>(column);
}

QVariant Alignment(int column) {
  const bool right = columnLooks.at(static_cast<std::size_t>(column)).right;
  return QVariant(Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft));
}

// imgNavaid by picture number.
struct PictureLook {
  const char* drawing;
  QColor (*color)();
};
constexpr std::array<PictureLook, 12> pictureLooks = {{{"vor", EnrouteColor},
                                                       {"ndb", EnrouteColor},
                                                       {"intersection", EnrouteColor},
                                                       {"fix", EnrouteColor},
                                                       {"vor", ProcedureColor},
                                                       {"ndb", ProcedureColor},
                                                       {"intersection", ProcedureColor},
                                                       {"fix", ProcedureColor},
                                                       {"departure", AirportColor},
                                                       {"destination", AirportColor},
                                                       {"user_waypoint", EnrouteColor},
                                                       {"user_waypoint", ProcedureColor}}};

QPixmap Picture(int number, qreal scale) {
  const PictureLook& look = pictureLooks.at(static_cast<std::size_t>(number));
  return LinePicture(look.drawing, look.color(), pictureSize, scale);
}

// Draws the picture in its column's middle, and a name with the airway note
// behind it: where they do not fit, the name is shortened.
class LegDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool selected = option.state & QStyle::State_Selected;
    const QVariant tint = index.data(Qt::BackgroundRole);
    if (!selected && tint.canConvert<QColor>()) painter->fillRect(option.rect, tint.value<QColor>());
    if (index.column() != Number(LegColumn::sym) && index.column() != Number(LegColumn::name)) {
      QStyledItemDelegate::paint(painter, option, index);
      return;
    }
    QStyleOptionViewItem empty = option;
    initStyleOption(&empty, index);
    empty.text.clear();
    option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &empty, painter, option.widget);
    painter->save();
    if (index.column() == Number(LegColumn::sym)) {
      PaintPicture(*painter, option.rect, index);
    } else {
      PaintName(*painter, option, index);
    }
    painter->restore();
  }

 private:
  static void PaintPicture(QPainter& painter, const QRect& cell, const QModelIndex& index) {
    const int number = index.data(LegTableModel::pictureRole).toInt();
    if (number < 0) return;
    QRect place(0, 0, pictureSize, pictureSize);
    place.moveCenter(cell.center());
    painter.drawPixmap(place, Picture(number, painter.device()->devicePixelRatioF()));
  }

  static void PaintName(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QString note = index.data(LegTableModel::noteRole).toString();
    QString name = index.data().toString();
    name.chop(note.size());
    const QRect cell = option.rect.adjusted(cellPadding, 1, -cellPadding, 1);
    const QFontMetrics& font = option.fontMetrics;
    const QString shownNote = font.elidedText(note, Qt::ElideRight, cell.width());
    const int noteWidth = font.horizontalAdvance(shownNote);
    const QString shownName = font.elidedText(name, Qt::ElideRight, cell.width() - noteWidth);
    const bool selected = option.state & QStyle::State_Selected;
    painter.setFont(option.font);
    painter.setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter.drawText(cell, Qt::AlignVCenter | Qt::AlignLeft, shownName);
    if (!selected) painter.setPen(option.palette.color(QPalette::Mid));
    painter.drawText(cell.adjusted(font.horizontalAdvance(shownName), 0, 0, 0),
                     Qt::AlignVCenter | Qt::AlignLeft, shownNote);
  }
};

}  // namespace

LegTableModel::LegTableModel(LegCells& cells, const Settings& settings, QObject* parent)
    : QAbstractTableModel(parent), cells(cells), settings(settings) {}

void LegTableModel::Refresh() {
  cells.Refresh();
  const int rows = cells.RowCount();
  if (rows != shownRows) {
    beginResetModel();
    shownRows = rows;
    endResetModel();
  } else if (rows > 0) {
    Q_EMIT dataChanged(index(0, 0), index(rows - 1, legColumns - 1));
  }
  Q_EMIT headerDataChanged(Qt::Horizontal, 0, legColumns - 1);
}

int LegTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shownRows;
}

int LegTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : legColumns;
}

QVariant LegTableModel::data(const QModelIndex& index, int role) const {
  // A box that opens in the middle of a change has the table painted before it is told.
  if (!index.isValid() || index.row() >= cells.RowCount()) return {};
  const int row = index.row();
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return QString::fromStdString(cells.Text(row, static_cast<LegColumn>(index.column())));
    case Qt::TextAlignmentRole:
      return Alignment(index.column());
    case Qt::BackgroundRole: {
      const RowKind kind = cells.RowAt(row).Kind;
      return kind == RowKind::sid || kind == RowKind::star ? QVariant(ProcedureTint()) : QVariant();
    }
    case noteRole:
      return QString::fromStdString(cells.Note(row));
    case pictureRole:
      return NavaidPicture(cells.RowAt(row));
    default:
      return {};
  }
}

QVariant LegTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return Alignment(section);
  if (role != Qt::DisplayRole) return {};
  return QString::fromStdString(LegHeading(static_cast<LegColumn>(section), settings.FUEL));
}

LegTable::LegTable(FlightPlan& plan, LegCells& cells, const Settings& settings, QWidget* parent)
    : QTableView(parent), plan(plan), cells(cells), model(new LegTableModel(cells, settings, this)) {
  setObjectName("grdWPTable");
  setModel(model);
  setItemDelegate(new LegDelegate(this));
  setShowGrid(false);
  setAlternatingRowColors(true);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(heightOfRow);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setMinimumSectionSize(pictureSize + 2 * cellPadding);
  horizontalHeader()->setSectionResizeMode(Number(LegColumn::name), QHeaderView::Stretch);
  ensurePolished();
  for (int column = 0; column < legColumns; ++column)
    setColumnWidth(column, WidthFor(column));
  SetExtended(false);
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { TakeSelection(); });
  connect(this, &QTableView::clicked, this, &LegTable::RowClicked);
  connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
    if (!this->cells.IsAlternate(index.row())) Q_EMIT RowCentred(index.row());
  });
}

int LegTable::WidthFor(int column) const {
  const ColumnLook& look = columnLooks.at(static_cast<std::size_t>(column));
  const bool position = column == Number(LegColumn::name) && cells.showCoords;
  const QFontMetrics font = fontMetrics();
  const QString heading = model->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  const int text =
      std::max(font.horizontalAdvance(QString::fromUtf8(position ? widestPosition : look.widest)),
               font.horizontalAdvance(heading));
  return std::max(look.twips / twipsPerPixel, text + 2 * cellPadding + slack);
}

int LegTable::LayoutWidth() const {
  int width = verticalScrollBar()->sizeHint().width();
  for (int column = 0; column < legColumns; ++column)
    if (!isColumnHidden(column)) width += WidthFor(column);
  return width;
}

void LegTable::SetExtended(bool on) {
  for (int column = Number(firstExtendedColumn); column < legColumns; ++column)
    setColumnHidden(column, !on);
}

void LegTable::Refresh() {
  const int row = currentIndex().row();
  refreshing = true;
  model->Refresh();
  if (plan.SelectedRow > 0 && plan.SelectedRow <= plan.DestinationRow()) {
    selectRow(plan.SelectedRow);
  } else {
    clearSelection();
    // The arrow keys go on from where they were.
    const int last = model->rowCount() - 1;
    selectionModel()->setCurrentIndex(model->index(std::min(row, last), 0), QItemSelectionModel::NoUpdate);
  }
  refreshing = false;
}

void LegTable::TakeSelection() {
  if (refreshing) return;
  const QModelIndexList rows = selectionModel()->selectedRows();
  const bool ofPlan = !rows.isEmpty() && !cells.IsAlternate(rows.first().row());
  plan.SelectedRow = ofPlan ? static_cast<std::int16_t>(rows.first().row()) : std::int16_t{0};
  Q_EMIT RowPicked();
}

void LegTable::RowClicked(const QModelIndex& index) {
  if (cells.IsAlternate(index.row())) Q_EMIT AlternateAsked();
}

void LegTable::keyPressEvent(QKeyEvent* event) {
  const bool selected = selectionModel()->hasSelection();
  const int row = currentIndex().row();
  switch (event->key()) {
    case Qt::Key_Delete:
      if (plan.SelectedRow > 0) Q_EMIT DeleteAsked(plan.SelectedRow);
      return;
    case Qt::Key_Escape:
      if (!selected) break;
      clearSelection();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (row < 0) break;
      if (cells.IsAlternate(row)) {
        Q_EMIT AlternateAsked();
      } else {
        Q_EMIT RowCentred(row);
      }
      return;
    default:
      break;
  }
  QTableView::keyPressEvent(event);
}
