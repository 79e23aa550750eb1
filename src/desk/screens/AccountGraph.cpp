#include "desk/screens/AccountGraph.h"

#include "books/SqlText.h"
#include "desk/screens/frmAccount.h"
#include "host/services/host_services.h"

namespace quillon {

namespace {

constexpr const char* kOwnColor = "23,107,117";
constexpr int kUsualStartMonth = 4;

/// Amounts by day of an account's entries.
std::string DaysQuery(std::int64_t account, Date first, Date last, const std::string& condition = "") {
  return "Select a.dVchDate as gdate,Sum(a.dAmt) as gamt from FAData a where a.dcd=" +
         books::SqlNumber(account) + " and a.dVchDate between " + books::SqlDate(first, last) + " and " +
         books::InLists("a.dBook") + condition + " group by a.dVchDate order by a.dVchDate";
}

std::string NameOf(int startYear, Date first, Date last) {
  return first.Year() == last.Year() ? std::to_string(startYear) : YearName(startYear);
}

}  // namespace

FormPtr AccountGraph::Open() const {
  FormPtr graph = statement_.ModuleScreen("graph");
  if (!graph) return graph;
  graph->Set("FYear", std::static_pointer_cast<Object>(gSession->CurrentYear()));
  graph->Set("RMinDate", statement_.Date1);
  graph->Set("RMaxDate", statement_.Date2);
  graph->Set("AmtTxt", "Amount");
  graph->Set("GraphNeg", 1);
  return graph;
}

/// The headings are set last, for touching a control loads the form.
void AccountGraph::Show(const FormPtr& graph) const {
  const auto put = [&graph](int heading, const std::string& caption) {
    graph->ControlAt("lblTitle1", heading).Set("Caption", caption);
  };
  put(1, statement_.Grid.Title());
  put(2, statement_.PeriodText());
  gApp->ShowForm(graph);
}

void AccountGraph::ShowAmounts() {
  const FormPtr graph = Open();
  if (!graph) return;
  graph->Set("GraphQry", DaysQuery(statement_.AccountCode, statement_.Date1, statement_.Date2));
  graph->Set("gColor", kOwnColor);
  if (StandsInCredit()) graph->Set("GraphNeg", -1);
  AddYear(*graph, -1, "FYPrev", "GraphQryPrv");
  AddYear(*graph, 1, "FYNext", "GraphQryNxt");
  NameYears(*graph);
  Show(graph);
}

void AccountGraph::ShowDebitsAndCredits() {
  const FormPtr graph = Open();
  if (!graph) return;
  const auto query = [this](const char* side) {
    return DaysQuery(statement_.AccountCode, statement_.Date1, statement_.Date2, side);
  };
  graph->Set("GraphQry", query(" and a.dAmt>0"));
  graph->Set("GraphQryNxt", query(" and a.dAmt<0"));
  graph->Set("CompareMode", 1);
  graph->Set("ChangeColor", 1);
  graph->Set("LTitleCurrent", "Debits");
  graph->Set("LTitleNext", "Credits");
  Show(graph);
}

/// Codes differ from year to year, head and station do not.
void AccountGraph::AddYear(Form& graph, int years, const char* yearMember, const char* queryMember) const {
  const std::shared_ptr<FinYear> year = gSession->NewYear();
  bool ok = false;
  year->OpenYear(gSession->Year().StartYear() + years, ok);
  if (!ok) return;
  const frmAccount::Master& master = *statement_.FAMaster;
  const Variant code = year->Db().Lookup(
      "FAMaster", "Min(mcd)",
      "mhd=" + books::SqlString(master.AcHead) + " and coalesce(mst,'')=" + books::SqlString(master.Station));
  if (code.IsEmpty()) return;
  graph.Set(yearMember, std::static_pointer_cast<Object>(year));
  graph.Set(queryMember,
            DaysQuery(code.ToInteger(), statement_.Date1.AddYears(years), statement_.Date2.AddYears(years)));
}

/// The graph calls a year by the first day of the period, which is right from April to March alone.
void AccountGraph::NameYears(Form& graph) const {
  const FinYear& year = gSession->Year();
  const Date first = year.StartDate();
  const Date last = year.EndDate();
  const bool isUsual = first.Month() == kUsualStartMonth && last == first.AddYears(1).AddDays(-1);
  if (isUsual && statement_.Date1.Year() == year.StartYear()) return;
  graph.Set("LTitlePrev", NameOf(year.StartYear() - 1, first, last));
  graph.Set("LTitleCurrent", NameOf(year.StartYear(), first, last));
  graph.Set("LTitleNext", NameOf(year.StartYear() + 1, first, last));
}

bool AccountGraph::StandsInCredit() const {
  const std::string type = gSession->MainDb()
                               .Lookup("FAMaster a join CtgMaster c on a.mbshno=c.CtgNo", "c.CtgType",
                                       "a.mcd=" + books::SqlNumber(statement_.AccountCode))
                               .ToText();
  return type == "Liabilities" || type == "Income";
}

}  // namespace quillon
