#include "bench/BulkWork.h"

#include <chrono>

#include "bench/BenchFirm.h"
#include "host/controls/CGridPlus.h"
#include "host/services/IModule.h"

namespace quillon::bench {

namespace {

class Recorder : public SqlObserver {
 public:
  explicit Recorder(std::vector<std::string>& sent) : sent_(sent) {}
  void OnStatement(const CDbLink&, const std::string&, const std::string& sql, std::int64_t,
                   const std::string&) override {
    sent_.push_back(sql);
  }

 private:
  std::vector<std::string>& sent_;
};

Desk::Options Settings() {
  Desk::Options options;
  options.Area = {0, 0, 20490, 10500};
  return options;
}

FormPtr NewForm(const char* key) { return gSession->Modules().Item("DutyworksModule")->GetForm(key); }

}  // namespace

double TimeOf(const std::function<void()>& act) {
  const auto start = std::chrono::steady_clock::now();
  act();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void BulkWork::Runtime::TellError(const std::string& routine, Form* /*form*/, const std::exception& error) {
  throw HostError(routine + ": " + error.what());
}

BulkWork::BulkWork(const std::filesystem::path& firm)
    : runtime_(log_, std::filesystem::temp_directory_path()), desk_(Settings()) {
  desk_.OpenFirm(firm);
}

BulkRun BulkWork::PressOk(const FormPtr& form) {
  auto& year = dynamic_cast<FirebirdLink&>(gSession->MainDb());
  BulkRun run;
  Recorder recorder(run.Sent);
  year.SetObserver(&recorder);
  run.Seconds = TimeOf([&] { form->UserKey(keys::kF7, 0, 0); });
  year.SetObserver(nullptr);
  if (form->IsLoaded()) throw HostError(form->Name() + " did not go through");
  return run;
}

BulkRun BulkWork::Transfer(Date last, int party) {
  const FormPtr form = NewForm("acmasstransfer");
  form->Set("AcCode", kBank);
  runtime_.Show(form);
  form->ControlAt("txtToAc").Set("Text", "Party");
  form->ControlAt("txtToAc").Set("Tag", std::to_string(party));
  form->ControlAt("txpDate2").Set("Text", last.Text());
  return PressOk(form);
}

BulkRun BulkWork::Merge(int pairs) {
  const FormPtr form = NewForm("mergeparties");
  runtime_.Show(form);
  auto& grid = dynamic_cast<CGridPlus&>(form->ControlAt("Grid"));
  grid.Rows = pairs + 1;
  for (int pair = 0; pair < pairs; ++pair) {
    grid.SetTextMatrix(pair + 1, 3, "Party No. " + std::to_string(pair));
    grid.SetTextMatrix(pair + 1, 4, "Indore");
    grid.SetTextMatrix(pair + 1, 5, "Party No. " + std::to_string(pair + pairs));
    grid.SetTextMatrix(pair + 1, 6, "Indore");
  }
  return PressOk(form);
}

}  // namespace quillon::bench
