#include "desk/qt/windows/FormKeys.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <map>

#include "desk/qt/adapters/ComboAdapter.h"
#include "desk/qt/windows/FormView.h"
#include "host/controls/Keys.h"

namespace quillon {

namespace {

const std::map<int, int> kNamed = {
    {Qt::Key_Backspace, keys::kBack}, {Qt::Key_Tab, keys::kTab},           {Qt::Key_Backtab, keys::kTab},
    {Qt::Key_Return, keys::kEnter},   {Qt::Key_Enter, keys::kEnter},       {Qt::Key_Escape, keys::kEscape},
    {Qt::Key_PageUp, keys::kPageUp},  {Qt::Key_PageDown, keys::kPageDown}, {Qt::Key_End, keys::kEnd},
    {Qt::Key_Home, keys::kHome},      {Qt::Key_Left, keys::kLeft},         {Qt::Key_Up, keys::kUp},
    {Qt::Key_Right, keys::kRight},    {Qt::Key_Down, keys::kDown},         {Qt::Key_Delete, keys::kDelete}};

constexpr std::pair<QKeySequence::StandardKey, int> kClipboard[] = {
    {QKeySequence::Copy, 'C'}, {QKeySequence::Cut, 'X'}, {QKeySequence::Paste, 'V'}};

constexpr int kLastPlainKey = 0x7F;

int ShiftOf(const QKeyEvent& key) {
  const Qt::KeyboardModifiers held = key.modifiers();
  int shift = key.key() == Qt::Key_Backtab ? keys::kShift : 0;
  if (held & Qt::ShiftModifier) shift |= keys::kShift;
  if (held & Qt::ControlModifier) shift |= keys::kCtrl;
  if (held & Qt::AltModifier) shift |= keys::kAlt;
  return shift;
}

/// The view that the widget is a part of, not counting windows that stand on it.
FormView* ViewOf(QObject* watched) {
  for (auto* widget = qobject_cast<QWidget*>(watched); widget != nullptr; widget = widget->parentWidget()) {
    if (auto* view = dynamic_cast<FormView*>(widget)) return view;
    if (widget->isWindow()) return nullptr;
  }
  return nullptr;
}

/// Whether the key writes in a field that keeps its own caret.
bool BelongsToField(const QObject& watched, const QKeyEvent& key) {
  if (!watched.property(ComboAdapter::kTypesItself).toBool()) return false;
  switch (key.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
      return true;
    default:
      return key.matches(QKeySequence::Copy) || key.matches(QKeySequence::Cut) ||
             key.matches(QKeySequence::Paste) || (!key.text().isEmpty() && key.text().at(0).isPrint());
  }
}

}  // namespace

void FormKeys::Listen() {
  static bool listening = false;
  if (!listening) qApp->installEventFilter(new FormKeys(qApp));
  listening = true;
}

PressedKey FormKeys::Of(const QKeyEvent& key) {
  PressedKey pressed;
  pressed.Shift = ShiftOf(key);
  if (const auto named = kNamed.find(key.key()); named != kNamed.end()) {
    pressed.KeyCode = named->second;
    const bool types = pressed.KeyCode == keys::kEnter || pressed.KeyCode == keys::kBack;
    pressed.Character = types ? pressed.KeyCode : 0;
    return pressed;
  }
  if (key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F12) {
    pressed.KeyCode = keys::kF1 + key.key() - Qt::Key_F1;
    return pressed;
  }
  // By whatever keys the toolkit knows them.
  for (const auto& [sequence, letter] : kClipboard) {
    if (key.matches(sequence)) return {letter, keys::kCtrl, 0};
  }
  if ((pressed.Shift & (keys::kCtrl | keys::kAlt)) != 0) {
    if (key.key() <= kLastPlainKey) pressed.KeyCode = CodeOfCharacter(key.key());
    return pressed;
  }
  const QList<uint> characters = key.text().toUcs4();
  if (characters.isEmpty() || characters.front() < ' ' || characters.front() == kLastPlainKey) return pressed;
  pressed.Character = static_cast<int>(characters.front());
  pressed.KeyCode = CodeOfCharacter(pressed.Character);
  return pressed;
}

bool FormKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    FormView* const view = ViewOf(watched);
    if (view == nullptr || BelongsToField(*watched, key)) return false;
    return view->TakeKey(key);
  }
  if (event->type() == QEvent::ShortcutOverride) {
    // F1 is the menu's only where no form is; a form may answer it itself.
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool forms =
        key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier && ViewOf(watched) != nullptr;
    if (forms) event->accept();
    return forms;
  }
  if (event->type() == QEvent::InputMethod) {
    FormView* const view = ViewOf(watched);
    if (view == nullptr || watched->property(ComboAdapter::kTypesItself).toBool()) return false;
    view->TypeText(static_cast<QInputMethodEvent*>(event)->commitString());
    return true;
  }
  return false;
}

}  // namespace quillon
