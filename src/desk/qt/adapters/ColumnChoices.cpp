#include "desk/qt/adapters/ColumnChoices.h"

#include <QSettings>
#include <QStringList>
#include <algorithm>

#include "host/controls/EditableGrid.h"

namespace quillon {

namespace {

constexpr QChar kBetween = QLatin1Char('\t');
constexpr int kFields = 3;

QString SettingOf(const QString& name) { return QStringLiteral("columns/") + name; }

}  // namespace

void ColumnChoices::KeepAs(const QString& name) {
  name_ = name;
  choices_.clear();
  for (const QString& line : QSettings().value(SettingOf(name)).toStringList()) {
    const QStringList fields = line.split(kBetween);
    if (fields.size() != kFields) continue;
    choices_[fields[0]] = {std::max(0L, fields[1].toLong()), fields[2].toInt() != 0};
  }
}

void ColumnChoices::Keep() const {
  if (name_.isEmpty()) return;
  QStringList lines;
  for (const auto& [key, choice] : choices_) {
    lines << QStringList{key, QString::number(choice.width), QString::number(choice.isAside ? 1 : 0)}.join(
        kBetween);
  }
  if (lines.isEmpty()) {
    QSettings().remove(SettingOf(name_));
  } else {
    QSettings().setValue(SettingOf(name_), lines);
  }
}

QString ColumnChoices::HeadingOf(const GridModel& grid, int col) {
  QStringList words;
  for (int row = 0; row < std::min(grid.FixedRows(), grid.Rows()); ++row) {
    if (grid.IsTitleShown(row)) words << QString::fromStdString(grid.TextMatrix(row, col));
  }
  return words.join(QLatin1Char(' ')).simplified();
}

/// Columns of the same heading are told apart by their order.
QString ColumnChoices::KeyOf(const GridModel& grid, int col) {
  const QString heading = HeadingOf(grid, col);
  int same = 1;
  for (int before = 0; before < col; ++before) {
    if (grid.IsColVisible(before) && HeadingOf(grid, before) == heading) ++same;
  }
  return same == 1 ? heading : heading + QStringLiteral(" #%1").arg(same);
}

ColumnChoices::Choice ColumnChoices::Of(const GridModel& grid, int col) const {
  if (choices_.empty() || !grid.IsColVisible(col)) return {};
  const auto chosen = choices_.find(KeyOf(grid, col));
  if (chosen == choices_.end()) return {};
  Choice choice = chosen->second;
  choice.isAside = choice.isAside && MayPutAside(grid, col);
  return choice;
}

void ColumnChoices::SetWidth(const GridModel& grid, int col, long width) {
  choices_[KeyOf(grid, col)].width = width;
}

void ColumnChoices::PutAside(const GridModel& grid, int col, bool aside) {
  if (MayPutAside(grid, col)) choices_[KeyOf(grid, col)].isAside = aside;
}

void ColumnChoices::Reset() { choices_.clear(); }

bool ColumnChoices::MayPutAside(const GridModel& grid, int col) {
  const auto* const edited = dynamic_cast<const EditableGrid*>(&grid);
  return grid.IsColVisible(col) && (edited == nullptr || !edited->IsTypedIn(col));
}

}  // namespace quillon
