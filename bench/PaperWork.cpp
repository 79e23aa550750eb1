#include "bench/PaperWork.h"

#include <chrono>

#include "desk/print/PdfPrinter.h"
#include "desk/print/ReportPainter.h"
#include "host/controls/CButtonBar.h"
#include "host/services/host_services.h"

namespace quillon::bench {

namespace {

double Seconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double TimeOf(const std::function<void()>& act) {
  const double start = Seconds();
  act();
  return Seconds() - start;
}

/// The report engine with a watch on it.
class WatchedReports : public IReports {
 public:
  explicit WatchedReports(IReports& own) : own_(own) { gReports = this; }
  ~WatchedReports() override { gReports = &own_; }

  void ShowGrid(GridModel& grid, CReportOptions* options, const std::string& title,
                const std::string& subtitle, int value, bool print, const std::string& heading,
                const std::string& optionText) override {
    Taken +=
        TimeOf([&] { own_.ShowGrid(grid, options, title, subtitle, value, print, heading, optionText); });
  }
  std::vector<int> PagesOfRows(GridModel& grid, CReportOptions* options, const std::string& title,
                               const std::string& subtitle, int value) override {
    return own_.PagesOfRows(grid, options, title, subtitle, value);
  }
  std::shared_ptr<PrintSetup> Print(const std::string& what) override { return own_.Print(what); }
  int PrinterMode() const override { return own_.PrinterMode(); }

  double Taken = 0;

 private:
  IReports& own_;
};

void Press(Form& form, const char* button) {
  dynamic_cast<CButtonBar&>(form.ControlAt("BtnBar1")).UserPress(button);
}

Desk::Options Settings(const std::string& output) {
  Desk::Options options;
  options.Area = {0, 0, 20490, 10500};
  options.OutputFolder = output;
  return options;
}

}  // namespace

void PaperWork::Runtime::TellError(const std::string& routine, Form* /*form*/, const std::exception& error) {
  throw HostError(routine + ": " + error.what());
}

PaperWork::PaperWork(const std::filesystem::path& firm, const std::filesystem::path& output)
    : output_(output.string()), runtime_(log_, output_), desk_(Settings(output_)) {
  desk_.OpenFirm(firm);
}

void PaperWork::AddParties(CDbLink& year, int count) {
  year.Execute(
      "execute block as declare n int=1; begin while (n<=" + std::to_string(count) +
      ") do begin insert into FAMaster (mcd,mhd,mst,mhda1,mhda2,mPin,mState,mbshno,mPhoneOff,mCellNo) values "
      "(:n,'Party number '||:n,'Pune',:n||', Laxmi Road','Near Post Office','411002','Maharashtra',140,"
      "'020-2445'||:n,'98220'||:n); n=n+1; end insert into FAMaster (mcd,mhd,mst,mbshno) values (90001,'Sahyadri "
      "Bank','Pune',47); end");
}

/// What the act would bring onto paper; it is not printed.
ReportPages PaperWork::PagesOf(const std::function<void()>& print) {
  auto& printer = dynamic_cast<PdfPrinter&>(runtime_.Printer());
  ReportPages seen;
  printer.AskSight = [&](const ReportPages& pages) {
    seen = pages;
    return false;
  };
  runtime_.Laid.Add({{"to", "printdialog"}, {"seefirst", true}});
  print();
  printer.AskSight = {};
  return seen;
}

double PaperWork::Write(const ReportPages& pages, int times) const {
  return TimeOf([&] {
    for (int i = 0; i < times; ++i) ReportPainter::WritePdf(pages, output_, "floor");
  });
}

PaperTimes PaperWork::Cheques(int count) {
  const FormPtr form = desk_.Module().GetForm("chqprint");
  form->Set("BankCode", 90001);
  form->Set("PartyCode", 1);
  form->Set("PayTo", "Party number 1");
  form->Set("Amount", "123456.75");
  form->Set("vDate", "05-Apr-2024");
  gApp->ShowForm(form);
  const ReportPages pages = PagesOf([&] { form->Call("PrintChq", {true}); });
  const double desk = TimeOf([&] {
    for (int i = 0; i < count; ++i) {
      form->Call("UpdateLabels", {});
      form->Call("PrintChq", {false});
    }
  });
  runtime_.Unload(*form);
  return {std::to_string(count) + " cheques", desk, Write(pages, count)};
}

FormPtr PaperWork::OpenLabels(int mostParties) {
  runtime_.Laid.Add({{"to", "parties"}, {"clause", "b.mcd<=" + std::to_string(mostParties)}});
  FormPtr labels = desk_.Module().GetForm("addresslabels");
  gApp->ShowForm(labels);
  return labels;
}

PaperTimes PaperWork::Envelopes(int count) {
  const FormPtr labels = OpenLabels(count);
  PaperTimes times{std::to_string(count) + " envelopes"};
  runtime_.NextCommand = [&] {
    const FormPtr envelopes = runtime_.ActiveForm();
    const ReportPages pages = PagesOf([&] { Press(*envelopes, "PrintAll"); });
    runtime_.Laid.Add({{"to", "printdialog"}});
    times.Desk = TimeOf([&] { Press(*envelopes, "PrintAll"); });
    times.Floor = Write(pages, 1);
    runtime_.Unload(*envelopes);
    return true;
  };
  Press(*labels, "Envelope");
  runtime_.NextCommand = nullptr;
  runtime_.Unload(*labels);
  return times;
}

PaperTimes PaperWork::Report(const std::string& title, const std::function<void()>& act) {
  WatchedReports reports(*gReports);
  const double desk = TimeOf(act);
  return {title, desk, reports.Taken};
}

PaperTimes PaperWork::Labels() {
  const FormPtr labels = OpenLabels(10'000);
  PaperTimes times = Report("10,000 labels, filled and printed", [&] {
    labels->Call("FillLabels", {});
    Press(*labels, "Print");
  });
  runtime_.Unload(*labels);
  return times;
}

PaperTimes PaperWork::Letter() {
  const FormPtr letter = desk_.Module().GetForm("mailmerge");
  letter->Set("FilterCnd", "b.mcd<=10000");
  gApp->ShowForm(letter);
  PaperTimes times = Report("a letter to 10,000 parties", [&] { Press(*letter, "Print"); });
  runtime_.Unload(*letter);
  return times;
}

}  // namespace quillon::bench
