#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <string>

#include "host/controls/Control.h"

class QMouseEvent;
class QWidget;

namespace quillon {

class FormRoom;

/// Shows one control: draws what the model says and hands every act of the person to the model's user verbs.
/// It decides nothing, and goes with its widget; the model must live longer.
class Adapter : public QObject, public IControlListener {
 public:
  Adapter(Control& model, QWidget* widget);
  ~Adapter() override;

  Control& Model() const { return model_; }
  QWidget& Widget() const { return *widget_; }

  /// What takes the toolkit's focus while the control has the form's.
  virtual QWidget* FocusWidget() { return widget_; }

  /// Where the widgets of the control's own children stand; nothing when the adapter shows them itself.
  virtual QWidget* Container() { return nullptr; }

  /// The place of a child in the container, in pixels.
  virtual QRect PlaceOf(const Control& child) const;

  /// Before it is drawn first: the form's room, which lives longer, and the adapter that it stands in.
  void SetRoom(const FormRoom& room, const Adapter* holder) {
    room_ = &room;
    holder_ = holder;
  }

  /// Goes where the form's room has the control now.
  void TakePlace();

  /// Draws all anew.
  void Refresh();

  /// What changes without a word to the listeners: caret, scrolling, focus.
  virtual void Settle();

  void ControlChanged(Control& control, const PropertyBase* property) override;

 protected:
  /// What is the kind's own.
  virtual void Draw() = 0;

  /// The widget has another place or size.
  virtual void Replaced() { Draw(); }

  /// What every control has: place, visibility, colours, font, names.
  virtual void Dress();

  /// The words that a screen reader says for the control: unless its kind has words of its own, those of the
  /// label on its left, else its tip.
  virtual std::string SpokenName() const;

  /// From now on a click inside the widget clicks the model.
  void TakeClicks();
  virtual void Pressed(bool /*down*/) {}
  virtual void Clicked();

  /// True when the second click is a double click and nothing more.
  virtual bool DoubleClicked() { return false; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QRect Place() const;
  void Color();

  Control& model_;
  QWidget* widget_;
  const FormRoom* room_ = nullptr;
  const Adapter* holder_ = nullptr;
  bool down_ = false;
};

}  // namespace quillon
