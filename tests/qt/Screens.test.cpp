#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <algorithm>
#include <set>

#include "desk/qt/dialogs/PartyDialog.h"
#include "host/controls/CPeriod.h"
#include "host/data/CDataSet.h"
#include "host/forms/CPartyFilter.h"
#include "host/services/ISession.h"
#include "host/services/IStd.h"
#include "tests/qt/DeskTest.h"

namespace quillon {
namespace {

class ScreensTest : public DeskTest {
 protected:
  /// The controls of the form on top that Tab comes to, one round from the first on.
  std::vector<Control*> TabRound() {
    std::vector<Control*> round;
    for (Control* here = Top().ActiveControl(); here != nullptr && round.size() < 20;) {
      round.push_back(here);
      EXPECT_EQ(Focus(), runtime_.TopView()->AdapterOf(*here)->FocusWidget()) << here->Name();
      Press(Qt::Key_Tab);
      here = Top().ActiveControl() == round.front() ? nullptr : Top().ActiveControl();
    }
    const auto first = std::min_element(round.begin(), round.end(), [this](Control* one, Control* other) {
      return Reads(PlaceOf(*one), PlaceOf(*other));
    });
    std::rotate(round.begin(), first, round.end());
    return round;
  }

  QRect PlaceOf(const Control& control) {
    QWidget& widget = WidgetOf(control);
    return {widget.mapTo(runtime_.TopView(), QPoint()), widget.size()};
  }

  /// Whether one reads the first place before the second: it stands above, or on the same line to the left.
  static bool Reads(const QRect& first, const QRect& second) {
    if (first.bottom() < second.top()) return true;
    return first.top() <= second.bottom() && first.right() < second.left();
  }

  /// What a screen reader says for each control in Tab's order, which must be the order of reading.
  std::vector<std::string> Spoken() {
    std::vector<std::string> spoken;
    QRect before;
    for (Control* control : TabRound()) {
      const QRect place = PlaceOf(*control);
      EXPECT_TRUE(before.isNull() || Reads(before, place)) << control->Name() << " comes too late";
      before = place;
      QWidget* const widget = runtime_.TopView()->AdapterOf(*control)->FocusWidget();
      QAccessibleInterface* const heard = QAccessible::queryAccessibleInterface(widget);
      const auto what = heard->role() == QAccessible::ComboBox ? QAccessible::Description : QAccessible::Name;
      const std::string name = heard->text(what).toStdString();
      EXPECT_NE(name, "") << control->Name();
      EXPECT_NE(name, control->Name()) << "a name of the code says nothing to a person";
      EXPECT_NE(heard->role(), QAccessible::NoRole) << control->Name();
      EXPECT_NE(heard->role(), QAccessible::Client) << control->Name();
      spoken.push_back(name);
    }
    return spoken;
  }
};

using Names = std::vector<std::string>;

TEST_F(ScreensTest, EveryControlIsSpokenAndTabReadsTheScreen) {
  OpenStatement();
  EXPECT_EQ(Spoken().size(), 1U);
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);
  ASSERT_EQ(Top().Name(), "frmVoucher");
  EXPECT_EQ(Spoken().size(), 1U);
  Press(Qt::Key_Escape);
  Press(Qt::Key_F6);
  ASSERT_EQ(Top().Name(), "frmAcReconciliation");
  EXPECT_EQ(Spoken(), (Names{"Chq. Returned", "Entries to show", "Reconciliation Workings"}));
  const auto& strip = WidgetOf<QLabel>(Top().ControlAt("MStrip1"));
  EXPECT_TRUE(strip.text().startsWith(QStringLiteral("Sahyadri Bank Current A/c")));
  const FormPtr interest = window_.Books().Module().GetForm("inttmethod");
  Soon([&] {
    EXPECT_EQ(Spoken(), (Names{"Method of Interest", "Rate of Interest ", "F7: OK", "Esc: Cancel"}));
    Press(Qt::Key_Escape);
  });
  gRuntime->Show(interest, true);
}

/// The acts of a menu and of the menus in it, filled as they are when they open.
void Collect(QMenu& menu, QList<QAction*>& acts) {
  Q_EMIT menu.aboutToShow();
  std::set<QChar> mnemonics;
  for (QAction* act : menu.actions()) {
    if (act->isSeparator()) continue;
    acts << act;
    const int mark = static_cast<int>(act->text().indexOf(QLatin1Char('&')));
    if (mark >= 0) {
      EXPECT_TRUE(mnemonics.insert(act->text().at(mark + 1).toLower()).second) << act->text().toStdString();
    }
    if (QMenu* inner = act->menu()) Collect(*inner, acts);
  }
}

TEST_F(ScreensTest, EveryActOfTheMenusHasAKeyAndTheWindowsAreAmongThem) {
  OpenWorkbench();
  QList<QAction*> acts;
  for (QAction* title : window_.menuBar()->actions()) {
    EXPECT_TRUE(title->text().contains(QLatin1Char('&'))) << title->text().toStdString();
    Collect(*title->menu(), acts);
  }
  std::set<QKeySequence> keys;
  QAction* statement = nullptr;
  for (QAction* act : acts) {
    EXPECT_TRUE(act->text().contains(QLatin1Char('&'))) << act->text().toStdString();
    const bool fresh = act->shortcut().isEmpty() || keys.insert(act->shortcut()).second;
    EXPECT_TRUE(fresh) << act->text().toStdString();
    if (act->text().endsWith(QStringLiteral("A/c Statement"))) statement = act;
  }
  ASSERT_NE(statement, nullptr);
  statement->trigger();
  EXPECT_EQ(Top().Name(), "frmAccount");
  EXPECT_TRUE(window_.windowTitle().startsWith(QStringLiteral("A/c Statement - Sharda")));
  Top().Caption = "Another cheque";
  EXPECT_TRUE(window_.windowTitle().startsWith(QStringLiteral("Another cheque - Sharda")));
}

/// A form that asks for a period.
class frmPeriod : public Form {
 public:
  frmPeriod() : Form("frmPeriod"), Period1(*this, "Period1") {
    Width = 6000;
    Height = 1500;
    Period1.Move(150, 150, 5400, 375);
    Period1.Date1.Caption = "From";
    Period1.Date2.Caption = "To";
    for (CTextPlus* field : {&Period1.Date1, &Period1.Date2}) field->LabelWidth = 600;
  }
  CPeriod Period1;
};

TEST_F(ScreensTest, APeriodIsTypedShortAndChecked) {
  const auto form = std::make_shared<frmPeriod>();
  gRuntime->Show(form);
  Type("5/4");
  Press(Qt::Key_Tab);
  auto* const field = WidgetOf(form->Period1.Date1).findChild<QLineEdit*>();
  EXPECT_EQ(field->text(), "05-Apr-2024");
  EXPECT_EQ(form->ActiveControl(), &form->Period1.Date2);
  // A date that there is not keeps the user in the field.
  QString told;
  Dismiss(told);
  Type("31/2");
  Press(Qt::Key_Tab);
  EXPECT_EQ(told, "Invalid Date");
  EXPECT_EQ(form->ActiveControl(), &form->Period1.Date2);
  Press(Qt::Key_A, Qt::ControlModifier);
  Type("1/4");
  Press(Qt::Key_Tab);
  Dismiss(told);
  EXPECT_FALSE(form->Period1.ValidatePeriod());
  EXPECT_EQ(told, "To Date can't be less than From Date");
  EXPECT_EQ(form->ActiveControl(), &form->Period1.Date2) << "the field at fault has the focus";
  Press(Qt::Key_A, Qt::ControlModifier);
  Type("30/6");
  Press(Qt::Key_Tab);
  EXPECT_TRUE(form->Period1.ValidatePeriod());
  gRuntime->Unload(*form);
}

/// The parties that the dialog's answer finds, as a form would list them.
Names PartiesOf(const CPartyFilter& filter) {
  Names found;
  CDataSet rows;
  const std::string where = filter.Clause().empty() ? "" : " where " + filter.Clause();
  for (rows.Open("Select b.mhd, b.mst from FAMaster b" + where + " order by " + filter.OrderBy(),
                 gSession->MainDb());
       !rows.Eof(); rows.MoveNext()) {
    found.push_back(rows.Field("mst").ToText() + ": " + rows.Field("mhd").ToText());
  }
  return found;
}

TEST_F(ScreensTest, PartiesAreSelectedByNameStationAndOrder) {
  CPartyFilter filter;
  Soon([] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_F7); });
  ASSERT_TRUE(filter.Show());
  const std::size_t all = PartiesOf(filter).size();
  EXPECT_TRUE((filter.Clause() + filter.Caption()).empty());
  std::string station;
  Soon([&] {
    auto* const dialog = dynamic_cast<PartyDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    const auto choices = dialog->findChildren<QComboBox*>();
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    ASSERT_EQ(dialog->focusWidget(), choices[0]) << "the station comes after the name";
    QTest::keyClicks(choices[0], "Pune");
    station = choices[0]->currentText().toStdString();
    QTest::keyClick(choices[0], Qt::Key_F7);
  });
  ASSERT_TRUE(filter.Show());
  ASSERT_EQ(station, "Pune");
  EXPECT_EQ(filter.Caption(), "Station: Pune");
  const Names inPune = PartiesOf(filter);
  EXPECT_GT(inPune.size(), 1U);
  EXPECT_LT(inPune.size(), all);
  for (const std::string& party : inPune) EXPECT_TRUE(party.starts_with("Pune: ")) << party;
  Soon([&] {
    QWidget* const dialog = QApplication::activeModalWidget();
    const auto choices = dialog->findChildren<QComboBox*>();
    QTest::keyClicks(dialog->focusWidget(), "g");
    QTest::keyClick(choices[2], Qt::Key_Down);
    QTest::keyClick(dialog, Qt::Key_F7);
  });
  ASSERT_TRUE(filter.Show());
  const Names byName = PartiesOf(filter);
  EXPECT_GT(byName.size(), 1U);
  EXPECT_TRUE(std::is_sorted(byName.begin(), byName.end())) << "by station, then by name";
  for (const std::string& party : byName) EXPECT_NE(party.find(": G"), std::string::npos) << party;
  // A quote in the name is a letter, not the end of a text.
  Soon([] {
    QTest::keyClicks(QApplication::activeModalWidget()->focusWidget(), "D'");
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_F7);
  });
  ASSERT_TRUE(filter.Show());
  EXPECT_NO_THROW(PartiesOf(filter));
}

}  // namespace
}  // namespace quillon
