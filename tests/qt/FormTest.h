#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "desk/qt/adapters/Adapter.h"
#include "desk/qt/dialogs/MessageDialog.h"
#include "desk/qt/windows/FormView.h"
#include "desk/qt/windows/QtRuntime.h"
#include "tests/support/TempFolder.h"

namespace quillon {

/// Forms on their real windows, without a firm.
class FormTest : public testing::Test {
 protected:
  ~FormTest() override {
    for (const FormPtr& form : runtime_.AllForms()) runtime_.Unload(*form);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// The widget of a control of a form that has a view.
  template <class T = QWidget>
  T& WidgetOf(const Control& control) {
    Adapter* const adapter = runtime_.ViewOf(control.OwnerForm())->AdapterOf(control);
    return dynamic_cast<T&>(adapter->Widget());
  }

  /// Runs when the desk waits for its user.
  static void Soon(const std::function<void()>& act) { QTimer::singleShot(0, qApp, act); }

  /// The next message is taken down and answered by the key.
  static void Dismiss(QString& told, Qt::Key key = Qt::Key_Return) {
    Soon([&told, key] {
      auto* const box = dynamic_cast<MessageDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      told = box->accessibleDescription();
      QTest::keyClick(box->focusWidget(), key);
    });
  }

  /// A key on whatever has the toolkit's focus in the form's window.
  void Press(Form& form, Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QTest::keyClick(Focus(form), key, held);
  }
  void Type(Form& form, const char* text) {
    for (const char* c = text; *c != '\0'; ++c) QTest::keyClick(Focus(form), *c);
  }
  QWidget* Focus(Form& form) {
    FormView* const view = runtime_.ViewOf(form);
    QWidget* const focused = view->focusWidget();
    return focused != nullptr ? focused : view;
  }

  TempFolder folder_;
  QtRuntime runtime_{folder_.Path().string()};
};

}  // namespace quillon
