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
std::vector<QString> ColumnChoices::KeysOf(const GridModel& grid) {
  std::vector<QString> keys(static_cast<std::size_t>(grid.Cols()));
  std::map<QString, int> seen;
  for (int col = 0; col < grid.Cols; ++col) {
    if (!grid.IsColVisible(col)) continue;
    const QString heading = HeadingOf(grid, col);
    const int same = ++seen[heading];
    keys[static_cast<std::size_t>(col)] = same == 1 ? heading : heading + QStringLiteral(" #%1").arg(same);
  }
  return keys;
}

std::vector<ColumnChoices::Choice> ColumnChoices::Of(const GridModel& grid) const {
  std::vector<Choice> all(static_cast<std::size_t>(grid.Cols()));
  if (choices_.empty()) return all;
  const std::vector<QString> keys = KeysOf(grid);
  for (int col = 0; col < grid.Cols; ++col) {
    const auto place = static_cast<std::size_t>(col);
    const auto chosen = choices_.find(keys[place]);
    if (!grid.IsColVisible(col) || chosen == choices_.end()) continue;
    all[place] = chosen->second;
    all[place].isAside = all[place].isAside && MayPutAside(grid, col);
  }
  return all;
}

ColumnChoices::Choice& ColumnChoices::At(const GridModel& grid, int col) {
  return choices_[KeysOf(grid)[static_cast<std::size_t>(col)]];
}

void ColumnChoices::SetWidth(const GridModel& grid, int col, long width) { At(grid, col).width = width; }

void ColumnChoices::PutAside(const GridModel& grid, int col, bool aside) {
  if (MayPutAside(grid, col)) At(grid, col).isAside = aside;
}

void ColumnChoices::Reset() { choices_.clear(); }

bool ColumnChoices::MayPutAside(const GridModel& grid, int col) {
  const auto* const edited = dynamic_cast<const EditableGrid*>(&grid);
  return grid.IsColVisible(col) && (edited == nullptr || !edited->IsTypedIn(col));
}

}  // namespace quillon
