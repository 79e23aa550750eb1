#pragma once

#include <QWidget>
#include <map>
#include <vector>

#include "host/forms/Form.h"

class QKeyEvent;

namespace quillon {

class Adapter;

/// Shows a form: an adapter for each of its controls. Keys go to the form by one path, whatever has the
/// toolkit's focus. Keeps the form alive.
class FormView : public QWidget, private IControlListener {
 public:
  explicit FormView(const FormPtr& form, QWidget* parent = nullptr, Qt::WindowFlags flags = {});
  ~FormView() override;

  Form& Model() const { return *form_; }

  /// Nothing for a control that is not drawn, or that another one draws.
  Adapter* AdapterOf(const Control& control) const;

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
  void paintEvent(QPaintEvent* event) override;

 private:
  void ControlChanged(Control& control, const PropertyBase* property) override;
  void Build(Control& parent, QWidget* container, Adapter* holder);
  void Dress();

  FormPtr form_;
  std::vector<Adapter*> adapters_;
  std::map<const Control*, Adapter*> byControl_;
};

}  // namespace quillon
