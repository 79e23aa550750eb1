#include "desk/qt/adapters/TextAreaAdapter.h"

#include <QMouseEvent>
#include <QPlainTextEdit>
#include <algorithm>

#include "desk/qt/adapters/Acts.h"
#include "host/forms/Form.h"

namespace quillon {

namespace {

QString Shown(const TextLines& lines) {
  QStringList shown;
  for (const TextLines::Line& line : lines.All()) shown << QString::fromStdString(line.text);
  return shown.join(QLatin1Char('\n'));
}

int ToShown(const TextLines& lines, int place) {
  const auto line = static_cast<std::size_t>(lines.LineAt(place));
  int before = 0;
  for (std::size_t i = 0; i < line; ++i) before += lines.All()[i].stop - lines.All()[i].start + 1;
  return before + std::min(place, lines.All()[line].stop) - lines.All()[line].start;
}

int ToModel(const TextLines& lines, int shown) {
  for (const TextLines::Line& line : lines.All()) {
    const int length = line.stop - line.start;
    if (shown <= length) return line.start + shown;
    shown -= length + 1;
  }
  return lines.All().back().stop;
}

}  // namespace

TextAreaAdapter::TextAreaAdapter(TextBox& model, QWidget* parent)
    : Adapter(model, new QPlainTextEdit(parent)), box_(model) {
  auto& area = static_cast<QPlainTextEdit&>(Widget());
  // The model has broken the lines already.
  area.setLineWrapMode(QPlainTextEdit::NoWrap);
  area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area.setContextMenuPolicy(Qt::NoContextMenu);
  area.setAcceptDrops(false);
  area.viewport()->installEventFilter(this);
}

void TextAreaAdapter::Draw() {
  auto& area = static_cast<QPlainTextEdit&>(Widget());
  const TextLines& lines = box_.Lines();
  const QString text = Shown(lines);
  if (area.toPlainText() != text) area.setPlainText(text);
  // By itself the area shows a bar that it does not need until it has been on the screen.
  const int height = area.blockCount() * area.fontMetrics().lineSpacing() + 2 * area.frameWidth() +
                     static_cast<int>(2 * area.document()->documentMargin());
  area.setVerticalScrollBarPolicy(height > area.height() ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  const int end = static_cast<int>(text.size());
  QTextCursor caret = area.textCursor();
  const int moved = box_.Caret();
  const int fixed = moved == box_.SelStart ? box_.SelStart + box_.SelLength : box_.SelStart;
  caret.setPosition(std::clamp(ToShown(lines, fixed), 0, end));
  caret.setPosition(std::clamp(ToShown(lines, moved), 0, end), QTextCursor::KeepAnchor);
  area.setTextCursor(caret);
}

void TextAreaAdapter::TellCaret() {
  const QTextCursor caret = static_cast<QPlainTextEdit&>(Widget()).textCursor();
  box_.Select(ToModel(box_.Lines(), caret.anchor()), ToModel(box_.Lines(), caret.position()));
}

bool TextAreaAdapter::eventFilter(QObject* /*watched*/, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      Acts::Run([this] { box_.OwnerForm().UserFocus(box_); });
      return !box_.HasFocus();
    case QEvent::MouseButtonRelease: {
      if (!box_.HasFocus() || static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) return true;
      TellCaret();
      return false;
    }
    default:
      return false;
  }
}

}  // namespace quillon
