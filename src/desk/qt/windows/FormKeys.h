#pragma once

#include <QObject>

class QKeyEvent;

namespace quillon {

/// A key as the forms see it.
struct PressedKey {
  int KeyCode = 0;
  int Shift = 0;
  int Character = 0;  ///< 0 when it makes none
};

/// Takes the keys of the form windows before any widget does, so that a form hears each of them, and hears it
/// first.
class FormKeys : public QObject {
 public:
  /// Once for the program; more calls do nothing.
  static void Listen();

  /// Both members 0 for a key that the forms do not know.
  static PressedKey Of(const QKeyEvent& key);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  explicit FormKeys(QObject* parent) : QObject(parent) {}
};

}  // namespace quillon
