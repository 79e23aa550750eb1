#include "desk/qt/adapters/FindStrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desk/qt/adapters/BoxEdit.h"
#include "desk/qt/adapters/Scale.h"
#include "desk/qt/adapters/Theme.h"

namespace quillon {

namespace {

constexpr long kEditWidth = 4200;
constexpr long kCaptionWidth = 900;
constexpr long kEdge = 75;

}  // namespace

FindStrip::FindStrip(GridModel& grid, QWidget* parent) : QWidget(parent), grid_(grid) {
  auto* const lines = new QVBoxLayout(this);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(0);
  filter_ = AddLine("Show only", grid.Look.Box);
  find_ = AddLine("Find", grid.Finder.Box);
  QPalette colors = palette();
  colors.setColor(QPalette::Window, Theme::Heading());
  colors.setColor(QPalette::Base, Theme::Surface());
  setPalette(colors);
  setAutoFillBackground(true);
}

FindStrip::Line FindStrip::AddLine(const char* caption, TextBox& box) {
  const int edge = Scale::Px(kEdge);
  auto* const whole = new QWidget(this);
  auto* const line = new QHBoxLayout(whole);
  line->setContentsMargins(2 * edge, edge, 2 * edge, edge);
  line->setSpacing(2 * edge);
  auto* const label = new QLabel(QString::fromLatin1(caption), whole);
  label->setMinimumWidth(Scale::Px(kCaptionWidth));
  auto* const edit = new BoxEdit(box, grid_, whole);
  edit->setFixedWidth(Scale::Px(kEditWidth));
  edit->setAccessibleName(label->text());
  auto* const note = new QLabel(whole);
  line->addWidget(label);
  line->addWidget(edit);
  line->addWidget(note, 1);
  layout()->addWidget(whole);
  return {whole, edit, note};
}

QWidget* FindStrip::Edit() const {
  if (grid_.Finder.IsOpen()) return find_.edit;
  return grid_.Look.IsTyped() ? filter_.edit : nullptr;
}

QString FindStrip::FilterNote() const {
  return grid_.Look.IsTyped() ? QStringLiteral("Enter: into the list   Esc: all rows again")
                              : QStringLiteral("Not all rows are shown.   Esc: all rows again");
}

void FindStrip::ShowBoxes() {
  filter_.whole->setVisible(grid_.Look.IsFilterOpen());
  find_.whole->setVisible(grid_.Finder.IsOpen());
  filter_.edit->ShowBox();
  filter_.note->setText(FilterNote());
  find_.edit->ShowBox();
  const QString note = QString::fromStdString(grid_.Finder.Note());
  find_.note->setText(note.isEmpty() ? QStringLiteral("Enter: next   Shift+Enter: previous   Esc: close")
                                     : note.left(1).toUpper() + note.mid(1));
}

}  // namespace quillon
