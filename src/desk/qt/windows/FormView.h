#pragma once

#include <QScrollArea>
#include <map>
#include <vector>

#include "desk/qt/adapters/FormRoom.h"
#include "host/forms/Form.h"

class QKeyEvent;

namespace quillon {

class Adapter;

/// Shows a form: an adapter for each of its controls. Keys go to the form by one path, whatever has the
/// toolkit's focus. Keeps the form alive.
///
/// Made for a picture or for paper it has the form's own size. For the user a screen takes the room that it
/// is given and is laid out anew in it; what finds no room, in a dialog too, is reached by scrolling.
class FormView : public QScrollArea, private IControlListener {
 public:
  explicit FormView(const FormPtr& form, QWidget* parent = nullptr, Qt::WindowFlags flags = {});
  ~FormView() override;

  Form& Model() const { return *form_; }

  /// Nothing for a control that is not drawn, or that another one draws.
  Adapter* AdapterOf(const Control& control) const;

  /// From now on it is the user's: it fills its place, and a dialog is no larger than the screen.
  void Serve();

  /// All anew, after the zoom has changed.
  void Replace();

  /// Brings focus, caret and scrolling up to date.
  void Settle();

  /// A key as the person pressed it. True when it was one that forms know.
  bool TakeKey(const QKeyEvent& key);

  /// Types a text as a person would.
  void TypeText(const QString& text);

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Ground;

  void ControlChanged(Control& control, const PropertyBase* property) override;
  void Build(Control& parent, QWidget* container, Adapter* holder);
  void Dress();
  void Arrange();
  void PlaceLists();
  void ShowFocus();
  QSize WholeSize() const;

  FormPtr form_;
  QWidget* ground_;  // what the controls stand on
  FormRoom room_;
  QRect shownAt_;  // where the keys acted when it was last brought into sight
  bool serves_ = false;
  std::vector<Adapter*> adapters_;
  std::map<const Control*, Adapter*> byControl_;
};

}  // namespace quillon
