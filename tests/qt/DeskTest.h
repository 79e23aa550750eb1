#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/adapters/Adapter.h"
#include "desk/qt/windows/DeskArea.h"
#include "desk/qt/windows/DeskWindow.h"
#include "desk/qt/windows/FormView.h"
#include "desk/qt/windows/QtRuntime.h"
#include "desk/sample/SampleFirm.h"
#include "host/controls/CGridPlus.h"
#include "tests/support/TempFolder.h"

namespace quillon {

/// The column of the dates that are typed.
inline constexpr int kCleared = 27;

/// The whole desk on a firm of its own, worked with by keys.
class DeskTest : public testing::Test {
 protected:
  DeskTest() : runtime_(folder_.Path().string()), window_(runtime_, "") {
    MakeSampleFirm(folder_.Path() / "firm", {.Years = {2024}, .Vouchers = 120});
    window_.show();
    EXPECT_EQ(window_.OpenFirm(QString::fromStdString(folder_.File("firm"))), "");
    QApplication::processEvents();
  }

  static void Soon(const std::function<void()>& act) { QTimer::singleShot(0, qApp, act); }

  Form& Top() { return *runtime_.ActiveForm(); }

  /// The widget of a control of the form on top, or of another that has a view.
  template <class T = QWidget>
  T& WidgetOf(const Control& control) {
    return dynamic_cast<T&>(runtime_.ViewOf(control.OwnerForm())->AdapterOf(control)->Widget());
  }

  QWidget* Focus() {
    QWidget* const focused = runtime_.TopView()->focusWidget();
    return focused != nullptr ? focused : runtime_.TopView();
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QTest::keyClick(Focus(), key, held);
  }
  void Type(const char* text) {
    for (const char* c = text; *c != '\0'; ++c) QTest::keyClick(Focus(), *c);
  }

  void OpenStatement() {
    constexpr int kCurrentAccount = 101;
    const FormPtr statement = gApp->GetForm("Account");
    statement->Set("AccountCode", kCurrentAccount);
    Acts::Run([&] { gApp->ShowForm(statement); });
  }

  /// The statement of the current account, and the reconciliation on it by its key.
  CGridPlus& OpenWorkbench() {
    OpenStatement();
    Press(Qt::Key_F6);
    EXPECT_EQ(Top().Name(), "frmAcReconciliation");
    return dynamic_cast<CGridPlus&>(Top().ControlAt("Grid"));
  }

  TempFolder folder_;
  QtRuntime runtime_;
  DeskWindow window_;
};

}  // namespace quillon
