#pragma once

#include "desk/qt/adapters/Acts.h"
#include "desk/qt/windows/DeskArea.h"
#include "desk/qt/windows/DeskWindow.h"
#include "desk/sample/SampleFirm.h"
#include "host/controls/CGridPlus.h"
#include "tests/qt/FormTest.h"

namespace quillon {

/// The column of the dates that are typed.
inline constexpr int kCleared = 27;

/// The whole desk on a firm of its own, worked with by keys.
class DeskTest : public FormTest {
 protected:
  DeskTest() : window_(runtime_, "") {
    MakeSampleFirm(folder_.Path() / "firm", {.Years = {2024}, .Vouchers = 120});
    window_.show();
    EXPECT_EQ(window_.OpenFirm(QString::fromStdString(folder_.File("firm"))), "");
    QApplication::processEvents();
  }

  Form& Top() { return *runtime_.ActiveForm(); }
  QWidget* Focus() { return FormTest::Focus(Top()); }
  void Press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) { FormTest::Press(Top(), key, held); }
  void Type(const char* text) { FormTest::Type(Top(), text); }

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

  DeskWindow window_;
};

}  // namespace quillon
