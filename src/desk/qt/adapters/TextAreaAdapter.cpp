#include "desk/qt/adapters/TextAreaAdapter.h"

#include <QMouseEvent>
#include <QPlainTextEdit>

#include "desk/qt/adapters/Acts.h"
#include "host/forms/Form.h"

namespace quillon {

namespace {

/// The widget has one character where the text has CR and LF.
QString Shown(const std::string& text) {
  return QString::fromStdString(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

int ToShown(const std::string& text, int position) {
  const QString head = QString::fromStdString(text).left(position);
  return position - static_cast<int>(head.count(QLatin1String("\r\n")));
}

int ToModel(const std::string& text, int position) {
  const QString whole = QString::fromStdString(text);
  int at = 0;
  for (int shown = 0; shown < position && at < whole.size(); ++shown) {
    at += whole.mid(at, 2) == QLatin1String("\r\n") ? 2 : 1;
  }
  return at;
}

}  // namespace

TextAreaAdapter::TextAreaAdapter(TextBox& model, QWidget* parent)
    : Adapter(model, new QPlainTextEdit(parent)), box_(model) {
  auto& area = static_cast<QPlainTextEdit&>(Widget());
  area.setContextMenuPolicy(Qt::NoContextMenu);
  area.setAcceptDrops(false);
  area.viewport()->installEventFilter(this);
}

void TextAreaAdapter::Draw() {
  auto& area = static_cast<QPlainTextEdit&>(Widget());
  const QString text = Shown(box_.Text);
  if (area.toPlainText() != text) area.setPlainText(text);
  const int end = static_cast<int>(text.size());
  QTextCursor caret = area.textCursor();
  const int moved = box_.Caret();
  const int fixed = moved == box_.SelStart ? box_.SelStart + box_.SelLength : box_.SelStart;
  caret.setPosition(std::clamp(ToShown(box_.Text, fixed), 0, end));
  caret.setPosition(std::clamp(ToShown(box_.Text, moved), 0, end), QTextCursor::KeepAnchor);
  area.setTextCursor(caret);
}

void TextAreaAdapter::TellCaret() {
  const QTextCursor caret = static_cast<QPlainTextEdit&>(Widget()).textCursor();
  box_.Select(ToModel(box_.Text, caret.anchor()), ToModel(box_.Text, caret.position()));
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
